#pragma once

#include <QLabel>
#include <memory>

#include "bars/Panel.h"

namespace zel {

// The label of a field of the status bar: one line of plain text. What does not fit ends in an ellipsis and
// is told whole by the tooltip.
class CampoDeEstado : public QLabel {
    Q_OBJECT
  public:
    // The first field of a bar goes without the line that parts it from the one before.
    CampoDeEstado(bool conRaya, QWidget* padre);

    // Usable for as long as anyone holds it, also when the widget is gone.
    std::shared_ptr<ControlDePanel> Control() const { return control_; }

    // The width that a field needs for that text, in pixels.
    int AnchoPara(const QString& texto) const;

  signals:
    void TextoCambiado();

  protected:
    void changeEvent(QEvent* evento) override;
    void paintEvent(QPaintEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;

  private:
    class ControlPropio;

    void PonTexto(const QString& texto);
    QString Visible() const;
    void PonAyuda();

    std::shared_ptr<ControlDePanel> control_;
    bool conRaya_;
};

}  // namespace zel
