#pragma once

#include "editing/ArrastreElemento.h"
#include "editing/GestosDeSubsistema.h"

namespace zel {

// The ready state's mouse: a press selects; a press on what is selected already may drag it; a press beside
// it all begins a selection rectangle.
class Seleccion {
  public:
    Seleccion(Superficie& panel, Trabajo& trabajo, Pintado& pintado, Localizador& localizador,
              MaquinaEstados& estados, GestosDeSubsistema& subsistema, Anfitrion& anfitrion);

    void Pulsa(float X, float Y);
    bool HayElementoEn(float X, float Y) { return localizador_.BuscaElemento(X, Y) != nullptr; }
    // What a press beside it all does to the selection.
    void DejaSinSeleccion();
    // With the button held: begins the drag that the press allows. A press begins one at most, so that a drag
    // that was given up does not begin again.
    void EmpiezaArrastre(float X, float Y);
    // Without a button: shows whether there is something to drag.
    void Sobrevuela(float X, float Y);
    // What a press has underlined goes when the mouse does, in the states that do not look under it.
    void DejaDeSobrevolar() { localizador_.DejaDeSubrayar(); }
    void Suelta() noexcept;

    // Makes it the selected element and moves the highlight to it; the host is not told.
    void Toma(const std::shared_ptr<Elemento>& elem);

  private:
    void Deselecciona();
    bool SePuedeArrastrar(const std::shared_ptr<Elemento>& elem) const noexcept;

    Superficie& panel_;
    Trabajo& trabajo_;
    Pintado& pintado_;
    Localizador& localizador_;
    MaquinaEstados& estados_;
    GestosDeSubsistema& subsistema_;
    Anfitrion& anfitrion_;

    // What the press has hit, and where.
    PuntoXY prensa_{};
    std::weak_ptr<Elemento> pulsado_;
    std::int16_t partePulsada_ = 0;
    bool bCuerpoPulsado_ = false;

    const std::string invitacion_;  // to drag the element
    bool invitando_ = false;
};

}  // namespace zel
