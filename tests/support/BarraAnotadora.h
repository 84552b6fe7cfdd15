#pragma once

#include <string>

#include "platform/BarraDesplazamiento.h"

namespace zel::pruebas {

// A scroll bar that only remembers what it is told.
class BarraAnotadora : public BarraDesplazamiento {
  public:
    Estado Actual() const override { return estado; }
    void Pon(const Estado& valor) override { estado = valor; }
    void Enabled(bool valor) override { activa = valor; }

    // "0..200 paso 100 en 30"
    std::string Texto() const {
        return std::to_string(estado.Min) + ".." + std::to_string(estado.Max) + " paso " +
               std::to_string(estado.LargeChange) + " en " + std::to_string(estado.Value);
    }

    Estado estado;
    bool activa = true;
};

}  // namespace zel::pruebas
