#pragma once

#include <functional>
#include <memory>
#include <string>

#include "model/Elementos.h"

namespace zel {

// What came of reading a schematic file.
struct EsquemaLeido {
    std::shared_ptr<Elementos> elementos;  // empty when the file could not be read
    std::string motivo;                    // why not, in words for the user
    std::string problemas;                 // what was missing or repeated, a line each
    bool conRegistro = false;              // they are in the load log too
};

EsquemaLeido LeeEsquema(const std::string& ruta, std::function<void()> alCederTurno = {});

}  // namespace zel
