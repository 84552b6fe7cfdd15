#pragma once

#include <vector>

#include "model/Elementos.h"

class QWidget;

namespace zel {

class Esquema;

// The elements that cannot stay without that one: those that start or end at it, and those that do at
// these. In their order in the collection; the element itself is not among them.
std::vector<std::shared_ptr<Elemento>> Dependientes(const Elementos& elementos, std::int32_t codigo);

// Takes the element away, and with it those that depend on it: no gesture gives an element another end, and
// one without its ends is beyond repair. Secondary connections to what goes are taken away too.
void BorraConDependientes(Esquema& esquema, std::int32_t codigo);

// The same once the user has been asked.
void PreguntaYBorra(Esquema& esquema, QWidget* ventana, std::int32_t codigo);

}  // namespace zel
