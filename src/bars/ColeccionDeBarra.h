#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "platform/Coleccion.h"

namespace zel {

// What the collections of a bar share: ordered from 1, found by position or by key without regard to case.
// Failures are those of Coleccion.
template <typename T>
class ColeccionDeBarra : public Objeto {
  public:
    std::shared_ptr<T> Item(const Variante& vntIndexKey) const { return piezas_.Item(vntIndexKey); }
    // The one under the key, or nothing.
    std::shared_ptr<T> Busca(std::string_view clave) const {
        const auto* encontrada = piezas_.Busca(clave);
        return encontrada ? *encontrada : nullptr;
    }
    std::int32_t Count() const noexcept { return piezas_.Count(); }
    void Remove(const Variante& vntIndexKey) { piezas_.Remove(vntIndexKey); }

    auto begin() const noexcept { return piezas_.begin(); }
    auto end() const noexcept { return piezas_.end(); }

  protected:
    // An empty key means none.
    void Guarda(const std::shared_ptr<T>& pieza, const std::string& clave) {
        if (clave.empty()) {
            piezas_.Add(pieza);
        } else {
            piezas_.Add(pieza, Variante(clave));
        }
    }

  private:
    Coleccion<std::shared_ptr<T>> piezas_;
};

}  // namespace zel
