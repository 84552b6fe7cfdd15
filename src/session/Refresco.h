#pragma once

#include <functional>
#include <utility>

#include "platform/Superficie.h"

namespace zel {

// Deferred repaint: an entry asks as often as it likes and the panel is repainted once, at its end. The
// panel draws only while bPintado is set. What was asked for and cancelled, or never performed, is not
// forgotten: until the next paint the panel is stale, which whoever waits for calm is told.
class Refresco {
  public:
    struct Marcas {
        bool bRefrescoPendiente = false;
        bool bPintado = true;
    };

    explicit Refresco(Superficie& panel) noexcept : panel_(panel) {}

    void AnularRefresco() noexcept { marcas_ = {false, false}; }
    void PedirRefresco() noexcept {
        marcas_ = {true, false};
        atrasado_ = true;
        if (alAtrasarse_) alAtrasarse_();
    }
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
    // A repaint has been asked for since the last paint.
    bool Atrasado() const noexcept { return atrasado_; }
    void AlAtrasarse(std::function<void()> accion) { alAtrasarse_ = std::move(accion); }
    // The panel shows what it should: it has been painted, or the host wants it as it is.
    void AlDia() noexcept { atrasado_ = debido_ = false; }
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
    bool atrasado_ = false;
    std::function<void()> alAtrasarse_;
};

}  // namespace zel
