#include "Argumentos.h"

#include <filesystem>

#include "platform/qt/Rutas.h"

namespace zel {

namespace {

const QStringList ORDENES = {QStringLiteral("exportar"), QStringLiteral("info"), QStringLiteral("verificar"),
                             QStringLiteral("convertir")};

// Qt's own options, which it takes out by itself; those with a value, and those without.
constexpr const char* DE_QT[] = {
    "platform",    "platformpluginpath", "platformtheme", "plugin",     "qwindowgeometry",
    "qwindowicon", "qwindowtitle",       "style",         "stylesheet", "session",
    "display"};
constexpr const char* DE_QT_SIN_VALOR[] = {"reverse", "widgetcount"};

constexpr const char* USO =
    "Uso:\n"
    "  zelvisor [ESQUEMA]                                       abre la ventana\n"
    "  zelvisor exportar ENTRADA SALIDA.{png,svg,pdf} [--ancho PIXELES]\n"
    "                                                           dibuja el esquema\n"
    "  zelvisor info ENTRADA                                    cuenta qué hay en el archivo\n"
    "  zelvisor verificar ENTRADA [--corregir SALIDA]           busca faltas de integridad\n"
    "  zelvisor convertir ENTRADA SALIDA.xml                    lee el esquema y lo guarda\n"
    "  zelvisor {--registra | --anula-registro} [--sistema]     registra la biblioteca, o deja de hacerlo\n"
    "  zelvisor --help | --version\n";

constexpr const char* OPCIONES =
    "\nOpciones:\n"
    "  --ancho PIXELES    ancho de la imagen PNG (1600 si no se da) o del dibujo SVG\n"
    "  --corregir SALIDA  guarda en SALIDA el esquema corregido\n"
    "  --registra         apunta la biblioteca, para que otros programas la encuentren por su nombre\n"
    "  --anula-registro   borra lo que apuntó --registra\n"
    "  --sistema          con una de las dos: para todos los usuarios\n"
    "  -h, --help         muestra esta ayuda\n"
    "  -v, --version      muestra la versión\n"
    "\nEl programa acaba con 0 si todo ha ido bien, 1 si \"verificar\" ha encontrado algo, 2 si la entrada "
    "no\n"
    "se puede leer y 3 si los argumentos no son correctos o la salida no se puede escribir.\n";

// A word of the command line that is no file, and does not look like the name of one.
bool ParecePalabra(const QString& argumento) {
    std::error_code error;
    return !argumento.contains(u'/') && !argumento.contains(u'.') &&
           !std::filesystem::exists(RutaDe(argumento), error);
}

}  // namespace

Argumentos::Argumentos(int argc, const char* const* argv)
    : ayuda_(QStringList{QStringLiteral("h"), QStringLiteral("help")}),
      version_(QStringList{QStringLiteral("v"), QStringLiteral("version")}),
      ancho_(QStringLiteral("ancho"), {}, QStringLiteral("PIXELES")),
      corregir_(QStringLiteral("corregir"), {}, QStringLiteral("SALIDA")),
      registra_(QStringLiteral("registra")),
      anula_(QStringLiteral("anula-registro")),
      sistema_(QStringLiteral("sistema")) {
    lector_.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    for (const auto* opcion : {&ayuda_, &version_, &ancho_, &corregir_, &registra_, &anula_, &sistema_})
        lector_.addOption(*opcion);
    for (const char* opcion : DE_QT)
        lector_.addOption({QString::fromLatin1(opcion), {}, QStringLiteral("VALOR")});
    for (const char* opcion : DE_QT_SIN_VALOR)
        lector_.addOption(QCommandLineOption(QString::fromLatin1(opcion)));
    QStringList palabras;
    for (int i = 0; i < argc; ++i)
        palabras << DeRuta(argv[i]);
    lector_.parse(palabras);
    archivos_ = lector_.positionalArguments();
    if (!archivos_.isEmpty() && ORDENES.contains(archivos_.front())) orden_ = archivos_.takeFirst();
    BuscaErrores(palabras);
}

void Argumentos::BuscaErrores(const QStringList& palabras) {
    const QStringList raras = lector_.unknownOptionNames();
    if (!raras.isEmpty()) {
        error_ = QStringLiteral("no se conoce la opción \"%1\".").arg(raras.front());
    } else if (!lector_.errorText().isEmpty()) {
        error_ = QStringLiteral("falta el valor de la opción \"%1\", o le sobra.").arg(palabras.back());
    } else if (PideRegistro() || PideAnularRegistro()) {
        const bool sobra = !orden_.isEmpty() || !archivos_.isEmpty() || lector_.isSet(ancho_) ||
                           lector_.isSet(corregir_) || (PideRegistro() && PideAnularRegistro());
        if (sobra) error_ = QStringLiteral("el registro se hace o se anula, y nada más con ello.");
    } else if (ParaElSistema()) {
        error_ = QStringLiteral("--sistema va con --registra o con --anula-registro.");
    } else if (!orden_.isEmpty()) {
        return;
    } else if (archivos_.size() > 1) {
        error_ =
            QStringLiteral("se abre un esquema cada vez, y \"%1\" no es una orden.").arg(archivos_.front());
    } else if (archivos_.size() == 1 && ParecePalabra(archivos_.front())) {
        error_ = QStringLiteral("\"%1\" no es una orden ni un archivo.").arg(archivos_.front());
    } else if (lector_.isSet(ancho_) || lector_.isSet(corregir_)) {
        error_ = QStringLiteral("falta la orden.");
    }
}

QString Argumentos::Valor(const QCommandLineOption& opcion) const {
    return lector_.isSet(opcion) ? lector_.value(opcion) : QString();
}

std::string Argumentos::Uso() {
    return USO;
}

std::string Argumentos::Ayuda() {
    return "Visor de esquemas de sistemas de recursos hídricos.\n\n" + std::string(USO) + OPCIONES;
}

}  // namespace zel
