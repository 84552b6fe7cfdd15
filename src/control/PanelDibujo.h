#pragma once

#include <QWidget>
#include <functional>

#include "platform/qt/Lienzo.h"

namespace zel {

// The widget that shows the drawing surface. Drawing goes to the surface; an expose only copies its image,
// so that it never disturbs what is being drawn.
class PanelDibujo : public QWidget {
    Q_OBJECT
  public:
    explicit PanelDibujo(QWidget* padre = nullptr);

    // What its Refresh does is up to who owns the panel.
    Lienzo& lienzo() noexcept { return lienzo_; }

    // Millimetres at the panel's logical resolution.
    float AnchoMm() const;
    float AltoMm() const;

  signals:
    // The panel has a new size: the surface is blank and waits for a layout and a repaint.
    void Redimensionado();

  protected:
    void paintEvent(QPaintEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;

  private:
    void PreparaLienzo();

    Lienzo lienzo_;
};

}  // namespace zel
