#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "model/LectorDeCambios.h"
#include "session/Extension.h"

namespace zel {

// The extension of a collection, followed through its journal: a tree of boxes over the elements in their
// order, in which a change costs the way from its leaf to the root.
class ExtensionAlDia {
  public:
    // The same as ExtensionDe. Another collection, margin or TamanyoUnidad than the last time begins anew.
    std::optional<Marco> De(const std::shared_ptr<Elementos>& elementos, float margen);

  private:
    struct Nodo {
        Marco marco;                        // of what the elements below add
        const Elemento* primero = nullptr;  // that takes part; none
    };
    struct Hoja {
        std::uint64_t orden;
        bool vacante;  // its element is gone
    };

    void Vacia(std::size_t elementos);
    void Atiende(const DiarioDeCambios::Cambio& cambio);
    std::size_t HojaNueva(std::uint64_t orden);
    void Recoloca();
    void Reune(std::size_t nodo) noexcept;

    LectorDeCambios lector_;
    float margen_ = 0;
    float unidad_ = 0;
    std::vector<Hoja> hojas_;  // those in use, by the elements' order
    std::vector<Nodo> nodos_;  // 1 is the root, 2 n and 2 n + 1 are below n; the second half are the leaves
};

}  // namespace zel
