#include "platform/Archivos.h"

#include <cerrno>
#include <cstdio>
#include <filesystem>

#include "platform/Fallo.h"
#include "platform/Texto.h"

namespace zel {

RutaPartida ParteRuta(std::string_view ruta) {
    const std::size_t separador = ruta.find_last_of("\\/");
    const std::size_t nombre = separador == std::string_view::npos ? 0 : separador + 1;
    return {std::string(ruta.substr(0, nombre)), std::string(ruta.substr(nombre))};
}

std::string CarpetaDe(const std::string& archivo) {
    const std::size_t separador = archivo.rfind('/');
    return separador == std::string::npos ? std::string() : archivo.substr(0, separador + 1);
}

std::string SinEnlaces(const std::string& nombre) {
    namespace fs = std::filesystem;
    constexpr int MAXIMO_DE_ENLACES = 40;
    fs::path ruta = nombre;
    std::error_code error;
    for (int i = 0; fs::is_symlink(ruta, error); ++i) {
        if (i == MAXIMO_DE_ENLACES) throw Fallo(75);
        const fs::path siguiente = fs::read_symlink(ruta, error);
        if (error) throw Fallo(75);
        ruta = siguiente.is_absolute() ? siguiente : ruta.parent_path() / siguiente;
    }
    return ruta.string();
}

void EscribeArchivo(const std::string& nombre, std::string_view bytes) {
    std::FILE* archivo = std::fopen(nombre.c_str(), "wb");
    if (!archivo) throw Fallo(NumeroDeErrno(errno));
    const bool escrito = std::fwrite(bytes.data(), 1, bytes.size(), archivo) == bytes.size();
    const int error = errno;
    const bool cerrado = std::fclose(archivo) == 0;
    if (!escrito || !cerrado) throw Fallo(NumeroDeErrno(escrito ? errno : error));
}

void EscribeRegistro(const std::string& nombre, std::string_view texto) {
    EscribeArchivo(nombre, '"' + Latin1(texto) + "\"\r\n");
}

}  // namespace zel
