#include "EscenaQt.h"

#include <QFontMetricsF>
#include <QGraphicsEllipseItem>
#include <QGraphicsPathItem>
#include <QGraphicsSimpleTextItem>
#include <QPen>
#include <numbers>

namespace zel::bench {

namespace {

QColor ColorQt(std::int32_t color) {
    return {color & 0xFF, (color >> 8) & 0xFF, (color >> 16) & 0xFF};
}

QString Cadena(std::string_view texto) {
    return QString::fromUtf8(texto.data(), static_cast<qsizetype>(texto.size()));
}

}  // namespace

QPen EscenaQt::Pluma() const {
    QPen qt(pluma().DrawMode == MODO_NEGRO ? QColor(Qt::black) : ColorQt(pluma().ForeColor),
            pluma().DrawWidth);
    qt.setCosmetic(true);
    if (pluma().DrawWidth == 1) {
        if (pluma().DrawStyle == ESTILO_TRAZOS) qt.setStyle(Qt::DashLine);
        if (pluma().DrawStyle == ESTILO_TRAZO_PUNTO) qt.setStyle(Qt::DashDotLine);
        if (pluma().DrawStyle == ESTILO_TRAZO_PUNTO_PUNTO) qt.setStyle(Qt::DashDotDotLine);
    }
    return qt;
}

void EscenaQt::Line(std::span<const PuntoXY> cadena) {
    if (cadena.size() == 2) {
        escena_.addLine(QLineF(EnEscena(cadena[0]), EnEscena(cadena[1])), Pluma());
        return;
    }
    QPainterPath camino(EnEscena(cadena.front()));
    for (const PuntoXY p : cadena.subspan(1))
        camino.lineTo(EnEscena(p));
    escena_.addPath(camino, Pluma());
}

void EscenaQt::Caja(PuntoXY esquina, PuntoXY opuesta) {
    escena_.addRect(QRectF(EnEscena(esquina), EnEscena(opuesta)).normalized(), Pluma());
}

void EscenaQt::Circle(PuntoXY centro, float radio) {
    const double r = radio * pixelesPorUnidad_;
    escena_.addEllipse(QRectF(EnEscena(centro) - QPointF(r, r), QSizeF(2 * r, 2 * r)), Pluma());
}

void EscenaQt::Circle(PuntoXY centro, float radio, double inicio, double fin) {
    if (fin < inicio) fin += 2 * std::numbers::pi;
    const double r = radio * pixelesPorUnidad_;
    const QRectF caja(EnEscena(centro) - QPointF(r, r), QSizeF(2 * r, 2 * r));
    constexpr double GRADOS = 180 / std::numbers::pi;
    QPainterPath camino;
    camino.arcMoveTo(caja, inicio * GRADOS);
    camino.arcTo(caja, inicio * GRADOS, (fin - inicio) * GRADOS);
    escena_.addPath(camino, Pluma());
}

void EscenaQt::PSet(PuntoXY punto, std::int32_t color) {
    colorDePuntos_ = color;
    puntos_.addRect(QRectF(EnEscena(punto), QSizeF(1, 1)));
}

void EscenaQt::AsientaPuntos() {
    if (!puntos_.isEmpty()) escena_.addPath(puntos_, Qt::NoPen, ColorQt(colorDePuntos_));
    puntos_.clear();
}

QFont EscenaQt::Fuente() const {
    QFont fuente(QStringLiteral("Arial"));
    fuente.setPointSizeF(FontSize());
    return fuente;
}

void EscenaQt::Print(std::string_view texto) {
    QGraphicsSimpleTextItem* item = escena_.addSimpleText(Cadena(texto), Fuente());
    item->setPos(EnEscena({CurrentX(), CurrentY()}));
    item->setBrush(ColorQt(pluma().ForeColor));
}

float EscenaQt::TextWidth(std::string_view texto) {
    return static_cast<float>(QFontMetricsF(Fuente()).horizontalAdvance(Cadena(texto)) / pixelesPorUnidad_);
}

float EscenaQt::TextHeight(std::string_view) {
    return static_cast<float>(-QFontMetricsF(Fuente()).height() / pixelesPorUnidad_);
}

}  // namespace zel::bench
