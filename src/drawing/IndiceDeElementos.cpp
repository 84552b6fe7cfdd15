#include "drawing/IndiceDeElementos.h"

#include <unordered_map>

#include "drawing/Etiquetas.h"

namespace zel {

namespace {

constexpr float FACTOR_EXCESIVO = 2147483648.0F;  // no font has such a size
constexpr float PUNTOS_DE_PRUEBA = 8;

}  // namespace

Recuadro RecuadroDelCuerpo(const Elemento& e) noexcept {
    const TipoElemento tipo = e.Tipo();
    Marco marco;
    if (TieneSimbolo(tipo)) marco.Crece(e.XPos(), e.YPos(), 0);
    if (TipoConocido(tipo) && EsLineal(tipo)) {
        if (e.Trazado()) marco.Crece(*e.Trazado(), 0);
        if (tipo == ctCentralHidroelectrica && e.Trazado2()) marco.Crece(*e.Trazado2(), 0);
    }
    return Recuadro::De(marco);
}

Recuadro RecuadroDeEtiqueta(Superficie& panel, const AjustesDibujo& ajustes, const Elemento& e) {
    if (!e.MostrarEtiqueta() || !(FactorEtiqueta(panel, ajustes, e) < FACTOR_EXCESIVO)) return {};
    const CajaEtiqueta caja = MideEtiqueta(panel, ajustes, e, e.XPos(), e.YPos());
    return {caja.X, double{caja.Y} + caja.Alto, double{caja.X} + caja.Ancho, caja.Y};
}

void IndiceDeElementos::Ata(const std::shared_ptr<Elementos>& elementos) noexcept {
    if (elementos && elementos_.lock() == elementos) return;
    elementos_ = elementos;
    cuerpos_.leido = etiquetas_.leido = 0;
}

std::shared_ptr<Elemento> IndiceDeElementos::Referencia(const Elemento* elemento) const noexcept {
    const auto elementos = elementos_.lock();
    return elementos ? elementos->Referencia(elemento) : nullptr;
}

// Should measuring fail, the next time begins anew.
template <typename Mide>
void IndiceDeElementos::PonAlDia(Capa& capa, Mide mide) {
    const auto elementos = elementos_.lock();
    if (!elementos) {
        capa.rejilla.Vacia();
        return;
    }
    std::uint64_t leido = capa.leido;
    const auto cambios = elementos->Diario().Lee(leido);
    if (cambios && cambios->empty()) return;
    capa.leido = 0;
    if (cambios) {
        // Only what an element has come to counts, and only then is it known to exist.
        std::unordered_map<const Elemento*, bool> quitados;
        for (const auto& cambio : *cambios)
            quitados[cambio.elemento] = cambio.Quitado;
        for (const auto& [elemento, quitado] : quitados) {
            if (quitado) {
                capa.rejilla.Quita(elemento);
            } else {
                capa.rejilla.Pon(*elemento, mide(*elemento));
            }
        }
    } else {
        capa.rejilla.Vacia();
        capa.rejilla.Reserva(static_cast<std::size_t>(elementos->Count()));
        for (const auto& elemento : *elementos)
            capa.rejilla.Pon(*elemento, mide(*elemento));
    }
    capa.leido = leido;
}

void IndiceDeElementos::PonCuerposAlDia() {
    PonAlDia(cuerpos_, RecuadroDelCuerpo);
}

// Measuring a text tells a change of the surface's pixels that the scale does not.
IndiceDeElementos::Medida IndiceDeElementos::MedidaDe(Superficie& panel, const AjustesDibujo& ajustes) {
    panel.FontSize(PUNTOS_DE_PRUEBA);
    return {&panel,
            ajustes.FactorFuente(panel),
            panel.ScaleWidth(),
            panel.ScaleHeight(),
            panel.AnchoDePixel(),
            panel.TextWidth("0"),
            panel.TextHeight("0")};
}

void IndiceDeElementos::PonEtiquetasAlDia(Superficie& panel, const AjustesDibujo& ajustes) {
    const Medida medida = MedidaDe(panel, ajustes);
    if (medida_ != medida) etiquetas_.leido = 0;
    medida_ = medida;
    PonAlDia(etiquetas_, [&](const Elemento& e) { return RecuadroDeEtiqueta(panel, ajustes, e); });
}

}  // namespace zel
