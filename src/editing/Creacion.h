#pragma once

#include <cstdint>

#include "editing/MaquinaEstados.h"
#include "session/Avisos.h"
#include "session/Localizador.h"
#include "session/Pintado.h"

namespace zel {

// Creating elements: the kind in hand is placed by a click, or traced from a start element to its end.
class Creacion {
  public:
    Creacion(Superficie& panel, Documento& documento, Trabajo& trabajo, Refresco& refresco, Vista& vista,
             Avisos& avisos, Pintado& pintado, Localizador& localizador, MaquinaEstados& estados,
             Anfitrion& anfitrion) noexcept;

    // The panel's point has been pressed, in states 2 and 3. Buttons: 1 left, 2 right, 4 middle.
    void Pulsa(std::int16_t Button, float X, float Y);
    // The mouse has moved, in state 3: the segment that a click would add follows it.
    void Mueve(float X, float Y);
    // Takes back the last point of the trace, in state 3.
    void Retrocede();

  private:
    Superficie& panel_;
    Documento& documento_;
    Trabajo& trabajo_;
    Refresco& refresco_;
    Vista& vista_;
    Avisos& avisos_;
    Pintado& pintado_;
    Localizador& localizador_;
    MaquinaEstados& estados_;
    Anfitrion& anfitrion_;
};

}  // namespace zel
