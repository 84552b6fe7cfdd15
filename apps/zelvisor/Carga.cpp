#include "Carga.h"

#include <filesystem>

#include "file/lectorArchivo.h"
#include "platform/qt/LectorDeImagen.h"

namespace zel {

namespace {

EsquemaLeido NoLeido(std::string motivo, std::string remedio = COMPRUEBE_EL_ARCHIVO) {
    EsquemaLeido leido;
    leido.motivo = std::move(motivo);
    leido.remedio = std::move(remedio);
    return leido;
}

// A picture that is not there, or is none, is no reason to change what the file says of it.
void DejaLaQueNoSeVe(SeccionImagen& seccion, std::string& problemas) {
    if (seccion.imagen) {
        const std::string motivo = LeeImagen(seccion.imagen->Archivo).motivo;
        if (motivo.empty()) return;
        seccion.motivo =
            "La imagen de fondo \"" + seccion.imagen->Archivo + "\" no se puede mostrar: " + motivo;
        seccion.imagen.reset();
    }
    problemas += "\r\n" + seccion.motivo;
}

// What is not understood of these sections is no reason to refuse the schematic; it is told.
void LeeSecciones(lectorArchivo& lector, EsquemaLeido& leido) {
    // Absolute, so that the picture's path is whole wherever the schematic is saved to.
    lector.NombreArchivo(std::filesystem::absolute(lector.NombreArchivo()).string());
    leido.imagen = lector.LeeSeccionImagen();
    if (leido.imagen) DejaLaQueNoSeVe(*leido.imagen, leido.problemas);
    const auto ajustes = lector.LeeConfiguracion();
    if (!ajustes || ajustes->Count() == 0) return;
    try {
        leido.bMostrarLineasOcultas = Variante(ajustes->Item(1)).Booleano();
    } catch (const Fallo&) {
        leido.problemas += "\r\nNo se entiende el valor de VerLineasSecundarias: " + ajustes->Item(1);
    }
}

}  // namespace

EsquemaLeido LeeEsquema(const std::string& ruta, CodigosRepetidos repetidos) {
    lectorArchivo lector;
    auto elementos = std::make_shared<Elementos>();
    lector.NombreArchivo(ruta);
    lector.Coleccion(elementos);
    lector.AdmiteCodigosRepetidos(repetidos == CodigosRepetidos::SeAdmiten);
    bool conRegistro = true;
    try {
        lector.Carga();
    } catch (const Error& error) {
        if (!lector.MotivoSinCargar().empty()) return NoLeido(lector.MotivoSinCargar(), CORRIJA_LOS_CODIGOS);
        if (lector.Registro().empty()) {
            return NoLeido("contiene datos que no se pueden cargar: " + CausaDe(error.Description()),
                           "Compruebe los datos del archivo, o recupere una copia anterior.");
        }
        conRegistro = false;
    }
    if (!lector.MotivoSinLeer().empty()) return NoLeido(lector.MotivoSinLeer());
    if (elementos->Count() == 0 && !lector.EsEsquema()) return NoLeido("no es un esquema");
    EsquemaLeido leido;
    leido.elementos = elementos;
    leido.problemas = lector.Registro();
    leido.conRegistro = conRegistro && !leido.problemas.empty();
    LeeSecciones(lector, leido);
    return leido;
}

}  // namespace zel
