#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <vector>

#include "drawing/IndiceDeElementos.h"
#include "drawing/RejillaEspacial.h"
#include "model/LectorDeCambios.h"

namespace zel {

// How high a line of a label can be, in world units: `porFactor` times the label's factor (EtiquetaTamanyo,
// and Tamanyo where the label is relative) plus `fija`.
struct AltoDeLetra {
    double porFactor = 0;
    double fija = 0;

    bool Vale() const noexcept;  // neither negative nor out of all measure
};

// The elements of a collection that a paint of a part of the world has to look at: never fewer than there
// are to draw, and where little is in sight not many more. It follows the collection's journal. All results
// are in collection order and hold until the collection changes.
class IndiceDePintado {
  public:
    using Elegidos = std::vector<const Elemento*>;

    // `lugares`, which has to outlive it, knows where the elements are.
    explicit IndiceDePintado(IndiceDeElementos& lugares) noexcept : lugares_(lugares) {}

    // The collection that is painted from now on; it is not kept alive.
    void Ata(const std::shared_ptr<Elementos>& elementos) noexcept;

    // Those whose centre or traces touch the region, and those that no region tells about: of no kind, or
    // without the traces that they should have.
    Elegidos Cuerpos(const Recuadro& region);
    // Those whose label may touch the region.
    Elegidos Etiquetas(const Recuadro& region, const AltoDeLetra& alto);
    // Those with a secondary connection.
    Elegidos ConSecundarias();

  private:
    using PorOrden = std::map<std::uint64_t, const Elemento*>;

    void PonEnLista(PorOrden& lista, const DiarioDeCambios::Cambio& cambio, bool pertenece);
    void PonListasAlDia();
    void PonEtiquetasAlDia(const AltoDeLetra& alto);

    IndiceDeElementos& lugares_;
    LectorDeCambios deListas_;
    PorOrden siempre_;
    PorOrden conSecundarias_;
    LectorDeCambios deEtiquetas_;
    RejillaEspacial etiquetas_;
    AltoDeLetra banda_;  // for which the labels' boxes are large enough
};

}  // namespace zel
