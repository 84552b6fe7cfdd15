#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace zel {

class Elementos;

// One thing found by the integrity check.
struct HallazgoIntegridad {
    std::int32_t Posicion = 0;  // of the element in the collection; of two equal ones, the later
    std::int32_t Codigo = 0;
    std::string Nombre;
    std::string Problema;    // what is wrong
    std::string Correccion;  // what was done about it; empty when nothing was
};

// The result of the check: -1 when something cannot be corrected, else the sum of what remains.
constexpr std::int16_t INTEGRIDAD_INCORREGIBLE = -1;
constexpr std::int16_t INTEGRIDAD_CONEXIONES_MUTUAS = 1;
constexpr std::int16_t INTEGRIDAD_VALORES = 2;
constexpr std::int16_t INTEGRIDAD_NUMEROS = 4;
constexpr std::int16_t INTEGRIDAD_CODIGOS = 8;
constexpr std::int16_t INTEGRIDAD_TRAZADOS = 16;

}  // namespace zel
