#include "editing/ConduccionesMovidas.h"

#include "drawing/Conducciones.h"
#include "editing/Trazados.h"
#include "model/modErrorHandling.h"
#include "session/Ajustes.h"

namespace zel {

namespace {

using Tramos = std::vector<TramoMovido>;

// Which end of a trace lies on the element that moves; the number is the piece's mark.
constexpr float INICIO = 1;
constexpr float FIN = 2;

void AnyadeTramo(Tramos& tramos, const Elementos& elementos, const std::shared_ptr<Elemento>& lineal,
                 bool segundoTrazado, float extremo) {
    const auto& trazado = TrazadoDe(*lineal, segundoTrazado);
    if (!trazado || trazado->Count() < 2) return;
    const std::int32_t primero = extremo == INICIO ? 1 : trazado->Count() - 1;
    TramoMovido movido{std::make_shared<Puntos>(), lineal, 0};
    movido.tramo->AddObjetoPunto(trazado->Item(primero));
    movido.tramo->AddObjetoPunto(trazado->Item(primero + 1));
    if (trazado->Count() == 2) {
        const ExtremosDeTrazado extremos = ExtremosDe(elementos, lineal, segundoTrazado);
        const auto& lejano = extremo == INICIO ? extremos.fin : extremos.inicio;
        if (lejano) movido.codigoLejano = lejano->gfCodSIG();
    }
    movido.tramo->Valor(static_cast<float>(lineal->gfCodSIG()));
    movido.tramo->Valor2(extremo);
    movido.tramo->Valor3(static_cast<float>(movido.codigoLejano));
    movido.tramo->Flecha(segundoTrazado);
    tramos.push_back(std::move(movido));
}

Tramos TramosDe(Conexiones& conexiones, const std::shared_ptr<Elementos>& elementos,
                const std::shared_ptr<Elemento>& elem) {
    Tramos tramos;
    const std::int32_t codigo = elem->gfCodSIG();
    conexiones.Ata(elementos);
    for (const auto& lineal : conexiones.De(codigo)) {
        if (lineal->ElemIni() == codigo && !EmpiezaEnSiMismo(lineal->Tipo())) {
            AnyadeTramo(tramos, *elementos, lineal, false, INICIO);
        }
        if (lineal->ElemFin() == codigo) {
            AnyadeTramo(tramos, *elementos, lineal, lineal->Tipo() == ctCentralHidroelectrica, FIN);
        }
    }
    if (elem->Tipo() == ctCentralHidroelectrica) {
        AnyadeTramo(tramos, *elementos, elem, false, FIN);
        AnyadeTramo(tramos, *elementos, elem, true, INICIO);
    } else if (EmpiezaEnSiMismo(elem->Tipo())) {
        AnyadeTramo(tramos, *elementos, elem, false, INICIO);
    }
    return tramos;
}

void Pon(const std::shared_ptr<Punto>& punto, PuntoXY donde) {
    punto->XPos(donde.X);
    punto->YPos(donde.Y);
}

void Corrige(const Tramos& tramos, const Elementos& elementos, const Elemento& elem, PuntoXY donde) {
    for (const TramoMovido& movido : tramos) {
        const bool alInicio = movido.tramo->Valor2() == INICIO;
        const auto enElla = movido.tramo->Item(alInicio ? 1 : 2);
        const auto otro = movido.tramo->Item(alInicio ? 2 : 1);
        const auto lejano = movido.codigoLejano != 0 && movido.codigoLejano != elem.gfCodSIG()
                                ? elementos.ItemCodSIG(movido.codigoLejano)
                                : nullptr;
        const PuntoXY hacia =
            lejano ? PuntoXY{lejano->XPos(), lejano->YPos()} : PuntoXY{otro->XPos(), otro->YPos()};
        Pon(enElla, PtoContorno(donde.X, donde.Y, hacia.X, hacia.Y, elem.Tamanyo()));
        if (lejano) Pon(otro, PtoContorno(hacia.X, hacia.Y, donde.X, donde.Y, lejano->Tamanyo()));
    }
}

// What the host has taken out of the schematic meanwhile is left alone.
void Escribe(Superficie& panel, const AjustesDibujo& ajustes, const Elementos& elementos,
             const Tramos& tramos) {
    for (const TramoMovido& movido : tramos) {
        const auto& trazado = TrazadoDe(*movido.elemento, movido.tramo->Flecha());
        if (!elementos.Contiene(movido.elemento.get()) || !trazado || trazado->Count() < 2) continue;
        const std::int32_t primero = movido.tramo->Valor2() == INICIO ? 1 : trazado->Count() - 1;
        for (const std::int32_t i : {0, 1})
            trazado->Item(primero + i)->CopiaPropiedades(movido.tramo->Item(1 + i), true);
        SigueLaMitad(panel, ajustes, *movido.elemento);
    }
}

}  // namespace

void E_13_BuscaConduccionesParaMovimiento(Conexiones& conexiones, const Documento& documento,
                                          Trabajo& trabajo) try {
    trabajo.colConduccionesMovidas.clear();
    if (!trabajo.elemSeleccionado) return;
    trabajo.colConduccionesMovidas = TramosDe(conexiones, documento.colElementos, trabajo.elemSeleccionado);
} catch (...) {
    LanzaErrorVisor(trabajo.iEstado, ". ErrE_13_BuscaConduccionesParaMovimiento (Esquema)");
}

void E_13_CorrigeColeccSegmentos(const Documento& documento, const Trabajo& trabajo) try {
    if (!trabajo.elemSeleccionado || !trabajo.puntoReferencia) return;
    Corrige(trabajo.colConduccionesMovidas, *documento.colElementos, *trabajo.elemSeleccionado,
            {trabajo.puntoReferencia->XPos(), trabajo.puntoReferencia->YPos()});
} catch (...) {
    LanzaErrorVisor(trabajo.iEstado, ". ErrE_13_CorrigeColeccSegmentos (Esquema)");
}

void E_13_Actualizar_Conducciones(Superficie& panel, const Documento& documento, const Trabajo& trabajo,
                                  const Vista& vista) try {
    Escribe(panel, AjustesDe(trabajo, documento, vista), *documento.colElementos,
            trabajo.colConduccionesMovidas);
} catch (...) {
    LanzaErrorVisor(trabajo.iEstado, ". ErrE_13_Actualizar_Conducciones (Esquema)");
}

void RecortaConducciones(Superficie& panel, Conexiones& conexiones, const Documento& documento,
                         const Trabajo& trabajo, const Vista& vista, const std::shared_ptr<Elemento>& elem) {
    const Tramos tramos = TramosDe(conexiones, documento.colElementos, elem);
    Corrige(tramos, *documento.colElementos, *elem, {elem->XPos(), elem->YPos()});
    Escribe(panel, AjustesDe(trabajo, documento, vista), *documento.colElementos, tramos);
}

void E_06_MoverElementos_Corregir_Puntos(Superficie& panel, Conexiones& conexiones, Documento& documento,
                                         const Trabajo& trabajo, const Vista& vista,
                                         const std::shared_ptr<Elemento>& elem) try {
    RecortaConducciones(panel, conexiones, documento, trabajo, vista, elem);
    documento.bHabidoCambios = true;
} catch (...) {
    LanzaErrorVisor(trabajo.iEstado, ". ErrE_06_MoverElementos_Corregir_Puntos (Esquema)");
}

}  // namespace zel
