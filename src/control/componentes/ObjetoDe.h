#pragma once

#include <QPointer>
#include <concepts>
#include <memory>

#include "control/componentes/Componentes.h"
#include "control/componentes/Vivos.h"
#include "platform/Fallo.h"
#include "platform/Variante.h"

namespace zel {

class Boton;
class Buttons;
class ControlDeBoton;
class ControlDePanel;
class Elemento;
class Elementos;
class Esquema;
class Panel;
class Panels;
class Punto;
class Puntos;
class StatusBar;
class Tabla;
class ZelToolBar;
class ZelToolBar2;

// The names of a class.
template <typename T>
const Tabla& TablaDe();
// Modelo.cpp
template <>
const Tabla& TablaDe<Elemento>();
template <>
const Tabla& TablaDe<Elementos>();
template <>
const Tabla& TablaDe<Punto>();
template <>
const Tabla& TablaDe<Puntos>();
// Barras.cpp
template <>
const Tabla& TablaDe<Boton>();
template <>
const Tabla& TablaDe<Buttons>();
template <>
const Tabla& TablaDe<ControlDeBoton>();
template <>
const Tabla& TablaDe<ControlDePanel>();
template <>
const Tabla& TablaDe<Panel>();
template <>
const Tabla& TablaDe<Panels>();
template <>
const Tabla& TablaDe<StatusBar>();
template <>
const Tabla& TablaDe<ZelToolBar>();
template <>
const Tabla& TablaDe<ZelToolBar2>();
// Control.cpp
template <>
const Tabla& TablaDe<Esquema>();

// What fails reaches the host as the one failure that it knows.
template <typename Accion>
auto ParaElAnfitrion(Accion accion) {
    try {
        return accion();
    } catch (const FalloDeComponente&) {
        throw;
    } catch (...) {
        const Fallo fallo = FalloEnCurso();
        throw FalloDeComponente(fallo.Number(), QString::fromStdString(fallo.Description()));
    }
}

// What a host holds of an object: the names of its class, applied to it.
class ObjetoPorTabla : public ObjetoPorNombre {
  public:
    explicit ObjetoPorTabla(const Tabla& tabla) : tabla_(tabla) {}

    QVariant Lee(const QString& nombre) const override;
    void Escribe(const QString& nombre, const QVariant& valor) override;
    QVariant Llama(const QString& nombre, const QVariantList& argumentos) override;
    QMetaObject::Connection AlOcurrir(const QString& suceso, Reaccion reaccion) override;
    QString Clase() const override;
    QStringList Nombres(int generos) const override;
    QString Ayuda(const QString& nombre) const override;

    // As the properties of the system refer to it; empty for what they cannot refer to.
    virtual std::shared_ptr<Objeto> ComoObjeto() const { return nullptr; }

  protected:
    // The T of the table; fails with 91 when it is gone.
    virtual void* Suyo() const = 0;

  private:
    const Tabla& tabla_;
    Vivo vivo_;
};

template <typename T>
class ObjetoDe : public ObjetoPorTabla {
  public:
    explicit ObjetoDe(std::shared_ptr<T> objeto) : ObjetoPorTabla(TablaDe<T>()), objeto_(std::move(objeto)) {}

    const std::shared_ptr<T>& Compartido() const noexcept { return objeto_; }
    std::shared_ptr<Objeto> ComoObjeto() const override {
        if constexpr (std::derived_from<T, Objeto>) return objeto_;
        return nullptr;
    }
    const void* Identidad() const noexcept override { return objeto_.get(); }

  protected:
    void* Suyo() const override { return objeto_.get(); }

  private:
    std::shared_ptr<T> objeto_;
};

// A widget belongs to its parent: a reference to it by name does not keep it.
template <typename T>
class WidgetDe : public ObjetoPorTabla {
  public:
    explicit WidgetDe(T* widget) : ObjetoPorTabla(TablaDe<T>()), widget_(widget) {}
    const void* Identidad() const noexcept override { return widget_.data(); }

  protected:
    void* Suyo() const override {
        if (!widget_) throw Fallo(91, "El control ya no existe");
        return widget_.data();
    }

  private:
    QPointer<T> widget_;
};

template <typename T>
QVariant ValorDe(std::shared_ptr<T> objeto) {
    if (!objeto) return {};
    return QVariant::fromValue<Referencia>(std::make_shared<ObjetoDe<T>>(std::move(objeto)));
}

// What a host has handed over as an object; empty for nothing, failure 13 for what is none.
Referencia ReferenciaDeValor(const QVariant& valor);

template <typename T>
std::shared_ptr<T> ObjetoDeValor(const QVariant& valor) {
    const Referencia referencia = ReferenciaDeValor(valor);
    if (!referencia) return nullptr;
    const auto* objeto = dynamic_cast<const ObjetoDe<T>*>(referencia.get());
    if (!objeto) throw Fallo(13);
    return objeto->Compartido();
}

}  // namespace zel
