#include "Ordenes.h"

#include <QFileInfo>
#include <array>
#include <iostream>
#include <optional>
#include <sstream>
#include <vector>

#include "Carga.h"
#include "control/Exportacion.h"
#include "file/GuardadoSeguro.h"
#include "model/Verificador.h"
#include "platform/Numeros.h"
#include "platform/Texto.h"
#include "platform/qt/LectorDeImagen.h"
#include "platform/qt/Rutas.h"
#include "session/Extension.h"

namespace zel {

namespace {

constexpr int NO_HECHO = 3;
constexpr int CON_HALLAZGOS = 1;
constexpr int ILEGIBLE = 2;

// The schematic, or nothing after having said why on the standard error.
EsquemaLeido LeeODilo(const QString& entrada, CodigosRepetidos repetidos = CodigosRepetidos::SeRechazan) {
    EsquemaLeido leido = LeeEsquema(RutaDe(entrada), repetidos);
    if (!leido.elementos) {
        std::cerr << "zelvisor: no se puede leer \"" << RutaDe(entrada) << "\": " << leido.impedimento.motivo
                  << ".\n"
                  << leido.impedimento.remedio << '\n';
    }
    return leido;
}

void EscribeProblemas(const std::string& problemas) {
    std::istringstream lineas(problemas);
    for (std::string linea; std::getline(lineas, linea);) {
        if (!linea.empty() && linea.back() == '\r') linea.pop_back();
        if (!linea.empty()) std::cout << "  " << linea << '\n';
    }
}

// Saves to another file, or the same; false after having said why it could not.
bool GuardaODilo(const EsquemaLeido& leido, const QString& salida) {
    try {
        const ImagenQueGuardar imagen = leido.imagen ? ImagenQueGuardar(*leido.imagen) : ImagenQueGuardar();
        const std::string aviso =
            GuardaConSeguridad(RutaDe(salida), leido.elementos, imagen, leido.bMostrarLineasOcultas, EsImagen)
                .aviso;
        if (!aviso.empty()) std::cout << aviso << ".\n";
        return true;
    } catch (const Fallo& fallo) {
        std::cerr << "zelvisor: no se puede guardar \"" << RutaDe(salida) << "\": " << fallo.Description()
                  << ".\nEl archivo que hubiera con ese nombre sigue como estaba.\n";
        return false;
    }
}

void EscribeHallazgo(const HallazgoIntegridad& hallazgo) {
    std::cout << "  posición " << hallazgo.Posicion << ", código " << hallazgo.Codigo << ", \""
              << EnBreve(hallazgo.Nombre) << "\": " << hallazgo.Problema;
    if (!hallazgo.Correccion.empty()) std::cout << " -> " << hallazgo.Correccion;
    std::cout << '\n';
}

}  // namespace

int Verifica(const QString& entrada, const QString& salida) {
    const EsquemaLeido leido = LeeODilo(entrada, CodigosRepetidos::SeAdmiten);
    if (!leido.elementos) return ILEGIBLE;
    if (!leido.problemas.empty()) {
        std::cout << "Al leer faltaban datos o se repetían:\n";
        EscribeProblemas(leido.problemas);
    }
    const bool corrige = !salida.isEmpty();
    std::vector<HallazgoIntegridad> hallazgos;
    try {
        leido.elementos->VerificaIntegridad(corrige, &hallazgos);
    } catch (const Error& error) {
        std::cerr << "zelvisor: la verificación no ha podido acabar o escribir Integridad.log: "
                  << error.Description() << '\n';
        if (hallazgos.empty()) return NO_HECHO;
    }
    if (hallazgos.empty()) {
        std::cout << "El esquema es íntegro: " << leido.elementos->Count() << " elementos.\n";
    } else {
        std::cout << "Hallazgos: " << hallazgos.size() << '\n';
        for (const auto& hallazgo : hallazgos)
            EscribeHallazgo(hallazgo);
    }
    if (corrige) {
        if (!GuardaODilo(leido, salida)) return NO_HECHO;
        // Not all that is found can be corrected: negative numbers stay, for one.
        const bool sano = Verificador(*leido.elementos, false, false).Verifica() == 0;
        std::cout << (sano ? "El esquema, ya íntegro, está en \"" : "Lo que se podía corregir lo está en \"")
                  << RutaDe(salida) << "\".\n";
    }
    return hallazgos.empty() ? 0 : CON_HALLAZGOS;
}

int Convierte(const QString& entrada, const QString& salida) {
    const EsquemaLeido leido = LeeODilo(entrada);
    if (!leido.elementos) return ILEGIBLE;
    if (!leido.problemas.empty()) {
        std::cout << "Al leer faltaban datos o se repetían:\n";
        EscribeProblemas(leido.problemas);
    }
    return GuardaODilo(leido, salida) ? 0 : NO_HECHO;
}

int Exporta(const QString& entrada, const QString& salida, const QString& ancho) {
    const auto formato = FormatoDeArchivo(salida);
    if (!formato) {
        std::cerr
            << "zelvisor: el esquema se exporta como imagen PNG o como dibujo SVG o PDF; dé a la salida "
               "un nombre que acabe en .png, .svg o .pdf.\n";
        return NO_HECHO;
    }
    if (*formato == FormatoDeDibujo::Pdf && !ancho.isNull()) {
        std::cerr << "zelvisor: una página PDF se mide en milímetros, uno por unidad del esquema; quite "
                     "--ancho o exporte a .png o .svg.\n";
        return NO_HECHO;
    }
    std::optional<int> pixeles;
    if (!ancho.isNull()) {
        bool esNumero = false;
        pixeles = ancho.toInt(&esNumero);
        if (!esNumero || *pixeles < ANCHO_MINIMO_DE_IMAGEN || *pixeles > LADO_MAXIMO_DE_IMAGEN) {
            std::cerr << "zelvisor: el ancho ha de ser un número de píxeles entre " << ANCHO_MINIMO_DE_IMAGEN
                      << " y " << LADO_MAXIMO_DE_IMAGEN << ".\n";
            return NO_HECHO;
        }
    }
    const EsquemaLeido leido = LeeODilo(entrada);
    if (!leido.elementos) return ILEGIBLE;
    try {
        const QString titulo = QFileInfo(entrada).completeBaseName();
        for (const QString& fallo :
             ExportaEsquema(salida, *leido.elementos, leido.bMostrarLineasOcultas, titulo, pixeles)) {
            std::cerr << "zelvisor: no se ha podido dibujar: " << fallo.toStdString() << '\n';
        }
        return 0;
    } catch (const Fallo& fallo) {
        std::cerr << "zelvisor: no se puede escribir \"" << RutaDe(salida) << "\": " << fallo.Description()
                  << ".\nEl archivo que hubiera con ese nombre sigue como estaba.\n";
        return NO_HECHO;
    }
}

int Informa(const QString& entrada) {
    const EsquemaLeido leido = LeeODilo(entrada, CodigosRepetidos::SeAdmiten);
    if (!leido.elementos) return ILEGIBLE;
    std::array<int, NUMERO_DE_TIPOS> porTipo{};
    int desconocidos = 0;
    for (const auto& e : *leido.elementos) {
        if (TipoConocido(e->Tipo()))
            ++porTipo[static_cast<std::size_t>(e->Tipo())];
        else
            ++desconocidos;
    }
    std::cout << "Archivo: " << RutaDe(entrada) << "\nElementos: " << leido.elementos->Count() << '\n';
    for (std::int32_t tipo = 0; tipo < NUMERO_DE_TIPOS; ++tipo) {
        std::cout << "  " << NombreDeTipo(TipoElemento(tipo)) << ": "
                  << porTipo[static_cast<std::size_t>(tipo)] << '\n';
    }
    if (desconocidos > 0) std::cout << "  De tipo desconocido: " << desconocidos << '\n';
    if (const auto marco = ExtensionDe(*leido.elementos, 0)) {
        std::cout << "Extensión: X de " << TextoDeNumero(marco->Xmin) << " a " << TextoDeNumero(marco->Xmax)
                  << ", Y de " << TextoDeNumero(marco->Ymin) << " a " << TextoDeNumero(marco->Ymax) << '\n';
    }
    if (leido.problemas.empty()) {
        std::cout << "Problemas de carga: ninguno\n";
    } else {
        std::cout << "Problemas de carga" << (leido.conRegistro ? " (también en ErroresCarga.log)" : "")
                  << ":\n";
        EscribeProblemas(leido.problemas);
    }
    return 0;
}

}  // namespace zel
