#pragma once

#include <functional>

#include "editing/MaquinaEstados.h"
#include "session/Avisos.h"

namespace zel {

// The gestures that change what is shown: the zoom rectangle, the hand and the zoom asked for by number.
class GestosDeVista {
  public:
    // `dispone` lays the panel out when that has not happened yet.
    GestosDeVista(Superficie& panel, Trabajo& trabajo, Refresco& refresco, Vista& vista, Avisos& avisos,
                  MaquinaEstados& estados, std::function<void()> dispone);

    // The panel's point has been pressed, has moved with the left button held; in states 17, 18 and 19. The
    // band follows it by inverting.
    void EmpiezaBanda(float x, float y);
    void MueveBanda(float x, float y);

    // Zooms to the rectangle between the two points of trazadoTemporal and puts its middle in the middle of
    // the panel. Without two points, or with both the same, it only goes back to state 5; a zoom that is
    // refused leaves the view and the state.
    void E_18_AplicaZoom();
    // Moves the view by the way from the first to the third point of trazadoTemporal.
    void E_19_Aplica();

    // Asks for a percentage and zooms to it.
    void ZoomDelUsuario();

  private:
    void DibujaBanda() const;
    std::pair<float, float> Centro() const noexcept;

    Superficie& panel_;
    Trabajo& trabajo_;
    Refresco& refresco_;
    Vista& vista_;
    Avisos& avisos_;
    MaquinaEstados& estados_;
    std::function<void()> dispone_;
};

}  // namespace zel
