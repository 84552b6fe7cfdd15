// The library's records, and what a host is told when they are not what they should be.
#include <unistd.h>

#include <QFileInfo>
#include <QLibraryInfo>
#include <QProcess>
#include <QTest>

#include "componentes/SinBiblioteca.h"

namespace zel::pruebas {
namespace {

namespace fs = std::filesystem;

const QString REGISTRO = QStringLiteral("ZELVisorEsquemas-" ZEL_VERSION ".json");

class Registro : public SinBiblioteca {
  protected:
    static QStringList En(const QString& donde) {
        return QDir(donde).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }
    static QJsonObject Lee(const QString& archivo) {
        QFile lectura(archivo);
        return lectura.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(lectura.readAll()).object()
                                                 : QJsonObject();
    }
    // The record of another version, or of another library, beside the library's own.
    void Escribe(const QString& archivo, QJsonObject registro) {
        QDir().mkpath(QFileInfo(archivo).path());
        QFile escritura(archivo);
        ASSERT_TRUE(escritura.open(QIODevice::WriteOnly));
        escritura.write(QJsonDocument(registro).toJson());
    }
    QJsonObject Con(const QString& clave, const QJsonValue& valor) const {
        QJsonObject registro = Lee(DelUsuario(REGISTRO));
        registro[clave] = valor;
        return registro;
    }
    static Respuesta Pide(const QString& clase = ELEMENTOS, const char* version = "") {
        return Falla([&] { Componentes().Crea(clase, QVersionNumber::fromString(QLatin1String(version))); });
    }
    static bool Dice(const Respuesta& fallo, const char* texto) {
        return fallo.texto.find(texto) != std::string::npos;
    }
};

TEST_F(Registro, TellsWhereTheLibraryIsAndWhatItMakes) {
    const Respuesta hecho = Entrada("zelRegistra");
    EXPECT_EQ(hecho.numero, 0) << hecho.texto;
    ASSERT_EQ(En(DelUsuario()), QStringList{REGISTRO});
    const QJsonObject registro = Lee(DelUsuario(REGISTRO));
    EXPECT_EQ(registro["biblioteca"], "ZELVisorEsquemas");
    EXPECT_EQ(registro["version"], ZEL_VERSION);
    EXPECT_EQ(registro["ayuda"], "ZEL Editor de la topoligía de esquemas Zelmar");
    EXPECT_EQ(registro["ruta"], QFileInfo(ZEL_BIBLIOTECA).canonicalFilePath());
    QStringList clases;
    for (const auto& clase : registro["clases"].toArray()) {
        clases.push_back(clase.toObject()["nombre"].toString().section('.', 1));
        EXPECT_FALSE(clase.toObject()["ayuda"].toString().isEmpty());
    }
    QStringList esperadas = CLASES;
    clases.sort();
    esperadas.sort();
    EXPECT_EQ(clases, esperadas);

    const std::string antes = LeeArchivo(DelUsuario(REGISTRO).toStdString());
    EXPECT_EQ(Entrada("zelRegistra").numero, 0);
    EXPECT_EQ(LeeArchivo(DelUsuario(REGISTRO).toStdString()), antes);
    EXPECT_EQ(En(DelUsuario()), QStringList{REGISTRO}) << "nothing but the record";
}

TEST_F(Registro, IsRemovedAndNothingElse) {
    EXPECT_EQ(Entrada("zelAnulaRegistro").numero, 0) << "there is none";
    ASSERT_EQ(Entrada("zelRegistra").numero, 0);
    Escribe(DelUsuario("ZELVisorEsquemas-0.0.json"), Con("version", "0.0"));
    Escribe(DelUsuario("Otra-" ZEL_VERSION ".json"), Con("biblioteca", "Otra"));
    Escribe(DelSistema(REGISTRO), Con("version", ZEL_VERSION));
    EXPECT_EQ(Entrada("zelAnulaRegistro").numero, 0);
    EXPECT_EQ(En(DelUsuario()), (QStringList{"Otra-" ZEL_VERSION ".json", "ZELVisorEsquemas-0.0.json"}));
    EXPECT_EQ(En(DelSistema()), QStringList{REGISTRO});
}

TEST_F(Registro, TheSystemsIsRootsAlone) {
    if (geteuid() == 0) {
        EXPECT_EQ(Entrada("zelRegistra", true).numero, 0);
        EXPECT_EQ(En(DelSistema()), QStringList{REGISTRO});
        EXPECT_EQ(En(DelUsuario()), QStringList());
        EXPECT_EQ(Pide().numero, 0);
        EXPECT_EQ(Entrada("zelAnulaRegistro", true).numero, 0);
        EXPECT_EQ(En(DelSistema()), QStringList());
        ASSERT_EQ(seteuid(65534), 0);
    }
    for (const char* entrada : {"zelRegistra", "zelAnulaRegistro"}) {
        const Respuesta negado = Entrada(entrada, true);
        EXPECT_EQ(negado.numero, 70);
        EXPECT_TRUE(Dice(negado, "administrador")) << negado.texto;
    }
    if (getuid() == 0) {
        EXPECT_EQ(Entrada("zelRegistra").numero, 75) << "a folder of root's";
        ASSERT_EQ(seteuid(0), 0);
    }
    EXPECT_EQ(En(DelSistema()), QStringList());
}

TEST_F(Registro, TheNewestThatIsUnderstoodIsTakenAndTheUsersFirst) {
    ASSERT_EQ(Entrada("zelRegistra").numero, 0);
    // Each record of another version names a library that is not there, by which it is known which was taken.
    const auto ausente = [&](const QString& archivo, const QString& version, int interfaz = 1) {
        QJsonObject registro = Con("version", version);
        registro["ruta"] = "/no/hay/" + version;
        registro["interfaz"] = interfaz;
        Escribe(archivo, registro);
    };
    ausente(DelUsuario("ZELVisorEsquemas-0.0.9.json"), "0.0.9");
    ausente(DelUsuario("ZELVisorEsquemas-7.0.json"), "7.0", 2);
    ausente(DelSistema("ZELVisorEsquemas-5.0.json"), "5.0");
    EXPECT_EQ(Pide().numero, 0);
    EXPECT_EQ(Pide(ELEMENTOS, ZEL_VERSION ".0").numero, 0) << "the same version";
    EXPECT_TRUE(Dice(Pide(ELEMENTOS, "0.0.9"), "/no/hay/0.0.9"));
    EXPECT_TRUE(Dice(Pide(ELEMENTOS, "5"), "/no/hay/5.0"));
    const Respuesta ninguna = Pide(ELEMENTOS, "7");
    EXPECT_EQ(ninguna.numero, 429);
    EXPECT_TRUE(Dice(ninguna, "no está registrada la versión 7")) << ninguna.texto;
    ausente(DelUsuario("ZELVisorEsquemas-0.10.json"), "0.10");
    EXPECT_TRUE(Dice(Pide(), "/no/hay/0.10")) << "newer than 0.9";
}

TEST_F(Registro, AHostIsToldWhatIsWrongAndWhatToDo) {
    const Respuesta nadie = Pide("ZELVisorEsquemas.Nada");
    EXPECT_EQ(nadie.numero, 429);
    EXPECT_TRUE(Dice(nadie, "Nadie ha registrado la clase \"ZELVisorEsquemas.Nada\"")) << nadie.texto;

    // A copy that is registered and goes.
    const QString copia = QString::fromStdString(carpeta / "copia.so");
    ASSERT_TRUE(QFile::copy(ZEL_BIBLIOTECA, copia));
    ASSERT_EQ(Entrada("zelRegistra", false, copia).numero, 0);
    EXPECT_EQ(Lee(DelUsuario(REGISTRO))["ruta"], copia);
    ASSERT_TRUE(QFile::rename(copia, copia + ".antes"));
    const Respuesta ida = Pide();
    EXPECT_EQ(ida.numero, 53);
    EXPECT_TRUE(Dice(ida, "copia.so ya no está")) << ida.texto;

    // Something else in its place.
    Escribe(DelUsuario(REGISTRO), Con("ruta", ZEL_RAIZ "/README.md"));
    EXPECT_EQ(Pide().numero, 48);
    Escribe(DelUsuario(REGISTRO),
            Con("ruta", QLibraryInfo::path(QLibraryInfo::LibrariesPath) + "/libQt6Svg.so.6"));
    EXPECT_TRUE(Dice(Pide(), "no tiene componentes")) << Pide().texto;
}

TEST_F(Registro, ADamagedRecordIsNamed) {
    ASSERT_EQ(Entrada("zelRegistra").numero, 0);
    const std::string sano = LeeArchivo(DelUsuario(REGISTRO).toStdString());
    QStringList danados = {QString::fromStdString(sano.substr(0, sano.size() / 2)), "", "[]"};
    for (const char* clave : {"biblioteca", "version", "interfaz", "ruta", "clases"})
        danados.push_back(QJsonDocument(Con(clave, QJsonValue::Null)).toJson());
    danados.push_back(QJsonDocument(Con("ruta", "libZELVisorEsquemas.so")).toJson());
    for (const QString& contenido : danados) {
        carpeta.Escribe("usuario/zel/componentes/" + REGISTRO.toStdString(), contenido.toStdString());
        const Respuesta danado = Pide();
        EXPECT_EQ(danado.numero, 321) << contenido.toStdString();
        EXPECT_TRUE(Dice(danado, "está dañado. Bórrelo")) << danado.texto;
        EXPECT_TRUE(Dice(danado, REGISTRO.toUtf8())) << danado.texto;
    }
    EXPECT_EQ(Pide("Otra.Clase").numero, 429) << "not this library's";
    carpeta.Escribe("usuario/zel/componentes/ZELVisorEsquemas-0.0.json", sano);
    EXPECT_EQ(Pide().numero, 0) << "a sound one beside it";
    ASSERT_TRUE(QDir().mkpath(DelSistema()));
    ASSERT_TRUE(QFile::rename(DelUsuario("ZELVisorEsquemas-0.0.json"), DelSistema(REGISTRO)));
    EXPECT_EQ(Pide().numero, 321) << "the user's own goes before the system's";
    EXPECT_EQ(Entrada("zelRegistra").numero, 0);
    EXPECT_EQ(Pide().numero, 0) << "registering mends it";
}

TEST_F(Registro, ALibraryThatIsNotWhatItsRecordSaysIsNotUsed) {
    ASSERT_EQ(Entrada("zelRegistra").numero, 0);
    const QJsonObject sano = Lee(DelUsuario(REGISTRO));
    Escribe(DelUsuario(REGISTRO), Con("version", "9.9"));
    const Respuesta otra = Pide();
    EXPECT_EQ(otra.numero, 48);
    EXPECT_TRUE(Dice(otra, "es de la versión " ZEL_VERSION ", y se esperaba la 9.9")) << otra.texto;
    Escribe(DelUsuario(REGISTRO), sano);
    QJsonArray clases = sano["clases"].toArray();
    clases.push_back(QJsonObject{{"nombre", "ZELVisorEsquemas.Futura"}});
    Escribe(DelUsuario(REGISTRO), Con("clases", clases));
    EXPECT_TRUE(Dice(Pide("ZELVisorEsquemas.Futura"), "no tiene la clase \"ZELVisorEsquemas.Futura\""));
    EXPECT_EQ(Pide().numero, 0);
}

TEST_F(Registro, TheEntryPointsKeepTheirFailuresToThemselves) {
    QLibrary biblioteca(ZEL_BIBLIOTECA);
    const auto clase =
        reinterpret_cast<int (*)(const char*, const char*, int, const void**, char*, std::size_t)>(
            biblioteca.resolve("zelObjetoDeClase"));
    ASSERT_TRUE(clase);
    const void* objeto = &biblioteca;
    std::array<char, 40> texto;
    texto.fill('x');
    EXPECT_EQ(clase("ZELVisorEsquemas.Ñandú", nullptr, 1, &objeto, texto.data(), 34), 429);
    EXPECT_EQ(objeto, nullptr);
    EXPECT_STREQ(texto.data(), "no tiene la clase \"ZELVisorEsquem");
    EXPECT_EQ(clase("Ñandú", nullptr, 1, &objeto, texto.data(), 21), 429);
    EXPECT_STREQ(texto.data(), "no tiene la clase \"") << "no half of a character";
    EXPECT_EQ(texto[34], 'x') << "nothing beyond";
    EXPECT_EQ(clase(nullptr, nullptr, 1, &objeto, nullptr, 0), 91);
    EXPECT_EQ(clase("ZELVisorEsquemas.Punto", nullptr, 2, &objeto, nullptr, 0), 48) << "another interface";
    EXPECT_EQ(clase("zelvisoresquemas.punto", nullptr, 1, &objeto, nullptr, 0), 0);
    EXPECT_NE(objeto, nullptr);
}

TEST_F(Registro, TheProgramRegistersWithoutADisplay) {
    QProcess programa;
    QProcessEnvironment entorno = QProcessEnvironment::systemEnvironment();
    for (const char* variable : {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY"})
        entorno.remove(variable);
    programa.setProcessEnvironment(entorno);
    const auto ejecuta = [&](const QStringList& argumentos) {
        programa.start(ZEL_PROGRAMA, argumentos);
        programa.waitForFinished();
        return programa.exitCode();
    };
    EXPECT_EQ(ejecuta({"--registra"}), 0);
    EXPECT_EQ(programa.readAllStandardOutput(), "Registrada " +
                                                    QFileInfo(ZEL_BIBLIOTECA).canonicalFilePath().toUtf8() +
                                                    " en " + DelUsuario(REGISTRO).toUtf8() + "\n");
    EXPECT_EQ(Pide().numero, 0);
    EXPECT_EQ(ejecuta({"--anula-registro"}), 0);
    EXPECT_EQ(En(DelUsuario()), QStringList());
    EXPECT_EQ(ejecuta({"--anula-registro"}), 0);
    EXPECT_EQ(ejecuta({"--registra", "--todo"}), 3);
    carpeta.Escribe("estorbo", "");
    entorno.insert("XDG_DATA_HOME", QString::fromStdString(carpeta / "estorbo"));
    programa.setProcessEnvironment(entorno);
    EXPECT_EQ(ejecuta({"--registra"}), 3);
    EXPECT_TRUE(programa.readAllStandardError().startsWith("zelvisor: No se puede escribir"));
}

// The test itself: a host that did link the library would prove nothing.
TEST(Anfitrion, LinksNothingOfTheLibrary) {
    QProcess ldd;
    ldd.start("ldd", {QCoreApplication::applicationFilePath()});
    ASSERT_TRUE(ldd.waitForFinished());
    const QByteArray bibliotecas = ldd.readAll();
    EXPECT_TRUE(bibliotecas.contains("libQt6Widgets"));
    EXPECT_FALSE(bibliotecas.contains("ZELVisorEsquemas")) << bibliotecas.constData();
    const std::string cabecera = LeeArchivo(ZEL_CABECERAS "/Componentes.h");
    EXPECT_NE(cabecera.find("#include <QLibrary>"), std::string::npos);
    EXPECT_EQ(cabecera.find("#include \""), std::string::npos) << "it needs no other header of the library's";
}

}  // namespace
}  // namespace zel::pruebas
