#pragma once

#include <QWidget>

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
    const Lienzo& lienzo() const noexcept { return lienzo_; }

    // Gives the surface the panel's present size and resolution; it is blank then. True when it changed.
    bool PreparaLienzo();

    // Millimetres at the panel's logical resolution.
    float AnchoMm() const;
    float AltoMm() const;

  signals:
    // The panel has a new size: the surface is blank and waits for a layout and a repaint.
    void Redimensionado();
    // The focus has come from another widget of the window, or has gone to one; boxes, menus and the change
    // to another window do not count.
    void GanaFoco();
    void PierdeFoco();
    // The mouse, in world units; buttons 1 left, 2 right, 4 middle, 0 none. A move tells those held.
    void Pulsado(qint16 boton, float x, float y);
    void Movido(qint16 botones, float x, float y);
    void Soltado(qint16 boton, float x, float y);

  protected:
    void paintEvent(QPaintEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;
    void focusInEvent(QFocusEvent* evento) override;
    void focusOutEvent(QFocusEvent* evento) override;
    void mousePressEvent(QMouseEvent* evento) override;
    void mouseMoveEvent(QMouseEvent* evento) override;
    void mouseReleaseEvent(QMouseEvent* evento) override;

  private:
    PuntoXY EnElMundo(QPointF punto) const;

    Lienzo lienzo_;
};

}  // namespace zel
