#pragma once

#include "editing/MaquinaEstados.h"
#include "session/Localizador.h"
#include "session/Pintado.h"

namespace zel {

// Choosing a subsystem with the mouse: by a lasso, by a rectangle, one by one.
class GestosDeSubsistema {
  public:
    GestosDeSubsistema(Superficie& panel, Trabajo& trabajo, Pintado& pintado, Localizador& localizador,
                       MaquinaEstados& estados) noexcept;

    // States 10 and 11: the lasso begins, follows the mouse, and closes.
    void EmpiezaLazo(float X, float Y);
    void SigueLazo(float X, float Y);
    void CierraLazo(float X, float Y);

    // State 17: the rectangle begins where the mouse is, follows it, and is taken.
    void EmpiezaRecuadro(float X, float Y);
    void TomaRecuadro();

    // State 15: takes the element under the mouse into the subsystem, or out of it. Only elements with a
    // symbol: the conduits between them join by themselves.
    void Alterna(float X, float Y);

  private:
    Superficie& panel_;
    Trabajo& trabajo_;
    Pintado& pintado_;
    Localizador& localizador_;
    MaquinaEstados& estados_;
};

}  // namespace zel
