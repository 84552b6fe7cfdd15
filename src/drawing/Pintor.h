#pragma once

#include <string>
#include <vector>

#include "drawing/AjustesDibujo.h"
#include "model/Elementos.h"

namespace zel {

// Paints a schematic: clears the surface, draws the elements in collection order, later ones over earlier
// ones, then the labels and the secondary lines. `elementos` is the set to draw, `colElementos` the whole
// schematic. What cannot be drawn stops nothing else; the descriptions of those failures come back, in
// order. Elements out of sight cost no drawing.
std::vector<std::string> PintaEsquema(Superficie& panel, const AjustesDibujo& ajustes,
                                      const Elementos& elementos, const Elementos& colElementos);

}  // namespace zel
