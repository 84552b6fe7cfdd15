#pragma once

#include <QVariant>
#include <optional>

#include "control/componentes/ObjetoDe.h"
#include "platform/Variante.h"

// Between the values of the platform, in which a host speaks, and those of the system. A conversion that
// cannot be done is failure 13 or 6, as the system's own are.
namespace zel {

Variante AVariante(const QVariant& valor);
QVariant AQVariant(const Variante& valor);
// As the type wanted; an element may also be anything whose properties can be read by name, and is then a
// copy.
QVariant Convertido(const QVariant& valor, QMetaType tipo);
// As a host wants it: the system's objects by name.
QVariant HaciaFuera(const QVariant& valor);

// The arguments of a call by name, from 0 on. What is left out is empty.
class Argumentos {
  public:
    explicit Argumentos(const QVariantList& valores) : valores_(valores) {}

    qsizetype Count() const { return valores_.size(); }
    QVariant Valor(qsizetype i) const { return valores_.value(i); }
    Variante operator[](qsizetype i) const { return AVariante(Valor(i)); }
    std::optional<Variante> Opcional(qsizetype i) const {
        return Valor(i).isValid() ? std::optional(AVariante(Valor(i))) : std::nullopt;
    }
    template <typename T>
    std::shared_ptr<T> Objeto(qsizetype i) const {
        return ObjetoDeValor<T>(Valor(i));
    }

  private:
    const QVariantList& valores_;
};

}  // namespace zel
