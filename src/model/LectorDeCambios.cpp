#include "model/LectorDeCambios.h"

#include <algorithm>

namespace zel {

void LectorDeCambios::Ata(const std::shared_ptr<Elementos>& elementos) noexcept {
    if (elementos && elementos_.lock() == elementos) return;
    elementos_ = elementos;
    leido_ = 0;
}

// By their place, which is never given again, while an address may be.
std::vector<DiarioDeCambios::Cambio> LectorDeCambios::UltimoDeCadaUno(
    std::span<const DiarioDeCambios::Cambio> cambios) {
    std::vector<DiarioDeCambios::Cambio> todos(cambios.begin(), cambios.end());
    std::stable_sort(todos.begin(), todos.end(),
                     [](const auto& a, const auto& b) { return a.Orden < b.Orden; });
    std::vector<DiarioDeCambios::Cambio> ultimos;
    for (const auto& cambio : todos) {
        if (!ultimos.empty() && ultimos.back().Orden == cambio.Orden) ultimos.pop_back();
        ultimos.push_back(cambio);
    }
    return ultimos;
}

}  // namespace zel
