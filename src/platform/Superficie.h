#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "platform/Imagen.h"

namespace zel {

struct PuntoXY {
    float X = 0;
    float Y = 0;
};

// The drawing surface. Every coordinate is in user units: the point (ScaleLeft, ScaleTop) is the top left
// corner and (ScaleLeft + ScaleWidth, ScaleTop + ScaleHeight) the bottom right one, so that a negative
// ScaleHeight makes Y grow upwards. The pen, the fill, the font and the scale are kept here and read by the
// surface when it draws.
class Superficie {
  public:
    // DrawMode: every pixel black; inverting what is there, so that the same stroke again removes it; the
    // pen.
    static constexpr std::int16_t MODO_NEGRO = 1;
    static constexpr std::int16_t MODO_INVERTIR = 6;
    static constexpr std::int16_t MODO_COPIAR = 13;

    // DrawStyle. Dashed styles show with a pen of one pixel only; wider pens are solid.
    static constexpr std::int16_t ESTILO_SOLIDO = 0;
    static constexpr std::int16_t ESTILO_TRAZOS = 1;
    static constexpr std::int16_t ESTILO_TRAZO_PUNTO = 3;
    static constexpr std::int16_t ESTILO_TRAZO_PUNTO_PUNTO = 4;

    // FillStyle.
    static constexpr std::int16_t RELLENO_SOLIDO = 0;
    static constexpr std::int16_t RELLENO_NINGUNO = 1;

    // MousePointer.
    static constexpr std::int16_t PUNTERO_NORMAL = 0;
    static constexpr std::int16_t PUNTERO_CRUZ = 2;
    static constexpr std::int16_t PUNTERO_PROPIO = 99;

    struct Escala {
        float Left = 0;
        float Top = 0;
        float Width = 1;    // above 0
        float Height = -1;  // below 0: Y grows upwards
        bool operator==(const Escala&) const = default;
    };
    struct Pluma {
        std::int16_t DrawMode = MODO_COPIAR;
        std::int16_t DrawStyle = ESTILO_SOLIDO;
        std::int16_t DrawWidth = 1;  // pixels, at least 1
        std::int16_t FillStyle = RELLENO_NINGUNO;
        std::int32_t ForeColor = 0;  // red + 256 green + 65536 blue
        std::int32_t FillColor = 0;
        bool operator==(const Pluma&) const = default;
    };

    Superficie() = default;
    Superficie(const Superficie&) = delete;
    Superficie& operator=(const Superficie&) = delete;
    virtual ~Superficie() = default;

    const Escala& escala() const noexcept { return escala_; }
    float ScaleLeft() const noexcept { return escala_.Left; }
    float ScaleTop() const noexcept { return escala_.Top; }
    float ScaleWidth() const noexcept { return escala_.Width; }
    float ScaleHeight() const noexcept { return escala_.Height; }
    void ScaleLeft(float valor) noexcept { escala_.Left = valor; }
    void ScaleTop(float valor) noexcept { escala_.Top = valor; }
    void ScaleWidth(float valor) noexcept { escala_.Width = valor; }
    void ScaleHeight(float valor) noexcept { escala_.Height = valor; }

    const Pluma& pluma() const noexcept { return pluma_; }
    std::int16_t DrawStyle() const noexcept { return pluma_.DrawStyle; }
    void DrawMode(std::int16_t valor) noexcept { pluma_.DrawMode = valor; }
    void DrawStyle(std::int16_t valor) noexcept { pluma_.DrawStyle = valor; }
    void DrawWidth(std::int16_t valor) noexcept { pluma_.DrawWidth = valor < 1 ? std::int16_t{1} : valor; }
    void FillStyle(std::int16_t valor) noexcept { pluma_.FillStyle = valor; }
    void ForeColor(std::int32_t valor) noexcept { pluma_.ForeColor = valor; }
    void FillColor(std::int32_t valor) noexcept { pluma_.FillColor = valor; }

    // Points.
    float FontSize() const noexcept { return fuente_; }
    void FontSize(float puntos) noexcept { fuente_ = puntos; }

    float CurrentX() const noexcept { return actual_.X; }
    float CurrentY() const noexcept { return actual_.Y; }
    void CurrentX(float valor) noexcept { actual_.X = valor; }
    void CurrentY(float valor) noexcept { actual_.Y = valor; }

    // User units that one pixel is wide.
    virtual float AnchoDePixel() const = 0;

    // Clears the whole surface to its background.
    virtual void Cls() = 0;
    // Brings to the screen what has been drawn.
    virtual void Refresh() = 0;

    // A chain of segments as one stroke: where inverting, each of its pixels is inverted once. A chain that
    // ends where it began is closed. Two points are one segment.
    virtual void Line(std::span<const PuntoXY> cadena) = 0;
    void Line(PuntoXY desde, PuntoXY hasta) {
        const PuntoXY cadena[] = {desde, hasta};
        Line(cadena);
    }
    // Rectangle between two corners: its outline, and its inside when FillStyle is solid. Where inverting, a
    // filled box has no outline of its own.
    virtual void Caja(PuntoXY esquina, PuntoXY opuesta) = 0;
    // Circle, radius in horizontal units; interior as for a box.
    virtual void Circle(PuntoXY centro, float radio) = 0;
    // Arc from one angle to another, radians, counter-clockwise from +X.
    virtual void Circle(PuntoXY centro, float radio, double inicio, double fin) = 0;
    // One dot of one pixel.
    virtual void PSet(PuntoXY punto, std::int32_t color) = 0;

    // A picture from its top left corner, that wide and high; with Y growing upwards a negative height
    // reaches down.
    virtual void PaintPicture(const Imagen& imagen, PuntoXY esquina, float ancho, float alto) = 0;

    // Text in ForeColor with its top left corner at (CurrentX, CurrentY); DrawMode does not affect it.
    virtual void Print(std::string_view texto) = 0;
    // Size of a text, signed like the scale: with Y growing upwards TextHeight is negative.
    virtual float TextWidth(std::string_view texto) = 0;
    virtual float TextHeight(std::string_view texto) = 0;

    // The mouse pointer; with PUNTERO_PROPIO, the cursor picture of that number.
    virtual void MousePointer(std::int16_t puntero, std::int32_t numeroDeCursor = 0) = 0;

  private:
    Escala escala_;
    Pluma pluma_;
    float fuente_ = 8;
    PuntoXY actual_;
};

}  // namespace zel
