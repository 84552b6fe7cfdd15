#include "editing/Estados.h"

#include <algorithm>
#include <array>

#include "drawing/Cursores.h"
#include "editing/MaquinaEstados.h"

namespace zel {

namespace {

// By kind.
constexpr std::array<std::int32_t, NUMERO_DE_TIPOS> AL_ESCOGER = {
    5202, 5202, 5202, 5202, 5203, 5203, 5203, 5203, 5203, 5204, 5205, 5206, 5207, 5208, 5209, 5229};
constexpr std::array<std::int32_t, NUMERO_DE_TIPOS> AL_TRAZAR = {
    0, 0, 0, 0, 5210, 5210, 5210, 5210, 5210, 5211, 5210, 5212, 5213, 5214, 5215, 5230};

std::int32_t DelTipo(const std::array<std::int32_t, NUMERO_DE_TIPOS>& tabla, TipoElemento tipo) noexcept {
    return TipoConocido(tipo) ? tabla[static_cast<std::size_t>(tipo)] : 0;
}

}  // namespace

std::int32_t MensajeAlEscoger(TipoElemento tipo) noexcept {
    return DelTipo(AL_ESCOGER, tipo);
}

std::int32_t MensajeAlTrazar(TipoElemento tipo) noexcept {
    return DelTipo(AL_TRAZAR, tipo);
}

const EstadoDelVisor* EstadoDe(std::int32_t numero) noexcept {
    using M = MaquinaEstados;
    constexpr std::int32_t IGUAL = EstadoDelVisor::SIN_CURSOR;
    constexpr std::int32_t TIPO = CURSOR_DEL_TIPO;
    constexpr std::int32_t NORMAL = CURSOR_NORMAL;
    constexpr std::int32_t CRUZ = CURSOR_CRUZ;
    constexpr std::int32_t MANO = CURSOR_ARRASTRE;
    // clang-format off
    static constexpr EstadoDelVisor TABLA[] = {
        {E_VOLVER,               "", 0, "", IGUAL, &M::EntraVolver},
        {E_ZOOM,                 "Modificando Zoom", 5201, "", IGUAL, &M::EntraZoom},
        {E_DIBUJANDO,            "Dibujando", 0, "", TIPO, &M::EntraDibujando},
        {E_DIBUJANDO_CONDUCCION, "Dibujando conducción", 0, "", TIPO, &M::EntraConduccion},
        {E_PREPARADO,            "Preparado", 5217, "", NORMAL, &M::EntraPreparado},
        {E_MOVER_ELEMENTO,       "Movimiento instantáneo de elemento", 5218, "", MANO, &M::EntraMoverElemento},
        {E_MOVER_ETIQUETA,       "Movimiento instantáneo de etiqueta", 5219, "", MANO, &M::EntraSinMas},
        {E_ESCOGER_PUNTO,        "Escogiendo nodo de conducción", 5220, "", NORMAL, &M::EntraEscogerPunto},
        {E_MOVER_PUNTO,          "Movimiento instantáneo de nodo de conducción", 5221, "", MANO, &M::EntraSinMas},
        {E_ESPERAR_SUBSISTEMA,   "Esperando clic para seleccionar subsistema", 5222, "", CRUZ, &M::EntraEsperarSubsistema},
        {E_LAZO,                 "Seleccionando subsistema con línea curva", 5223, "", IGUAL, &M::EntraLazo},
        {E_SUBSISTEMA,           "Subsistema seleccionado", 5224, "", NORMAL, &M::EntraSubsistema},
        {E_ARRASTRAR_ELEMENTO,   "Arrastrando elemento", 5225, "", MANO, &M::EntraArrastrarElemento},
        {E_ARRASTRAR_PUNTO,      "Moviendo punto de conducción", 0, "", IGUAL, &M::EntraArrastrarPunto},
        {E_UNO_A_UNO,            "Selección de elementos uno a uno", 5224, "", CRUZ, &M::EntraUnoAUno},
        {E_ARRASTRAR_ETIQUETA,   "Arrastrando etiqueta de elemento", 5227, "", MANO, &M::EntraArrastrarEtiqueta},
        {E_RECUADRO,             "Recuadro de selección de elementos", 5223, "", CRUZ, &M::EntraBanda},
        {E_RECUADRO_ZOOM,        "Recuadro para zoom", 0, "Seleccione la región que desea ampliar", CRUZ, &M::EntraBanda},
        {E_MANO,                 "Arrastre manual del visor", 0, "Arrastre el esquema con el cusor del ratón", MANO, &M::EntraBanda},
        {E_IMAGEN_FONDO,         "", 0, "Ajuste la posición y tamaño de la imagen de fondo y pulse aceptar", CRUZ, &M::EntraImagenFondo},
        {E_PROCESANDO,           "", 0, "Procesando, espere ...", CRUZ, &M::EntraImagenFondo},
        // Has a name, and is never entered.
        {E_PRUEBAS,              "Pruebas", 0, "", IGUAL, nullptr},
    };
    // clang-format on
    const auto* fila =
        std::find_if(std::begin(TABLA), std::end(TABLA), [=](const auto& e) { return e.numero == numero; });
    return fila == std::end(TABLA) ? nullptr : fila;
}

}  // namespace zel
