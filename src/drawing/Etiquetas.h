#pragma once

#include "drawing/AjustesDibujo.h"
#include "drawing/IndiceDePintado.h"
#include "model/Elementos.h"

namespace zel {

// A label's box in world units, from its top left corner; Alto is negative, since Y grows upwards.
struct CajaEtiqueta {
    float X, Y;
    float Ancho, Alto;
};

// Where the label of an element with a symbol begins unless it is put elsewhere, from the element's position.
PuntoXY EtiquetaDelSimbolo() noexcept;

// The label's text size before rounding, in points: the plain one times EtiquetaTamanyo and, when the label
// is relative, the element's size.
float FactorEtiqueta(const Superficie& panel, const AjustesDibujo& ajustes, const Elemento& e) noexcept;

// The box of the element's label when the element stands at (X, Y). Leaves the panel with the label's font.
CajaEtiqueta MideEtiqueta(Superficie& panel, const AjustesDibujo& ajustes, const Elemento& e, float X,
                          float Y);

// Prints the labels of a set of elements, in black; with bSoloSeleccionado, only the selected element's
// when there is one. With the index of the set, only the labels that may be in sight are looked at.
void DibujaEtiquetas(Superficie& panel, const AjustesDibujo& ajustes, const Elementos& elementos,
                     bool bSoloSeleccionado, const Elemento* elemSeleccionado = nullptr,
                     IndiceDePintado* indice = nullptr);

}  // namespace zel
