#pragma once

#include <QScrollBar>

#include "platform/BarraDesplazamiento.h"

namespace zel {

// A scroll bar on Qt, whose minimum cannot lie above its maximum: an inverted range is kept with its sign
// changed.
class BarraDesplazamientoQt : public QScrollBar, public BarraDesplazamiento {
    Q_OBJECT
  public:
    using QScrollBar::QScrollBar;

    Estado Actual() const override;
    void Pon(const Estado& estado) override;
    void Enabled(bool valor) override { setEnabled(valor); }

  signals:
    // The user has moved the bar; the thumb is being dragged.
    void Change();
    void Scroll();

  protected:
    void sliderChange(SliderChange cambio) override;
    void mouseReleaseEvent(QMouseEvent* evento) override;

  private:
    Estado estado_;
    bool poniendo_ = false;
};

}  // namespace zel
