#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace zel {

class Elemento;

// The changes of place, shape, label, connections or temporary marks of a collection's elements, whoever
// made them, for those who keep something worked out from all of the elements, an index for instance, and
// want to follow at the cost of what has changed; they read it with a LectorDeCambios. Changes are numbered;
// a reader keeps the number up to which it has read. Nothing is kept as long as nobody reads, nor more than
// there are elements: from then on, beginning anew is cheaper.
class DiarioDeCambios {
  public:
    struct Cambio {
        const Elemento* elemento;  // of use as a name only, unless it is known to be still in the collection
        std::uint64_t Orden;       // its place in the collection, see Elemento
        bool Quitado;              // otherwise it is new or has changed
    };

    // What has changed from that number on, which becomes the present one; valid until the next change.
    // Nothing when the changes are no longer known: the reader has to begin anew from the collection.
    std::optional<std::span<const Cambio>> Lee(std::uint64_t& numero) const noexcept;

    void Anota(const Elemento& elemento, bool quitado = false) noexcept;
    // The collection has that many elements now.
    void Limita(std::int32_t elementos) noexcept;

  private:
    std::uint64_t Numero() const noexcept { return primero_ + cambios_.size(); }
    void Pierde() noexcept;

    std::vector<Cambio> cambios_;
    std::uint64_t primero_ = 1;  // the number of the first one kept; none has 0
    std::size_t limite_ = 0;
    mutable std::uint64_t leido_ = 0;  // the highest number read up to
    mutable bool conLectores_ = false;
};

}  // namespace zel
