#include "drawing/Pintor.h"

#include <cmath>

#include "drawing/Conducciones.h"
#include "drawing/Etiquetas.h"
#include "drawing/FalloDeElemento.h"
#include "drawing/Fuente.h"
#include "drawing/Marco.h"
#include "drawing/Simbolos.h"
#include "model/TamanyoUnidad.h"

namespace zel {

namespace {

// Room around an element for what is drawn beyond its box: arrowheads, the twin of a double line, the pen's
// width and a number wider than its symbol.
float MargenDeDibujo(Superficie& panel, const AjustesDibujo& ajustes) {
    PonFuente(panel, ajustes.FactorFuente(panel), ajustes.iEstado);
    return TamanyoUnidad() + 1.5F * panel.TextWidth("-32768") + std::abs(panel.TextHeight("0"));
}

// How far from its centre a symbol reaches, of its radius.
constexpr float ALCANCE_DE_SIMBOLO = 1.2F;

// How far from its points a trace reaches, in pixels, with a pen of that width: its twin is beside it.
constexpr float AlcanceDeTrazado(float ancho) noexcept {
    return 2 * ancho + 2;
}

// Few elements are in sight when few of a sample are, one in that many. Then choosing them beforehand takes
// less time than it saves.
constexpr std::int32_t MUESTRA = 64;
constexpr std::int32_t UNO_DE_CADA = 16;

struct ParteVisible {
    Marco visible;
    float margen = 0;
    float anchoDePixel = 0;

    bool CabeDibujar(const Elemento& e) const;
    bool MuestraPocos(const Elementos& elementos) const;
    // Whatever is to be drawn has its centre or a trace here.
    Recuadro Region() const noexcept;
};

bool ParteVisible::CabeDibujar(const Elemento& e) const {
    const TipoElemento tipo = e.Tipo();
    Marco marco;
    if (TieneSimbolo(tipo))
        marco.Crece(e.XPos(), e.YPos(), ALCANCE_DE_SIMBOLO * e.Tamanyo() * TamanyoUnidad() + margen);
    if (marco.Toca(visible) || !TipoConocido(tipo)) return true;
    if (!EsLineal(tipo)) return false;
    // A missing trace is drawn, that is, reported, wherever it would be.
    if (!e.Trazado() || (tipo == ctCentralHidroelectrica && !e.Trazado2())) return true;
    if (e.Trazado()->Count() < 2) return true;
    Marco trazados;
    const float deTrazado = margen + AlcanceDeTrazado(e.Tamanyo()) * anchoDePixel;
    trazados.Crece(*e.Trazado(), deTrazado);
    if (tipo == ctCentralHidroelectrica) {
        if (e.Trazado2()->Count() < 2) return true;
        trazados.Crece(*e.Trazado2(), deTrazado);
    }
    return trazados.Toca(visible);
}

bool ParteVisible::MuestraPocos(const Elementos& elementos) const {
    if (elementos.Count() < MUESTRA * UNO_DE_CADA) return false;
    const auto caben = [&](std::int32_t i) {
        return CabeDibujar(**(elementos.begin() + std::int64_t{i} * elementos.Count() / MUESTRA));
    };
    std::int32_t vistos = 0;
    for (std::int32_t i = 0; i < MUESTRA; ++i)
        vistos += caben(i);
    return vistos <= MUESTRA / UNO_DE_CADA;
}

Recuadro ParteVisible::Region() const noexcept {
    const float simbolo = ALCANCE_DE_SIMBOLO * TamanyoUnidad() * Elemento::TAMANYO_MAXIMO;
    const float trazado = AlcanceDeTrazado(Elemento::TAMANYO_MAXIMO) * anchoDePixel;
    return Recuadro::ConHolgura(visible, double{margen} + std::max({simbolo, trazado, 0.0F}));
}

class Fallos {
  public:
    template <typename Paso>
    void Intenta(Paso paso) {
        try {
            paso();
        } catch (...) {
            descripciones_.push_back(FalloEnCurso().Description());
        }
    }
    void Ignora(const std::function<void()>& paso) const {
        try {
            paso();
        } catch (...) {
            return;
        }
    }
    std::vector<std::string> Todos() && { return std::move(descripciones_); }

  private:
    std::vector<std::string> descripciones_;
};

}  // namespace

std::vector<std::string> PintaEsquema(Superficie& panel, const AjustesDibujo& ajustes,
                                      const Elementos& elementos, const Elementos& colElementos,
                                      const Fondo& fondo, const Marcas* marcas, IndiceDePintado* indice) {
    Fallos fallos;
    panel.DrawWidth(1);
    panel.Cls();
    panel.FillStyle(Superficie::RELLENO_NINGUNO);
    panel.DrawMode(Superficie::MODO_NEGRO);
    if (fondo.imagen) {
        fallos.Ignora([&] { panel.PaintPicture(*fondo.imagen, fondo.esquina, fondo.ancho, fondo.alto); });
    }
    ParteVisible parte{Marco::Visible(panel), 0, panel.AnchoDePixel()};
    fallos.Intenta([&] { parte.margen = MargenDeDibujo(panel, ajustes); });
    if (indice && !parte.MuestraPocos(elementos)) indice = nullptr;
    const auto dibuja = [&](const Elemento& e) {
        if (!parte.CabeDibujar(e)) return;
        fallos.Intenta([&] { DiciendoCual(e, [&] { DibujarElemento(panel, ajustes, &e, false); }); });
    };
    if (indice) {
        for (const Elemento* e : indice->Cuerpos(parte.Region()))
            dibuja(*e);
    } else {
        for (const auto& e : elementos)
            dibuja(*e);
    }
    fallos.Intenta([&] { DibujaEtiquetas(panel, ajustes, elementos, false, nullptr, indice); });
    fallos.Intenta([&] { DibujaLineasSecundarias(panel, ajustes, elementos, colElementos, indice); });
    if (marcas) {
        const PasoDePintado paso = [&](const std::function<void()>& accion) { fallos.Intenta(accion); };
        PintaResaltado(panel, ajustes, *marcas, paso);
        PintaMarcas(panel, ajustes, *marcas, paso);
    }
    return std::move(fallos).Todos();
}

}  // namespace zel
