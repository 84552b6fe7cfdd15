#pragma once

#include <QString>
#include <exception>

#include "model/Elementos.h"
#include "platform/Dialogos.h"

class QWidget;

namespace zel {

// Runs what may fail and tells the user; nothing may leave an event handler.
template <typename Accion>
void DiloSiFalla(Accion accion) {
    try {
        accion();
    } catch (const std::exception& fallo) {
        dialogos().MsgBox(fallo.what());
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
