#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "model/Elemento.h"

namespace zel {

// The items of the context menu, in the order in which they are shown; a submenu's items come behind it.
enum class ItemDeMenu : std::uint8_t {
    menuContextual,
    menuContextualSalirSeleccion,
    menuContextualSeleccionExportar,
    menuContextualEditarElemento,
    menuAdjuntarArchivo,
    menuAdjuntar,
    menuAdjuntarVer,
    menuContextualColores,
    menuContextualColorIcono,
    menuContextualColorLinea,
    menuColoresSeparador,
    menuContextualTamanyo,
    menuContextualNodosConduccion,
    menuContextualMoverElemento,
    menuContextualEtiqueta,
    menuContextualMostrarEtiqueta,
    menuContextualMoverEtiqueta,
    menuContextualTamanyoEtiqueta,
    menuContextualEtiquetaPegajosa,
    menuContextualEtiquetaTamanyoRelativo,
    menuContextualEtiquetaSeparador,
    menuContextualSeparador,
    menuVisor,
    menuVisorSubSistema,
    menuVisorImagen,
    menuVisorQuitarImagen,
    menuVisorNoEtiquetas,
    menuVisorMostrarLineasOcultas,
    menuVisorModif,
    menuVisorModifFtes,
    menuVisorModifElems,
};

constexpr std::size_t NUMERO_DE_ITEMS = 31;

enum class ClaseDeItem : std::uint8_t { Orden, Marca, Submenu, Separador };

struct FilaDeMenu {
    ItemDeMenu item;
    ItemDeMenu padre;  // menuContextual is its own
    ClaseDeItem clase;
    std::string_view nombre;
    std::string_view texto;  // until the menu is opened
};

// By item.
const std::array<FilaDeMenu, NUMERO_DE_ITEMS>& FilasDeMenu() noexcept;

// What the menu depends on.
struct SituacionDelMenu {
    const Elemento* elemSeleccionado = nullptr;
    bool bSubsistema = false;  // one is selected
    bool bHayImagenFondo = false;
    bool bMostrarEtiquetas = true;
    bool bMostrarLineasOcultas = true;
    bool bImagenSinMostrar = false;  // the file tells of one that cannot be shown
};

// How an item looks. An item of a submenu that is not shown is not shown either, whatever it says.
struct AspectoDeItem {
    bool visible = true;
    bool marcado = false;
    std::string texto;
};

class AspectoDelMenu {
  public:
    AspectoDeItem& operator[](ItemDeMenu item) noexcept { return items_[static_cast<std::size_t>(item)]; }
    const AspectoDeItem& operator[](ItemDeMenu item) const noexcept {
        return items_[static_cast<std::size_t>(item)];
    }

  private:
    std::array<AspectoDeItem, NUMERO_DE_ITEMS> items_;
};

AspectoDelMenu AspectoDelMenuEn(const SituacionDelMenu& situacion);

// The label follows the middle of its line by itself, as the user has not moved it. Never so for a symbol's.
bool EtiquetaPegada(const Elemento& e) noexcept;

}  // namespace zel
