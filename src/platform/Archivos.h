#pragma once

#include <string>
#include <string_view>

namespace zel {

// A path split behind its last "\" or "/": the folder with its trailing separator (empty when there is
// none) and the file name.
struct RutaPartida {
    std::string carpeta;
    std::string nombre;
};
RutaPartida ParteRuta(std::string_view ruta);

// The folder of a file of this system, with its separator; empty for a bare name. Here "\\" is a character of
// a name like any other.
std::string CarpetaDe(const std::string& archivo);

// The file that the name stands for at the end of all links, also of one that leads to no file yet. Fails
// with 75 for a link that leads to itself.
std::string SinEnlaces(const std::string& nombre);

// Writes those bytes to a file, replacing what it held. Fails with the number of the system's reason (61 disk
// full, 70 permission, 75 ...).
void EscribeArchivo(const std::string& nombre, std::string_view bytes);

// Writes a diagnostic log in the current directory, replacing an earlier one: the text in ISO-8859-1
// between double quotes, then a line break. Inner quotes are not doubled.
// Fails with the number of the system's reason (70 permission, 61 disk full, 75 ...).
void EscribeRegistro(const std::string& nombre, std::string_view texto);

}  // namespace zel
