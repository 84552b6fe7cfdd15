#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "platform/Imagen.h"
#include "platform/Variante.h"

namespace zel {

// What shows a button.
class ControlDeBoton {
  public:
    ControlDeBoton() = default;
    ControlDeBoton(const ControlDeBoton&) = delete;
    ControlDeBoton& operator=(const ControlDeBoton&) = delete;
    virtual ~ControlDeBoton() = default;

    // 1: with a frame, as a pressed button; 0: without.
    virtual std::int16_t BorderStyle() const noexcept = 0;
    virtual void BorderStyle(std::int16_t valor) = 0;
    // Millimetres.
    virtual std::int16_t Heigt() const noexcept = 0;
};

// A button of a bar.
class Boton : public Objeto {
  public:
    // The tool's name.
    const std::string& Key() const noexcept { return clave_; }
    void Key(std::string valor) { clave_ = std::move(valor); }

    const std::shared_ptr<ControlDeBoton>& Control() const noexcept { return control_; }
    void Control(std::shared_ptr<ControlDeBoton> valor) { control_ = std::move(valor); }

    // 1: pressed; 0: released. The control's frame follows.
    std::int16_t Value() const noexcept { return valor_; }
    void Value(std::int16_t valor) {
        valor_ = valor;
        if (control_) control_->BorderStyle(valor);
    }

    const std::shared_ptr<const Imagen>& Image() const noexcept { return imagen_; }
    void Image(std::shared_ptr<const Imagen> valor) { imagen_ = std::move(valor); }

    // The height of its control, in millimetres.
    std::int16_t Heigt() const noexcept { return alto_; }
    void Heigt(std::int16_t valor) noexcept { alto_ = valor; }

  private:
    std::string clave_;
    std::shared_ptr<ControlDeBoton> control_;
    std::shared_ptr<const Imagen> imagen_;
    std::int16_t valor_ = 0;
    std::int16_t alto_ = 0;
};

}  // namespace zel
