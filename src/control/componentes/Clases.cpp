#include "control/componentes/Clases.h"

#include <QApplication>
#include <QThread>

#include "bars/qt/StatusBar.h"
#include "bars/qt/ZelToolBar.h"
#include "bars/qt/ZelToolBar2.h"
#include "control/Esquema.h"
#include "control/componentes/Tabla.h"
#include "platform/qt/DialogosQt.h"

namespace zel {

namespace {

[[noreturn]] void NoEs(const QString& clase, const char* que) {
    throw FalloDeComponente(429, clase + QString::fromUtf8(que));
}

template <typename T>
class Clase : public ClasePorNombre {
  public:
    QString Nombre() const override { return TablaDe<T>().Clase(); }
    QStringList Nombres(int generos) const override { return TablaDe<T>().Nombres(generos); }
    QString Ayuda(const QString& nombre) const override {
        return ParaElAnfitrion([&] { return TablaDe<T>().Ayuda(nombre); });
    }
};

template <typename T>
class ClaseDeObjetos final : public Clase<T> {
  public:
    Referencia Crea() const override {
        return ParaElAnfitrion(
            [] { return Referencia(std::make_shared<ObjetoDe<T>>(std::make_shared<T>())); });
    }
    QWidget* CreaWidget(QWidget*) const override {
        NoEs(this->Nombre(), " no se ve en una ventana: pídala con Crea");
    }
    Referencia PorNombre(QWidget*) const override { return nullptr; }
};

// Counts for as long as the widget that it belongs to is there.
class Testigo : public QObject {
  public:
    using QObject::QObject;

  private:
    Vivo vivo_;
};

template <typename T>
class ClaseVisible final : public Clase<T> {
  public:
    Referencia Crea() const override { NoEs(this->Nombre(), " se ve en una ventana: pídala con CreaWidget"); }
    QWidget* CreaWidget(QWidget* padre) const override {
        if (!qobject_cast<QApplication*>(QCoreApplication::instance()) ||
            QThread::currentThread() != QCoreApplication::instance()->thread()) {
            NoEs(this->Nombre(), " se crea en el hilo de la QApplication, y después de ella");
        }
        return ParaElAnfitrion([padre]() -> QWidget* {
            // A host without headers has no other way to install them.
            instalaDialogosSiFaltan(std::make_shared<DialogosQt>());
            auto widget = std::make_unique<T>(padre);
            new Testigo(widget.get());
            return widget.release();
        });
    }
    Referencia PorNombre(QWidget* widget) const override {
        auto* suyo = qobject_cast<T*>(widget);
        return suyo ? std::make_shared<WidgetDe<T>>(suyo) : nullptr;
    }
};

template <template <typename> class C, typename T>
const ClasePorNombre* Unica() {
    static const C<T> clase;
    return &clase;
}

}  // namespace

std::span<const ClasePorNombre* const> ClasesDelComponente() {
    static const ClasePorNombre* const clases[] = {
        Unica<ClaseVisible, Esquema>(),     Unica<ClaseDeObjetos, Elementos>(),
        Unica<ClaseDeObjetos, Elemento>(),  Unica<ClaseDeObjetos, Puntos>(),
        Unica<ClaseDeObjetos, Punto>(),     Unica<ClaseVisible, ZelToolBar>(),
        Unica<ClaseVisible, ZelToolBar2>(), Unica<ClaseDeObjetos, Buttons>(),
        Unica<ClaseDeObjetos, Boton>(),     Unica<ClaseVisible, StatusBar>(),
        Unica<ClaseDeObjetos, Panels>(),    Unica<ClaseDeObjetos, Panel>(),
    };
    return clases;
}

}  // namespace zel
