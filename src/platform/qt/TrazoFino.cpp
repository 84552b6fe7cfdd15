#include "platform/qt/TrazoFino.h"

#include <algorithm>
#include <cmath>

namespace zel {

namespace {

constexpr int ENTERO = 256;           // of a pixel's coverage
constexpr double DE_FRENTE = 0.75;    // cosine of the turn up to which a stroke runs on by itself
constexpr double A_CADA_LADO = 0.25;  // of a pixel's middle, along the stroke: where it is looked at

double Largo(QPointF v) noexcept {
    return std::hypot(v.x(), v.y());
}

// Whether the stroke turns so much from a segment to the next that there is a corner to be closed.
bool HaceEsquina(QPointF antes, QPointF despues) noexcept {
    const double largos = Largo(antes) * Largo(despues);
    return largos > 0 && QPointF::dotProduct(antes, despues) < DE_FRENTE * largos;
}

}  // namespace

// The painter that the image may have must not find it somewhere else.
TrazoFino::TrazoFino(const QImage& imagen, double ancho, QRgb color) noexcept
    : pixeles_(const_cast<QRgb*>(reinterpret_cast<const QRgb*>(imagen.constBits()))),
      porFila_(imagen.bytesPerLine() / static_cast<qsizetype>(sizeof(QRgb))),
      ancho_(imagen.width()),
      alto_(imagen.height()),
      medio_(ancho / 2),
      color_(color) {}

void TrazoFino::Traza(std::span<const QPointF> cadena, bool conRemates) {
    const std::size_t tramos = cadena.size() - 1;
    const bool cerrada = tramos > 1 && cadena.front() == cadena.back();
    const auto vector = [&](std::size_t i) { return cadena[i + 1] - cadena[i]; };
    for (std::size_t i = 0; i < tramos; ++i) {
        const QPointF v = vector(i);
        const double largo = Largo(v);
        const QPointF mas = largo > 0 ? v * (medio_ / largo) : QPointF(medio_, 0);
        const bool esPrimero = i == 0 && !cerrada;
        const bool esUltimo = i + 1 == tramos && !cerrada;
        const bool alPrincipio = esPrimero ? conRemates : HaceEsquina(vector(i == 0 ? tramos - 1 : i - 1), v);
        const bool alFinal = esUltimo ? conRemates : HaceEsquina(v, vector(i + 1 == tramos ? 0 : i + 1));
        Tramo(alPrincipio ? cadena[i] - mas : cadena[i], alFinal ? cadena[i + 1] + mas : cadena[i + 1]);
    }
}

// Pixel by pixel along its longer side, those whose middle is between its ends: neighbours in a chain share
// none.
void TrazoFino::Tramo(QPointF a, QPointF b) {
    const bool tendido = std::abs(b.x() - a.x()) >= std::abs(b.y() - a.y());
    if (!tendido) {
        a = a.transposed();
        b = b.transposed();
    }
    const bool alReves = a.x() > b.x();
    const double pendiente = a.x() == b.x() ? 0 : (b.y() - a.y()) / (b.x() - a.x());
    const double medio = medio_ * std::sqrt(1 + pendiente * pendiente);
    // The first pixel of the chain's direction belongs to the segment, the last one to the next.
    const auto borde = [&](double u) {
        return static_cast<int>(alReves ? std::floor(u - 0.5) + 1 : std::ceil(u - 0.5));
    };
    const int desde = std::max(0, borde(std::min(a.x(), b.x())));
    const int hasta = std::min(tendido ? ancho_ : alto_, borde(std::max(a.x(), b.x())));
    for (int u = desde; u < hasta; ++u) {
        const double v = a.y() + (u + 0.5 - a.x()) * pendiente;
        const double vaiven = std::abs(pendiente) * A_CADA_LADO;
        const double bajo = v - medio;
        const double alto = v + medio;
        const auto cubre = [&](double lo, double hi, int j) {
            return std::max(0.0, std::min(hi, j + 1.0) - std::max(lo, double(j)));
        };
        const int ultimo = static_cast<int>(std::floor(alto + vaiven));
        for (int j = static_cast<int>(std::floor(bajo - vaiven)); j <= ultimo; ++j) {
            const double parte =
                (cubre(bajo - vaiven, alto - vaiven, j) + cubre(bajo + vaiven, alto + vaiven, j)) / 2;
            Mezcla(u, j, tendido, static_cast<int>(parte * ENTERO + 0.5));
        }
    }
}

void TrazoFino::Mezcla(int u, int v, bool tendido, int parte) noexcept {
    const int x = tendido ? u : v;
    const int y = tendido ? v : u;
    if (parte == 0 || x < 0 || y < 0 || x >= ancho_ || y >= alto_) return;
    QRgb& pixel = pixeles_[y * porFila_ + x];
    const auto mezcla = [parte](int de, int hacia) { return de + (hacia - de) * parte / ENTERO; };
    pixel = parte >= ENTERO ? color_
                            : qRgb(mezcla(qRed(pixel), qRed(color_)), mezcla(qGreen(pixel), qGreen(color_)),
                                   mezcla(qBlue(pixel), qBlue(color_)));
}

}  // namespace zel
