#pragma once

#include <memory>
#include <span>

#include "model/Propiedades.h"

namespace zel {

// One vertex of a trace, in world units.
class Punto {
  public:
    Punto();
    Punto(float x, float y, float valor = 0) noexcept : x_(x), y_(y), valor_(valor) {}

    // Copies the coordinates of Origen and, unless SoloCoordenadas, first its Valor. Raises when there is no
    // Origen.
    void CopiaPropiedades(const std::shared_ptr<Punto>& Origen, bool SoloCoordenadas = false);

    // A free number carried with the vertex; files do not store it.
    void Valor(float valor) noexcept { valor_ = valor; }
    float Valor() const noexcept { return valor_; }
    void YPos(float valor) noexcept { y_ = valor; }
    float YPos() const noexcept { return y_; }
    void XPos(float valor) noexcept { x_ = valor; }
    float XPos() const noexcept { return x_; }

    // The table for access by name: Valor, YPos, XPos.
    static std::span<const Propiedad<Punto>> Propiedades() noexcept;

  private:
    float x_ = 0;
    float y_ = 0;
    float valor_ = 0;
};

}  // namespace zel
