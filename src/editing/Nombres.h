#pragma once

#include <cstdint>
#include <string>

#include "session/Documento.h"

namespace zel {

// The number on the screen of the newest element of a kind; reservoirs count with the nodes. Fails with 9
// for a kind outside 0 to 15.
std::int16_t Add_KeyPant(Documento& documento, TipoElemento tipo);

// The name of a kind: with `clave` the key of its tool button ("flecha" for ctFlecha), else the name that the
// user reads, followed by " nº " and Add_KeyPant unless `sinNumero`. Empty for unknown kinds.
std::string Add_Nombre(Documento& documento, TipoElemento tipo, bool sinNumero, bool clave);

// An element in words, as a screen reader tells it: "Conducción tipo1 nº 3, «Canal», de Embalse nº 1 «Presa»
// a Nudo nº 2 «Norte»". A name or an end that it has not is left out; those that start at themselves have no
// start.
std::string EnPalabras(const Elementos& elementos, const Elemento& elem);

// The kind of a tool button; ctFlecha for "flecha" and for keys that are none.
TipoElemento TipoDeClave(std::string_view clave) noexcept;

}  // namespace zel
