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

// The file that the name stands for at the end of all links, also of one that leads to no file yet. Fails
// with 75 for a link that leads to itself.
std::string SinEnlaces(const std::string& nombre);

// Writes a diagnostic log in the current directory, replacing an earlier one: the text in ISO-8859-1
// between double quotes, then a line break. Inner quotes are not doubled.
// Fails with the number of the system's reason (70 permission, 61 disk full, 75 ...).
void EscribeRegistro(const std::string& nombre, std::string_view texto);

}  // namespace zel
