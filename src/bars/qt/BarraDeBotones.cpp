#include "bars/qt/BarraDeBotones.h"

#include "bars/qt/BotonDeBarra.h"
#include "platform/qt/Dibujos.h"
#include "platform/qt/ImagenQt.h"

namespace zel {

namespace {

constexpr double MM_POR_PULGADA = 25.4;
constexpr double MM_DE_MENOS = 0.5;
constexpr int LADO_IMAGEN = 24;

}  // namespace

BarraDeBotones::BarraDeBotones(std::initializer_list<Descripcion> descripciones, QWidget* padre)
    : QWidget(padre) {
    for (const Descripcion& descripcion : descripciones)
        Agrega(descripcion);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    resize(BarraDeBotones::sizeHint());
    Coloca();
}

void BarraDeBotones::Agrega(const Descripcion& descripcion) {
    const QString clave = QString::fromUtf8(descripcion.clave);
    auto* widget = new BotonDeBarra(clave, QString::fromUtf8(descripcion.texto), this);
    controles_.push_back(widget);
    const auto control = widget->Control();
    const auto imagen =
        std::make_shared<ImagenQt>(DibujoPropio(QStringLiteral("botones/") + clave, LADO_IMAGEN, 1,
                                                palette().color(QPalette::ButtonText))
                                       .toImage());
    std::string sKey;
    const auto boton =
        botones_->Add(descripcion.clave, control->Heigt(), imagen, control->BorderStyle(), control, sKey);
    connect(widget, &QAbstractButton::clicked, this, [this, boton] { Pulsa(boton); });
    // Later: Qt goes on with the button after toggled(), and who hears the click may delete the bar.
    connect(
        widget, &QAbstractButton::toggled, this, [this, boton] { Pulsa(boton); }, Qt::QueuedConnection);
}

void BarraDeBotones::Pulsa(const std::shared_ptr<Boton>& boton) {
    boton->Value(boton->Control()->BorderStyle() == 0 ? 1 : 0);
    emit ButtonClick(boton);
}

bool BarraDeBotones::Enabled() const {
    // What was set here, whatever the state of the widgets around.
    return !testAttribute(Qt::WA_ForceDisabled);
}
void BarraDeBotones::Enabled(bool valor) {
    setEnabled(valor);
}

QSize BarraDeBotones::sizeHint() const {
    return {qRound(ButtonCount() * ButtonWidth() * logicalDpiX() / MM_POR_PULGADA),
            qRound((ButtonHeight() - MM_DE_MENOS) * logicalDpiY() / MM_POR_PULGADA)};
}

void BarraDeBotones::resizeEvent(QResizeEvent* evento) {
    QWidget::resizeEvent(evento);
    Coloca();
}

void BarraDeBotones::showEvent(QShowEvent* evento) {
    QWidget::showEvent(evento);
    Coloca();  // the resolution of the screen it is shown on
}

void BarraDeBotones::Coloca() {
    const double paso = ButtonWidth() * logicalDpiX() / MM_POR_PULGADA;
    const int alto = BarraDeBotones::sizeHint().height();
    for (std::size_t i = 0; i < controles_.size(); ++i) {
        const int izquierda = qRound(paso * static_cast<double>(i));
        const int derecha = qRound(paso * static_cast<double>(i + 1));
        BotonDeBarra* boton = controles_[i];
        boton->setGeometry(izquierda, 0, derecha - izquierda, alto);
        // A button that the bar's width leaves out of sight is no place for the keyboard to go.
        boton->setFocusPolicy(derecha - 1 <= width() ? Qt::TabFocus : Qt::NoFocus);
    }
}

}  // namespace zel
