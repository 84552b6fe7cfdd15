#include "editing/ComandosDeMenu.h"

#include <filesystem>

#include "editing/OrdenDeMenu.h"
#include "platform/Dialogos.h"

namespace zel {

ComandosDeMenu::ComandosDeMenu(Superficie& panel, Documento& documento, Trabajo& trabajo, Refresco& refresco,
                               Vista& vista, MaquinaEstados& estados, Anfitrion& anfitrion,
                               DialogoComun& dialogo, Exporta exporta)
    : panel_(panel),
      documento_(documento),
      trabajo_(trabajo),
      refresco_(refresco),
      vista_(vista),
      estados_(estados),
      anfitrion_(anfitrion),
      dialogo_(dialogo),
      exporta_(std::move(exporta)) {}

template <typename Accion>
void ComandosDeMenu::Orden(const char* sufijo, Accion accion) {
    OrdenDeMenu(trabajo_, refresco_, sufijo, accion);
}

void ComandosDeMenu::AlAnfitrion(void (Anfitrion::*evento)(std::int32_t)) {
    if (trabajo_.elemSeleccionado) (anfitrion_.*evento)(trabajo_.elemSeleccionado->gfCodSIG());
}

void ComandosDeMenu::menuAdjuntar_Click() {
    Orden(". ErrmenuAdjuntar_Click (Esquema)", [&] { AlAnfitrion(&Anfitrion::AdjuntarArchivo); });
}

void ComandosDeMenu::menuAdjuntarVer_Click() {
    Orden(". ErrmenuAdjuntarVer_Click (Esquema)", [&] { AlAnfitrion(&Anfitrion::AdjuntarVer); });
}

void ComandosDeMenu::menuContextualEditarElemento_Click() {
    Orden(". ErrmenuContextualEditarElemento_Click (Esquema)", [&] {
        if (EmpiezaConElemento(E_PREPARADO)) AlAnfitrion(&Anfitrion::EditarElemento);
    });
}

bool ComandosDeMenu::EmpiezaConElemento(std::int32_t estado) {
    refresco_.AnularRefresco();
    if (!trabajo_.elemSeleccionado) return false;
    estados_.Estado(estado, 1);
    return true;
}

void ComandosDeMenu::menuContextualNodosConduccion_Click() {
    Orden(". ErrmenuContextualNodosConduccion_Click (Esquema)", [&] { EmpiezaConElemento(E_ESCOGER_PUNTO); });
}

void ComandosDeMenu::menuContextualMoverElemento_Click() {
    Orden(". ErrmenuContextualMoverElemento_Click (Esquema)", [&] {
        if (EmpiezaConElemento(E_MOVER_ELEMENTO)) documento_.bHabidoCambios = true;
    });
}

void ComandosDeMenu::menuContextualMoverEtiqueta_Click() {
    Orden(". ErrmenuContextualMoverEtiqueta_Click (Esquema)", [&] {
        if (EmpiezaConElemento(E_MOVER_ETIQUETA)) documento_.bHabidoCambios = true;
    });
}

void ComandosDeMenu::menuVisorSubSistema_Click() {
    Orden(". ErrmenuVisorSubSistema_Click (Esquema)", [&] {
        refresco_.AnularRefresco();
        estados_.Estado(E_ESPERAR_SUBSISTEMA, 1);
    });
}

void ComandosDeMenu::menuContextualSalirSeleccion_Click() {
    Orden(". ErrmenuContextualSalirSeleccion_Click (Esquema)", [&] { estados_.Estado(E_PREPARADO, 1); });
}

void ComandosDeMenu::menuContextualSeleccionExportar_Click() {
    Orden(". ErrmenuContextualSeleccionExportar_Click (Esquema)", [&] {
        if (trabajo_.iEstado != E_SUBSISTEMA) return;
        const std::string ruta = ArchivoElegido();
        // The host may have ended the selection while the dialog was open.
        if (ruta.empty() || trabajo_.iEstado != E_SUBSISTEMA || !trabajo_.elemSubsistema) return;
        try {
            exporta_(ruta, trabajo_.elemSubsistema);
        } catch (const Fallo& fallo) {
            dialogos().MsgBox("No se puede exportar la selección a \"" + ruta +
                              "\": " + CausaDe(fallo.Description()) + ". Escoja otra carpeta u otro nombre.");
            trabajo_.ExigeVisor();
        }
        refresco_.PedirRefresco();
    });
}

// A name without an ending gets that of a schematic; where that is a file's already, the dialog asks about
// it, until it has been asked about the name that counts.
std::string ComandosDeMenu::ArchivoElegido() {
    std::string propuesta;
    while (true) {
        std::string ruta = dialogo_.ShowSave(propuesta);
        trabajo_.ExigeVisor();
        if (ruta.empty() || std::filesystem::path(ruta).has_extension()) return ruta;
        ruta += ".xml";
        std::error_code error;
        if (!std::filesystem::exists(ruta, error)) return ruta;
        propuesta = ruta;
    }
}

void ComandosDeMenu::menuVisorNoEtiquetas_Click() {
    Orden(". ErrmenuVisorNoEtiquetas_Click (Esquema)", [&] {
        refresco_.AnularRefresco();
        documento_.bMostrarEtiquetas = !documento_.bMostrarEtiquetas;
        vista_.CalculaRegionActiva(panel_, false);
        estados_.Estado(E_PREPARADO, 1);
    });
}

void ComandosDeMenu::menuVisorMostrarLineasOcultas_Click() {
    Orden(". ErrmenuVisorMostrarLineasOcultas_Click (Esquema)", [&] {
        documento_.bMostrarLineasOcultas = !documento_.bMostrarLineasOcultas;
        estados_.Estado(E_PREPARADO, 1);
        documento_.bHabidoCambios = true;
    });
}

}  // namespace zel
