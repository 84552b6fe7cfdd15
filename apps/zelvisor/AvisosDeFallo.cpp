#include "AvisosDeFallo.h"

#include "Preguntas.h"

namespace zel {

void AvisosDeFallo::Di(const QString& descripcion) {
    if (enCurso_.contains(descripcion)) return;
    const bool hayCaja = !enCurso_.isEmpty();
    enCurso_ << descripcion;
    if (hayCaja) return;
    for (qsizetype i = 0; i < enCurso_.size(); ++i)
        DiFallo(enCurso_[i].toStdString());
    enCurso_.clear();
}

}  // namespace zel
