#include "model/Contorno.h"

#include <cmath>

#include "model/TamanyoUnidad.h"

namespace zel {

Punto PuntoDelContorno(float x1, float y1, float x2, float y2, float radio) noexcept {
    const double dx = double{x2} - x1;
    const double dy = double{y2} - y1;
    const double r = 3 * TamanyoUnidad() <= radio ? TamanyoUnidad() : radio;
    const double d = std::sqrt(dy * dy + dx * dx);
    if (d == 0) return {x1, y1};
    if (x1 == x2) return {x1, static_cast<float>(y1 + (dy > 0 ? r : -r))};
    // y is taken on the line at the x that is stored, so that both are on it.
    const auto px = static_cast<float>(x1 + dx * r / d);
    return {px, static_cast<float>(y1 + dy * (double{px} - x1) / dx)};
}

float RadioSimbolo(std::optional<float> tamanyo) noexcept {
    return tamanyo.value_or(1.0F) * TamanyoUnidad();
}

}  // namespace zel
