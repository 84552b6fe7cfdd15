#include "Adjuntos.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QUrl>

#include "Ajustes.h"
#include "Preguntas.h"
#include "control/Esquema.h"

namespace zel {

namespace {

// The settings take "/" for a group within a group.
QString GrupoDe(const QString& ruta) {
    return QStringLiteral("adjuntos/") + QString::fromLatin1(QUrl::toPercentEncoding(ruta));
}

}  // namespace

void Adjuntos::Recuerda(const QString& ruta) {
    archivos_.clear();
    if (ruta.isEmpty()) return;
    QSettings ajustes = Ajustes();
    ajustes.beginGroup(GrupoDe(ruta));
    for (const QString& codigo : ajustes.childKeys())
        archivos_[codigo.toInt()] = ajustes.value(codigo).toString();
}

bool Adjuntos::Conserva(const QString& ruta) const {
    QSettings ajustes = Ajustes();
    ajustes.remove(GrupoDe(ruta));
    ajustes.beginGroup(GrupoDe(ruta));
    const auto elementos = esquema_.GetElementos();
    for (auto adjunto = archivos_.begin(); adjunto != archivos_.end(); ++adjunto) {
        if (elementos->ItemCodSIG(adjunto.key()))
            ajustes.setValue(QString::number(adjunto.key()), adjunto.value());
    }
    ajustes.sync();
    return archivos_.isEmpty() || ajustes.status() == QSettings::NoError;
}

void Adjuntos::Adjunta(qint32 codigo) {
    const auto e = esquema_.GetElementos()->ItemCodSIG(codigo);
    if (!e) return;
    const auto archivo = dialogos().ArchivoAbrir("Documento de " + Describe(*e).toStdString(),
                                                 "Todos los archivos|*.*|Documentos PDF|*.pdf");
    if (!archivo) return;
    archivos_[codigo] = QFileInfo(QString::fromStdString(*archivo)).absoluteFilePath();
    esquema_.bHabidoCambios(true);
}

void Adjuntos::Muestra(qint32 codigo) const {
    const auto e = esquema_.GetElementos()->ItemCodSIG(codigo);
    if (!e) return;
    const QString archivo = archivos_.value(codigo);
    QString motivo;
    if (archivo.isEmpty()) {
        motivo = Describe(*e) + QStringLiteral(" no tiene ningún documento. Elija uno con \"Adjuntar...\".");
    } else if (!QFileInfo::exists(archivo)) {
        motivo = QStringLiteral(
                     "No se encuentra el documento \"%1\". Si lo ha cambiado de sitio, elíjalo de nuevo con "
                     "\"Adjuntar...\".")
                     .arg(archivo);
    } else if (!QDesktopServices::openUrl(QUrl::fromLocalFile(archivo))) {
        motivo = QStringLiteral("No hay ningún programa con el que abrir el documento \"%1\".").arg(archivo);
    }
    if (!motivo.isEmpty()) dialogos().MsgBox(motivo.toStdString());
}

}  // namespace zel
