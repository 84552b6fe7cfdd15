#pragma once

#include <QImage>
#include <QPointF>
#include <span>

namespace zel {

// Thin strokes on an opaque RGB image, smooth across and of the same weight in every direction: Qt's own of
// one pixel have less ink to their length the more they slant, as little as 0.7 of it. `ancho` in pixels; a
// chain that ends where it began is closed. With `conRemates` the ends reach half the width further, so that
// what meets there is closed; without them, as in dashes, they are cut where they are.
//
// The image keeps its memory: it may have a painter.
class TrazoFino {
  public:
    TrazoFino(const QImage& imagen, double ancho, QRgb color) noexcept;

    void Traza(std::span<const QPointF> cadena, bool conRemates);

  private:
    void Tramo(QPointF a, QPointF b);
    void Mezcla(int u, int v, bool tendido, int parte) noexcept;

    QRgb* pixeles_;
    qsizetype porFila_;
    int ancho_;
    int alto_;
    double medio_;  // half the width
    QRgb color_;
};

}  // namespace zel
