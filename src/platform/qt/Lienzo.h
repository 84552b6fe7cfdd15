#pragma once

#include <QImage>
#include <QPainter>
#include <QPointF>
#include <QSize>
#include <functional>
#include <vector>

#include "platform/qt/SuperficieQt.h"

namespace zel {

// The drawing surface on Qt: an opaque RGB image and a painter on it. Pens are measured in logical pixels;
// `relacion` is the number of the image's pixels in a logical one and `ppp` that of logical pixels in an
// inch, so that the same drawing comes out sharp on any screen and at any width.
class Lienzo : public SuperficieQt {
  public:
    explicit Lienzo(QSize pixeles = {1, 1}, double relacion = 1);

    // Begins anew, in the background's colour, in that many pixels of the image; a side below one counts as
    // one. Fails with 7 when there is no memory for the image.
    void Redimensiona(QSize pixeles, double relacion, double ppp = PPP_NORMAL);

    using SuperficieQt::Relacion;
    // All that has been drawn, in the image's pixels.
    const QImage& Imagen();
    // The same for the widget that shows it, which is told when there is more to show.
    const QImage& ImagenQueSeMuestra();
    // The same, handed over; the surface begins anew with one pixel.
    QImage Entrega();

    // Something has been drawn since the image was last shown: told once until it is shown again.
    void AlDibujar(std::function<void()> accion) { alDibujar_ = std::move(accion); }
    // What Refresh and MousePointer ask of the widget that shows the surface.
    void AlRefrescar(std::function<void()> accion) { alRefrescar_ = std::move(accion); }
    void AlCambiarPuntero(std::function<void(std::int16_t, std::int32_t)> accion) {
        alCambiarPuntero_ = std::move(accion);
    }

    void Cls() override;
    void Refresh() override;
    using Superficie::Line;
    void Line(std::span<const PuntoXY> cadena) override;
    void Caja(PuntoXY esquina, PuntoXY opuesta) override;
    void Circle(PuntoXY centro, float radio) override;
    void Circle(PuntoXY centro, float radio, double inicio, double fin) override;
    void PSet(PuntoXY punto, std::int32_t color) override;
    void PaintPicture(const zel::Imagen& imagen, PuntoXY esquina, float ancho, float alto) override;
    void Print(std::string_view texto) override;
    void MousePointer(std::int16_t puntero, std::int32_t numeroDeCursor) override;

  private:
    double AnchoDePluma() const noexcept;
    void Toca();
    void PonPluma();
    void Ajusta(std::vector<QPointF>& puntos) const;
    void Traza();
    void TrazaFina(std::span<const QPointF> cadena, bool conRemates);
    void TrazaARayas();
    void TrazaUnaVez();
    void InviertePixeles(const QRect& zona);
    void InvierteTramo(QPointF a, QPointF b);
    void InvierteCaja(QPointF a, QPointF b);
    void TrazaLejana();
    void AsientaPuntos();

    QImage imagen_;
    QPainter pintor_;  // declared behind the image: it ends first
    Pluma puesta_;
    bool hayPlumaPuesta_ = false;
    std::vector<QPointF> cadena_;  // the stroke in hand, in device pixels
    std::vector<QPointF> puntos_;  // dots of one colour and mode not yet drawn
    std::int32_t colorDePuntos_ = 0;
    bool puntosInvierten_ = false;
    bool tocado_ = false;
    std::function<void()> alDibujar_;
    std::function<void()> alRefrescar_;
    std::function<void(std::int16_t, std::int32_t)> alCambiarPuntero_;
};

}  // namespace zel
