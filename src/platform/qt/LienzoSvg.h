#pragma once

#include <string>

#include "platform/qt/SuperficieQt.h"

namespace zel {

// The drawing surface that writes SVG 1.1, in pixels of PPP_NORMAL to the inch. Qt's own generator keeps six
// digits of a coordinate, too few for a symbol at the far end of a large schematic, and repeats the whole pen
// for each stroke. What inverts is not drawn: marks have no place in a picture.
class LienzoSvg : public SuperficieQt {
  public:
    explicit LienzoSvg(QSizeF pixeles);

    // The whole document, of that width in the unit ("mm", "px"...); the height follows.
    std::string Documento(std::string_view titulo, std::string_view descripcion, double ancho,
                          std::string_view unidad);

    void Cls() override;
    using Superficie::Line;
    void Line(std::span<const PuntoXY> cadena) override;
    void Caja(PuntoXY esquina, PuntoXY opuesta) override;
    void Circle(PuntoXY centro, float radio) override;
    void Circle(PuntoXY centro, float radio, double inicio, double fin) override;
    void PSet(PuntoXY punto, std::int32_t color) override;
    // The picture goes inside, as PNG.
    void PaintPicture(const zel::Imagen& imagen, PuntoXY esquina, float ancho, float alto) override;
    void Print(std::string_view texto) override;

  private:
    void Pon(std::string_view nombre, double valor);
    void PonColor(std::string_view nombre, const QColor& color);
    void PonPunto(QPointF punto);
    void PonCaja(const QRectF& caja);
    void PonTrazo();
    void PonRelleno();
    void PonLinea(QPointF donde, std::string_view linea);
    void AsientaPuntos();
    void CierraLetra();
    void AbreLetra();

    std::string cuerpo_;
    std::string letra_;   // the attributes of the font whose group is open
    std::string puntos_;  // dots of one colour not yet drawn, as a path
    std::int32_t colorDePuntos_ = 0;
};

}  // namespace zel
