#include "drawing/Etiquetas.h"

#include <algorithm>
#include <string>

#include "drawing/Colores.h"
#include "drawing/Fuente.h"
#include "drawing/Marco.h"
#include "drawing/PartesDelDibujo.h"

namespace zel {

namespace {

// What tells whether a label is in sight without setting its font and measuring it.
struct Alcance {
    Alcance(Superficie& panel, const AjustesDibujo& ajustes) : visible(Marco::Visible(panel)) {
        PonFuente(panel, ajustes.FactorFuente(panel), ajustes.iEstado);
        altoDePunto = -panel.TextHeight("0") / panel.FontSize();
    }

    // A label hangs to the right of its anchor and below it, and no character is wider than the line is
    // high. Sizes are rounded by a point at most, two below one.
    bool SeVe(const std::string& nombre, float factor, float x, float y) const noexcept {
        if (x > visible.Xmax || y < visible.Ymin) return false;
        const float alto = altoDePunto * (factor + 2);
        if (x + static_cast<float>(nombre.size()) * alto < visible.Xmin) return false;
        const auto lineas = 1 + std::count(nombre.begin(), nombre.end(), '\n');
        return y - static_cast<float>(lineas) * alto <= visible.Ymax;
    }

    Marco visible;
    float altoDePunto;  // world units that a line is high for each point of its font
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
                     bool bSoloSeleccionado, const Elemento* elemSeleccionado) try {
    if (!ajustes.bMostrarEtiquetas) return;
    PreparaNegro(panel);
    const Alcance alcance(panel, ajustes);
    PartesDelDibujo etiquetas;
    if (bSoloSeleccionado && elemSeleccionado) {
        DibujaEtiqueta(panel, ajustes, *elemSeleccionado, alcance);
    } else {
        for (const auto& e : elementos)
            etiquetas.Dibuja([&] { DibujaEtiqueta(panel, ajustes, *e, alcance); });
    }
    PonFuente(panel, ajustes.FactorFuente(panel), ajustes.iEstado);
    etiquetas.Termina();
} catch (...) {
    LanzaErrorVisor(ajustes.iEstado, ". ErrDibujaEtiquetas (Esquema)");
}

}  // namespace zel
