#pragma once

#include "editing/MaquinaEstados.h"
#include "session/Avisos.h"
#include "session/Localizador.h"
#include "session/Pintado.h"

namespace zel {

// Moving the selected element: by dragging it (state 13), or by a click on its new place (state 6).
class ArrastreElemento {
  public:
    ArrastreElemento(Superficie& panel, Documento& documento, Trabajo& trabajo, Refresco& refresco,
                     Vista& vista, Avisos& avisos, Pintado& pintado, Localizador& localizador,
                     Conexiones& conexiones, MaquinaEstados& estados, Anfitrion& anfitrion) noexcept;

    // State 6: puts the element there, unless there is another one in the way.
    void MueveAlInstante(float X, float Y);
    // State 13: the outline of the element and of what follows goes there, with its centre at the pointer.
    void Arrastra(float X, float Y);
    // State 13: drops it where the outline was last.
    void Suelta();

  private:
    bool EstorbaEn(float X, float Y, bool tambienElPropio);

    Superficie& panel_;
    Documento& documento_;
    Trabajo& trabajo_;
    Refresco& refresco_;
    Vista& vista_;
    Avisos& avisos_;
    Pintado& pintado_;
    Localizador& localizador_;
    Conexiones& conexiones_;
    MaquinaEstados& estados_;
    Anfitrion& anfitrion_;
};

}  // namespace zel
