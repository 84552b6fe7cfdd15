#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/Superficie.h"

namespace zel::pruebas {

// A surface that writes down what is drawn, with the pen it was drawn with. Its text metrics are fixed: in
// points taken as hundredths of the view's width, every character is half as wide as the font is high.
class SuperficieGrabadora : public Superficie {
  public:
    enum class Que { Linea, Caja, Circulo, Arco, Punto, Texto, Imagen };
    struct Trazo {
        Que que;
        std::vector<PuntoXY> puntos;  // a chain; two corners; a centre; a dot; a text's top left corner
        float radio = 0;
        double inicio = 0, fin = 0;
        Pluma pluma;
        float fuente = 0;
        std::string texto;
        std::int32_t color = 0;  // of a dot
    };

    SuperficieGrabadora() {
        ScaleLeft(0);
        ScaleTop(100);
        ScaleWidth(200);
        ScaleHeight(-100);
    }

    std::vector<Trazo> trazos;
    int limpiezas = 0;
    int refrescos = 0;
    std::function<void()> pinta;  // what a refresh paints
    std::int16_t puntero = -1;
    std::int32_t cursor = -1;

    std::vector<Trazo> De(Que que) const {
        std::vector<Trazo> elegidos;
        for (const Trazo& t : trazos) {
            if (t.que == que) elegidos.push_back(t);
        }
        return elegidos;
    }
    std::vector<std::string> Textos() const {
        std::vector<std::string> textos;
        for (const Trazo& t : De(Que::Texto))
            textos.push_back(t.texto);
        return textos;
    }

    float AnchoDePixel() const override { return ScaleWidth() / 1000; }
    void Cls() override {
        ++limpiezas;
        trazos.clear();
    }
    void Refresh() override {
        ++refrescos;
        if (pinta) pinta();
    }
    using Superficie::Line;
    void Line(std::span<const PuntoXY> cadena) override {
        trazos.push_back({Que::Linea, {cadena.begin(), cadena.end()}, 0, 0, 0, pluma(), 0, {}, 0});
    }
    void Caja(PuntoXY a, PuntoXY b) override {
        trazos.push_back({Que::Caja, {a, b}, 0, 0, 0, pluma(), 0, {}, 0});
    }
    void Circle(PuntoXY c, float r) override {
        trazos.push_back({Que::Circulo, {c}, r, 0, 0, pluma(), 0, {}, 0});
    }
    void Circle(PuntoXY c, float r, double inicio, double fin) override {
        trazos.push_back({Que::Arco, {c}, r, inicio, fin, pluma(), 0, {}, 0});
    }
    void PSet(PuntoXY p, std::int32_t color) override {
        trazos.push_back({Que::Punto, {p}, 0, 0, 0, pluma(), 0, {}, color});
    }
    void PaintPicture(const zel::Imagen&, PuntoXY p, float ancho, float alto) override {
        trazos.push_back({Que::Imagen, {p, {p.X + ancho, p.Y + alto}}, 0, 0, 0, pluma(), 0, {}, 0});
    }
    void Print(std::string_view texto) override {
        trazos.push_back(
            {Que::Texto, {{CurrentX(), CurrentY()}}, 0, 0, 0, pluma(), FontSize(), std::string(texto), 0});
    }
    float TextWidth(std::string_view texto) override {
        return static_cast<float>(texto.size()) * Letra() / 2;
    }
    float TextHeight(std::string_view) override { return -Letra(); }
    void MousePointer(std::int16_t cual, std::int32_t numero) override {
        puntero = cual;
        cursor = numero;
    }

  private:
    float Letra() const { return FontSize() * ScaleWidth() / 100; }
};

}  // namespace zel::pruebas
