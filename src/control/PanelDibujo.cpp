#include "control/PanelDibujo.h"

#include <QPaintEvent>
#include <QPainter>
#include <QResizeEvent>
#include <QTimer>

namespace zel {

namespace {
constexpr double MM_POR_PULGADA = 25.4;
}

PanelDibujo::PanelDibujo(QWidget* padre) : QWidget(padre) {
    setObjectName(QStringLiteral("Panel"));
    setAttribute(Qt::WA_OpaquePaintEvent);
}

float PanelDibujo::AnchoMm() const {
    return static_cast<float>(width() * MM_POR_PULGADA / logicalDpiX());
}
float PanelDibujo::AltoMm() const {
    return static_cast<float>(height() * MM_POR_PULGADA / logicalDpiY());
}

void PanelDibujo::paintEvent(QPaintEvent* evento) {
    const QImage& imagen = lienzo_.Imagen();
    const double relacion = lienzo_.Relacion();
    QPainter pintor(this);
    pintor.setClipRect(evento->rect());
    pintor.drawImage(QRectF(0, 0, imagen.width() / relacion, imagen.height() / relacion), imagen);
    // On another screen: the image follows once this paint is over.
    if (relacion != devicePixelRatioF()) QTimer::singleShot(0, this, [this] { PreparaLienzo(); });
}

void PanelDibujo::resizeEvent(QResizeEvent* evento) {
    QWidget::resizeEvent(evento);
    PreparaLienzo();
}

void PanelDibujo::PreparaLienzo() {
    try {
        const double relacion = devicePixelRatioF();
        lienzo_.Redimensiona((QSizeF(size()) * relacion).toSize(), relacion, logicalDpiX());
    } catch (const std::exception&) {
        return;  // no memory for an image of this size: the earlier one stays
    }
    emit Redimensionado();
}

}  // namespace zel
