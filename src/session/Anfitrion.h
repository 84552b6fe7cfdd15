#pragma once

#include <string>

namespace zel {

// What the editor asks of whoever hosts it.
class Anfitrion {
  public:
    Anfitrion() = default;
    Anfitrion(const Anfitrion&) = delete;
    Anfitrion& operator=(const Anfitrion&) = delete;
    virtual ~Anfitrion() = default;

    // Puts a text in a panel of the status bar, counted from 1.
    virtual void TextoEstado(int panel, const std::string& texto) = 0;
};

}  // namespace zel
