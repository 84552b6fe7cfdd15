#include "control/MenuDelEsquema.h"

#include <QAction>
#include <QMenu>
#include <algorithm>
#include <utility>

#include "platform/Guardia.h"

namespace zel {

namespace {

// A caption holds a name, which may be as long as its author likes.
constexpr int CARACTERES_DE_ROTULO = 60;

QString Nombre(const FilaDeMenu& fila) {
    return QString::fromLatin1(fila.nombre.data(), static_cast<qsizetype>(fila.nombre.size()));
}

}  // namespace

MenuDelEsquema::MenuDelEsquema(QWidget* visor, std::function<AspectoDelMenu()> aspecto,
                               std::function<void(ItemDeMenu)> alElegir)
    : visor_(visor), aspecto_(std::move(aspecto)), alElegir_(std::move(alElegir)) {
    menu_ = new QMenu(visor);
    for (const FilaDeMenu& fila : FilasDeMenu())
        Crea(fila);
    QObject::connect(menu_, &QMenu::aboutToShow, visor, [this] { PonAlDia(); });
}

void MenuDelEsquema::Crea(const FilaDeMenu& fila) {
    QAction*& accion = acciones_[static_cast<std::size_t>(fila.item)];
    QMenu* const padre =
        fila.item == fila.padre ? nullptr : acciones_[static_cast<std::size_t>(fila.padre)]->menu();
    if (fila.clase == ClaseDeItem::Submenu) {
        QMenu* const menu = padre ? padre->addMenu(QString()) : menu_;
        menu->setObjectName(Nombre(fila));
        accion = menu->menuAction();
    } else {
        accion = padre->addAction(QString());
        accion->setSeparator(fila.clase == ClaseDeItem::Separador);
        accion->setCheckable(fila.clase == ClaseDeItem::Marca);
        QObject::connect(accion, &QAction::triggered, visor_, [this, item = fila.item] { Elige(item); });
    }
    accion->setObjectName(Nombre(fila));
    accion->setText(Rotulo(std::string(fila.texto)));
}

// Plain text on one line: neither mnemonics nor the column of shortcuts.
QString MenuDelEsquema::Rotulo(const std::string& texto) const {
    QString rotulo = QString::fromStdString(texto);
    std::replace_if(
        rotulo.begin(), rotulo.end(), [](QChar c) { return c.isSpace(); }, u' ');
    const QFontMetrics letra = menu_->fontMetrics();
    rotulo = letra.elidedText(rotulo, Qt::ElideRight, CARACTERES_DE_ROTULO * letra.averageCharWidth());
    return rotulo.replace(u'&', QStringLiteral("&&"));
}

// What is chosen may destroy the visor, and this with it.
void MenuDelEsquema::Elige(ItemDeMenu item) {
    const auto eligiendo = eligiendo_;
    const auto alElegir = alElegir_;
    const Guardia enCurso(*eligiendo, true);
    alElegir(item);
}

void MenuDelEsquema::PonAlDia() {
    const AspectoDelMenu aspecto = aspecto_();
    for (const FilaDeMenu& fila : FilasDeMenu()) {
        QAction* const accion = acciones_[static_cast<std::size_t>(fila.item)];
        accion->setVisible(aspecto[fila.item].visible);
        accion->setText(Rotulo(aspecto[fila.item].texto));
    }
    PonMarcas();
}

void MenuDelEsquema::PonMarcas() {
    const AspectoDelMenu aspecto = aspecto_();
    for (const FilaDeMenu& fila : FilasDeMenu())
        acciones_[static_cast<std::size_t>(fila.item)]->setChecked(aspecto[fila.item].marcado);
}

void MenuDelEsquema::Abre(QPoint enLaPantalla) {
    menu_->popup(enLaPantalla);
}

void MenuDelEsquema::Suelta() {
    QMenu* const menu = std::exchange(menu_, nullptr);
    menu->disconnect(visor_);
    menu->setParent(nullptr);
    if (*eligiendo_)
        menu->deleteLater();
    else
        delete menu;
}

}  // namespace zel
