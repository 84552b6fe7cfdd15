#include "session/Avisos.h"

#include "model/Mensajes.h"
#include "model/modErrorHandling.h"
#include "platform/Dialogos.h"

namespace zel {

namespace {

constexpr std::int32_t BASE_MENSAJES = 5000;

bool NoTocaElDibujo(std::int16_t id) noexcept {
    return (id >= 106 && id <= 109) || (id >= 111 && id <= 113);
}

std::string Texto(std::int16_t id) {
    return std::string(TextoMensajeODesconocido(BASE_MENSAJES + id));
}

}  // namespace

void Avisos::LanzaMensaje(std::int16_t idMensaje, std::int16_t idMensaje2, std::int32_t& iRefrescar) try {
    if (trabajo_.trazadoTemporal) {
        trabajo_.trazadoTemporal.reset();
    } else if (NoTocaElDibujo(idMensaje)) {
        iRefrescar = 2;
    }
    std::string texto = Texto(idMensaje);
    if (idMensaje2 != 0) texto += ". " + Texto(idMensaje2);
    dialogos().MsgBox(texto);
    trabajo_.ExigeVisor();
    if (iRefrescar == 1) refresco_.PedirRefresco();
} catch (...) {
    LanzaErrorVisor(trabajo_.iEstado, ". ErrLanzaMensaje (Esquema)");
}

}  // namespace zel
