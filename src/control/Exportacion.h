#pragma once

#include <QImage>
#include <QStringList>

#include "model/Elementos.h"

namespace zel {

// Widths, in pixels, in which a picture can be made; neither side can be longer than the last.
constexpr int ANCHO_MINIMO_DE_IMAGEN = 16;
constexpr int LADO_MAXIMO_DE_IMAGEN = 16000;
constexpr int ANCHO_NORMAL_DE_IMAGEN = 1600;

// The whole schematic as a picture of that many pixels across, labels included, as high as it needs. The
// proportions of symbols, texts and pens are those of the nominal scale (a world unit is a millimetre), so
// that it is the same drawing at any width; no pen is thinner than a pixel. What could not be drawn is added
// to `fallos`. Fails with 5 when the picture would be too high, with 7 when there is no memory for it.
QImage ImagenDeEsquema(const Elementos& elementos, bool bMostrarLineasOcultas, int ancho,
                       QStringList& fallos);

}  // namespace zel
