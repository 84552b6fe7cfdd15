#include "bars/Buttons.h"

namespace zel {

std::shared_ptr<Boton> Buttons::Add(const std::string& Key, std::int16_t Heigt,
                                    const std::shared_ptr<const Imagen>& Image, std::int16_t Value,
                                    const std::shared_ptr<ControlDeBoton>& Control, std::string& sKey) {
    auto boton = std::make_shared<Boton>();
    boton->Key(Key);
    boton->Control(Control);
    boton->Heigt(Heigt);
    if (Image) boton->Image(Image);
    sKey = boton->Key();
    Guarda(boton, boton->Key());
    // Last: a refused button leaves the control as it was.
    boton->Value(Value);
    return boton;
}

}  // namespace zel
