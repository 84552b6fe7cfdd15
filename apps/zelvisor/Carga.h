#pragma once

#include <memory>
#include <optional>
#include <string>

#include "file/SeccionImagen.h"
#include "model/Elementos.h"

namespace zel {

// Why a schematic is not opened, and what to do about it; in words for the user.
struct Impedimento {
    std::string motivo;   // the end of a sentence, without its point
    std::string remedio;  // sentences of its own
};

// From what a load has said: the reader's own reason, and the description of what it has raised, if it has.
Impedimento PorQueNoSeAbre(const std::string& sinLeer,
                           const std::optional<std::string>& fallo = std::nullopt);

// What came of reading a schematic file.
struct EsquemaLeido {
    std::shared_ptr<Elementos> elementos;  // empty when the file could not be read
    Impedimento impedimento;               // why not
    std::string problemas;                 // what was missing or repeated, a line each
    bool conRegistro = false;              // they are in the load log too
    std::optional<SeccionImagen> imagen;   // the sections beside the elements
    bool bMostrarLineasOcultas = true;
};

// A sound schematic, or else also one of whose elements some have the same code, for who means to mend it.
enum class CodigosRepetidos { SeRechazan, SeAdmiten };

EsquemaLeido LeeEsquema(const std::string& ruta, CodigosRepetidos repetidos = CodigosRepetidos::SeRechazan);

}  // namespace zel
