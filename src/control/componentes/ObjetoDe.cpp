#include "control/componentes/ObjetoDe.h"

#include "control/componentes/Tabla.h"

namespace zel {

std::atomic<int> Vivo::cuantos_ = 0;

namespace {

[[noreturn]] void NoSePuede(const Tabla& tabla, const Fila& fila, const char* que) {
    throw Fallo(438, (fila.nombre + QStringLiteral(" (") + tabla.Clase() + QStringLiteral(") no se puede "))
                             .toStdString() +
                         que);
}

void ExigeCuantos(const Fila& fila, qsizetype cuantos, qsizetype minimo, qsizetype maximo) {
    if (cuantos >= minimo && cuantos <= maximo) return;
    QString espera = QString::number(minimo);
    if (maximo > minimo) espera += QStringLiteral(" a %1").arg(maximo);
    espera += maximo == 1 ? QStringLiteral(" argumento") : QStringLiteral(" argumentos");
    throw Fallo(
        5, QStringLiteral("%1 espera %2 y recibe %3").arg(fila.nombre, espera).arg(cuantos).toStdString());
}

}  // namespace

QVariant ObjetoPorTabla::Lee(const QString& nombre) const {
    return ParaElAnfitrion([&] {
        const Fila& fila = tabla_.Busca(nombre);
        if (!fila.lee) NoSePuede(tabla_, fila, "leer");
        return fila.lee(Suyo());
    });
}

void ObjetoPorTabla::Escribe(const QString& nombre, const QVariant& valor) {
    ParaElAnfitrion([&] {
        const Fila& fila = tabla_.Busca(nombre);
        if (!fila.escribe) NoSePuede(tabla_, fila, "escribir");
        fila.escribe(Suyo(), valor);
    });
}

QVariant ObjetoPorTabla::Llama(const QString& nombre, const QVariantList& argumentos) {
    return ParaElAnfitrion([&] {
        const Fila& fila = tabla_.Busca(nombre);
        if (fila.llama) {
            ExigeCuantos(fila, argumentos.size(), fila.minimo, fila.maximo);
            return fila.llama(Suyo(), Argumentos(argumentos));
        }
        if (!fila.lee && !fila.escribe) NoSePuede(tabla_, fila, "llamar");
        ExigeCuantos(fila, argumentos.size(), fila.lee ? 0 : 1, fila.escribe ? 1 : 0);
        if (argumentos.isEmpty()) return fila.lee(Suyo());
        fila.escribe(Suyo(), argumentos.front());
        return QVariant();
    });
}

QMetaObject::Connection ObjetoPorTabla::AlOcurrir(const QString& suceso, Reaccion reaccion) {
    return ParaElAnfitrion([&] {
        const Fila& fila = tabla_.Busca(suceso);
        if (!fila.escucha) NoSePuede(tabla_, fila, "escuchar");
        return fila.escucha(Suyo(), std::move(reaccion));
    });
}

QString ObjetoPorTabla::Clase() const {
    return tabla_.Clase();
}

QStringList ObjetoPorTabla::Nombres(int generos) const {
    return tabla_.Nombres(generos);
}

QString ObjetoPorTabla::Ayuda(const QString& nombre) const {
    return ParaElAnfitrion([&] { return tabla_.Ayuda(nombre); });
}

}  // namespace zel
