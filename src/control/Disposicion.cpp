#include "control/Disposicion.h"

#include <algorithm>

namespace zel {

namespace {

constexpr float SEPARACION = 0.5F;
constexpr float ENTRE_BARRAS = 3;
constexpr float GRUESO_SCROLL = 4.5F;
constexpr float ALTO_STATUS = 6;
constexpr float CRECIMIENTO = 1.3F;

}  // namespace

float CreceAlMinimo(float lado, float minimo) noexcept {
    return lado > 0 && lado <= minimo ? CRECIMIENTO * minimo : lado;
}

std::optional<Disposicion> DisposicionDe(float ancho, float alto, const MedidasDeBarras& barras) noexcept {
    if (!(ancho > ANCHO_MINIMO) || !(alto > ALTO_MINIMO)) return std::nullopt;
    Disposicion d;
    d.StatusBar1 = {0, alto - ALTO_STATUS, ancho, ALTO_STATUS};
    const float altoBarra = barras.ButtonHeight - SEPARACION;
    // The last button of the element bar, the arrow, stays out of sight.
    d.ToolBar1 = {0, 0, barras.ButtonWidth * static_cast<float>(barras.botonesDeElementos - 1), altoBarra};
    d.ToolBar2 = {0, 0, barras.ButtonWidth * static_cast<float>(barras.botonesDeVista), altoBarra};
    const float hueco = ancho - d.ToolBar1.Width - d.ToolBar2.Width;
    if (hueco < 0)
        d.ToolBar2.Top = altoBarra + SEPARACION;
    else
        d.ToolBar2.Left = d.ToolBar1.Width + std::min(hueco, ENTRE_BARRAS);
    const float arriba = d.ToolBar2.Top + altoBarra + 2 * SEPARACION;
    d.Lineas = {0, arriba - SEPARACION, ancho, SEPARACION};
    d.Panel = {0, arriba, ancho - GRUESO_SCROLL, alto - arriba - GRUESO_SCROLL - ALTO_STATUS};
    d.HScroll = {0, arriba + d.Panel.Height, d.Panel.Width, GRUESO_SCROLL};
    d.VScroll = {d.Panel.Width, arriba, GRUESO_SCROLL, d.Panel.Height};
    return d;
}

}  // namespace zel
