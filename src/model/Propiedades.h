#pragma once

#include <algorithm>
#include <string>
#include <string_view>

#include "model/modErrorHandling.h"
#include "platform/Texto.h"
#include "platform/Variante.h"

namespace zel {

// Anything whose properties can be read by name: an element, a row of a host's database...
class FuentePropiedades {
  public:
    FuentePropiedades() = default;
    FuentePropiedades(const FuentePropiedades&) = delete;
    FuentePropiedades& operator=(const FuentePropiedades&) = delete;
    virtual ~FuentePropiedades() = default;

    // The value of the property; fails (438) when there is none of that name.
    virtual Variante Lee(std::string_view nombre) const = 0;
};

// One row of a class's property table: how a property is read and written by its name, the texts with which a
// failure of either is raised, and what the property is, for whoever looks at the class by its names.
template <typename T>
struct Propiedad {
    std::string_view nombre;
    Variante (*lee)(const T&);
    void (*escribe)(T&, const Variante&);
    std::string_view textoEscritura;
    std::string_view textoLectura;
    std::string_view ayuda;
};

// A row for a property whose read access is T::NOMBRE() and whose write access takes what
// Variante::CONVERSION() gives.
// clang-format off
#define ZEL_PROPIEDAD(T, NOMBRE, CONVERSION, TEXTO_ESCRITURA, TEXTO_LECTURA, AYUDA)           \
    {#NOMBRE,                                                                                 \
     [](const T& objeto) -> Variante { return objeto.NOMBRE(); },                             \
     [](T& objeto, const Variante& valor) { objeto.NOMBRE(valor.CONVERSION()); },             \
     TEXTO_ESCRITURA, TEXTO_LECTURA, AYUDA}
// clang-format on

template <typename Tabla>
const auto& BuscaPropiedad(const Tabla& tabla, std::string_view nombre) {
    const std::string buscado = EnMinusculas(nombre);
    const auto fila = std::find_if(std::begin(tabla), std::end(tabla),
                                   [&](const auto& f) { return EnMinusculas(f.nombre) == buscado; });
    if (fila == std::end(tabla)) {
        throw Fallo(438, Fallo(438).Description() + ": " + std::string(nombre));
    }
    return *fila;
}

template <typename T>
Variante LeeFila(const Propiedad<T>& fila, const T& objeto) {
    try {
        return fila.lee(objeto);
    } catch (...) {
        LanzaError(TEXTO_LIBRE, fila.textoLectura);
    }
}

template <typename T>
void EscribeFila(const Propiedad<T>& fila, T& objeto, const Variante& valor) {
    try {
        fila.escribe(objeto, valor);
    } catch (...) {
        LanzaError(TEXTO_LIBRE, fila.textoEscritura);
    }
}

// A property by its name, without regard to case. Both fail (438) when the class has no property of that
// name, and raise with the property's own text when the access or a conversion fails.
template <typename T>
Variante LeePropiedad(const T& objeto, std::string_view nombre) {
    return LeeFila(BuscaPropiedad(T::Propiedades(), nombre), objeto);
}

template <typename T>
void EscribePropiedad(T& objeto, std::string_view nombre, const Variante& valor) {
    EscribeFila(BuscaPropiedad(T::Propiedades(), nombre), objeto, valor);
}

}  // namespace zel
