#include "drawing/Cursores.h"

#include "model/modErrorHandling.h"

namespace zel {

namespace {

constexpr std::int32_t CURSOR_CONDUCCION = 2;
constexpr std::int32_t CURSOR_CRUZ_DE_LINEAL = 5;
constexpr std::int32_t IMAGEN_CONDUCCION = 201;
constexpr std::int32_t IMAGEN_PRIMER_TIPO = 100;

std::int32_t CursorDelTipo(TipoElemento tipo) noexcept {
    if (!TipoConocido(tipo)) return CURSOR_NORMAL;
    return TieneSimbolo(tipo) ? IMAGEN_PRIMER_TIPO + tipo : CURSOR_CONDUCCION;
}

}  // namespace

void Cursor_Raton(Superficie& panel, std::int32_t id, TipoElemento iTipoHerramienta,
                  std::int32_t iEstado) try {
    switch (id) {
        case CURSOR_DEL_TIPO:
            Cursor_Raton(panel, CursorDelTipo(iTipoHerramienta), iTipoHerramienta, iEstado);
            break;
        case CURSOR_NORMAL:
            panel.MousePointer(Superficie::PUNTERO_NORMAL);
            break;
        case CURSOR_CRUZ:
        case CURSOR_CRUZ_DE_LINEAL:
            panel.MousePointer(Superficie::PUNTERO_CRUZ);
            break;
        case CURSOR_CONDUCCION:
            panel.MousePointer(Superficie::PUNTERO_PROPIO, IMAGEN_CONDUCCION);
            break;
        default:
            panel.MousePointer(Superficie::PUNTERO_PROPIO, id);
    }
} catch (...) {
    LanzaErrorVisor(iEstado, ". Error en Cursor_Raton (Esquema)");
}

}  // namespace zel
