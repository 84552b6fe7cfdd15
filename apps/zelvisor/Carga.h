#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "file/GuardadoSeguro.h"
#include "model/Elementos.h"

namespace zel {

// What came of reading a schematic file.
struct EsquemaLeido {
    std::shared_ptr<Elementos> elementos;  // empty when the file could not be read
    std::string motivo;                    // why not, in words for the user
    std::string problemas;                 // what was missing or repeated, a line each
    bool conRegistro = false;              // they are in the load log too
    std::optional<ImagenGuardada> imagen;  // the sections beside the elements
    bool bMostrarLineasOcultas = true;
};

EsquemaLeido LeeEsquema(const std::string& ruta, std::function<void()> alCederTurno = {});

}  // namespace zel
