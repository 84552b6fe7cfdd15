#pragma once

#include <memory>
#include <optional>
#include <string>

#include "file/SeccionImagen.h"
#include "model/Elementos.h"

namespace zel {

// What came of reading a schematic file.
struct EsquemaLeido {
    std::shared_ptr<Elementos> elementos;  // empty when the file could not be read
    std::string motivo;                    // why not, in words for the user
    std::string remedio;                   // what to do about it
    std::string problemas;                 // what was missing or repeated, a line each
    bool conRegistro = false;              // they are in the load log too
    std::optional<SeccionImagen> imagen;   // the sections beside the elements
    bool bMostrarLineasOcultas = true;
};

// A sound schematic, or else also one of whose elements some have the same code, for who means to mend it.
enum class CodigosRepetidos { SeRechazan, SeAdmiten };

EsquemaLeido LeeEsquema(const std::string& ruta, CodigosRepetidos repetidos = CodigosRepetidos::SeRechazan);

// What to do about a file that cannot be opened, and about one with codes that are repeated.
constexpr const char* COMPRUEBE_EL_ARCHIVO = "Compruebe la ruta y que el archivo es un esquema en XML.";
constexpr const char* CORRIJA_LOS_CODIGOS =
    "Corríjalo desde una terminal con \"zelvisor verificar ARCHIVO --corregir OTRO\" y abra el que resulta.";

}  // namespace zel
