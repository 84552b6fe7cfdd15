#include "drawing/Etiquetas.h"

#include <algorithm>
#include <string>

#include "drawing/Colores.h"
#include "drawing/FalloDeElemento.h"
#include "drawing/Fuente.h"
#include "drawing/Marco.h"
#include "drawing/PartesDelDibujo.h"
#include "model/TamanyoUnidad.h"

namespace zel {

namespace {

constexpr float PUNTOS_DE_REDONDEO = 2;  // that a font may grow by

// What tells whether a label is in sight without setting its font and measuring it.
struct Alcance {
    Alcance(Superficie& panel, const AjustesDibujo& ajustes) : visible(Marco::Visible(panel)) {
        const float factor = ajustes.FactorFuente(panel);
        PonFuente(panel, factor, ajustes.iEstado);
        altoDePunto = -panel.TextHeight("0") / panel.FontSize();
        alto = {double{altoDePunto} * factor, double{altoDePunto} * PUNTOS_DE_REDONDEO};
    }

    // A label hangs to the right of its anchor and below it, and no character is wider than the line is
    // high. Sizes are rounded by a point at most, two below one.
    bool SeVe(const std::string& nombre, float factor, float x, float y) const noexcept {
        if (x > visible.Xmax || y < visible.Ymin) return false;
        const float linea = altoDePunto * (factor + PUNTOS_DE_REDONDEO);
        if (x + static_cast<float>(nombre.size()) * linea < visible.Xmin) return false;
        const auto lineas = 1 + std::count(nombre.begin(), nombre.end(), '\n');
        return y - static_cast<float>(lineas) * linea <= visible.Ymax;
    }

    Marco visible;
    float altoDePunto;  // world units that a line is high for each point of its font
    AltoDeLetra alto;   // the most that a line is high
};

void DibujaEtiqueta(Superficie& panel, const AjustesDibujo& ajustes, const Elemento& e,
                    const Alcance& alcance) {
    if (!e.MostrarEtiqueta()) return;
    const float x = e.XPos() + e.EtiquetaPosX();
    const float y = e.YPos() + e.EtiquetaPosY();
    const float factor = FactorEtiqueta(panel, ajustes, e);
    if (!alcance.SeVe(e.Nombre(), factor, x, y)) return;
    PonFuente(panel, factor, ajustes.iEstado);
    panel.CurrentX(x);
    panel.CurrentY(y);
    panel.Print(e.Nombre());
}

}  // namespace

PuntoXY EtiquetaDelSimbolo() noexcept {
    const float r = TamanyoUnidad();
    return {static_cast<float>(1.3 * double{r}), r};
}

float FactorEtiqueta(const Superficie& panel, const AjustesDibujo& ajustes, const Elemento& e) noexcept {
    const float factor = ajustes.FactorFuente(panel) * e.EtiquetaTamanyo();
    return e.EtiquetaTamanyoRelativo() ? factor * e.Tamanyo() : factor;
}

CajaEtiqueta MideEtiqueta(Superficie& panel, const AjustesDibujo& ajustes, const Elemento& e, float X,
                          float Y) {
    PonFuente(panel, FactorEtiqueta(panel, ajustes, e), ajustes.iEstado);
    return {X + e.EtiquetaPosX(), Y + e.EtiquetaPosY(), panel.TextWidth(e.Nombre()),
            panel.TextHeight(e.Nombre())};
}

void DibujaEtiquetas(Superficie& panel, const AjustesDibujo& ajustes, const Elementos& elementos,
                     bool bSoloSeleccionado, const Elemento* elemSeleccionado, IndiceDePintado* indice) try {
    if (!ajustes.bMostrarEtiquetas) return;
    PreparaNegro(panel);
    const Alcance alcance(panel, ajustes);
    PartesDelDibujo etiquetas;
    const auto dibuja = [&](const Elemento& e) {
        DiciendoCual(e, [&] { DibujaEtiqueta(panel, ajustes, e, alcance); });
    };
    if (bSoloSeleccionado && elemSeleccionado) {
        dibuja(*elemSeleccionado);
    } else if (indice && alcance.alto.Vale()) {
        for (const Elemento* e : indice->Etiquetas(Recuadro::ConHolgura(alcance.visible, 0), alcance.alto))
            etiquetas.Dibuja([&] { dibuja(*e); });
    } else {
        for (const auto& e : elementos)
            etiquetas.Dibuja([&] { dibuja(*e); });
    }
    PonFuente(panel, ajustes.FactorFuente(panel), ajustes.iEstado);
    etiquetas.Termina();
} catch (...) {
    LanzaErrorVisor(ajustes.iEstado, ". ErrDibujaEtiquetas (Esquema)");
}

}  // namespace zel
