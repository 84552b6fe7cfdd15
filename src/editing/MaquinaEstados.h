#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "editing/Estados.h"
#include "model/Conexiones.h"
#include "model/LectorDeCambios.h"
#include "session/Anfitrion.h"
#include "session/Documento.h"
#include "session/Refresco.h"
#include "session/Trabajo.h"
#include "session/Vista.h"

namespace zel {

// The interaction state and all that changes with it: the work in hand, the prompt, the cursor and the
// pressed buttons.
class MaquinaEstados {
  public:
    MaquinaEstados(Superficie& panel, Documento& documento, Trabajo& trabajo, Refresco& refresco,
                   Vista& vista, Conexiones& conexiones, Anfitrion& anfitrion) noexcept;

    // The only change of state. bRefrescar 1 asks for a repaint where the state's entry allows it. A number
    // that is no state changes nothing but iEstadoAnterior; a state whose needs are not met (an element
    // selected, a subsystem) becomes state 5.
    void Estado(std::int32_t nuevoEstado, std::int32_t bRefrescar);

    // Leaves a state that has interrupted another one (the zooms, the hand) for that one, with what it had in
    // hand; or for state 5.
    void Vuelve();

    // Drops the objects of a gesture; the subsystem and its lasso too unless it is to be kept.
    void BorrarVariablesEstado(bool bConservarSubsistema);
    // Clears the temporary marks in every trace of the schematic, at the cost of what has changed since.
    void BorrarInfoExtra();

    // Brings the bars into line with the state, which each change of state does. Of the view tools, `sClave`
    // tells which of the two zooms.
    void RevisaBarraToolbar1();
    void RevisaBarraToolbar2(std::string_view sClave);

    // What the status bar says in state 5: the name of the selected element, or that there is none.
    void PromptDePreparado();
    // After the host has changed what is selected, or its name.
    void RevisaPrompt();

    // Where the mouse is, in panels 2 and 3 of the status bar; with bDepurarEstado, the state.
    void MuestraPosicion(float x, float y);

  private:
    friend const EstadoDelVisor* EstadoDe(std::int32_t numero) noexcept;

    using Fila = const EstadoDelVisor&;
    void EntraVolver(Fila fila, std::int32_t viejo, std::int32_t bRefrescar);
    void EntraZoom(Fila fila, std::int32_t viejo, std::int32_t bRefrescar);
    void EntraDibujando(Fila fila, std::int32_t viejo, std::int32_t bRefrescar);
    void EntraConduccion(Fila fila, std::int32_t viejo, std::int32_t bRefrescar);
    void EntraPreparado(Fila fila, std::int32_t viejo, std::int32_t bRefrescar);
    void EntraMoverElemento(Fila fila, std::int32_t viejo, std::int32_t bRefrescar);
    void EntraSinMas(Fila fila, std::int32_t viejo, std::int32_t bRefrescar);
    void EntraEscogerPunto(Fila fila, std::int32_t viejo, std::int32_t bRefrescar);
    void EntraEsperarSubsistema(Fila fila, std::int32_t viejo, std::int32_t bRefrescar);
    void EntraLazo(Fila fila, std::int32_t viejo, std::int32_t bRefrescar);
    void EntraSubsistema(Fila fila, std::int32_t viejo, std::int32_t bRefrescar);
    void EntraArrastrarElemento(Fila fila, std::int32_t viejo, std::int32_t bRefrescar);
    void EntraArrastrarPunto(Fila fila, std::int32_t viejo, std::int32_t bRefrescar);
    void EntraUnoAUno(Fila fila, std::int32_t viejo, std::int32_t bRefrescar);
    void EntraArrastrarEtiqueta(Fila fila, std::int32_t viejo, std::int32_t bRefrescar);
    void EntraBanda(Fila fila, std::int32_t viejo, std::int32_t bRefrescar);
    void EntraImagenFondo(Fila fila, std::int32_t viejo, std::int32_t bRefrescar);

    void Interrumpe(std::int32_t viejo);
    void Pon(Fila fila);
    void Pide(std::int32_t bRefrescar) noexcept;
    void Prompt(const std::string& texto);
    void Prompt(std::int32_t mensaje);
    void Cursor(std::int32_t id);

    Superficie& panel_;
    Documento& documento_;
    Trabajo& trabajo_;
    Refresco& refresco_;
    Vista& vista_;
    Conexiones& conexiones_;
    Anfitrion& anfitrion_;
    std::optional<Trabajo::EnMano> reanuda_;  // while it goes back
    LectorDeCambios marcas_;                  // whoever has not changed since it last read has none
};

}  // namespace zel
