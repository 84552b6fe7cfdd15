#include "drawing/Colores.h"

#include <array>

namespace zel {

namespace {

constexpr std::int32_t ROJO = RGB(255, 0, 0);
constexpr std::int32_t VERDE = RGB(0, 255, 0);
constexpr std::int32_t OLIVA = RGB(128, 128, 0);
constexpr std::int32_t VERDE_AZULADO = RGB(0, 128, 128);

struct ColoresDeTipo {
    std::int32_t icono;
    std::int32_t linea;
};

constexpr std::array<ColoresDeTipo, NUMERO_DE_TIPOS> COLORES = {{
    {COLOR_NEGRO, COLOR_DEL_TIPO},  // ctNudo
    {ROJO, COLOR_DEL_TIPO},         // ctEmbalse
    {VERDE, COLOR_DEL_TIPO},        // ctDemanda
    {OLIVA, COLOR_DEL_TIPO},        // ctAcuifero
    {COLOR_DEL_TIPO, COLOR_NEGRO},  // ctConduccion1
    {COLOR_DEL_TIPO, ROJO},         // ctConduccion2
    {COLOR_DEL_TIPO, VERDE},        // ctConduccion3
    {COLOR_DEL_TIPO, ROJO},         // ctConduccion4
    {COLOR_DEL_TIPO, VERDE},        // ctConduccion5
    {COLOR_DEL_TIPO, ROJO},         // ctRecarga
    {COLOR_DEL_TIPO, VERDE},        // ctBombeo
    {COLOR_DEL_TIPO, COLOR_NEGRO},  // ctToma
    {ROJO, COLOR_NEGRO},            // ctCentralHidroelectrica
    {ROJO, COLOR_NEGRO},            // ctAportacion
    {OLIVA, COLOR_NEGRO},           // ctRetorno
    {VERDE_AZULADO, COLOR_NEGRO},   // ctSubcuenca
}};

ColoresDeTipo ColoresDe(TipoElemento tipo) noexcept {
    if (!TipoConocido(tipo)) return {COLOR_DEL_TIPO, COLOR_DEL_TIPO};
    return COLORES[static_cast<std::size_t>(tipo)];
}

}  // namespace

std::int32_t ColorDeIcono(TipoElemento tipo) noexcept {
    return ColoresDe(tipo).icono;
}
std::int32_t ColorDeLinea(TipoElemento tipo) noexcept {
    return ColoresDe(tipo).linea;
}

void PreparaColor(Superficie& panel, std::int32_t color) noexcept {
    panel.DrawMode(Superficie::MODO_COPIAR);
    if (color < 0) return;
    panel.ForeColor(color);
    panel.FillColor(color);
}

void PreparaNegro(Superficie& panel) noexcept {
    panel.ForeColor(COLOR_NEGRO);
    panel.FillColor(COLOR_NEGRO);
    panel.DrawMode(Superficie::MODO_NEGRO);
}

}  // namespace zel
