#include "editing/EntradaPanel.h"

#include "drawing/Fuente.h"
#include "model/TamanyoUnidad.h"
#include "model/modErrorHandling.h"
#include "session/Extension.h"

namespace zel {

namespace {

constexpr std::int16_t BOTON_IZQUIERDO = 1;
constexpr std::int16_t BOTON_DERECHO = 2;
constexpr std::int16_t BOTON_CENTRAL = 4;
// The widths between which a click zooms, in TamanyoUnidad.
constexpr float ANCHO_MAS_CERCANO = 10;
constexpr float ANCHO_MAS_LEJANO = 4000;

bool EsBanda(std::int32_t iEstado) noexcept {
    return iEstado == E_RECUADRO_ZOOM || iEstado == E_MANO;
}

bool Dibuja(std::int32_t iEstado) noexcept {
    return iEstado == E_DIBUJANDO || iEstado == E_DIBUJANDO_CONDUCCION;
}

// A point beyond the world comes that far inside; one that is just on its lower bounds stays.
void Acerca(float& X, float& Y, float margen) noexcept {
    const auto limita = [=](float& valor, float inferior, float superior) {
        if (!(valor >= inferior))
            valor = inferior + margen;
        else if (valor >= superior)
            valor = superior - margen;
    };
    limita(X, MUNDO_XMIN, MUNDO_XMAX);
    limita(Y, MUNDO_YMIN, MUNDO_YMAX);
}

}  // namespace

EntradaPanel::EntradaPanel(Superficie& panel, Trabajo& trabajo, Refresco& refresco, Vista& vista,
                           Avisos& avisos, MaquinaEstados& estados, const Gestos& gestos,
                           Anfitrion& anfitrion) noexcept
    : panel_(panel),
      trabajo_(trabajo),
      refresco_(refresco),
      vista_(vista),
      avisos_(avisos),
      estados_(estados),
      gestos_(gestos),
      anfitrion_(anfitrion) {}

void EntradaPanel::Panel_MouseDown(std::int16_t& Button, std::int16_t& Shift, float& X, float& Y) try {
    refresco_.AnularRefresco();
    raton_ = {X, Y};
    gestos_.vista.SueltaVista();
    // A new symbol has room there.
    const auto margen = [&] { return Dibuja(trabajo_.iEstado) ? TamanyoUnidad() + 1 : 1; };
    Acerca(X, Y, margen());
    anfitrion_.MouseDown(Button, Shift, X, Y);
    Acerca(X, Y, margen());
    trabajo_.bPrensaArrastra = false;
    if (Button == BOTON_DERECHO && !Dibuja(trabajo_.iEstado))
        PulsaElDerecho(X, Y);
    else
        Pulsa(Button, X, Y);
    if (!EsBanda(trabajo_.iEstado)) {
        if (!vista_.bVistaActualizada()) refresco_.PedirRefresco();
        vista_.bVistaActualizada(true);
    }
    if (trabajo_.iEstado == E_DIBUJANDO_CONDUCCION) refresco_.RefrescarSiPendiente();
} catch (...) {
    LanzaErrorVisor(trabajo_.iEstado, ". ErrPanel_MouseDown (Esquema)");
}

void EntradaPanel::Pulsa(std::int16_t Button, float X, float Y) {
    switch (trabajo_.iEstado) {
        case E_ZOOM:
            return ClicDeZoom(X, Y);
        case E_DIBUJANDO:
        case E_DIBUJANDO_CONDUCCION:
            return gestos_.creacion.Pulsa(Button, X, Y);
        case E_PREPARADO:
            return PulsaPreparado(Button, X, Y);
        case E_MOVER_ELEMENTO:
            return gestos_.elemento.MueveAlInstante(X, Y);
        case E_MOVER_ETIQUETA:
            return gestos_.etiqueta.MueveAlInstante(X, Y);
        case E_ESCOGER_PUNTO:
            return gestos_.puntos.Escoge(X, Y);
        case E_ESPERAR_SUBSISTEMA:
            if (Button == BOTON_IZQUIERDO) gestos_.subsistema.EmpiezaLazo(X, Y);
            return;
        case E_SUBSISTEMA:
            return anfitrion_.LanzaMenu();
        case E_UNO_A_UNO:
            return gestos_.subsistema.Alterna(X, Y);
        case E_RECUADRO_ZOOM:
        case E_MANO:
            return gestos_.vista.EmpiezaBanda(X, Y);
        default:
            return;
    }
}

// Whether it is to move the view or to deselect shows when it moves, or is released.
void EntradaPanel::PulsaPreparado(std::int16_t Button, float X, float Y) {
    if (Button == BOTON_CENTRAL && !gestos_.seleccion.HayElementoEn(X, Y))
        gestos_.vista.Ase(raton_);
    else
        gestos_.seleccion.Pulsa(X, Y);
}

void EntradaPanel::PulsaElDerecho(float X, float Y) {
    switch (trabajo_.iEstado) {
        case E_PREPARADO:
        case E_SUBSISTEMA:
            return anfitrion_.LanzaMenu();
        case E_ZOOM:
        case E_RECUADRO_ZOOM:
        case E_MANO:
            return estados_.Vuelve();
        case E_MOVER_ELEMENTO:
        case E_MOVER_ETIQUETA:
        case E_ESCOGER_PUNTO:
        case E_ESPERAR_SUBSISTEMA:
            return estados_.Estado(E_PREPARADO, 1);
        case E_UNO_A_UNO:
            return gestos_.subsistema.Alterna(X, Y);
        default:
            return;
    }
}

void EntradaPanel::Panel_MouseMove(std::int16_t& Button, std::int16_t&, float& X, float& Y) try {
    const bool pendiente = refresco_.bRefrescoPendiente();
    refresco_.AnularRefresco();
    raton_ = {X, Y};
    Acerca(X, Y, 1);
    estados_.MuestraPosicion(X, Y);
    trabajo_.ultimoRaton = {X, Y};
    Mueve(Button, X, Y);
    if (pendiente) refresco_.PedirRefresco();
} catch (...) {
    LanzaErrorVisor(trabajo_.iEstado, ". ErrPanel_MouseMove (Esquema)");
}

void EntradaPanel::Mueve(std::int16_t Button, float X, float Y) {
    const bool arrastra = (Button & (BOTON_IZQUIERDO | BOTON_CENTRAL)) != 0;
    if (gestos_.vista.VistaAsida()) {
        if (arrastra && trabajo_.iEstado == E_PREPARADO) return gestos_.vista.Lleva(raton_);
        gestos_.vista.SueltaVista();
    }
    if (Button == 0) {
        if (trabajo_.iEstado == E_PREPARADO)
            gestos_.seleccion.Sobrevuela(X, Y);
        else
            gestos_.seleccion.DejaDeSobrevolar();
        if (trabajo_.iEstado == E_ESCOGER_PUNTO) gestos_.puntos.Sobrevuela(X, Y);
    }
    if (trabajo_.iEstado == E_DIBUJANDO_CONDUCCION) return gestos_.creacion.Mueve(X, Y);
    if (!arrastra) return;
    switch (trabajo_.iEstado) {
        case E_PREPARADO:
            return gestos_.seleccion.EmpiezaArrastre(X, Y);
        case E_LAZO:
            return gestos_.subsistema.SigueLazo(X, Y);
        case E_ARRASTRAR_ELEMENTO:
            return gestos_.elemento.Arrastra(X, Y);
        case E_ARRASTRAR_PUNTO:
            return gestos_.puntos.Arrastra(X, Y);
        case E_ARRASTRAR_ETIQUETA:
            return gestos_.etiqueta.Arrastra(X, Y);
        case E_RECUADRO:
        case E_RECUADRO_ZOOM:
        case E_MANO:
            return gestos_.vista.MueveBanda(X, Y);
        default:
            return;
    }
}

void EntradaPanel::Panel_MouseUp(std::int16_t&, std::int16_t&, float& X, float& Y) try {
    const bool pendiente = refresco_.bRefrescoPendiente();
    refresco_.AnularRefresco();
    Acerca(X, Y, 1);
    trabajo_.bBotonPulsadoSobreElemento = false;
    trabajo_.bPrensaArrastra = false;
    Suelta(X, Y);
    if (pendiente) refresco_.PedirRefresco();
    refresco_.RefrescarSiPendiente();
} catch (...) {
    LanzaErrorVisor(trabajo_.iEstado, ". ErrPanel_MouseUp (Esquema)");
}

void EntradaPanel::Suelta(float X, float Y) {
    const bool clicEnVacio = gestos_.vista.SueltaVista();
    switch (trabajo_.iEstado) {
        case E_PREPARADO:
            if (clicEnVacio) gestos_.seleccion.DejaSinSeleccion();
            return gestos_.seleccion.Suelta();
        case E_LAZO:
            return gestos_.subsistema.CierraLazo(X, Y);
        case E_ARRASTRAR_ELEMENTO:
            return gestos_.elemento.Suelta();
        case E_ARRASTRAR_PUNTO:
            return gestos_.puntos.Suelta(X, Y);
        case E_ARRASTRAR_ETIQUETA:
            return gestos_.etiqueta.Suelta(X, Y);
        case E_RECUADRO:
            return gestos_.subsistema.TomaRecuadro();
        case E_RECUADRO_ZOOM:
            return gestos_.vista.E_18_AplicaZoom();
        case E_MANO:
            return gestos_.vista.E_19_Aplica();
        default:
            return;
    }
}

void EntradaPanel::Panel_Click() try { anfitrion_.Click(); } catch (...) {
    LanzaErrorVisor(trabajo_.iEstado, ". ErrPanel_Click (Esquema)");
}

// Not after the background picture's "Aceptar", whose second press it would be.
void EntradaPanel::Panel_DblClick() try {
    if (trabajo_.iEstado == E_PREPARADO && trabajo_.iEstadoAnterior != E_IMAGEN_FONDO) {
        anfitrion_.DblClick();
        std::int32_t iRefrescar = 1;
        if (const auto elem = trabajo_.elemSeleccionado)
            anfitrion_.EditarElemento(elem->gfCodSIG());
        else
            avisos_.LanzaMensaje(AVISO_HAGA_DOBLE_CLIC_SOBRE_UN_ELEMENTO, 0, iRefrescar);
    }
    refresco_.PedirRefresco();
    refresco_.RefrescarSiPendiente();
} catch (...) {
    LanzaErrorVisor(trabajo_.iEstado, ". ErrPanel_DblClick (Esquema)");
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
    if (trabajo_.bZoomMas) {
        if (ancho > ANCHO_MAS_CERCANO * r)
            escala(0.5F);
        else
            avisos_.LanzaMensaje(AVISO_MAXIMO_ZOOM, 0, iRefrescar);
    } else {
        if (ancho < ANCHO_MAS_LEJANO * r)
            escala(2);
        else
            avisos_.LanzaMensaje(AVISO_MINIMO_ZOOM, 0, iRefrescar);
    }
    PonFuente(panel_, vista_.EscalaDibujo() / panel_.ScaleWidth(), trabajo_.iEstado);
    vista_.MueveScroll(X, Y, 2);
}

}  // namespace zel
