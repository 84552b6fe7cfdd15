#include "control/componentes/RegistroPropio.h"

#include <dlfcn.h>
#include <unistd.h>

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>

#include "control/componentes/Clases.h"
#include "platform/Fallo.h"

namespace zel {

namespace {

constexpr const char* BIBLIOTECA = "ZELVisorEsquemas";

// The file that this code has been loaded from.
QString RutaPropia() {
    Dl_info donde{};
    if (dladdr(reinterpret_cast<const void*>(&RutaPropia), &donde) == 0 || !donde.dli_fname) throw Fallo(53);
    QString ruta = QFileInfo(QString::fromLocal8Bit(donde.dli_fname)).canonicalFilePath();
    if (ruta.isEmpty()) throw Fallo(53);
    return ruta;
}

// The system's records lie where an administrator puts what no package brings.
QString ArchivoDeRegistro(bool delSistema) {
    QStringList carpetas = RegistroDeComponente::Carpetas();
    QString carpeta = carpetas.takeFirst();
    if (delSistema) {
        if (geteuid() != 0) {
            throw Fallo(70,
                        "El registro de todo el sistema sólo lo cambia el administrador: ejecútelo como "
                        "root, o registre la biblioteca sólo para usted");
        }
        const QString local = QStringLiteral("/usr/local/share/zel/componentes");
        carpeta = carpetas.isEmpty() || carpetas.contains(local) ? local : carpetas.front();
    }
    return QStringLiteral("%1/%2-%3.json")
        .arg(carpeta, QLatin1String(BIBLIOTECA), QLatin1String(VERSION_PROPIA));
}

QByteArray Contenido(const QString& ruta) {
    QJsonArray clases;
    for (const ClasePorNombre* clase : ClasesDelComponente()) {
        clases.push_back(QJsonObject{{QStringLiteral("nombre"), clase->Nombre()},
                                     {QStringLiteral("ayuda"), clase->Ayuda()}});
    }
    return QJsonDocument(
               QJsonObject{
                   {QStringLiteral("biblioteca"), QLatin1String(BIBLIOTECA)},
                   {QStringLiteral("version"), QLatin1String(VERSION_PROPIA)},
                   {QStringLiteral("interfaz"), INTERFAZ_POR_NOMBRE},
                   {QStringLiteral("ruta"), ruta},
                   {QStringLiteral("ayuda"), QStringLiteral("ZEL Editor de la topoligía de esquemas Zelmar")},
                   {QStringLiteral("clases"), clases},
               })
        .toJson();
}

[[noreturn]] void NoSePuede(const char* que, const QString& archivo) {
    throw Fallo(75,
                std::string("No se puede ") + que + " " + archivo.toStdString() +
                    ". Compruebe que tiene permiso para cambiar esa carpeta y que queda sitio en el disco");
}

}  // namespace

std::string EscribeRegistroPropio(bool paraElSistema) {
    const QString archivo = ArchivoDeRegistro(paraElSistema);
    const QString ruta = RutaPropia();
    const QByteArray contenido = Contenido(ruta);
    QSaveFile escritura(archivo);
    if (!QDir().mkpath(QFileInfo(archivo).path()) || !escritura.open(QIODevice::WriteOnly) ||
        escritura.write(contenido) != contenido.size() || !escritura.commit()) {
        NoSePuede("escribir", archivo);
    }
    return "Registrada " + ruta.toStdString() + " en " + archivo.toStdString();
}

std::string BorraRegistroPropio(bool delSistema) {
    const QString archivo = ArchivoDeRegistro(delSistema);
    if (!QFile::exists(archivo)) return "No había registro que anular: " + archivo.toStdString();
    if (!QFile::remove(archivo)) NoSePuede("borrar", archivo);
    return "Anulado el registro " + archivo.toStdString();
}

}  // namespace zel
