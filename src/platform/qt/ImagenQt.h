#pragma once

#include <QImage>

#include "platform/Imagen.h"

namespace zel {

// A picture on Qt.
class ImagenQt : public Imagen {
  public:
    explicit ImagenQt(QImage imagen) : imagen_(std::move(imagen)) {}

    const QImage& Datos() const noexcept { return imagen_; }
    int Ancho() const noexcept override { return imagen_.width(); }
    int Alto() const noexcept override { return imagen_.height(); }

  private:
    QImage imagen_;
};

}  // namespace zel
