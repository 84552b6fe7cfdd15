#pragma once

#include "editing/MaquinaEstados.h"
#include "session/Avisos.h"
#include "session/Localizador.h"
#include "session/Pintado.h"

namespace zel {

// Moving the inner points of the selected element's traces: they are picked in state 8 and dragged in 14.
class PuntosDeConduccion {
  public:
    PuntosDeConduccion(Superficie& panel, Documento& documento, Trabajo& trabajo, Vista& vista,
                       Avisos& avisos, Pintado& pintado, Localizador& localizador, MaquinaEstados& estados,
                       Anfitrion& anfitrion) noexcept;

    // The number of an inner point of the selected element's traces near that place, 0 for none; the first
    // trace goes first. A hydro plant's second trace may be the one: bSegundoTrazado tells it.
    std::int32_t E_08_EscogerPuntoConduccion(float X, float Y);
    bool bSegundoTrazado() const noexcept { return bSegundoTrazado_; }

    // State 8: shows with the pointer whether there is a point to pick; picks it.
    void Sobrevuela(float X, float Y);
    void Escoge(float X, float Y);
    // State 14: the point picked and the two segments beside it follow the mouse.
    void Arrastra(float X, float Y);
    // State 14: drops it, unless it would lie on something.
    void Suelta(float X, float Y);

  private:
    void MuevePunto(float X, float Y);
    void E_14_CorrigePuntos();
    bool SigueEscogido() const;
    NumeroDeAviso Estorbo(float X, float Y);
    bool EstorbaOtro(float X, float Y);
    bool CaeSobreOtroPunto(float X, float Y) const;
    bool CaeSobreOtroTramo(float X, float Y);
    std::shared_ptr<Puntos> Parte(std::int32_t desde, std::int32_t hasta) const;
    void Escribe();

    const Puntos& Trazado() const;
    const TramoMovido& Anterior() const { return trabajo_.colConduccionesMovidas[0]; }
    const TramoMovido& Posterior() const { return trabajo_.colConduccionesMovidas[1]; }

    Superficie& panel_;
    Documento& documento_;
    Trabajo& trabajo_;
    Vista& vista_;
    Avisos& avisos_;
    Pintado& pintado_;
    Localizador& localizador_;
    MaquinaEstados& estados_;
    Anfitrion& anfitrion_;

    std::int32_t punto_ = 0;
    bool bSegundoTrazado_ = false;
};

}  // namespace zel
