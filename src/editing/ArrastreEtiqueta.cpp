#include "editing/ArrastreEtiqueta.h"

#include "drawing/Busqueda.h"

namespace zel {

namespace {

constexpr std::int32_t ROJO = 255;

// The points of the outline: the label's corner, its size, the way from the press to the corner.
constexpr std::int32_t ANCLA = 1;
constexpr std::int32_t TAMANYO = 2;
constexpr std::int32_t DESDE_LA_PRENSA = 3;

bool EsContorno(const std::shared_ptr<Puntos>& trazado) noexcept {
    return trazado && trazado->Count() == DESDE_LA_PRENSA;
}

}  // namespace

ArrastreEtiqueta::ArrastreEtiqueta(Superficie& panel, Documento& documento, Trabajo& trabajo,
                                   Refresco& refresco, Vista& vista, Avisos& avisos, Pintado& pintado,
                                   Localizador& localizador, MaquinaEstados& estados,
                                   Anfitrion& anfitrion) noexcept
    : panel_(panel),
      documento_(documento),
      trabajo_(trabajo),
      refresco_(refresco),
      vista_(vista),
      avisos_(avisos),
      pintado_(pintado),
      localizador_(localizador),
      estados_(estados),
      anfitrion_(anfitrion) {}

void ArrastreEtiqueta::PonEtiqueta(Elemento& elem, float X, float Y) {
    elem.EtiquetaPosX(X - elem.XPos());
    elem.EtiquetaPosY(Y - elem.YPos());
    elem.EtiquetaMovida(true);
    vista_.CalculaRegionActiva(panel_, false);
    documento_.bHabidoCambios = true;
}

void ArrastreEtiqueta::MueveAlInstante(float X, float Y) {
    if (!trabajo_.elemSeleccionado) {
        estados_.Estado(E_PREPARADO, 1);
        return;
    }
    PonEtiqueta(*trabajo_.elemSeleccionado, X, Y);
    refresco_.PedirRefresco();
}

void ArrastreEtiqueta::Arrastra(float X, float Y) {
    const auto& elem = trabajo_.elemSeleccionado;
    const auto& contorno = trabajo_.trazadoTemporal;
    if (!elem || !EsContorno(contorno)) {
        estados_.Estado(E_PREPARADO, 1);
        return;
    }
    pintado_.AlternaContorno();
    const auto desde = contorno->Item(DESDE_LA_PRENSA);
    contorno->Item(ANCLA)->XPos(X + desde->XPos());
    contorno->Item(ANCLA)->YPos(Y + desde->YPos());
    pintado_.AlternaContorno();
    panel_.DrawMode(Superficie::MODO_COPIAR);
    panel_.PSet({elem->XPos(), elem->YPos()}, ROJO);
    panel_.DrawMode(Superficie::MODO_NEGRO);
}

// The notice about what the label would hide; 0 when nothing.
NumeroDeAviso ArrastreEtiqueta::Estorbo(const Punto& ancla) {
    const auto hallado = localizador_.BuscaElemento(ancla.XPos(), ancla.YPos());
    if (hallado && hallado != trabajo_.elemSeleccionado) return AVISO_SUPERPUESTOS;
    if (hallado && trabajo_.iParteEncontrada == PARTE_SIMBOLO) return AVISO_SOBRE_SU_CENTRO;
    const bool tapa = localizador_.HayElementoBajoEtiqueta(ancla, *trabajo_.trazadoTemporal->Item(TAMANYO));
    return tapa ? AVISO_SOBRE_UN_ELEMENTO : AVISO_NINGUNO;
}

void ArrastreEtiqueta::Suelta(float X, float Y) {
    const auto elem = trabajo_.elemSeleccionado;
    if (!elem || !EsContorno(trabajo_.trazadoTemporal)) {
        estados_.Estado(E_PREPARADO, 1);
        return;
    }
    const auto desde = trabajo_.trazadoTemporal->Item(DESDE_LA_PRENSA);
    const Punto ancla(X + desde->XPos(), Y + desde->YPos());
    const NumeroDeAviso estorbo = Estorbo(ancla);
    trabajo_.trazadoTemporal.reset();
    if (estorbo != AVISO_NINGUNO) {
        std::int32_t iRefrescar = 1;
        avisos_.LanzaMensaje(estorbo, 0, iRefrescar);
        estados_.Estado(E_PREPARADO, 1);
        return;
    }
    PonEtiqueta(*elem, ancla.XPos(), ancla.YPos());
    estados_.Estado(E_PREPARADO, 1);
    anfitrion_.ElementoModificado(elem);
}

}  // namespace zel
