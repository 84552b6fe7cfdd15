#include "editing/ArrastreElemento.h"

#include "drawing/Busqueda.h"
#include "editing/ConduccionesMovidas.h"

namespace zel {

namespace {

// An element may be put onto the piece of a trace that ends at it: the piece follows it anyway.
bool EsTramoQueSigue(const Elemento& hallado, std::int16_t parte, std::int16_t segmento,
                     std::int32_t codigo) noexcept {
    if (parte != PARTE_TRAZADO && parte != PARTE_TRAZADO2) return false;
    if (hallado.ElemIni() == codigo && parte == PARTE_TRAZADO && segmento == 1) return true;
    if (hallado.ElemFin() != codigo) return false;
    const bool enSegundo = hallado.Tipo() == ctCentralHidroelectrica;
    const auto& trazado = enSegundo ? hallado.Trazado2() : hallado.Trazado();
    return parte == (enSegundo ? PARTE_TRAZADO2 : PARTE_TRAZADO) && trazado &&
           segmento == trazado->Count() - 1;
}

}  // namespace

ArrastreElemento::ArrastreElemento(Superficie& panel, Documento& documento, Trabajo& trabajo,
                                   Refresco& refresco, Vista& vista, Avisos& avisos, Pintado& pintado,
                                   Localizador& localizador, Conexiones& conexiones, MaquinaEstados& estados,
                                   Anfitrion& anfitrion) noexcept
    : panel_(panel),
      documento_(documento),
      trabajo_(trabajo),
      refresco_(refresco),
      vista_(vista),
      avisos_(avisos),
      pintado_(pintado),
      localizador_(localizador),
      conexiones_(conexiones),
      estados_(estados),
      anfitrion_(anfitrion) {}

// Whether the selected element cannot be put there, which is told.
bool ArrastreElemento::EstorbaEn(float X, float Y, bool tambienElPropio) {
    const auto elem = trabajo_.elemSeleccionado;
    const auto hallado = localizador_.BuscaElemento(X, Y);
    if (!hallado) return false;
    NumeroDeAviso aviso = AVISO_NINGUNO;
    if (hallado != elem) {
        if (!EsTramoQueSigue(*hallado, trabajo_.iParteEncontrada, trabajo_.iSegmentoEncontrado,
                             elem->gfCodSIG())) {
            aviso = AVISO_SUPERPUESTOS;
        }
    } else if (tambienElPropio && !trabajo_.bCuerpoElemento) {
        aviso = AVISO_SUPERPUESTO_CONSIGO;
    }
    if (aviso == AVISO_NINGUNO) return false;
    std::int32_t iRefrescar = 1;
    avisos_.LanzaMensaje(aviso, 0, iRefrescar);
    return true;
}

void ArrastreElemento::MueveAlInstante(float X, float Y) {
    const auto elem = trabajo_.elemSeleccionado;
    if (!elem) {
        estados_.Estado(E_PREPARADO, 1);
        return;
    }
    if (EstorbaEn(X, Y, false)) return;
    elem->XPos(X);
    elem->YPos(Y);
    E_06_MoverElementos_Corregir_Puntos(panel_, conexiones_, documento_, trabajo_, vista_, elem);
    vista_.CalculaRegionActiva(panel_, false);
    refresco_.PedirRefresco();
}

void ArrastreElemento::Arrastra(float X, float Y) {
    if (!trabajo_.elemSeleccionado || !trabajo_.puntoReferencia) {
        estados_.Estado(E_PREPARADO, 1);
        return;
    }
    pintado_.AlternaContorno();
    trabajo_.puntoReferencia->XPos(X);
    trabajo_.puntoReferencia->YPos(Y);
    E_13_CorrigeColeccSegmentos(documento_, trabajo_);
    pintado_.AlternaContorno();
}

void ArrastreElemento::Suelta() {
    const auto elem = trabajo_.elemSeleccionado;
    const auto destino = trabajo_.puntoReferencia;
    if (!elem || !destino || EstorbaEn(destino->XPos(), destino->YPos(), true)) {
        estados_.Estado(E_PREPARADO, 1);
        return;
    }
    elem->XPos(destino->XPos());
    elem->YPos(destino->YPos());
    E_13_Actualizar_Conducciones(panel_, documento_, trabajo_, vista_);
    vista_.CalculaRegionActiva(panel_, false);
    estados_.Estado(E_PREPARADO, 1);
    documento_.bHabidoCambios = true;
    anfitrion_.ElementoMovido(elem);
}

}  // namespace zel
