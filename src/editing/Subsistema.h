#pragma once

#include "session/Documento.h"
#include "session/Trabajo.h"

namespace zel {

// The subsystem: copies of the elements chosen together, kept in Trabajo::elemSubsistema.

// Fills it with the elements that have a symbol and stand inside the closed lasso, and with the conduits
// between them.
void E_12_SeleccionarElementos(const Documento& documento, Trabajo& trabajo);
// Adds every conduit, recharge, pumping and intake of the schematic both of whose ends are in it.
void E_15_AgregarConducciones(const Documento& documento, Trabajo& trabajo);
// Takes them out again.
void E_12_QuitarConducciones(Trabajo& trabajo);

}  // namespace zel
