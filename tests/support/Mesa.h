#pragma once

#include <string>
#include <vector>

#include "session/Pintado.h"
#include "support/AnfitrionAnotador.h"
#include "support/BarraAnotadora.h"
#include "support/DialogosGuion.h"
#include "support/Relato.h"

namespace zel::pruebas {

// A viewer without its window: the parts of the session, wired, on a panel of 200 x 100 mm that shows the
// world from (0, 0) and that a refresh repaints. The elements' region is 0..400 x 0..200.
class Mesa : public ::testing::Test {
  protected:
    Mesa() {
        vista.Dispone(200, 100);
        refresco.AnularRefresco();
        panel.pinta = [this] { pintado.Panel_Paint(); };
    }
    void Pon(std::vector<Elemento> elementos) {
        documento.colElementos = std::make_shared<Elementos>();
        Numera(*documento.colElementos, std::move(elementos));
    }
    std::shared_ptr<Elemento> Elem(std::int32_t codigo) const {
        return documento.colElementos->ItemCodSIG(codigo);
    }
    void Selecciona(std::int32_t codigo) { trabajo.elemSeleccionado = Elem(codigo); }
    void Muestra(float left, float top, float ancho, float alto) {
        panel.ScaleLeft(left);
        panel.ScaleTop(top);
        panel.ScaleWidth(ancho);
        panel.ScaleHeight(-alto);
    }
    void Repinta() {
        refresco.PedirRefresco();
        refresco.RefrescarSiPendiente();
    }
    std::string Visible() const {
        return Cifra(panel.ScaleLeft()) + "," + Cifra(panel.ScaleTop()) + " " + Cifra(panel.ScaleWidth()) +
               "x" + Cifra(panel.ScaleHeight());
    }

    SuperficieGrabadora panel;
    Documento documento;
    Trabajo trabajo;
    Refresco refresco{panel};
    Avisos avisos{trabajo, refresco};
    AnfitrionAnotador anfitrion;
    Vista vista{panel, documento, trabajo, refresco, avisos, anfitrion};
    BarraAnotadora horizontal, vertical;
    Desplazamiento desplazamiento{panel, vista, trabajo, refresco, anfitrion, horizontal, vertical};
    Fondo fondo;
    std::function<Fondo()> alPedirFondo = [this] { return fondo; };
    Pintado pintado{
        panel, documento, trabajo, refresco, vista, desplazamiento, [this] { return alPedirFondo(); }};
    DialogosGuion guion;
};

}  // namespace zel::pruebas
