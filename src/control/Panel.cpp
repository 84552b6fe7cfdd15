#include "control/Panel.h"

#include <QPaintEvent>
#include <QPainter>
#include <QResizeEvent>

#include "platform/Fallo.h"

namespace zel {

namespace {
constexpr double MM_POR_PULGADA = 25.4;
}

Panel::Panel(QWidget* padre) : QWidget(padre) {
    setObjectName(QStringLiteral("Panel"));
    setAttribute(Qt::WA_OpaquePaintEvent);
    lienzo_.AlRefrescar([this] { update(); });
}

float Panel::AnchoMm() const {
    return static_cast<float>(width() * MM_POR_PULGADA / logicalDpiX());
}
float Panel::AltoMm() const {
    return static_cast<float>(height() * MM_POR_PULGADA / logicalDpiY());
}

void Panel::paintEvent(QPaintEvent* evento) {
    const QImage& imagen = lienzo_.Imagen();
    const double relacion = lienzo_.Relacion();
    QPainter pintor(this);
    pintor.setClipRect(evento->rect());
    pintor.drawImage(QRectF(0, 0, imagen.width() / relacion, imagen.height() / relacion), imagen);
}

void Panel::resizeEvent(QResizeEvent* evento) {
    QWidget::resizeEvent(evento);
    try {
        lienzo_.Redimensiona((QSizeF(size()) * devicePixelRatioF()).toSize(), devicePixelRatioF());
    } catch (const Fallo&) {
        return;  // no memory for an image of this size: the earlier one stays
    }
    emit Redimensionado();
}

}  // namespace zel
