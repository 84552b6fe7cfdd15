#include "drawing/Parrilla.h"

#include <algorithm>

#include "drawing/Colores.h"
#include "model/TamanyoUnidad.h"
#include "model/modErrorHandling.h"
#include "platform/Numeros.h"

namespace zel {

namespace {

constexpr double PASO = 0.005;  // share of the visible width

bool EstadoSinParrilla(std::int32_t iEstado) noexcept {
    constexpr std::int32_t SIN_PARRILLA[] = {2, 3, 8, 12, 13, 14, 15, 16};
    return std::find(std::begin(SIN_PARRILLA), std::end(SIN_PARRILLA), iEstado) != std::end(SIN_PARRILLA);
}

// The positions of the dots between two bounds, counted from the square's side.
struct Recorrido {
    std::int64_t primero = 1;
    std::int64_t ultimo = 0;
    Recorrido(double desde, double hasta, double paso) {
        if (!(desde <= hasta)) return;  // out of sight, however far
        primero = static_cast<std::int64_t>(RedondeaPar(desde / paso + 1));
        ultimo = static_cast<std::int64_t>(RedondeaPar(hasta / paso));
    }
};

// Inside the octagon: outside the four corners that its slanted sides cut off.
bool EnOctogono(double px, double py, double r) noexcept {
    if (px >= r / 2) return px - 1.5 * r < py && py < 3.5 * r - px;
    return r / 2 - px < py && py < 1.5 * r + px;
}

}  // namespace

void DibujaAcuiferoParrilla(Superficie& panel, const AjustesDibujo& ajustes, const Elemento& e) try {
    if (!ajustes.bVistaActualizada || EstadoSinParrilla(ajustes.iEstado)) return;
    const double r = e.Tamanyo() * TamanyoUnidad();
    const double paso = ajustes.pasoDeParrilla > 0 ? ajustes.pasoDeParrilla : panel.ScaleWidth() * PASO;
    const double izquierda = e.XPos() - r;
    const double abajo = e.YPos() - r;
    const double fondo = double{panel.ScaleTop()} + panel.ScaleHeight();
    const Recorrido columnas(
        std::max(izquierda, double{panel.ScaleLeft()}) - izquierda,
        std::min(e.XPos() + r, double{panel.ScaleLeft()} + panel.ScaleWidth()) - izquierda, paso);
    const Recorrido filas(std::max(abajo, fondo) - abajo,
                          std::min(e.YPos() + r, double{panel.ScaleTop()}) - abajo, paso);
    panel.DrawMode(Superficie::MODO_COPIAR);
    double f = 0;
    for (std::int64_t j = filas.primero; j <= filas.ultimo; ++j) {
        f = 1 - f;  // rows are staggered by half a step
        const double py = (static_cast<double>(j) - 0.5) * paso;
        for (std::int64_t i = columnas.primero; i <= columnas.ultimo; ++i) {
            const double px = (static_cast<double>(i) - 0.5 * f) * paso;
            if (!EnOctogono(px, py, r)) continue;
            panel.PSet({static_cast<float>(izquierda + px), static_cast<float>(abajo + py)},
                       ColorDeIcono(ctAcuifero));
        }
    }
} catch (...) {
    LanzaErrorVisor(ajustes.iEstado, ". ErrDibujaAcuiferoParrilla (Esquema)");
}

}  // namespace zel
