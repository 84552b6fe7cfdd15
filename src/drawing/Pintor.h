#pragma once

#include <string>
#include <vector>

#include "drawing/AjustesDibujo.h"
#include "drawing/IndiceDePintado.h"
#include "drawing/Marcas.h"
#include "model/Elementos.h"

namespace zel {

// A picture under the schematic: its top left corner in the world, its width, and its height, negative since
// it reaches down.
struct Fondo {
    const Imagen* imagen = nullptr;  // none: nothing is painted
    PuntoXY esquina;
    float ancho = 0;
    float alto = 0;
};

// Paints a schematic: clears the surface, draws the background picture, the elements in collection order,
// later ones over earlier ones, then the labels, the secondary lines and, when given, the marks of what the
// user has in hand. `elementos` is the set to draw, `colElementos` the whole schematic. What cannot be drawn
// stops nothing else; the descriptions of those failures come back, in order, except the picture's. Elements
// out of sight cost no drawing; with the index of `elementos` they cost nothing where little is in sight.
std::vector<std::string> PintaEsquema(Superficie& panel, const AjustesDibujo& ajustes,
                                      const Elementos& elementos, const Elementos& colElementos,
                                      const Fondo& fondo = {}, const Marcas* marcas = nullptr,
                                      IndiceDePintado* indice = nullptr);

}  // namespace zel
