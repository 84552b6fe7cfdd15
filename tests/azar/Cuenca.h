#pragma once

#include <memory>

#include "model/Elementos.h"

namespace zel::azar {

// A sound schematic with one element of each kind at least, from (20, 20) to (180, 120); the second one has
// labels that were moved, traces with bends, sizes and widths, and secondary connections too.
std::shared_ptr<Elementos> Cuenca(bool trabajada);

}  // namespace zel::azar
