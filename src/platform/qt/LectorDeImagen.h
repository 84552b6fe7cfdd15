#pragma once

#include <memory>
#include <string>

#include "platform/qt/ImagenQt.h"

namespace zel {

// A picture read from a file: BMP, JPEG, PNG and the like. Drawings that may name other files (SVG) are not
// read, nor what would unfold to more than MEGAPIXELES, which is found out before any of it is decoded.
struct ImagenLeida {
    static constexpr int MEGAPIXELES = 150;

    std::shared_ptr<const ImagenQt> imagen;  // empty when it cannot be read
    std::string motivo;                      // why not (Spanish, a sentence without its point)
};
ImagenLeida LeeImagen(const std::string& archivo);

// Whether it can be read.
inline bool EsImagen(const std::string& archivo) {
    return LeeImagen(archivo).imagen != nullptr;
}

}  // namespace zel
