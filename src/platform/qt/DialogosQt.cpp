#include "platform/qt/DialogosQt.h"

#include <QApplication>
#include <QColorDialog>
#include <QFileDialog>
#include <QGuiApplication>
#include <QInputDialog>
#include <QMessageBox>
#include <QPushButton>

namespace zel {

namespace {

QString Titulo(const std::string& titulo) {
    return titulo.empty() ? QGuiApplication::applicationDisplayName() : QString::fromStdString(titulo);
}

// "Esquemas|*.xml|Todos|*.*" as Qt writes it: "Esquemas (*.xml);;Todos (*)".
QString FiltroQt(const std::string& filtro) {
    const QStringList partes = QString::fromStdString(filtro).split(u'|');
    QStringList filtros;
    for (qsizetype i = 0; i + 1 < partes.size(); i += 2) {
        QString patrones = partes[i + 1];
        patrones.replace(u';', u' ').replace(QStringLiteral("*.*"), QStringLiteral("*"));
        filtros << partes[i] + QStringLiteral(" (") + patrones + u')';
    }
    return filtros.join(QStringLiteral(";;"));
}

std::optional<std::string> Elegido(const QString& ruta) {
    if (ruta.isEmpty()) return std::nullopt;
    return ruta.toStdString();
}

}  // namespace

void DialogosQt::MsgBox(const std::string& texto, const std::string& titulo) {
    QMessageBox caja(QMessageBox::NoIcon, Titulo(titulo), QString::fromStdString(texto), QMessageBox::Ok,
                     QApplication::activeWindow());
    caja.setTextFormat(Qt::PlainText);
    caja.button(QMessageBox::Ok)->setText(QStringLiteral("Aceptar"));
    caja.exec();
}

std::optional<std::string> DialogosQt::InputBox(const std::string& texto, const std::string& titulo,
                                                const std::string& propuesta) {
    QInputDialog caja(QApplication::activeWindow());
    caja.setWindowTitle(Titulo(titulo));
    caja.setLabelText(QString::fromStdString(texto));
    caja.setTextValue(QString::fromStdString(propuesta));
    caja.setOkButtonText(QStringLiteral("Aceptar"));
    caja.setCancelButtonText(QStringLiteral("Cancelar"));
    if (caja.exec() != QDialog::Accepted) return std::nullopt;
    return caja.textValue().toStdString();
}

std::optional<std::string> DialogosQt::ArchivoAbrir(const std::string& titulo, const std::string& filtro) {
    return Elegido(
        QFileDialog::getOpenFileName(QApplication::activeWindow(), Titulo(titulo), {}, FiltroQt(filtro)));
}

std::optional<std::string> DialogosQt::ArchivoGuardar(const std::string& titulo, const std::string& filtro,
                                                      const std::string& propuesta) {
    return Elegido(QFileDialog::getSaveFileName(QApplication::activeWindow(), Titulo(titulo),
                                                QString::fromStdString(propuesta), FiltroQt(filtro)));
}

std::optional<std::int32_t> DialogosQt::Color(std::int32_t propuesta) {
    const QColor inicial(propuesta & 0xFF, (propuesta >> 8) & 0xFF, (propuesta >> 16) & 0xFF);
    const QColor color = QColorDialog::getColor(inicial, QApplication::activeWindow());
    if (!color.isValid()) return std::nullopt;
    return color.red() + 256 * color.green() + 65536 * color.blue();
}

}  // namespace zel
