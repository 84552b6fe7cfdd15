#pragma once

#include <cstdint>

#include "session/NumeroDeAviso.h"
#include "session/Refresco.h"
#include "session/Trabajo.h"

namespace zel {

// The notices to the user.
class Avisos {
  public:
    Avisos(Trabajo& trabajo, Refresco& refresco) noexcept : trabajo_(trabajo), refresco_(refresco) {}

    // Shows the message 5000 + idMensaje, followed by ". " and 5000 + idMensaje2 when that is not 0, in a
    // modal box. A temporary outline is dropped; without one, the notices about values and zoom turn
    // iRefrescar to 2. With 1 a repaint is asked for.
    void LanzaMensaje(std::int16_t idMensaje, std::int16_t idMensaje2, std::int32_t& iRefrescar);

  private:
    Trabajo& trabajo_;
    Refresco& refresco_;
};

}  // namespace zel
