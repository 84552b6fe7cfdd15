#pragma once

#include "platform/Superficie.h"

namespace zel {

// Deferred repaint: an entry asks as often as it likes and the panel is repainted once, at its end. The
// panel draws only while bPintado is set.
class Refresco {
  public:
    struct Marcas {
        bool bRefrescoPendiente = false;
        bool bPintado = true;
    };

    explicit Refresco(Superficie& panel) noexcept : panel_(panel) {}

    void AnularRefresco() noexcept { marcas_ = {false, false}; }
    void PedirRefresco() noexcept { marcas_ = {true, false}; }
    void RefrescarSiPendiente() {
        if (!marcas_.bRefrescoPendiente) return;
        marcas_ = {false, true};
        panel_.Refresh();
    }
    bool bPintado() const noexcept { return marcas_.bPintado; }
    bool bRefrescoPendiente() const noexcept { return marcas_.bRefrescoPendiente; }

    // For who has to leave both as they were.
    const Marcas& marcas() const noexcept { return marcas_; }
    void marcas(const Marcas& valor) noexcept { marcas_ = valor; }

  private:
    Superficie& panel_;
    Marcas marcas_;
};

}  // namespace zel
