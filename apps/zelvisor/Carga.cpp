#include "Carga.h"

#include <filesystem>

#include "file/lectorArchivo.h"
#include "platform/Texto.h"
#include "platform/qt/LectorDeImagen.h"

namespace zel {

namespace {

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
        leido.problemas +=
            "\r\nNo se entiende el valor de VerLineasSecundarias: " + EnBreve(ajustes->Item(1));
    }
}

}  // namespace

Impedimento PorQueNoSeAbre(const std::string& sinLeer, const std::optional<std::string>& fallo) {
    if (!fallo) return {sinLeer, "Compruebe la ruta y que el archivo es un esquema en XML."};
    if (!sinLeer.empty()) {
        return {
            sinLeer,
            "Corríjalo desde una terminal con \"zelvisor verificar ARCHIVO --corregir OTRO\" y abra el que "
            "resulta."};
    }
    return {"contiene datos que no se pueden cargar: " + CausaDe(*fallo),
            "Compruebe los datos del archivo, o recupere una copia anterior."};
}

EsquemaLeido LeeEsquema(const std::string& ruta, CodigosRepetidos repetidos) {
    lectorArchivo lector;
    auto elementos = std::make_shared<Elementos>();
    lector.NombreArchivo(ruta);
    lector.Coleccion(elementos);
    lector.AdmiteCodigosRepetidos(repetidos == CodigosRepetidos::SeAdmiten);
    EsquemaLeido leido;
    std::optional<std::string> fallo;
    try {
        lector.Carga();
    } catch (const Error& error) {
        if (lector.FalloDelRegistro().empty()) fallo = error.Description();
    }
    std::string sinLeer = fallo ? lector.MotivoSinCargar() : lector.MotivoSinLeer();
    if (!fallo && elementos->Count() == 0 && sinLeer.empty() && !lector.EsEsquema())
        sinLeer = "no es un esquema";
    if (fallo || !sinLeer.empty()) {
        leido.impedimento = PorQueNoSeAbre(sinLeer, fallo);
        return leido;
    }
    leido.elementos = elementos;
    leido.problemas = lector.Registro();
    leido.conRegistro = lector.FalloDelRegistro().empty() && !leido.problemas.empty();
    LeeSecciones(lector, leido);
    return leido;
}

}  // namespace zel
