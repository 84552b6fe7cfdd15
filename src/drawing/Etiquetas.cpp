#include "drawing/Etiquetas.h"

#include "drawing/Colores.h"
#include "drawing/Fuente.h"
#include "drawing/Marco.h"

namespace zel {

namespace {

// A label hangs to the right of its anchor and below it. Its width is not measured to tell whether it is in
// sight: no character of a text is wider than the line is high.
bool SeVe(const Marco& visible, Superficie& panel, const Elemento& e, float x, float y) {
    if (x > visible.Xmax || y < visible.Ymin) return false;
    const float alto = -panel.TextHeight(e.Nombre());
    if (y - alto > visible.Ymax) return false;
    return x + static_cast<float>(e.Nombre().size()) * alto >= visible.Xmin;
}

void DibujaEtiqueta(Superficie& panel, const AjustesDibujo& ajustes, const Elemento& e,
                    const Marco& visible) {
    if (!e.MostrarEtiqueta()) return;
    const float x = e.XPos() + e.EtiquetaPosX();
    const float y = e.YPos() + e.EtiquetaPosY();
    PonFuente(panel, FactorEtiqueta(panel, ajustes, e), ajustes.iEstado);
    if (!SeVe(visible, panel, e, x, y)) return;
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
    const Marco visible = Marco::Visible(panel);
    if (bSoloSeleccionado && elemSeleccionado) {
        DibujaEtiqueta(panel, ajustes, *elemSeleccionado, visible);
    } else {
        for (const auto& e : elementos)
            DibujaEtiqueta(panel, ajustes, *e, visible);
    }
    PonFuente(panel, ajustes.FactorFuente(panel), ajustes.iEstado);
} catch (...) {
    LanzaErrorVisor(ajustes.iEstado, ". ErrDibujaEtiquetas (Esquema)");
}

}  // namespace zel
