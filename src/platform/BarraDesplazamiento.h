#pragma once

#include <cstdint>

namespace zel {

// A scroll bar. Positions are 16-bit integers; the minimum may lie above the maximum.
class BarraDesplazamiento {
  public:
    struct Estado {
        std::int16_t Min = 0;
        std::int16_t Max = 0;
        std::int16_t LargeChange = 1;  // the page step, at least 1
        std::int16_t Value = 0;
        bool operator==(const Estado&) const = default;
    };

    BarraDesplazamiento() = default;
    BarraDesplazamiento(const BarraDesplazamiento&) = delete;
    BarraDesplazamiento& operator=(const BarraDesplazamiento&) = delete;
    virtual ~BarraDesplazamiento() = default;

    // While the thumb is dragged, Value is where it is.
    virtual Estado Actual() const = 0;
    // Sets all of it at once and tells nobody.
    virtual void Pon(const Estado& estado) = 0;
    virtual void Enabled(bool valor) = 0;
};

}  // namespace zel
