#pragma once

#include <memory>
#include <optional>
#include <string>

#include "model/Elementos.h"
#include "platform/Coleccion.h"

namespace zel {

// The background picture as a file keeps it: its path, its place and width in world units, the proportion of
// its sides, and whether it is hidden.
struct ImagenGuardada {
    std::string Archivo;
    double X0 = 0, Y0 = 0;
    double LX = 0, LY = 0;
    bool Oculta = false;
};

// From the texts of the file's section, numbers with either decimal sign; nothing when it names no picture.
// What is missing or not understood is 0 and not hidden.
std::optional<ImagenGuardada> ImagenDeTextos(const Coleccion<std::string>& textos);

// Saves a schematic in one step: at any moment the file holds all of the old schematic or all of the new one.
// Raises when it cannot be written or an element cannot be saved, and then the old file is as it was and no
// other file is left.
void GuardaConSeguridad(const std::string& ruta, const std::shared_ptr<Elementos>& elementos,
                        const std::optional<ImagenGuardada>& imagen, bool bMostrarLineasOcultas);

}  // namespace zel
