#pragma once

#include <memory>

#include "drawing/AjustesDibujo.h"
#include "model/Elementos.h"

namespace zel {

// What stands at the two ends of a trace; either may be missing from the schematic. A hydro plant stands
// between its two traces; inflows, returns and sub-basins at the start of their own.
struct ExtremosDeTrazado {
    std::shared_ptr<Elemento> inicio;
    std::shared_ptr<Elemento> fin;
};
ExtremosDeTrazado ExtremosDe(const Elementos& elementos, const std::shared_ptr<Elemento>& lineal,
                             bool segundoTrazado);

const std::shared_ptr<Puntos>& TrazadoDe(const Elemento& lineal, bool segundoTrazado) noexcept;

// See BuscaMitadConduccion; with the label measured as it will be drawn, whatever font a mark has left.
std::shared_ptr<Puntos> MitadDeTrazado(Superficie& panel, const AjustesDibujo& ajustes,
                                       const Puntos& trazado);
// Puts the position and the label of a conduit, recharge, pumping or intake there. Raises before it changes
// anything.
void PonEnLaMitad(Superficie& panel, const AjustesDibujo& ajustes, Elemento& e);
// The same unless the user has placed the label. Other kinds stay, and so does what has a trace without
// length.
void SigueLaMitad(Superficie& panel, const AjustesDibujo& ajustes, Elemento& e);

}  // namespace zel
