#include "editing/PuntosDeConduccion.h"

#include <cmath>
#include <unordered_set>

#include "drawing/Conducciones.h"
#include "drawing/Cursores.h"
#include "editing/Trazados.h"
#include "model/TamanyoUnidad.h"
#include "model/modErrorHandling.h"
#include "session/Ajustes.h"

namespace zel {

namespace {

constexpr float ALCANCE = 0.9F;  // of a trace point, in TamanyoUnidad
constexpr float TOLERANCIA = 0.5F;

bool Alcanza(const Punto& punto, float X, float Y) noexcept {
    const float d = ALCANCE * TamanyoUnidad();
    return std::abs(punto.XPos() - X) <= d && std::abs(punto.YPos() - Y) <= d;
}

std::int32_t PuntoInteriorEn(const Puntos* trazado, float X, float Y) {
    if (!trazado) return 0;
    for (std::int32_t i = 2; i < trazado->Count(); ++i) {
        if (Alcanza(*trazado->Item(i), X, Y)) return i;
    }
    return 0;
}

std::shared_ptr<Puntos> Tramo(const Puntos& trazado, std::int32_t primero) {
    auto tramo = std::make_shared<Puntos>();
    tramo->AddObjetoPunto(trazado.Item(primero));
    tramo->AddObjetoPunto(trazado.Item(primero + 1));
    return tramo;
}

void Pon(Punto& punto, PuntoXY donde) noexcept {
    punto.XPos(donde.X);
    punto.YPos(donde.Y);
}

// The contour point of what stands at the end of a trace, towards a point of it.
void CorrigeExtremo(Punto& extremo, const std::shared_ptr<Elemento>& elem, const Punto& hacia) {
    if (!elem) return;
    Pon(extremo, PtoContorno(elem->XPos(), elem->YPos(), hacia.XPos(), hacia.YPos(), elem->Tamanyo()));
}

}  // namespace

PuntosDeConduccion::PuntosDeConduccion(Superficie& panel, Documento& documento, Trabajo& trabajo,
                                       Vista& vista, Avisos& avisos, Pintado& pintado,
                                       Localizador& localizador, MaquinaEstados& estados,
                                       Anfitrion& anfitrion) noexcept
    : panel_(panel),
      documento_(documento),
      trabajo_(trabajo),
      vista_(vista),
      avisos_(avisos),
      pintado_(pintado),
      localizador_(localizador),
      estados_(estados),
      anfitrion_(anfitrion) {}

const Puntos& PuntosDeConduccion::Trazado() const {
    return *TrazadoDe(*trabajo_.elemSeleccionado, bSegundoTrazado_);
}

std::int32_t PuntosDeConduccion::E_08_EscogerPuntoConduccion(float X, float Y) try {
    const auto& elem = trabajo_.elemSeleccionado;
    bSegundoTrazado_ = false;
    if (!elem || !TipoConocido(elem->Tipo()) || !EsLineal(elem->Tipo())) return 0;
    std::int32_t i = PuntoInteriorEn(elem->Trazado().get(), X, Y);
    if (i == 0 && elem->Tipo() == ctCentralHidroelectrica) {
        i = PuntoInteriorEn(elem->Trazado2().get(), X, Y);
        bSegundoTrazado_ = i != 0;
    }
    return i;
} catch (...) {
    LanzaErrorVisor(trabajo_.iEstado, ". ErrE_08_EscogerPuntoConduccion (Esquema)");
}

void PuntosDeConduccion::Sobrevuela(float X, float Y) {
    const bool hay = E_08_EscogerPuntoConduccion(X, Y) != 0;
    Cursor_Raton(panel_, hay ? CURSOR_ARRASTRE : CURSOR_NORMAL, trabajo_.iTipoHerramienta, trabajo_.iEstado);
}

// While the point is being dragged, the segment before it is no obstacle for a search.
void PuntosDeConduccion::Escoge(float X, float Y) {
    punto_ = E_08_EscogerPuntoConduccion(X, Y);
    if (punto_ == 0) {
        estados_.Estado(E_PREPARADO, 1);
        return;
    }
    const auto elem = trabajo_.elemSeleccionado;
    const auto& trazado = TrazadoDe(*elem, bSegundoTrazado_);
    trabajo_.colConduccionesMovidas = {{Tramo(*trazado, punto_ - 1), elem}, {Tramo(*trazado, punto_), elem}};
    trabajo_.puntoReferencia = std::make_shared<Punto>(*trazado->Item(punto_));
    trazado->Valor(static_cast<float>(punto_ - 1));
    estados_.Estado(E_ARRASTRAR_PUNTO, 1);
    pintado_.AlternaContorno();
}

// Whether the trace is still the one whose point was picked.
bool PuntosDeConduccion::SigueEscogido() const {
    const auto& elem = trabajo_.elemSeleccionado;
    if (!elem || trabajo_.colConduccionesMovidas.size() != 2 || Anterior().elemento != elem) return false;
    const auto& trazado = TrazadoDe(*elem, bSegundoTrazado_);
    return trazado && punto_ > 1 && punto_ < trazado->Count();
}

void PuntosDeConduccion::MuevePunto(float X, float Y) {
    trabajo_.puntoReferencia = std::make_shared<Punto>(X, Y);
    Pon(*Anterior().tramo->Item(2), {X, Y});
    Pon(*Posterior().tramo->Item(1), {X, Y});
    E_14_CorrigePuntos();
}

void PuntosDeConduccion::E_14_CorrigePuntos() try {
    const auto extremos = ExtremosDe(*documento_.colElementos, trabajo_.elemSeleccionado, bSegundoTrazado_);
    const Punto& punto = *trabajo_.puntoReferencia;
    if (punto_ == 2) CorrigeExtremo(*Anterior().tramo->Item(1), extremos.inicio, punto);
    if (punto_ == Trazado().Count() - 1) CorrigeExtremo(*Posterior().tramo->Item(2), extremos.fin, punto);
} catch (...) {
    LanzaErrorVisor(trabajo_.iEstado, ". ErrE_14_CorrigePuntos (Esquema)");
}

void PuntosDeConduccion::Arrastra(float X, float Y) {
    if (!SigueEscogido()) {
        estados_.Estado(E_PREPARADO, 1);
        return;
    }
    pintado_.AlternaContorno();
    MuevePunto(X, Y);
    pintado_.AlternaContorno();
}

// A search leaves out an element only when none of its segments is being edited.
bool PuntosDeConduccion::EstorbaOtro(float X, float Y) {
    const auto& elem = trabajo_.elemSeleccionado;
    const auto& trazado = TrazadoDe(*elem, bSegundoTrazado_);
    const float marca = trazado->Valor();
    const std::unordered_set<std::int32_t> elPropio = {elem->gfCodSIG()};
    trazado->Valor(0);
    const auto otro = localizador_.BuscaElemento(X, Y, &elPropio);
    trazado->Valor(marca);
    return otro != nullptr;
}

bool PuntosDeConduccion::CaeSobreOtroPunto(float X, float Y) const {
    const Puntos& trazado = Trazado();
    for (std::int32_t i = 1; i <= trazado.Count(); ++i) {
        if (i == punto_) continue;
        const auto punto = i == punto_ - 1   ? Anterior().tramo->Item(1)
                           : i == punto_ + 1 ? Posterior().tramo->Item(2)
                                             : trazado.Item(i);
        if (Alcanza(*punto, X, Y)) return true;
    }
    return false;
}

// The trace from one of its points to another.
std::shared_ptr<Puntos> PuntosDeConduccion::Parte(std::int32_t desde, std::int32_t hasta) const {
    auto parte = std::make_shared<Puntos>();
    for (std::int32_t i = desde; i <= hasta; ++i)
        parte->AddObjetoPunto(Trazado().Item(i));
    return parte;
}

// All of the trace but the two segments that follow the point.
bool PuntosDeConduccion::CaeSobreOtroTramo(float X, float Y) {
    for (const auto& parte : {Parte(1, punto_ - 1), Parte(punto_ + 1, Trazado().Count())}) {
        if (parte->Count() < 2) continue;
        if (localizador_.BuscaElemento(X, Y, nullptr, false, false, parte, TOLERANCIA, true)) return true;
    }
    return false;
}

// The notice about what lies under the point; 0 for nothing.
NumeroDeAviso PuntosDeConduccion::Estorbo(float X, float Y) {
    if (EstorbaOtro(X, Y)) return AVISO_SUPERPUESTOS;
    if (CaeSobreOtroPunto(X, Y)) return AVISO_PUNTOS_SUPERPUESTOS;
    return CaeSobreOtroTramo(X, Y) ? AVISO_TRAMOS_SUPERPUESTOS : AVISO_NINGUNO;
}

void PuntosDeConduccion::Escribe() {
    const auto& elem = trabajo_.elemSeleccionado;
    const auto& trazado = TrazadoDe(*elem, bSegundoTrazado_);
    trazado->Item(punto_ - 1)->CopiaPropiedades(Anterior().tramo->Item(1), true);
    trazado->Item(punto_)->CopiaPropiedades(Anterior().tramo->Item(2), true);
    trazado->Item(punto_ + 1)->CopiaPropiedades(Posterior().tramo->Item(2), true);
    SigueLaMitad(panel_, AjustesDe(trabajo_, documento_, vista_), *elem);
    vista_.CalculaRegionActiva(panel_, false);
}

void PuntosDeConduccion::Suelta(float X, float Y) {
    if (!SigueEscogido()) {
        estados_.Estado(E_PREPARADO, 1);
        return;
    }
    const auto elem = trabajo_.elemSeleccionado;
    const auto trazado = TrazadoDe(*elem, bSegundoTrazado_);
    MuevePunto(X, Y);
    const NumeroDeAviso estorbo = Estorbo(X, Y);
    trazado->Valor(0);
    if (estorbo != AVISO_NINGUNO) {
        std::int32_t iRefrescar = 1;
        avisos_.LanzaMensaje(estorbo, 0, iRefrescar);
        trabajo_.puntoReferencia.reset();
        estados_.Estado(E_ESCOGER_PUNTO, 1);
        return;
    }
    Escribe();
    trabajo_.puntoReferencia.reset();
    estados_.Estado(E_ESCOGER_PUNTO, 1);
    documento_.bHabidoCambios = true;
    anfitrion_.ElementoModificado(elem);
}

}  // namespace zel
