#pragma once

#include <cstdint>
#include <memory>

#include "editing/MaquinaEstados.h"
#include "editing/ReglasConexion.h"
#include "session/Avisos.h"
#include "session/Localizador.h"
#include "session/Pintado.h"

namespace zel {

// Creating elements: the kind in hand is placed by a click, or traced from a start element to its end. A
// press that the rules refuse is told in a notice, and leaves the state and the trace.
class Creacion {
  public:
    Creacion(Superficie& panel, Documento& documento, Trabajo& trabajo, Refresco& refresco, Vista& vista,
             Avisos& avisos, Pintado& pintado, Localizador& localizador, MaquinaEstados& estados,
             Anfitrion& anfitrion) noexcept;

    // The panel's point has been pressed, in states 2 and 3. Buttons: 1 left, 2 right, 4 middle. Fails with 6
    // when a number on the screen or the code of the new element would be beyond its range, and as
    // BuscaMitadConduccion does for a trace of no length; nothing is created then, and the trace is kept.
    void Pulsa(std::int16_t Button, float X, float Y);
    // The mouse has moved, in state 3: the segment that a click would add follows it.
    void Mueve(float X, float Y);
    // Takes back the last point of the trace, in state 3; a plant's symbol once nothing is behind it, and the
    // start element once nothing is left.
    void Retrocede();

  private:
    // What a new element takes from how it was traced; its ends are codes.
    struct Nuevo {
        PuntoXY posicion;
        PuntoXY etiqueta;
        std::int32_t ElemIni = 0;
        std::int32_t ElemFin = 0;
        std::shared_ptr<Puntos> trazado;
        std::shared_ptr<Puntos> trazado2;
    };

    void PulsaSinTrazado(std::int16_t Button, float X, float Y);
    void PulsaTrazando(std::int16_t Button, float X, float Y);
    void PulsaDerecho(const std::shared_ptr<Elemento>& hallado);
    void Empieza(const std::shared_ptr<Elemento>& inicio);
    void Alarga(float X, float Y);
    void PonSimbolo(const ReglaConexion& regla, float X, float Y);
    void TerminaEn(const Elemento& fin);

    void Crea(const Nuevo& nuevo);
    std::shared_ptr<Elemento> Agrega(const Nuevo& nuevo);
    void Muestra(const std::shared_ptr<Elemento>& e);
    void Anuncia(const std::shared_ptr<Elemento>& e, TipoElemento armado);

    std::shared_ptr<Elemento> Busca(float X, float Y);
    std::shared_ptr<Elemento> BuscaTambienEnElTrazado(float X, float Y);
    bool Avisa(AvisoDeConexion aviso);
    bool PuedeSeguir() const noexcept;
    std::shared_ptr<Puntos>& TrazadoQueCrece() noexcept;
    PuntoXY Origen(float X, float Y) const;
    std::shared_ptr<Puntos> TrazadoHacia(float X, float Y);

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
