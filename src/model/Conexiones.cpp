#include "model/Conexiones.h"

namespace zel {

std::vector<std::shared_ptr<Elemento>> Conexiones::De(std::int32_t codigo) const {
    std::vector<std::shared_ptr<Elemento>> unidos;
    const auto elementos = elementos_.lock();
    if (!elementos) return unidos;
    for (const auto& e : *elementos) {
        const bool une = e->ElemIni() == codigo || e->ElemFin() == codigo;
        if (une && EsLineal(e->Tipo()) && e->gfCodSIG() != codigo) unidos.push_back(e);
    }
    return unidos;
}

}  // namespace zel
