#include "Preguntas.h"

#include <QGuiApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <algorithm>

#include "platform/Texto.h"

namespace zel {

namespace {

constexpr int ANCHO_MAXIMO = 500;

// The box is as wide as its first text, and would break the lines of the second there.
void DaAnchoAlDetalle(const QMessageBox& caja) {
    auto* detalle = caja.findChild<QLabel*>(QStringLiteral("qt_msgbox_informativelabel"));
    if (!detalle) return;
    const QSize lineas = detalle->fontMetrics().size(0, caja.informativeText());
    detalle->setMinimumWidth(std::min(lineas.width() + 1, ANCHO_MAXIMO));
}

void Prepara(QMessageBox& caja, const QString& pregunta, const QString& detalle) {
    caja.setWindowTitle(QGuiApplication::applicationDisplayName());
    caja.setIcon(QMessageBox::Question);
    caja.setTextFormat(Qt::PlainText);
    caja.setText(pregunta);
    caja.setInformativeText(detalle);
    DaAnchoAlDetalle(caja);
}

}  // namespace

void DiFallo(const std::string& descripcion, const std::string& antes, const std::string& despues) {
    const std::string causa = CausaDe(descripcion);
    const std::string texto = antes + causa + despues;
    if (causa == descripcion)
        dialogos().MsgBox(texto);
    else
        dialogos().AvisoConDetalle(texto, descripcion);
}

Respuesta PreguntaSiGuardar(QWidget* padre, const QString& nombre) {
    QMessageBox caja(padre);
    Prepara(caja, QStringLiteral("¿Guardar los cambios de \"%1\"?").arg(nombre),
            QStringLiteral("Si no los guarda, se perderán."));
    auto* guardar = caja.addButton(QStringLiteral("&Guardar"), QMessageBox::AcceptRole);
    auto* descartar = caja.addButton(QStringLiteral("&Descartar"), QMessageBox::DestructiveRole);
    auto* cancelar = caja.addButton(QStringLiteral("&Cancelar"), QMessageBox::RejectRole);
    caja.setDefaultButton(guardar);
    caja.setEscapeButton(cancelar);
    caja.exec();
    if (caja.clickedButton() == guardar) return Respuesta::Guardar;
    return caja.clickedButton() == descartar ? Respuesta::Descartar : Respuesta::Cancelar;
}

bool Confirma(QWidget* padre, const QString& pregunta, const QString& detalle, const QString& accion) {
    QMessageBox caja(padre);
    Prepara(caja, pregunta, detalle);
    auto* si = caja.addButton(accion, QMessageBox::AcceptRole);
    auto* cancelar = caja.addButton(QStringLiteral("&Cancelar"), QMessageBox::RejectRole);
    caja.setDefaultButton(cancelar);
    caja.setEscapeButton(cancelar);
    caja.exec();
    return caja.clickedButton() == si;
}

QString Describe(const Elemento& e) {
    const std::string_view tipo = NombreDeTipo(e.Tipo());
    const QString clase = tipo.empty() ? QStringLiteral("Elemento")
                                       : QString::fromUtf8(tipo.data(), static_cast<qsizetype>(tipo.size()));
    if (e.Nombre().empty()) return QStringLiteral("%1 (código %2)").arg(clase).arg(e.gfCodSIG());
    return clase + QStringLiteral(" \"") + QString::fromStdString(EnBreve(e.Nombre())) + u'"';
}

}  // namespace zel
