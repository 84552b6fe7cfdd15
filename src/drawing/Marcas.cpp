#include "drawing/Marcas.h"

#include <string>
#include <vector>

#include "drawing/Colores.h"
#include "drawing/Conducciones.h"
#include "drawing/NumeroDeEstado.h"
#include "drawing/Resaltado.h"
#include "drawing/Simbolos.h"
#include "model/TamanyoUnidad.h"

namespace zel {

namespace {

constexpr float MEDIO_LADO = 0.2F;  // of a trace point's mark, in TamanyoUnidad

void MarcaPunto(Superficie& panel, const Punto& p) {
    const float m = MEDIO_LADO * TamanyoUnidad();
    panel.Caja({p.XPos() - m, p.YPos() - m}, {p.XPos() + m, p.YPos() + m});
}

void MarcaInteriores(Superficie& panel, const Puntos* trazado) {
    if (!trazado) return;
    for (std::int32_t i = 2; i < trazado->Count(); ++i)
        MarcaPunto(panel, *trazado->Item(i));
}

// Draws with filled inverted boxes, and leaves the pen as it was found.
template <typename Dibuja>
void Invirtiendo(Superficie& panel, Dibuja dibuja) {
    panel.FillStyle(Superficie::RELLENO_SOLIDO);
    panel.DrawMode(Superficie::MODO_INVERTIR);
    dibuja();
    panel.FillStyle(Superficie::RELLENO_NINGUNO);
    panel.DrawMode(Superficie::MODO_NEGRO);
}

void PintaTrazadoNuevo(Superficie& panel, const AjustesDibujo& ajustes, const Marcas& m,
                       const PasoDePintado& paso) {
    const Elemento sinElemento;
    if (m.trazadoNuevo) {
        paso([&] { DibujarConduccion(panel, ajustes, sinElemento, m.trazadoNuevo); });
    }
    if (!m.trazadoNuevo2) return;
    if (m.puntoReferencia) {
        paso([&] {
            DibujarCentralHE2(panel, ajustes, m.puntoReferencia->XPos(), m.puntoReferencia->YPos(),
                              std::to_string(m.numeroDeCentral), 1, std::nullopt, false);
        });
    }
    paso([&] { DibujarConduccion(panel, ajustes, sinElemento, m.trazadoNuevo2); });
}

void PintaPuntosQueEscoger(Superficie& panel, const Elemento* e) {
    if (!e || !TipoConocido(e->Tipo()) || !EsLineal(e->Tipo())) return;
    Invirtiendo(panel, [&] {
        MarcaInteriores(panel, e->Trazado().get());
        if (e->Tipo() == ctCentralHidroelectrica) MarcaInteriores(panel, e->Trazado2().get());
    });
}

void PintaLazo(Superficie& panel, const Puntos& curva) {
    PreparaColor(panel, COLOR_AZUL);
    std::vector<PuntoXY> puntos;
    for (const auto& p : curva)
        puntos.push_back({p->XPos(), p->YPos()});
    if (puntos.size() > 1) panel.Line(puntos);
}

}  // namespace

void PintaResaltado(Superficie& panel, const AjustesDibujo& ajustes, const Marcas& marcas,
                    const PasoDePintado& paso) {
    switch (ajustes.iEstado) {
        case E_DIBUJANDO_CONDUCCION:
        case E_ARRASTRAR_ELEMENTO:
        case E_ARRASTRAR_PUNTO:
        case E_ARRASTRAR_ETIQUETA:
            return;
        case E_UNO_A_UNO:
            if (!marcas.elemSubsistema) return;
            for (const auto& e : *marcas.elemSubsistema)
                paso([&] { SombreaElemento(panel, ajustes, e.get()); });
            return;
        default:
            paso([&] { SombreaElemento(panel, ajustes, marcas.elemSeleccionado); });
    }
}

void PintaMarcas(Superficie& panel, const AjustesDibujo& ajustes, const Marcas& marcas,
                 const PasoDePintado& paso) {
    panel.FillStyle(Superficie::RELLENO_NINGUNO);
    panel.DrawMode(Superficie::MODO_NEGRO);
    switch (ajustes.iEstado) {
        case E_DIBUJANDO_CONDUCCION:
            PintaTrazadoNuevo(panel, ajustes, marcas, paso);
            return;
        case E_ESCOGER_PUNTO:
            paso([&] { PintaPuntosQueEscoger(panel, marcas.elemSeleccionado); });
            return;
        case E_MOVER_PUNTO:
            if (!marcas.puntoReferencia) return;
            paso([&] { Invirtiendo(panel, [&] { MarcaPunto(panel, *marcas.puntoReferencia); }); });
            return;
        case E_SUBSISTEMA:
            if (!marcas.curvaSeleccion) return;
            paso([&] { PintaLazo(panel, *marcas.curvaSeleccion); });
            return;
        default:
            return;
    }
}

}  // namespace zel
