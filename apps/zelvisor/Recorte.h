#pragma once

#include "model/Elementos.h"

namespace zel {

// The traces that meet an element end at its outline anew, after the element has changed its size.
void RecortaTrazados(const Elementos& elementos, const Elemento& e);

}  // namespace zel
