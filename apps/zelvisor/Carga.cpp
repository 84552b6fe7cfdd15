#include "Carga.h"

#include "file/lectorArchivo.h"

namespace zel {

EsquemaLeido LeeEsquema(const std::string& ruta, std::function<void()> alCederTurno) {
    lectorArchivo lector;
    auto elementos = std::make_shared<Elementos>();
    lector.NombreArchivo(ruta);
    lector.Coleccion(elementos);
    lector.AlCederTurno(std::move(alCederTurno));
    try {
        lector.Carga();
    } catch (const Error& error) {
        return {nullptr, "contiene datos que no se pueden cargar. " + error.Description(), {}};
    }
    if (!lector.MotivoSinLeer().empty()) return {nullptr, lector.MotivoSinLeer(), {}};
    if (elementos->Count() == 0) return {nullptr, "no contiene ningún elemento de un esquema", {}};
    return {elementos, {}, lector.Registro()};
}

}  // namespace zel
