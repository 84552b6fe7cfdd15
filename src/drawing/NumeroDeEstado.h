#pragma once

#include <cstdint>

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

}  // namespace zel
