#pragma once

#include <cstdint>
#include <memory>

#include "model/Elemento.h"

namespace zel {

// A piece of a trace that follows a drag: the two points next to what moves. The piece's own marks tell the
// same as the codes, in 32-bit floats: Valor and Valor3; Valor2 is 1 at the start of the trace and 2 at its
// end; Flecha: the trace is a hydro plant's second one.
struct TramoMovido {
    std::shared_ptr<Puntos> tramo;
    std::shared_ptr<Elemento> elemento;  // whose trace it is
    // The element at the other end of a trace of two points; 0 for longer ones.
    std::int32_t codigoLejano = 0;
};

}  // namespace zel
