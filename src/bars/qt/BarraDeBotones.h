#pragma once

#include <QWidget>
#include <initializer_list>
#include <memory>
#include <vector>

#include "bars/Buttons.h"

namespace zel {

class BotonDeBarra;

// A row of picture buttons that toggle when they are clicked. The bar only shows and reports: keeping one
// tool pressed at a time is up to its owner.
class BarraDeBotones : public QWidget {
    Q_OBJECT
    Q_PROPERTY(bool Enabled READ Enabled WRITE Enabled STORED false)
    Q_PROPERTY(qint16 ButtonCount READ ButtonCount STORED false)
    Q_PROPERTY(qint16 ButtonHeight READ ButtonHeight STORED false)
    Q_PROPERTY(qint16 ButtonWidth READ ButtonWidth STORED false)

  public:
    // False: no button reacts.
    bool Enabled() const;
    void Enabled(bool valor);

    // The pictures, whatever becomes of the collection.
    std::int16_t ButtonCount() const noexcept { return static_cast<std::int16_t>(controles_.size()); }
    // Millimetres at the widget's logical resolution: the buttons stand ButtonWidth apart and are half a
    // millimetre less than ButtonHeight high.
    std::int16_t ButtonHeight() const noexcept { return 7; }
    std::int16_t ButtonWidth() const noexcept { return 7; }

    // The bar's collection; Item(1) is the leftmost button.
    std::shared_ptr<zel::Buttons> Buttons() const noexcept { return botones_; }

    QSize sizeHint() const override;

  signals:
    // A button has been clicked; its Value is the new one.
    void ButtonClick(const std::shared_ptr<zel::Boton>& Button);

  protected:
    struct Descripcion {
        const char* clave;
        const char* texto;
    };
    BarraDeBotones(std::initializer_list<Descripcion> descripciones, QWidget* padre);

    void resizeEvent(QResizeEvent* evento) override;
    void showEvent(QShowEvent* evento) override;

  private:
    void Agrega(const Descripcion& descripcion);
    void Coloca();
    void Pulsa(const std::shared_ptr<Boton>& boton);

    std::shared_ptr<zel::Buttons> botones_ = std::make_shared<zel::Buttons>();
    std::vector<BotonDeBarra*> controles_;
};

}  // namespace zel
