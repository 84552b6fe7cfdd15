#pragma once

#include "session/Documento.h"
#include "session/Trabajo.h"

namespace zel {

// Collects the trace pieces that follow the selected element while it is dragged. No gesture drags elements
// yet, so there are none.
void E_13_BuscaConduccionesParaMovimiento(const Documento& documento, Trabajo& trabajo);

}  // namespace zel
