#pragma once

#include <cstdint>
#include <memory>

#include "model/Puntos.h"
#include "platform/Superficie.h"

namespace zel {

constexpr double PI = 3.1415926536;

// The direction of the vector in radians, in [0, 2 pi); -1 for the vector (0, 0), which has none.
double Arcotangente(float dx, float dy) noexcept;

// -1, 0 or 1. Raises when the value is not a number.
std::int16_t Signo(const Variante& valor, std::int32_t iEstado);

// On a tie, the first.
template <typename T>
constexpr T Min(T a, T b) noexcept {
    return a <= b ? a : b;
}
template <typename T>
constexpr T Max(T a, T b) noexcept {
    return a >= b ? a : b;
}

// Where a conduit's label goes: point 1 is the middle of the trace, point 2 the offset from there to the
// label, to the right and above or below by the side of the trace's direction. The panel's font measures
// the label. Raises for a trace of one point or none, or of no length.
std::shared_ptr<Puntos> BuscaMitadConduccion(Superficie& panel, const Puntos& trazado, std::int32_t iEstado);

}  // namespace zel
