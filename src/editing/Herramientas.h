#pragma once

#include <string_view>

#include "editing/GestosDeVista.h"

namespace zel {

// What the buttons of the two bars do, by their keys, and the focus of the panel.
class Herramientas {
  public:
    Herramientas(Superficie& panel, Trabajo& trabajo, Refresco& refresco, Vista& vista, Avisos& avisos,
                 MaquinaEstados& estados, GestosDeVista& gestos, Anfitrion& anfitrion) noexcept;

    // An element kind, or the selection arrow.
    void Toolbar1_ButtonClick(std::string_view clave);
    // A view tool; those that act at once pop up again.
    void Toolbar2_ButtonClick(std::string_view clave);

    // Asks the host to delete the selected element; nothing is deleted here.
    void PreguntaBorrado();

    // The focus has moved to the panel from another widget, or away from it. A drag is abandoned.
    void Panel_GotFocus();
    void Panel_LostFocus();

  private:
    void Ejecuta(std::string_view clave);

    Superficie& panel_;
    Trabajo& trabajo_;
    Refresco& refresco_;
    Vista& vista_;
    Avisos& avisos_;
    MaquinaEstados& estados_;
    GestosDeVista& gestos_;
    Anfitrion& anfitrion_;
};

}  // namespace zel
