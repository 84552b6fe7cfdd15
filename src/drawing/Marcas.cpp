#include "drawing/Marcas.h"

#include <string>
#include <vector>

#include "drawing/Colores.h"
#include "drawing/Conducciones.h"
#include "drawing/Resaltado.h"
#include "drawing/Simbolos.h"
#include "model/TamanyoUnidad.h"

namespace zel {

namespace {

constexpr float MEDIO_LADO = 0.2F;  // of a trace point's mark, in TamanyoUnidad

// The states, by their number, that show something of their own.
enum : std::int32_t {
    DIBUJANDO_CONDUCCION = 3,
    ESCOGIENDO_PUNTO = 8,
    MOVIENDO_PUNTO_INSTANTANEO = 9,
    SUBSISTEMA = 12,
    ARRASTRANDO_ELEMENTO = 13,
    MOVIENDO_PUNTO = 14,
    UNO_A_UNO = 15,
    ARRASTRANDO_ETIQUETA = 16,
};

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
        case DIBUJANDO_CONDUCCION:
        case ARRASTRANDO_ELEMENTO:
        case MOVIENDO_PUNTO:
        case ARRASTRANDO_ETIQUETA:
            return;
        case UNO_A_UNO:
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
        case DIBUJANDO_CONDUCCION:
            PintaTrazadoNuevo(panel, ajustes, marcas, paso);
            return;
        case ESCOGIENDO_PUNTO:
            paso([&] { PintaPuntosQueEscoger(panel, marcas.elemSeleccionado); });
            return;
        case MOVIENDO_PUNTO_INSTANTANEO:
            if (!marcas.puntoReferencia) return;
            paso([&] { Invirtiendo(panel, [&] { MarcaPunto(panel, *marcas.puntoReferencia); }); });
            return;
        case SUBSISTEMA:
            if (!marcas.curvaSeleccion) return;
            paso([&] { PintaLazo(panel, *marcas.curvaSeleccion); });
            return;
        default:
            return;
    }
}

}  // namespace zel
