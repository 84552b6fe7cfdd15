#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <span>

#include "model/Punto.h"
#include "platform/Coleccion.h"

namespace zel {

class Elemento;

// That an element of a collection has a trace: by it the element hears of the trace's changes. A trace may be
// shared by many elements, so each brings its own link of the trace's chain of uses.
class UsoDeTrazado {
  public:
    UsoDeTrazado() = default;
    UsoDeTrazado(const UsoDeTrazado&) = delete;
    UsoDeTrazado& operator=(const UsoDeTrazado&) = delete;
    ~UsoDeTrazado() { Termina(); }

    // Without a trace it does nothing.
    void Empieza(Puntos* trazado, const Elemento& elemento) noexcept;
    void Termina() noexcept;

  private:
    friend class Puntos;
    const Elemento* elemento_ = nullptr;
    // What points to this one: the trace, or the use before; null when unused.
    UsoDeTrazado** enlace_ = nullptr;
    UsoDeTrazado* siguiente_ = nullptr;
};

// A trace: its vertices in drawing order, from the start element towards the end element, positions from 1.
// A vertex may have a key, unique within the trace without regard to case.
class Puntos : public Objeto {
  public:
    Puntos();
    Puntos(const Puntos&) = delete;
    Puntos& operator=(const Puntos&) = delete;
    ~Puntos() override;

    // Working attributes of the trace while it is edited; the model gives them no meaning and files do not
    // store them. BorraMarcas makes them all false or 0.
    void Flecha(bool valor) noexcept { Marca(flecha_, valor); }
    bool Flecha() const noexcept { return flecha_; }
    void Valor(float valor) noexcept { Marca(valor_, valor); }
    float Valor() const noexcept { return valor_; }
    void Valor2(float valor) noexcept { Marca(valor2_, valor); }
    float Valor2() const noexcept { return valor2_; }
    void Valor3(float valor) noexcept { Marca(valor3_, valor); }
    float Valor3() const noexcept { return valor3_; }
    void BorraMarcas() noexcept;

    // Makes room for that many points at once.
    void Reserva(std::int32_t cuantos) { puntos_.Reserva(cuantos); }

    // Appends a copy of aPunto, never aPunto itself. An empty key means none; any other is converted to its
    // text. Raises when there is no aPunto or the key is taken, and then appends nothing.
    void AddObjetoPunto(const std::shared_ptr<Punto>& aPunto, bool SoloCoordenadas = false,
                        const std::optional<Variante>& ClaveColeccion = std::nullopt);

    // Appends a new point and returns it. An empty key means none; any other has to be a text.
    std::shared_ptr<Punto> Add(float aXPos, float aYPos, float aValor = 0,
                               const std::optional<Variante>& aClaveColeccion = std::nullopt);

    // The point at a position or under a key. Raises when there is none.
    std::shared_ptr<Punto> Item(const Variante& vntIndexKey) const;
    std::int32_t Count() const noexcept { return puntos_.Count(); }
    // Removes the point at a position or under a key; later points move up. Raises when there is none.
    void Remove(const Variante& vntIndexKey);

    auto begin() const noexcept { return puntos_.begin(); }
    auto end() const noexcept { return puntos_.end(); }

    // The table for access by name: Flecha, Valor, Valor2, Valor3.
    static std::span<const Propiedad<Puntos>> Propiedades() noexcept;

  private:
    friend class Punto;
    friend class UsoDeTrazado;
    template <typename T>
    void Marca(T& campo, T valor) noexcept {
        const bool distinta = campo != valor;
        campo = valor;
        if (distinta) HaCambiado();
    }
    void HaCambiado() const noexcept;

    UsoDeTrazado* usos_ = nullptr;
    Coleccion<std::shared_ptr<Punto>> puntos_;
    bool flecha_ = false;
    float valor_ = 0;
    float valor2_ = 0;
    float valor3_ = 0;
};

}  // namespace zel
