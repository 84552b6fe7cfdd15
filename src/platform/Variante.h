#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <variant>

#include "platform/Fallo.h"

namespace zel {

// What a property can refer to.
class Objeto {
  public:
    Objeto() = default;
    Objeto(const Objeto&) = default;
    Objeto(Objeto&&) = default;
    Objeto& operator=(const Objeto&) = default;
    Objeto& operator=(Objeto&&) = default;
    virtual ~Objeto() = default;
};

// The value in which a property travels when it is read by its name, and in which an argument arrives that
// may be of any kind. It converts itself to the type that the receiver wants:
//   - a text gives a number when all of it, blanks aside, is one (decimal sign "."); otherwise failure 13;
//   - a number is rounded half to even to an integer; one that does not fit is failure 6;
//   - true counts as -1; any number but 0, "true" and "verdadero" are true; 0, "false" and "falso" false;
//   - an empty value is 0, false, an empty text or no object;
//   - an object converts to nothing but an object of the wanted class: otherwise failure 13.
class Variante {
  public:
    Variante() = default;
    Variante(bool valor) : valor_(valor) {}
    Variante(std::int16_t valor) : valor_(std::int32_t{valor}) {}
    Variante(std::int32_t valor) : valor_(valor) {}
    Variante(std::uint32_t valor) : valor_(double(valor)) {}
    Variante(std::int64_t valor) : valor_(double(valor)) {}
    Variante(std::uint64_t valor) : valor_(double(valor)) {}
    Variante(float valor) : valor_(valor) {}
    Variante(double valor) : valor_(valor) {}
    Variante(std::string valor) : valor_(std::move(valor)) {}
    Variante(const char* valor) : valor_(std::string(valor)) {}
    template <typename T>
    Variante(std::shared_ptr<T> valor) : valor_(std::shared_ptr<Objeto>(std::move(valor))) {}

    bool EsTexto() const noexcept { return std::holds_alternative<std::string>(valor_); }

    // Fails with 13 or 6, as told above.
    double Numero() const;
    std::int16_t Entero16() const;
    std::int32_t Entero32() const;
    float Real32() const;
    bool Booleano() const;
    std::string Texto() const;

    template <typename T>
    std::shared_ptr<T> Referencia() const {
        if (std::holds_alternative<std::monostate>(valor_)) return nullptr;
        const auto* objeto = std::get_if<std::shared_ptr<Objeto>>(&valor_);
        if (!objeto) throw Fallo(13);
        if (!*objeto) return nullptr;
        auto referencia = std::dynamic_pointer_cast<T>(*objeto);
        if (!referencia) throw Fallo(13);
        return referencia;
    }

    // What `visitante` makes of the value as it is: of std::monostate, bool, std::int32_t, float, double,
    // std::string or std::shared_ptr<Objeto>.
    template <typename Visitante>
    auto Visita(const Visitante& visitante) const {
        return std::visit(visitante, valor_);
    }

  private:
    std::variant<std::monostate, bool, std::int32_t, float, double, std::string, std::shared_ptr<Objeto>>
        valor_;
};

}  // namespace zel
