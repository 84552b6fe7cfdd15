#pragma once

#include <cstdint>
#include <string_view>

namespace zel {

// The kinds of elements. The numbers are the public ones: 0 to 3 are point elements; 4 to 15 are linear;
// only 12 has a second trace; 13 to 15 start at themselves. Any other 32-bit value can be stored.
enum TipoElemento : std::int32_t {
    ctFlecha = -1,  // no kind
    ctNudo = 0,
    ctEmbalse = 1,
    ctDemanda = 2,
    ctAcuifero = 3,
    ctConduccion1 = 4,
    ctConduccion2 = 5,
    ctConduccion3 = 6,
    ctConduccion4 = 7,
    ctConduccion5 = 8,
    ctRecarga = 9,
    ctBombeo = 10,
    ctToma = 11,
    ctCentralHidroelectrica = 12,
    ctAportacion = 13,
    ctRetorno = 14,
    ctSubcuenca = 15
};

constexpr std::int32_t NUMERO_DE_TIPOS = 16;

constexpr bool TipoConocido(TipoElemento tipo) noexcept {
    return tipo >= ctNudo && tipo <= ctSubcuenca;
}
// The model's rule, for unknown kinds above 15 too.
constexpr bool EsLineal(TipoElemento tipo) noexcept {
    return tipo >= ctConduccion1;
}
constexpr bool EmpiezaEnSiMismo(TipoElemento tipo) noexcept {
    return tipo >= ctAportacion && tipo <= ctSubcuenca;
}
// A symbol of its own at XPos, YPos: the point kinds and those whose trace meets a symbol.
constexpr bool TieneSimbolo(TipoElemento tipo) noexcept {
    return TipoConocido(tipo) && (tipo <= ctAcuifero || tipo >= ctCentralHidroelectrica);
}

// What may be sized and coloured as a symbol: by the number alone, so that a kind that nobody knows has
// commands too.
constexpr bool SeTrataComoSimbolo(TipoElemento tipo) noexcept {
    return tipo < ctConduccion1 || tipo >= ctCentralHidroelectrica;
}

// The kind's name as the user reads it; empty for unknown kinds.
std::string_view NombreDeTipo(TipoElemento tipo) noexcept;

}  // namespace zel
