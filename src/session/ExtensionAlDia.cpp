#include "session/ExtensionAlDia.h"

#include <algorithm>
#include <bit>

#include "model/TamanyoUnidad.h"

namespace zel {

std::optional<Marco> ExtensionAlDia::De(const std::shared_ptr<Elementos>& elementos, float margen) {
    lector_.Ata(elementos);
    if (margen_ != margen || unidad_ != TamanyoUnidad()) lector_.Olvida();
    margen_ = margen;
    unidad_ = TamanyoUnidad();
    lector_.PonAlDia([&](std::size_t cuantos) { Vacia(cuantos); },
                     [&](const DiarioDeCambios::Cambio& cambio) { Atiende(cambio); });
    return ExtensionCompleta(nodos_[1].marco, nodos_[1].primero);
}

void ExtensionAlDia::Vacia(std::size_t elementos) {
    hojas_.clear();
    nodos_.assign(2 * std::bit_ceil(elementos + 1), {});
}

void ExtensionAlDia::Atiende(const DiarioDeCambios::Cambio& cambio) {
    auto hoja = static_cast<std::size_t>(
        std::lower_bound(hojas_.begin(), hojas_.end(), cambio.Orden,
                         [](const Hoja& h, std::uint64_t orden) { return h.orden < orden; }) -
        hojas_.begin());
    if (hoja == hojas_.size()) {
        if (cambio.Quitado) return;
        hoja = HojaNueva(cambio.Orden);
    }
    hojas_[hoja].vacante = cambio.Quitado;
    std::size_t n = nodos_.size() / 2 + hoja;
    const auto suyo = cambio.Quitado ? std::nullopt : ExtensionDe(*cambio.elemento, margen_);
    nodos_[n] = suyo ? Nodo{*suyo, cambio.elemento} : Nodo{};
    while (n /= 2)
        Reune(n);
}

// Elements come in their order, so that a new one is the last.
std::size_t ExtensionAlDia::HojaNueva(std::uint64_t orden) {
    if (hojas_.size() == nodos_.size() / 2) Recoloca();
    hojas_.push_back({orden, false});
    return hojas_.size() - 1;
}

// Gives up the leaves whose elements are gone, in a tree with room for as many again.
void ExtensionAlDia::Recoloca() {
    std::vector<Hoja> hojas;
    std::vector<Nodo> nodos;
    const std::size_t primera = nodos_.size() / 2;
    for (std::size_t i = 0; i < hojas_.size(); ++i) {
        if (hojas_[i].vacante) continue;
        hojas.push_back(hojas_[i]);
        nodos.push_back(nodos_[primera + i]);
    }
    hojas_ = std::move(hojas);
    nodos_.assign(2 * std::bit_ceil(2 * nodos.size() + 1), {});
    std::copy(nodos.begin(), nodos.end(), nodos_.begin() + static_cast<std::ptrdiff_t>(nodos_.size() / 2));
    for (std::size_t n = nodos_.size() / 2; --n;)
        Reune(n);
}

void ExtensionAlDia::Reune(std::size_t n) noexcept {
    const Nodo& izquierdo = nodos_[2 * n];
    const Nodo& derecho = nodos_[2 * n + 1];
    nodos_[n] = izquierdo;
    nodos_[n].marco.Crece(derecho.marco);
    if (!izquierdo.primero) nodos_[n].primero = derecho.primero;
}

}  // namespace zel
