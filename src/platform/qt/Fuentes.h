#pragma once

#include <QFont>
#include <QGlyphRun>
#include <QImage>
#include <QPainter>
#include <QRawFont>
#include <QString>
#include <array>
#include <cstdint>
#include <map>
#include <memory>
#include <string_view>
#include <vector>

namespace zel {

// The resolution of the surfaces' images, in pixels per inch.
constexpr double PPP_NORMAL = 96;

// An opaque RGB image of that resolution; null when there is no memory for it.
QImage ImagenNormal(QSize pixeles);

QString DeUtf8(std::string_view texto);

// The text of a drawing surface at one size. Latin texts are laid out glyph by glyph from a table, without
// kerning and without hinting, so that widths grow evenly with the size; any other text goes through Qt's
// own layout.
class FuenteDeTexto {
  public:
    // `alto` in device pixels (the font's size, not its line height).
    FuenteDeTexto(const QFont& letra, double alto);

    // Device pixels. A line break in the text begins a new line.
    double Ancho(std::string_view texto) const;
    double Alto(std::string_view texto) const;
    void Pinta(QPainter& pintor, QPointF esquina, const QColor& color, std::string_view texto);
    // As characters rather than glyphs, for devices that keep them: `alto` is then in the painter's units.
    void PintaComoTexto(QPainter& pintor, QPointF esquina, const QColor& color, std::string_view texto) const;
    // From the top of a line to what its letters stand on, and from a line to the next.
    double Ascenso() const noexcept { return ascenso_; }
    double AltoDeLinea() const noexcept { return altoDeLinea_; }

  private:
    struct Glifo {
        quint32 indice = 0;
        double avance = 0;
    };

    // The glyphs of one line, or nothing when some character is not in the table.
    bool Compone(std::string_view linea);
    const Glifo* GlifoDe(char32_t caracter) const noexcept;
    double AnchoDeLinea(std::string_view linea) const;

    QFont fuente_;
    QRawFont cruda_;
    double ascenso_;
    double altoDeLinea_;
    std::array<Glifo, 256> latinos_;
    QGlyphRun tirada_;
    std::vector<quint32> indices_;
    std::vector<QPointF> lugares_;
};

// The sizes in use of one font. The one asked for last is always kept.
class Fuentes {
  public:
    Fuentes();
    const QFont& Letra() const noexcept { return letra_; }
    // Takes the font's family, weight and lines; false when they are those that were. What De returned before
    // is gone otherwise.
    bool Letra(const QFont& fuente);
    FuenteDeTexto& De(double alto);

  private:
    struct Guardada {
        std::unique_ptr<FuenteDeTexto> fuente;
        std::uint64_t uso = 0;
    };
    QFont letra_;
    std::map<double, Guardada> porAlto_;
    std::uint64_t usos_ = 0;
};

}  // namespace zel
