#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "model/TipoElemento.h"

namespace zel {

// The names and codes of the schematic document.

// The element containers under Esquema/Elementos, in the order of the file; position 0 is the one of the
// kinds that have none.
constexpr std::array<const char*, 18> NOMBRES_DE_CONTENEDOR = {
    "Nulo",        "Nudo",        "Embalse",  "Aportacion",   "Demanda",     "Conduccion1",
    "Conduccion2", "Conduccion3", "Acuifero", "Centralhidro", "Retorno",     "Union",
    "Recarga",     "Bombeo",      "Toma",     "Conduccion4",  "Conduccion5", "SubCuenca"};

// The children of one Elemento and of its traces.
enum class Hijo : std::uint8_t {
    Elemento,
    Nombre,
    Tipo,
    gfCodSig,
    NumUser,
    posX,
    posY,
    NudoOrigen,
    NudoDestino,
    NombrePosX,
    NombrePosY,
    X,
    Y,
    VerNombre,
    ColorLinea,
    TextoGiro,
    Linea,
    Punto,
    ColorIcono,
    NombreTamanyo,
    Tamanyo,
    ConecSec1,
    ConecSec2,
    Linea2,
    NombreMovido,
    NomTamRelativo,
    Valor
};
constexpr std::size_t NUMERO_DE_HIJOS = 27;
constexpr std::array<const char*, NUMERO_DE_HIJOS> NOMBRES_DE_HIJO = {
    "Elemento",       "Nombre",    "Tipo",       "gfCodSig",    "NumUser",
    "posX",           "posY",      "NudoOrigen", "NudoDestino", "NombrePosX",
    "NombrePosY",     "X",         "Y",          "VerNombre",   "ColorLinea",
    "TextoGiro",      "Linea",     "Punto",      "ColorIcono",  "NombreTamanyo",
    "Tamanyo",        "ConecSec1", "ConecSec2",  "Linea2",      "NombreMovido",
    "NomTamRelativo", "Valor"};

constexpr const char* NombreDe(Hijo hijo) noexcept {
    return NOMBRES_DE_HIJO[static_cast<std::size_t>(hijo)];
}

// The kind's code in the file, by kind.
constexpr std::array<std::int16_t, NUMERO_DE_TIPOS> CODIGOS_DE_TIPO = {10, 12, 30, 110, 50, 51, 52, 53,
                                                                       54, 70, 60, 40,  80, 20, 90, 25};

// The position in NOMBRES_DE_CONTENEDOR, by kind; 0 for unknown kinds.
constexpr std::size_t ContenedorDe(TipoElemento tipo) noexcept {
    constexpr std::array<std::uint8_t, NUMERO_DE_TIPOS> CONTENEDORES = {1,  2,  4,  8,  5, 6, 7,  15,
                                                                        16, 12, 13, 14, 9, 3, 10, 17};
    return TipoConocido(tipo) ? CONTENEDORES[static_cast<std::size_t>(tipo)] : 0;
}

// The sections beside the elements.
constexpr const char* SECCION_IMAGEN = "ImagenFondo";
constexpr std::array<const char*, 6> HIJOS_DE_IMAGEN = {"Archivo", "X0", "Y0", "LX", "LY", "Oculta"};
constexpr const char* SECCION_CONFIGURACION = "Configuracion";
constexpr const char* VER_LINEAS_SECUNDARIAS = "VerLineasSecundarias";

}  // namespace zel
