#pragma once

#include <string>

#include "azar/Mesa.h"

namespace zel::azar {

// What holds after every gesture, whatever it was.
class Comprobaciones {
  public:
    explicit Comprobaciones(Mesa& mesa);

    // `conPanel`: the panel is compared with a fresh repaint too, which brings it up to date.
    void TrasUnGesto(const Gesto& g, bool conPanel);

  private:
    void MiraElEsquema();
    void MiraLosExtremos();
    void MiraLoQueSeGuarda(const std::string& bytes);
    void MiraElPanel(bool seMovia);

    Mesa& mesa_;
    int pulsaciones_ = 0;
    std::int32_t cuantos_ = 0;
    std::string bytes_;    // of the elements, as they were saved after the gesture before
    std::string limpios_;  // the same when the schematic was last not marked as changed
};

}  // namespace zel::azar
