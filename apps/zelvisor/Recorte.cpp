#include "Recorte.h"

namespace zel {

namespace {

enum class Extremo { Inicio, Fin };

void Pon(const Puntos& trazado, std::int32_t posicion, const Punto& lugar) {
    const auto punto = trazado.Item(posicion);
    punto->XPos(lugar.XPos());
    punto->YPos(lugar.YPos());
}

// A trace of two points runs from centre to centre, so that both of its ends move; of a longer one only the
// end at the element does.
void RecortaExtremo(const std::shared_ptr<Puntos>& trazado, Extremo extremo, const Elemento& e,
                    const Elemento* otro) {
    if (!trazado || trazado->Count() < 2) return;
    const std::int32_t ultimo = trazado->Count();
    const std::int32_t punta = extremo == Extremo::Inicio ? 1 : ultimo;
    const std::int32_t vecino = extremo == Extremo::Inicio ? 2 : ultimo - 1;
    if (ultimo == 2 && otro) {
        Pon(*trazado, punta, *Elementos::PtoContorno(e, *otro, e.Tamanyo()));
        Pon(*trazado, vecino, *Elementos::PtoContorno(*otro, e, otro->Tamanyo()));
    } else {
        Pon(*trazado, punta, *Elementos::PtoContorno(e, *trazado->Item(vecino), e.Tamanyo()));
    }
}

// The element's own traces, which begin or meet at its symbol.
void RecortaPropios(const Elementos& elementos, const Elemento& e) {
    const auto fin = elementos.ItemCodSIG(e.ElemFin());
    if (e.Tipo() == ctCentralHidroelectrica) {
        RecortaExtremo(e.Trazado(), Extremo::Fin, e, elementos.ItemCodSIG(e.ElemIni()).get());
        RecortaExtremo(e.Trazado2(), Extremo::Inicio, e, fin.get());
    } else if (EmpiezaEnSiMismo(e.Tipo())) {
        RecortaExtremo(e.Trazado(), Extremo::Inicio, e, fin.get());
    }
}

// Those of an element that starts or ends at `e`. One with a symbol meets `e` from there.
void RecortaAjenos(const Elementos& elementos, const Elemento& conduccion, const Elemento& e) {
    const bool conSimbolo = TieneSimbolo(conduccion.Tipo());
    const auto hacia = [&](std::int32_t codigo) {
        return conSimbolo ? &conduccion : elementos.ItemCodSIG(codigo).get();
    };
    if (conduccion.ElemIni() == e.gfCodSIG())
        RecortaExtremo(conduccion.Trazado(), Extremo::Inicio, e, hacia(conduccion.ElemFin()));
    if (conduccion.ElemFin() == e.gfCodSIG()) {
        const bool esCentral = conduccion.Tipo() == ctCentralHidroelectrica;
        RecortaExtremo(esCentral ? conduccion.Trazado2() : conduccion.Trazado(), Extremo::Fin, e,
                       hacia(conduccion.ElemIni()));
    }
}

}  // namespace

void RecortaTrazados(const Elementos& elementos, const Elemento& e) {
    RecortaPropios(elementos, e);
    for (const auto& otro : elementos) {
        if (otro.get() != &e && EsLineal(otro->Tipo())) RecortaAjenos(elementos, *otro, e);
    }
}

}  // namespace zel
