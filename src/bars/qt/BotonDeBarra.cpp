#include "bars/qt/BotonDeBarra.h"

#include <QKeyEvent>
#include <QPainter>
#include <QSignalBlocker>
#include <algorithm>

#include "platform/qt/Dibujos.h"

namespace zel {

namespace {

constexpr std::int16_t ALTO_MM = 7;
constexpr double REDONDEO = 3;
constexpr double OPACIDAD_INACTIVO = 0.35;

QColor Mezcla(const QColor& a, const QColor& b, double parteDeB) {
    const auto mezcla = [parteDeB](int de, int hacia) { return qRound(de + (hacia - de) * parteDeB); };
    return {mezcla(a.red(), b.red()), mezcla(a.green(), b.green()), mezcla(a.blue(), b.blue())};
}

}  // namespace

class BotonDeBarra::ControlPropio : public ControlDeBoton {
  public:
    explicit ControlPropio(BotonDeBarra* boton) : boton_(boton) {}

    std::int16_t BorderStyle() const noexcept override { return borde_; }
    void BorderStyle(std::int16_t valor) override {
        borde_ = valor;
        if (!boton_) return;
        const QSignalBlocker enSilencio(boton_);
        boton_->setChecked(valor != 0);
    }
    std::int16_t Heigt() const noexcept override { return ALTO_MM; }

  private:
    QPointer<BotonDeBarra> boton_;
    std::int16_t borde_ = 0;
};

BotonDeBarra::BotonDeBarra(const QString& clave, const QString& descripcion, QWidget* padre)
    : QAbstractButton(padre), control_(std::make_shared<ControlPropio>(this)) {
    setObjectName(clave);
    setToolTip(descripcion);
    setAccessibleName(descripcion);
    setCheckable(true);
    setAttribute(Qt::WA_Hover);
}

void BotonDeBarra::keyPressEvent(QKeyEvent* evento) {
    if (evento->key() != Qt::Key_Return && evento->key() != Qt::Key_Enter) {
        QAbstractButton::keyPressEvent(evento);
    } else if (!evento->isAutoRepeat()) {
        click();
    }
}

void BotonDeBarra::paintEvent(QPaintEvent*) {
    const QPalette& paleta = palette();
    const QColor fondo = paleta.color(QPalette::Active, QPalette::Window);
    const QColor tinta = paleta.color(QPalette::Active, QPalette::ButtonText);
    const QColor realce = paleta.color(QPalette::Active, QPalette::Highlight);
    const QRectF marco = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);

    QPainter pintor(this);
    pintor.setRenderHint(QPainter::Antialiasing);
    if (!isEnabled()) pintor.setOpacity(OPACIDAD_INACTIVO);
    const bool senalado = isEnabled() && underMouse();
    if (isChecked()) {
        pintor.setPen(QPen(Mezcla(realce, tinta, 0.25), 1));
        pintor.setBrush(Mezcla(fondo, realce, senalado || isDown() ? 0.5 : 0.38));
        pintor.drawRoundedRect(marco, REDONDEO, REDONDEO);
        // Sunken: a shadow below the upper edge.
        pintor.setPen(QPen(QColor(0, 0, 0, 70), 1));
        pintor.drawLine(marco.topLeft() + QPointF(2, 1), marco.topRight() + QPointF(-2, 1));
    } else if (isDown() || senalado) {
        pintor.setPen(QPen(Mezcla(fondo, tinta, 0.35), 1));
        pintor.setBrush(Mezcla(fondo, tinta, isDown() ? 0.25 : 0.1));
        pintor.drawRoundedRect(marco, REDONDEO, REDONDEO);
    }
    // One pixel of the button's 6.5 mm less: at the usual resolution the pictures keep their own 24 pixels.
    const int lado = std::min(width(), height()) - 1;
    pintor.drawPixmap(
        (width() - lado) / 2, (height() - lado) / 2,
        DibujoPropio(QStringLiteral("botones/") + objectName(), lado, devicePixelRatioF(), tinta));
    if (!hasFocus()) return;
    pintor.setBrush(Qt::NoBrush);
    pintor.setPen(QPen(tinta, 1.5));
    pintor.drawRoundedRect(marco.adjusted(0.5, 0.5, -0.5, -0.5), REDONDEO, REDONDEO);
}

}  // namespace zel
