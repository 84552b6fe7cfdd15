#pragma once

#include <cstdint>

#include "model/TipoElemento.h"
#include "platform/Superficie.h"

namespace zel {

constexpr std::int32_t RGB(std::int32_t rojo, std::int32_t verde, std::int32_t azul) noexcept {
    return rojo + 256 * verde + 65536 * azul;
}

constexpr std::int32_t COLOR_DEL_TIPO = -1;
constexpr std::int32_t COLOR_NEGRO = 0;
constexpr std::int32_t COLOR_AZUL = RGB(0, 0, 255);

// The default colour of a kind's symbol and of its trace; -1 for the kinds that have none.
std::int32_t ColorDeIcono(TipoElemento tipo) noexcept;
std::int32_t ColorDeLinea(TipoElemento tipo) noexcept;

// Normal drawing in that colour; a negative one leaves the colours as they are.
void PreparaColor(Superficie& panel, std::int32_t color) noexcept;
void PreparaNegro(Superficie& panel) noexcept;

}  // namespace zel
