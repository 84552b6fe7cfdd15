#include "drawing/Resaltado.h"

#include <cmath>
#include <string>

#include "drawing/Colores.h"
#include "drawing/Conducciones.h"
#include "drawing/Etiquetas.h"
#include "drawing/Fuente.h"
#include "drawing/Simbolos.h"
#include "model/TamanyoUnidad.h"
#include "model/modErrorHandling.h"

namespace zel {

namespace {

constexpr float PIXELES_DE_HOLGURA = 3;
// Between what is marked under the mouse and its mark: a number, a number's frame, a label.
constexpr float PIXELES_AL_NUMERO = 1;
constexpr float PIXELES_AL_MARCO = 2;
constexpr float PIXELES_A_LA_ETIQUETA = 3;

// Two sides closer than that, on both sides of their middle, become that far apart.
void Separa(float& menor, float& mayor, float holgura) noexcept {
    if (mayor - menor >= 2 * holgura) return;
    const float medio = (menor + mayor) / 2;
    menor = medio - holgura;
    mayor = medio + holgura;
}

void Enmarca(Superficie& panel, const Elemento& e, std::int32_t iEstado) {
    const auto esquinas = EncuadreConduccion(e, iEstado);
    PuntoXY a{esquinas->Item(1)->XPos(), esquinas->Item(1)->YPos()};
    PuntoXY b{esquinas->Item(2)->XPos(), esquinas->Item(2)->YPos()};
    // Around a straight line the frame would lie on the line itself.
    const float holgura = (e.Tamanyo() / 2 + PIXELES_DE_HOLGURA) * panel.AnchoDePixel();
    Separa(a.X, b.X, holgura);
    Separa(a.Y, b.Y, holgura);
    panel.DrawWidth(1);
    panel.DrawStyle(Superficie::ESTILO_TRAZOS);
    panel.ForeColor(COLOR_AZUL);
    panel.DrawMode(Superficie::MODO_COPIAR);
    panel.Caja(a, b);
    panel.DrawStyle(Superficie::ESTILO_SOLIDO);
    panel.DrawWidth(1);
}

void Invierte(Superficie& panel, const Elemento& e) {
    const float r = e.Tamanyo() * TamanyoUnidad();
    const float borde = r + TamanyoUnidad() / 4;
    // A reservoir's triangle hangs a little below its position.
    const float y = e.Tipo() == ctEmbalse ? e.YPos() - r / 5 : e.YPos();
    panel.FillStyle(Superficie::RELLENO_SOLIDO);
    panel.DrawMode(Superficie::MODO_INVERTIR);
    panel.Caja({e.XPos() - borde, y - borde}, {e.XPos() + borde, y + borde});
}

}  // namespace

bool ResaltadoInvierte(TipoElemento tipo) noexcept {
    return TieneSimbolo(tipo);
}

void SombreaElemento(Superficie& panel, const AjustesDibujo& ajustes, const Elemento* elemento) try {
    if (!elemento) return;
    const Elemento& e = *elemento;
    panel.FillStyle(Superficie::RELLENO_NINGUNO);
    panel.DrawMode(Superficie::MODO_NEGRO);
    if (TieneSimbolo(e.Tipo()))
        Invierte(panel, e);
    else if (TipoConocido(e.Tipo()) && e.Trazado() && e.Trazado()->Count() > 0)
        Enmarca(panel, e, ajustes.iEstado);
    if (e.MostrarEtiqueta() && ajustes.bMostrarEtiquetas) {
        const CajaEtiqueta caja = MideEtiqueta(panel, ajustes, e, e.XPos(), e.YPos());
        panel.Caja({caja.X, caja.Y}, {caja.X + caja.Ancho, caja.Y + caja.Alto});
    }
    panel.FillStyle(Superficie::RELLENO_NINGUNO);
    panel.DrawMode(Superficie::MODO_NEGRO);
} catch (...) {
    LanzaErrorVisor(ajustes.iEstado, ". ErrSombreaElemento (Esquema)");
}

void AlternaSubrayado(Superficie& panel, const AjustesDibujo& ajustes, const Elemento& e) try {
    const bool conEtiqueta = e.MostrarEtiqueta() && ajustes.bMostrarEtiquetas;
    if (!conEtiqueta && TipoConocido(e.Tipo()) && !TieneSimbolo(e.Tipo())) return;
    panel.FillStyle(Superficie::RELLENO_NINGUNO);
    panel.DrawStyle(Superficie::ESTILO_SOLIDO);
    if (conEtiqueta) {
        const CajaEtiqueta caja = MideEtiqueta(panel, ajustes, e, e.XPos(), e.YPos());
        panel.DrawMode(Superficie::MODO_INVERTIR);
        panel.DrawWidth(2);
        const float y =
            caja.Y + caja.Alto + std::copysign(PIXELES_A_LA_ETIQUETA * panel.AnchoDePixel(), caja.Alto);
        panel.Line({caja.X, y}, {caja.X + caja.Ancho, y});
        panel.DrawWidth(1);
    } else {
        PonFuente(panel, ajustes.FactorFuente(panel), ajustes.iEstado);
        const std::string numero = std::to_string(e.KeyPant());
        // Outside the number, and outside its frame where it has one.
        const bool enmarcado = NumeroEnmarcado(e);
        const float veces = enmarcado ? VECES_DEL_MARCO : 1;
        const float aparte = (enmarcado ? PIXELES_AL_MARCO : PIXELES_AL_NUMERO) * panel.AnchoDePixel();
        const float w = veces * panel.TextWidth(numero);
        const float h = veces * panel.TextHeight(numero);
        const float arriba =
            e.Tipo() == ctCentralHidroelectrica ? e.YPos() - e.Tamanyo() * TamanyoUnidad() : e.YPos() - h / 2;
        panel.DrawMode(Superficie::MODO_INVERTIR);
        const float debajo = std::copysign(aparte, h);
        panel.Caja({e.XPos() - w / 2 - aparte, arriba - debajo},
                   {e.XPos() + w / 2 + aparte, arriba + h + debajo});
    }
    PreparaNegro(panel);
} catch (...) {
    LanzaErrorVisor(ajustes.iEstado, ". ErrAlternaSubrayado (Esquema)");
}

}  // namespace zel
