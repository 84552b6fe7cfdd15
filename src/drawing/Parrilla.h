#pragma once

#include "drawing/AjustesDibujo.h"
#include "model/Elemento.h"

namespace zel {

// The dots inside an aquifer, half a percent of the visible width apart. Only while the view is up to date
// and nothing is being drawn, chosen or dragged.
void DibujaAcuiferoParrilla(Superficie& panel, const AjustesDibujo& ajustes, const Elemento& e);

}  // namespace zel
