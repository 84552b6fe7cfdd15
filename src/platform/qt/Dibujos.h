#pragma once

#include <QColor>
#include <QPixmap>
#include <QString>

namespace zel {

// The library's own picture of that name ("botones/nudo", "cursores/201") as a square of `lado` logical
// pixels, each of `relacion` device pixels. Its neutral strokes take the colour `tinta`; the coloured ones
// keep theirs. Kept once rendered. Null when there is no such picture.
QPixmap DibujoPropio(const QString& nombre, int lado, double relacion, const QColor& tinta = Qt::black);

}  // namespace zel
