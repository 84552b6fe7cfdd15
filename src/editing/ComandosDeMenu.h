#pragma once

#include <functional>

#include "editing/MaquinaEstados.h"
#include "platform/DialogoComun.h"

namespace zel {

// The menu's commands that change no element: those that the host carries out, those that begin a gesture,
// the subsystem's, and what the view shows. Without the selection that a command needs it does nothing.
class ComandosDeMenu {
  public:
    // Writes those elements to a file of that name, in one step; raises when it cannot.
    using Exporta = std::function<void(const std::string& ruta, const std::shared_ptr<Elementos>& elementos)>;

    ComandosDeMenu(Superficie& panel, Documento& documento, Trabajo& trabajo, Refresco& refresco,
                   Vista& vista, MaquinaEstados& estados, Anfitrion& anfitrion, DialogoComun& dialogo,
                   Exporta exporta);

    void menuAdjuntar_Click();
    void menuAdjuntarVer_Click();
    void menuContextualEditarElemento_Click();

    void menuContextualNodosConduccion_Click();
    void menuContextualMoverElemento_Click();
    void menuContextualMoverEtiqueta_Click();
    void menuVisorSubSistema_Click();

    void menuContextualSalirSeleccion_Click();
    // Asks for a file and writes the selected subsystem to it, which stays selected.
    void menuContextualSeleccionExportar_Click();

    void menuVisorNoEtiquetas_Click();
    void menuVisorMostrarLineasOcultas_Click();

  private:
    template <typename Accion>
    void Orden(const char* sufijo, Accion accion);
    void AlAnfitrion(void (Anfitrion::*evento)(std::int32_t));
    std::string ArchivoElegido();
    bool EmpiezaConElemento(std::int32_t estado);

    Superficie& panel_;
    Documento& documento_;
    Trabajo& trabajo_;
    Refresco& refresco_;
    Vista& vista_;
    MaquinaEstados& estados_;
    Anfitrion& anfitrion_;
    DialogoComun& dialogo_;
    Exporta exporta_;
};

}  // namespace zel
