#pragma once

#include <cstdint>

#include "platform/Superficie.h"

namespace zel {

// Sets the surface's font size, in points: `size` rounded to an even number, limited to 1 .. 2000. The
// rounded size comes back in `size`, without the limit. A size that is no number (nan) changes nothing.
void AjustarFuentePanel(Superficie& picture, float& size, std::int32_t iEstado);

// The same, for who does not want the rounded size back.
void PonFuente(Superficie& picture, float size, std::int32_t iEstado);

}  // namespace zel
