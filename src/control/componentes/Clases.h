#pragma once

#include <span>

#include "control/componentes/Componentes.h"

namespace zel {

// The classes that the library makes by name.
std::span<const ClasePorNombre* const> ClasesDelComponente();

}  // namespace zel
