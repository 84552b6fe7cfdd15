#include "bars/qt/StatusBar.h"

#include <QEvent>
#include <algorithm>

#include "bars/qt/CampoDeEstado.h"

namespace zel {

namespace {

constexpr double MM_POR_PULGADA = 25.4;
constexpr double ALTO_MM = 6;

struct Campo {
    const char* clave;
    const char* inicial;
    const char* habitual;  // the text for which a narrow field is made
    bool cambiante;        // it changes with every movement of the mouse: its width does not go back
};
constexpr std::array<Campo, 4> CAMPOS = {{
    {"stats", "Preparado", "", false},
    {"x", "x=", "x=-9999.9", true},
    {"y", "y=", "y=-9999.9", true},
    {"porciento", "%", "Región mostrada: 100 %", false},
}};

}  // namespace

StatusBar::StatusBar(QWidget* padre) : QWidget(padre) {
    for (std::size_t i = 0; i < CAMPOS.size(); ++i) {
        auto* campo = new CampoDeEstado(i > 0, this);
        campo->setObjectName(QStringLiteral("txtPanels(%1)").arg(i));
        std::string sKey;
        paneles_->Add(CAMPOS[i].clave, campo->Control(), sKey)->Texto(CAMPOS[i].inicial);
        campos_[i] = campo;
        connect(campo, &CampoDeEstado::TextoCambiado, this, [this, i] { SigueAlTexto(i); });
    }
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    resize(StatusBar::sizeHint());
    Coloca();
}

QSize StatusBar::sizeHint() const {
    int ancho = 0;
    for (std::size_t i = 0; i < CAMPOS.size(); ++i)
        ancho += AnchoDe(i);
    const int alto = qRound(ALTO_MM * logicalDpiY() / MM_POR_PULGADA);
    return {2 * ancho, std::max(alto, fontMetrics().height() + 2)};
}

int StatusBar::AnchoDe(std::size_t campo) const {
    const int habitual = campos_[campo]->AnchoPara(QString::fromUtf8(CAMPOS[campo].habitual));
    return std::max(habitual, campos_[campo]->AnchoPara(campos_[campo]->text()));
}

void StatusBar::SigueAlTexto(std::size_t campo) {
    const int necesita = AnchoDe(campo);
    if (campo == 0 || necesita == campos_[campo]->width()) return;
    if (CAMPOS[campo].cambiante) {
        if (necesita < campos_[campo]->width()) return;
        anchos_[campo] = necesita;
    }
    Coloca();
}

void StatusBar::Coloca() {
    int derecha = width();
    for (std::size_t i = CAMPOS.size() - 1; i > 0; --i) {
        const int ancho = std::max(AnchoDe(i), anchos_[i]);
        derecha -= ancho;
        campos_[i]->setGeometry(derecha, 0, ancho, height());
    }
    // Too narrow a bar shows no prompt, and its fields keep to the right.
    campos_[0]->setGeometry(0, 0, std::max(derecha, 0), height());
}

void StatusBar::changeEvent(QEvent* evento) {
    QWidget::changeEvent(evento);
    if (evento->type() != QEvent::FontChange && evento->type() != QEvent::StyleChange) return;
    anchos_ = {};
    Coloca();
}

void StatusBar::resizeEvent(QResizeEvent* evento) {
    QWidget::resizeEvent(evento);
    Coloca();
}

void StatusBar::showEvent(QShowEvent* evento) {
    QWidget::showEvent(evento);
    Coloca();  // the fonts of the screen it is shown on
}

}  // namespace zel
