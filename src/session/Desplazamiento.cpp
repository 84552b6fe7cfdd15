#include "session/Desplazamiento.h"

#include <algorithm>
#include <cmath>

#include "model/Mensajes.h"
#include "model/modErrorHandling.h"
#include "platform/Guardia.h"
#include "platform/Numeros.h"

namespace zel {

namespace {

constexpr std::int32_t FIN_DE_LA_BARRA = 5228;
constexpr double RECORRIDO_MINIMO = 6;

// One axis of the view: the ends of its bar, first and last, and what it shows, all in world units.
struct Recorrido {
    double primero, ultimo;
    double posicion;
    double visible;  // length shown
};

std::int16_t Posicion(double valor) {
    try {
        return Entero16(valor);
    } catch (const Fallo& fallo) {
        throw Fallo(fallo.Number(),
                    "Esta parte del esquema está más allá de donde llegan las barras de desplazamiento (de "
                    "-32768 a 32767 unidades). Use el zoom, la mano o el autoajuste para moverse por ella");
    }
}

std::int16_t Paso(double visible, double recorrido) {
    const double medio = std::floor(visible / 2);
    if (medio < 1 || recorrido <= 0) return 1;
    return Estrecha16(static_cast<std::int64_t>(std::min(medio, recorrido)));
}

// Fails with 6 when 16 bits do not hold it.
BarraDesplazamiento::Estado EstadoDe(const Recorrido& r, bool limitado) {
    if (limitado) {
        const std::int16_t fija = Posicion(r.posicion);
        return {fija, fija, 1, fija};
    }
    const std::int16_t primero = Posicion(std::floor(r.primero));
    std::int16_t ultimo = Posicion(std::floor(r.ultimo));
    if (std::abs(ultimo - primero) < RECORRIDO_MINIMO) ultimo = primero;
    const std::int16_t posicion = Posicion(std::floor(r.posicion));
    const auto [menor, mayor] = std::minmax(primero, ultimo);
    const bool dentro = menor <= posicion && posicion <= mayor;
    // The last position, missed by the rounding of the view's edge.
    const bool alFinal = posicion == (ultimo >= primero ? ultimo + 1 : ultimo - 1);
    return {primero, ultimo, Paso(r.visible, std::abs(ultimo - primero)),
            dentro    ? posicion
            : alFinal ? ultimo
                      : primero};
}

}  // namespace

Desplazamiento::Desplazamiento(Superficie& panel, Vista& vista, Trabajo& trabajo, Refresco& refresco,
                               Anfitrion& anfitrion, BarraDesplazamiento& horizontal,
                               BarraDesplazamiento& vertical) noexcept
    : panel_(panel),
      vista_(vista),
      trabajo_(trabajo),
      refresco_(refresco),
      anfitrion_(anfitrion),
      horizontal_{horizontal, false},
      vertical_{vertical, true} {}

// From one look at the view: setting the first bar must not change what the second is computed from.
void Desplazamiento::PonBarras(bool limitado) {
    const Marco& region = vista_.RegionElementos();
    const Superficie::Escala v = panel_.escala();
    const double alto = std::abs(double{v.Height});
    const auto h = EstadoDe({region.Xmin, double{region.Xmax} - v.Width, v.Left, v.Width}, limitado);
    const auto w = EstadoDe({region.Ymax, double{region.Ymin} + alto, v.Top, alto}, limitado);
    for (const auto& [eje, estado] : {std::pair(&horizontal_, h), std::pair(&vertical_, w)}) {
        const bool cambia = eje->barra.Actual().Value != estado.Value;
        eje->barra.Pon(estado);
        eje->barra.Enabled(true);
        if (!cambia) continue;
        if (vistaLibre_)
            eje->bEnBordeScroll = EnBorde(estado);
        else
            Change(*eje);
    }
}

bool Desplazamiento::EnBorde(const BarraDesplazamiento::Estado& estado) noexcept {
    return estado.Value == estado.Min || estado.Value == estado.Max;
}

// The next paint finds the bars where it would put them, and a view beyond them told already.
void Desplazamiento::SigueALaVista() {
    if (vista_.RegionFueraDelMundo()) return;
    const Guardia libre(vistaLibre_, true);
    ActualizaVista(2);
}

std::optional<std::string> Desplazamiento::ActualizaVista(std::int16_t modo) {
    if (enCurso_) return std::nullopt;
    const Guardia enCurso(enCurso_, true);
    const Guardia actualizando(bActualizandoScroll_, modo != 1, false);
    // A region that has changed around a view at rest is no reason to move it.
    const Guardia libre(vistaLibre_, vistaLibre_ || panel_.escala() == asentada_);
    const Refresco::Marcas marcas = refresco_.marcas();
    std::optional<std::string> aviso;
    try {
        if (vista_.RegionFueraDelMundo()) {
            vista_.MuestraElMundo();
            return std::nullopt;
        }
        const bool limitado = vista_.IncluyeLaVista();
        vista_.MuestraZoom(limitado);
        PonBarras(limitado);
        asentada_ = panel_.escala();
        noCabe_ = false;
    } catch (...) {
        horizontal_.barra.Enabled(false);
        vertical_.barra.Enabled(false);
        if (!noCabe_) aviso = FalloEnCurso().Description();
        noCabe_ = true;
    }
    refresco_.marcas(marcas);
    return aviso;
}

void Desplazamiento::Mueve(const Eje& eje) {
    panel_.ScaleHeight(-std::abs(panel_.ScaleHeight()));
    const float posicion = eje.barra.Actual().Value;
    if (eje.esVertical)
        panel_.ScaleTop(posicion);
    else
        panel_.ScaleLeft(posicion);
}

void Desplazamiento::Change(Eje& eje) {
    if (bActualizandoScroll_) refresco_.AnularRefresco();
    Mueve(eje);
    const bool enBorde = EnBorde(eje.barra.Actual());
    if (enBorde && !eje.bEnBordeScroll && !bActualizandoScroll_) {
        anfitrion_.TextoEstado(1, std::string(TextoMensajeODesconocido(FIN_DE_LA_BARRA)));
    }
    eje.bEnBordeScroll = enBorde;
    trabajo_.trazadoTemporal.reset();
    refresco_.PedirRefresco();
    if (!bActualizandoScroll_) refresco_.RefrescarSiPendiente();
}

void Desplazamiento::Scroll(Eje& eje) {
    if (bActualizandoScroll_) refresco_.AnularRefresco();
    vista_.bVistaActualizada(false);
    Mueve(eje);
    trabajo_.trazadoTemporal.reset();
    refresco_.PedirRefresco();
    if (!bActualizandoScroll_) refresco_.RefrescarSiPendiente();
}

bool Desplazamiento::MedioPaso(const Eje& eje, bool haciaMax) {
    if (noCabe_) return false;
    BarraDesplazamiento::Estado estado = eje.barra.Actual();
    const int paso = std::max(estado.LargeChange / 2, 1);
    const int destino = haciaMax ? estado.Max : estado.Min;
    const int falta = destino - estado.Value;
    if (falta == 0) return false;
    estado.Value = static_cast<std::int16_t>(estado.Value + std::clamp(falta, -paso, paso));
    eje.barra.Pon(estado);
    return true;
}

void Desplazamiento::HScroll_Change() try { Change(horizontal_); } catch (...) {
    LanzaErrorVisor(trabajo_.iEstado, ". ErrHScroll_Change (Esquema)");
}

void Desplazamiento::HScroll_Scroll() try { Scroll(horizontal_); } catch (...) {
    LanzaErrorVisor(trabajo_.iEstado, ". ErrHScroll_Scroll (Esquema)");
}

void Desplazamiento::VScroll_Change() try { Change(vertical_); } catch (...) {
    LanzaErrorVisor(trabajo_.iEstado, ". ErrVScroll_Change (Esquema)");
}

void Desplazamiento::VScroll_Scroll() try { Scroll(vertical_); } catch (...) {
    LanzaErrorVisor(trabajo_.iEstado, ". ErrVScroll_Scroll (Esquema)");
}

}  // namespace zel
