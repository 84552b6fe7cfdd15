#pragma once

#include "platform/Superficie.h"

namespace zel {

// Deferred repaint: an entry asks as often as it likes and the panel is repainted once, at its end. The
// panel draws only while bPintado is set.
class Refresco {
  public:
    explicit Refresco(Superficie& panel) noexcept : panel_(panel) {}

    void AnularRefresco() noexcept { bRefrescoPendiente_ = bPintado_ = false; }
    void PedirRefresco() noexcept {
        bRefrescoPendiente_ = true;
        bPintado_ = false;
    }
    void RefrescarSiPendiente() {
        if (!bRefrescoPendiente_) return;
        bRefrescoPendiente_ = false;
        bPintado_ = true;
        panel_.Refresh();
    }
    bool bPintado() const noexcept { return bPintado_; }
    bool bRefrescoPendiente() const noexcept { return bRefrescoPendiente_; }

  private:
    Superficie& panel_;
    bool bRefrescoPendiente_ = false;
    bool bPintado_ = true;
};

}  // namespace zel
