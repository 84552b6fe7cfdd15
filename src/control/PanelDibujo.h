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

    // Where a point of the world is on the panel, or would be beyond it; pixels.
    QPointF EnElPanel(PuntoXY punto) const;

  signals:
    // The panel has a new size: the surface is blank and waits for a layout and a repaint.
    void Redimensionado();
    // The focus has come from another widget of the window, or has gone to one; boxes, menus and the change
    // to another window do not count.
    void GanaFoco();
    void PierdeFoco();
    // The keys go elsewhere, whatever takes them.
    void PierdeTeclado();
    // The mouse, in world units; buttons 1 left, 2 right, 4 middle, 0 none; mayus 1 Shift + 2 Ctrl + 4 Alt. A
    // move tells the buttons held. Other buttons do nothing.
    void Pulsado(qint16 boton, qint16 mayus, float x, float y);
    void Movido(qint16 botones, qint16 mayus, float x, float y);
    void Soltado(qint16 boton, qint16 mayus, float x, float y);
    // After the release, on the panel, of a press; and instead of the second press of two in a row, which is
    // no click. Only the left button has double clicks: two presses of another are two presses.
    void Clic();
    void DobleClic();
    // The wheel or fingers on a touchpad ask for the drawing to move by shares of the panel's width and
    // height, to the right and downwards, or to become that many times larger; with the mouse at that share
    // of the panel from its top left corner.
    void Empujado(double anchos, double altos, QPointF en);
    void Ampliado(double veces, QPointF en);

  protected:
    bool event(QEvent* evento) override;
    void paintEvent(QPaintEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;
    void focusInEvent(QFocusEvent* evento) override;
    void focusOutEvent(QFocusEvent* evento) override;
    void mousePressEvent(QMouseEvent* evento) override;
    void mouseMoveEvent(QMouseEvent* evento) override;
    void mouseReleaseEvent(QMouseEvent* evento) override;
    void mouseDoubleClickEvent(QMouseEvent* evento) override;
    void wheelEvent(QWheelEvent* evento) override;

  private:
    PuntoXY EnElMundo(QPointF punto) const;
    QPointF EnPartes(QPointF pixeles) const { return {pixeles.x() / width(), pixeles.y() / height()}; }

    Lienzo lienzo_;
    bool hayClic_ = false;  // the press is half a click
};

}  // namespace zel
