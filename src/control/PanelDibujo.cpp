#include "control/PanelDibujo.h"

#include <QFocusEvent>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QNativeGestureEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QPointer>
#include <QResizeEvent>
#include <QTimer>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>
#include <utility>

namespace zel {

namespace {
constexpr double MM_POR_PULGADA = 25.4;
constexpr double OCTAVOS_POR_MUESCA = 120;       // of a degree
constexpr double PARTE_POR_MUESCA = 0.1;         // of the panel
const double VECES_POR_MUESCA = std::sqrt(2.0);  // half the area
constexpr double VECES_MINIMAS = 0.1;            // of one step of a pinch
}  // namespace

PanelDibujo::PanelDibujo(QWidget* padre) : QWidget(padre) {
    setObjectName(QStringLiteral("Panel"));
    setAttribute(Qt::WA_OpaquePaintEvent);
    lienzo_.AlDibujar([this] { update(); });
}

float PanelDibujo::AnchoMm() const {
    return static_cast<float>(width() * MM_POR_PULGADA / logicalDpiX());
}
float PanelDibujo::AltoMm() const {
    return static_cast<float>(height() * MM_POR_PULGADA / logicalDpiY());
}

void PanelDibujo::paintEvent(QPaintEvent* evento) {
    const QImage& imagen = lienzo_.ImagenQueSeMuestra();
    const double relacion = lienzo_.Relacion();
    QPainter pintor(this);
    pintor.setClipRect(evento->rect());
    pintor.drawImage(QRectF(0, 0, imagen.width() / relacion, imagen.height() / relacion), imagen);
    if (relacion == devicePixelRatioF()) return;
    // On another screen: the image follows once this paint is over.
    QTimer::singleShot(0, this, [this] {
        if (PreparaLienzo()) emit Redimensionado();
    });
}

void PanelDibujo::resizeEvent(QResizeEvent* evento) {
    QWidget::resizeEvent(evento);
    if (PreparaLienzo()) emit Redimensionado();
}

bool PanelDibujo::PreparaLienzo() {
    const double relacion = devicePixelRatioF();
    const QSize pixeles = (QSizeF(size()) * relacion).toSize().expandedTo({1, 1});
    if (pixeles == lienzo_.Imagen().size() && relacion == lienzo_.Relacion()) return false;
    try {
        lienzo_.Redimensiona(pixeles, relacion, logicalDpiX());
    } catch (const std::exception&) {
        return false;  // no memory for an image of this size: the earlier one stays
    }
    return true;
}

namespace {

bool EntreWidgets(const QFocusEvent& evento) noexcept {
    switch (evento.reason()) {
        case Qt::ActiveWindowFocusReason:
        case Qt::PopupFocusReason:
        case Qt::MenuBarFocusReason:
            return false;
        default:
            return true;
    }
}

qint16 Botones(Qt::MouseButtons botones) noexcept {
    return static_cast<qint16>((botones & Qt::LeftButton ? 1 : 0) | (botones & Qt::RightButton ? 2 : 0) |
                               (botones & Qt::MiddleButton ? 4 : 0));
}

qint16 Mayusculas(const QMouseEvent& evento) noexcept {
    const Qt::KeyboardModifiers m = evento.modifiers();
    return static_cast<qint16>((m & Qt::ShiftModifier ? 1 : 0) | (m & Qt::ControlModifier ? 2 : 0) |
                               (m & Qt::AltModifier ? 4 : 0));
}

}  // namespace

void PanelDibujo::focusInEvent(QFocusEvent* evento) {
    QWidget::focusInEvent(evento);
    if (EntreWidgets(*evento)) emit GanaFoco();
}

void PanelDibujo::focusOutEvent(QFocusEvent* evento) {
    QWidget::focusOutEvent(evento);
    const QPointer<PanelDibujo> vivo(this);
    emit PierdeTeclado();
    if (vivo && EntreWidgets(*evento)) emit PierdeFoco();
}

PuntoXY PanelDibujo::EnElMundo(QPointF punto) const {
    return {static_cast<float>(lienzo_.ScaleLeft() + punto.x() / width() * lienzo_.ScaleWidth()),
            static_cast<float>(lienzo_.ScaleTop() + punto.y() / height() * lienzo_.ScaleHeight())};
}

QPointF PanelDibujo::EnElPanel(PuntoXY punto) const {
    return {(double{punto.X} - lienzo_.ScaleLeft()) / lienzo_.ScaleWidth() * width(),
            (double{punto.Y} - lienzo_.ScaleTop()) / lienzo_.ScaleHeight() * height()};
}

void PanelDibujo::mousePressEvent(QMouseEvent* evento) {
    if (Botones(evento->button()) == 0) {
        evento->ignore();
        return;
    }
    const PuntoXY p = EnElMundo(evento->position());
    hayClic_ = true;
    emit Pulsado(Botones(evento->button()), Mayusculas(*evento), p.X, p.Y);
}

void PanelDibujo::mouseMoveEvent(QMouseEvent* evento) {
    const PuntoXY p = EnElMundo(evento->position());
    emit Movido(Botones(evento->buttons()), Mayusculas(*evento), p.X, p.Y);
}

void PanelDibujo::mouseReleaseEvent(QMouseEvent* evento) {
    if (Botones(evento->button()) == 0) {
        evento->ignore();
        return;
    }
    const PuntoXY p = EnElMundo(evento->position());
    const bool hayClic = std::exchange(hayClic_, false) && rect().contains(evento->position().toPoint());
    const QPointer<PanelDibujo> vivo(this);
    emit Soltado(Botones(evento->button()), Mayusculas(*evento), p.X, p.Y);
    if (vivo && hayClic) emit Clic();
}

void PanelDibujo::mouseDoubleClickEvent(QMouseEvent* evento) {
    if (evento->button() == Qt::LeftButton)
        emit DobleClic();
    else
        mousePressEvent(evento);
}

// Pixels where the device tells them; on X11 they are the driver's invention. A touchpad sends parts of a
// notch, and the beginning and the end of a turn as none.
void PanelDibujo::wheelEvent(QWheelEvent* evento) {
    evento->accept();
    const QPointF en = EnPartes(evento->position());
    const QPointF muescas = QPointF(evento->angleDelta()) / OCTAVOS_POR_MUESCA;
    if (evento->modifiers() & Qt::ControlModifier) {
        if (muescas.y() != 0) emit Ampliado(std::pow(VECES_POR_MUESCA, muescas.y()), en);
        return;
    }
    const bool hayPixeles =
        !evento->pixelDelta().isNull() && QGuiApplication::platformName() != QStringLiteral("xcb");
    QPointF giro = hayPixeles ? QPointF(evento->pixelDelta()) : muescas * PARTE_POR_MUESCA;
    // Some platforms turn it sideways themselves.
    if (evento->modifiers() & Qt::ShiftModifier) giro = {giro.x() + giro.y(), 0};
    if (giro.isNull()) return;
    if (hayPixeles) giro = EnPartes(giro);
    emit Empujado(giro.x(), giro.y(), en);
}

bool PanelDibujo::event(QEvent* evento) {
    if (evento->type() != QEvent::NativeGesture) return QWidget::event(evento);
    const auto& gesto = static_cast<const QNativeGestureEvent&>(*evento);
    if (gesto.gestureType() != Qt::ZoomNativeGesture) return QWidget::event(evento);
    emit Ampliado(std::max(VECES_MINIMAS, 1 + gesto.value()), EnPartes(gesto.position()));
    return true;
}

}  // namespace zel
