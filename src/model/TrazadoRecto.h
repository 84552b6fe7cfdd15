#pragma once

#include <memory>

#include "model/Elemento.h"

namespace zel {

// The straight trace from the outline of one element to the outline of the other, both taken with the
// radius TamanyoUnidad, whatever their size.
std::shared_ptr<Puntos> TrazadoRecto(const Elemento& desde, const Elemento& hasta);

}  // namespace zel
