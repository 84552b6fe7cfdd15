#include <unistd.h>

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QLocale>
#include <QTimer>
#include <QTranslator>
#include <csignal>
#include <iostream>

#include "Argumentos.h"
#include "Ordenes.h"
#include "Preguntas.h"
#include "Registro.h"
#include "VentanaPrincipal.h"
#include "platform/Dialogos.h"
#include "platform/qt/DialogosQt.h"

namespace {

constexpr int MAL_USO = 3;

bool HayPantalla(const zel::Argumentos& argumentos) {
    const auto hay = [](const char* variable) { return !qEnvironmentVariableIsEmpty(variable); };
    return argumentos.DaPlataforma() || hay("DISPLAY") || hay("WAYLAND_DISPLAY") || hay("QT_QPA_PLATFORM");
}

// The orders speak for themselves: what Qt has to say of a missing desktop is no news to their user.
void CallaAvisos(QtMsgType tipo, const QMessageLogContext&, const QString& texto) {
    if (tipo == QtCriticalMsg || tipo == QtFatalMsg) std::cerr << texto.toStdString() << '\n';
}

int DiQueNoHayPantalla() {
    std::cerr << "zelvisor: no hay pantalla en la que abrir la ventana, o no responde.\n"
                 "Ejecútelo en una sesión gráfica, o dibuje el esquema en una imagen:\n"
                 "  zelvisor exportar ENTRADA SALIDA.png\n";
    return MAL_USO;
}

// While the window's program begins Qt has one reason to give up, a display that does not answer, and would
// end it with a signal.
void AlEmpezar(QtMsgType tipo, const QMessageLogContext&, const QString&) {
    if (tipo == QtFatalMsg) _exit(DiQueNoHayPantalla());
}

// Logs go to the current directory; where nothing can be written there, to the user's own. The names of files
// keep their meaning.
template <typename... Nombres>
void VeACarpetaEscribible(Nombres&... nombres) {
    if (QFileInfo(QDir::currentPath()).isWritable()) return;
    const QDir aqui = QDir::current();
    const auto entera = [&](QString& nombre) {
        if (!nombre.isEmpty()) nombre = aqui.absoluteFilePath(nombre);
    };
    (entera(nombres), ...);
    QDir::setCurrent(QDir::homePath());
}

int DiUso(const QString& error) {
    std::cerr << "zelvisor: " << error.toStdString() << '\n' << zel::Argumentos::Uso();
    return MAL_USO;
}

int Ordena(const zel::Argumentos& p) {
    QString entrada = p.Archivos().value(0);
    QString salida = p.Archivos().value(1);
    QString corregir = p.Corregir();
    VeACarpetaEscribible(entrada, salida, corregir);
    const auto es = [&](const char* orden, qsizetype cuantos) {
        return p.Orden() == QLatin1String(orden) && p.Archivos().size() == cuantos;
    };
    const auto faltaOSobra = [&] {
        return DiUso(QStringLiteral("a la orden \"%1\" le faltan o le sobran argumentos.").arg(p.Orden()));
    };
    if (!corregir.isNull() && (corregir.isEmpty() || !es("verificar", 1))) return faltaOSobra();
    if (!p.Ancho().isNull() && p.Orden() != QLatin1String("exportar")) return faltaOSobra();
    if (es("exportar", 2)) return zel::Exporta(entrada, salida, p.Ancho());
    if (es("info", 1)) return zel::Informa(entrada);
    if (es("verificar", 1)) return zel::Verifica(entrada, corregir);
    if (es("convertir", 2)) return zel::Convierte(entrada, salida);
    return faltaOSobra();
}

int AbreVentana(const zel::Argumentos& argumentos) {
    zel::instalaDialogos(std::make_shared<zel::DialogosQt>());
    zel::VentanaPrincipal ventana;
    ventana.show();
    QString esquema = argumentos.Archivos().value(0);
    VeACarpetaEscribible(esquema);
    // In the event loop: a window closed during the load ends the program.
    if (!esquema.isEmpty()) {
        QTimer::singleShot(0, &ventana, [&] { zel::DiloSiFalla([&] { ventana.Abre(esquema); }); });
    }
    return QApplication::exec();
}

}  // namespace

int main(int argc, char** argv) {
    // A file-size limit is a failure to write like any other, to be told and tidied up after.
    std::signal(SIGXFSZ, SIG_IGN);
    const zel::Argumentos argumentos(argc, argv);
    if (argumentos.PideAyuda()) {
        std::cout << zel::Argumentos::Ayuda();
        return 0;
    }
    if (argumentos.PideVersion()) {
        std::cout << "zelvisor " ZEL_VERSION "\n";
        return 0;
    }
    if (!argumentos.Error().isEmpty()) {
        return DiUso(argumentos.Error());
    }
    if (argumentos.PideRegistro()) return zel::Registra(argumentos.ParaElSistema());
    if (argumentos.PideAnularRegistro()) return zel::AnulaRegistro(argumentos.ParaElSistema());
    const bool esOrden = !argumentos.Orden().isEmpty();
    // The orders draw without a display.
    if (esOrden)
        qputenv("QT_QPA_PLATFORM", "offscreen");
    else if (!HayPantalla(argumentos))
        return DiQueNoHayPantalla();
    qInstallMessageHandler(esOrden ? CallaAvisos : AlEmpezar);
    const QApplication programa(argc, argv);
    if (!esOrden) qInstallMessageHandler(nullptr);
    QCoreApplication::setApplicationName(QStringLiteral("zelvisor"));
    QCoreApplication::setApplicationVersion(QStringLiteral(ZEL_VERSION));
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Visor de esquemas"));

    // What Qt itself says, in Spanish whatever the system's language.
    QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Spain));
    QTranslator traductor;
    if (traductor.load(QStringLiteral("qtbase_es"), QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QCoreApplication::installTranslator(&traductor);
    }
    try {
        return esOrden ? Ordena(argumentos) : AbreVentana(argumentos);
    } catch (const std::exception& fallo) {
        std::cerr << "zelvisor: " << fallo.what() << '\n';
        return MAL_USO;
    }
}
