#pragma once

#include <QSize>
#include <QSizeF>
#include <cstdint>
#include <optional>

#include "platform/Superficie.h"
#include "platform/Variante.h"

namespace zel {

// The units of a panel's scale, by the numbers that a host gives.
constexpr std::int16_t MODO_PROPIO = 0;
constexpr std::int16_t MODO_TWIPS = 1;
constexpr std::int16_t MODO_PUNTOS = 2;
constexpr std::int16_t MODO_PIXELES = 3;
constexpr std::int16_t MODO_CARACTERES = 4;
constexpr std::int16_t MODO_PULGADAS = 5;
constexpr std::int16_t MODO_MILIMETROS = 6;
constexpr std::int16_t MODO_CENTIMETROS = 7;

// The scale of a panel of that size, in pixels, in one of these units; `ppp` are pixels per inch, across and
// down.
Superficie::Escala EscalaDelModo(std::int16_t modo, QSize pixeles, QSizeF ppp);

// A length from one unit to another; missing ones are hundredths of a millimetre and `propio`. `propia` is
// the panel's own scale, in units per pixel. Fails with 5 for a number that is no unit.
float ConvierteLongitud(float valor, const std::optional<Variante>& desde,
                        const std::optional<Variante>& hasta, bool vertical, QSizeF ppp, double propia,
                        std::int16_t propio);

}  // namespace zel
