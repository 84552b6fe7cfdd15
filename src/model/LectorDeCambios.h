#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <vector>

#include "model/Elementos.h"

namespace zel {

// Follows a collection's journal for whoever keeps something worked out from all of its elements.
class LectorDeCambios {
  public:
    // The collection that is followed from now on; it is not kept alive.
    void Ata(const std::shared_ptr<Elementos>& elementos) noexcept;
    std::shared_ptr<Elementos> Atada() const noexcept { return elementos_.lock(); }
    // The next time begins anew.
    void Olvida() noexcept { leido_ = 0; }

    // Calls cambia(const DiarioDeCambios::Cambio&) once with each element that has changed since the last
    // time, in collection order, with what has become of it in the end. To begin anew it calls
    // vacia(std::size_t) with the number of elements and then cambia with each of them; without a collection
    // vacia(0) alone. Should a call raise, the next time begins anew. `cambia` may change the element.
    template <typename Vacia, typename Cambia>
    void PonAlDia(Vacia vacia, Cambia cambia) {
        const auto elementos = elementos_.lock();
        if (!elementos) {
            vacia(std::size_t{0});
            return;
        }
        std::uint64_t leido = leido_;
        const auto cambios = elementos->Diario().Lee(leido);
        if (cambios && cambios->empty()) return;
        leido_ = 0;
        if (cambios) {
            for (const DiarioDeCambios::Cambio& cambio : UltimoDeCadaUno(*cambios))
                cambia(cambio);
        } else {
            vacia(static_cast<std::size_t>(elementos->Count()));
            for (const auto& e : *elementos)
                cambia(DiarioDeCambios::Cambio{e.get(), e->Orden(), false});
        }
        leido_ = leido;
    }

  private:
    static std::vector<DiarioDeCambios::Cambio> UltimoDeCadaUno(
        std::span<const DiarioDeCambios::Cambio> cambios);

    std::weak_ptr<Elementos> elementos_;
    std::uint64_t leido_ = 0;  // the journal's number up to which it is known
};

}  // namespace zel
