#pragma once

#include <QGraphicsScene>
#include <QGraphicsView>

#include "drawing/AjustesDibujo.h"
#include "model/Elementos.h"

namespace zel::bench {

constexpr QSize PANEL(1280, 800);

// The part of the world that a panel of that size shows.
struct Encuadre {
    double PixelesPorUnidad() const { return PANEL.width() / double{escala.Width}; }
    void En(Superficie& panel) const {
        panel.ScaleLeft(escala.Left);
        panel.ScaleTop(escala.Top);
        panel.ScaleWidth(escala.Width);
        panel.ScaleHeight(escala.Height);
    }
    Superficie::Escala escala;
    AjustesDibujo ajustes;
};

// The peer: a view of that size on a scene with an item for every line, shape and text of a schematic.
class VistaQt {
  public:
    VistaQt(const Elementos& red, const Encuadre& encuadre);
    QGraphicsView& Vista() { return vista_; }

  private:
    QGraphicsScene escena_;
    QGraphicsView vista_;
};

}  // namespace zel::bench
