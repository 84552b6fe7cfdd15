#pragma once

#include "model/Conexiones.h"
#include "session/Documento.h"
#include "session/Trabajo.h"
#include "session/Vista.h"

namespace zel {

// The ends of traces that follow an element: the pieces next to it, kept in Trabajo::colConduccionesMovidas
// while it is dragged. An element's own symbol may end traces of its own (a hydro plant's two, the one of an
// inflow, a return or a sub-basin).

// Collects the pieces that follow the selected element.
void E_13_BuscaConduccionesParaMovimiento(Conexiones& conexiones, const Documento& documento,
                                          Trabajo& trabajo);
// Cuts them to the outline that the selected element would have at puntoReferencia. Where a trace has no
// other points than the two, its other end turns too; an end whose element is missing stays.
void E_13_CorrigeColeccSegmentos(const Documento& documento, const Trabajo& trabajo);
// Writes them back into their traces, and lets the conduits' labels follow.
void E_13_Actualizar_Conducciones(Superficie& panel, const Documento& documento, const Trabajo& trabajo,
                                  const Vista& vista);

// All of it for one element where it stands, whatever is in hand.
void RecortaConducciones(Superficie& panel, Conexiones& conexiones, const Documento& documento,
                         const Trabajo& trabajo, const Vista& vista, const std::shared_ptr<Elemento>& elem);
// After an element has been put elsewhere.
void E_06_MoverElementos_Corregir_Puntos(Superficie& panel, Conexiones& conexiones, Documento& documento,
                                         const Trabajo& trabajo, const Vista& vista,
                                         const std::shared_ptr<Elemento>& elem);

}  // namespace zel
