#include "editing/Trazados.h"

#include <algorithm>

#include "drawing/Fuente.h"
#include "drawing/Geometria.h"

namespace zel {

namespace {

bool TieneLongitud(const Puntos& trazado) {
    const auto& primero = *trazado.begin();
    return std::any_of(trazado.begin(), trazado.end(), [&](const auto& p) {
        return p->XPos() != primero->XPos() || p->YPos() != primero->YPos();
    });
}

}  // namespace

ExtremosDeTrazado ExtremosDe(const Elementos& elementos, const std::shared_ptr<Elemento>& lineal,
                             bool segundoTrazado) {
    const bool esCentral = lineal->Tipo() == ctCentralHidroelectrica;
    const bool empiezaEnSi = EmpiezaEnSiMismo(lineal->Tipo()) || (esCentral && segundoTrazado);
    const bool acabaEnSi = esCentral && !segundoTrazado;
    return {empiezaEnSi ? lineal : elementos.ItemCodSIG(lineal->ElemIni()),
            acabaEnSi ? lineal : elementos.ItemCodSIG(lineal->ElemFin())};
}

const std::shared_ptr<Puntos>& TrazadoDe(const Elemento& lineal, bool segundoTrazado) noexcept {
    return segundoTrazado ? lineal.Trazado2() : lineal.Trazado();
}

std::shared_ptr<Puntos> MitadDeTrazado(Superficie& panel, const AjustesDibujo& ajustes,
                                       const Puntos& trazado) {
    PonFuente(panel, ajustes.FactorFuente(panel), ajustes.iEstado);
    return BuscaMitadConduccion(panel, trazado, ajustes.iEstado);
}

void PonEnLaMitad(Superficie& panel, const AjustesDibujo& ajustes, Elemento& e) {
    if (!e.Trazado()) throw Fallo(91);
    const auto mitad = MitadDeTrazado(panel, ajustes, *e.Trazado());
    e.XPos(mitad->Item(1)->XPos());
    e.YPos(mitad->Item(1)->YPos());
    e.EtiquetaPosX(mitad->Item(2)->XPos());
    e.EtiquetaPosY(mitad->Item(2)->YPos());
}

void SigueLaMitad(Superficie& panel, const AjustesDibujo& ajustes, Elemento& e) {
    if (!EsLineal(e.Tipo()) || TieneSimbolo(e.Tipo()) || e.EtiquetaMovida()) return;
    if (!e.Trazado() || e.Trazado()->Count() < 2 || !TieneLongitud(*e.Trazado())) return;
    PonEnLaMitad(panel, ajustes, e);
}

}  // namespace zel
