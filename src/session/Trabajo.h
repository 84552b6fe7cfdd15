#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "drawing/TramoMovido.h"
#include "model/Elementos.h"
#include "platform/Superficie.h"

namespace zel {

// What the user has in hand: the interaction state and the objects that live while a gesture lasts.
struct Trabajo {
    std::int32_t iEstado = 5;                  // "Preparado"
    std::int32_t iEstadoAnterior = 5;          // before the last call of Estado
    TipoElemento iTipoHerramienta = ctFlecha;  // the kind being created

    std::shared_ptr<Elemento> elemSeleccionado;  // a member of the schematic
    std::shared_ptr<Puntos> trazadoNuevo;        // the trace being drawn
    std::shared_ptr<Puntos> trazadoNuevo2;       // a hydro plant's, behind its symbol
    std::shared_ptr<Punto> puntoReferencia;      // where a drag began or is; the plant being drawn
    std::shared_ptr<Puntos> curvaSeleccion;      // the lasso
    std::shared_ptr<Elementos> elemSubsistema;   // copies of the elements chosen together
    std::shared_ptr<Puntos> trazadoTemporal;     // a temporary outline
    std::vector<TramoMovido> colConduccionesMovidas;

    // Of the press of a mouse button.
    bool bBotonPulsadoSobreElemento = false;  // the left one, in state 5; until it is released
    bool bElementoYaSeleccionado = false;     // an element was selected when a button was last released
    bool bPrensaArrastra = false;             // the press may still begin a drag; it begins one at most
    PuntoXY ultimoRaton{};                    // where the mouse was last

    // The click-zoom in hand shows less of the world, and what there is larger; otherwise more of it.
    bool bZoomMas = true;

    // What a gesture had in hand when the zoom or the hand came between.
    struct EnMano {
        std::int32_t iEstado;
        std::shared_ptr<Puntos> trazadoNuevo;
        std::shared_ptr<Puntos> trazadoNuevo2;
        std::shared_ptr<Punto> puntoReferencia;
    };
    std::optional<EnMano> interrumpido;

    // The element created last: selected, it is told by its name alone.
    std::weak_ptr<Elemento> recienCreado;
    // How the selected element is told: "[12] Canal". Empty without one.
    std::string sTextoSeleccion() const {
        if (!elemSeleccionado) return {};
        if (elemSeleccionado == recienCreado.lock()) return elemSeleccionado->Nombre();
        return "[" + std::to_string(elemSeleccionado->gfCodSIG()) + "] " + elemSeleccionado->Nombre();
    }

    // What the last search of the element under a point has found; see Localizador.
    std::int16_t iParteEncontrada = 0;
    bool bCuerpoElemento = false;
    std::int16_t iSegmentoEncontrado = 0;

    // The control is gone. Events run while the host answers one or a box is open, so it may be when they
    // come back: what goes on then must not touch it.
    bool bTerminado = false;
    void ExigeVisor() const {
        if (bTerminado) throw Fallo(91, "El visor se ha cerrado");
    }

    bool bDepurarEstado = false;  // the status bar shows the state instead of the mouse position
};

}  // namespace zel
