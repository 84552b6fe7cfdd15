#include "bars/qt/CampoDeEstado.h"

#include <QEvent>
#include <QFontMetricsF>
#include <QPainter>
#include <QPointer>
#include <QTextDocument>
#include <QtMath>

namespace zel {

namespace {
constexpr int MARGEN = 5;
}

class CampoDeEstado::ControlPropio : public ControlDePanel {
  public:
    explicit ControlPropio(CampoDeEstado* campo) : campo_(campo) {}

    std::string Caption() const override { return campo_ ? campo_->text().toStdString() : std::string(); }
    void Caption(const std::string& texto) override {
        if (campo_) campo_->PonTexto(QString::fromStdString(texto));
    }

  private:
    QPointer<CampoDeEstado> campo_;
};

CampoDeEstado::CampoDeEstado(bool conRaya, QWidget* padre)
    : QLabel(padre), control_(std::make_shared<ControlPropio>(this)), conRaya_(conRaya) {
    setTextFormat(Qt::PlainText);
}

int CampoDeEstado::AnchoPara(const QString& texto) const {
    // One more: eliding measures in fractions of a pixel.
    return qCeil(QFontMetricsF(font()).horizontalAdvance(texto)) + 1 + 2 * MARGEN;
}

void CampoDeEstado::PonTexto(const QString& texto) {
    if (text() == texto) return;  // the mouse writes the same coordinates many times
    setText(texto);
    PonAyuda();
    emit TextoCambiado();
}

// The text as one line, as much of it as there is room for.
QString CampoDeEstado::Visible() const {
    return fontMetrics().elidedText(text().simplified(), Qt::ElideRight, width() - 2 * MARGEN);
}

void CampoDeEstado::PonAyuda() {
    const bool cabe = Visible() == text().simplified();
    // A tooltip would take a text with marks for rich text.
    setToolTip(cabe ? QString() : Qt::mightBeRichText(text()) ? Qt::convertFromPlainText(text()) : text());
}

void CampoDeEstado::changeEvent(QEvent* evento) {
    QLabel::changeEvent(evento);
    if (evento->type() == QEvent::FontChange) PonAyuda();
}

void CampoDeEstado::resizeEvent(QResizeEvent* evento) {
    QLabel::resizeEvent(evento);
    PonAyuda();
}

void CampoDeEstado::paintEvent(QPaintEvent*) {
    QPainter pintor(this);
    if (conRaya_) {
        QColor raya = palette().color(QPalette::WindowText);
        raya.setAlphaF(0.3F);
        pintor.fillRect(0, 3, 1, height() - 6, raya);
    }
    pintor.setPen(palette().color(QPalette::WindowText));
    pintor.drawText(rect().adjusted(MARGEN, 0, -MARGEN, 0),
                    Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, Visible());
}

}  // namespace zel
