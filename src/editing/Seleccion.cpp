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
    trabajo_.sTextoSeleccion.clear();
}

void Seleccion::Pulsa(float X, float Y) {
    prensa_ = {X, Y};
    trabajo_.bPrensaArrastra = true;
    const auto hallado = localizador_.BuscaElemento(X, Y);
    if (!hallado) {
        DejaSinSeleccion();
        return;
    }
    trabajo_.bBotonPulsadoSobreElemento = true;
    if (hallado != trabajo_.elemSeleccionado) trabajo_.bElementoYaSeleccionado = false;
    Deselecciona();
    trabajo_.elemSeleccionado = hallado;
    pintado_.SombreaElemento(hallado);
    trabajo_.sTextoSeleccion = "[" + std::to_string(hallado->gfCodSIG()) + "] " + hallado->Nombre();
    anfitrion_.ElementoSeleccionado(hallado->gfCodSIG());
}

void Seleccion::EmpiezaArrastre(float X, float Y) {
    if (!trabajo_.bPrensaArrastra) return;
    if (!trabajo_.bBotonPulsadoSobreElemento) {
        trabajo_.bPrensaArrastra = false;
        subsistema_.EmpiezaRecuadro(X, Y);
        return;
    }
    if (!trabajo_.bElementoYaSeleccionado || !trabajo_.bCuerpoElemento || !trabajo_.elemSeleccionado) return;
    trabajo_.bPrensaArrastra = false;
    if (trabajo_.iParteEncontrada == PARTE_SIMBOLO) {
        estados_.Estado(E_ARRASTRAR_ELEMENTO, 1);
    } else if (trabajo_.iParteEncontrada == PARTE_ETIQUETA) {
        trabajo_.puntoReferencia = std::make_shared<Punto>(prensa_.X, prensa_.Y);
        estados_.Estado(E_ARRASTRAR_ETIQUETA, 1);
    }
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
        anfitrion_.TextoEstado(1, trabajo_.sTextoSeleccion + " " + invitacion_);
    else if (invitando_)
        estados_.PromptDePreparado();
    invitando_ = arrastrable;
}

void Seleccion::Suelta() noexcept {
    trabajo_.bElementoYaSeleccionado = trabajo_.elemSeleccionado != nullptr;
}

}  // namespace zel
