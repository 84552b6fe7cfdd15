#pragma once

#include <memory>

#include "model/Elementos.h"

namespace zel {

// The schematic that is shown and edited.
struct Documento {
    std::shared_ptr<Elementos> colElementos = std::make_shared<Elementos>();
    bool bMostrarLineasOcultas = true;
};

}  // namespace zel
