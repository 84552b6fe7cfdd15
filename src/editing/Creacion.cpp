#include "editing/Creacion.h"

#include <algorithm>
#include <limits>
#include <string>
#include <utility>

#include "drawing/Conducciones.h"
#include "drawing/Etiquetas.h"
#include "drawing/Simbolos.h"
#include "editing/Nombres.h"
#include "editing/Trazados.h"
#include "platform/Dialogos.h"
#include "session/Ajustes.h"

namespace zel {

namespace {

constexpr std::int16_t BOTON_DERECHO = 2;
constexpr AvisoDeConexion SUPERPUESTOS{AVISO_SUPERPUESTOS};
constexpr float TOLERANCIA = 0.5F;  // of a trace, in TamanyoUnidad
constexpr float TAMANYO_DEL_SIMBOLO = 1;

void AgregaPunto(Puntos& trazado, PuntoXY p) {
    trazado.Add(p.X, p.Y);
}

PuntoXY Vertice(const Puntos& trazado, std::int32_t i) {
    const auto p = trazado.Item(i);
    return {p->XPos(), p->YPos()};
}
PuntoXY Ultimo(const Puntos& trazado) {
    return Vertice(trazado, trazado.Count());
}

// Also an element that has the code without its key: a host may give it one.
bool TieneCodigo(const Elementos& elementos, std::int32_t codigo) {
    return std::any_of(elementos.begin(), elementos.end(),
                       [=](const auto& e) { return e->gfCodSIG() == codigo; });
}

std::shared_ptr<Puntos> Copia(const Puntos& trazado) {
    auto copia = std::make_shared<Puntos>();
    for (const auto& p : trazado)
        copia->Add(p->XPos(), p->YPos());
    return copia;
}

std::shared_ptr<Puntos> DelReves(const Puntos& trazado) {
    auto reves = std::make_shared<Puntos>();
    for (std::int32_t i = trazado.Count(); i >= 1; --i)
        AgregaPunto(*reves, Vertice(trazado, i));
    return reves;
}

}  // namespace

Creacion::Creacion(Superficie& panel, Documento& documento, Trabajo& trabajo, Refresco& refresco,
                   Vista& vista, Avisos& avisos, Pintado& pintado, Localizador& localizador,
                   MaquinaEstados& estados, Anfitrion& anfitrion) noexcept
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

void Creacion::Pulsa(std::int16_t Button, float X, float Y) {
    if (trabajo_.iEstado == E_DIBUJANDO)
        PulsaSinTrazado(Button, X, Y);
    else if (trabajo_.iEstado == E_DIBUJANDO_CONDUCCION)
        PulsaTrazando(Button, X, Y);
}

void Creacion::PulsaSinTrazado(std::int16_t Button, float X, float Y) {
    const std::shared_ptr<Elemento> hallado = Busca(X, Y);
    if (Button == BOTON_DERECHO) {
        PulsaDerecho(hallado);
        return;
    }
    if (!TipoConocido(trabajo_.iTipoHerramienta)) return;
    if (const ReglaConexion* regla = ReglaDe(trabajo_.iTipoHerramienta)) {
        if (!Avisa(ImpideEmpezar(*regla, hallado.get()))) Empieza(hallado);
    } else if (hallado) {
        Avisa(SUPERPUESTOS);
    } else {
        Crea({{X, Y}, EtiquetaDelSimbolo(), 0, 0, nullptr, nullptr});
    }
}

void Creacion::PulsaDerecho(const std::shared_ptr<Elemento>& hallado) {
    if (trabajo_.bCuerpoElemento && hallado && hallado == trabajo_.elemSeleccionado)
        anfitrion_.LanzaMenu();
    else
        estados_.Estado(E_PREPARADO, 1);
    trabajo_.ExigeVisor();
}

void Creacion::Empieza(const std::shared_ptr<Elemento>& inicio) {
    trabajo_.elemSeleccionado = inicio;
    estados_.Estado(E_DIBUJANDO_CONDUCCION, 1);
}

void Creacion::PulsaTrazando(std::int16_t Button, float X, float Y) {
    const ReglaConexion* regla = ReglaDe(trabajo_.iTipoHerramienta);
    if (!regla || !PuedeSeguir()) {
        estados_.Estado(E_DIBUJANDO, 1);
        return;
    }
    const bool derecho = Button == BOTON_DERECHO;
    if (derecho && regla->simbolo == SimboloDelTrazado::Ninguno) {
        Retrocede();
        return;
    }
    const std::shared_ptr<Elemento> hallado = BuscaTambienEnElTrazado(X, Y);
    const bool conSimbolo = trabajo_.puntoReferencia != nullptr;
    if (!hallado && !derecho) {
        Alarga(X, Y);
    } else if (!hallado) {
        if (!Avisa(ImpideSimbolo(conSimbolo))) PonSimbolo(*regla, X, Y);
    } else if (!derecho) {
        if (!Avisa(ImpideTerminar(*regla, *trabajo_.elemSeleccionado, *hallado, conSimbolo)))
            TerminaEn(*hallado);
    }
}

void Creacion::Alarga(float X, float Y) {
    const std::shared_ptr<Puntos> alargado = TrazadoHacia(X, Y);
    alargado->Add(X, Y);
    TrazadoQueCrece() = alargado;
    refresco_.PedirRefresco();
}

void Creacion::PonSimbolo(const ReglaConexion& regla, float X, float Y) {
    trabajo_.trazadoTemporal.reset();
    refresco_.PedirRefresco();
    const std::shared_ptr<Puntos> trazado = TrazadoHacia(X, Y);
    const PuntoXY antes = Ultimo(*trazado);
    AgregaPunto(*trazado, PtoContorno(X, Y, antes.X, antes.Y, TAMANYO_DEL_SIMBOLO));
    if (regla.simbolo == SimboloDelTrazado::AlFinal) {
        // It is kept from its symbol on, whatever way it was drawn.
        Crea({{X, Y},
              EtiquetaDelSimbolo(),
              0,
              trabajo_.elemSeleccionado->gfCodSIG(),
              DelReves(*trazado),
              nullptr});
        return;
    }
    trabajo_.trazadoNuevo = trazado;
    trabajo_.trazadoNuevo2 = std::make_shared<Puntos>();
    trabajo_.puntoReferencia = std::make_shared<Punto>(X, Y);
}

void Creacion::TerminaEn(const Elemento& fin) {
    refresco_.PedirRefresco();
    const std::shared_ptr<Puntos> trazado = TrazadoHacia(fin.XPos(), fin.YPos());
    const PuntoXY antes = Ultimo(*trazado);
    AgregaPunto(*trazado, PtoContorno(fin.XPos(), fin.YPos(), antes.X, antes.Y, fin.Tamanyo()));
    const std::int32_t inicio = trabajo_.elemSeleccionado->gfCodSIG();
    if (const auto& central = trabajo_.puntoReferencia) {
        Crea({{central->XPos(), central->YPos()},
              EtiquetaDelSimbolo(),
              inicio,
              fin.gfCodSIG(),
              trabajo_.trazadoNuevo,
              trazado});
        return;
    }
    const auto mitad = MitadDeTrazado(panel_, AjustesDe(trabajo_, documento_, vista_), *trazado);
    Crea({Vertice(*mitad, 1), Vertice(*mitad, 2), inicio, fin.gfCodSIG(), trazado, nullptr});
}

void Creacion::Crea(const Nuevo& nuevo) {
    const TipoElemento armado = trabajo_.iTipoHerramienta;
    const std::shared_ptr<Elemento> e = Agrega(nuevo);
    if (!e) return;
    // While a trace is drawn nothing is highlighted.
    if (trabajo_.iEstado == E_DIBUJANDO) pintado_.DesSombreaElemeSelecc(trabajo_.elemSeleccionado);
    trabajo_.elemSeleccionado = e;
    trabajo_.recienCreado = e;
    documento_.bHabidoCambios = true;
    // The trace is the element's now: an event that comes while the host answers must not go on with it.
    estados_.BorrarVariablesEstado(false);
    if (EsLineal(armado)) refresco_.PedirRefresco();
    Muestra(e);
    Anuncia(e, armado);
}

// Empty when the collection has refused it; it has told so in a box.
std::shared_ptr<Elemento> Creacion::Agrega(const Nuevo& nuevo) {
    const TipoElemento tipo = trabajo_.iTipoHerramienta;
    std::int16_t& ultimoKeyPant = documento_.KeyPantDe(tipo);
    if (ultimoKeyPant == std::numeric_limits<std::int16_t>::max() ||
        documento_.UltimoCodSIG == std::numeric_limits<std::int32_t>::max()) {
        throw Fallo(6);
    }
    ++ultimoKeyPant;
    const std::int32_t codigo = ++documento_.UltimoCodSIG;
    const std::string nombre = Add_Nombre(documento_, tipo, false, false);
    const std::shared_ptr<Elementos> elementos = documento_.colElementos;
    if (TieneCodigo(*elementos, codigo)) {
        dialogos().MsgBox("La colección de elementos ya contiene un elemento con codigo gfCodSIG " +
                          std::to_string(codigo));
        trabajo_.ExigeVisor();
        return nullptr;
    }
    auto e = elementos->Add(tipo, nombre, codigo, Add_KeyPant(documento_, tipo), nuevo.posicion.X,
                            nuevo.posicion.Y, nuevo.ElemIni, nuevo.ElemFin, nuevo.trazado, nuevo.trazado2,
                            nombre, nuevo.etiqueta.X, nuevo.etiqueta.Y);
    trabajo_.ExigeVisor();
    return e;
}

void Creacion::Muestra(const std::shared_ptr<Elemento>& e) {
    const AjustesDibujo ajustes = AjustesDe(trabajo_, documento_, vista_);
    DibujarElemento(panel_, ajustes, e.get(), false);
    DibujaEtiquetas(panel_, ajustes, *documento_.colElementos, true, e.get());
    pintado_.SombreaElemento(e);
}

void Creacion::Anuncia(const std::shared_ptr<Elemento>& e, TipoElemento armado) {
    anfitrion_.ElementoSeleccionado(e->gfCodSIG());
    // What the host has done may have put the tool down.
    trabajo_.iTipoHerramienta = armado;
    estados_.Estado(E_DIBUJANDO, 1);
    vista_.CalculaRegionActiva(panel_, false);
    if (!documento_.colElementos->Contiene(e.get())) return;
    anfitrion_.CreacionNuevoElemento(std::to_string(e->Tipo()), e->ElemIni(), e->ElemFin());
}

void Creacion::Mueve(float X, float Y) {
    if (trabajo_.trazadoTemporal) pintado_.AlternaContorno();
    trabajo_.trazadoTemporal.reset();
    if (!PuedeSeguir()) return;
    auto tramo = std::make_shared<Puntos>();
    const Puntos& trazado = *TrazadoQueCrece();
    AgregaPunto(*tramo, trazado.Count() > 0 ? Ultimo(trazado) : Origen(X, Y));
    tramo->Add(X, Y);
    trabajo_.trazadoTemporal = std::move(tramo);
    pintado_.AlternaContorno();
}

void Creacion::Retrocede() {
    std::shared_ptr<Puntos>& trazado = TrazadoQueCrece();
    const bool trasLaCentral = trabajo_.trazadoNuevo2 != nullptr;
    const bool seguiaAlRaton = trabajo_.trazadoTemporal != nullptr;
    const std::int32_t puntos = trazado ? trazado->Count() : 0;
    if (puntos > 2) {
        trazado->Remove(puntos);
    } else if (trasLaCentral && puntos == 2) {
        trazado = std::make_shared<Puntos>();
    } else if (trasLaCentral) {
        trabajo_.puntoReferencia.reset();
        trabajo_.trazadoNuevo2.reset();
    } else {
        estados_.Estado(puntos == 0 ? E_DIBUJANDO : E_DIBUJANDO_CONDUCCION, 1);
    }
    trabajo_.trazadoTemporal.reset();
    refresco_.PedirRefresco();
    if (!seguiaAlRaton || trabajo_.iEstado != E_DIBUJANDO_CONDUCCION) return;
    refresco_.RefrescarSiPendiente();
    Mueve(trabajo_.ultimoRaton.X, trabajo_.ultimoRaton.Y);
}

std::shared_ptr<Elemento> Creacion::Busca(float X, float Y) {
    return localizador_.BuscaElemento(X, Y, nullptr, false, false, nullptr, TOLERANCIA, true);
}

std::shared_ptr<Elemento> Creacion::BuscaTambienEnElTrazado(float X, float Y) {
    if (auto hallado = Busca(X, Y)) return hallado;
    return localizador_.BuscaElemento(X, Y, nullptr, true, false, nullptr, TOLERANCIA, true);
}

bool Creacion::Avisa(AvisoDeConexion aviso) {
    std::int32_t iRefrescar = 1;
    if (aviso) avisos_.LanzaMensaje(aviso.id, aviso.id2, iRefrescar);
    return static_cast<bool>(aviso);
}

// The host may have taken the start element out of the schematic.
bool Creacion::PuedeSeguir() const noexcept {
    return trabajo_.elemSeleccionado && trabajo_.trazadoNuevo;
}

std::shared_ptr<Puntos>& Creacion::TrazadoQueCrece() noexcept {
    return trabajo_.trazadoNuevo2 ? trabajo_.trazadoNuevo2 : trabajo_.trazadoNuevo;
}

// Where the trace that grows leaves its first symbol towards a point.
PuntoXY Creacion::Origen(float X, float Y) const {
    if (const auto& central = trabajo_.puntoReferencia)
        return PtoContorno(central->XPos(), central->YPos(), X, Y, TAMANYO_DEL_SIMBOLO);
    const Elemento& inicio = *trabajo_.elemSeleccionado;
    return PtoContorno(inicio.XPos(), inicio.YPos(), X, Y, inicio.Tamanyo());
}

// A copy of the trace that grows, begun towards a point if it is empty: what fails on the way to the new
// element leaves the trace as it was.
std::shared_ptr<Puntos> Creacion::TrazadoHacia(float X, float Y) {
    auto trazado = Copia(*TrazadoQueCrece());
    if (trazado->Count() == 0) AgregaPunto(*trazado, Origen(X, Y));
    return trazado;
}

}  // namespace zel
