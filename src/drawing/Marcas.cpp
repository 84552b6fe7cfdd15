#include "drawing/Marcas.h"

#include <string>
#include <vector>

#include "drawing/Colores.h"
#include "drawing/Conducciones.h"
#include "drawing/FalloDeElemento.h"
#include "drawing/NumeroDeEstado.h"
#include "drawing/Resaltado.h"
#include "drawing/Simbolos.h"
#include "model/TamanyoUnidad.h"
#include "model/modErrorHandling.h"

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

PuntoXY Vertice(const Puntos& puntos, std::int32_t i) {
    const auto p = puntos.Item(i);
    return {p->XPos(), p->YPos()};
}

void AlternaTramos(Superficie& panel, const Marcas& m) {
    for (const TramoMovido& movido : m.colConduccionesMovidas)
        panel.Line(Vertice(*movido.tramo, 1), Vertice(*movido.tramo, 2));
}

void E_13_DibujaColeccSegmentos(Superficie& panel, const AjustesDibujo& ajustes, const Marcas& m) try {
    AlternaTramos(panel, m);
} catch (...) {
    LanzaErrorVisor(ajustes.iEstado, ". ErrE_13_DibujaColeccSegmentos (Esquema)");
}

// The trace point that moves is a mark like those of the points to pick.
void E_14_DibujaSegmentos(Superficie& panel, const AjustesDibujo& ajustes, const Marcas& m) try {
    AlternaTramos(panel, m);
    if (m.puntoReferencia) Invirtiendo(panel, [&] { MarcaPunto(panel, *m.puntoReferencia); });
} catch (...) {
    LanzaErrorVisor(ajustes.iEstado, ". ErrE_14_DibujaSegmentos (Esquema)");
}

// The corner of the label's box and its size are the outline's first two points.
void AlternaCajaDeEtiqueta(Superficie& panel, const Puntos& contorno) {
    const PuntoXY a = Vertice(contorno, 1);
    const PuntoXY tamanyo = Vertice(contorno, 2);
    panel.Caja(a, {a.X + tamanyo.X, a.Y + tamanyo.Y});
}

}  // namespace

void AlternaContorno(Superficie& panel, const AjustesDibujo& ajustes, const Marcas& m) {
    const auto tiene = [&](std::int32_t puntos) {
        return m.trazadoTemporal && m.trazadoTemporal->Count() == puntos;
    };
    PreparaNegro(panel);
    panel.DrawWidth(1);
    panel.DrawStyle(Superficie::ESTILO_SOLIDO);
    panel.FillStyle(Superficie::RELLENO_NINGUNO);
    panel.DrawMode(Superficie::MODO_INVERTIR);
    switch (ajustes.iEstado) {
        case E_DIBUJANDO_CONDUCCION:
            if (tiene(2)) panel.Line(Vertice(*m.trazadoTemporal, 1), Vertice(*m.trazadoTemporal, 2));
            break;
        case E_ARRASTRAR_ELEMENTO:
            E_13_DibujaColeccSegmentos(panel, ajustes, m);
            if (!m.elemSeleccionado || !m.puntoReferencia) break;
            DibujarFantasma(panel, ajustes, *m.elemSeleccionado, m.puntoReferencia->XPos(),
                            m.puntoReferencia->YPos());
            break;
        case E_ARRASTRAR_PUNTO:
            E_14_DibujaSegmentos(panel, ajustes, m);
            break;
        case E_ARRASTRAR_ETIQUETA:
            if (tiene(3)) AlternaCajaDeEtiqueta(panel, *m.trazadoTemporal);
            break;
        case E_RECUADRO:
        case E_RECUADRO_ZOOM:
            if (tiene(2)) panel.Caja(Vertice(*m.trazadoTemporal, 1), Vertice(*m.trazadoTemporal, 2));
            break;
        case E_MANO:
            if (tiene(3)) panel.Line(Vertice(*m.trazadoTemporal, 1), Vertice(*m.trazadoTemporal, 3));
            break;
        default:
            break;
    }
    PreparaNegro(panel);
}

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
                paso([&] { DiciendoCual(*e, [&] { SombreaElemento(panel, ajustes, e.get()); }); });
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
        case E_LAZO:
        case E_SUBSISTEMA:
            if (!marcas.curvaSeleccion) return;
            paso([&] { PintaLazo(panel, *marcas.curvaSeleccion); });
            return;
        default:
            paso([&] { AlternaContorno(panel, ajustes, marcas); });
    }
}

}  // namespace zel
