#pragma once

#include <QAbstractButton>
#include <QPointer>
#include <memory>

#include "bars/Boton.h"

namespace zel {

// The widget of a button: its picture, framed and tinted when it is pressed. It has the name of its key.
// Its control's BorderStyle alone changes its looks, in silence; a click, Space or Enter emits clicked() and
// leaves the change to who hears it, who may also delete the button. An assistive program toggles it first:
// toggled().
class BotonDeBarra : public QAbstractButton {
    Q_OBJECT
  public:
    BotonDeBarra(const QString& clave, const QString& descripcion, QWidget* padre);

    // Usable for as long as anyone holds it, also when the widget is gone.
    std::shared_ptr<ControlDeBoton> Control() const { return control_; }

  protected:
    void nextCheckState() override {}
    void keyPressEvent(QKeyEvent* evento) override;
    void paintEvent(QPaintEvent* evento) override;

  private:
    class ControlPropio;
    std::shared_ptr<ControlDeBoton> control_;
};

}  // namespace zel
