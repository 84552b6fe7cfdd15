#pragma once

#include <QDateTime>
#include <QObject>
#include <QString>

#include "Adjuntos.h"

class QWidget;

namespace zel {

class Esquema;

// The schematic that is shown and the file it belongs to. Whatever would lose changes asks first; what
// fails is told in a box, and then what was shown and what was in the file stay as they were. Each order
// is false when it failed or the user cancelled it.
class Documentos : public QObject {
    Q_OBJECT
  public:
    Documentos(Esquema& esquema, Adjuntos& adjuntos, QWidget* ventana);

    bool Nuevo();
    bool Abre(const QString& ruta);
    bool PreguntaYAbre();
    bool Guarda();
    bool GuardaComo();
    // Nothing would be lost, or the user lets it go.
    bool PuedePerderse();

    // Its full path; empty for one that has not been saved yet.
    const QString& Ruta() const noexcept { return ruta_; }
    QString Nombre() const;
    // A schematic is being read; orders are refused meanwhile.
    bool Cargando() const noexcept { return cargando_; }

  signals:
    // Another schematic is shown, or it belongs to another file.
    void Cambiado();
    // A load begins or ends.
    void CargaCambiada(bool cargando);

  private:
    bool Carga(const QString& ruta);
    bool GuardaEn(const QString& ruta);
    void PonRuta(const QString& ruta);
    void DiProblemas() const;

    Esquema& esquema_;
    Adjuntos& adjuntos_;
    QWidget* ventana_;
    QString ruta_;
    QDateTime escrito_;  // of the file when it was opened or saved here
    bool cargando_ = false;
};

}  // namespace zel
