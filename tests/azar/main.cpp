// A user who does whatever comes to mind, and what has to hold whatever he does.
//
//   prueba_azar --gestos N [--semilla S]   plays sessions of 300 gestures, one seed after another, each in a
//                                          process of its own; one that fails is shortened, and its gestures
//                                          are written down.
//   prueba_azar --sesion S [--gestos N]    plays the session of that seed.
//   prueba_azar --guion FILE [--restos F]  plays the gestures in a file; F gets the schematics, and the panel
//                                          as it was seen and as it is repainted.
#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <QFontInfo>
#include <QProcess>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <optional>

#include "azar/Comprobaciones.h"

namespace zel::azar {

using namespace Qt::StringLiterals;

namespace {

constexpr std::size_t POR_SESION = 300;
constexpr int PLAZO = 120'000;  // milliseconds for a session

// How it begins, after how many gestures the panel is compared (a repaint after each one would hide what
// shows only after several), and what is done.
struct Sesion {
    Mesa::Principio principio = Mesa::Principio::Vacio;
    unsigned cadaCuantos = 1;
    std::vector<Gesto> gestos;
};

Sesion SesionDe(unsigned semilla, std::size_t cuantos) {
    constexpr Mesa::Principio PRINCIPIOS[] = {Mesa::Principio::Vacio, Mesa::Principio::Sencillo,
                                              Mesa::Principio::Trabajado, Mesa::Principio::Trabajado};
    return {PRINCIPIOS[semilla % 4], semilla / 4 % 2 ? 1U : 10U, Caprichos(semilla).Gestos(cuantos)};
}

void Escribe(const Sesion& sesion, const QString& ruta) {
    std::ofstream guion(ruta.toStdString());
    guion << static_cast<unsigned>(sesion.principio) << ' ' << sesion.cadaCuantos << '\n';
    for (const Gesto& g : sesion.gestos)
        guion << g << '\n';
}

std::optional<Sesion> Lee(const QString& ruta) {
    std::ifstream guion(ruta.toStdString());
    Sesion sesion;
    unsigned principio = 0;
    guion >> principio >> sesion.cadaCuantos;
    if (!guion || principio > unsigned(Mesa::Principio::Trabajado) || sesion.cadaCuantos == 0)
        return std::nullopt;
    sesion.principio = static_cast<Mesa::Principio>(principio);
    sesion.gestos = LeeGestos(guion);
    if (guion.bad()) return std::nullopt;
    return sesion;
}

// What went wrong, and after which gesture; empty when nothing. What the session leaves goes to `restos`.
std::string Juega(const Sesion& sesion, const QString& restos) {
    Mesa mesa(sesion.principio);
    Comprobaciones comprobaciones(mesa);
    std::size_t hechos = 0;
    while (hechos < sesion.gestos.size() && mesa.Fallo().empty()) {
        const Gesto& g = sesion.gestos[hechos++];
        mesa.Haz(g);
        comprobaciones.TrasUnGesto(g, hechos % sesion.cadaCuantos == 0 || hechos == sesion.gestos.size());
    }
    if (mesa.Fallo().empty()) return {};
    if (!restos.isEmpty()) {
        namespace fs = std::filesystem;
        fs::copy(mesa.carpeta / "", restos.toStdString(),
                 fs::copy_options::recursive | fs::copy_options::overwrite_existing);
    }
    return "after gesture " + std::to_string(hechos) + ": " + mesa.Fallo();
}

// The outcome of a session in a process of its own; empty when it went well.
std::string EnOtroProceso(const QStringList& argumentos) {
    QProcess otro;
    otro.start(QCoreApplication::applicationFilePath(), argumentos);
    if (!otro.waitForFinished(PLAZO)) {
        otro.kill();
        otro.waitForFinished();
        return "does not end";
    }
    if (otro.exitStatus() == QProcess::NormalExit && otro.exitCode() == 0) return {};
    const std::string fallo = otro.readAllStandardOutput().toStdString();
    if (otro.exitStatus() == QProcess::NormalExit && !fallo.empty()) return fallo;
    // A crash, or what a sanitizer found.
    return "crash: " + otro.readAllStandardError().right(3000).toStdString();
}

// Takes gestures away, in ever smaller pieces, as long as the session fails in the same way.
Sesion Acorta(Sesion sesion, const QString& guion, const std::string& fallo) {
    const auto clase = [](const std::string& texto) {
        const std::size_t desde = texto.find(": ");
        return texto.substr(desde == std::string::npos ? 0 : desde, 30);
    };
    const auto falla = [&](const Sesion& otra) {
        Escribe(otra, guion);
        const std::string suyo = EnOtroProceso({u"--guion"_s, guion});
        return !suyo.empty() && clase(suyo) == clase(fallo);
    };
    for (std::size_t pieza = sesion.gestos.size() / 2; pieza > 0; pieza = pieza == 1 ? 0 : (pieza + 1) / 2) {
        for (std::size_t fin = sesion.gestos.size(); fin > 0; fin = fin > pieza ? fin - pieza : 0) {
            Sesion otra = sesion;
            const std::size_t desde = fin > pieza ? fin - pieza : 0;
            if (fin > otra.gestos.size()) continue;
            otra.gestos.erase(otra.gestos.begin() + static_cast<std::ptrdiff_t>(desde),
                              otra.gestos.begin() + static_cast<std::ptrdiff_t>(fin));
            if (falla(otra)) sesion = std::move(otra);
        }
    }
    Escribe(sesion, guion);
    return sesion;
}

int JuegaVarias(unsigned semilla, std::size_t gestos) {
    int fallidas = 0;
    std::size_t hechos = 0;
    for (; hechos < gestos; ++semilla) {
        const std::size_t cuantos = std::min(POR_SESION, gestos - hechos);
        hechos += cuantos;
        const std::string fallo =
            EnOtroProceso({u"--sesion"_s, QString::number(semilla), u"--gestos"_s, QString::number(cuantos)});
        if (fallo.empty()) continue;
        ++fallidas;
        const QString guion = QDir::current().filePath(QStringLiteral("azar-%1.txt").arg(semilla));
        const Sesion corta = Acorta(SesionDe(semilla, cuantos), guion, fallo);
        std::cerr << "Seed " << semilla << ", " << fallo << "Shortened, in " << guion.toStdString() << ":\n";
        for (const Gesto& g : corta.gestos)
            std::cerr << "  " << g << '\n';
    }
    std::cout << hechos << " gestures, " << fallidas << " failed sessions\n";
    return fallidas == 0 ? 0 : 1;
}

}  // namespace

int Principal(const QStringList& argumentos) {
    QCommandLineParser ordenes;
    const QCommandLineOption gestos(u"gestos"_s, u"How many gestures."_s, u"N"_s,
                                    QString::number(POR_SESION));
    const QCommandLineOption semilla(u"semilla"_s, u"The first seed."_s, u"S"_s, u"1"_s);
    const QCommandLineOption sesion(u"sesion"_s, u"One session, of that seed."_s, u"S"_s);
    const QCommandLineOption guion(u"guion"_s, u"The gestures in a file."_s, u"FILE"_s);
    const QCommandLineOption restos(u"restos"_s, u"Where a failed session's files go."_s, u"FOLDER"_s);
    ordenes.addOptions({gestos, semilla, sesion, guion, restos});
    ordenes.addHelpOption();
    ordenes.process(argumentos);

    const std::size_t cuantos = ordenes.value(gestos).toULong();
    if (!ordenes.isSet(sesion) && !ordenes.isSet(guion))
        return JuegaVarias(ordenes.value(semilla).toUInt(), cuantos);
    const std::optional<Sesion> esta =
        ordenes.isSet(guion) ? Lee(ordenes.value(guion)) : SesionDe(ordenes.value(sesion).toUInt(), cuantos);
    if (!esta) {
        std::cerr << "not a sequence of gestures: " << ordenes.value(guion).toStdString() << '\n';
        return 2;
    }
    const std::string fallo =
        Juega(*esta, ordenes.isSet(restos) ? QFileInfo(ordenes.value(restos)).absoluteFilePath() : QString());
    if (!fallo.empty()) std::cout << fallo << '\n';
    return fallo.empty() ? 0 : 1;
}

}  // namespace zel::azar

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication programa(argc, argv);
    // Without the font's metric twin every text would be boxes.
    if (QFontInfo(QFont(QStringLiteral("Arial"))).family() != QLatin1String("Liberation Sans")) {
        std::cerr << "there is no Liberation Sans\n";
        return 2;
    }
    return zel::azar::Principal(QCoreApplication::arguments());
}
