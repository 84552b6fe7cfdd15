#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <utility>

#include "drawing/IndiceDeElementos.h"
#include "model/Elementos.h"

namespace zel {

// The changed mark: a flag that tells when it turns, whoever has turned it.
class MarcaDeCambios {
  public:
    operator bool() const noexcept { return valor_; }
    MarcaDeCambios& operator=(bool valor) {
        if (std::exchange(valor_, valor) != valor && alCambiar_) alCambiar_();
        return *this;
    }
    void AlCambiar(std::function<void()> accion) { alCambiar_ = std::move(accion); }

  private:
    bool valor_ = false;
    std::function<void()> alCambiar_;
};

// The schematic that is shown and edited.
struct Documento {
    std::shared_ptr<Elementos> colElementos = std::make_shared<Elementos>();
    // Where the elements are; whoever asks it ties it to them first.
    mutable IndiceDeElementos indice;
    bool bMostrarLineasOcultas = true;
    bool bMostrarEtiquetas = true;
    MarcaDeCambios bHabidoCambios;  // since it was last opened or saved

    // The highest number on the screen of each kind; reservoirs share the nodes'.
    std::array<std::int16_t, NUMERO_DE_TIPOS> UltimoKeyPant{};
    std::int32_t UltimoCodSIG = 0;  // the highest code

    // The counter of a kind. Fails with 9 for a kind outside 0 to 15.
    std::int16_t& KeyPantDe(TipoElemento tipo) {
        if (!TipoConocido(tipo)) throw Fallo(9);
        return UltimoKeyPant[static_cast<std::size_t>(tipo == ctEmbalse ? ctNudo : tipo)];
    }
};

}  // namespace zel
