#pragma once

#include "control/componentes/Valores.h"
#include "model/Propiedades.h"

namespace zel {

// What fails in an object of the host's, as a failure of the system.
template <typename Accion>
auto EnLoAjeno(Accion accion) {
    try {
        return accion();
    } catch (const FalloDeComponente& fallo) {
        throw Fallo(fallo.Numero(), fallo.what());
    }
}

// A host's own object whose properties are read by name.
class FuenteAjena : public FuentePropiedades {
  public:
    explicit FuenteAjena(const ObjetoPorNombre& ajeno) : ajeno_(ajeno) {}

    Variante Lee(std::string_view nombre) const override {
        return EnLoAjeno([&] {
            return AVariante(
                ajeno_.Lee(QString::fromUtf8(nombre.data(), static_cast<qsizetype>(nombre.size()))));
        });
    }

  private:
    const ObjetoPorNombre& ajeno_;
};

}  // namespace zel
