#pragma once

#include <QPainter>
#include <QPolygonF>

#include "platform/qt/SuperficieQt.h"

namespace zel {

// The drawing surface on a device that keeps strokes and texts as such (SVG, a page of PDF, a printer).
// Coordinates are not rounded, pens have their own width, and texts stay texts. What inverts is not drawn: a
// page cannot, and marks have no place on it.
class LienzoVectorial : public SuperficieQt {
  public:
    // Begins painting on the device, which must outlive this; in pixels of PPP_NORMAL to the inch, all of it
    // `escala` times as large. Fails with 57 when the device cannot be painted on.
    LienzoVectorial(QPaintDevice& destino, QSizeF pixeles, double escala = 1);

    // Ends the painting; false when the device has not taken it.
    bool Termina() { return pintor_.end(); }

    void Cls() override;
    using Superficie::Line;
    void Line(std::span<const PuntoXY> cadena) override;
    void Caja(PuntoXY esquina, PuntoXY opuesta) override;
    void Circle(PuntoXY centro, float radio) override;
    void Circle(PuntoXY centro, float radio, double inicio, double fin) override;
    void PSet(PuntoXY punto, std::int32_t color) override;
    void PaintPicture(const zel::Imagen& imagen, PuntoXY esquina, float ancho, float alto) override;
    void Print(std::string_view texto) override;

  private:
    void PonPluma();
    void TrazaARayas();

    double escala_;
    QPainter pintor_;
    Pluma puesta_;
    bool hayPlumaPuesta_ = false;
    QPolygonF cadena_;  // the stroke in hand
};

}  // namespace zel
