#pragma once

#include <cstdint>
#include <string_view>

#include "model/TipoElemento.h"

namespace zel {

// The interaction states, by the numbers that the control's error texts carry.
enum NumeroDeEstado : std::int32_t {
    E_VOLVER = 0,  // goes back to the state before
    E_ZOOM = 1,
    E_DIBUJANDO = 2,
    E_DIBUJANDO_CONDUCCION = 3,
    E_PREPARADO = 5,
    E_MOVER_ELEMENTO = 6,
    E_MOVER_ETIQUETA = 7,
    E_ESCOGER_PUNTO = 8,
    E_MOVER_PUNTO = 9,
    E_ESPERAR_SUBSISTEMA = 10,
    E_LAZO = 11,
    E_SUBSISTEMA = 12,
    E_ARRASTRAR_ELEMENTO = 13,
    E_ARRASTRAR_PUNTO = 14,
    E_UNO_A_UNO = 15,
    E_ARRASTRAR_ETIQUETA = 16,
    E_RECUADRO = 17,
    E_RECUADRO_ZOOM = 18,
    E_MANO = 19,
    E_IMAGEN_FONDO = 20,
    E_PROCESANDO = 21,
    E_PRUEBAS = 99,
};

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
