#pragma once

#include <cstdint>

#include "editing/GestosDeVista.h"
#include "session/Localizador.h"

namespace zel {

// The panel's mouse, in world units. Buttons: 1 left, 2 right, 4 middle.
class EntradaPanel {
  public:
    EntradaPanel(Superficie& panel, Trabajo& trabajo, Refresco& refresco, Vista& vista, Avisos& avisos,
                 MaquinaEstados& estados, GestosDeVista& gestos, Localizador& localizador,
                 Anfitrion& anfitrion) noexcept;

    void Panel_MouseDown(std::int16_t Button, float X, float Y);
    void Panel_MouseMove(std::int16_t Button, float X, float Y);
    void Panel_MouseUp(std::int16_t Button, float X, float Y);

  private:
    void ClicDeZoom(float X, float Y);

    Superficie& panel_;
    Trabajo& trabajo_;
    Refresco& refresco_;
    Vista& vista_;
    Avisos& avisos_;
    MaquinaEstados& estados_;
    GestosDeVista& gestos_;
    Localizador& localizador_;
    Anfitrion& anfitrion_;
};

}  // namespace zel
