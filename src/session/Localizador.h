#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <unordered_set>

#include "session/Documento.h"
#include "session/Trabajo.h"
#include "session/Vista.h"

namespace zel {

// Finds the element under a point of the world. What it finds is kept in Trabajo (iParteEncontrada,
// bCuerpoElemento, iSegmentoEncontrado) and underlined. See Busqueda for the rules.
class Localizador {
  public:
    // `SubrayaElem` moves the underline of the element under the mouse to that code; 0 takes it away.
    Localizador(Superficie& panel, const Documento& documento, Trabajo& trabajo, const Vista& vista,
                std::function<void(std::int32_t)> SubrayaElem)
        : panel_(panel),
          documento_(documento),
          trabajo_(trabajo),
          vista_(vista),
          subrayaElem_(std::move(SubrayaElem)) {}

    // Searches the trace being drawn, the selected element or a trace to be tried, the first of them that is
    // asked for; otherwise the schematic without colExcluidos. With bSoloSeleccionado, colExcluidos takes
    // from the selected element its segments only. A trace is searched as the trace of a temporary element,
    // which is then what is returned.
    std::shared_ptr<Elemento> BuscaElemento(float x, float y,
                                            const std::unordered_set<std::int32_t>* colExcluidos = nullptr,
                                            bool bTrazadoNuevo = false, bool bSoloSeleccionado = false,
                                            const std::shared_ptr<Puntos>& trazadoPrueba = nullptr,
                                            float factorTolerancia = 0.5F, bool bSinEtiquetas = false);

    // Whether a label's box, from its top left corner with its signed width and height, would cover the
    // symbol of an element.
    bool HayElementoBajoEtiqueta(const Punto& origen, const Punto& tamanyo);

    // Until the next search.
    void DejaDeSubrayar() {
        if (subrayaElem_) subrayaElem_(0);
    }

  private:
    std::shared_ptr<Elemento> TrazadoNuevoComoElemento() const;

    Superficie& panel_;
    const Documento& documento_;
    Trabajo& trabajo_;
    const Vista& vista_;
    std::function<void(std::int32_t)> subrayaElem_;
};

}  // namespace zel
