#include "platform/Archivos.h"

#include <cerrno>
#include <cstdio>

#include "platform/Fallo.h"

namespace zel {

namespace {

// The code point that begins at texto[i]; i moves behind it. A byte that begins none is taken as itself.
char32_t SiguienteCaracter(std::string_view texto, std::size_t& i) {
    const auto primero = static_cast<unsigned char>(texto[i++]);
    int siguientes = primero >= 0xF0 ? 3 : primero >= 0xE0 ? 2 : primero >= 0xC0 ? 1 : 0;
    char32_t punto = siguientes == 0 ? primero : primero & (0x3FU >> siguientes);
    for (; siguientes > 0 && i < texto.size(); --siguientes) {
        punto = (punto << 6U) | (static_cast<unsigned char>(texto[i++]) & 0x3FU);
    }
    return punto;
}

}  // namespace

RutaPartida ParteRuta(std::string_view ruta) {
    const std::size_t separador = ruta.find_last_of("\\/");
    const std::size_t nombre = separador == std::string_view::npos ? 0 : separador + 1;
    return {std::string(ruta.substr(0, nombre)), std::string(ruta.substr(nombre))};
}

std::string Latin1(std::string_view utf8) {
    std::string latin1;
    latin1.reserve(utf8.size());
    for (std::size_t i = 0; i < utf8.size();) {
        const char32_t punto = SiguienteCaracter(utf8, i);
        latin1.push_back(punto <= 0xFF ? static_cast<char>(punto) : '?');
    }
    return latin1;
}

void EscribeRegistro(const std::string& nombre, std::string_view texto) {
    const std::string entero = '"' + Latin1(texto) + "\"\r\n";
    std::FILE* archivo = std::fopen(nombre.c_str(), "wb");
    if (!archivo) throw Fallo(NumeroDeErrno(errno));
    const bool escrito = std::fwrite(entero.data(), 1, entero.size(), archivo) == entero.size();
    if (std::fclose(archivo) != 0 || !escrito) throw Fallo(NumeroDeErrno(errno));
}

}  // namespace zel
