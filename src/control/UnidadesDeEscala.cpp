#include "control/UnidadesDeEscala.h"

namespace zel {

namespace {

constexpr double TWIPS = 1440;  // to the inch
constexpr double PUNTOS = 72;
constexpr double MILIMETROS = 25.4;
constexpr double TWIPS_DE_ANCHO = 120;  // of a character
constexpr double TWIPS_DE_ALTO = 240;

double PorPulgada(std::int16_t modo, bool vertical, QSizeF ppp) {
    switch (modo) {
        case MODO_TWIPS:
            return TWIPS;
        case MODO_PUNTOS:
            return PUNTOS;
        case MODO_PIXELES:
            return vertical ? ppp.height() : ppp.width();
        case MODO_CARACTERES:
            return TWIPS / (vertical ? TWIPS_DE_ALTO : TWIPS_DE_ANCHO);
        case MODO_PULGADAS:
            return 1;
        case MODO_MILIMETROS:
            return MILIMETROS;
        case MODO_CENTIMETROS:
            return MILIMETROS / 10;
        default:
            throw Fallo(5);
    }
}

}  // namespace

Superficie::Escala EscalaDelModo(std::int16_t modo, QSize pixeles, QSizeF ppp) {
    if (modo == MODO_PROPIO) return {};
    return {0, 0, static_cast<float>(pixeles.width() * PorPulgada(modo, false, ppp) / ppp.width()),
            -static_cast<float>(pixeles.height() * PorPulgada(modo, true, ppp) / ppp.height())};
}

float ConvierteLongitud(float valor, const std::optional<Variante>& desde,
                        const std::optional<Variante>& hasta, bool vertical, QSizeF ppp, double propia,
                        std::int16_t propio) {
    const auto porPulgada = [&](std::int16_t modo) {
        return modo == MODO_PROPIO ? propia * PorPulgada(MODO_PIXELES, vertical, ppp)
                                   : PorPulgada(modo, vertical, ppp);
    };
    const double origen = desde ? porPulgada(desde->Entero16()) : MILIMETROS * 100;
    return static_cast<float>(valor / origen * porPulgada(hasta ? hasta->Entero16() : propio));
}

}  // namespace zel
