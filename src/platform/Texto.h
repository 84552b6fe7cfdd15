#pragma once

#include <string>
#include <string_view>

namespace zel {

// Texts are UTF-8.

// The character that begins at texto[i]; i moves behind it. A byte that begins none is taken as itself.
char32_t SiguienteCaracter(std::string_view texto, std::size_t& i) noexcept;

// Calls `accion` with each line of the text, without its line break.
template <typename Accion>
void PorLineas(std::string_view texto, Accion accion) {
    for (;;) {
        const std::size_t salto = texto.find('\n');
        std::string_view linea = texto.substr(0, salto);
        if (!linea.empty() && linea.back() == '\r') linea.remove_suffix(1);
        accion(linea);
        if (salto == std::string_view::npos) return;
        texto.remove_prefix(salto + 1);
    }
}

// In small letters, ASCII and the Latin letters with accents, whatever the locale: the form in which names
// and keys are compared.
std::string EnMinusculas(std::string_view texto);

// The character in UTF-8, at the end of the text.
void AgregaCaracter(std::string& texto, char32_t caracter);

// On one line and of some 60 characters at most, for a message that names something.
std::string EnBreve(std::string_view texto);

// In ISO-8859-1; a character outside it becomes "?".
std::string Latin1(std::string_view texto);

}  // namespace zel
