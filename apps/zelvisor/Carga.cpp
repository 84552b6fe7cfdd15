#include "Carga.h"

#include "file/lectorArchivo.h"

namespace zel {

namespace {

EsquemaLeido NoLeido(std::string motivo) {
    EsquemaLeido leido;
    leido.motivo = std::move(motivo);
    return leido;
}

// What cannot be understood of these sections is no reason to refuse the schematic.
void LeeSecciones(lectorArchivo& lector, EsquemaLeido& leido) {
    try {
        if (const auto textos = lector.LeeImagenFondo()) leido.imagen = ImagenDeTextos(*textos);
        const auto ajustes = lector.LeeConfiguracion();
        if (ajustes && ajustes->Count() > 0)
            leido.bMostrarLineasOcultas = Variante(ajustes->Item(1)).Booleano();
    } catch (const Fallo& fallo) {
        leido.problemas += "\r\nUna sección del archivo no se entiende: " + fallo.Description();
    }
}

}  // namespace

EsquemaLeido LeeEsquema(const std::string& ruta, std::function<void()> alCederTurno) {
    lectorArchivo lector;
    auto elementos = std::make_shared<Elementos>();
    lector.NombreArchivo(ruta);
    lector.Coleccion(elementos);
    lector.AlCederTurno(std::move(alCederTurno));
    bool conRegistro = true;
    try {
        lector.Carga();
    } catch (const Error& error) {
        if (lector.Registro().empty()) {
            return NoLeido("contiene datos que no se pueden cargar. " + error.Description());
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
