#include "editing/EntradaPanel.h"

#include "drawing/Fuente.h"
#include "model/TamanyoUnidad.h"
#include "model/modErrorHandling.h"
#include "session/Extension.h"

namespace zel {

namespace {

constexpr std::int16_t BOTON_IZQUIERDO = 1;
constexpr std::int16_t BOTON_DERECHO = 2;
constexpr std::int16_t MAXIMO_ZOOM = 111;
constexpr std::int16_t MINIMO_ZOOM = 112;
// The widths between which a click zooms, in TamanyoUnidad.
constexpr float ANCHO_MAS_CERCANO = 10;
constexpr float ANCHO_MAS_LEJANO = 4000;
constexpr float TOLERANCIA = 0.5F;  // of a trace, in TamanyoUnidad

bool EsBanda(std::int32_t iEstado) noexcept {
    return iEstado == E_RECUADRO_ZOOM || iEstado == E_MANO;
}

}  // namespace

EntradaPanel::EntradaPanel(Superficie& panel, Trabajo& trabajo, Refresco& refresco, Vista& vista,
                           Avisos& avisos, MaquinaEstados& estados, GestosDeVista& gestos,
                           Localizador& localizador, Anfitrion& anfitrion) noexcept
    : panel_(panel),
      trabajo_(trabajo),
      refresco_(refresco),
      vista_(vista),
      avisos_(avisos),
      estados_(estados),
      gestos_(gestos),
      localizador_(localizador),
      anfitrion_(anfitrion) {}

void EntradaPanel::Panel_MouseDown(std::int16_t Button, float X, float Y) try {
    refresco_.AnularRefresco();
    LimitaAlMundo(X, Y);
    const bool deVista = trabajo_.iEstado == E_ZOOM || EsBanda(trabajo_.iEstado);
    if (deVista && Button == BOTON_DERECHO)
        estados_.Estado(E_PREPARADO, 1);
    else if (trabajo_.iEstado == E_ZOOM)
        ClicDeZoom(X, Y);
    else if (EsBanda(trabajo_.iEstado))
        gestos_.EmpiezaBanda(X, Y);
    if (!EsBanda(trabajo_.iEstado)) {
        if (!vista_.bVistaActualizada()) refresco_.PedirRefresco();
        vista_.bVistaActualizada(true);
    }
    refresco_.RefrescarSiPendiente();
} catch (...) {
    LanzaErrorVisor(trabajo_.iEstado, ". ErrPanel_MouseDown (Esquema)");
}

void EntradaPanel::Panel_MouseMove(std::int16_t Button, float X, float Y) try {
    const Refresco::Marcas pendiente = refresco_.marcas();
    refresco_.AnularRefresco();
    LimitaAlMundo(X, Y);
    estados_.MuestraPosicion(X, Y);
    if (EsBanda(trabajo_.iEstado) && Button == BOTON_IZQUIERDO) gestos_.MueveBanda(X, Y);
    if (trabajo_.iEstado == E_PREPARADO && Button == 0) {
        localizador_.BuscaElemento(X, Y, nullptr, false, false, nullptr, TOLERANCIA, false);
    }
    if (pendiente.bRefrescoPendiente) refresco_.PedirRefresco();
} catch (...) {
    LanzaErrorVisor(trabajo_.iEstado, ". ErrPanel_MouseMove (Esquema)");
}

void EntradaPanel::Panel_MouseUp(std::int16_t, float, float) try {
    const Refresco::Marcas pendiente = refresco_.marcas();
    refresco_.AnularRefresco();
    if (trabajo_.iEstado == E_RECUADRO_ZOOM)
        gestos_.E_18_AplicaZoom();
    else if (trabajo_.iEstado == E_MANO)
        gestos_.E_19_Aplica();
    if (pendiente.bRefrescoPendiente) refresco_.PedirRefresco();
    refresco_.RefrescarSiPendiente();
} catch (...) {
    LanzaErrorVisor(trabajo_.iEstado, ". ErrPanel_MouseUp (Esquema)");
}

// Twice as close, or as far, around the point pressed. A refused one still centres there.
void EntradaPanel::ClicDeZoom(float X, float Y) {
    refresco_.PedirRefresco();
    const float r = TamanyoUnidad();
    const float ancho = panel_.ScaleWidth();
    std::int32_t iRefrescar = 1;
    const auto escala = [&](float factor) {
        panel_.ScaleWidth(panel_.ScaleWidth() * factor);
        panel_.ScaleHeight(panel_.ScaleHeight() * factor);
    };
    if (anfitrion_.BotonPulsado(Barra::Vista, "zoommas")) {
        if (ancho > ANCHO_MAS_CERCANO * r)
            escala(0.5F);
        else
            avisos_.LanzaMensaje(MAXIMO_ZOOM, 0, iRefrescar);
    } else if (anfitrion_.BotonPulsado(Barra::Vista, "zoommenos")) {
        if (ancho < ANCHO_MAS_LEJANO * r)
            escala(2);
        else
            avisos_.LanzaMensaje(MINIMO_ZOOM, 0, iRefrescar);
    }
    PonFuente(panel_, vista_.EscalaDibujo() / panel_.ScaleWidth(), trabajo_.iEstado);
    vista_.MueveScroll(X, Y, 2);
}

}  // namespace zel
