#pragma once

#include <cstdint>
#include <functional>
#include <span>

#include "drawing/AjustesDibujo.h"
#include "drawing/TramoMovido.h"
#include "model/Elementos.h"

namespace zel {

// What the user has in hand, as far as a paint shows it on top of the schematic.
struct Marcas {
    const Elemento* elemSeleccionado = nullptr;
    const Elementos* elemSubsistema = nullptr;
    const Puntos* trazadoNuevo = nullptr;
    const Puntos* trazadoNuevo2 = nullptr;
    const Punto* puntoReferencia = nullptr;
    const Puntos* curvaSeleccion = nullptr;
    std::int32_t numeroDeCentral = 1;  // of the plant being drawn
    const Puntos* trazadoTemporal = nullptr;
    std::span<const TramoMovido> colConduccionesMovidas = {};
};

// Runs one step of a paint; a step that fails must not keep the others from being drawn.
using PasoDePintado = std::function<void(const std::function<void()>&)>;

// The highlight of the selected element, or of those being chosen one by one, as the state asks for.
void PintaResaltado(Superficie& panel, const AjustesDibujo& ajustes, const Marcas& marcas,
                    const PasoDePintado& paso);
// What the state has of its own: the trace being drawn, the trace points to pick, the lasso, the outline of a
// drag.
void PintaMarcas(Superficie& panel, const AjustesDibujo& ajustes, const Marcas& marcas,
                 const PasoDePintado& paso);

// The outline of what the state drags: the segment that a click would add to a trace, an element and the
// pieces that follow it, a trace point, a label's box, a band. Inverts: drawing it again erases it.
void AlternaContorno(Superficie& panel, const AjustesDibujo& ajustes, const Marcas& marcas);

}  // namespace zel
