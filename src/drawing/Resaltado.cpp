#include "drawing/Resaltado.h"

#include <string>

#include "drawing/Colores.h"
#include "drawing/Conducciones.h"
#include "drawing/Etiquetas.h"
#include "drawing/Fuente.h"
#include "model/TamanyoUnidad.h"
#include "model/modErrorHandling.h"

namespace zel {

namespace {

void Enmarca(Superficie& panel, const Elemento& e, std::int32_t iEstado) {
    const auto esquinas = EncuadreConduccion(e, iEstado);
    const auto a = esquinas->Item(1);
    const auto b = esquinas->Item(2);
    panel.DrawWidth(1);
    panel.DrawStyle(Superficie::ESTILO_TRAZOS);
    panel.ForeColor(COLOR_AZUL);
    panel.DrawMode(Superficie::MODO_COPIAR);
    panel.Caja({a->XPos(), a->YPos()}, {b->XPos(), b->YPos()});
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
    else if (TipoConocido(e.Tipo()))
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
        panel.Line({caja.X, caja.Y + caja.Alto}, {caja.X + caja.Ancho, caja.Y + caja.Alto});
        panel.DrawWidth(1);
    } else {
        PonFuente(panel, ajustes.FactorFuente(panel), ajustes.iEstado);
        const std::string numero = std::to_string(e.KeyPant());
        const float w = panel.TextWidth(numero);
        const float h = panel.TextHeight(numero);
        const float arriba =
            e.Tipo() == ctCentralHidroelectrica ? e.YPos() - e.Tamanyo() * TamanyoUnidad() : e.YPos() - h / 2;
        panel.DrawMode(Superficie::MODO_INVERTIR);
        panel.Caja({e.XPos() - w / 2, arriba}, {e.XPos() + w / 2, arriba + h});
    }
    PreparaNegro(panel);
} catch (...) {
    LanzaErrorVisor(ajustes.iEstado, ". ErrAlternaSubrayado (Esquema)");
}

}  // namespace zel
