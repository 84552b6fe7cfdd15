#pragma once

#include <string>

#include "model/Elemento.h"
#include "platform/Fallo.h"

namespace zel {

// Runs an action for an element; a failure says which element it was: among thousands it would be searched
// for in vain.
template <typename Accion>
void DiciendoCual(const Elemento& e, Accion accion) {
    try {
        accion();
    } catch (...) {
        const Fallo fallo = FalloEnCurso();
        throw Fallo(
            fallo.Number(), fallo.Source(),
            fallo.Description() + " (elemento " + std::to_string(e.gfCodSIG()) + ", \"" + e.Nombre() + "\")");
    }
}

}  // namespace zel
