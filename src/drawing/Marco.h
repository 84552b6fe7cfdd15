#pragma once

#include <algorithm>
#include <limits>

#include "model/Puntos.h"
#include "platform/Superficie.h"

namespace zel {

// An axis-aligned rectangle of the world, empty until something is added.
struct Marco {
    float Xmin = std::numeric_limits<float>::max();
    float Ymin = std::numeric_limits<float>::max();
    float Xmax = std::numeric_limits<float>::lowest();
    float Ymax = std::numeric_limits<float>::lowest();

    static Marco Visible(const Superficie& panel) noexcept {
        Marco marco;
        marco.Crece(panel.ScaleLeft(), panel.ScaleTop(), 0);
        marco.Crece(panel.ScaleLeft() + panel.ScaleWidth(), panel.ScaleTop() + panel.ScaleHeight(), 0);
        return marco;
    }

    // Grows to hold the square of half side `margen` around the point.
    void Crece(float x, float y, float margen) noexcept {
        Xmin = std::min(Xmin, x - margen);
        Xmax = std::max(Xmax, x + margen);
        Ymin = std::min(Ymin, y - margen);
        Ymax = std::max(Ymax, y + margen);
    }
    void Crece(const Puntos& trazado, float margen) noexcept {
        for (const auto& punto : trazado)
            Crece(punto->XPos(), punto->YPos(), margen);
    }

    void Crece(const Marco& otro) noexcept {
        Xmin = std::min(Xmin, otro.Xmin);
        Xmax = std::max(Xmax, otro.Xmax);
        Ymin = std::min(Ymin, otro.Ymin);
        Ymax = std::max(Ymax, otro.Ymax);
    }

    bool operator==(const Marco&) const = default;
    bool Contiene(const Marco& otro) const noexcept {
        return Xmin <= otro.Xmin && otro.Xmax <= Xmax && Ymin <= otro.Ymin && otro.Ymax <= Ymax;
    }
    bool Toca(const Marco& otro) const noexcept {
        return Xmin <= otro.Xmax && otro.Xmin <= Xmax && Ymin <= otro.Ymax && otro.Ymin <= Ymax;
    }
};

}  // namespace zel
