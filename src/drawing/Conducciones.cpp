#include "drawing/Conducciones.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

#include "drawing/Colores.h"
#include "drawing/FalloDeElemento.h"
#include "drawing/Geometria.h"
#include "drawing/Marco.h"
#include "model/TamanyoUnidad.h"
#include "platform/Numeros.h"

namespace zel {

namespace {

constexpr float ANGULO_PUNTA = 45;
constexpr std::int16_t DISENO_PUNTA = 2;

struct EstiloTraza {
    std::optional<std::int16_t> principal;  // DrawStyle of the line; none for unknown kinds
    bool doble = false;                     // with a dashed twin at its right
};

EstiloTraza EstiloDe(TipoElemento tipo) noexcept {
    switch (tipo) {
        case ctConduccion1:
        case ctConduccion2:
        case ctConduccion3:
            return {Superficie::ESTILO_SOLIDO};
        case ctConduccion4:
        case ctConduccion5:
        case ctRecarga:
        case ctBombeo:
            return {Superficie::ESTILO_SOLIDO, true};
        case ctToma:
            return {Superficie::ESTILO_TRAZO_PUNTO_PUNTO};
        case ctCentralHidroelectrica:
        case ctAportacion:
        case ctRetorno:
        case ctSubcuenca:
            return {Superficie::ESTILO_TRAZO_PUNTO};
        default:
            return {};
    }
}

PuntoXY Desplazado(PuntoXY p, double dx, double dy) noexcept {
    return {static_cast<float>(p.X + dx), static_cast<float>(p.Y + dy)};
}

// The dashed twin of a segment, a tenth of the unit to the right of the direction of travel; where the pen is
// wider than that, a pixel clear of it.
void DibujaGemela(Superficie& panel, PuntoXY a, PuntoXY b) {
    const double angulo = Arcotangente(b.X - a.X, b.Y - a.Y) - PI / 2;
    const double aUnPixel = (panel.pluma().DrawWidth + 1) * double{panel.AnchoDePixel()};
    const double d = std::max(double{TamanyoUnidad()} / 10, aUnPixel);
    const double dx = d * std::cos(angulo);
    const double dy = d * std::sin(angulo);
    panel.Line(Desplazado(a, dx, dy), Desplazado(b, dx, dy));
}

// A chain of segments in the style of a kind, as one stroke, so that bends join and dashes run on.
void DibujaTramos(Superficie& panel, const AjustesDibujo& ajustes, std::span<const PuntoXY> puntos,
                  TipoElemento tipo, bool bFlecha) {
    if (puntos.size() >= 2) {
        const EstiloTraza estilo = EstiloDe(tipo);
        if (estilo.principal) {
            panel.DrawStyle(*estilo.principal);
            panel.Line(puntos);
        }
        if (estilo.doble) {
            panel.DrawStyle(Superficie::ESTILO_TRAZOS);
            for (std::size_t i = 1; i < puntos.size(); ++i)
                DibujaGemela(panel, puntos[i - 1], puntos[i]);
        }
        if (bFlecha) {
            Flecha(panel, ajustes, puntos[puntos.size() - 2], puntos.back(), true, std::nullopt, ANGULO_PUNTA,
                   DISENO_PUNTA);
        }
    }
    panel.DrawStyle(Superficie::ESTILO_SOLIDO);
}

const Puntos* TrazadoDe(const Elemento& e, std::optional<std::int16_t> cual) noexcept {
    return cual.value_or(1) == 1 ? e.Trazado().get() : e.Trazado2().get();
}

struct Preparada {
    const Puntos* trazado;
    std::int32_t color;
    TipoElemento tipo;
    float ancho;
    bool flecha;
};

Preparada Prepara(const AjustesDibujo& ajustes, const Elemento& e, const Puntos* trazado,
                  std::optional<std::int16_t> cual) {
    if (trazado) {
        return {trazado, ColorDeLinea(ajustes.iTipoHerramienta), ajustes.iTipoHerramienta, 1, false};
    }
    const float ancho = e.Tipo() < ctCentralHidroelectrica ? e.Tamanyo() : 1;
    return {TrazadoDe(e, cual), e.ColorLinea(), e.Tipo(), ancho, true};
}

// True when the box that holds both points reaches into the visible part.
bool SeVe(const Marco& visible, PuntoXY a, PuntoXY b) noexcept {
    Marco marco;
    marco.Crece(a.X, a.Y, TamanyoUnidad());
    marco.Crece(b.X, b.Y, TamanyoUnidad());
    return marco.Toca(visible);
}

}  // namespace

void DibujarConduccion(Superficie& panel, const AjustesDibujo& ajustes, const Elemento& elemento,
                       const Puntos* trazado, std::optional<std::int16_t> cual) try {
    const Preparada linea = Prepara(ajustes, elemento, trazado, cual);
    if (!linea.trazado) throw Fallo(91);
    if (linea.flecha && linea.trazado->Count() < 2) throw Fallo(9);
    PreparaColor(panel, linea.color == COLOR_DEL_TIPO ? ColorDeLinea(linea.tipo) : linea.color);
    panel.DrawWidth(Entero16(linea.ancho));
    // The vertices in one run of memory; most traces fit without asking for any.
    constexpr std::size_t HABITUAL = 32;
    std::array<PuntoXY, HABITUAL> pocos;
    std::vector<PuntoXY> muchos;
    const auto n = static_cast<std::size_t>(linea.trazado->Count());
    if (n > HABITUAL) muchos.resize(n);
    const std::span<PuntoXY> puntos = n > HABITUAL ? std::span(muchos) : std::span(pocos).first(n);
    std::size_t i = 0;
    for (const auto& punto : *linea.trazado)
        puntos[i++] = {punto->XPos(), punto->YPos()};
    DibujaTramos(panel, ajustes, puntos, linea.tipo, linea.flecha);
    PreparaNegro(panel);
    panel.DrawWidth(1);
} catch (...) {
    panel.DrawWidth(1);
    LanzaErrorVisor(ajustes.iEstado, ". ErrDibujarConduccion (Esquema)");
}

void DibujaLinea(Superficie& panel, const AjustesDibujo& ajustes, PuntoXY ptoA, PuntoXY ptoB,
                 TipoElemento tipo, bool bFlecha) try {
    const PuntoXY tramo[] = {ptoA, ptoB};
    DibujaTramos(panel, ajustes, tramo, tipo, bFlecha);
} catch (...) {
    LanzaErrorVisor(ajustes.iEstado, ". ErrDibujaLinea (Esquema)");
}

void Flecha(Superficie& panel, const AjustesDibujo& ajustes, PuntoXY ptoA, PuntoXY ptoB, bool bSinAsta,
            std::optional<std::int32_t> color, float angulo, std::int16_t diseno) try {
    const double h = angulo / 180.0 * PI / 2;
    const double largo = (diseno == 1 ? 0.8 : diseno == 2 ? 0.5 : 0.0) * TamanyoUnidad();
    const double dir = Arcotangente(ptoB.X - ptoA.X, ptoB.Y - ptoA.Y);
    if (dir == -1) return;
    const auto atras = [&](double distancia, double direccion) {
        return Desplazado(ptoB, -distancia * std::cos(direccion), -distancia * std::sin(direccion));
    };
    const PuntoXY barba1 = atras(largo / std::cos(h), dir - h);
    const PuntoXY barba2 = atras(largo / std::cos(h), dir + h);
    const PuntoXY base = atras(diseno == 1 ? largo : 0.3 * largo, dir);
    if (color) PreparaColor(panel, *color);
    const std::int16_t estilo = panel.DrawStyle();
    panel.DrawStyle(Superficie::ESTILO_SOLIDO);
    if (diseno == 1) {
        const PuntoXY cabeza[] = {ptoB, barba1, barba2, ptoB};
        panel.Line(cabeza);
    } else if (diseno == 2) {
        const PuntoXY cabeza[] = {ptoB, barba1, base, barba2, ptoB};
        panel.Line(cabeza);
    } else {
        panel.Line(ptoB, barba1);
        panel.DrawStyle(estilo);
        return;
    }
    panel.DrawStyle(estilo);
    if (!bSinAsta) panel.Line(ptoA, base);
} catch (...) {
    LanzaErrorVisor(ajustes.iEstado, ". ErrFlecha (Esquema)");
}

PuntoXY PtoContorno(float x1, float y1, float x2, float y2, std::optional<float> tamanyo) {
    const Punto punto = PuntoDelContorno(x1, y1, x2, y2, RadioSimbolo(tamanyo));
    return {punto.XPos(), punto.YPos()};
}

std::shared_ptr<Puntos> EncuadreConduccion(const Elemento& elemento, std::int32_t iEstado) try {
    if (!EsLineal(elemento.Tipo())) return nullptr;
    if (!elemento.Trazado()) throw Fallo(91);
    if (elemento.Trazado()->Count() == 0) throw Fallo(9);
    Marco marco;
    marco.Crece(*elemento.Trazado(), 0);
    if (elemento.Tipo() >= ctAportacion) marco.Crece(elemento.XPos(), elemento.YPos(), 0);
    auto esquinas = std::make_shared<Puntos>();
    esquinas->Add(marco.Xmin, marco.Ymin);
    esquinas->Add(marco.Xmax, marco.Ymax);
    return esquinas;
} catch (...) {
    LanzaErrorVisor(iEstado, ". ErrEncuadreConduccion (Esquema)");
}

void DibujaLineasSecundarias(Superficie& panel, const AjustesDibujo& ajustes, const Elementos& elementos,
                             const Elementos& colElementos, IndiceDePintado* indice) try {
    if (!ajustes.bMostrarLineasOcultas) return;
    PreparaNegro(panel);
    const Marco visible = Marco::Visible(panel);
    const Elemento* incoherente = nullptr;  // the first with a connection to nobody
    const auto dibuja = [&](const Elemento& e) {
        for (const std::int32_t codigo : {e.ConecSec1(), e.ConecSec2()}) {
            if (codigo <= 0) continue;
            const auto t = elementos.ItemCodSIG(codigo);
            if (!t) {
                if (!incoherente && !colElementos.ItemCodSIG(codigo)) incoherente = &e;
                continue;
            }
            const PuntoXY p1 = PtoContorno(e.XPos(), e.YPos(), t->XPos(), t->YPos(), e.Tamanyo());
            const PuntoXY p2 = PtoContorno(t->XPos(), t->YPos(), e.XPos(), e.YPos(), t->Tamanyo());
            if (SeVe(visible, p1, p2)) DibujaLinea(panel, ajustes, p1, p2, ctCentralHidroelectrica, true);
        }
    };
    if (indice) {
        for (const Elemento* e : indice->ConSecundarias())
            dibuja(*e);
    } else {
        for (const auto& e : elementos)
            dibuja(*e);
    }
    if (incoherente) {
        DiciendoCual(*incoherente, [&] {
            LanzaErrorVisor(ajustes.iEstado, ". ErrDibujaLineasSecundarias: datos incoherentes (Esquema)");
        });
    }
} catch (...) {
    LanzaErrorVisor(ajustes.iEstado, ". ErrDibujaLineasSecundarias (Esquema)");
}

}  // namespace zel
