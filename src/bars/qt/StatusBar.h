#pragma once

#include <QWidget>
#include <array>
#include <memory>

#include "bars/Panels.h"

namespace zel {

class CampoDeEstado;

// The status bar: a wide field for the prompt ("stats") and three narrow ones at the right for the mouse
// ("x", "y") and the region shown ("porciento"), which are as wide as their texts need. Texts are plain.
class StatusBar : public QWidget {
    Q_OBJECT
  public:
    explicit StatusBar(QWidget* padre = nullptr);

    // The fields; Item(1) is the prompt.
    std::shared_ptr<zel::Panels> Panels() const noexcept { return paneles_; }

    QSize sizeHint() const override;

  protected:
    void changeEvent(QEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;
    void showEvent(QShowEvent* evento) override;

  private:
    void Coloca();
    // The width of a narrow field: for its usual texts, or for the one it shows.
    int AnchoDe(std::size_t campo) const;
    void SigueAlTexto(std::size_t campo);

    std::shared_ptr<zel::Panels> paneles_ = std::make_shared<zel::Panels>();
    std::array<CampoDeEstado*, 4> campos_{};
    std::array<int, 4> anchos_{};  // that fields have needed
};

}  // namespace zel
