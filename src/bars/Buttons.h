#pragma once

#include "bars/Boton.h"
#include "bars/ColeccionDeBarra.h"

namespace zel {

// The buttons of a bar, in the order in which they stand.
class Buttons : public ColeccionDeBarra<Boton> {
  public:
    // Appends a new button and returns it; sKey receives the key. Fails with 457 when the key is taken, and
    // then appends nothing.
    std::shared_ptr<Boton> Add(const std::string& Key, std::int16_t Heigt,
                               const std::shared_ptr<const Imagen>& Image, std::int16_t Value,
                               const std::shared_ptr<ControlDeBoton>& Control, std::string& sKey);
};

}  // namespace zel
