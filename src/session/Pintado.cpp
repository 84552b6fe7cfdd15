#include "session/Pintado.h"

#include <algorithm>

#include "drawing/NumeroDeEstado.h"
#include "drawing/Resaltado.h"
#include "model/modErrorHandling.h"
#include "platform/Dialogos.h"
#include "platform/Guardia.h"
#include "session/Ajustes.h"

namespace zel {

namespace {

constexpr std::size_t CAJAS_POR_PINTADO = 3;

}  // namespace

Pintado::Pintado(Superficie& panel, Documento& documento, Trabajo& trabajo, Refresco& refresco, Vista& vista,
                 Desplazamiento& desplazamiento, std::function<Fondo()> fondo)
    : panel_(panel),
      documento_(documento),
      trabajo_(trabajo),
      refresco_(refresco),
      vista_(vista),
      desplazamiento_(desplazamiento),
      fondo_(std::move(fondo)),
      indice_(documento.indice) {}

bool Pintado::TieneContornos(std::int32_t iEstado) noexcept {
    return iEstado == E_LAZO || iEstado == E_ARRASTRAR_ELEMENTO || iEstado == E_ARRASTRAR_PUNTO ||
           (iEstado >= E_ARRASTRAR_ETIQUETA && iEstado <= E_MANO);
}

bool Pintado::HayArrastre(const Trabajo& trabajo) noexcept {
    const bool esperaPrensa = trabajo.iEstado == E_RECUADRO_ZOOM || trabajo.iEstado == E_MANO;
    return TieneContornos(trabajo.iEstado) && (trabajo.trazadoTemporal || !esperaPrensa);
}

const Elementos& Pintado::ConjuntoPintado() const noexcept {
    const bool parte = trabajo_.iEstado == E_SUBSISTEMA && trabajo_.elemSubsistema;
    return parte ? *trabajo_.elemSubsistema : *documento_.colElementos;
}

Marcas Pintado::MarcasDelTrabajo() const {
    Marcas marcas;
    marcas.elemSeleccionado = trabajo_.elemSeleccionado.get();
    marcas.elemSubsistema = trabajo_.elemSubsistema.get();
    marcas.trazadoNuevo = trabajo_.trazadoNuevo.get();
    marcas.trazadoNuevo2 = trabajo_.trazadoNuevo2.get();
    marcas.puntoReferencia = trabajo_.puntoReferencia.get();
    marcas.curvaSeleccion = trabajo_.curvaSeleccion.get();
    marcas.trazadoTemporal = trabajo_.trazadoTemporal.get();
    marcas.colConduccionesMovidas = trabajo_.colConduccionesMovidas;
    marcas.numeroDeCentral = documento_.UltimoKeyPant[ctCentralHidroelectrica] + 1;
    return marcas;
}

std::vector<std::string> Pintado::Pinta(const Elementos& elementos, const Marcas* marcas) {
    const Fondo fondo = FondoDelMomento();
    const bool todo = &elementos == documento_.colElementos.get();
    if (todo) indice_.Ata(documento_.colElementos);
    return PintaEsquema(panel_, AjustesDe(trabajo_, documento_, vista_), elementos, *documento_.colElementos,
                        fondo, marcas, todo ? &indice_ : nullptr);
}

// Without its picture the schematic is painted all the same.
Fondo Pintado::FondoDelMomento() const noexcept try { return fondo_(); } catch (...) {
    return {};
}

void Pintado::SueltaAjenos() noexcept {
    const auto& e = trabajo_.elemSeleccionado;
    if (e && !documento_.colElementos->Contiene(e.get())) trabajo_.elemSeleccionado.reset();
}

void Pintado::Panel_Paint() {
    if (pintando_) return;
    std::vector<std::string> fallos;
    {
        const Guardia pintando(pintando_, true);
        desplazamiento_.bActualizandoScroll(false);
        LlamadasARefresco_ = std::max<std::int16_t>(LlamadasARefresco_, 0);
        SueltaAjenos();
        if (auto aviso = desplazamiento_.ActualizaVista(2)) fallos.push_back(std::move(*aviso));
        if (LlamadasARefresco_ == 0 && refresco_.bPintado()) {
            const Guardia llamadas(LlamadasARefresco_, 1);
            codSubrayado_ = 0;
            enBlanco_ = false;
            refresco_.AlDia();
            if (trabajo_.iEstado == E_DIBUJANDO_CONDUCCION) trabajo_.trazadoTemporal.reset();
            const Marcas marcas = MarcasDelTrabajo();
            auto deDibujo = Pinta(ConjuntoPintado(), &marcas);
            std::move(deDibujo.begin(), deDibujo.end(), std::back_inserter(fallos));
        }
    }
    Avisa(fallos);
}

// A box lets events through, so that a paint may come in the middle: what fails in that one is the same
// again, and is not told.
void Pintado::Avisa(const std::vector<std::string>& fallos) {
    if (aplaza_) {
        if (pendientes_.empty()) pendientes_ = fallos;
        return;
    }
    if (avisando_) return;
    const Guardia avisando(avisando_, true);
    const std::size_t cajas = std::min(fallos.size(), CAJAS_POR_PINTADO);
    for (std::size_t i = 0; i < cajas; ++i) {
        std::string texto = fallos[i];
        if (i + 1 == CAJAS_POR_PINTADO && fallos.size() > cajas) {
            const std::size_t quedan = fallos.size() - cajas;
            texto += "\n\nHay " + std::to_string(quedan) +
                     (quedan == 1 ? " fallo más de dibujo." : " fallos más de dibujo.");
        }
        dialogos().MsgBox(texto);
        trabajo_.ExigeVisor();
    }
}

void Pintado::UserControl_Paint() {
    if (TieneContornos(trabajo_.iEstado)) return;
    refresco_.PedirRefresco();
    refresco_.RefrescarSiPendiente();
}

void Pintado::Borra() {
    codSubrayado_ = 0;
    enBlanco_ = true;
    refresco_.AnularRefresco();
    refresco_.AlDia();
    panel_.Cls();
}

// The underline stays on top: under a conduit's frame, which covers, it could not be erased any more.
void Pintado::SombreaElemento(const std::shared_ptr<Elemento>& e) {
    if (enBlanco_) return;
    AlternaSubrayado(codSubrayado_);
    zel::SombreaElemento(panel_, AjustesDe(trabajo_, documento_, vista_), e.get());
    AlternaSubrayado(codSubrayado_);
}

void Pintado::DesSombreaElemeSelecc(const std::shared_ptr<Elemento>& e) try {
    if (!e) return;
    if (ResaltadoInvierte(e->Tipo())) {
        SombreaElemento(e);
        return;
    }
    if (trabajo_.elemSeleccionado && trabajo_.elemSeleccionado->gfCodSIG() == e->gfCodSIG()) {
        trabajo_.elemSeleccionado.reset();
    }
    refresco_.PedirRefresco();
} catch (...) {
    LanzaErrorVisor(trabajo_.iEstado, ". ErrDesSombreaElemeSelecc (Esquema)");
}

void Pintado::SubrayaElem(std::int32_t codigo) try {
    if (codigo == codSubrayado_ || enBlanco_) return;
    AlternaSubrayado(codSubrayado_);
    codSubrayado_ = codigo;
    if (codigo == 0) return;
    if (documento_.colElementos->ItemCodSIG(codigo))
        AlternaSubrayado(codigo);
    else
        codSubrayado_ = 0;
} catch (...) {
    LanzaErrorVisor(trabajo_.iEstado, ". ErrSubrayaElem (Esquema)");
}

void Pintado::AlternaContorno() {
    zel::AlternaContorno(panel_, AjustesDe(trabajo_, documento_, vista_), MarcasDelTrabajo());
}

void Pintado::AlternaSubrayado(std::int32_t codigo) {
    if (codigo == 0) return;
    if (const auto e = documento_.colElementos->ItemCodSIG(codigo)) {
        zel::AlternaSubrayado(panel_, AjustesDe(trabajo_, documento_, vista_), *e);
    }
}

}  // namespace zel
