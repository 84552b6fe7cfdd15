#include <QApplication>
#include <QCommandLineParser>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>
#include <cstring>
#include <iostream>

#include "Ordenes.h"
#include "VentanaPrincipal.h"
#include "platform/Dialogos.h"
#include "platform/qt/DialogosQt.h"

namespace {

bool EsOrden(int argc, char** argv) {
    return argc > 1 && (std::strcmp(argv[1], "exportar") == 0 || std::strcmp(argv[1], "info") == 0);
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
    if (EsOrden(argc, argv)) qputenv("QT_QPA_PLATFORM", "offscreen");
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
        if (EsOrden(argc, argv)) return Ordena(argumentos, lector);
        zel::instalaDialogos(std::make_shared<zel::DialogosQt>());
        zel::VentanaPrincipal ventana;
        ventana.show();
        if (!argumentos.isEmpty()) ventana.Abre(argumentos.first());
        return QApplication::exec();
    } catch (const std::exception& fallo) {
        std::cerr << "zelvisor: " << fallo.what() << '\n';
        return 1;
    }
}
