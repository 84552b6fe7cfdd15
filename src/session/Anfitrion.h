#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace zel {

// The two button bars.
enum class Barra { Elementos, Vista };

// What the editor asks of whoever hosts it.
class Anfitrion {
  public:
    Anfitrion() = default;
    Anfitrion(const Anfitrion&) = delete;
    Anfitrion& operator=(const Anfitrion&) = delete;
    virtual ~Anfitrion() = default;

    // Puts a text in a panel of the status bar, counted from 1.
    virtual void TextoEstado(int panel, const std::string& texto) = 0;

    // How the buttons look; a key that the bar has not is ignored.
    virtual void SueltaBotones(Barra barra) = 0;
    virtual void PulsaBoton(Barra barra, std::string_view clave) = 0;
    virtual bool BotonPulsado(Barra barra, std::string_view clave) const = 0;
    // Whether elements can be created.
    virtual void BarraElementosActiva(bool activa) = 0;

    // The user wants the element with that code deleted.
    virtual void PeticionBorrado(std::int32_t gfCodSIG) = 0;
};

}  // namespace zel
