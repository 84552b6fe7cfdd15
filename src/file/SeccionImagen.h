#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace zel {

// The background picture as a file keeps it: its path, its place and width in world units, the proportion of
// its sides, and whether it is hidden.
struct ImagenGuardada {
    std::string Archivo;
    double X0 = 0, Y0 = 0;
    double LX = 0, LY = 0;
    bool Oculta = false;
    std::string Copia{};  // a copy of it, for when it is gone; empty when there is none
};

// The picture's section of a file: its children with their texts, in their order, and what they say.
struct SeccionImagen {
    std::vector<std::pair<std::string, std::string>> textos;
    std::optional<ImagenGuardada> imagen;  // with the picture's whole path; nothing when it cannot be used
    std::string motivo;                    // why it cannot (Spanish, a sentence without its point)
};

// What the children of a section say of a picture of the schematic in that folder (with its separator). The
// texts by the names of the format; numbers with either decimal sign, their leading part counting. A picture
// that is not in the folder, nor below it, is not used: a schematic from elsewhere has no say over other
// files.
struct SeccionLeida;
SeccionImagen InterpretaImagen(const SeccionLeida& leida, const std::string& carpeta);

}  // namespace zel
