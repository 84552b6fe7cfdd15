#pragma once

#include <QMap>
#include <QString>

namespace zel {

class Esquema;

// The document attached to each element, by the element's code. They belong to the schematic: what is
// attached is kept, in the program's settings, when the schematic is saved, and forgotten with its other
// changes.
class Adjuntos {
  public:
    explicit Adjuntos(Esquema& esquema) : esquema_(esquema) {}

    // Another schematic, with what is remembered of it; none is remembered of one that has no path.
    void Recuerda(const QString& ruta);
    // The schematic is in that file now: those of its elements are remembered with it. False when they could
    // not be.
    bool Conserva(const QString& ruta) const;

    // Asks for the document of an element.
    void Adjunta(qint32 codigo);
    // Opens it with the program that the desktop has for it, or says why not.
    void Muestra(qint32 codigo) const;

  private:
    Esquema& esquema_;
    QMap<qint32, QString> archivos_;
};

}  // namespace zel
