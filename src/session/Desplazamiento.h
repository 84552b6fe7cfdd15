#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "platform/BarraDesplazamiento.h"
#include "session/Vista.h"

namespace zel {

// The scroll bars and the view, each kept in line with the other. The bars' positions are whole world units:
// where a bar moves, the view's left or top edge goes to its position.
class Desplazamiento {
  public:
    Desplazamiento(Superficie& panel, Vista& vista, Trabajo& trabajo, Refresco& refresco,
                   Anfitrion& anfitrion, BarraDesplazamiento& horizontal,
                   BarraDesplazamiento& vertical) noexcept;

    // Grows the elements' region to hold the view, sets both bars and tells the zoom. With modo 1 the bars'
    // handlers repaint, otherwise they do not. Returns what the user has to be told: a view that 16-bit bars
    // cannot represent is told when it becomes so, and again only after one that fits. The bars are disabled
    // meanwhile; the view stays as it is. Inside itself it does nothing.
    std::optional<std::string> ActualizaVista(std::int16_t modo);

    // The same after a move of the view that is not the bars': it stays between two of their positions, and
    // nothing is told.
    void SigueALaVista();

    // A bar has a new position; its thumb is being dragged.
    void HScroll_Change();
    void HScroll_Scroll();
    void VScroll_Change();
    void VScroll_Scroll();

    // Moves a bar by half its page step, at least by 1 and at most to its end, and the view with it. Bars
    // that cannot represent the view stay.
    void HScroll_MedioPaso(bool haciaMax) {
        if (MedioPaso(horizontal_, haciaMax)) HScroll_Change();
    }
    void VScroll_MedioPaso(bool haciaMax) {
        if (MedioPaso(vertical_, haciaMax)) VScroll_Change();
    }

    // Another schematic: what was told of the last one counts no more.
    void NuevoDocumento() noexcept { noCabe_ = false; }

    bool bActualizandoScroll() const noexcept { return bActualizandoScroll_; }
    void bActualizandoScroll(bool valor) noexcept { bActualizandoScroll_ = valor; }

  private:
    struct Eje {
        BarraDesplazamiento& barra;
        bool esVertical;
        bool bEnBordeScroll = false;
    };

    static bool EnBorde(const BarraDesplazamiento::Estado& estado) noexcept;
    void PonBarras(bool limitado);
    bool MedioPaso(const Eje& eje, bool haciaMax);
    void Mueve(const Eje& eje);
    void Change(Eje& eje);
    void Scroll(Eje& eje);

    Superficie& panel_;
    Vista& vista_;
    Trabajo& trabajo_;
    Refresco& refresco_;
    Anfitrion& anfitrion_;
    Eje horizontal_;
    Eje vertical_;
    bool enCurso_ = false;
    bool bActualizandoScroll_ = false;
    bool noCabe_ = false;
    bool vistaLibre_ = false;        // the bars follow the view, and not it them
    Superficie::Escala asentada_{};  // what the bars were last set to show
};

}  // namespace zel
