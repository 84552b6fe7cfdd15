#include "drawing/Pintor.h"

#include <cmath>

#include "drawing/Conducciones.h"
#include "drawing/Etiquetas.h"
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

bool CabeDibujar(const Elemento& e, const Marco& visible, float margen, float anchoDePixel) {
    const TipoElemento tipo = e.Tipo();
    Marco marco;
    if (TieneSimbolo(tipo)) marco.Crece(e.XPos(), e.YPos(), 1.2F * e.Tamanyo() * TamanyoUnidad() + margen);
    if (marco.Toca(visible) || !TipoConocido(tipo)) return true;
    if (!EsLineal(tipo)) return false;
    // A missing trace is drawn, that is, reported, wherever it would be.
    if (!e.Trazado() || (tipo == ctCentralHidroelectrica && !e.Trazado2())) return true;
    if (e.Trazado()->Count() < 2) return true;
    Marco trazados;
    const float deTrazado = margen + e.Tamanyo() * anchoDePixel;
    trazados.Crece(*e.Trazado(), deTrazado);
    if (tipo == ctCentralHidroelectrica) {
        if (e.Trazado2()->Count() < 2) return true;
        trazados.Crece(*e.Trazado2(), deTrazado);
    }
    return trazados.Toca(visible);
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
                                      const Fondo& fondo, const Marcas* marcas) {
    Fallos fallos;
    panel.DrawWidth(1);
    panel.Cls();
    panel.FillStyle(Superficie::RELLENO_NINGUNO);
    panel.DrawMode(Superficie::MODO_NEGRO);
    if (fondo.imagen) {
        fallos.Ignora([&] { panel.PaintPicture(*fondo.imagen, fondo.esquina, fondo.ancho, fondo.alto); });
    }
    const Marco visible = Marco::Visible(panel);
    const float anchoDePixel = panel.AnchoDePixel();
    float margen = 0;
    fallos.Intenta([&] { margen = MargenDeDibujo(panel, ajustes); });
    for (const auto& e : elementos) {
        if (!CabeDibujar(*e, visible, margen, anchoDePixel)) continue;
        fallos.Intenta([&] { DibujarElemento(panel, ajustes, e.get(), false); });
    }
    fallos.Intenta([&] { DibujaEtiquetas(panel, ajustes, elementos, false); });
    fallos.Intenta([&] { DibujaLineasSecundarias(panel, ajustes, elementos, colElementos); });
    if (marcas) {
        const PasoDePintado paso = [&](const std::function<void()>& accion) { fallos.Intenta(accion); };
        PintaResaltado(panel, ajustes, *marcas, paso);
        PintaMarcas(panel, ajustes, *marcas, paso);
    }
    return std::move(fallos).Todos();
}

}  // namespace zel
