#pragma once

#include <QGraphicsScene>
#include <QPainterPath>

#include "platform/Superficie.h"

namespace zel::bench {

// A surface that makes an item of a QGraphicsScene of every stroke: the same lines, shapes and texts as the
// peer shows them. Scene coordinates are pixels of the view for which it is built.
class EscenaQt : public Superficie {
  public:
    EscenaQt(QGraphicsScene& escena, double pixelesPorUnidad)
        : escena_(escena), pixelesPorUnidad_(pixelesPorUnidad) {}

    float AnchoDePixel() const override { return static_cast<float>(1 / pixelesPorUnidad_); }
    void Cls() override {}
    void Refresh() override {}
    using Superficie::Line;
    void Line(std::span<const PuntoXY> cadena) override;
    void Caja(PuntoXY esquina, PuntoXY opuesta) override;
    void Circle(PuntoXY centro, float radio) override;
    void Circle(PuntoXY centro, float radio, double inicio, double fin) override;
    void PSet(PuntoXY punto, std::int32_t color) override;
    void PaintPicture(const zel::Imagen&, PuntoXY, float, float) override {}
    void Print(std::string_view texto) override;
    float TextWidth(std::string_view texto) override;
    float TextHeight(std::string_view texto) override;
    void MousePointer(std::int16_t, std::int32_t) override {}

    // Puts the dots gathered so far into one item.
    void AsientaPuntos();

  private:
    QPointF EnEscena(PuntoXY p) const { return {p.X * pixelesPorUnidad_, -p.Y * pixelesPorUnidad_}; }
    QFont Fuente() const;
    QPen Pluma() const;

    QGraphicsScene& escena_;
    double pixelesPorUnidad_;
    QPainterPath puntos_;
    std::int32_t colorDePuntos_ = 0;
};

}  // namespace zel::bench
