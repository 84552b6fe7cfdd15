#include "control/componentes/Tabla.h"

#include <algorithm>

#include "control/componentes/Oyente.h"
#include "platform/Texto.h"

namespace zel {

namespace {

// A method as Qt knows it: once for each number of arguments with which it can be called.
QVariant LlamaDeQt(QObject* objeto, const QMetaMethod& metodo, const Argumentos& argumentos) {
    QVariantList valores;
    std::vector<void*> lugares = {nullptr};
    for (int i = 0; i < metodo.parameterCount(); ++i)
        valores.push_back(Convertido(argumentos.Valor(i), metodo.parameterMetaType(i)));
    for (QVariant& valor : valores)
        lugares.push_back(valor.data());
    QVariant resultado;
    if (metodo.returnType() != QMetaType::Void) {
        resultado = QVariant(metodo.returnMetaType());
        lugares[0] = resultado.data();
    }
    QMetaObject::metacall(objeto, QMetaObject::InvokeMetaMethod, metodo.methodIndex(), lugares.data());
    return HaciaFuera(resultado);
}

}  // namespace

const Fila& Tabla::Busca(const QString& nombre) const {
    const auto lugar = lugares_.constFind(nombre.toCaseFolded());
    if (lugar == lugares_.constEnd()) {
        throw Fallo(
            438, Fallo(438).Description() + ": " + nombre.toStdString() + " (" + clase_.toStdString() + ")");
    }
    return filas_[*lugar];
}

QString Tabla::Ayuda(const QString& nombre) const {
    return nombre.isEmpty() ? ayuda_ : Busca(nombre).ayuda;
}

QStringList Tabla::Nombres(int generos) const {
    QStringList nombres;
    for (const Fila& fila : filas_) {
        const auto genero = fila.llama     ? ObjetoPorNombre::METODO
                            : fila.escucha ? ObjetoPorNombre::SUCESO
                                           : ObjetoPorNombre::PROPIEDAD;
        if ((generos & genero) != 0) nombres.push_back(fila.nombre);
    }
    return nombres;
}

Fila& Tabla::FilaDe(const QString& nombre, std::string_view ayuda) {
    const auto lugar = lugares_.constFind(nombre.toCaseFolded());
    if (lugar != lugares_.constEnd()) return filas_[*lugar];
    lugares_.insert(nombre.toCaseFolded(), filas_.size());
    Fila& fila = filas_.emplace_back();
    fila.nombre = nombre;
    fila.ayuda = QString::fromUtf8(ayuda.data(), static_cast<qsizetype>(ayuda.size()));
    return fila;
}

void Tabla::AgregaDeQt(const QMetaObject& meta, QObject* (*comoQObject)(void*),
                       std::span<const AyudaDeNombre> ayudas) {
    // The platform's own members are for who has the widget.
    if (!QByteArrayView(meta.className()).startsWith("zel::")) return;
    AgregaDeQt(*meta.superClass(), comoQObject, ayudas);
    const auto filaDe = [&](const char* nombre) -> Fila& {
        const auto* const ayuda = std::find_if(ayudas.data(), ayudas.data() + ayudas.size(),
                                               [&](const AyudaDeNombre& a) { return a.nombre == nombre; });
        return FilaDe(QString::fromLatin1(nombre),
                      ayuda == ayudas.data() + ayudas.size() ? std::string_view() : ayuda->ayuda);
    };

    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) {
        const QMetaProperty propiedad = meta.property(i);
        Fila& fila = filaDe(propiedad.name());
        fila.lee = [=](void* o) { return HaciaFuera(propiedad.read(comoQObject(o))); };
        if (!propiedad.isWritable()) continue;
        fila.escribe = [=](void* o, const QVariant& valor) {
            propiedad.write(comoQObject(o), Convertido(valor, propiedad.metaType()));
        };
    }
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        const QMetaMethod metodo = meta.method(i);
        if (metodo.access() != QMetaMethod::Public) continue;
        const qsizetype argumentos = metodo.parameterCount();
        Fila& fila = filaDe(metodo.name().constData());
        if (metodo.methodType() == QMetaMethod::Signal) {
            fila.escucha = [=](void* o, ObjetoPorNombre::Reaccion reaccion) {
                return Escucha(comoQObject(o), metodo, std::move(reaccion));
            };
            continue;
        }
        fila.minimo = fila.llama ? std::min(fila.minimo, argumentos) : argumentos;
        fila.maximo = std::max(fila.maximo, argumentos);
        fila.llama = [=, otras = fila.llama](void* o, const Argumentos& a) {
            return a.Count() == argumentos || !otras ? LlamaDeQt(comoQObject(o), metodo, a) : otras(o, a);
        };
    }
}

}  // namespace zel
