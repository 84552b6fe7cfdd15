#pragma once

#include <QHash>
#include <QMetaMethod>
#include <functional>
#include <span>
#include <string_view>
#include <vector>

#include "control/componentes/Valores.h"
#include "model/Propiedades.h"

namespace zel {

// A name of a class and what it does with an object of it: what a property, a method or an event lacks is
// empty.
struct Fila {
    QString nombre;
    QString ayuda;
    std::function<QVariant(void*)> lee;
    std::function<void(void*, const QVariant&)> escribe;
    std::function<QVariant(void*, const Argumentos&)> llama;
    qsizetype minimo = 0;  // of arguments
    qsizetype maximo = 0;
    std::function<QMetaObject::Connection(void*, ObjetoPorNombre::Reaccion)> escucha;
};

struct AyudaDeNombre {
    std::string_view nombre;
    std::string_view ayuda;
};

// The names of a class, found without regard to case, and what they are.
class Tabla {
  public:
    const QString& Clase() const noexcept { return clase_; }
    QStringList Nombres(int generos) const;
    // Both fail with 438 when there is none of that name; without a name it is what the class is.
    const Fila& Busca(const QString& nombre) const;
    QString Ayuda(const QString& nombre = {}) const;

  protected:
    Tabla(const char* clase, const char* ayuda)
        : clase_(QStringLiteral("ZELVisorEsquemas.") + QString::fromUtf8(clase)),
          ayuda_(QString::fromUtf8(ayuda)) {}

    // The row of that name, a new one if there was none.
    Fila& FilaDe(const QString& nombre, std::string_view ayuda);
    // The properties, methods and signals that Qt knows of the system's own classes, down to `meta`.
    void AgregaDeQt(const QMetaObject& meta, QObject* (*comoQObject)(void*),
                    std::span<const AyudaDeNombre> ayudas);

  private:
    QString clase_;
    QString ayuda_;
    std::vector<Fila> filas_;
    QHash<QString, std::size_t> lugares_;
};

// The same while it is being written, for the objects of one class.
template <typename T>
class TablaNueva : public Tabla {
  public:
    TablaNueva(const char* clase, const char* ayuda) : Tabla(clase, ayuda) {}

    TablaNueva& Propiedad(const char* nombre, const char* ayuda, QVariant (*lee)(T&),
                          void (*escribe)(T&, const QVariant&) = nullptr) {
        Fila& fila = FilaDe(QString::fromUtf8(nombre), ayuda);
        if (lee) fila.lee = [lee](void* o) { return lee(*static_cast<T*>(o)); };
        if (escribe) {
            fila.escribe = [escribe](void* o, const QVariant& v) { escribe(*static_cast<T*>(o), v); };
        }
        return *this;
    }

    TablaNueva& Metodo(const char* nombre, const char* ayuda, qsizetype minimo, qsizetype maximo,
                       QVariant (*llama)(T&, const Argumentos&)) {
        Fila& fila = FilaDe(QString::fromUtf8(nombre), ayuda);
        fila.minimo = minimo;
        fila.maximo = maximo;
        fila.llama = [llama](void* o, const Argumentos& a) { return llama(*static_cast<T*>(o), a); };
        return *this;
    }

    // The class's own property table.
    TablaNueva& Propiedades() {
        for (const auto& propia : T::Propiedades()) {
            Fila& fila =
                FilaDe(QString::fromUtf8(propia.nombre.data(), static_cast<qsizetype>(propia.nombre.size())),
                       propia.ayuda);
            fila.lee = [&propia](void* o) { return AQVariant(LeeFila(propia, *static_cast<const T*>(o))); };
            fila.escribe = [&propia](void* o, const QVariant& v) {
                EscribeFila(propia, *static_cast<T*>(o), AVariante(v));
            };
        }
        return *this;
    }

    TablaNueva& DeQt(std::span<const AyudaDeNombre> ayudas) {
        AgregaDeQt(
            T::staticMetaObject, [](void* o) -> QObject* { return static_cast<T*>(o); }, ayudas);
        return *this;
    }

    // What every collection has.
    TablaNueva& Coleccion() {
        return Metodo("Item", "El objeto en una posición, desde 1, o bajo una clave", 1, 1,
                      [](T& c, const Argumentos& a) { return ValorDe(c.Item(a[0])); })
            .Metodo("Remove", "Quita el objeto de una posición o bajo una clave", 1, 1,
                    [](T& c, const Argumentos& a) {
                        c.Remove(a[0]);
                        return QVariant();
                    })
            .Propiedad("Count", "Cuántos objetos hay", [](T& c) -> QVariant { return c.Count(); });
    }
};

}  // namespace zel
