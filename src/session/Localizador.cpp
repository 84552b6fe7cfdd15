#include "session/Localizador.h"

#include "drawing/Busqueda.h"
#include "model/modErrorHandling.h"
#include "session/Ajustes.h"

namespace zel {

namespace {

std::shared_ptr<Elemento> Temporal(TipoElemento tipo, std::shared_ptr<Puntos> trazado) {
    auto temporal = std::make_shared<Elemento>();
    temporal->Tipo(tipo);
    temporal->Trazado(std::move(trazado));
    return temporal;
}

}  // namespace

// Empty when no trace is being drawn.
std::shared_ptr<Elemento> Localizador::TrazadoNuevoComoElemento() const {
    const TipoElemento tipo = trabajo_.iTipoHerramienta;
    if (!trabajo_.trazadoNuevo || !EsLineal(tipo)) return nullptr;
    auto temporal = Temporal(tipo, trabajo_.trazadoNuevo);
    if (tipo == ctCentralHidroelectrica) temporal->Trazado2(trabajo_.trazadoNuevo2);
    return temporal;
}

std::shared_ptr<Elemento> Localizador::BuscaElemento(float x, float y,
                                                     const std::unordered_set<std::int32_t>* colExcluidos,
                                                     bool bTrazadoNuevo, bool bSoloSeleccionado,
                                                     const std::shared_ptr<Puntos>& trazadoPrueba,
                                                     float factorTolerancia, bool bSinEtiquetas) try {
    trabajo_.iParteEncontrada = PARTE_SIMBOLO;
    trabajo_.bCuerpoElemento = false;
    trabajo_.iSegmentoEncontrado = 0;

    std::shared_ptr<Elemento> unico;
    if (bTrazadoNuevo) {
        unico = TrazadoNuevoComoElemento();
        if (!unico) trabajo_.iParteEncontrada = PARTE_SIN_TRAZADO_NUEVO;
        if (unico && unico->Trazado()->Count() < 2) unico.reset();
    } else if (bSoloSeleccionado) {
        unico = trabajo_.elemSeleccionado;
    } else if (trazadoPrueba) {
        unico = Temporal(ctConduccion1, trazadoPrueba);
    }
    const bool enTodo = !bTrazadoNuevo && !bSoloSeleccionado && !trazadoPrueba;

    const Busqueda busqueda{{x, y},
                            factorTolerancia,
                            enTodo || bSoloSeleccionado ? colExcluidos : nullptr,
                            bSoloSeleccionado,
                            bTrazadoNuevo,
                            bSinEtiquetas};
    const AjustesDibujo ajustes = AjustesDe(trabajo_, documento_, vista_);
    ElementoHallado hallado;
    std::shared_ptr<Elemento> elemento;
    if (enTodo) {
        documento_.indice.Ata(documento_.colElementos);
        hallado = Busca(panel_, ajustes, documento_.indice, busqueda);
        elemento = documento_.indice.Referencia(hallado.elemento);
    } else if (unico) {
        const Elemento* const uno[] = {unico.get()};
        hallado = Busca(panel_, ajustes, uno, busqueda);
        if (hallado.elemento) elemento = unico;
    }
    if (elemento) {
        trabajo_.iParteEncontrada = hallado.iParte;
        trabajo_.bCuerpoElemento = hallado.bCuerpo;
        trabajo_.iSegmentoEncontrado = hallado.iSegmento;
    }
    if (subrayaElem_) subrayaElem_(elemento ? elemento->gfCodSIG() : 0);
    return elemento;
} catch (...) {
    LanzaErrorVisor(trabajo_.iEstado, ". ErrBuscaElemento (Esquema)");
}

bool Localizador::HayElementoBajoEtiqueta(const Punto& origen, const Punto& tamanyo) try {
    documento_.indice.Ata(documento_.colElementos);
    return zel::HayElementoBajoEtiqueta(documento_.indice, {origen.XPos(), origen.YPos()},
                                        {tamanyo.XPos(), tamanyo.YPos()});
} catch (...) {
    LanzaErrorVisor(trabajo_.iEstado, ". ErrHayElementoBajoEtiqueta (Esquema)");
}

}  // namespace zel
