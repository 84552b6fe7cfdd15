#include "VentanaPrincipal.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QKeyEvent>
#include <QLabel>
#include <QMenuBar>
#include <QStatusBar>
#include <QWheelEvent>
#include <cmath>

#include "Carga.h"
#include "control/Esquema.h"
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

VentanaPrincipal::VentanaPrincipal() : esquema_(new Esquema(this)), region_(new QLabel(this)) {
    setCentralWidget(esquema_);
    statusBar()->addPermanentWidget(region_);
    connect(esquema_, &Esquema::TextoEstado, this, [this](int panel, const QString& texto) {
        if (panel == 4) region_->setText(texto);
    });
    connect(esquema_, &Esquema::FallosDeDibujo, this, [this](const QStringList& fallos) {
        if (fallos.isEmpty())
            statusBar()->clearMessage();
        else
            statusBar()->showMessage(
                tr("No se ha podido dibujar todo (%1): %2").arg(fallos.size()).arg(fallos.first()));
    });
    connect(esquema_, &Esquema::ErrorEnEvento, this,
            [this](qint32, const QString&, const QString& descripcion) {
                statusBar()->showMessage(descripcion);
            });
    CreaMenus();
    setWindowTitle(QGuiApplication::applicationDisplayName());
    resize(1280, 860);
}

void VentanaPrincipal::CreaMenus() {
    QMenu* archivo = menuBar()->addMenu(tr("&Archivo"));
    archivo->addAction(tr("&Abrir..."), QKeySequence::Open, this,
                       [this] { DiloSiFalla([this] { PreguntaYAbre(); }); });
    archivo->addSeparator();
    archivo->addAction(tr("&Salir"), QKeySequence(Qt::CTRL | Qt::Key_Q), this, &QWidget::close);
    QMenu* ver = menuBar()->addMenu(tr("&Ver"));
    ver->addAction(tr("A&cercar"), QKeySequence(Qt::Key_Plus), this,
                   [this] { DiloSiFalla([this] { esquema_->CambiaZoom(ACERCA); }); });
    ver->addAction(tr("A&lejar"), QKeySequence(Qt::Key_Minus), this,
                   [this] { DiloSiFalla([this] { esquema_->CambiaZoom(ALEJA); }); });
    ver->addAction(tr("&Todo el esquema"), QKeySequence(Qt::Key_Home), this,
                   [this] { DiloSiFalla([this] { esquema_->ResizeGrafo(); }); });
}

void VentanaPrincipal::PreguntaYAbre() {
    const auto ruta = dialogos().ArchivoAbrir("Abrir esquema", "Esquemas|*.xml|Todos los archivos|*.*");
    if (ruta) Abre(QString::fromStdString(*ruta));
}

void VentanaPrincipal::Abre(const QString& ruta) {
    const EsquemaLeido leido = [&] {
        const CursorDeEspera espera;
        return LeeEsquema(ruta.toStdString());
    }();
    if (!leido.elementos) {
        dialogos().MsgBox("No se puede abrir \"" + ruta.toStdString() + "\": " + leido.motivo +
                          ".\n\nCompruebe la ruta y que el archivo es un esquema en XML.");
        return;
    }
    esquema_->GetElementos(leido.elementos);
    esquema_->ResizeGrafo();
    setWindowTitle(QFileInfo(ruta).fileName() + QStringLiteral(" - ") +
                   QGuiApplication::applicationDisplayName());
    if (leido.problemas.empty()) return;
    std::string aviso = "El esquema se ha abierto, pero faltaban datos o se repetían.";
    if (leido.conRegistro) {
        aviso += " Consulte el archivo " +
                 QDir::current().filePath(QStringLiteral("ErroresCarga.log")).toStdString() + ".";
    } else {
        aviso += leido.problemas;
    }
    dialogos().MsgBox(aviso);
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
