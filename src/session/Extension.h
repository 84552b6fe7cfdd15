#pragma once

#include <optional>

#include "drawing/Marco.h"
#include "model/Elementos.h"

namespace zel {

// The world: positions lie between these bounds, which do not belong to it.
constexpr float MUNDO_XMIN = -4000;
constexpr float MUNDO_XMAX = 5000000;
constexpr float MUNDO_YMIN = -5000;
constexpr float MUNDO_YMAX = 2500000;

// The outermost positions inside it.
constexpr Marco MarcoDelMundo() noexcept {
    return {MUNDO_XMIN + 1, MUNDO_YMIN + 1, MUNDO_XMAX - 1, MUNDO_YMAX - 1};
}

// The box that the elements take up, symbols and traces, each widened by the margin; labels do not count.
// Elements that should have a trace and have none take no part. Nothing when no element takes part.
std::optional<Marco> ExtensionDe(const Elementos& elementos, float margen);
// What one element adds to it, for one of no kind an empty box; nothing when it takes no part.
std::optional<Marco> ExtensionDe(const Elemento& e, float margen);
// The box of all from the box of what each adds and the first that takes part, whose position counts always.
std::optional<Marco> ExtensionCompleta(Marco marco, const Elemento* primero);

// Brings every bound that is outside the world one unit inside it; true when there was one. A side that this
// leaves without length keeps one unit.
bool LimitaAlMundo(Marco& marco) noexcept;
// Grows the region to hold what is visible, as far as the world goes; true when it would go beyond.
bool CreceEnElMundo(Marco& region, const Marco& visible) noexcept;
// Brings a point that is outside the world inside it.
void LimitaAlMundo(float& x, float& y) noexcept;

}  // namespace zel
