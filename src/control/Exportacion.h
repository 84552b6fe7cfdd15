#pragma once

#include <QImage>
#include <QStringList>
#include <memory>

#include "model/Elementos.h"

namespace zel {

// Widths, in pixels, in which a picture can be made.
constexpr int ANCHO_MINIMO_DE_IMAGEN = 16;
constexpr int ANCHO_MAXIMO_DE_IMAGEN = 16000;
constexpr int ANCHO_NORMAL_DE_IMAGEN = 1600;

// The whole schematic as a picture of that many pixels across, labels included, as high as it needs; the
// same drawing at any width. What could not be drawn is added to `fallos`. Fails with 7 when there is no
// memory for the picture.
QImage ImagenDeEsquema(const std::shared_ptr<Elementos>& elementos, bool bMostrarLineasOcultas, int ancho,
                       QStringList& fallos);

}  // namespace zel
