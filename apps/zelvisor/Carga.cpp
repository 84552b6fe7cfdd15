#include "Carga.h"

#include "file/lectorArchivo.h"

namespace zel {

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
            return {nullptr, "contiene datos que no se pueden cargar. " + error.Description(), {}, false};
        }
        conRegistro = false;
    }
    if (!lector.MotivoSinLeer().empty()) return {nullptr, lector.MotivoSinLeer(), {}, false};
    if (elementos->Count() == 0 && !lector.EsEsquema()) return {nullptr, "no es un esquema", {}, false};
    return {elementos, {}, lector.Registro(), conRegistro && !lector.Registro().empty()};
}

}  // namespace zel
