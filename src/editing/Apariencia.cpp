#include "editing/Apariencia.h"

#include <algorithm>

#include "drawing/Colores.h"
#include "drawing/Etiquetas.h"
#include "editing/Menus.h"
#include "editing/OrdenDeMenu.h"
#include "editing/Trazados.h"
#include "model/Mensajes.h"
#include "platform/Dialogos.h"
#include "platform/Numeros.h"
#include "session/Ajustes.h"

namespace zel {

namespace {

constexpr std::int32_t PREGUNTA_TAMANYO = 5123;
constexpr std::int32_t PREGUNTA_ETIQUETA = 5124;

constexpr double TANTO_POR_CIENTO = 100;
constexpr double SIMBOLO_MINIMO = 50;
constexpr double SIMBOLO_MAXIMO = 3300;
constexpr double LINEA_MINIMA = 1;
constexpr double LINEA_MAXIMA = 20;
constexpr double ETIQUETA_MINIMA = 50;
constexpr double FUENTE_MINIMA = 10;
constexpr double FUENTE_MAXIMA = 500;

// What a size is asked for with, and how the answer becomes the element's.
struct PreguntaDeTamanyo {
    std::string_view texto;
    double minimo, maximo, porUnidad;
};

PreguntaDeTamanyo PreguntaPara(TipoElemento tipo) {
    if (SeTrataComoSimbolo(tipo))
        return {TextoMensajeODesconocido(PREGUNTA_TAMANYO), SIMBOLO_MINIMO, SIMBOLO_MAXIMO, TANTO_POR_CIENTO};
    return {"Escriba el grosor deseado para la conducción (entre 1 y 20):", LINEA_MINIMA, LINEA_MAXIMA, 1};
}

}  // namespace

Apariencia::Apariencia(Superficie& panel, Documento& documento, Trabajo& trabajo, Refresco& refresco,
                       Vista& vista, Avisos& avisos, MaquinaEstados& estados, Anfitrion& anfitrion,
                       Recorta recorta)
    : panel_(panel),
      documento_(documento),
      trabajo_(trabajo),
      refresco_(refresco),
      vista_(vista),
      avisos_(avisos),
      estados_(estados),
      anfitrion_(anfitrion),
      recorta_(std::move(recorta)) {}

template <typename Accion>
void Apariencia::Orden(const char* sufijo, Accion accion) {
    OrdenDeMenu(trabajo_, refresco_, sufijo, accion);
}

void Apariencia::Preparado() {
    estados_.Estado(E_PREPARADO, 1);
    documento_.bHabidoCambios = true;
}

// After a box: the schematic may be another one, in which the code means something else.
std::shared_ptr<Elemento> Apariencia::ElementoPreguntado(std::int32_t codigo, TipoElemento tipo) const {
    auto e = documento_.colElementos->ItemCodSIG(codigo);
    return e && e->Tipo() == tipo ? e : nullptr;
}

// Nothing when there is no answer.
std::optional<std::string> Apariencia::Pregunta(std::string_view texto, double propuesta) {
    auto respuesta = dialogos().InputBox(std::string(texto), {}, TextoRedondeado(propuesta));
    trabajo_.ExigeVisor();
    if (respuesta && respuesta->empty()) respuesta.reset();
    return respuesta;
}

void Apariencia::VuelveAPreguntar(std::int16_t aviso) {
    std::int32_t iRefrescar = 1;
    avisos_.LanzaMensaje(aviso, 0, iRefrescar);
}

void Apariencia::menuContextualColorIcono_Click() {
    Orden(". ErrmenuContextualColorIcono_Click (Esquema)",
          [&] { PideColor(&Elemento::ColorIcono, &Elemento::ColorIcono, ColorDeIcono); });
}

void Apariencia::menuContextualColorLinea_Click() {
    Orden(". ErrmenuContextualColorLinea_Click (Esquema)",
          [&] { PideColor(&Elemento::ColorLinea, &Elemento::ColorLinea, ColorDeLinea); });
}

void Apariencia::PideColor(std::int32_t (Elemento::*lee)() const noexcept,
                           void (Elemento::*pon)(std::int32_t) noexcept,
                           std::int32_t (*delTipo)(TipoElemento) noexcept) {
    refresco_.AnularRefresco();
    if (!trabajo_.elemSeleccionado) return;
    const std::int32_t codigo = trabajo_.elemSeleccionado->gfCodSIG();
    const TipoElemento tipo = trabajo_.elemSeleccionado->Tipo();
    std::int32_t color = (*trabajo_.elemSeleccionado.*lee)();
    if (color == COLOR_DEL_TIPO) color = delTipo(tipo);
    const auto elegido = dialogos().Color(color);
    trabajo_.ExigeVisor();
    const auto e = ElementoPreguntado(codigo, tipo);
    if (!e) return;
    (*e.*pon)(elegido.value_or(color));
    anfitrion_.ElementoModificado(e);
    trabajo_.elemSeleccionado.reset();
    Preparado();
}

void Apariencia::menuContextualTamanyo_Click() {
    Orden(". ErrmenuContextualTamanyo_Click (Esquema)", [&] {
        while (PideTamanyo()) {
        }
    });
}

// True when it has to be asked again.
bool Apariencia::PideTamanyo() {
    refresco_.AnularRefresco();
    if (!trabajo_.elemSeleccionado) {
        VuelveAPreguntar(AVISO_NADA_SELECCIONADO);
        return false;
    }
    const std::int32_t codigo = trabajo_.elemSeleccionado->gfCodSIG();
    const TipoElemento tipo = trabajo_.elemSeleccionado->Tipo();
    const PreguntaDeTamanyo p = PreguntaPara(tipo);
    const auto respuesta = Pregunta(p.texto, trabajo_.elemSeleccionado->Tamanyo() * p.porUnidad);
    const auto e = ElementoPreguntado(codigo, tipo);
    if (!respuesta || !e) return false;
    const auto v = NumeroDeUsuario(*respuesta);
    if (!v || *v < p.minimo || *v > p.maximo) {
        VuelveAPreguntar(v ? AVISO_VALOR_INCORRECTO : AVISO_NO_ES_NUMERO);
        return true;
    }
    PonTamanyo(e, static_cast<float>(*v / p.porUnidad));
    anfitrion_.ElementoModificado(e);
    vista_.CalculaRegionActiva(panel_, false);
    Preparado();
    return false;
}

void Apariencia::PonTamanyo(const std::shared_ptr<Elemento>& e, float tamanyo) {
    e->Tamanyo(tamanyo);
    if (TieneSimbolo(e->Tipo())) recorta_(e);
}

void Apariencia::CambiaTamanyo(const std::shared_ptr<Elemento>& e, float tamanyo) {
    const PreguntaDeTamanyo p = PreguntaPara(e->Tipo());
    const double v = double{tamanyo} * p.porUnidad;
    if (!(v >= p.minimo && v <= p.maximo)) throw Fallo(5, "El tamaño está fuera de sus límites");
    PonTamanyo(e, tamanyo);
    documento_.bHabidoCambios = true;
    vista_.CalculaRegionActiva(panel_, false);
    refresco_.PedirRefresco();
}

void Apariencia::menuContextualMostrarEtiqueta_Click() {
    Orden(". ErrmenuContextualMostrarEtiqueta_Click (Esquema)", [&] {
        refresco_.AnularRefresco();
        const auto e = trabajo_.elemSeleccionado;
        if (!e) return;
        e->MostrarEtiqueta(!e->MostrarEtiqueta());
        vista_.CalculaRegionActiva(panel_, false);
        Preparado();
        anfitrion_.ElementoModificado(e);
    });
}

void Apariencia::menuContextualTamanyoEtiqueta_Click() {
    Orden(". ErrmenuContextualTamanyoEtiqueta_Click (Esquema)", [&] {
        while (PideTamanyoEtiqueta()) {
        }
    });
}

// True when it has to be asked again.
bool Apariencia::PideTamanyoEtiqueta() {
    refresco_.AnularRefresco();
    if (!trabajo_.elemSeleccionado) return false;
    const std::int32_t codigo = trabajo_.elemSeleccionado->gfCodSIG();
    const TipoElemento tipo = trabajo_.elemSeleccionado->Tipo();
    const auto respuesta = Pregunta(TextoMensajeODesconocido(PREGUNTA_ETIQUETA),
                                    trabajo_.elemSeleccionado->EtiquetaTamanyo() * TANTO_POR_CIENTO);
    const auto e = ElementoPreguntado(codigo, tipo);
    if (!respuesta || !e) return false;
    const auto v = NumeroDeUsuario(*respuesta);
    if (!v || *v < ETIQUETA_MINIMA) {
        VuelveAPreguntar(v ? AVISO_MENOS_DEL_MINIMO : AVISO_VALOR_INCORRECTO);
        return true;
    }
    e->EtiquetaTamanyo(static_cast<float>(*v / TANTO_POR_CIENTO));
    anfitrion_.ElementoModificado(e);
    Preparado();
    return false;
}

void Apariencia::menuContextualEtiquetaPegajosa_Click() {
    Orden(". ErrmenuContextualEtiquetaPegajosa_Click (Esquema)", [&] {
        refresco_.AnularRefresco();
        const auto e = trabajo_.elemSeleccionado;
        if (!e) return;
        if (!EtiquetaPegada(*e)) DespegaDelUsuario(*e);
        anfitrion_.ElementoModificado(e);
        Preparado();
    });
}

void Apariencia::DespegaDelUsuario(Elemento& e) {
    if (SeTrataComoSimbolo(e.Tipo())) {
        e.EtiquetaMovida(false);
        const PuntoXY etiqueta = EtiquetaDelSimbolo();
        e.EtiquetaPosX(etiqueta.X);
        e.EtiquetaPosY(etiqueta.Y);
        return;
    }
    PonEnLaMitad(panel_, AjustesDe(trabajo_, documento_, vista_), e);
    e.EtiquetaMovida(false);
}

void Apariencia::menuContextualEtiquetaTamanyoRelativo_Click() {
    Orden(". ErrmenuContextualEtiquetaTamanyoRelativo_Click (Esquema)", [&] {
        const auto e = trabajo_.elemSeleccionado;
        if (!e) return;
        e->EtiquetaTamanyoRelativo(!e->EtiquetaTamanyoRelativo());
        vista_.CalculaRegionActiva(panel_, false);
        documento_.bHabidoCambios = true;
        refresco_.PedirRefresco();
        anfitrion_.ElementoModificado(e);
    });
}

// Nothing when the user has given no number; else the nearest within the bounds.
std::optional<double> Apariencia::PreguntaParaTodos(std::int32_t mensaje, double minimo, double maximo) {
    refresco_.AnularRefresco();
    const auto respuesta = dialogos().InputBox(std::string(TextoMensajeODesconocido(mensaje)), {}, {});
    trabajo_.ExigeVisor();
    const auto v = respuesta ? NumeroDeUsuario(*respuesta) : std::nullopt;
    if (!v) return std::nullopt;
    return std::clamp(*v, minimo, maximo) / TANTO_POR_CIENTO;
}

void Apariencia::menuVisorModifElems_Click() {
    Orden(". ErrmenuVisorModifElems_Click (Esquema)", [&] {
        const auto v = PreguntaParaTodos(PREGUNTA_TAMANYO, SIMBOLO_MINIMO, SIMBOLO_MAXIMO);
        if (!v) return;
        for (const auto& e : *documento_.colElementos) {
            if (!TieneSimbolo(e->Tipo())) continue;
            PonTamanyo(e, static_cast<float>(*v));
        }
        vista_.CalculaRegionActiva(panel_, false);
        Preparado();
    });
}

void Apariencia::menuVisorModifFtes_Click() {
    Orden(". ErrmenuVisorModifFtes_Click (Esquema)", [&] {
        const auto v = PreguntaParaTodos(PREGUNTA_ETIQUETA, FUENTE_MINIMA, FUENTE_MAXIMA);
        if (!v) return;
        for (const auto& e : *documento_.colElementos)
            e->EtiquetaTamanyo(static_cast<float>(e->EtiquetaTamanyo() * *v));
        vista_.CalculaRegionActiva(panel_, false);
        Preparado();
    });
}

}  // namespace zel
