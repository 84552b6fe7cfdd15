#include "Documentos.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>

#include "Carga.h"
#include "Preguntas.h"
#include "Recientes.h"
#include "control/Esquema.h"
#include "file/lectorArchivo.h"
#include "platform/Texto.h"
#include "platform/qt/Rutas.h"

namespace zel {

namespace {

constexpr const char* FILTRO = "Esquemas|*.xml|Todos los archivos|*.*";

// Not valid for a file that is not there.
QDateTime FechaDe(const QString& ruta) {
    return ruta.isEmpty() ? QDateTime() : QFileInfo(ruta).lastModified();
}

class CursorDeEspera {
  public:
    CursorDeEspera() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    CursorDeEspera(const CursorDeEspera&) = delete;
    CursorDeEspera& operator=(const CursorDeEspera&) = delete;
    ~CursorDeEspera() { QApplication::restoreOverrideCursor(); }
};

bool NoSeAbre(const QString& ruta, const Impedimento& porQue, const std::string& detalle = {}) {
    const std::string texto =
        "No se puede abrir \"" + ruta.toStdString() + "\": " + porQue.motivo + ".\n\n" + porQue.remedio;
    if (detalle.empty())
        dialogos().MsgBox(texto);
    else
        dialogos().AvisoConDetalle(texto, detalle);
    return false;
}

// As much of it as a box can hold.
std::string PrimerasLineas(const std::string& texto) {
    constexpr int MAXIMO = 200;
    std::string primeras;
    int lineas = 0;
    PorLineas(texto, [&](std::string_view linea) {
        if (!linea.empty() && ++lineas <= MAXIMO) primeras.append(linea) += '\n';
    });
    if (lineas > MAXIMO) primeras += "... y " + std::to_string(lineas - MAXIMO) + " líneas más";
    return primeras;
}

}  // namespace

Documentos::Documentos(Esquema& esquema, Adjuntos& adjuntos, QWidget* ventana)
    : esquema_(esquema), adjuntos_(adjuntos), ventana_(ventana) {}

QString Documentos::Nombre() const {
    return ruta_.isEmpty() ? QStringLiteral("Sin título") : QFileInfo(ruta_).fileName();
}

void Documentos::PonRuta(const QString& ruta) {
    ruta_ = ruta;
    escrito_ = FechaDe(ruta);
    if (!ruta.isEmpty()) {
        Recientes::Pon(ruta);
        dialogos().Carpeta(RutaDe(QFileInfo(ruta).path()));
    }
    emit Cambiado();
}

bool Documentos::PuedePerderse() {
    if (cargando_ || !esquema_.bHabidoCambios()) return true;
    switch (PreguntaSiGuardar(ventana_, Nombre())) {
        case Respuesta::Guardar:
            return Guarda();
        case Respuesta::Descartar:
            return true;
        case Respuesta::Cancelar:
            break;
    }
    return false;
}

bool Documentos::Nuevo() {
    if (cargando_ || !PuedePerderse()) return false;
    esquema_.ArchivoNuevo();
    adjuntos_.Recuerda({});
    PonRuta({});
    return true;
}

bool Documentos::PreguntaYAbre() {
    const auto ruta = dialogos().ArchivoAbrir("Abrir esquema", FILTRO);
    return ruta && Abre(DeRuta(*ruta));
}

bool Documentos::Abre(const QString& ruta) {
    if (cargando_) return false;
    lectorArchivo lector;
    lector.NombreArchivo(RutaDe(ruta));
    const std::string motivo = lector.MotivoParaNoAbrir();
    if (!motivo.empty()) return NoSeAbre(ruta, PorQueNoSeAbre(motivo));
    if (!PuedePerderse() || !Carga(ruta)) return false;
    const QString entera = QFileInfo(ruta).absoluteFilePath();
    adjuntos_.Recuerda(entera);
    PonRuta(entera);
    DiProblemas();
    return true;
}

bool Documentos::Carga(const QString& ruta) {
    const auto anterior = esquema_.GetElementos();
    std::optional<std::string> fallo;
    // What is begun with one schematic must not go on with the other.
    cargando_ = true;
    emit CargaCambiada(true);
    try {
        const CursorDeEspera espera;
        esquema_.ArchivoAbrir(ruta);
    } catch (const std::exception& error) {
        fallo = error.what();
    }
    cargando_ = false;
    emit CargaCambiada(false);
    const std::string sinLeer = esquema_.MotivoSinLeer().toStdString();
    if (!fallo && sinLeer.empty()) return true;
    // The file that was open has nothing to do with what is shown after all.
    if (esquema_.GetElementos() != anterior) {
        adjuntos_.Recuerda({});
        PonRuta({});
    }
    NoSeAbre(ruta, PorQueNoSeAbre(sinLeer, fallo), fallo.value_or(""));
    esquema_.Refresh();
    return false;
}

void Documentos::DiProblemas() const {
    if (const std::string aviso = esquema_.AvisoDeImagen().toStdString(); !aviso.empty()) {
        dialogos().MsgBox(aviso +
                          ".\n\nEl esquema se ha abierto sin ella. Lo que el archivo dice de la imagen " +
                          "se conserva al guardar, salvo que escoja otra.");
    }
    const std::string problemas = esquema_.ProblemasDeCarga().toStdString();
    if (problemas.empty()) return;
    std::string texto = "El esquema se ha abierto, pero faltaban datos o se repetían.";
    if (!problemas.starts_with(SIN_REGISTRO)) {
        texto += " Consulte el archivo " +
                 QDir::current().filePath(QStringLiteral("ErroresCarga.log")).toStdString() + ".";
    }
    dialogos().AvisoConDetalle(texto, PrimerasLineas(problemas));
}

bool Documentos::Guarda() {
    if (cargando_) return false;
    if (ruta_.isEmpty()) return GuardaComo();
    const QDateTime fecha = FechaDe(ruta_);
    if (fecha.isValid() && fecha != escrito_ &&
        !Confirma(ventana_,
                  QStringLiteral("\"%1\" ha cambiado desde que se abrió. ¿Reemplazarlo?").arg(Nombre()),
                  QStringLiteral("Lo ha escrito otro programa, u otra ventana de este. Si lo reemplaza, se "
                                 "perderán esos cambios."),
                  QStringLiteral("&Reemplazar")))
        return false;
    return GuardaEn(ruta_);
}

bool Documentos::GuardaComo() {
    if (cargando_) return false;
    const auto elegida =
        dialogos().ArchivoGuardar("Guardar esquema", FILTRO, ruta_.isEmpty() ? "esquema.xml" : RutaDe(ruta_));
    if (!elegida) return false;
    QString ruta = QFileInfo(DeRuta(*elegida)).absoluteFilePath();
    if (QFileInfo(ruta).suffix().isEmpty()) {
        ruta += QStringLiteral(".xml");
        // The dialog has asked for the name without it.
        if (QFileInfo::exists(ruta) &&
            !Confirma(ventana_, QStringLiteral("Ya existe \"%1\". ¿Reemplazarlo?").arg(ruta), {},
                      QStringLiteral("&Reemplazar")))
            return false;
    }
    return GuardaEn(ruta);
}

bool Documentos::GuardaEn(const QString& ruta) {
    if (cargando_) return false;
    try {
        esquema_.ArchivoGuardar(ruta);
    } catch (const Fallo& error) {
        DiFallo(error.Description(), "No se puede guardar \"" + ruta.toStdString() + "\": ",
                ".\n\nEl archivo que hubiera con ese nombre sigue como estaba.");
        return false;
    }
    PonRuta(ruta);
    if (const std::string aviso = esquema_.AvisoDeImagen().toStdString(); !aviso.empty()) {
        dialogos().MsgBox("El esquema se ha guardado, pero no su imagen de fondo. " + aviso + ".");
    }
    if (adjuntos_.Conserva(ruta)) return true;
    esquema_.bHabidoCambios(true);
    dialogos().MsgBox(
        "El esquema se ha guardado, pero no los documentos relacionados con sus elementos: no se pueden "
        "escribir los ajustes del programa.");
    return false;
}

}  // namespace zel
