#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "drawing/AjustesDibujo.h"
#include "model/Elemento.h"

namespace zel {

// The elements' symbols. A ghost (bFantasma) is drawn at (X, Y) by inverting, so that drawing it again
// removes it, and without its number; otherwise the element's own position is used and X and Y are not.
// Failures are raised with the viewer's state.

// Draws one element: its traces, its symbol, the frame round the number of a large symbol and, for a ghost,
// the outline of its label. When a part cannot be drawn the others still are, and then it raises. An empty
// reference draws nothing.
void DibujarElemento(Superficie& panel, const AjustesDibujo& ajustes, const Elemento* elemento,
                     bool bFantasma, float X = 0, float Y = 0);

// What of a ghost inverts, its symbol and its label: where the element itself is on the panel already,
// drawing the rest of it once more would darken its smooth edges.
void DibujarFantasma(Superficie& panel, const AjustesDibujo& ajustes, const Elemento& e, float X, float Y);

// The number of a large symbol has a frame, which is larger than the number by that factor.
constexpr float VECES_DEL_MARCO = 1.5F;
bool NumeroEnmarcado(const Elemento& e) noexcept;

void DibujarNudo(Superficie& panel, const AjustesDibujo& ajustes, const Elemento& e, bool bFantasma, float X,
                 float Y);
void DibujarEmbalse(Superficie& panel, const AjustesDibujo& ajustes, const Elemento& e, bool bFantasma,
                    float X, float Y);
void DibujarDemanda(Superficie& panel, const AjustesDibujo& ajustes, const Elemento& e, bool bFantasma,
                    float X, float Y);
void DibujarAcuifero(Superficie& panel, const AjustesDibujo& ajustes, const Elemento& e, bool bFantasma,
                     float X, float Y);
void DibujarAportacion(Superficie& panel, const AjustesDibujo& ajustes, const Elemento& e, bool bFantasma,
                       float X, float Y);
void DibujarSubcuenca(Superficie& panel, const AjustesDibujo& ajustes, const Elemento& e, bool bFantasma,
                      float X, float Y);
void DibujarRetorno(Superficie& panel, const AjustesDibujo& ajustes, const Elemento& e, bool bFantasma,
                    float X, float Y);
void DibujarCentralHE(Superficie& panel, const AjustesDibujo& ajustes, const Elemento& e, bool bFantasma,
                      float X, float Y);

// A hydro plant's symbol for an element that does not exist yet.
void DibujarCentralHE2(Superficie& panel, const AjustesDibujo& ajustes, float X, float Y,
                       const std::string& textoNumero, float Tamanyo, std::optional<std::int32_t> ColorIcono,
                       bool bFantasma);

}  // namespace zel
