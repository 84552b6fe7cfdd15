#pragma once

#include "drawing/AjustesDibujo.h"
#include "model/Elemento.h"

namespace zel {

// Marks on elements. Those that invert are removed by drawing them again; a conduit's frame is not.

// The highlight of a selected element and of its label. Nothing for an empty reference.
void SombreaElemento(Superficie& panel, const AjustesDibujo& ajustes, const Elemento* elemento);

// Whether the highlight of that kind inverts.
bool ResaltadoInvierte(TipoElemento tipo) noexcept;

// The line under the label of the element below the mouse or, where it has no label, the frame of its
// number. Inverts; conduits without a label get no mark.
void AlternaSubrayado(Superficie& panel, const AjustesDibujo& ajustes, const Elemento& e);

}  // namespace zel
