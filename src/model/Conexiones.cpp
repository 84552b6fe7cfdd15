#include "model/Conexiones.h"

namespace zel {

void Conexiones::Quita(std::uint64_t orden) const {
    const auto lugar = uniones_.find(orden);
    if (lugar == uniones_.end()) return;
    for (const std::int32_t codigo : lugar->second.codigos)
        lugaresPorCodigo_.erase({codigo, orden});
    uniones_.erase(lugar);
}

void Conexiones::PonAlDia() const {
    lector_.PonAlDia(
        [&](std::size_t cuantos) {
            uniones_.clear();
            uniones_.reserve(cuantos);
            lugaresPorCodigo_.clear();
        },
        [&](const DiarioDeCambios::Cambio& cambio) {
            Quita(cambio.Orden);
            if (cambio.Quitado || !EsLineal(cambio.elemento->Tipo())) return;
            const Union suya{cambio.elemento, {cambio.elemento->ElemIni(), cambio.elemento->ElemFin()}};
            for (const std::int32_t codigo : suya.codigos)
                lugaresPorCodigo_.emplace(codigo, cambio.Orden);
            uniones_.emplace(cambio.Orden, suya);
        });
}

std::vector<std::shared_ptr<Elemento>> Conexiones::De(std::int32_t codigo) const {
    PonAlDia();
    std::vector<std::shared_ptr<Elemento>> unidos;
    const auto elementos = lector_.Atada();
    if (!elementos) return unidos;
    for (auto i = lugaresPorCodigo_.lower_bound({codigo, 0});
         i != lugaresPorCodigo_.end() && i->first == codigo; ++i) {
        const Elemento* e = uniones_.at(i->second).elemento;
        if (e->gfCodSIG() != codigo) unidos.push_back(elementos->Referencia(e));
    }
    return unidos;
}

}  // namespace zel
