#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <set>
#include <unordered_map>
#include <utility>
#include <vector>

#include "model/LectorDeCambios.h"

namespace zel {

// Which linear elements begin or end at an element. It follows the collection's journal, so that a question
// costs its answer and what has changed since the last one.
class Conexiones {
  public:
    // The collection that is asked from now on; it is not kept alive.
    void Ata(const std::shared_ptr<Elementos>& elementos) noexcept { lector_.Ata(elementos); }

    // The linear elements whose ElemIni or ElemFin is that code, in collection order, except the one that has
    // the code itself.
    std::vector<std::shared_ptr<Elemento>> De(std::int32_t codigo) const;

  private:
    struct Union {
        const Elemento* elemento;
        std::array<std::int32_t, 2> codigos;
    };
    void PonAlDia() const;
    void Quita(std::uint64_t orden) const;

    mutable LectorDeCambios lector_;
    mutable std::unordered_map<std::uint64_t, Union> uniones_;  // by the linear element's place
    mutable std::set<std::pair<std::int32_t, std::uint64_t>> lugaresPorCodigo_;  // code of an end, place
};

}  // namespace zel
