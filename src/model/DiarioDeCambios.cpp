#include "model/DiarioDeCambios.h"

#include <algorithm>

#include "model/Elemento.h"

namespace zel {

namespace {

constexpr std::int32_t LIMITE_MINIMO = 1024;

}  // namespace

std::optional<std::span<const DiarioDeCambios::Cambio>> DiarioDeCambios::Lee(
    std::uint64_t& numero) const noexcept {
    const std::uint64_t desde = numero;
    numero = leido_ = Numero();
    conLectores_ = true;
    if (desde < primero_ || desde > numero) return std::nullopt;
    return std::span(cambios_).subspan(static_cast<std::size_t>(desde - primero_));
}

void DiarioDeCambios::Anota(const Elemento& elemento, bool quitado) noexcept {
    if (!conLectores_) {
        ++primero_;
        return;
    }
    // An element changes several times in a row, the points of its trace for instance. Once is enough for
    // those who have not read it yet.
    if (!quitado && !cambios_.empty() && Numero() > leido_) {
        const Cambio& ultimo = cambios_.back();
        if (ultimo.elemento == &elemento && !ultimo.Quitado) return;
    }
    if (cambios_.size() >= limite_) {
        Pierde();
        return;
    }
    try {
        cambios_.push_back({&elemento, elemento.Orden(), quitado});
    } catch (...) {
        Pierde();
    }
}

void DiarioDeCambios::Limita(std::int32_t elementos) noexcept {
    limite_ = static_cast<std::size_t>(std::max(LIMITE_MINIMO, elementos));
}

// With the change in hand, which is not kept either.
void DiarioDeCambios::Pierde() noexcept {
    primero_ = Numero() + 1;
    cambios_.clear();
    conLectores_ = false;
}

}  // namespace zel
