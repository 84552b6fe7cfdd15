#pragma once

#include "drawing/AjustesDibujo.h"
#include "session/Documento.h"
#include "session/Trabajo.h"
#include "session/Vista.h"

namespace zel {

// What drawing has to know of the viewer at this moment.
inline AjustesDibujo AjustesDe(const Trabajo& trabajo, const Documento& documento, const Vista& vista) {
    AjustesDibujo ajustes;
    ajustes.iEstado = trabajo.iEstado;
    ajustes.iTipoHerramienta = trabajo.iTipoHerramienta;
    ajustes.EscalaDibujo = vista.EscalaDibujo();
    ajustes.bVistaActualizada = vista.bVistaActualizada();
    ajustes.bMostrarEtiquetas = documento.bMostrarEtiquetas;
    ajustes.bMostrarLineasOcultas = documento.bMostrarLineasOcultas;
    return ajustes;
}

}  // namespace zel
