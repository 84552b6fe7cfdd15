#pragma once

#include <memory>
#include <string>

#include "platform/Variante.h"

namespace zel {

// The label that shows a field of the status bar.
class ControlDePanel {
  public:
    ControlDePanel() = default;
    ControlDePanel(const ControlDePanel&) = delete;
    ControlDePanel& operator=(const ControlDePanel&) = delete;
    virtual ~ControlDePanel() = default;

    virtual std::string Caption() const = 0;
    virtual void Caption(const std::string& texto) = 0;
};

// A field of the status bar.
class Panel : public Objeto {
  public:
    const std::string& Key() const noexcept { return clave_; }
    void Key(std::string valor) { clave_ = std::move(valor); }

    const Variante& Texto() const noexcept { return texto_; }
    // The label shows it at once. Fails with 13 for an object, and then changes nothing.
    void Texto(const Variante& valor) {
        const std::string texto = valor.Texto();
        texto_ = valor;
        if (control_) control_->Caption(texto);
    }
    // A reference is kept and shown nowhere.
    template <typename T>
    void Texto(std::shared_ptr<T> valor) {
        texto_ = Variante(std::move(valor));
    }

    const std::shared_ptr<ControlDePanel>& Control() const noexcept { return control_; }
    void Control(std::shared_ptr<ControlDePanel> valor) { control_ = std::move(valor); }

  private:
    std::string clave_;
    Variante texto_;
    std::shared_ptr<ControlDePanel> control_;
};

}  // namespace zel
