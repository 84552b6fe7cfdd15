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
    // The view has moved and what is on the panel has not: the repaint can wait for more of the same, but it
    // is not cancelled any more.
    void DebeRefresco() noexcept {
        debido_ = true;
        PedirRefresco();
    }
    void RefrescarSiSeDebe() {
        if (!debido_) return;
        PedirRefresco();
        RefrescarSiPendiente();
    }
    void RefrescarSiPendiente() {
        if (!marcas_.bRefrescoPendiente) return;
        marcas_ = {false, true};
        debido_ = false;
        panel_.Refresh();
    }
    bool bPintado() const noexcept { return marcas_.bPintado; }
    bool bRefrescoPendiente() const noexcept { return marcas_.bRefrescoPendiente; }
    bool bRefrescoDebido() const noexcept { return debido_; }

    // For who has to leave both as they were.
    const Marcas& marcas() const noexcept { return marcas_; }
    void marcas(const Marcas& valor) noexcept { marcas_ = valor; }

  private:
    Superficie& panel_;
    Marcas marcas_;
    bool debido_ = false;
};

}  // namespace zel
