#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QLocale>
#include <QTimer>
#include <QTranslator>
#include <algorithm>
#include <csignal>
#include <cstring>
#include <initializer_list>
#include <iostream>

#include "Ordenes.h"
#include "Preguntas.h"
#include "Registro.h"
#include "VentanaPrincipal.h"
#include "platform/Dialogos.h"
#include "platform/qt/DialogosQt.h"

namespace {

bool EsUnaDe(const char* argumento, std::initializer_list<const char*> palabras) {
    return std::any_of(palabras.begin(), palabras.end(),
                       [&](const char* p) { return std::strcmp(argumento, p) == 0; });
}
bool EsOrden(int argc, char** argv) {
    return argc > 1 && EsUnaDe(argv[1], {"exportar", "info", "verificar", "convertir"});
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

// An order with its files, and the values of the options; empty for those not given.
struct Peticion {
    QString orden;
    QStringList archivos;
    QString ancho;
    QString corregir;
};

int DiUso() {
    std::cerr << "zelvisor: faltan o sobran argumentos. Uso:\n"
                 "  zelvisor exportar ENTRADA SALIDA.{png,svg,pdf} [--ancho PIXELS]\n"
                 "  zelvisor info ENTRADA\n"
                 "  zelvisor verificar ENTRADA [--corregir SALIDA]\n"
                 "  zelvisor convertir ENTRADA SALIDA.xml\n"
                 "  zelvisor {--registra | --anula-registro} [--sistema]\n";
    return 3;
}

int Ordena(const Peticion& p) {
    const auto es = [&](const char* orden, qsizetype cuantos) {
        return p.orden == QLatin1String(orden) && p.archivos.size() == cuantos;
    };
    const bool conCorregir = !p.corregir.isNull();
    if (conCorregir && (p.corregir.isEmpty() || p.orden != QLatin1String("verificar"))) return DiUso();
    if (es("exportar", 2)) return zel::Exporta(p.archivos[0], p.archivos[1], p.ancho);
    if (es("info", 1)) return zel::Informa(p.archivos[0]);
    if (es("verificar", 1)) return zel::Verifica(p.archivos[0], p.corregir);
    if (es("convertir", 2)) return zel::Convierte(p.archivos[0], p.archivos[1]);
    return DiUso();
}

}  // namespace

int main(int argc, char** argv) {
    // A file-size limit is a failure to write like any other, to be told and tidied up after.
    std::signal(SIGXFSZ, SIG_IGN);
    if (argc > 1 && EsUnaDe(argv[1], {"--registra", "--anula-registro"})) {
        const bool sistema = argc == 3 && EsUnaDe(argv[2], {"--sistema"});
        if (argc != (sistema ? 3 : 2)) return DiUso();
        return EsUnaDe(argv[1], {"--registra"}) ? zel::Registra(sistema) : zel::AnulaRegistro(sistema);
    }
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
        "  zelvisor [ESQUEMA]                              abre la ventana\n"
        "  zelvisor exportar ENTRADA SALIDA.{png,svg,pdf}  dibuja el esquema: imagen PNG, o SVG o PDF\n"
        "  zelvisor info ENTRADA                           cuenta qué hay en el archivo\n"
        "  zelvisor verificar ENTRADA [--corregir SALIDA]  busca faltas de integridad\n"
        "  zelvisor convertir ENTRADA SALIDA.xml           lee el esquema y lo guarda\n"
        "  zelvisor --registra [--sistema]                 registra la biblioteca, para que otros programas\n"
        "                                                  la encuentren por su nombre (--anula-registro: ya "
        "no)"));
    lector.addHelpOption();
    lector.addOption(
        {QStringLiteral("ancho"),
         QStringLiteral("Ancho en píxeles de la imagen PNG (1600 si no se da) o del dibujo SVG."),
         QStringLiteral("PIXELS")});
    lector.addOption({QStringLiteral("corregir"), QStringLiteral("Guarda en SALIDA el esquema corregido."),
                      QStringLiteral("SALIDA")});
    lector.addPositionalArgument(QStringLiteral("ESQUEMA"), QStringLiteral("Archivo que se abre."),
                                 QStringLiteral("[ESQUEMA]"));
    lector.process(programa);
    const QStringList argumentos = lector.positionalArguments();
    try {
        if (EsOrden(argc, argv)) {
            QStringList archivos = argumentos.mid(1);
            archivos = ConCarpetaEscribible(archivos << (lector.isSet(QStringLiteral("corregir"))
                                                             ? lector.value(QStringLiteral("corregir"))
                                                             : QString()));
            const QString corregir = archivos.takeLast();
            return Ordena({argumentos.value(0), archivos, lector.value(QStringLiteral("ancho")), corregir});
        }
        zel::instalaDialogos(std::make_shared<zel::DialogosQt>());
        zel::VentanaPrincipal ventana;
        ventana.show();
        const QStringList archivos = ConCarpetaEscribible(argumentos);
        // In the event loop: a window closed during the load ends the program.
        if (!archivos.isEmpty()) {
            QTimer::singleShot(0, &ventana,
                               [&] { zel::DiloSiFalla([&] { ventana.Abre(archivos.first()); }); });
        }
        return QApplication::exec();
    } catch (const std::exception& fallo) {
        std::cerr << "zelvisor: " << fallo.what() << '\n';
        return 3;
    }
}
