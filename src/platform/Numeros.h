#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace zel {

// Numbers as text and back. The decimal sign is always ".", whatever locale the process runs under, and
// rounding is half to even.

// The shortest text that reads back to the same value: plain notation for 1e-5 <= |v| < 1e15, an exponent
// beyond; minus zero is "0".
std::string TextoDeNumero(float valor);
std::string TextoDeNumero(double valor);
std::string TextoDeNumero(std::int32_t valor);

// The same of the value rounded to seven significant digits, all that a 32-bit float holds: for values
// computed from one.
std::string TextoRedondeado(double valor);

// The value of the number with which the text begins: blanks skipped, a sign, digits with at most one ".",
// an exponent only when digits follow it; the rest is ignored. No number gives 0. There is no hexadecimal,
// no infinity and no nan. The float form fails with 6 beyond the 32-bit range.
double NumeroInicial(std::string_view texto);
float RealInicial(std::string_view texto);

// The value of a text that is a number from end to end, blanks around it aside; nothing otherwise.
std::optional<double> NumeroCompleto(std::string_view texto);

// What a user has typed as a number: the same, with "." or "," as its decimal sign, and infinite beyond the
// 64-bit range.
std::optional<double> NumeroDeUsuario(std::string_view texto);

double RedondeaPar(double valor) noexcept;

// Rounded; fail with 6 when the result does not fit.
std::int16_t Entero16(double valor);
std::int32_t Entero32(double valor);
float Real32(double valor);

// The 16-bit value of an integer; fails with 6.
std::int16_t Estrecha16(std::int64_t valor);

}  // namespace zel
