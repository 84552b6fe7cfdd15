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
    const auto detras = [&](std::size_t enlace) {
        const std::size_t coma = descripcion.find(", ", enlace + ENLACE.size());
        return coma == std::string::npos ? coma : coma + 2;
    };
    const std::size_t enlace = descripcion.rfind(ENLACE);
    const std::size_t causa = enlace == std::string::npos ? enlace : detras(enlace);
    if (causa == std::string::npos) return descripcion;
    if (causa < descripcion.size()) return descripcion.substr(causa);
    // Nothing lies beneath a condition that a procedure has found itself: its own text is the cause.
    const std::size_t anterior = enlace == 0 ? std::string::npos : descripcion.rfind(ENLACE, enlace - 1);
    const std::size_t desde = anterior == std::string::npos ? 0 : detras(anterior);
    return descripcion.substr(desde, enlace - desde);
}

void LanzaError(std::int32_t id, std::string_view texto) {
    throw Error(BASE_ERRORES + id, std::string(texto), TextoError(id, texto, FalloEnCurso().Number()));
}

void LanzaErrorVisor(std::int32_t iEstado, std::string_view sufijo) {
    LanzaError(TEXTO_LIBRE, "Estado de visor " + std::to_string(iEstado) + std::string(sufijo));
}

}  // namespace zel
