#include "editing/MaquinaEstados.h"

#include <utility>

#include "drawing/Colores.h"
#include "drawing/Cursores.h"
#include "drawing/Etiquetas.h"
#include "editing/ConduccionesMovidas.h"
#include "editing/Nombres.h"
#include "editing/Subsistema.h"
#include "model/Mensajes.h"
#include "model/modErrorHandling.h"
#include "platform/Guardia.h"
#include "platform/Numeros.h"
#include "session/Ajustes.h"

namespace zel {

namespace {

constexpr std::int32_t CURSOR_ACERCAR = 203;
constexpr std::int32_t CURSOR_ALEJAR = 204;

template <typename... Estados>
bool EsUnoDe(std::int32_t estado, Estados... estados) noexcept {
    return ((estado == estados) || ...);
}

// A state that comes between another one and its end.
bool SeInterpone(std::int32_t estado) noexcept {
    return EsUnoDe(estado, E_ZOOM, E_RECUADRO_ZOOM, E_MANO);
}

}  // namespace

MaquinaEstados::MaquinaEstados(Superficie& panel, Documento& documento, Trabajo& trabajo, Refresco& refresco,
                               Vista& vista, Conexiones& conexiones, Anfitrion& anfitrion) noexcept
    : panel_(panel),
      documento_(documento),
      trabajo_(trabajo),
      refresco_(refresco),
      vista_(vista),
      conexiones_(conexiones),
      anfitrion_(anfitrion) {}

void MaquinaEstados::Estado(std::int32_t nuevoEstado, std::int32_t bRefrescar) try {
    const std::int32_t viejo = trabajo_.iEstado;
    const EstadoDelVisor* fila = EstadoDe(nuevoEstado);
    if (fila && fila->entra) {
        if (SeInterpone(nuevoEstado))
            Interrumpe(viejo);
        else if (nuevoEstado != E_VOLVER)
            trabajo_.interrumpido.reset();
        (this->*fila->entra)(*fila, viejo, bRefrescar);
    }
    // However a trace point's drag ends, its trace is searched whole again.
    if (viejo == E_ARRASTRAR_PUNTO && trabajo_.iEstado != viejo) BorrarInfoExtra();
    trabajo_.iEstadoAnterior = viejo;
    RevisaBarraToolbar1();
    RevisaBarraToolbar2(trabajo_.bZoomMas ? "zoommas" : "zoommenos");
} catch (...) {
    LanzaErrorVisor(trabajo_.iEstado, ". ErrEstado (Esquema)");
}

void MaquinaEstados::Prompt(const std::string& texto) {
    anfitrion_.TextoEstado(1, texto);
}

void MaquinaEstados::Prompt(std::int32_t mensaje) {
    if (mensaje != 0) Prompt(std::string(TextoMensajeODesconocido(mensaje)));
}

void MaquinaEstados::Cursor(std::int32_t id) {
    if (id != EstadoDelVisor::SIN_CURSOR) {
        Cursor_Raton(panel_, id, trabajo_.iTipoHerramienta, trabajo_.iEstado);
    }
}

void MaquinaEstados::Pide(std::int32_t bRefrescar) noexcept {
    if (bRefrescar == 1) refresco_.PedirRefresco();
}

// The state's number, its prompt and its cursor.
void MaquinaEstados::Pon(Fila fila) {
    trabajo_.iEstado = fila.numero;
    if (fila.texto.empty())
        Prompt(fila.mensaje);
    else
        Prompt(std::string(fila.texto));
    Cursor(fila.cursor);
}

void MaquinaEstados::EntraVolver(Fila, std::int32_t, std::int32_t) {
    if (trabajo_.interrumpido)
        Vuelve();
    else
        Estado(trabajo_.iEstadoAnterior, 1);
}

// What can go on later waits; a drag cannot, and is dropped whole.
void MaquinaEstados::Interrumpe(std::int32_t viejo) {
    if (SeInterpone(viejo)) return;
    trabajo_.interrumpido.reset();
    if (EsUnoDe(viejo, E_DIBUJANDO, E_DIBUJANDO_CONDUCCION, E_MOVER_ELEMENTO, E_MOVER_ETIQUETA,
                E_ESCOGER_PUNTO, E_ESPERAR_SUBSISTEMA, E_SUBSISTEMA, E_IMAGEN_FONDO)) {
        trabajo_.interrumpido =
            Trabajo::EnMano{viejo, trabajo_.trazadoNuevo, trabajo_.trazadoNuevo2, trabajo_.puntoReferencia};
        BorrarVariablesEstado(true);
    } else if (viejo != E_PREPARADO) {
        BorrarVariablesEstado(viejo != E_LAZO);
        BorrarInfoExtra();
    }
    trabajo_.trazadoTemporal.reset();
}

void MaquinaEstados::Vuelve() {
    const Guardia reanuda(reanuda_, std::exchange(trabajo_.interrumpido, std::nullopt), std::nullopt);
    std::int32_t destino = reanuda_ ? reanuda_->iEstado : E_PREPARADO;
    const bool deUnElemento = EsUnoDe(destino, E_MOVER_ELEMENTO, E_MOVER_ETIQUETA, E_ESCOGER_PUNTO);
    if (deUnElemento && !trabajo_.elemSeleccionado) destino = E_PREPARADO;
    Estado(destino, 1);
    Pide(1);  // the band of what came between goes, also where the state is entered without a repaint
}

void MaquinaEstados::EntraZoom(Fila fila, std::int32_t viejo, std::int32_t bRefrescar) {
    Pon(fila);
    Cursor(trabajo_.bZoomMas ? CURSOR_ACERCAR : CURSOR_ALEJAR);
    if (!EsUnoDe(viejo, E_ZOOM, E_DIBUJANDO, E_PREPARADO)) Pide(bRefrescar);
}

void MaquinaEstados::EntraDibujando(Fila fila, std::int32_t viejo, std::int32_t bRefrescar) {
    anfitrion_.SueltaBotones(Barra::Vista);
    BorrarVariablesEstado(false);
    trabajo_.trazadoTemporal.reset();
    Pon(fila);
    Prompt(MensajeAlEscoger(trabajo_.iTipoHerramienta));
    if (!EsUnoDe(viejo, E_ZOOM, E_DIBUJANDO, E_PREPARADO)) Pide(bRefrescar);
}

void MaquinaEstados::EntraConduccion(Fila fila, std::int32_t, std::int32_t bRefrescar) {
    const bool sigue = reanuda_ && reanuda_->trazadoNuevo;
    trabajo_.trazadoNuevo = sigue ? reanuda_->trazadoNuevo : std::make_shared<Puntos>();
    trabajo_.trazadoNuevo2 = sigue ? reanuda_->trazadoNuevo2 : nullptr;
    trabajo_.puntoReferencia = sigue ? reanuda_->puntoReferencia : nullptr;
    Pon(fila);
    Prompt(MensajeAlTrazar(trabajo_.iTipoHerramienta));
    Pide(bRefrescar);
}

void MaquinaEstados::EntraPreparado(Fila fila, std::int32_t viejo, std::int32_t bRefrescar) {
    refresco_.AnularRefresco();
    anfitrion_.SueltaBotones(Barra::Vista);
    if (trabajo_.iTipoHerramienta != ctFlecha) {
        anfitrion_.SueltaBotones(Barra::Elementos);
        trabajo_.iTipoHerramienta = ctFlecha;
    }
    if (EsUnoDe(viejo, E_ESCOGER_PUNTO, E_ARRASTRAR_ELEMENTO)) BorrarInfoExtra();
    if (viejo == E_DIBUJANDO_CONDUCCION || (viejo >= E_ESPERAR_SUBSISTEMA && viejo <= E_ARRASTRAR_ETIQUETA) ||
        viejo == E_PRUEBAS) {
        BorrarVariablesEstado(false);
    }
    Pon(fila);
    PromptDePreparado();
    Pide(bRefrescar);
    panel_.DrawStyle(Superficie::ESTILO_SOLIDO);
    vista_.bVistaActualizada(true);
}

void MaquinaEstados::PromptDePreparado() {
    if (trabajo_.elemSeleccionado)
        Prompt(trabajo_.elemSeleccionado->Nombre());
    else
        Prompt(EstadoDe(E_PREPARADO)->mensaje);
}

void MaquinaEstados::RevisaPrompt() {
    if (trabajo_.iEstado == E_PREPARADO) PromptDePreparado();
}

void MaquinaEstados::EntraMoverElemento(Fila fila, std::int32_t, std::int32_t bRefrescar) {
    if (!trabajo_.elemSeleccionado) throw Fallo(91);
    Pon(fila);
    Prompt(std::string(TextoMensajeODesconocido(fila.mensaje)) +
           Add_Nombre(documento_, trabajo_.elemSeleccionado->Tipo(), false, false));
    Pide(bRefrescar);
}

void MaquinaEstados::EntraSinMas(Fila fila, std::int32_t, std::int32_t bRefrescar) {
    Pon(fila);
    Pide(bRefrescar);
}

void MaquinaEstados::EntraEscogerPunto(Fila fila, std::int32_t, std::int32_t bRefrescar) {
    Pon(fila);
    trabajo_.colConduccionesMovidas.clear();
    Pide(bRefrescar);
}

void MaquinaEstados::EntraEsperarSubsistema(Fila fila, std::int32_t, std::int32_t bRefrescar) {
    BorrarVariablesEstado(false);
    Pon(fila);
    Pide(bRefrescar);
}

void MaquinaEstados::EntraLazo(Fila fila, std::int32_t, std::int32_t) {
    trabajo_.curvaSeleccion = std::make_shared<Puntos>();
    Pon(fila);
    PreparaColor(panel_, COLOR_AZUL);
}

void MaquinaEstados::EntraSubsistema(Fila fila, std::int32_t viejo, std::int32_t bRefrescar) {
    try {
        if (EsUnoDe(viejo, E_LAZO, E_RECUADRO)) E_12_SeleccionarElementos(documento_, trabajo_);
        if (viejo == E_RECUADRO) trabajo_.curvaSeleccion.reset();
        if (viejo == E_UNO_A_UNO) {
            E_12_QuitarConducciones(trabajo_);
            E_15_AgregarConducciones(documento_, trabajo_);
        }
    } catch (...) {
        // Elements of one code cannot be chosen together; the gesture is over all the same.
        Estado(E_PREPARADO, 1);
        throw;
    }
    if (!trabajo_.elemSubsistema || trabajo_.elemSubsistema->Count() == 0) {
        Estado(E_PREPARADO, 1);
        return;
    }
    Pon(fila);
    Pide(bRefrescar);
}

void MaquinaEstados::EntraArrastrarElemento(Fila fila, std::int32_t, std::int32_t bRefrescar) {
    const auto& e = trabajo_.elemSeleccionado;
    if (!e || !TieneSimbolo(e->Tipo())) {
        Estado(E_PREPARADO, 1);
        return;
    }
    trabajo_.iEstado = fila.numero;
    refresco_.AnularRefresco();
    E_13_BuscaConduccionesParaMovimiento(conexiones_, documento_, trabajo_);
    trabajo_.puntoReferencia = std::make_shared<Punto>(e->XPos(), e->YPos());
    Pon(fila);
    Pide(bRefrescar);
}

void MaquinaEstados::EntraArrastrarPunto(Fila fila, std::int32_t, std::int32_t) {
    if (!trabajo_.elemSeleccionado || !EsLineal(trabajo_.elemSeleccionado->Tipo())) {
        Estado(E_PREPARADO, 1);
        return;
    }
    trabajo_.iEstado = fila.numero;
}

void MaquinaEstados::EntraUnoAUno(Fila fila, std::int32_t viejo, std::int32_t bRefrescar) {
    BorrarVariablesEstado(true);
    trabajo_.curvaSeleccion.reset();
    if (viejo != E_SUBSISTEMA || !trabajo_.elemSubsistema) {
        trabajo_.elemSubsistema = std::make_shared<Elementos>();
        if (viejo == E_PREPARADO && trabajo_.elemSeleccionado) {
            trabajo_.elemSubsistema->AddObjetoElemento(*trabajo_.elemSeleccionado);
        }
    }
    if (EsUnoDe(viejo, E_PREPARADO, E_SUBSISTEMA)) trabajo_.elemSeleccionado.reset();
    Pon(fila);
    Pide(bRefrescar);
}

// The outline that is dragged: the label's corner, its size, and the way from the press to the corner.
void MaquinaEstados::EntraArrastrarEtiqueta(Fila fila, std::int32_t, std::int32_t) {
    const auto& e = trabajo_.elemSeleccionado;
    if (!e) {
        Estado(E_PREPARADO, 1);
        return;
    }
    Pon(fila);
    refresco_.AnularRefresco();
    const CajaEtiqueta caja =
        MideEtiqueta(panel_, AjustesDe(trabajo_, documento_, vista_), *e, e->XPos(), e->YPos());
    const Punto prensa = trabajo_.puntoReferencia ? *trabajo_.puntoReferencia : Punto(caja.X, caja.Y);
    trabajo_.trazadoTemporal = std::make_shared<Puntos>();
    trabajo_.trazadoTemporal->Add(caja.X, caja.Y);
    trabajo_.trazadoTemporal->Add(caja.Ancho, caja.Alto);
    trabajo_.trazadoTemporal->Add(caja.X - prensa.XPos(), caja.Y - prensa.YPos());
    trabajo_.puntoReferencia.reset();
}

// The selection rectangle, the zoom rectangle and the hand: drags that draw a band by inverting. The last two
// may come in the middle of another gesture, whose marks have to go.
void MaquinaEstados::EntraBanda(Fila fila, std::int32_t viejo, std::int32_t bRefrescar) {
    if (fila.numero == E_MANO) vista_.bVistaActualizada(false);
    refresco_.AnularRefresco();
    Pon(fila);
    panel_.DrawMode(Superficie::MODO_INVERTIR);
    if (fila.numero == E_RECUADRO) return;
    trabajo_.trazadoTemporal.reset();
    if (!EsUnoDe(viejo, E_ZOOM, E_DIBUJANDO, E_PREPARADO)) Pide(bRefrescar);
}

void MaquinaEstados::EntraImagenFondo(Fila fila, std::int32_t, std::int32_t) {
    if (fila.numero == E_IMAGEN_FONDO) anfitrion_.BarraElementosActiva(false);
    Pon(fila);
}

void MaquinaEstados::BorrarVariablesEstado(bool bConservarSubsistema) try {
    if (!bConservarSubsistema) {
        trabajo_.curvaSeleccion.reset();
        trabajo_.elemSubsistema.reset();
    }
    trabajo_.trazadoNuevo.reset();
    trabajo_.trazadoNuevo2.reset();
    trabajo_.puntoReferencia.reset();
    trabajo_.colConduccionesMovidas.clear();
} catch (...) {
    LanzaErrorVisor(trabajo_.iEstado, ". ErrBorrarVariablesEstado (Esquema)");
}

void MaquinaEstados::BorrarInfoExtra() try {
    marcas_.Ata(documento_.colElementos);
    marcas_.PonAlDia([](std::size_t) {},
                     [](const DiarioDeCambios::Cambio& cambio) {
                         if (cambio.Quitado) return;
                         if (const auto& trazado = cambio.elemento->Trazado()) trazado->BorraMarcas();
                         if (const auto& trazado2 = cambio.elemento->Trazado2()) trazado2->BorraMarcas();
                     });
} catch (...) {
    LanzaErrorVisor(trabajo_.iEstado, ". ErrBorrarInfoExtra (Esquema)");
}

void MaquinaEstados::RevisaBarraToolbar1() try {
    anfitrion_.SueltaBotones(Barra::Elementos);
    if (!EsUnoDe(trabajo_.iEstado, E_DIBUJANDO, E_DIBUJANDO_CONDUCCION, E_PREPARADO)) return;
    anfitrion_.PulsaBoton(Barra::Elementos, Add_Nombre(documento_, trabajo_.iTipoHerramienta, false, true));
} catch (...) {
    LanzaErrorVisor(trabajo_.iEstado, ". ErrRevisaBarraToolbar1 (Esquema)");
}

void MaquinaEstados::RevisaBarraToolbar2(std::string_view sClave) try {
    anfitrion_.SueltaBotones(Barra::Vista);
    if (trabajo_.iEstado == E_ZOOM && (sClave == "zoommas" || sClave == "zoommenos"))
        anfitrion_.PulsaBoton(Barra::Vista, sClave);
    else if (trabajo_.iEstado == E_RECUADRO_ZOOM)
        anfitrion_.PulsaBoton(Barra::Vista, "zoomRecuadro");
    else if (trabajo_.iEstado == E_MANO)
        anfitrion_.PulsaBoton(Barra::Vista, "mano");
} catch (...) {
    LanzaErrorVisor(trabajo_.iEstado, ". ErrRevisaBarraToolbar2 (Esquema)");
}

void MaquinaEstados::MuestraPosicion(float x, float y) {
    const auto decimas = [](float valor) { return TextoDeNumero(RedondeaPar(double{valor} * 10) / 10); };
    if (!trabajo_.bDepurarEstado) {
        anfitrion_.TextoEstado(2, "x=" + decimas(x));
        anfitrion_.TextoEstado(3, "y=" + decimas(y));
        return;
    }
    const EstadoDelVisor* fila = EstadoDe(trabajo_.iEstado);
    anfitrion_.TextoEstado(2, "Alt+F10/F11");
    anfitrion_.TextoEstado(3, "Estado " + std::string(fila ? fila->nombre : ""));
}

}  // namespace zel
