#pragma once

#include <cstdint>

#include "model/TipoElemento.h"
#include "platform/Superficie.h"

namespace zel {

// The cursor pictures: one per kind that is placed with a click (100 to 103, 112 to 115), drawing conduits
// (201), dragging (202), zooming in (203) and out (204).
constexpr std::int32_t CURSOR_DEL_TIPO = -1;
constexpr std::int32_t CURSOR_NORMAL = 0;
constexpr std::int32_t CURSOR_CRUZ = 1;
constexpr std::int32_t CURSOR_ARRASTRE = 202;

// Sets the panel's cursor by number; CURSOR_DEL_TIPO chooses it by the kind being drawn.
void Cursor_Raton(Superficie& panel, std::int32_t id, TipoElemento iTipoHerramienta, std::int32_t iEstado);

}  // namespace zel
