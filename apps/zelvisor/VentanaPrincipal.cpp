#include "VentanaPrincipal.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QKeyEvent>
#include <QMenuBar>
#include <QWheelEvent>
#include <cmath>

#include "control/Esquema.h"
#include "file/lectorArchivo.h"
#include "platform/Dialogos.h"

namespace zel {

namespace {

constexpr double ACERCA = 0.5;  // of the visible area
constexpr double ALEJA = 2.0;
constexpr double PASO = 0.1;  // of the visible width or height
constexpr double GRADOS_POR_MUESCA = 120;

class CursorDeEspera {
  public:
    CursorDeEspera() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    CursorDeEspera(const CursorDeEspera&) = delete;
    CursorDeEspera& operator=(const CursorDeEspera&) = delete;
    ~CursorDeEspera() { QApplication::restoreOverrideCursor(); }
};

// Runs what may fail and tells the user; nothing may leave an event handler.
template <typename Accion>
void DiloSiFalla(Accion accion) {
    try {
        accion();
    } catch (const std::exception& fallo) {
        dialogos().MsgBox(fallo.what());
    }
}

}  // namespace

VentanaPrincipal::VentanaPrincipal() : esquema_(new Esquema(this)) {
    setCentralWidget(esquema_);
    connect(esquema_, &Esquema::ErrorEnEvento, this, [](qint32, const QString&, const QString& descripcion) {
        dialogos().MsgBox(descripcion.toStdString());
    });
    CreaMenus();
    setWindowTitle(QGuiApplication::applicationDisplayName());
    resize(1280, 860);
    esquema_->setFocus();
}

void VentanaPrincipal::CreaMenus() {
    QMenu* archivo = menuBar()->addMenu(tr("&Archivo"));
    archivo->addAction(tr("&Abrir..."), QKeySequence::Open, this,
                       [this] { DiloSiFalla([this] { PreguntaYAbre(); }); });
    archivo->addAction(tr("&Guardar"), QKeySequence::Save, this, [this] {
        if (ruta_.isEmpty())
            GuardaComo();
        else
            Guarda(ruta_);
    });
    archivo->addAction(tr("Guardar &como..."), QKeySequence::SaveAs, this, [this] { GuardaComo(); });
    archivo->addSeparator();
    archivo->addAction(tr("&Salir"), QKeySequence(Qt::CTRL | Qt::Key_Q), this, &QWidget::close);
    QMenu* ver = menuBar()->addMenu(tr("&Ver"));
    ver->addAction(tr("A&cercar"), QKeySequence(Qt::Key_Plus), this,
                   [this] { DiloSiFalla([this] { esquema_->CambiaZoom(ACERCA); }); });
    ver->addAction(tr("A&lejar"), QKeySequence(Qt::Key_Minus), this,
                   [this] { DiloSiFalla([this] { esquema_->CambiaZoom(ALEJA); }); });
    ver->addAction(tr("&Todo el esquema"), QKeySequence(Qt::Key_Home), this,
                   [this] { DiloSiFalla([this] { esquema_->ResizeGrafo(); }); });
    ver->addSeparator();
    for (const char* orden : {"menuVisorImagen", "menuVisorQuitarImagen"}) {
        if (auto* accion = esquema_->findChild<QAction*>(QString::fromLatin1(orden))) ver->addAction(accion);
    }
}

void VentanaPrincipal::PreguntaYAbre() {
    const auto ruta = dialogos().ArchivoAbrir("Abrir esquema", "Esquemas|*.xml|Todos los archivos|*.*");
    if (ruta) Abre(QString::fromStdString(*ruta));
}

void VentanaPrincipal::Abre(const QString& ruta) {
    const auto noSeAbre = [&](const std::string& motivo) {
        dialogos().MsgBox("No se puede abrir \"" + ruta.toStdString() + "\": " + motivo +
                          ".\n\nCompruebe la ruta y que el archivo es un esquema en XML.");
    };
    lectorArchivo lector;
    lector.NombreArchivo(ruta.toStdString());
    const std::string motivo = lector.MotivoParaNoAbrir();
    if (!motivo.empty()) {
        noSeAbre(motivo);
        return;
    }
    // What is begun with one schematic must not go on with the other.
    menuBar()->setEnabled(false);
    std::string fallo;
    try {
        const CursorDeEspera espera;
        esquema_->ArchivoAbrir(ruta);
    } catch (const Fallo& error) {
        fallo = error.Description();
    }
    menuBar()->setEnabled(true);
    if (!fallo.empty()) {
        esquema_->Refresh();
        noSeAbre(fallo);
        return;
    }
    PonRuta(ruta);
    DiProblemas();
}

void VentanaPrincipal::PonRuta(const QString& ruta) {
    ruta_ = ruta;
    setWindowTitle(QFileInfo(ruta).fileName() + QStringLiteral(" - ") +
                   QGuiApplication::applicationDisplayName());
}

void VentanaPrincipal::DiProblemas() {
    if (esquema_->ProblemasDeCarga().isEmpty()) return;
    dialogos().MsgBox("El esquema se ha abierto, pero faltaban datos o se repetían. Consulte el archivo " +
                      QDir::current().filePath(QStringLiteral("ErroresCarga.log")).toStdString() + ".");
}

void VentanaPrincipal::Guarda(const QString& ruta) {
    try {
        esquema_->ArchivoGuardar(ruta);
        PonRuta(ruta);
    } catch (const Fallo& error) {
        dialogos().MsgBox("No se puede guardar \"" + ruta.toStdString() + "\": " + error.Description() +
                          ".\n\nEl archivo que hubiera con ese nombre sigue como estaba.");
    }
}

void VentanaPrincipal::GuardaComo() {
    const auto ruta = dialogos().ArchivoGuardar("Guardar esquema", "Esquemas|*.xml|Todos los archivos|*.*",
                                                ruta_.toStdString());
    if (ruta) Guarda(QString::fromStdString(*ruta));
}

// A closer view for each notch away from the user; a touchpad sends parts of a notch.
void VentanaPrincipal::CambiaZoomConRueda(double muescas) {
    const bool acercando = muescas > 0;
    if (muescas == 0 || negado_ == (acercando ? Sentido::Cerca : Sentido::Lejos)) return;
    const bool hecho = esquema_->CambiaZoom(std::pow(ACERCA, muescas));
    // One notice is enough: the wheel goes on turning.
    negado_ = hecho ? Sentido::Ninguno : acercando ? Sentido::Cerca : Sentido::Lejos;
}

void VentanaPrincipal::wheelEvent(QWheelEvent* evento) {
    DiloSiFalla([&] {
        const double muescas = evento->angleDelta().y() / GRADOS_POR_MUESCA;
        if (evento->modifiers() & Qt::ControlModifier)
            CambiaZoomConRueda(muescas);
        else if (evento->modifiers() & Qt::ShiftModifier)
            esquema_->DesplazaVista(-muescas * PASO, 0);
        else
            esquema_->DesplazaVista(-evento->angleDelta().x() / GRADOS_POR_MUESCA * PASO, muescas * PASO);
    });
    evento->accept();
}

void VentanaPrincipal::keyPressEvent(QKeyEvent* evento) {
    DiloSiFalla([&] {
        switch (evento->key()) {
            case Qt::Key_Left:
                esquema_->DesplazaVista(-PASO, 0);
                break;
            case Qt::Key_Right:
                esquema_->DesplazaVista(PASO, 0);
                break;
            case Qt::Key_Up:
                esquema_->DesplazaVista(0, PASO);
                break;
            case Qt::Key_Down:
                esquema_->DesplazaVista(0, -PASO);
                break;
            default:
                QMainWindow::keyPressEvent(evento);
        }
    });
}

}  // namespace zel
