#include "editing/GestosDeSubsistema.h"

#include "drawing/Colores.h"

namespace zel {

GestosDeSubsistema::GestosDeSubsistema(Superficie& panel, Trabajo& trabajo, Pintado& pintado,
                                       Localizador& localizador, MaquinaEstados& estados) noexcept
    : panel_(panel), trabajo_(trabajo), pintado_(pintado), localizador_(localizador), estados_(estados) {}

void GestosDeSubsistema::EmpiezaLazo(float X, float Y) {
    estados_.Estado(E_LAZO, 1);
    trabajo_.curvaSeleccion->Add(X, Y);
}

void GestosDeSubsistema::SigueLazo(float X, float Y) {
    const auto& curva = trabajo_.curvaSeleccion;
    if (!curva || curva->Count() == 0) {
        estados_.Estado(E_PREPARADO, 1);
        return;
    }
    const auto anterior = curva->Item(curva->Count());
    if (anterior->XPos() == X && anterior->YPos() == Y) return;
    curva->Add(X, Y);
    PreparaColor(panel_, COLOR_AZUL);
    panel_.Line({anterior->XPos(), anterior->YPos()}, {X, Y});
}

void GestosDeSubsistema::CierraLazo(float X, float Y) {
    if (const auto& curva = trabajo_.curvaSeleccion; curva && curva->Count() > 0) {
        curva->Add(X, Y);
        curva->AddObjetoPunto(curva->Item(1));
    }
    estados_.Estado(E_SUBSISTEMA, 1);
}

void GestosDeSubsistema::EmpiezaRecuadro(float X, float Y) {
    trabajo_.trazadoTemporal = std::make_shared<Puntos>();
    trabajo_.trazadoTemporal->Add(X, Y);
    trabajo_.trazadoTemporal->Add(X, Y);
    estados_.Estado(E_RECUADRO, 1);
    pintado_.AlternaContorno();
}

void GestosDeSubsistema::TomaRecuadro() {
    const auto recuadro = std::exchange(trabajo_.trazadoTemporal, nullptr);
    if (!recuadro || recuadro->Count() != 2) {
        estados_.Estado(E_PREPARADO, 1);
        return;
    }
    const auto a = recuadro->Item(1);
    const auto b = recuadro->Item(2);
    trabajo_.curvaSeleccion = std::make_shared<Puntos>();
    for (const auto& [x, y] : {std::pair(a, a), {b, a}, {b, b}, {a, b}, {a, a}})
        trabajo_.curvaSeleccion->Add(x->XPos(), y->YPos());
    estados_.Estado(E_SUBSISTEMA, 1);
}

void GestosDeSubsistema::Alterna(float X, float Y) {
    const auto& subsistema = trabajo_.elemSubsistema;
    const auto elem = localizador_.BuscaElemento(X, Y);
    if (!elem || !subsistema || !TieneSimbolo(elem->Tipo())) return;
    if (subsistema->RemoveCodSIG(elem->gfCodSIG()) >= 0) {
        pintado_.DesSombreaElemeSelecc(elem);
    } else {
        subsistema->AddObjetoElemento(*elem);
        pintado_.SombreaElemento(elem);
    }
}

}  // namespace zel
