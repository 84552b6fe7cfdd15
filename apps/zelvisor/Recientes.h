#pragma once

#include <QStringList>

namespace zel {

// The schematics opened or saved last, newest first, as the program remembers them between runs.
class Recientes {
  public:
    static constexpr qsizetype MAXIMO = 8;

    static QStringList Rutas();
    static void Pon(const QString& ruta);
    static void Quita(const QString& ruta);
    static void Vacia();
};

}  // namespace zel
