#pragma once

namespace zel {

// A picture that a surface can paint. What it is made of is known to the platform alone.
class Imagen {
  public:
    Imagen() = default;
    Imagen(const Imagen&) = delete;
    Imagen& operator=(const Imagen&) = delete;
    virtual ~Imagen() = default;

    // Pixels.
    virtual int Ancho() const noexcept = 0;
    virtual int Alto() const noexcept = 0;
};

}  // namespace zel
