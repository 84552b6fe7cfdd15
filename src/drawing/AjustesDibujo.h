#pragma once

#include <cstdint>

#include "model/TipoElemento.h"
#include "platform/Superficie.h"

namespace zel {

// What drawing needs to know of the viewer, besides the surface and the elements.
struct AjustesDibujo {
    std::int32_t iEstado = 5;                  // the interaction state; part of every error text
    TipoElemento iTipoHerramienta = ctFlecha;  // the kind being drawn
    float EscalaDibujo = 1;                    // over ScaleWidth it is the plain text size in points
    bool bVistaActualizada = true;             // aquifers show their dots only then
    float pasoDeParrilla = 0;  // between an aquifer's dots, world units; 0: by the visible width
    bool bMostrarEtiquetas = true;
    bool bMostrarLineasOcultas = true;

    float FactorFuente(const Superficie& panel) const noexcept { return EscalaDibujo / panel.ScaleWidth(); }
};

}  // namespace zel
