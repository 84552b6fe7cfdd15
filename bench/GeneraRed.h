#pragma once

#include <memory>
#include <string>

#include "model/Elementos.h"

namespace zel::bench {

// A schematic document of that many elements, all sixteen kinds: a grid of point elements with linear ones
// between neighbours, seven vertices to a trace, names of usual length. The same text every time.
std::string GeneraRed(int elementos);

// Writes it to a file of its own in the temporary folder and returns the path.
std::string EscribeRed(int elementos);

// Reads it back.
std::shared_ptr<Elementos> CargaRed(int elementos);

}  // namespace zel::bench
