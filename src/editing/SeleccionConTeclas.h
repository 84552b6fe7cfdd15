#pragma once

#include "editing/Seleccion.h"

namespace zel {

// Going from the selected element to another one without a mouse. The one that becomes selected comes into
// sight, and the host is told as of a press. Where there is nothing to go to, nothing happens.
class SeleccionConTeclas {
  public:
    SeleccionConTeclas(Superficie& panel, Documento& documento, Trabajo& trabajo, Refresco& refresco,
                       Vista& vista, Conexiones& conexiones, MaquinaEstados& estados, Seleccion& seleccion,
                       Anfitrion& anfitrion) noexcept;

    // To the next element of the schematic, or to the one before. With nothing selected, to the first or to
    // the last.
    void Pasa(bool adelante);
    // With the water, or against it: from a linear element to its end, or to its start; from another one to
    // the first linear element that starts, or ends, at it. Inflows, returns and sub-basins have no start but
    // themselves.
    void SigueElFlujo(bool aguasAbajo);

  private:
    std::shared_ptr<Elemento> Vecino(const Elemento& e, bool aguasAbajo) const;
    bool EstaALaVista(const Elemento& e) const noexcept;
    void Elige(const std::shared_ptr<Elemento>& elem);

    Superficie& panel_;
    Documento& documento_;
    Trabajo& trabajo_;
    Refresco& refresco_;
    Vista& vista_;
    Conexiones& conexiones_;
    MaquinaEstados& estados_;
    Seleccion& seleccion_;
    Anfitrion& anfitrion_;
};

}  // namespace zel
