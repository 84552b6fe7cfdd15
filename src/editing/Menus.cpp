#include "editing/Menus.h"

namespace zel {

namespace {

using enum ItemDeMenu;
using enum ClaseDeItem;

// A trace has points to be moved between its two ends.
bool TienePuntosInteriores(const std::shared_ptr<Puntos>& trazado) noexcept {
    return trazado && trazado->Count() >= 3;
}

bool SePuedenMoverPuntos(const Elemento& e) noexcept {
    if (!EsLineal(e.Tipo())) return false;
    return TienePuntosInteriores(e.Trazado()) ||
           (e.Tipo() == ctCentralHidroelectrica && TienePuntosInteriores(e.Trazado2()));
}

void PonVisor(AspectoDelMenu& menu, const SituacionDelMenu& s) {
    menu[menuVisorMostrarLineasOcultas].marcado = s.bMostrarLineasOcultas;
    menu[menuVisorNoEtiquetas].marcado = !s.bMostrarEtiquetas;
    menu[menuVisorQuitarImagen].visible = s.bHayImagenFondo || s.bImagenSinMostrar;
    menu[menuVisorImagen].texto = s.bHayImagenFondo ? "Editar imagen de fondo" : "Agregar imagen de fondo";
}

void PonElemento(AspectoDelMenu& menu, const Elemento& e) {
    const bool conSimbolo = SeTrataComoSimbolo(e.Tipo());
    menu[menuContextualEditarElemento].texto = "Editar " + e.Nombre();
    menu[menuContextualColorIcono].visible = conSimbolo;
    menu[menuContextualColorLinea].visible = EsLineal(e.Tipo());
    menu[menuContextualTamanyo].texto = conSimbolo ? "Tamaño" : "Grosor de línea";
    menu[menuContextualNodosConduccion].visible = SePuedenMoverPuntos(e);
    menu[menuContextualMostrarEtiqueta].marcado = e.MostrarEtiqueta();
    menu[menuContextualEtiquetaPegajosa].marcado = EtiquetaPegada(e);
    menu[menuContextualEtiquetaTamanyoRelativo].marcado = e.EtiquetaTamanyoRelativo();
    for (const ItemDeMenu item : {menuContextualTamanyoEtiqueta, menuContextualEtiquetaPegajosa,
                                  menuContextualEtiquetaTamanyoRelativo}) {
        menu[item].visible = e.MostrarEtiqueta();
    }
}

}  // namespace

const std::array<FilaDeMenu, NUMERO_DE_ITEMS>& FilasDeMenu() noexcept {
#define FILA(ITEM, PADRE, CLASE, TEXTO) \
    { ITEM, PADRE, CLASE, #ITEM, TEXTO }
    // clang-format off
    static constexpr std::array<FilaDeMenu, NUMERO_DE_ITEMS> FILAS = {{
        FILA(menuContextual, menuContextual, Submenu, "Menu Contextual"),
        FILA(menuContextualSalirSeleccion, menuContextual, Orden, "Volver a esquema general"),
        FILA(menuContextualSeleccionExportar, menuContextual, Orden, "Exportar seleccion"),
        FILA(menuContextualEditarElemento, menuContextual, Orden, "Editar datos de elemento"),
        FILA(menuAdjuntarArchivo, menuContextual, Submenu, "Documento relacionado"),
        FILA(menuAdjuntar, menuAdjuntarArchivo, Orden, "Adjuntar..."),
        FILA(menuAdjuntarVer, menuAdjuntarArchivo, Orden, "Ver..."),
        FILA(menuContextualColores, menuContextual, Submenu, "Colores"),
        FILA(menuContextualColorIcono, menuContextualColores, Orden, "Color del icono"),
        FILA(menuContextualColorLinea, menuContextualColores, Orden, "Color del trazado"),
        FILA(menuColoresSeparador, menuContextualColores, Separador, ""),
        FILA(menuContextualTamanyo, menuContextual, Orden, "Tamaño"),
        FILA(menuContextualNodosConduccion, menuContextual, Orden, "Mover nodos de la conducción"),
        FILA(menuContextualMoverElemento, menuContextual, Orden, "Mover Elemento"),
        FILA(menuContextualEtiqueta, menuContextual, Submenu, "Etiqueta"),
        FILA(menuContextualMostrarEtiqueta, menuContextualEtiqueta, Marca, "Mostrar etiqueta"),
        FILA(menuContextualMoverEtiqueta, menuContextualEtiqueta, Orden, "Mover Etiqueta"),
        FILA(menuContextualTamanyoEtiqueta, menuContextualEtiqueta, Orden, "Tamaño Etiqueta"),
        FILA(menuContextualEtiquetaPegajosa, menuContextualEtiqueta, Marca, "Pegar etiqueta a elemento"),
        FILA(menuContextualEtiquetaTamanyoRelativo, menuContextualEtiqueta, Marca, "Tamaño en base al del elemento"),
        FILA(menuContextualEtiquetaSeparador, menuContextualEtiqueta, Separador, ""),
        FILA(menuContextualSeparador, menuContextual, Separador, ""),
        FILA(menuVisor, menuContextual, Submenu, "Menu General de Visor"),
        FILA(menuVisorSubSistema, menuVisor, Orden, "Seleccionar un subsistema"),
        FILA(menuVisorImagen, menuVisor, Orden, "Editar imagen de fondo"),
        FILA(menuVisorQuitarImagen, menuVisor, Orden, "Quitar imagen de fondo"),
        FILA(menuVisorNoEtiquetas, menuVisor, Marca, "No mostrar etiquetas"),
        FILA(menuVisorMostrarLineasOcultas, menuVisor, Marca, "Mostrar lineas ocultas"),
        FILA(menuVisorModif, menuVisor, Submenu, "Modificar aspecto"),
        FILA(menuVisorModifFtes, menuVisorModif, Orden, "Tamaño fuentes"),
        FILA(menuVisorModifElems, menuVisorModif, Orden, "Tamaño elementos"),
    }};
    // clang-format on
#undef FILA
    static_assert([] {
        for (std::size_t i = 0; i < NUMERO_DE_ITEMS; ++i) {
            if (static_cast<std::size_t>(FILAS[i].item) != i || FILAS[i].padre > FILAS[i].item) return false;
        }
        return true;
    }());
    return FILAS;
}

AspectoDelMenu AspectoDelMenuEn(const SituacionDelMenu& situacion) {
    AspectoDelMenu menu;
    for (const FilaDeMenu& fila : FilasDeMenu())
        menu[fila.item].texto = fila.texto;
    PonVisor(menu, situacion);
    menu[menuContextualSeleccionExportar].visible = situacion.bSubsistema;
    menu[menuContextualSalirSeleccion].visible = situacion.bSubsistema;
    const Elemento* const e = situacion.bSubsistema ? nullptr : situacion.elemSeleccionado;
    for (const ItemDeMenu item :
         {menuContextualSeparador, menuContextualEditarElemento, menuAdjuntarArchivo, menuContextualColores,
          menuContextualNodosConduccion, menuContextualTamanyo, menuContextualEtiqueta}) {
        menu[item].visible = e != nullptr;
    }
    if (e) PonElemento(menu, *e);
    // Elements and labels are moved by dragging them.
    menu[menuContextualMoverElemento].visible = false;
    menu[menuContextualMoverEtiqueta].visible = false;
    return menu;
}

bool EtiquetaPegada(const Elemento& e) noexcept {
    return !SeTrataComoSimbolo(e.Tipo()) && !e.EtiquetaMovida();
}

}  // namespace zel
