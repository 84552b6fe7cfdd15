#include "drawing/Simbolos.h"

#include <cmath>

#include "drawing/Colores.h"
#include "drawing/Conducciones.h"
#include "drawing/Etiquetas.h"
#include "drawing/Fuente.h"
#include "drawing/Geometria.h"
#include "drawing/Parrilla.h"
#include "drawing/PartesDelDibujo.h"
#include "model/TamanyoUnidad.h"
#include "platform/Numeros.h"

namespace zel {

namespace {

constexpr float TAMANYO_CON_MARCO = 3;

struct Numero {
    std::string texto;
    float ancho;  // world units
    float alto;   // negative: Y grows upwards
};

Numero MideNumero(Superficie& panel, const Elemento& e) {
    std::string texto = std::to_string(e.KeyPant());
    const float ancho = panel.TextWidth(texto);
    const float alto = panel.TextHeight(texto);
    return {std::move(texto), ancho, alto};
}

// The frame that every symbol shares: pen, font and colour before, the number and a black pen after.
// `contorno` draws the outline around a centre with a radius; `esquina` tells the top left corner of the
// number from the centre, the radius and the number's size.
template <typename Contorno, typename Esquina>
void DibujarSimbolo(Superficie& panel, const AjustesDibujo& ajustes, const Elemento& e, bool bFantasma,
                    PuntoXY donde, Contorno contorno, Esquina esquina) {
    const float r = e.Tamanyo() * TamanyoUnidad();
    PonFuente(panel, ajustes.FactorFuente(panel), ajustes.iEstado);
    panel.DrawStyle(Superficie::ESTILO_SOLIDO);
    if (bFantasma) {
        panel.DrawMode(Superficie::MODO_INVERTIR);
    } else {
        PreparaColor(panel, e.ColorIcono() != COLOR_DEL_TIPO ? e.ColorIcono() : ColorDeIcono(e.Tipo()));
        donde = {e.XPos(), e.YPos()};
    }
    contorno(donde, r);
    if (!bFantasma) {
        PreparaNegro(panel);
        const Numero numero = MideNumero(panel, e);
        const PuntoXY p = esquina(donde, r, numero);
        panel.CurrentX(p.X);
        panel.CurrentY(p.Y);
        panel.Print(numero.texto);
    }
    PreparaNegro(panel);
    panel.DrawStyle(Superficie::ESTILO_SOLIDO);
}

PuntoXY Centrado(PuntoXY c, float, const Numero& n) noexcept {
    return {c.X - n.ancho / 2, c.Y - n.alto / 2};
}
PuntoXY BajoElCentro(PuntoXY c, float r, const Numero& n) noexcept {
    return {c.X - n.ancho / 2, c.Y - r};
}
PuntoXY SobreElCentro(PuntoXY c, float, const Numero& n) noexcept {
    return {c.X - n.ancho / 2, c.Y - n.alto / 2 + 2.0F};
}

void MarcaNumero(Superficie& panel, const AjustesDibujo& ajustes, const Elemento& e) {
    PreparaColor(panel, COLOR_AZUL);
    PonFuente(panel, ajustes.FactorFuente(panel), ajustes.iEstado);
    const Numero numero = MideNumero(panel, e);
    const float w = VECES_DEL_MARCO * numero.ancho;
    const float h = VECES_DEL_MARCO * numero.alto;
    panel.DrawStyle(Superficie::ESTILO_SOLIDO);
    panel.Caja({e.XPos() - w / 2, e.YPos() - h / 2}, {e.XPos() + w / 2, e.YPos() + h / 2});
    PreparaNegro(panel);
}

void DibujaEtiquetaFantasma(Superficie& panel, const AjustesDibujo& ajustes, const Elemento& e, float X,
                            float Y) {
    panel.DrawMode(Superficie::MODO_INVERTIR);
    const CajaEtiqueta caja = MideEtiqueta(panel, ajustes, e, X, Y);
    panel.Caja({caja.X, caja.Y}, {caja.X + caja.Ancho, caja.Y + caja.Alto});
    PreparaNegro(panel);
}

using DibujaSimbolo = void (*)(Superficie&, const AjustesDibujo&, const Elemento&, bool, float, float);

DibujaSimbolo SimboloDe(TipoElemento tipo) noexcept {
    switch (tipo) {
        case ctNudo:
            return DibujarNudo;
        case ctEmbalse:
            return DibujarEmbalse;
        case ctDemanda:
            return DibujarDemanda;
        case ctAcuifero:
            return DibujarAcuifero;
        case ctCentralHidroelectrica:
            return DibujarCentralHE;
        case ctAportacion:
            return DibujarAportacion;
        case ctRetorno:
            return DibujarRetorno;
        case ctSubcuenca:
            return DibujarSubcuenca;
        default:
            return nullptr;
    }
}

}  // namespace

bool NumeroEnmarcado(const Elemento& e) noexcept {
    return (e.Tipo() < ctConduccion1 || e.Tipo() >= ctAportacion) && e.Tamanyo() >= TAMANYO_CON_MARCO;
}

void DibujarElemento(Superficie& panel, const AjustesDibujo& ajustes, const Elemento* elemento,
                     bool bFantasma, float X, float Y) try {
    if (!elemento) return;
    const Elemento& e = *elemento;
    const TipoElemento tipo = e.Tipo();
    PartesDelDibujo partes;
    if (TipoConocido(tipo) && EsLineal(tipo)) {
        partes.Dibuja([&] { DibujarConduccion(panel, ajustes, e, nullptr, std::int16_t{1}); });
    }
    if (tipo == ctCentralHidroelectrica) {
        partes.Dibuja([&] { DibujarConduccion(panel, ajustes, e, nullptr, std::int16_t{2}); });
    }
    if (const DibujaSimbolo dibuja = SimboloDe(tipo)) {
        partes.Dibuja([&] { dibuja(panel, ajustes, e, bFantasma, X, Y); });
    }
    if (NumeroEnmarcado(e)) {
        partes.Dibuja([&] { MarcaNumero(panel, ajustes, e); });
    }
    if (bFantasma && e.MostrarEtiqueta() && ajustes.bMostrarEtiquetas) {
        partes.Dibuja([&] { DibujaEtiquetaFantasma(panel, ajustes, e, X, Y); });
    }
    partes.Termina();
} catch (...) {
    LanzaErrorVisor(ajustes.iEstado, ". ErrDibujarElemento (Esquema)");
}

void DibujarFantasma(Superficie& panel, const AjustesDibujo& ajustes, const Elemento& e, float X,
                     float Y) try {
    if (const DibujaSimbolo dibuja = SimboloDe(e.Tipo())) dibuja(panel, ajustes, e, true, X, Y);
    if (e.MostrarEtiqueta() && ajustes.bMostrarEtiquetas) DibujaEtiquetaFantasma(panel, ajustes, e, X, Y);
} catch (...) {
    LanzaErrorVisor(ajustes.iEstado, ". ErrDibujarElemento (Esquema)");
}

void DibujarNudo(Superficie& panel, const AjustesDibujo& ajustes, const Elemento& e, bool bFantasma, float X,
                 float Y) try {
    DibujarSimbolo(
        panel, ajustes, e, bFantasma, {X, Y}, [&](PuntoXY c, float r) { panel.Circle(c, r); }, Centrado);
} catch (...) {
    LanzaErrorVisor(ajustes.iEstado, ". ErrDibujarNudo (Esquema)");
}

void DibujarEmbalse(Superficie& panel, const AjustesDibujo& ajustes, const Elemento& e, bool bFantasma,
                    float X, float Y) try {
    const auto triangulo = [&](PuntoXY c, float r) {
        const float s = r / 5;
        const PuntoXY lados[] = {
            {c.X - r, c.Y + r - s}, {c.X + r, c.Y + r - s}, {c.X, c.Y - r - s}, {c.X - r, c.Y + r - s}};
        panel.Line(lados);
    };
    DibujarSimbolo(panel, ajustes, e, bFantasma, {X, Y}, triangulo, Centrado);
} catch (...) {
    LanzaErrorVisor(ajustes.iEstado, ". ErrDibujarEmbalse (Esquema)");
}

void DibujarDemanda(Superficie& panel, const AjustesDibujo& ajustes, const Elemento& e, bool bFantasma,
                    float X, float Y) try {
    const auto cuadrado = [&](PuntoXY c, float r) { panel.Caja({c.X - r, c.Y - r}, {c.X + r, c.Y + r}); };
    DibujarSimbolo(panel, ajustes, e, bFantasma, {X, Y}, cuadrado, Centrado);
} catch (...) {
    LanzaErrorVisor(ajustes.iEstado, ". ErrDibujarDemanda (Esquema)");
}

void DibujarAcuifero(Superficie& panel, const AjustesDibujo& ajustes, const Elemento& e, bool bFantasma,
                     float X, float Y) try {
    const auto octogono = [&](PuntoXY c, float r) {
        const float m = r / 2;
        const PuntoXY lados[] = {{c.X - m, c.Y - r}, {c.X - r, c.Y - m}, {c.X - r, c.Y + m},
                                 {c.X - m, c.Y + r}, {c.X + m, c.Y + r}, {c.X + r, c.Y + m},
                                 {c.X + r, c.Y - m}, {c.X + m, c.Y - r}, {c.X - m, c.Y - r}};
        panel.Line(lados);
        // The dots stand at the element's own place and cannot be removed: a ghost goes without them.
        if (!bFantasma) DibujaAcuiferoParrilla(panel, ajustes, e);
    };
    DibujarSimbolo(panel, ajustes, e, bFantasma, {X, Y}, octogono, Centrado);
} catch (...) {
    LanzaErrorVisor(ajustes.iEstado, ". ErrDibujarAcuifero (Esquema)");
}

void DibujarCentralHE(Superficie& panel, const AjustesDibujo& ajustes, const Elemento& e, bool bFantasma,
                      float X, float Y) try {
    const auto onda = [&](PuntoXY c, float r) {
        const float q = 0.4F * r;
        panel.Circle(c, r);
        panel.Circle({c.X - q, c.Y}, q, 0, 3.1416);
        panel.Circle({c.X + q, c.Y}, q, 3.1416, 6.283);
    };
    DibujarSimbolo(panel, ajustes, e, bFantasma, {X, Y}, onda, BajoElCentro);
} catch (...) {
    LanzaErrorVisor(ajustes.iEstado, ". ErrDibujarCentralHE (Esquema)");
}

void DibujarAportacion(Superficie& panel, const AjustesDibujo& ajustes, const Elemento& e, bool bFantasma,
                       float X, float Y) try {
    const auto flechaAncha = [&](PuntoXY c, float r) {
        const PuntoXY lados[] = {
            {c.X - r, c.Y - r},     {c.X - r, c.Y},         {c.X - 3 * r / 4, c.Y - r / 4},
            {c.X + r / 2, c.Y + r}, {c.X + r, c.Y + r / 2}, {c.X - r / 4, c.Y - 3 * r / 4},
            {c.X, c.Y - r},         {c.X - r, c.Y - r}};
        panel.Line(lados);
    };
    DibujarSimbolo(panel, ajustes, e, bFantasma, {X, Y}, flechaAncha, Centrado);
} catch (...) {
    LanzaErrorVisor(ajustes.iEstado, ". ErrDibujarAportacion (Esquema)");
}

void DibujarRetorno(Superficie& panel, const AjustesDibujo& ajustes, const Elemento& e, bool bFantasma,
                    float X, float Y) try {
    constexpr double INICIO = 5.4977871438;  // 315 degrees
    const auto vuelta = [&](PuntoXY c, float r) {
        panel.Circle(c, r, INICIO, PI);
        const PuntoXY p1{static_cast<float>(c.X + r * std::cos(INICIO)),
                         static_cast<float>(c.Y + r * std::sin(INICIO))};
        const double paso = 0.15 * r * std::sqrt(0.5);  // 0.15 R towards 225 degrees
        const PuntoXY p2{static_cast<float>(p1.X - paso), static_cast<float>(p1.Y - paso)};
        Flecha(panel, ajustes, p1, p2, false, std::nullopt, 45, 2);
    };
    DibujarSimbolo(panel, ajustes, e, bFantasma, {X, Y}, vuelta, Centrado);
} catch (...) {
    LanzaErrorVisor(ajustes.iEstado, ". ErrDibujarRetorno (Esquema)");
}

void DibujarSubcuenca(Superficie& panel, const AjustesDibujo& ajustes, const Elemento& e, bool bFantasma,
                      float X, float Y) try {
    const auto cuenca = [&](PuntoXY c, float r) {
        const PuntoXY caja[] = {
            {c.X - r, c.Y + r}, {c.X - r, c.Y - r}, {c.X + r, c.Y - r}, {c.X + r, c.Y + r}};
        panel.Line(caja);
        const auto entero = [](float valor) { return static_cast<float>(Entero32(valor)); };
        const float x0 = entero(c.X - r);
        const float y0 = entero(c.Y - r / 2);
        const float w = entero(2 * r);
        const float h = entero(r);
        const PuntoXY perfil[] = {{x0, y0},
                                  {x0 + 0.2F * w, y0 + 0.3F * h},
                                  {x0 + 0.3F * w, y0 + 0.9F * h},
                                  {x0 + 0.4F * w, y0 + 0.5F * h},
                                  {x0 + 0.6F * w, y0 + 0.3F * h},
                                  {x0 + w, y0 + 0.2F * h}};
        panel.Line(perfil);
    };
    DibujarSimbolo(panel, ajustes, e, bFantasma, {X, Y}, cuenca, SobreElCentro);
} catch (...) {
    LanzaErrorVisor(ajustes.iEstado, ". ErrDibujarSubcuenca (Esquema)");
}

void DibujarCentralHE2(Superficie& panel, const AjustesDibujo& ajustes, float X, float Y,
                       const std::string& textoNumero, float Tamanyo, std::optional<std::int32_t> ColorIcono,
                       bool bFantasma) try {
    Elemento e;
    e.Tipo(ctCentralHidroelectrica);
    e.XPos(X);
    e.YPos(Y);
    e.KeyPant(Entero16(NumeroInicial(textoNumero)));
    e.Tamanyo(Tamanyo);
    if (ColorIcono) e.ColorIcono(*ColorIcono);
    DibujarCentralHE(panel, ajustes, e, bFantasma, X, Y);
} catch (...) {
    LanzaErrorVisor(ajustes.iEstado, ". ErrDibujarCentralHE2 (Esquema)");
}

}  // namespace zel
