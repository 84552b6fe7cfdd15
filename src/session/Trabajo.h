#pragma once

#include <cstdint>
#include <memory>

#include "model/Elementos.h"

namespace zel {

// What the user has in hand: the interaction state and the objects that live while a gesture lasts.
struct Trabajo {
    std::int32_t iEstado = 5;                  // "Preparado"
    TipoElemento iTipoHerramienta = ctFlecha;  // the kind being created
    std::shared_ptr<Puntos> trazadoTemporal;   // a temporary outline
};

}  // namespace zel
