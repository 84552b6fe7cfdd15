#pragma once

#include "model/modErrorHandling.h"
#include "session/Refresco.h"
#include "session/Trabajo.h"

namespace zel {

// The common frame of the menu's commands: what they have asked for is repainted at their end, wherever that
// is, and `sufijo` is their text when they fail.
template <typename Accion>
void OrdenDeMenu(const Trabajo& trabajo, Refresco& refresco, const char* sufijo, Accion accion) {
    try {
        accion();
        refresco.RefrescarSiPendiente();
    } catch (...) {
        LanzaErrorVisor(trabajo.iEstado, sufijo);
    }
}

}  // namespace zel
