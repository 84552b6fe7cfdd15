#pragma once

#include "bars/qt/BarraDeBotones.h"

namespace zel {

// The bar of the element kinds: one button per kind, and "flecha", the selection, as the last one, which
// its owner leaves out of sight.
class ZelToolBar : public BarraDeBotones {
    Q_OBJECT
  public:
    explicit ZelToolBar(QWidget* padre = nullptr);
};

}  // namespace zel
