#include "session/Extension.h"

#include "model/TamanyoUnidad.h"

namespace zel {

namespace {

bool TieneTrazado(const Elemento& e) noexcept {
    return TipoConocido(e.Tipo()) && EsLineal(e.Tipo());
}

void Crece(Marco& marco, const Elemento& e, float margen) {
    if (TieneSimbolo(e.Tipo())) marco.Crece(e.XPos(), e.YPos(), e.Tamanyo() * TamanyoUnidad() + margen);
    if (!TieneTrazado(e)) return;
    marco.Crece(*e.Trazado(), margen);
    if (e.Trazado2()) marco.Crece(*e.Trazado2(), margen);
}

}  // namespace

std::optional<Marco> ExtensionDe(const Elementos& elementos, float margen) {
    std::optional<Marco> marco;
    for (const auto& e : elementos) {
        if (TieneTrazado(*e) && !e->Trazado()) continue;
        if (!marco) marco.emplace().Crece(e->XPos(), e->YPos(), 0);
        Crece(*marco, *e, margen);
    }
    // Only elements of no kind, all in one place: some room around them all the same.
    if (marco && marco->Xmin == marco->Xmax && marco->Ymin == marco->Ymax) {
        marco->Crece(marco->Xmin, marco->Ymin, TamanyoUnidad());
    }
    return marco;
}

}  // namespace zel
