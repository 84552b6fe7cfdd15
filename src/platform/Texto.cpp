#include "platform/Texto.h"

namespace zel {

char32_t SiguienteCaracter(std::string_view texto, std::size_t& i) noexcept {
    const auto byte = [&](std::size_t donde) { return static_cast<unsigned char>(texto[donde]); };
    const char32_t primero = byte(i++);
    const std::size_t siguientes = primero >= 0xF0 ? 3 : primero >= 0xE0 ? 2 : primero >= 0xC0 ? 1 : 0;
    if (siguientes == 0 || texto.size() - i < siguientes) return primero;
    char32_t punto = primero & (0x3FU >> siguientes);
    for (std::size_t j = i; j < i + siguientes; ++j) {
        if ((byte(j) & 0xC0U) != 0x80U) return primero;
        punto = (punto << 6U) | (byte(j) & 0x3FU);
    }
    i += siguientes;
    return punto;
}

std::string EnMinusculas(std::string_view texto) {
    std::string minusculas(texto);
    for (std::size_t i = 0; i < minusculas.size(); ++i) {
        const auto c = static_cast<unsigned char>(minusculas[i]);
        if (c >= 'A' && c <= 'Z') {
            minusculas[i] = static_cast<char>(c + ('a' - 'A'));
        } else if (c == 0xC3 && i + 1 < minusculas.size()) {
            // The capitals U+00C0 to U+00DE stand 0x20 below their small letters; U+00D7 is the times sign.
            const auto segundo = static_cast<unsigned char>(minusculas[++i]);
            const bool mayuscula = segundo >= 0x80 && segundo <= 0x9E && segundo != 0x97;
            if (mayuscula) minusculas[i] = static_cast<char>(segundo + 0x20);
        }
    }
    return minusculas;
}

void AgregaCaracter(std::string& texto, char32_t caracter) {
    const auto resto = [&](unsigned bits) {
        texto.push_back(static_cast<char>(0x80U | ((caracter >> bits) & 0x3FU)));
    };
    if (caracter < 0x80) {
        texto.push_back(static_cast<char>(caracter));
    } else if (caracter < 0x800) {
        texto.push_back(static_cast<char>(0xC0U | (caracter >> 6U)));
        resto(0);
    } else if (caracter < 0x10000) {
        texto.push_back(static_cast<char>(0xE0U | (caracter >> 12U)));
        resto(6);
        resto(0);
    } else {
        texto.push_back(static_cast<char>(0xF0U | (caracter >> 18U)));
        resto(12);
        resto(6);
        resto(0);
    }
}

std::string EnBreve(std::string_view texto) {
    constexpr int MAXIMO = 60;
    std::string breve;
    std::size_t i = 0;
    for (int n = 0; i < texto.size() && n < MAXIMO; ++n) {
        const std::size_t desde = i;
        const bool esControl = SiguienteCaracter(texto, i) < U' ';
        breve += esControl ? std::string_view(" ") : texto.substr(desde, i - desde);
    }
    return i < texto.size() ? breve + "..." : breve;
}

std::string Latin1(std::string_view texto) {
    std::string latin1;
    latin1.reserve(texto.size());
    for (std::size_t i = 0; i < texto.size();) {
        if (static_cast<unsigned char>(texto[i]) < 0x80) {
            latin1.push_back(texto[i++]);
            continue;
        }
        const char32_t punto = SiguienteCaracter(texto, i);
        latin1.push_back(punto <= 0xFF ? static_cast<char>(punto) : '?');
    }
    return latin1;
}

}  // namespace zel
