#include "Recientes.h"

#include "Ajustes.h"

namespace zel {

namespace {

const QString CLAVE = QStringLiteral("recientes");

}  // namespace

QStringList Recientes::Rutas() {
    return Ajustes().value(CLAVE).toStringList().mid(0, MAXIMO);
}

void Recientes::Pon(const QString& ruta) {
    QStringList rutas = Rutas();
    rutas.removeAll(ruta);
    rutas.prepend(ruta);
    Ajustes().setValue(CLAVE, rutas.mid(0, MAXIMO));
}

void Recientes::Quita(const QString& ruta) {
    QStringList rutas = Rutas();
    rutas.removeAll(ruta);
    Ajustes().setValue(CLAVE, rutas);
}

void Recientes::Vacia() {
    Ajustes().remove(CLAVE);
}

}  // namespace zel
