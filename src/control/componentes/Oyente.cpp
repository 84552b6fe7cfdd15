#include "control/componentes/Oyente.h"

#include "control/componentes/Valores.h"
#include "model/Elemento.h"

namespace zel {

// Says again, with values that a host by name understands, what a signal has said.
class Repetidor : public QObject {
    Q_OBJECT
  public:
    using QObject::QObject;

  signals:
    // Whoever hears it may change the values.
    void Ocurrido(QVariantList& valores);
};

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
class Oyente : public Repetidor {
  public:
    Oyente(QObject* objeto, QMetaMethod senal) : Repetidor(objeto), senal_(std::move(senal)) {}

    static int Ranura() { return staticMetaObject.methodCount(); }

    int qt_metacall(QMetaObject::Call llamada, int metodo, void** argumentos) override {
        const int propio = Repetidor::qt_metacall(llamada, metodo, argumentos);
        if (propio < 0 || llamada != QMetaObject::InvokeMetaMethod) return propio;
        if (propio == 0) Ocurre(argumentos + 1);
        return propio - 1;
    }

  protected:
    // The host listens no more.
    void disconnectNotify(const QMetaMethod&) override { deleteLater(); }

  private:
    void Ocurre(void** argumentos) {
        // The reaction may destroy the object, and this with it.
        const QMetaMethod senal = senal_;
        QVariantList valores;
        for (int i = 0; i < senal.parameterCount(); ++i)
            valores.push_back(HaciaFuera(QVariant(TipoDelArgumento(senal, i), argumentos[i])));
        emit Ocurrido(valores);
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
};

}  // namespace

QMetaObject::Connection Escucha(QObject* objeto, const QMetaMethod& senal,
                                ObjetoPorNombre::Reaccion reaccion) {
    qRegisterMetaType<std::shared_ptr<Elemento>>("std::shared_ptr<zel::Elemento>");
    for (int i = 0; i < senal.parameterCount(); ++i) {
        if (!TipoDelArgumento(senal, i).isValid()) throw Fallo(13);
    }
    auto* oyente = new Oyente(objeto, senal);
    QMetaObject::connect(objeto, senal.methodIndex(), oyente, Oyente::Ranura(), Qt::DirectConnection);
    // The reaction belongs to the connection that the host holds, and goes with it.
    return QObject::connect(oyente, &Repetidor::Ocurrido, std::move(reaccion));
}

}  // namespace zel

#include "Oyente.moc"
