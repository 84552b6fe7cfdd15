#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <span>

#include "drawing/AjustesDibujo.h"
#include "drawing/IndiceDePintado.h"
#include "model/Elementos.h"

namespace zel {

// The traces of the linear elements. World coordinates; failures are raised with the viewer's state.

// Draws one linear element: Trazado when `cual` is 1 or absent, Trazado2 otherwise, in the element's colour
// and, for the kinds below 12, its width, ending in an arrowhead. With `trazado` it draws the preview of a
// trace of the kind in hand: one pixel wide and without arrowhead. Raises when the element's trace has
// fewer than two points.
void DibujarConduccion(Superficie& panel, const AjustesDibujo& ajustes, const Elemento& elemento,
                       const Puntos* trazado = nullptr, std::optional<std::int16_t> cual = std::nullopt);

// One segment in the style of a kind and in the current pen.
void DibujaLinea(Superficie& panel, const AjustesDibujo& ajustes, PuntoXY ptoA, PuntoXY ptoB,
                 TipoElemento tipo, bool bFlecha);

// An arrowhead with its tip at ptoB, pointing from ptoA: `angulo` is the full opening in degrees; design 1
// is a closed triangle, 2 a notched head. Its size is a share of TamanyoUnidad, whatever the element's.
// Unless bSinAsta the shaft from ptoA is drawn too. Nothing is drawn where both points are one.
void Flecha(Superficie& panel, const AjustesDibujo& ajustes, PuntoXY ptoA, PuntoXY ptoB, bool bSinAsta,
            std::optional<std::int32_t> color, float angulo, std::int16_t diseno);

// Where a line from a symbol's centre towards another point leaves the symbol; see PuntoDelContorno. The
// radius is a factor of TamanyoUnidad: with numbers 1 when absent, with objects 0.
PuntoXY PtoContorno(float x1, float y1, float x2, float y2, std::optional<float> tamanyo = std::nullopt);
template <ConPosicion T, ConPosicion U>
PuntoXY PtoContorno(const T& a, const U& b, std::optional<float> tamanyo = std::nullopt) {
    return PtoContorno(a.XPos(), a.YPos(), b.XPos(), b.YPos(), tamanyo.value_or(0.0F));
}

// The corners (minimum, maximum) of a linear element's box, over its Trazado and, for kinds from 13, its
// position; nothing for point kinds.
std::shared_ptr<Puntos> EncuadreConduccion(const Elemento& elemento, std::int32_t iEstado);

// Draws the secondary connections of the elements of a set, from outline to outline, in black. A connection
// to an element outside the set is left out; one to a code that is in no collection is left out too, and
// raises after the others have been drawn. With the index of the set, only the elements that have one are
// looked at.
void DibujaLineasSecundarias(Superficie& panel, const AjustesDibujo& ajustes, const Elementos& elementos,
                             const Elementos& colElementos, IndiceDePintado* indice = nullptr);

}  // namespace zel
