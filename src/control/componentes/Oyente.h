#pragma once

#include <QMetaMethod>

#include "control/componentes/Componentes.h"

namespace zel {

// Calls `reaccion` with the arguments of the signal each time that the object emits it, and gives back what
// it has changed of those passed by reference.
QMetaObject::Connection Escucha(QObject* objeto, const QMetaMethod& senal,
                                ObjetoPorNombre::Reaccion reaccion);

}  // namespace zel
