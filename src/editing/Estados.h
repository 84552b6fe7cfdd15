#pragma once

#include <cstdint>
#include <string_view>

#include "drawing/NumeroDeEstado.h"
#include "model/TipoElemento.h"

namespace zel {

class MaquinaEstados;

// One state: what it shows on entry, and the rule by which it is entered.
struct EstadoDelVisor {
    static constexpr std::int32_t SIN_CURSOR = -1000;  // the cursor stays as it is

    std::int32_t numero;
    std::string_view nombre;  // in the debug display
    std::int32_t mensaje;     // prompt: number in the message table, 0 for none
    std::string_view texto;   // prompt that is not in the table
    std::int32_t cursor;      // as Cursor_Raton takes it
    void (MaquinaEstados::*entra)(const EstadoDelVisor& estado, std::int32_t viejo, std::int32_t bRefrescar);
};

// The row of a state, or null for a number that is none.
const EstadoDelVisor* EstadoDe(std::int32_t numero) noexcept;

// The prompt while a kind is being created: where it begins (state 2), where it goes on (state 3). 0 for
// none.
std::int32_t MensajeAlEscoger(TipoElemento tipo) noexcept;
std::int32_t MensajeAlTrazar(TipoElemento tipo) noexcept;

}  // namespace zel
