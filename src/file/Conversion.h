#pragma once

#include <cstdint>
#include <string_view>

#include "model/TipoElemento.h"

namespace zel {

// Texts of a schematic file to values.

// The leading number of the text, rounded half to even; fails (6) outside 16 bits.
std::int16_t LeeEntero(std::string_view texto);
// The text as a 32-bit integer: all of it, blanks aside, has to be a number (a fraction is rounded); fails
// with 13 or 6 otherwise.
std::int32_t LeeEntero32(std::string_view texto);
// The leading number of the text, "," and "." both being the decimal sign; fails (6) beyond 32-bit floats.
float LeeReal(std::string_view texto);
// 0 is false and 1 true; anything else raises.
bool I2B(std::int16_t n);
// 1 or 0.
std::int16_t B2I(bool valor);
// The kind of a file code, or ctFlecha when no kind has it.
TipoElemento TipoDeCodigo(std::int16_t codigo) noexcept;

}  // namespace zel
