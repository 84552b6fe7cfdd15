#pragma once

#include <string>
#include <string_view>

namespace zel {

// Texts are UTF-8.

// The character that begins at texto[i]; i moves behind it. A byte that begins none is taken as itself.
char32_t SiguienteCaracter(std::string_view texto, std::size_t& i) noexcept;

// In small letters, ASCII and the Latin letters with accents, whatever the locale: the form in which names
// and keys are compared.
std::string EnMinusculas(std::string_view texto);

// The character in UTF-8, at the end of the text.
void AgregaCaracter(std::string& texto, char32_t caracter);

// In ISO-8859-1; a character outside it becomes "?".
std::string Latin1(std::string_view texto);

}  // namespace zel
