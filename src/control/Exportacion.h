#pragma once

#include <QByteArray>
#include <QImage>
#include <QStringList>
#include <optional>

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

// The same drawing as SVG: at the nominal scale, or that many pixels wide. Fails with 57 when Qt cannot make
// it.
QByteArray SvgDeEsquema(const Elementos& elementos, bool bMostrarLineasOcultas, const QString& titulo,
                        std::optional<int> ancho, QStringList& fallos);

// The same drawing as a PDF of one page at the nominal scale, reduced where a side would be longer than the
// 14,400 points (5.08 m) of the format. Fails with 57 when Qt cannot make it.
QByteArray PdfDeEsquema(const Elementos& elementos, bool bMostrarLineasOcultas, const QString& titulo,
                        QStringList& fallos);

enum class FormatoDeDibujo { Png, Svg, Pdf };

// The format that a file's extension stands for, in capital or small letters; none when it is another.
std::optional<FormatoDeDibujo> FormatoDeArchivo(const QString& archivo);

// Draws the schematic into a file of the format that its extension stands for, and returns what could not be
// drawn. `ancho` in pixels, of no effect on PDF. An earlier file is replaced in a single step: whatever
// fails, it stays, and nothing else does. Fails with 5 for another extension, as the above do, and with the
// number of the system's reason when the file cannot be written.
QStringList ExportaEsquema(const QString& archivo, const Elementos& elementos, bool bMostrarLineasOcultas,
                           const QString& titulo, std::optional<int> ancho);

}  // namespace zel
