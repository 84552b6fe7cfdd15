#include "AvisosDeFallo.h"

#include "platform/Dialogos.h"

namespace zel {

void AvisosDeFallo::Di(const QString& descripcion) {
    if (enCurso_.contains(descripcion)) return;
    const bool hayCaja = !enCurso_.isEmpty();
    enCurso_ << descripcion;
    if (hayCaja) return;
    for (qsizetype i = 0; i < enCurso_.size(); ++i)
        dialogos().MsgBox(enCurso_[i].toStdString());
    enCurso_.clear();
}

}  // namespace zel
