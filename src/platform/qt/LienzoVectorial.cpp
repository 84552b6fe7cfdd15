#include "platform/qt/LienzoVectorial.h"

#include <QPainterPath>
#include <algorithm>
#include <cmath>
#include <numbers>

#include "platform/Fallo.h"

namespace zel {

LienzoVectorial::LienzoVectorial(QPaintDevice& destino, QSizeF pixeles, double escala) : escala_(escala) {
    if (!pintor_.begin(&destino)) throw Fallo(57);
    pintor_.scale(destino.logicalDpiX() / PPP_NORMAL, destino.logicalDpiY() / PPP_NORMAL);
    Mide(pixeles * escala, escala * PPP_NORMAL / 72, escala);
}

void LienzoVectorial::PonPluma() {
    if (hayPlumaPuesta_ && puesta_ == pluma()) return;
    puesta_ = pluma();
    hayPlumaPuesta_ = true;
    pintor_.setPen(PlumaQt(puesta_.DrawWidth * escala_));
    pintor_.setBrush(puesta_.FillStyle == RELLENO_SOLIDO ? QBrush(ColorDe(puesta_.FillColor)) : Qt::NoBrush);
}

void LienzoVectorial::Cls() {
    pintor_.fillRect(QRectF({0, 0}, Pixeles()), ColorQt(BackColor()));
}

void LienzoVectorial::Line(std::span<const PuntoXY> cadena) {
    if (Invierte() || cadena.size() < 2) return;
    PonPluma();
    cadena_.clear();
    for (const PuntoXY punto : cadena)
        cadena_.append(EnPixeles(punto));
    if (!std::all_of(cadena_.begin(), cadena_.end(), EsPunto)) return;
    if (!EsSolida()) {
        TrazaARayas();
    } else if (cadena_.size() > 3 && cadena_.isClosed()) {
        cadena_.removeLast();
        const QBrush relleno = pintor_.brush();
        pintor_.setBrush(Qt::NoBrush);
        pintor_.drawPolygon(cadena_);
        pintor_.setBrush(relleno);
    } else {
        pintor_.drawPolyline(cadena_);
    }
}

// Each segment with its own rhythm; the strokes stay strokes.
void LienzoVectorial::TrazaARayas() {
    const double ancho = puesta_.DrawWidth * escala_;
    QPen pluma = pintor_.pen();
    for (qsizetype i = 1; i < cadena_.size(); ++i) {
        const QLineF tramo(cadena_[i - 1], cadena_[i]);
        const QList<qreal> trazos = TrazosPara(puesta_.DrawStyle, tramo.length() / ancho);
        pluma.setStyle(Qt::SolidLine);
        if (!trazos.isEmpty()) {
            pluma.setDashPattern(trazos);
            pluma.setDashOffset(trazos[0] / 2);
        }
        pintor_.setPen(pluma);
        pintor_.drawLine(tramo);
    }
    hayPlumaPuesta_ = false;
}

void LienzoVectorial::Caja(PuntoXY esquina, PuntoXY opuesta) {
    if (Invierte() || !EsPunto(EnPixeles(esquina)) || !EsPunto(EnPixeles(opuesta))) return;
    PonPluma();
    pintor_.drawRect(QRectF(EnPixeles(esquina), EnPixeles(opuesta)).normalized());
}

void LienzoVectorial::Circle(PuntoXY centro, float radio) {
    if (Invierte() || !EsPunto(EnPixeles(centro)) || !std::isfinite(radio)) return;
    PonPluma();
    const double r = radio * PixelesPorUnidadX();
    pintor_.drawEllipse(EnPixeles(centro), r, r);
}

void LienzoVectorial::Circle(PuntoXY centro, float radio, double inicio, double fin) {
    if (fin < inicio) fin += 2 * std::numbers::pi;
    if (fin - inicio >= 2 * std::numbers::pi) {
        Circle(centro, radio);
        return;
    }
    if (Invierte() || !EsPunto(EnPixeles(centro)) || !std::isfinite(radio)) return;
    PonPluma();
    constexpr double GRADOS = 180 / std::numbers::pi;
    const double r = radio * PixelesPorUnidadX();
    const QRectF caja(EnPixeles(centro) - QPointF(r, r), QSizeF(2 * r, 2 * r));
    QPainterPath arco;
    arco.arcMoveTo(caja, inicio * GRADOS);
    arco.arcTo(caja, inicio * GRADOS, (fin - inicio) * GRADOS);
    pintor_.strokePath(arco, pintor_.pen());
}

void LienzoVectorial::PSet(PuntoXY punto, std::int32_t color) {
    if (Invierte() || !EsPunto(EnPixeles(punto))) return;
    pintor_.fillRect(QRectF(EnPixeles(punto) - QPointF(escala_, escala_) / 2, QSizeF(escala_, escala_)),
                     ColorDe(color));
}

void LienzoVectorial::PaintPicture(const zel::Imagen& imagen, PuntoXY esquina, float ancho, float alto) {
    const ImagenColocada colocada = Coloca(imagen, esquina, ancho, alto);
    if (!colocada.destino.isEmpty()) pintor_.drawImage(colocada.destino, colocada.imagen);
}

void LienzoVectorial::Print(std::string_view texto) {
    const FuenteDeTexto& fuente = Fuente();
    const QRectF caja = CajaDeTexto(texto);
    if (!EsPunto(caja.topLeft())) return;
    if (!FontTransparent()) pintor_.fillRect(caja, ColorQt(BackColor()));
    hayPlumaPuesta_ = false;
    const QTransform entera = pintor_.transform();
    pintor_.translate(caja.topLeft());
    pintor_.scale(Reduccion(), Reduccion());
    fuente.PintaComoTexto(pintor_, {0, 0}, ColorQt(pluma().ForeColor), texto);
    pintor_.setTransform(entera);
}

}  // namespace zel
