#include "drawing/IndiceDeElementos.h"

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
    cuerpos_.lector.Ata(elementos);
    etiquetas_.lector.Ata(elementos);
}

std::shared_ptr<Elemento> IndiceDeElementos::Referencia(const Elemento* elemento) const noexcept {
    const auto elementos = cuerpos_.lector.Atada();
    return elementos ? elementos->Referencia(elemento) : nullptr;
}

template <typename Mide>
void IndiceDeElementos::PonAlDia(Capa& capa, Mide mide) {
    capa.lector.PonAlDia(
        [&](std::size_t elementos) {
            capa.rejilla.Vacia();
            capa.rejilla.Reserva(elementos);
        },
        [&](const DiarioDeCambios::Cambio& cambio) {
            if (cambio.Quitado)
                capa.rejilla.Quita(cambio.elemento);
            else
                capa.rejilla.Pon(*cambio.elemento, mide(*cambio.elemento));
        });
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
    if (medida_ != medida) etiquetas_.lector.Olvida();
    medida_ = medida;
    PonAlDia(etiquetas_, [&](const Elemento& e) { return RecuadroDeEtiqueta(panel, ajustes, e); });
}

}  // namespace zel
