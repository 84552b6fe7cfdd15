#include "editing/SeleccionConTeclas.h"

#include "model/TamanyoUnidad.h"

namespace zel {

SeleccionConTeclas::SeleccionConTeclas(Superficie& panel, Documento& documento, Trabajo& trabajo,
                                       Refresco& refresco, Vista& vista, Conexiones& conexiones,
                                       MaquinaEstados& estados, Seleccion& seleccion,
                                       Anfitrion& anfitrion) noexcept
    : panel_(panel),
      documento_(documento),
      trabajo_(trabajo),
      refresco_(refresco),
      vista_(vista),
      conexiones_(conexiones),
      estados_(estados),
      seleccion_(seleccion),
      anfitrion_(anfitrion) {}

void SeleccionConTeclas::Pasa(bool adelante) {
    const Elementos& elementos = *documento_.colElementos;
    const Elemento* const desde = trabajo_.elemSeleccionado.get();
    Elige(adelante ? elementos.Siguiente(desde) : elementos.Anterior(desde));
}

void SeleccionConTeclas::SigueElFlujo(bool aguasAbajo) {
    if (const auto desde = trabajo_.elemSeleccionado) Elige(Vecino(*desde, aguasAbajo));
}

std::shared_ptr<Elemento> SeleccionConTeclas::Vecino(const Elemento& e, bool aguasAbajo) const {
    const std::int32_t codigo = e.gfCodSIG();
    const std::int32_t extremo = aguasAbajo ? e.ElemFin() : e.ElemIni();
    if (EsLineal(e.Tipo()) && extremo != codigo) return documento_.colElementos->ItemCodSIG(extremo);
    conexiones_.Ata(documento_.colElementos);
    for (const auto& lineal : conexiones_.De(codigo)) {
        if ((aguasAbajo ? lineal->ElemIni() : lineal->ElemFin()) == codigo) return lineal;
    }
    return nullptr;
}

bool SeleccionConTeclas::EstaALaVista(const Elemento& e) const noexcept {
    Marco suyo;
    suyo.Crece(e.XPos(), e.YPos(), TieneSimbolo(e.Tipo()) ? e.Tamanyo() * TamanyoUnidad() : 0);
    return Marco::Visible(panel_).Contiene(suyo);
}

void SeleccionConTeclas::Elige(const std::shared_ptr<Elemento>& elem) {
    if (!elem || elem == trabajo_.elemSeleccionado) return;
    seleccion_.Toma(elem);
    trabajo_.bElementoYaSeleccionado = true;  // as if the press had been released
    estados_.PromptDePreparado();
    if (EstaALaVista(*elem))
        refresco_.RefrescarSiPendiente();
    else
        vista_.MueveScroll(elem->XPos(), elem->YPos(), 1);
    // What a paint cannot draw it tells in a box, meanwhile the host may have taken another one.
    if (trabajo_.elemSeleccionado != elem || !documento_.colElementos->Contiene(elem.get())) return;
    anfitrion_.ElementoSeleccionado(elem->gfCodSIG());
}

}  // namespace zel
