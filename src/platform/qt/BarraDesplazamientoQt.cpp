#include "platform/qt/BarraDesplazamientoQt.h"

#include <QMouseEvent>
#include <algorithm>

#include "platform/Guardia.h"

namespace zel {

BarraDesplazamiento::Estado BarraDesplazamientoQt::Actual() const {
    const bool invertida = estado_.Min > estado_.Max;
    Estado estado = estado_;
    estado.Value = static_cast<std::int16_t>(invertida ? -sliderPosition() : sliderPosition());
    return estado;
}

void BarraDesplazamientoQt::Pon(const Estado& estado) {
    const Guardia poniendo(poniendo_, true);
    estado_ = estado;
    const int signo = estado.Min > estado.Max ? -1 : 1;
    setRange(signo * estado.Min, signo * estado.Max);
    setPageStep(std::max<int>(estado.LargeChange, 1));
    setSingleStep(std::max(1, estado.LargeChange / 5));
    setValue(signo * estado.Value);
}

// Every way in which the position changes comes by here.
void BarraDesplazamientoQt::sliderChange(SliderChange cambio) {
    QScrollBar::sliderChange(cambio);
    if (cambio != SliderValueChange || poniendo_) return;
    if (isSliderDown())
        emit Scroll();
    else
        emit Change();
}

void BarraDesplazamientoQt::mouseReleaseEvent(QMouseEvent* evento) {
    const bool arrastrando = isSliderDown();
    QScrollBar::mouseReleaseEvent(evento);
    if (arrastrando && !isSliderDown()) emit Change();
}

}  // namespace zel
