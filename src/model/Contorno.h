#pragma once

#include <optional>

#include "model/Punto.h"

namespace zel {

// The point where the straight line from (x1, y1) towards (x2, y2) leaves a circle of the given radius
// around (x1, y1): where a trace meets the outline of a symbol. A radius of three times TamanyoUnidad or
// more falls back to TamanyoUnidad. Where both points are one, the point itself.
Punto PuntoDelContorno(float x1, float y1, float x2, float y2, float radio) noexcept;

// The radius of a symbol of that size in world units; without a size, TamanyoUnidad.
float RadioSimbolo(std::optional<float> tamanyo) noexcept;

}  // namespace zel
