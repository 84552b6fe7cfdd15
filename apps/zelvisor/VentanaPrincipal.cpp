#include "VentanaPrincipal.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QDragEnterEvent>
#include <QFileInfo>
#include <QMenuBar>
#include <QMimeData>
#include <QScreen>
#include <QTimer>

#include "Ajustes.h"
#include "Ayuda.h"
#include "Borrado.h"
#include "FormularioElemento.h"
#include "Preguntas.h"
#include "Recientes.h"
#include "control/Esquema.h"

namespace zel {

namespace {

constexpr double ACERCA = 0.5;  // of the visible area
constexpr double ALEJA = 2.0;
constexpr QSize TAMANYO{1280, 860};
constexpr QSize TAMANYO_MINIMO{640, 480};
constexpr double PARTE_DE_LA_PANTALLA = 0.9;  // at most; the frame takes some
const QString GEOMETRIA = QStringLiteral("ventana/geometria");

// The one local file among what is dragged; empty when it is anything else.
QString ArchivoArrastrado(const QMimeData* datos) {
    const QList<QUrl> urls = datos->urls();
    return urls.size() == 1 ? urls.front().toLocalFile() : QString();
}

}  // namespace

VentanaPrincipal::VentanaPrincipal()
    : esquema_(new Esquema(this)), adjuntos_(*esquema_), documentos_(*esquema_, adjuntos_, this) {
    setCentralWidget(esquema_);
    setAcceptDrops(true);
    AtiendeAlControl();
    CreaMenuArchivo();
    CreaMenuVer();
    CreaMenuAyuda();
    connect(&documentos_, &Documentos::Cambiado, this, &VentanaPrincipal::PonTitulo);
    connect(&documentos_, &Documentos::CargaCambiada, menuBar(), &QWidget::setDisabled);
    PonTitulo();
    setMinimumSize(TAMANYO_MINIMO);
    resize(TAMANYO.boundedTo(screen()->availableSize() * PARTE_DE_LA_PANTALLA));
    restoreGeometry(Ajustes().value(GEOMETRIA).toByteArray());
    esquema_->setFocus();
}

void VentanaPrincipal::AtiendeAlControl() {
    connect(esquema_, &Esquema::ErrorEnEvento, this,
            [this](qint32, const QString&, const QString& descripcion) { fallos_.Di(descripcion); });
    connect(esquema_, &Esquema::PeticionBorrado, this,
            [this](qint32& codigo) { DiloSiFalla([&] { PreguntaYBorra(*esquema_, this, codigo); }); });
    connect(esquema_, &Esquema::EditarElemento, this,
            [this](qint32& codigo) { DiloSiFalla([&] { EditaElemento(*esquema_, this, codigo); }); });
    connect(esquema_, &Esquema::AdjuntarArchivo, this,
            [this](qint32& codigo) { DiloSiFalla([&] { adjuntos_.Adjunta(codigo); }); });
    connect(esquema_, &Esquema::AdjuntarVer, this,
            [this](qint32& codigo) { DiloSiFalla([&] { adjuntos_.Muestra(codigo); }); });
    connect(esquema_, &Esquema::HabidoCambios, this, &QWidget::setWindowModified);
}

template <typename Orden>
QAction* VentanaPrincipal::PonOrden(QMenu* menu, const QString& texto, const QKeySequence& tecla,
                                    Orden orden) {
    return menu->addAction(texto, tecla, this, [orden] { DiloSiFalla(orden); });
}

void VentanaPrincipal::CreaMenuArchivo() {
    QMenu* menu = menuBar()->addMenu(tr("&Archivo"));
    PonOrden(menu, tr("&Nuevo"), Qt::CTRL | Qt::Key_N, [this] { documentos_.Nuevo(); });
    PonOrden(menu, tr("&Abrir..."), Qt::CTRL | Qt::Key_O, [this] { documentos_.PreguntaYAbre(); });
    QMenu* recientes = menu->addMenu(tr("Abrir &reciente"));
    recientes->setObjectName(QStringLiteral("recientes"));
    recientes->setToolTipsVisible(true);
    connect(recientes, &QMenu::aboutToShow, this, [this, recientes] { LlenaRecientes(recientes); });
    menu->addSeparator();
    PonOrden(menu, tr("&Guardar"), Qt::CTRL | Qt::Key_S, [this] { documentos_.Guarda(); });
    PonOrden(menu, tr("Guardar &como..."), Qt::CTRL | Qt::SHIFT | Qt::Key_S,
             [this] { documentos_.GuardaComo(); });
    menu->addSeparator();
    PonOrden(menu, tr("&Salir"), Qt::CTRL | Qt::Key_Q, [this] { close(); });
}

void VentanaPrincipal::CreaMenuVer() {
    QMenu* menu = menuBar()->addMenu(tr("&Ver"));
    PonOrden(menu, tr("A&cercar"), Qt::CTRL | Qt::Key_Plus, [this] { esquema_->CambiaZoom(ACERCA); });
    PonOrden(menu, tr("A&lejar"), Qt::CTRL | Qt::Key_Minus, [this] { esquema_->CambiaZoom(ALEJA); });
    PonOrden(menu, tr("&Todo el esquema"), Qt::Key_Home, [this] { esquema_->ResizeGrafo(); });
    menu->addSeparator();
    connect(menu, &QMenu::aboutToShow, esquema_, &Esquema::PonAlDiaMenu);
    for (const char* orden : {"menuVisorImagen", "menuVisorQuitarImagen"}) {
        if (auto* accion = esquema_->findChild<QAction*>(QString::fromLatin1(orden))) menu->addAction(accion);
    }
}

void VentanaPrincipal::CreaMenuAyuda() {
    QMenu* menu = menuBar()->addMenu(tr("A&yuda"));
    PonOrden(menu, tr("&Gestos y teclas"), Qt::Key_F1, [this] { MuestraAyuda(); });
}

void VentanaPrincipal::MuestraAyuda() {
    auto* ayuda = findChild<Ayuda*>();
    if (!ayuda) ayuda = new Ayuda(this);
    ayuda->show();
    ayuda->raise();
    ayuda->activateWindow();
}

void VentanaPrincipal::LlenaRecientes(QMenu* menu) {
    menu->clear();
    int numero = 0;
    for (const QString& ruta : Recientes::Rutas()) {
        const QFileInfo archivo(ruta);
        QString texto =
            archivo.fileName() + QStringLiteral("   ") + QDir::toNativeSeparators(archivo.absolutePath());
        texto.replace(u'&', QStringLiteral("&&"));
        PonOrden(menu, QStringLiteral("&%1  %2").arg(++numero).arg(texto), {}, [this, ruta] {
            AbreReciente(ruta);
        })->setToolTip(ruta);
    }
    if (menu->isEmpty()) {
        menu->addAction(tr("Ninguno"))->setEnabled(false);
        return;
    }
    menu->addSeparator();
    PonOrden(menu, tr("&Vaciar la lista"), {}, [] { Recientes::Vacia(); });
}

void VentanaPrincipal::AbreReciente(const QString& ruta) {
    if (QFileInfo::exists(ruta)) {
        documentos_.Abre(ruta);
        return;
    }
    Recientes::Quita(ruta);
    dialogos().MsgBox("Ya no se encuentra \"" + ruta.toStdString() +
                      "\". Se ha quitado de la lista de esquemas recientes.");
}

void VentanaPrincipal::PonTitulo() {
    setWindowModified(esquema_->bHabidoCambios());
    // A name may hold the mark's own text.
    QString nombre = documentos_.Nombre();
    nombre.replace(QStringLiteral("[*]"), QStringLiteral("[*][*]"));
    setWindowTitle(nombre + QStringLiteral("[*] - ") + QGuiApplication::applicationDisplayName());
}

void VentanaPrincipal::closeEvent(QCloseEvent* evento) {
    bool seCierra = false;
    DiloSiFalla([&] { seCierra = documentos_.PuedePerderse(); });
    evento->setAccepted(seCierra);
    if (seCierra) Ajustes().setValue(GEOMETRIA, saveGeometry());
}

void VentanaPrincipal::dragEnterEvent(QDragEnterEvent* evento) {
    if (!documentos_.Cargando() && !ArchivoArrastrado(evento->mimeData()).isEmpty())
        evento->acceptProposedAction();
}

void VentanaPrincipal::dropEvent(QDropEvent* evento) {
    const QString ruta = ArchivoArrastrado(evento->mimeData());
    if (ruta.isEmpty()) return;
    evento->acceptProposedAction();
    // Who dragged it waits until this returns, and a question may come.
    QTimer::singleShot(0, this, [this, ruta] { DiloSiFalla([&] { documentos_.Abre(ruta); }); });
}

}  // namespace zel
