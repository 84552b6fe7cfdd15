#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "model/Elemento.h"

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
    // A click on a button; a disabled one ignores it, or one of a disabled bar. What may happen meanwhile is
    // what may in the events below.
    virtual void HazClic(Barra barra, std::string_view clave) = 0;
    // Whether elements can be created.
    virtual void BarraElementosActiva(bool activa) = 0;

    // The host's events. While it answers, anything may happen to the viewer: each one raises when the viewer
    // is gone, and has dropped a selection that is no element of the schematic any more. References come
    // back as the host has left them.
    virtual void MouseDown(std::int16_t& Button, std::int16_t& Shift, float& X, float& Y) = 0;
    virtual void Click() = 0;
    virtual void DblClick() = 0;
    virtual void ElementoSeleccionado(std::int32_t gfCodSIG) = 0;
    virtual void CreacionNuevoElemento(const std::string& Tipo, std::int32_t ElemIni,
                                       std::int32_t ElemFin) = 0;
    virtual void ElementoMovido(const std::shared_ptr<Elemento>& elem) = 0;
    virtual void ElementoModificado(const std::shared_ptr<Elemento>& elem) = 0;
    virtual void EditarElemento(std::int32_t gfCodSIG) = 0;
    virtual void AdjuntarArchivo(std::int32_t gfCodSIG) = 0;
    virtual void AdjuntarVer(std::int32_t gfCodSIG) = 0;
    // The user wants the element with that code deleted.
    virtual void PeticionBorrado(std::int32_t gfCodSIG) = 0;

    // Opens the context menu at the mouse.
    virtual void LanzaMenu() = 0;
};

}  // namespace zel
