#include "model/modErrorHandling.h"

#include "model/Mensajes.h"

namespace zel {

std::string TextoError(std::int32_t id, std::string_view texto, std::int32_t numero) {
    if (id != TEXTO_LIBRE) return std::string(TextoMensajeODesconocido(id));
    const Fallo fallo = FalloEnCurso();
    std::string descripcion = fallo.Source();
    descripcion += texto;
    descripcion += ". Error del sistema número: " + std::to_string(numero) + ", ";
    return descripcion + fallo.Description();
}

std::string CausaDe(const std::string& descripcion) {
    constexpr std::string_view ENLACE = ". Error del sistema número: ";
    const std::size_t enlace = descripcion.rfind(ENLACE);
    if (enlace == std::string::npos) return descripcion;
    const std::size_t coma = descripcion.find(", ", enlace + ENLACE.size());
    return coma == std::string::npos ? descripcion : descripcion.substr(coma + 2);
}

void LanzaError(std::int32_t id, std::string_view texto) {
    throw Error(BASE_ERRORES + id, std::string(texto), TextoError(id, texto, FalloEnCurso().Number()));
}

void LanzaErrorVisor(std::int32_t iEstado, std::string_view sufijo) {
    LanzaError(TEXTO_LIBRE, "Estado de visor " + std::to_string(iEstado) + std::string(sufijo));
}

}  // namespace zel
