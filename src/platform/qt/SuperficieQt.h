#pragma once

#include <QColor>
#include <QFont>
#include <QImage>
#include <QPen>
#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <cmath>

#include "platform/Superficie.h"
#include "platform/qt/Fuentes.h"

namespace zel {

// What the drawing surfaces on Qt have in common: where the world lies in their pixels, the background, the
// font and its measures.
class SuperficieQt : public Superficie {
  public:
    // Red + 256 green + 65536 blue. What Cls leaves, and what is behind a text that is not transparent.
    std::int32_t BackColor() const noexcept { return fondo_; }
    void BackColor(std::int32_t valor) noexcept { fondo_ = valor; }

    // Family, weight, slant, underline and strike-through. The size is FontSize, whatever the font says.
    const QFont& Font() const noexcept { return fuentes_.Letra(); }
    void Font(const QFont& fuente);
    // Whether a text shows what is behind it.
    bool FontTransparent() const noexcept { return textoTransparente_; }
    void FontTransparent(bool valor) noexcept { textoTransparente_ = valor; }

    float AnchoDePixel() const override;
    // Nothing, where there is no screen.
    void Refresh() override {}
    void MousePointer(std::int16_t, std::int32_t) override {}
    float TextWidth(std::string_view texto) override;
    float TextHeight(std::string_view texto) override;

  protected:
    // `pixelesPorPunto` for the size of texts; `relacion` is the number of these pixels in a logical one.
    void Mide(QSizeF pixeles, double pixelesPorPunto, double relacion) noexcept;
    double Relacion() const noexcept { return relacion_; }
    QSizeF Pixeles() const noexcept { return pixeles_; }
    double PixelesPorUnidadX() const noexcept { return pixeles_.width() / double{ScaleWidth()}; }
    double PixelesPorUnidadY() const noexcept { return pixeles_.height() / double{ScaleHeight()}; }
    QPointF EnPixeles(PuntoXY punto) const noexcept {
        return {(double{punto.X} - ScaleLeft()) * PixelesPorUnidadX(),
                (double{punto.Y} - ScaleTop()) * PixelesPorUnidadY()};
    }

    // A point that is a number, however far.
    static bool EsPunto(QPointF p) noexcept { return std::isfinite(p.x()) && std::isfinite(p.y()); }
    static QColor ColorQt(std::int32_t color) {
        return {color & 0xFF, (color >> 8) & 0xFF, (color >> 16) & 0xFF};
    }
    bool Invierte() const noexcept { return pluma().DrawMode == MODO_INVERTIR; }
    // What the pen and the fill leave in the draw mode: black, or the colour.
    QColor ColorDe(std::int32_t color) const;
    // Wider pens are solid.
    bool EsSolida() const noexcept { return pluma().DrawStyle == ESTILO_SOLIDO || pluma().DrawWidth > 1; }
    // Dashes and gaps of a dashed style, in units of the pen's width.
    static QList<qreal> Trazos(std::int16_t estilo);
    // The same for a segment of that length, in those units: as many whole rounds as fit best, from the
    // middle of a dash to the middle of a dash, so that no bend falls into a gap. Empty where there is room
    // for none.
    static QList<qreal> TrazosPara(std::int16_t estilo, double largo);
    // The pen as Qt's, with round ends when it is solid.
    QPen PlumaQt(double ancho) const;

    // The font in use. A text too small to be seen has the font of a larger one: its sizes times Reduccion
    // are those of the text.
    FuenteDeTexto& Fuente();
    double Reduccion() const noexcept { return reduccion_; }
    // The box of a text printed at the current point, in pixels.
    QRectF CajaDeTexto(std::string_view texto);

    // A picture on its place, mirrored where the place runs against it: to the left, or upwards.
    struct ImagenColocada {
        QRectF destino;  // pixels
        QImage imagen;
    };
    ImagenColocada Coloca(const zel::Imagen& imagen, PuntoXY esquina, float ancho, float alto) const;

  private:
    QSizeF pixeles_{1, 1};
    double pixelesPorPunto_ = PPP_NORMAL / 72;
    double relacion_ = 1;
    std::int32_t fondo_ = 0xFFFFFF;
    bool textoTransparente_ = true;
    Fuentes fuentes_;
    FuenteDeTexto* fuente_ = nullptr;
    float puntosDeFuente_ = -1;
    double reduccion_ = 1;
};

}  // namespace zel
