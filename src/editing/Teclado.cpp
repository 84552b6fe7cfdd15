#include "editing/Teclado.h"

#include <algorithm>
#include <iterator>
#include <limits>
#include <string>
#include <string_view>
#include <utility>

#include "model/modErrorHandling.h"
#include "platform/Dialogos.h"
#include "platform/Numeros.h"

namespace zel {

namespace {

// Key codes; letters and digits are their own capital ASCII codes.
enum Tecla : std::int16_t {
    CUALQUIERA = -1,
    RETROCESO = 8,
    CTRL = 17,
    ESCAPE = 27,
    RE_PAG = 33,
    AV_PAG = 34,
    IZQUIERDA = 37,
    ARRIBA = 38,
    DERECHA = 39,
    ABAJO = 40,
    SUPRIMIR = 46,
    NUMERICO_1 = 97,
    NUMERICO_5 = 101,
    NUMERICO_MAS = 107,
    NUMERICO_MENOS = 109,
    F10 = 121,
    F11 = 122,
    F12 = 123,
};

constexpr std::int16_t CON_CTRL = 2;

constexpr auto ConMayus = [](std::int16_t Shift) { return Shift == 1; };
constexpr auto ConAlt = [](std::int16_t Shift) { return Shift == 4; };
constexpr auto SinCtrl = [](std::int16_t Shift) { return (Shift & CON_CTRL) == 0; };
constexpr auto Sola = [](std::int16_t Shift) { return Shift == 0; };
constexpr auto ComoSea = [](std::int16_t) { return true; };

constexpr auto Siempre = [](std::int32_t) { return true; };
constexpr auto EnPreparado = [](std::int32_t iEstado) { return iEstado == E_PREPARADO; };
constexpr auto EnUnoAUno = [](std::int32_t iEstado) { return iEstado == E_UNO_A_UNO; };
constexpr auto Trazando = [](std::int32_t iEstado) { return iEstado == E_DIBUJANDO_CONDUCCION; };
constexpr auto SinLazo = [](std::int32_t iEstado) { return iEstado != E_LAZO; };
constexpr auto SinTrazarNiEscoger = [](std::int32_t iEstado) {
    return iEstado != E_DIBUJANDO_CONDUCCION && iEstado != E_RECUADRO &&
           (iEstado < E_ESPERAR_SUBSISTEMA || iEstado > E_SUBSISTEMA);
};

constexpr std::pair<std::int16_t, std::string_view> CLAVES[] = {
    {'E', "embalse"},     {'N', "nudo"},        {'A', "acuifero"},    {'D', "demanda"},
    {'C', "centralHE"},   {'R', "recarga"},     {'B', "bombeo"},      {'T', "toma"},
    {'1', "conduccion1"}, {'2', "conduccion2"}, {'3', "conduccion3"}, {'4', "conduccion4"},
    {'5', "conduccion5"},
};

// Nothing for what is no code: of no number, with decimals, below 1 or beyond 32 bits.
std::optional<std::int32_t> CodigoTecleado(const std::string& texto) try {
    const std::optional<double> numero = NumeroDeUsuario(texto);
    if (!numero || *numero != RedondeaPar(*numero) || *numero < 1) return std::nullopt;
    return Entero32(*numero);
} catch (const Fallo&) {
    return std::nullopt;
}

}  // namespace

struct Teclado::Fila {
    std::int16_t tecla;
    bool (*con)(std::int16_t Shift);
    bool (*en)(std::int32_t iEstado);
    void (Teclado::*haz)(std::int16_t KeyCode);
};

// The first one that fits is the one that acts.
const Teclado::Fila Teclado::FILAS[] = {
    {F12, ConAlt, Siempre, &Teclado::AlternaDepuracion},
    {F10, ConAlt, Siempre, &Teclado::PideLineaSecundaria},
    {F11, ConAlt, Siempre, &Teclado::PideLineaSecundaria},
    {'Z', ConMayus, Siempre, &Teclado::EmpiezaRecuadroDeZoom},
    {'M', Sola, Siempre, &Teclado::TomaLaMano},
    {CUALQUIERA, ComoSea, EnUnoAUno, &Teclado::TerminaUnoAUno},
    {RETROCESO, ComoSea, Trazando, &Teclado::Retrocede},
    {ESCAPE, ComoSea, Siempre, &Teclado::Escapa},
    {SUPRIMIR, ComoSea, EnPreparado, &Teclado::Borra},
    {AV_PAG, Sola, EnPreparado, &Teclado::PasaPagina},
    {RE_PAG, Sola, EnPreparado, &Teclado::PasaPagina},
    {AV_PAG, ConMayus, EnPreparado, &Teclado::SigueElFlujo},
    {RE_PAG, ConMayus, EnPreparado, &Teclado::SigueElFlujo},
    {'Z', SinCtrl, SinLazo, &Teclado::MuestraTodo},
    {NUMERICO_MAS, ComoSea, SinLazo, &Teclado::Acerca},
    {NUMERICO_MENOS, ComoSea, SinLazo, &Teclado::Aleja},
    {IZQUIERDA, Sola, Siempre, &Teclado::Desplaza},
    {DERECHA, Sola, Siempre, &Teclado::Desplaza},
    {ARRIBA, Sola, Siempre, &Teclado::Desplaza},
    {ABAJO, Sola, Siempre, &Teclado::Desplaza},
    {'C', Sola, SinTrazarNiEscoger, &Teclado::CentraElemento},
    {CUALQUIERA, ConMayus, Siempre, &Teclado::ArmaTipo},
};

Teclado::Teclado(Superficie& panel, Documento& documento, Trabajo& trabajo, Refresco& refresco, Vista& vista,
                 Desplazamiento& desplazamiento, Creacion& creacion, SeleccionConTeclas& seleccion,
                 MaquinaEstados& estados, Anfitrion& anfitrion) noexcept
    : panel_(panel),
      documento_(documento),
      trabajo_(trabajo),
      refresco_(refresco),
      vista_(vista),
      desplazamiento_(desplazamiento),
      creacion_(creacion),
      seleccion_(seleccion),
      estados_(estados),
      anfitrion_(anfitrion) {}

void Teclado::Panel_KeyDown(std::int16_t& KeyCode, std::int16_t& Shift) try {
    refresco_.AnularRefresco();
    const bool puede = trabajo_.iEstado == E_PREPARADO || trabajo_.iEstado == E_SUBSISTEMA;
    if (KeyCode == CTRL && Shift == CON_CTRL && puede) {
        antesDeCtrl_ = EnMano{trabajo_.iEstado, trabajo_.elemSeleccionado, trabajo_.elemSubsistema,
                              trabajo_.curvaSeleccion};
        estados_.Estado(E_UNO_A_UNO, 1);
    }
    refresco_.RefrescarSiPendiente();
} catch (...) {
    LanzaErrorVisor(trabajo_.iEstado, ". ErrPanel_KeyDown (Esquema)");
}

void Teclado::Panel_KeyUp(std::int16_t& KeyCode, std::int16_t& Shift) try {
    refresco_.AnularRefresco();
    const auto* fila = std::find_if(std::begin(FILAS), std::end(FILAS), [&](const Fila& f) {
        return (f.tecla == KeyCode || f.tecla == CUALQUIERA) && f.con(Shift) && f.en(trabajo_.iEstado);
    });
    if (fila != std::end(FILAS)) (this->*fila->haz)(KeyCode);
    refresco_.RefrescarSiPendiente();
} catch (...) {
    LanzaErrorVisor(trabajo_.iEstado, ". ErrPanel_KeyUp (Esquema)");
}

// Entering the state anew from itself drops and recomputes nothing.
void Teclado::OtraEntrada() {
    const std::optional<EnMano> antes = std::exchange(antesDeCtrl_, std::nullopt);
    if (!antes || trabajo_.iEstado != E_UNO_A_UNO) return;
    trabajo_.iEstado = antes->iEstado;
    trabajo_.elemSeleccionado.reset();
    if (documento_.colElementos->Contiene(antes->elemSeleccionado.get())) {
        trabajo_.elemSeleccionado = antes->elemSeleccionado;
    }
    trabajo_.elemSubsistema = antes->elemSubsistema;
    trabajo_.curvaSeleccion = antes->curvaSeleccion;
    estados_.Estado(antes->iEstado, 1);
    refresco_.RefrescarSiPendiente();
}

void Teclado::SinTeclado() {
    if (trabajo_.iEstado != E_UNO_A_UNO) return;
    TerminaUnoAUno(CTRL);
    refresco_.RefrescarSiPendiente();
}

void Teclado::AlternaDepuracion(std::int16_t) {
    trabajo_.bDepurarEstado = !trabajo_.bDepurarEstado;
    anfitrion_.TextoEstado(1, trabajo_.bDepurarEstado ? "DEPURANDO" : "FIN DEPURACIÓN");
}

void Teclado::Avisa(const char* texto) {
    dialogos().MsgBox(texto);
    trabajo_.ExigeVisor();
    refresco_.RefrescarSiPendiente();
}

void Teclado::PideLineaSecundaria(std::int16_t KeyCode) {
    estados_.Estado(E_PREPARADO, 1);
    const std::shared_ptr<Elemento> elem = trabajo_.elemSeleccionado;
    if (!elem) {
        Avisa("Seleccione un elemento para especificar su conexión secundaria");
        return;
    }
    const auto respuesta = dialogos().InputBox(
        "Introduzca el gfCodSIG del elemento con el que desea establecer una línea secundaria:",
        "CUADRO DE DIÁLOGO PARA DEPURACIÓN DE LÍNEAS SECUNDARIAS", {});
    trabajo_.ExigeVisor();
    // The question was about this one.
    if (trabajo_.elemSeleccionado != elem || !documento_.colElementos->Contiene(elem.get())) return;
    const auto codigo = CodigoTecleado(respuesta.value_or(""));
    if (!codigo) {
        Avisa("Valor incorrecto");
    } else if (*codigo == elem->gfCodSIG()) {
        Avisa("No me conectes conmigo mismo");
    } else if (!documento_.colElementos->ItemCodSIG(*codigo)) {
        Avisa("No encuentro ese codigo en mi colección");
    } else {
        if (KeyCode == F10)
            elem->ConecSec1(*codigo);
        else
            elem->ConecSec2(*codigo);
        documento_.bHabidoCambios = true;
        refresco_.PedirRefresco();
    }
}

void Teclado::EmpiezaRecuadroDeZoom(std::int16_t) {
    estados_.Estado(E_RECUADRO_ZOOM, 1);
}

void Teclado::TomaLaMano(std::int16_t) {
    estados_.Estado(E_MANO, 1);
}

void Teclado::TerminaUnoAUno(std::int16_t) {
    antesDeCtrl_.reset();
    estados_.Estado(E_SUBSISTEMA, 1);
}

void Teclado::Retrocede(std::int16_t) {
    creacion_.Retrocede();
}

void Teclado::Escapa(std::int16_t) {
    switch (trabajo_.iEstado) {
        case E_ZOOM:
            estados_.Estado(E_VOLVER, 1);
            break;
        case E_RECUADRO_ZOOM:
        case E_MANO:
            estados_.Vuelve();
            break;
        case E_DIBUJANDO_CONDUCCION:
            estados_.Estado(E_DIBUJANDO, 1);
            break;
        case E_MOVER_PUNTO:
            estados_.Estado(E_ESCOGER_PUNTO, 1);
            break;
        case E_PREPARADO:
            trabajo_.elemSeleccionado.reset();
            trabajo_.bElementoYaSeleccionado = false;
            estados_.PromptDePreparado();
            break;
        case E_DIBUJANDO:
        case E_MOVER_ELEMENTO:
        case E_MOVER_ETIQUETA:
        case E_ESCOGER_PUNTO:
        case E_ESPERAR_SUBSISTEMA:
        case E_LAZO:
        case E_SUBSISTEMA:
        case E_ARRASTRAR_ELEMENTO:
        case E_PRUEBAS:
            estados_.Estado(E_PREPARADO, 1);
            break;
        default:
            break;
    }
    refresco_.PedirRefresco();
}

void Teclado::Borra(std::int16_t) {
    anfitrion_.HazClic(Barra::Vista, "borrar");
    refresco_.PedirRefresco();
}

void Teclado::PasaPagina(std::int16_t KeyCode) {
    seleccion_.Pasa(KeyCode == AV_PAG);
}

void Teclado::SigueElFlujo(std::int16_t KeyCode) {
    seleccion_.SigueElFlujo(KeyCode == AV_PAG);
}

void Teclado::MuestraTodo(std::int16_t) {
    vista_.AjustarImagen(panel_, 2);
}

void Teclado::Acerca(std::int16_t) {
    vista_.AjustarZoomUsuario(panel_, vista_.Zoom() / 2, true, true, 2);
}

void Teclado::Aleja(std::int16_t) {
    vista_.AjustarZoomUsuario(panel_, vista_.Zoom() * 2, true, true, 2);
}

void Teclado::Desplaza(std::int16_t KeyCode) {
    vista_.bVistaActualizada(false);
    const bool haciaMax = KeyCode == DERECHA || KeyCode == ABAJO;
    if (KeyCode == IZQUIERDA || KeyCode == DERECHA)
        desplazamiento_.HScroll_MedioPaso(haciaMax);
    else
        desplazamiento_.VScroll_MedioPaso(haciaMax);
}

void Teclado::CentraElemento(std::int16_t) {
    anfitrion_.HazClic(Barra::Vista, "centrarElemento");
}

void Teclado::ArmaTipo(std::int16_t KeyCode) {
    const bool numerico = KeyCode >= NUMERICO_1 && KeyCode <= NUMERICO_5;
    const int tecla = numerico ? KeyCode - NUMERICO_1 + '1' : KeyCode;
    for (const auto& [letra, clave] : CLAVES) {
        if (letra == tecla) anfitrion_.HazClic(Barra::Elementos, clave);
    }
}

}  // namespace zel
