#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>
#include <algorithm>
#include <cstring>
#include <initializer_list>
#include <iostream>

#include "Ordenes.h"
#include "VentanaPrincipal.h"
#include "platform/Dialogos.h"
#include "platform/qt/DialogosQt.h"

namespace {

bool EsUnaDe(const char* argumento, std::initializer_list<const char*> palabras) {
    return std::any_of(palabras.begin(), palabras.end(),
                       [&](const char* p) { return std::strcmp(argumento, p) == 0; });
}
bool EsOrden(int argc, char** argv) {
    return argc > 1 && EsUnaDe(argv[1], {"exportar", "info"});
}
bool PideAyuda(int argc, char** argv) {
    return std::any_of(argv + 1, argv + argc, [](const char* a) {
        return EsUnaDe(a, {"-h", "--help", "--help-all"});
    });
}

bool HayPantalla(int argc, char** argv) {
    if (std::any_of(argv + 1, argv + argc, [](const char* a) {
            return EsUnaDe(a, {"-platform", "--platform"});
        }))
        return true;
    const auto hay = [](const char* variable) { return !qEnvironmentVariableIsEmpty(variable); };
    return hay("DISPLAY") || hay("WAYLAND_DISPLAY") || hay("QT_QPA_PLATFORM");
}

// The orders speak for themselves: what Qt has to say of a missing desktop is no news to their user.
void CallaAvisos(QtMsgType tipo, const QMessageLogContext&, const QString& texto) {
    if (tipo == QtCriticalMsg || tipo == QtFatalMsg) std::cerr << texto.toStdString() << '\n';
}

// Logs go to the current directory; where nothing can be written there, to the user's own. The arguments
// keep their meaning.
QStringList ConCarpetaEscribible(QStringList archivos) {
    if (QFileInfo(QDir::currentPath()).isWritable()) return archivos;
    for (QString& archivo : archivos)
        archivo = QFileInfo(archivo).absoluteFilePath();
    QDir::setCurrent(QDir::homePath());
    return archivos;
}

int Ordena(const QStringList& argumentos, const QCommandLineParser& lector) {
    const QString orden = argumentos.value(0);
    if (orden == QStringLiteral("exportar") && argumentos.size() == 3) {
        return zel::Exporta(argumentos[1], argumentos[2], lector.value(QStringLiteral("ancho")));
    }
    if (orden == QStringLiteral("info") && argumentos.size() == 2) return zel::Informa(argumentos[1]);
    std::cerr << "zelvisor: faltan o sobran argumentos. Uso:\n"
                 "  zelvisor exportar ENTRADA SALIDA.png [--ancho PIXELS]\n"
                 "  zelvisor info ENTRADA\n";
    return 1;
}

}  // namespace

int main(int argc, char** argv) {
    // The orders draw without a display.
    if (EsOrden(argc, argv) || PideAyuda(argc, argv)) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        qInstallMessageHandler(CallaAvisos);
    }
    if (!HayPantalla(argc, argv)) {
        std::cerr << "zelvisor: no hay pantalla en la que abrir la ventana.\n"
                     "Ejecútelo en una sesión gráfica, o dibuje el esquema en una imagen:\n"
                     "  zelvisor exportar ENTRADA SALIDA.png\n";
        return 1;
    }
    const QApplication programa(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("zelvisor"));
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Visor de esquemas"));

    // What Qt itself says, in Spanish whatever the system's language.
    QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Spain));
    QTranslator traductor;
    if (traductor.load(QStringLiteral("qtbase_es"), QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QCoreApplication::installTranslator(&traductor);
    }

    QCommandLineParser lector;
    lector.setApplicationDescription(QStringLiteral(
        "Visor de esquemas de sistemas de recursos hídricos.\n\n"
        "  zelvisor [ESQUEMA]                                     abre la ventana\n"
        "  zelvisor exportar ENTRADA SALIDA.png [--ancho PIXELS]  dibuja el esquema en una imagen\n"
        "  zelvisor info ENTRADA                                  cuenta qué hay en el archivo"));
    lector.addHelpOption();
    lector.addOption({QStringLiteral("ancho"),
                      QStringLiteral("Ancho de la imagen en píxeles (1600 si no se da)."),
                      QStringLiteral("PIXELS")});
    lector.addPositionalArgument(QStringLiteral("ESQUEMA"), QStringLiteral("Archivo que se abre."),
                                 QStringLiteral("[ESQUEMA]"));
    lector.process(programa);
    const QStringList argumentos = lector.positionalArguments();
    try {
        if (EsOrden(argc, argv)) {
            return Ordena(argumentos.mid(0, 1) + ConCarpetaEscribible(argumentos.mid(1)), lector);
        }
        zel::instalaDialogos(std::make_shared<zel::DialogosQt>());
        zel::VentanaPrincipal ventana;
        ventana.show();
        const QStringList archivos = ConCarpetaEscribible(argumentos);
        if (!archivos.isEmpty()) ventana.Abre(archivos.first());
        return QApplication::exec();
    } catch (const std::exception& fallo) {
        std::cerr << "zelvisor: " << fallo.what() << '\n';
        return 1;
    }
}
