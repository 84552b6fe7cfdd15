#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "drawing/Pintor.h"
#include "session/Desplazamiento.h"
#include "session/Documento.h"
#include "session/Refresco.h"
#include "session/Trabajo.h"
#include "session/Vista.h"

namespace zel {

// Painting the panel, and the marks that come and go between two paints.
class Pintado {
  public:
    // `fondo` tells the background picture of the moment.
    Pintado(Superficie& panel, Documento& documento, Trabajo& trabajo, Refresco& refresco, Vista& vista,
            Desplazamiento& desplazamiento, std::function<Fondo()> fondo);

    // Repaints the whole panel when that was asked for (bPintado); otherwise it only brings the scroll bars
    // up to date. Inside itself it does nothing. What could not be drawn is told in boxes once it is over,
    // at most three, the last with the number of those left out.
    void Panel_Paint();
    // The control itself is to be repainted; not in the middle of a drag.
    void UserControl_Paint();
    // The state is a drag with its outline.
    static bool TieneContornos(std::int32_t iEstado) noexcept;
    // There is one in hand: the zoom rectangle and the hand have theirs from the press on.
    static bool HayArrastre(const Trabajo& trabajo) noexcept;
    // While it is set, boxes wait for DiPendientes: in the middle of a change of its own (a resize, a show, a
    // scroll bar's, one of focus) the platform cannot have what a box lets happen. Returns what it was.
    bool AplazaAvisos(bool valor) noexcept { return std::exchange(aplaza_, valor); }
    bool AvisosAplazados() const noexcept { return aplaza_; }
    bool HayPendientes() const noexcept { return !pendientes_.empty(); }
    void DiPendientes() { Avisa(std::exchange(pendientes_, {})); }
    // Leaves the panel blank, with no marks, until the next paint.
    void Borra();

    // What a paint shows: the subsystem while one is selected, else the schematic.
    const Elementos& ConjuntoPintado() const noexcept;

    void SombreaElemento(const std::shared_ptr<Elemento>& e);
    // Removes a highlight. A conduit's cannot be removed by drawing it again: the selection goes instead, and
    // a repaint is asked for.
    void DesSombreaElemeSelecc(const std::shared_ptr<Elemento>& e);
    // Moves the underline of the element below the mouse; 0 for none.
    void SubrayaElem(std::int32_t codigo);
    void AlternaSubrayado(std::int32_t codigo);
    // Draws the outline of the drag under way, or erases it.
    void AlternaContorno();

    // A selection that is no element of the schematic any more is dropped.
    void SueltaAjenos() noexcept;

  private:
    std::vector<std::string> Pinta(const Elementos& elementos, const Marcas* marcas);
    Marcas MarcasDelTrabajo() const;
    Fondo FondoDelMomento() const noexcept;
    void Avisa(const std::vector<std::string>& fallos);

    Superficie& panel_;
    Documento& documento_;
    Trabajo& trabajo_;
    Refresco& refresco_;
    Vista& vista_;
    Desplazamiento& desplazamiento_;
    std::function<Fondo()> fondo_;
    IndiceDePintado indice_;
    std::int16_t LlamadasARefresco_ = 0;
    bool pintando_ = false;
    bool avisando_ = false;
    bool aplaza_ = false;
    bool enBlanco_ = false;  // the panel shows nothing on which a mark could be
    std::vector<std::string> pendientes_;
    std::int32_t codSubrayado_ = 0;
};

}  // namespace zel
