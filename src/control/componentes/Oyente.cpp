#include "control/componentes/Oyente.h"

#include "control/componentes/Valores.h"
#include "model/Elemento.h"

namespace zel {

namespace {

// Qt does not keep the type of an argument passed by reference, but its name.
QMetaType TipoDelArgumento(const QMetaMethod& senal, int i) {
    const QMetaType tipo = senal.parameterMetaType(i);
    if (tipo.isValid()) return tipo;
    QByteArray nombre = senal.parameterTypes()[i];
    if (nombre.endsWith('&')) nombre.chop(1);
    return QMetaType::fromName(nombre);
}

// It takes any signal's arguments as Qt hands them to a slot, so that one class does for all.
class Oyente : public QObject {
  public:
    Oyente(QObject* objeto, const QMetaMethod& senal, ObjetoPorNombre::Reaccion reaccion)
        : QObject(objeto), senal_(senal), reaccion_(std::move(reaccion)) {}

    static int Ranura() { return staticMetaObject.methodCount(); }

    int qt_metacall(QMetaObject::Call llamada, int metodo, void** argumentos) override {
        const int propio = QObject::qt_metacall(llamada, metodo, argumentos);
        if (propio < 0 || llamada != QMetaObject::InvokeMetaMethod) return propio;
        if (propio == 0) Ocurre(argumentos + 1);
        return propio - 1;
    }

  private:
    void Ocurre(void** argumentos) const {
        // The reaction may destroy the object, and this with it.
        const ObjetoPorNombre::Reaccion reaccion = reaccion_;
        const QMetaMethod senal = senal_;
        QVariantList valores;
        for (int i = 0; i < senal.parameterCount(); ++i)
            valores.push_back(HaciaFuera(QVariant(TipoDelArgumento(senal, i), argumentos[i])));
        reaccion(valores);
        const QList<QByteArray> tipos = senal.parameterTypes();
        for (int i = 0; i < senal.parameterCount(); ++i) {
            if (!tipos[i].endsWith('&')) continue;
            const QMetaType tipo = TipoDelArgumento(senal, i);
            const QVariant nuevo = Convertido(valores.value(i), tipo);
            tipo.destruct(argumentos[i]);
            tipo.construct(argumentos[i], nuevo.constData());
        }
    }

    QMetaMethod senal_;
    ObjetoPorNombre::Reaccion reaccion_;
};

}  // namespace

QMetaObject::Connection Escucha(QObject* objeto, const QMetaMethod& senal,
                                ObjetoPorNombre::Reaccion reaccion) {
    qRegisterMetaType<std::shared_ptr<Elemento>>("std::shared_ptr<zel::Elemento>");
    for (int i = 0; i < senal.parameterCount(); ++i) {
        if (!TipoDelArgumento(senal, i).isValid()) throw Fallo(13);
    }
    auto* oyente = new Oyente(objeto, senal, std::move(reaccion));
    return QMetaObject::connect(objeto, senal.methodIndex(), oyente, Oyente::Ranura(), Qt::DirectConnection);
}

}  // namespace zel
