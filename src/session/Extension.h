#pragma once

#include <optional>

#include "drawing/Marco.h"
#include "model/Elementos.h"

namespace zel {

// The box that the elements take up, symbols and traces, each widened by the margin; labels do not count.
// Elements that should have a trace and have none take no part. Nothing when no element takes part.
std::optional<Marco> ExtensionDe(const Elementos& elementos, float margen);

}  // namespace zel
