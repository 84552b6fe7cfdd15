#include "editing/Herramientas.h"

#include "drawing/Cursores.h"
#include "editing/Nombres.h"
#include "model/modErrorHandling.h"

namespace zel {

namespace {

bool EsDeConduccion(TipoElemento tipo) noexcept {
    return tipo >= ctConduccion1 && tipo <= ctConduccion5;
}

}  // namespace

Herramientas::Herramientas(Superficie& panel, Trabajo& trabajo, Refresco& refresco, Vista& vista,
                           Avisos& avisos, MaquinaEstados& estados, GestosDeVista& gestos,
                           Anfitrion& anfitrion) noexcept
    : panel_(panel),
      trabajo_(trabajo),
      refresco_(refresco),
      vista_(vista),
      avisos_(avisos),
      estados_(estados),
      gestos_(gestos),
      anfitrion_(anfitrion) {}

void Herramientas::Toolbar1_ButtonClick(std::string_view clave) try {
    refresco_.AnularRefresco();
    const TipoElemento anterior = trabajo_.iTipoHerramienta;
    trabajo_.iTipoHerramienta = TipoDeClave(clave);
    Cursor_Raton(panel_, CURSOR_DEL_TIPO, trabajo_.iTipoHerramienta, trabajo_.iEstado);
    if (trabajo_.iEstado == E_ZOOM) anfitrion_.SueltaBotones(Barra::Vista);
    const TipoElemento nueva = trabajo_.iTipoHerramienta;
    if (nueva == ctFlecha) {
        estados_.Estado(E_PREPARADO, 1);
    } else if (trabajo_.iEstado != E_DIBUJANDO_CONDUCCION) {
        estados_.Estado(E_DIBUJANDO, 1);
    } else if (nueva != anterior && !(EsDeConduccion(nueva) && EsDeConduccion(anterior))) {
        estados_.Estado(E_DIBUJANDO, 1);
    } else {
        // The trace in hand goes on, in the colour of its new kind.
        estados_.RevisaBarraToolbar1();
        if (nueva != anterior) refresco_.PedirRefresco();
    }
    refresco_.RefrescarSiPendiente();
} catch (...) {
    LanzaErrorVisor(trabajo_.iEstado, ". ErrToolbar1_ButtonClick (Esquema)");
}

void Herramientas::Toolbar2_ButtonClick(std::string_view clave) try {
    refresco_.AnularRefresco();
    anfitrion_.SueltaBotones(Barra::Vista);
    anfitrion_.PulsaBoton(Barra::Vista, clave);
    Ejecuta(clave);
    // Those that act at once pop up again; what stays pressed is the state's.
    estados_.RevisaBarraToolbar2(trabajo_.bZoomMas ? "zoommas" : "zoommenos");
    refresco_.RefrescarSiPendiente();
} catch (...) {
    LanzaErrorVisor(trabajo_.iEstado, ". ErrToolbar2_ButtonClick (Esquema)");
}

void Herramientas::Ejecuta(std::string_view clave) {
    if (clave == "zoommas" || clave == "zoommenos") {
        anfitrion_.SueltaBotones(Barra::Elementos);
        trabajo_.bZoomMas = clave == "zoommas";
        estados_.Estado(E_ZOOM, 1);
    } else if (clave == "zoom") {
        gestos_.ZoomDelUsuario();
    } else if (clave == "ajustarzoom") {
        vista_.AjustarImagen(panel_, 2);
    } else if (clave == "borrar") {
        PreguntaBorrado();
    } else if (clave == "centrarElemento") {
        std::int32_t iRefrescar = 1;
        if (const auto& e = trabajo_.elemSeleccionado)
            vista_.MueveScroll(e->XPos(), e->YPos(), 2);
        else
            avisos_.LanzaMensaje(AVISO_NADA_SELECCIONADO, 0, iRefrescar);
    } else if (clave == "zoomRecuadro") {
        estados_.Estado(E_RECUADRO_ZOOM, 1);
    } else if (clave == "mano") {
        estados_.Estado(E_MANO, 1);
    }
}

void Herramientas::PreguntaBorrado() try {
    refresco_.AnularRefresco();
    std::int32_t iRefrescar = 1;
    if (!trabajo_.elemSeleccionado)
        avisos_.LanzaMensaje(AVISO_ESCOJA_QUE_BORRAR, 0, iRefrescar);
    else
        anfitrion_.PeticionBorrado(trabajo_.elemSeleccionado->gfCodSIG());
    refresco_.PedirRefresco();
    refresco_.RefrescarSiPendiente();
} catch (...) {
    LanzaErrorVisor(trabajo_.iEstado, ". ErrPreguntaBorrado (Esquema)");
}

void Herramientas::Panel_GotFocus() {
    refresco_.PedirRefresco();
    refresco_.RefrescarSiPendiente();
}

void Herramientas::Panel_LostFocus() try {
    if (trabajo_.iEstado == E_DIBUJANDO_CONDUCCION) {
        refresco_.PedirRefresco();
        trabajo_.trazadoTemporal.reset();
    } else if (trabajo_.iEstado == E_ARRASTRAR_ELEMENTO) {
        estados_.Estado(E_PREPARADO, 1);
    }
    refresco_.RefrescarSiPendiente();
} catch (...) {
    LanzaErrorVisor(trabajo_.iEstado, ". ErrPanel_LostFocus (Esquema)");
}

}  // namespace zel
