#pragma once

#include <initializer_list>
#include <string>

#include "control/EnVentana.h"

namespace zel::pruebas {

// A control that shows the world from (0, 0), four pixels to a unit, a mouse to use it, and a host that
// writes down the events.
class ConRaton : public EnVentana {
  protected:
    ConRaton() {
        using E = Esquema;
        QObject::connect(&esquema, &E::MouseDown, [this](qint16& b, qint16& m, float& x, float& y) {
            Anota("MouseDown");
            if (alPulsar) alPulsar(b, m, x, y);
        });
        QObject::connect(&esquema, &E::Click, [this] { Anota("Click"); });
        QObject::connect(&esquema, &E::DblClick, [this] { Anota("DblClick"); });
        QObject::connect(&esquema, &E::ElementoSeleccionado, [this](qint32 c) { Anota("Seleccionado", c); });
        QObject::connect(&esquema, &E::EditarElemento, [this](qint32 c) { Anota("Editar", c); });
        QObject::connect(&esquema, &E::ElementoMovido, [this](qint32 c) { Anota("Movido", c); });
        QObject::connect(&esquema, &E::ElementoModificado, [this](qint32 c) { Anota("Modificado", c); });
        QObject::connect(
            &esquema, &E::CreacionNuevoElemento, [this](const QString& tipo, qint32 ini, qint32 fin) {
                Anota("Creado " + tipo.toStdString() + " " + std::to_string(ini) + "-" + std::to_string(fin));
            });
    }
    void Pon(std::shared_ptr<Elementos> elementos) {
        esquema.GetElementos(std::move(elementos));
        esquema.Scale_(Variante(0.0F), Variante(static_cast<float>(Panel()->height()) / PIXELES),
                       Variante(static_cast<float>(Panel()->width()) / PIXELES), Variante(0.0F));
    }
    std::shared_ptr<Elemento> Elem(std::int32_t codigo) const {
        return esquema.GetElementos()->ItemCodSIG(codigo);
    }
    std::string Donde(std::int32_t codigo) const {
        return Cifra(Elem(codigo)->XPos()) + "," + Cifra(Elem(codigo)->YPos());
    }

    QPoint En(PuntoXY p) const {
        return {qRound(p.X * PIXELES), qRound(static_cast<float>(Panel()->height()) - p.Y * PIXELES)};
    }
    void Pulsa(PuntoXY p, Qt::MouseButton boton = Qt::LeftButton) {
        QTest::mousePress(Panel(), boton, {}, En(p));
    }
    void Mueve(PuntoXY p) { QTest::mouseMove(Panel(), En(p)); }
    void Suelta(PuntoXY p, Qt::MouseButton boton = Qt::LeftButton) {
        QTest::mouseRelease(Panel(), boton, {}, En(p));
    }
    void Clic(PuntoXY p, Qt::MouseButton boton = Qt::LeftButton) {
        Pulsa(p, boton);
        Suelta(p, boton);
    }
    // Pressed at the first point, moved over the others and released at the last one.
    void Arrastra(std::initializer_list<PuntoXY> puntos) {
        Pulsa(*puntos.begin());
        for (const PuntoXY& p : puntos)
            Mueve(p);
        Suelta(*(puntos.end() - 1));
    }
    // The same on what is selected first.
    void SeleccionaYArrastra(std::initializer_list<PuntoXY> puntos) {
        Clic(*puntos.begin());
        sucesos.clear();
        Arrastra(puntos);
    }
    // "MouseDown; Seleccionado 3", and begins anew.
    std::string Sucesos() { return std::exchange(sucesos, {}); }
    void Orden(const char* nombre) { Parte<QAction>(nombre)->trigger(); }
    std::string Prompt() const { return Estado(1); }

    // What the panel shows, and what a fresh paint would.
    QImage Imagen() const { return Dibujo().Imagen().copy(); }
    QImage RecienPintada() {
        esquema.BackColor(esquema.BackColor());  // leaves the state alone
        return Imagen();
    }

    static constexpr float PIXELES = 4;
    std::function<void(qint16&, qint16&, float&, float&)> alPulsar;
    std::function<void(const std::string&)> alAnotar;  // what the host does in its event
    std::string sucesos;

  private:
    void Anota(const std::string& suceso) {
        sucesos += (sucesos.empty() ? "" : "; ") + suceso;
        if (alAnotar) alAnotar(suceso);
    }
    void Anota(const std::string& suceso, qint32 codigo) { Anota(suceso + " " + std::to_string(codigo)); }
};

}  // namespace zel::pruebas
