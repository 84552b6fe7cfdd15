#pragma once

#include <memory>
#include <span>

#include "model/Propiedades.h"

namespace zel {

class Puntos;

// One vertex of a trace, in world units. A copy belongs to no trace.
class Punto {
  public:
    Punto();
    Punto(float x, float y, float valor = 0) noexcept : x_(x), y_(y), valor_(valor) {}
    Punto(const Punto& otro) noexcept : Punto(otro.x_, otro.y_, otro.valor_) {}
    Punto& operator=(const Punto& otro) noexcept {
        Valor(otro.valor_);
        XPos(otro.x_);
        YPos(otro.y_);
        return *this;
    }
    ~Punto() = default;

    // Copies the coordinates of Origen and, unless SoloCoordenadas, first its Valor. Raises when there is no
    // Origen.
    void CopiaPropiedades(const std::shared_ptr<Punto>& Origen, bool SoloCoordenadas = false);

    // A free number carried with the vertex; files do not store it.
    void Valor(float valor) noexcept { valor_ = valor; }
    float Valor() const noexcept { return valor_; }
    void YPos(float valor) noexcept { Mueve(y_, valor); }
    float YPos() const noexcept { return y_; }
    void XPos(float valor) noexcept { Mueve(x_, valor); }
    float XPos() const noexcept { return x_; }

    // The table for access by name: Valor, YPos, XPos.
    static std::span<const Propiedad<Punto>> Propiedades() noexcept;

  private:
    friend class Puntos;
    void Mueve(float& coordenada, float valor) noexcept {
        const bool distinta = coordenada != valor;
        coordenada = valor;
        if (trazado_ && distinta) AvisaAlTrazado();
    }
    void AvisaAlTrazado() const noexcept;

    float x_ = 0;
    float y_ = 0;
    float valor_ = 0;
    Puntos* trazado_ = nullptr;  // the trace that holds it
};

}  // namespace zel
