#pragma once

#include <functional>
#include <optional>

#include "editing/MaquinaEstados.h"
#include "session/Avisos.h"
#include "session/Desplazamiento.h"

namespace zel {

// The gestures that change what is shown: the zoom rectangle, the hand, the zoom asked for by number, the
// wheel and the middle button.
class GestosDeVista {
  public:
    // `dispone` lays the panel out when that has not happened yet.
    GestosDeVista(Superficie& panel, Trabajo& trabajo, Refresco& refresco, Vista& vista,
                  Desplazamiento& desplazamiento, Avisos& avisos, MaquinaEstados& estados,
                  std::function<void()> dispone);

    // The panel's point has been pressed, has moved with the left button held; in states 17, 18 and 19. The
    // band follows it by inverting.
    void EmpiezaBanda(float x, float y);
    void MueveBanda(float x, float y);

    // Zooms to the rectangle between the two points of trazadoTemporal, puts its middle in the middle of the
    // panel and goes back to the state before. Without two points, or with both the same, it only goes back;
    // a zoom that is refused centres, and leaves the state.
    void E_18_AplicaZoom();
    // Moves the view by the way from the first to the third point of trazadoTemporal.
    void E_19_Aplica();

    // Asks for a percentage and zooms to it.
    void ZoomDelUsuario();

    // The wheel, or fingers on a touchpad, with the mouse at a point of the panel; all of it in shares of the
    // panel's width and height, to the right and downwards. The drawing moves that far, or becomes that many
    // times larger around the mouse. Nothing is told, and nothing happens in the middle of a drag; the
    // repaint is owed.
    void Empuja(double anchos, double altos, PuntoXY en);
    void Amplia(double veces, PuntoXY en);

    // The view held by the point of the world under the mouse: that stays under it, and the repaint is owed.
    void Ase(PuntoXY raton) noexcept;
    void Lleva(PuntoXY raton);
    bool VistaAsida() const noexcept { return asidero_.has_value(); }
    // True when the view was held and has stayed where it was.
    bool SueltaVista();

  private:
    void DibujaBanda() const;
    bool PuedeMoverse() const noexcept;
    void MueveVista(double dx, double dy);
    void VistaMovida(PuntoXY en);

    Superficie& panel_;
    Trabajo& trabajo_;
    Refresco& refresco_;
    Vista& vista_;
    Desplazamiento& desplazamiento_;
    Avisos& avisos_;
    MaquinaEstados& estados_;
    std::function<void()> dispone_;

    std::optional<PuntoXY> asidero_;
    bool llevada_ = false;
    // What was asked for and is less than the view's coordinates can tell apart where it is.
    double restoX_ = 0;
    double restoY_ = 0;
};

}  // namespace zel
