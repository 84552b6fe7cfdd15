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
    // As it was read: of a picture that is not there any more the texts count.
    ImagenQueGuardar(const SeccionImagen& leida) : imagen(leida.imagen), textos(leida.textos) {}

    std::optional<ImagenGuardada> imagen;
    std::vector<std::pair<std::string, std::string>> textos;
};

// What has become of the picture.
struct ImagenYaGuardada {
    std::string ruta;   // where it is, beside the schematic; empty without a picture that can be had
    std::string aviso;  // what has to be told (Spanish, a sentence without its point); empty when nothing
};

// Why the schematic, once saved, could not be opened again or would not be the same (Spanish, one or more
// sentences that name the elements); empty when it could.
std::string MotivoParaNoGuardar(const Elementos& elementos);

// Saves a schematic in one step: at any moment the file holds all of the old schematic or all of the new one.
// A picture from another folder is copied beside it, if it passes `esImagen`. Raises when it cannot be
// written or would not open again, and then the old file is as it was and no other file is left.
ImagenYaGuardada GuardaConSeguridad(const std::string& ruta, const std::shared_ptr<Elementos>& elementos,
                                    const ImagenQueGuardar& imagen, bool bMostrarLineasOcultas,
                                    const PruebaDeImagen& esImagen = {});

}  // namespace zel
