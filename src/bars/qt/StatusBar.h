#pragma once

#include <QWidget>
#include <array>
#include <memory>

#include "bars/Panels.h"

namespace zel {

class CampoDeEstado;

// The status bar: a wide field for the prompt ("stats") and three narrow ones at the right for the mouse
// ("x", "y") and the region shown ("porciento"). Texts are plain.
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

    std::shared_ptr<zel::Panels> paneles_ = std::make_shared<zel::Panels>();
    std::array<CampoDeEstado*, 4> campos_{};
};

}  // namespace zel
