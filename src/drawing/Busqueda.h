#pragma once

#include <cstdint>
#include <span>
#include <unordered_set>

#include "drawing/AjustesDibujo.h"
#include "drawing/IndiceDeElementos.h"

namespace zel {

// The parts of an element.
constexpr std::int16_t PARTE_SIMBOLO = 0;
constexpr std::int16_t PARTE_TRAZADO = 1;
constexpr std::int16_t PARTE_TRAZADO2 = 2;
constexpr std::int16_t PARTE_ETIQUETA = 3;
constexpr std::int16_t PARTE_SIN_TRAZADO_NUEVO = -1;

// What is under a point of the world.
//
// A symbol is hit in a square of half side 1.25 TamanyoUnidad, whatever its size; a trace within
// factorTolerancia times TamanyoUnidad of one of its segments. The segment that a trace's Valor names, when
// positive, is being edited and is not there; a trace's Valor2 other than 0 says the same of the symbol.
// The first element in collection order is found. Labels are asked only where nothing else is, and there the
// last one is found, which is the one on top.
struct Busqueda {
    PuntoXY punto{};
    float factorTolerancia = 0.5F;
    // Codes of elements that are not looked at, except for linear ones with a segment being edited.
    const std::unordered_set<std::int32_t>* excluidos = nullptr;
    bool bSoloTramos = false;   // the excluded ones lose their segments only
    bool bSinSimbolos = false;  // traces only: the symbols are not where their elements say
    bool bSinEtiquetas = false;
};

struct ElementoHallado {
    const Elemento* elemento = nullptr;
    std::int16_t iParte = PARTE_SIMBOLO;
    bool bCuerpo = false;        // the element itself, not the trace of an element with a symbol
    std::int16_t iSegmento = 0;  // of a trace: the number of the segment's first point
};

// Searches all elements of the index, or the few that are given, in their order. The panel keeps its font.
ElementoHallado Busca(Superficie& panel, const AjustesDibujo& ajustes, IndiceDeElementos& indice,
                      const Busqueda& busqueda);
ElementoHallado Busca(Superficie& panel, const AjustesDibujo& ajustes,
                      std::span<const Elemento* const> elementos, const Busqueda& busqueda);

// Whether a label's box, from its top left corner with its signed size, would touch the symbol of an
// element: the square of half side TamanyoUnidad.
bool HayElementoBajoEtiqueta(IndiceDeElementos& indice, PuntoXY origen, PuntoXY tamanyo);

}  // namespace zel
