#pragma once

#include "bars/qt/BarraDeBotones.h"

namespace zel {

// The bar of the view tools: centring, deleting, fitting, zooming and dragging.
class ZelToolBar2 : public BarraDeBotones {
    Q_OBJECT
  public:
    explicit ZelToolBar2(QWidget* padre = nullptr);
};

}  // namespace zel
