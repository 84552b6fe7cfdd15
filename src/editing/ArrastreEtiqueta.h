#pragma once

#include "editing/MaquinaEstados.h"
#include "session/Avisos.h"
#include "session/Localizador.h"
#include "session/Pintado.h"

namespace zel {

// Moving the label of the selected element: by dragging it (state 16), or by a click on its new place
// (state 7). A label keeps its offset from its element.
class ArrastreEtiqueta {
  public:
    ArrastreEtiqueta(Superficie& panel, Documento& documento, Trabajo& trabajo, Refresco& refresco,
                     Vista& vista, Avisos& avisos, Pintado& pintado, Localizador& localizador,
                     MaquinaEstados& estados, Anfitrion& anfitrion) noexcept;

    // State 7.
    void MueveAlInstante(float X, float Y);
    // State 16: the label's box follows the mouse, held where it was pressed.
    void Arrastra(float X, float Y);
    // State 16: drops the label, unless it would hide something.
    void Suelta(float X, float Y);

  private:
    NumeroDeAviso Estorbo(const Punto& ancla);
    void PonEtiqueta(Elemento& elem, float X, float Y);

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
