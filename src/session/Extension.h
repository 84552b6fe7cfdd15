#pragma once

#include <optional>

#include "drawing/Marco.h"
#include "model/Elementos.h"

namespace zel {

// The box that the elements take up, symbols and traces, each widened by the margin; labels do not count.
// Elements that should have a trace and have none take no part. Nothing when no element takes part.
std::optional<Marco> ExtensionDe(const Elementos& elementos, float margen);

// Brings every bound that is outside the world one unit inside it; true when there was one. A side that this
// leaves without length keeps one unit.
bool LimitaAlMundo(Marco& marco) noexcept;
// The same for a point.
void LimitaAlMundo(float& x, float& y) noexcept;

}  // namespace zel
