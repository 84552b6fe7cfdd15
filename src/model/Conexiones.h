#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "model/Elementos.h"

namespace zel {

// Which linear elements begin or end at an element.
class Conexiones {
  public:
    // The collection that is asked from now on; it is not kept alive.
    void Ata(const std::shared_ptr<Elementos>& elementos) noexcept { elementos_ = elementos; }

    // The linear elements whose ElemIni or ElemFin is that code, in collection order, except the one that has
    // the code itself.
    std::vector<std::shared_ptr<Elemento>> De(std::int32_t codigo) const;

  private:
    std::weak_ptr<Elementos> elementos_;
};

}  // namespace zel
