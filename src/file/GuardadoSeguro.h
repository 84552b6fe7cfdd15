#pragma once

#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "file/CopiaDeImagen.h"
#include "file/SeccionImagen.h"
#include "model/Elementos.h"

namespace zel {

// What a file is to say of the background picture: nothing, where it is, or what an earlier file said of one
// that cannot be used.
struct ImagenQueGuardar {
    ImagenQueGuardar(std::nullopt_t = std::nullopt) {}
    ImagenQueGuardar(ImagenGuardada deAhora) : imagen(std::move(deAhora)) {}
    // As it was read.
    ImagenQueGuardar(const SeccionImagen& leida)
        : imagen(leida.imagen),
          textos(leida.imagen ? std::vector<std::pair<std::string, std::string>>{} : leida.textos) {}

    std::optional<ImagenGuardada> imagen;
    std::vector<std::pair<std::string, std::string>> textos;
};

// Why the schematic, once saved, could not be opened again or would not be the same (Spanish, one or more
// sentences that name the elements); empty when it could.
std::string MotivoParaNoGuardar(const Elementos& elementos);

// Saves a schematic in one step: at any moment the file holds all of the old schematic or all of the new one.
// A picture from another folder is copied beside it, if it passes `esImagen`. Raises when it cannot be
// written or would not open again, and then the old file is as it was and no other file is left. Returns what
// has to be told of the picture; empty when nothing.
std::string GuardaConSeguridad(const std::string& ruta, const std::shared_ptr<Elementos>& elementos,
                               const ImagenQueGuardar& imagen, bool bMostrarLineasOcultas,
                               const PruebaDeImagen& esImagen = {});

}  // namespace zel
