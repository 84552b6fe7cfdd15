#include "editing/Seleccion.h"

#include "drawing/Busqueda.h"
#include "drawing/Cursores.h"
#include "model/Mensajes.h"

namespace zel {

namespace {

constexpr std::int32_t ARRASTRE_EL_ELEMENTO = 5226;

}  // namespace

Seleccion::Seleccion(Superficie& panel, Trabajo& trabajo, Pintado& pintado, Localizador& localizador,
                     MaquinaEstados& estados, GestosDeSubsistema& subsistema, Anfitrion& anfitrion)
    : panel_(panel),
      trabajo_(trabajo),
      pintado_(pintado),
      localizador_(localizador),
      estados_(estados),
      subsistema_(subsistema),
      anfitrion_(anfitrion),
      invitacion_(TextoMensajeODesconocido(ARRASTRE_EL_ELEMENTO)) {}

void Seleccion::Deselecciona() {
    pintado_.DesSombreaElemeSelecc(trabajo_.elemSeleccionado);
    trabajo_.elemSeleccionado.reset();
}

void Seleccion::DejaSinSeleccion() {
    Deselecciona();
    trabajo_.bElementoYaSeleccionado = false;
    estados_.PromptDePreparado();
}

void Seleccion::Pulsa(float X, float Y) {
    prensa_ = {X, Y};
    trabajo_.bPrensaArrastra = true;
    const auto hallado = localizador_.BuscaElemento(X, Y);
    pulsado_ = hallado;
    partePulsada_ = trabajo_.iParteEncontrada;
    bCuerpoPulsado_ = trabajo_.bCuerpoElemento;
    if (!hallado) {
        DejaSinSeleccion();
        return;
    }
    trabajo_.bBotonPulsadoSobreElemento = true;
    const bool esOtro = hallado != trabajo_.elemSeleccionado;
    if (esOtro) trabajo_.bElementoYaSeleccionado = false;
    Toma(hallado);
    if (esOtro) estados_.PromptDePreparado();
    anfitrion_.ElementoSeleccionado(hallado->gfCodSIG());
}

void Seleccion::Toma(const std::shared_ptr<Elemento>& elem) {
    Deselecciona();
    trabajo_.elemSeleccionado = elem;
    trabajo_.recienCreado.reset();
    pintado_.SombreaElemento(elem);
}

void Seleccion::EmpiezaArrastre(float X, float Y) {
    if (!trabajo_.bPrensaArrastra) return;
    if (!trabajo_.bBotonPulsadoSobreElemento) {
        trabajo_.bPrensaArrastra = false;
        subsistema_.EmpiezaRecuadro(X, Y);
        return;
    }
    const auto& elem = trabajo_.elemSeleccionado;
    // In the meantime the host may have selected another one.
    if (!trabajo_.bElementoYaSeleccionado || !bCuerpoPulsado_ || !elem || elem != pulsado_.lock()) return;
    trabajo_.bPrensaArrastra = false;
    if (partePulsada_ == PARTE_SIMBOLO) {
        estados_.Estado(E_ARRASTRAR_ELEMENTO, 1);
    } else if (partePulsada_ == PARTE_ETIQUETA) {
        trabajo_.puntoReferencia = std::make_shared<Punto>(prensa_.X, prensa_.Y);
        estados_.Estado(E_ARRASTRAR_ETIQUETA, 1);
    }
    // Drawn where it is, for the first movement to erase.
    if (Pintado::TieneContornos(trabajo_.iEstado)) pintado_.AlternaContorno();
}

bool Seleccion::SePuedeArrastrar(const std::shared_ptr<Elemento>& elem) const noexcept {
    const bool porAhi =
        trabajo_.iParteEncontrada == PARTE_SIMBOLO || trabajo_.iParteEncontrada == PARTE_ETIQUETA;
    return elem && elem == trabajo_.elemSeleccionado && porAhi && TieneSimbolo(elem->Tipo());
}

// Elsewhere the state's prompt comes back; a text that the host has put there meanwhile stays.
void Seleccion::Sobrevuela(float X, float Y) {
    const bool arrastrable = SePuedeArrastrar(localizador_.BuscaElemento(X, Y));
    Cursor_Raton(panel_, arrastrable ? CURSOR_ARRASTRE : CURSOR_NORMAL, trabajo_.iTipoHerramienta,
                 trabajo_.iEstado);
    if (arrastrable)
        anfitrion_.TextoEstado(1, trabajo_.sTextoSeleccion() + " " + invitacion_);
    else if (invitando_)
        estados_.PromptDePreparado();
    invitando_ = arrastrable;
}

void Seleccion::Suelta() noexcept {
    trabajo_.bElementoYaSeleccionado = trabajo_.elemSeleccionado != nullptr;
}

}  // namespace zel
