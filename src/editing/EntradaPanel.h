#pragma once

#include <cstdint>

#include "editing/ArrastreElemento.h"
#include "editing/ArrastreEtiqueta.h"
#include "editing/Creacion.h"
#include "editing/GestosDeVista.h"
#include "editing/PuntosDeConduccion.h"
#include "editing/Seleccion.h"

namespace zel {

// The panel's mouse, in world units. Buttons: 1 left, 2 right, 4 middle; of a move, those held. Shift: 1 for
// the key of that name, 2 Ctrl, 4 Alt, added up. What a button does is up to the state; the middle one acts
// as the left one, but for a drag beside all elements in the ready state, which moves the view and leaves the
// selection.
class EntradaPanel {
  public:
    // What the mouse does, family by family.
    struct Gestos {
        Seleccion& seleccion;
        GestosDeVista& vista;
        Creacion& creacion;
        ArrastreElemento& elemento;
        ArrastreEtiqueta& etiqueta;
        PuntosDeConduccion& puntos;
        GestosDeSubsistema& subsistema;
    };
    EntradaPanel(Superficie& panel, Trabajo& trabajo, Refresco& refresco, Vista& vista, Avisos& avisos,
                 MaquinaEstados& estados, const Gestos& gestos, Anfitrion& anfitrion) noexcept;

    // The arguments come back as they were used: brought into the world, and changed by the host.
    void Panel_MouseDown(std::int16_t& Button, std::int16_t& Shift, float& X, float& Y);
    void Panel_MouseMove(std::int16_t& Button, std::int16_t& Shift, float& X, float& Y);
    void Panel_MouseUp(std::int16_t& Button, std::int16_t& Shift, float& X, float& Y);
    // A press and its release; the second press of two in a row, instead of it.
    void Panel_Click();
    void Panel_DblClick();

  private:
    void Pulsa(std::int16_t Button, float X, float Y);
    void PulsaElDerecho(float X, float Y);
    void Mueve(std::int16_t Button, float X, float Y);
    void Suelta(float X, float Y);
    void PulsaPreparado(std::int16_t Button, float X, float Y);
    void ClicDeZoom(float X, float Y);

    Superficie& panel_;
    Trabajo& trabajo_;
    Refresco& refresco_;
    Vista& vista_;
    Avisos& avisos_;
    MaquinaEstados& estados_;
    Gestos gestos_;
    Anfitrion& anfitrion_;
    PuntoXY raton_{};  // beyond the world too
};

}  // namespace zel
