#pragma once

#include <QString>
#include <exception>

#include "model/Elementos.h"
#include "platform/Dialogos.h"

class QWidget;

namespace zel {

// Tells a failure: what went wrong, and on demand the whole of its description. What comes around the cause
// is up to the caller.
void DiFallo(const std::string& descripcion, const std::string& antes = {}, const std::string& despues = {});

// Runs what may fail and tells the user; nothing may leave an event handler.
template <typename Accion>
void DiloSiFalla(Accion accion) {
    try {
        accion();
    } catch (const std::exception& fallo) {
        DiFallo(fallo.what());
    }
}

enum class Respuesta { Guardar, Descartar, Cancelar };

// What is to become of the changes in the document of that name.
Respuesta PreguntaSiGuardar(QWidget* padre, const QString& nombre);

// A question with its details, plain text both: true when the user takes the action, false when not.
bool Confirma(QWidget* padre, const QString& pregunta, const QString& detalle, const QString& accion);

// The element as a question names it: Nudo "Puente de Villar". Its code stands for a name that is empty.
QString Describe(const Elemento& e);

}  // namespace zel
