#include "platform/qt/DialogosQt.h"

#include <QApplication>
#include <QColorDialog>
#include <QFileDialog>
#include <QGuiApplication>
#include <QInputDialog>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <filesystem>
#include <utility>

#include "platform/qt/Rutas.h"

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

// A box over the window in use. A host may destroy that window, and the box with it, while it is open: then
// nothing was chosen.
template <typename Caja>
class Abierta {
  public:
    template <typename... Args>
    explicit Abierta(Args&&... args) : caja_(new Caja(std::forward<Args>(args)...)) {}
    Abierta(const Abierta&) = delete;
    Abierta& operator=(const Abierta&) = delete;
    ~Abierta() { delete caja_.data(); }

    Caja* operator->() const { return caja_; }
    bool Acepta() { return caja_->exec() == QDialog::Accepted && caja_; }

  private:
    QPointer<Caja> caja_;
};

std::optional<std::string> Elegido(Abierta<QFileDialog>& caja) {
    if (!caja.Acepta()) return std::nullopt;
    return RutaDe(caja->selectedFiles().value(0));
}

void Avisa(const std::string& texto, const std::string& titulo, const std::string& detalle) {
    Abierta<QMessageBox> caja(QMessageBox::NoIcon, Titulo(titulo), QString::fromStdString(texto),
                              QMessageBox::Ok, QApplication::activeWindow());
    caja->setTextFormat(Qt::PlainText);
    caja->setDetailedText(QString::fromStdString(detalle));
    caja->button(QMessageBox::Ok)->setText(QStringLiteral("Aceptar"));
    caja.Acepta();
}

}  // namespace

void DialogosQt::MsgBox(const std::string& texto, const std::string& titulo) {
    Avisa(texto, titulo, {});
}

void DialogosQt::AvisoConDetalle(const std::string& texto, const std::string& detalle) {
    Avisa(texto, {}, detalle);
}

// The name in the folder, or the folder; a whole path stays.
std::string DialogosQt::EnLaCarpeta(const std::string& nombre) const {
    return (std::filesystem::path(carpeta_) / nombre).string();
}

std::optional<std::string> DialogosQt::InputBox(const std::string& texto, const std::string& titulo,
                                                const std::string& propuesta) {
    Abierta<QInputDialog> caja(QApplication::activeWindow());
    caja->setWindowTitle(Titulo(titulo));
    caja->setLabelText(QString::fromStdString(texto));
    caja->setTextValue(QString::fromStdString(propuesta));
    caja->setOkButtonText(QStringLiteral("Aceptar"));
    caja->setCancelButtonText(QStringLiteral("Cancelar"));
    if (!caja.Acepta()) return std::nullopt;
    return caja->textValue().toStdString();
}

std::optional<std::string> DialogosQt::ArchivoAbrir(const std::string& titulo, const std::string& filtro) {
    Abierta<QFileDialog> caja(QApplication::activeWindow(), Titulo(titulo), DeRuta(carpeta_),
                              FiltroQt(filtro));
    caja->setFileMode(QFileDialog::ExistingFile);
    return Elegido(caja);
}

std::optional<std::string> DialogosQt::ArchivoGuardar(const std::string& titulo, const std::string& filtro,
                                                      const std::string& propuesta) {
    Abierta<QFileDialog> caja(QApplication::activeWindow(), Titulo(titulo), DeRuta(EnLaCarpeta(propuesta)),
                              FiltroQt(filtro));
    caja->setAcceptMode(QFileDialog::AcceptSave);
    return Elegido(caja);
}

std::optional<std::int32_t> DialogosQt::Color(std::int32_t propuesta) {
    const QColor inicial(propuesta & 0xFF, (propuesta >> 8) & 0xFF, (propuesta >> 16) & 0xFF);
    Abierta<QColorDialog> caja(inicial, QApplication::activeWindow());
    if (!caja.Acepta()) return std::nullopt;
    const QColor color = caja->selectedColor();
    return color.red() + 256 * color.green() + 65536 * color.blue();
}

}  // namespace zel
