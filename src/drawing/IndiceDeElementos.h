#pragma once

#include <cstdint>
#include <memory>
#include <optional>

#include "drawing/AjustesDibujo.h"
#include "drawing/RejillaEspacial.h"
#include "model/LectorDeCambios.h"

namespace zel {

// What a symbol's centre and the traces take up: whatever a search can hit of the element but its label lies
// within its tolerance of this box. Empty for an element without either.
Recuadro RecuadroDelCuerpo(const Elemento& e) noexcept;

// The box of the label, at the panel's present scale; empty for an element that shows none or whose font
// cannot be set. Leaves the panel with the label's font.
Recuadro RecuadroDeEtiqueta(Superficie& panel, const AjustesDibujo& ajustes, const Elemento& e);

// The elements of a collection by their place. It follows the collection's journal, so that after a change
// a search costs what has changed; the labels' boxes depend on the scale as well and are measured anew when
// that has changed.
class IndiceDeElementos {
  public:
    // The collection in which to search from now on; it is not kept alive.
    void Ata(const std::shared_ptr<Elementos>& elementos) noexcept;
    // The collection's own reference to one of its elements.
    std::shared_ptr<Elemento> Referencia(const Elemento* elemento) const noexcept;

    // Calls accion(const Elemento&, const Recuadro&) with the elements whose body touches the region, in no
    // special order; the same one may come several times.
    template <typename Accion>
    void VisitaCuerpos(const Recuadro& region, Accion accion) {
        PonCuerposAlDia();
        cuerpos_.rejilla.Visita(region, accion);
    }
    // The same with the labels' boxes.
    template <typename Accion>
    void VisitaEtiquetas(Superficie& panel, const AjustesDibujo& ajustes, const Recuadro& region,
                         Accion accion) {
        PonEtiquetasAlDia(panel, ajustes);
        etiquetas_.rejilla.Visita(region, accion);
    }

  private:
    struct Capa {
        RejillaEspacial rejilla;
        LectorDeCambios lector;
    };
    // All that the size of a label depends on, besides the element.
    struct Medida {
        const Superficie* panel;
        float factor, ancho, alto, anchoDePixel, anchoDeTexto, altoDeTexto;
        bool operator==(const Medida&) const = default;
    };

    static Medida MedidaDe(Superficie& panel, const AjustesDibujo& ajustes);
    template <typename Mide>
    static void PonAlDia(Capa& capa, Mide mide);
    void PonCuerposAlDia();
    void PonEtiquetasAlDia(Superficie& panel, const AjustesDibujo& ajustes);

    Capa cuerpos_;
    Capa etiquetas_;
    std::optional<Medida> medida_;
};

}  // namespace zel
