#pragma once

#include <map>
#include <string>

#include "session/Anfitrion.h"

namespace zel::pruebas {

// A host that writes down what the editor asks of it.
class AnfitrionAnotador : public Anfitrion {
  public:
    void TextoEstado(int panel, const std::string& texto) override { textos[panel] = texto; }
    std::map<int, std::string> textos;
};

}  // namespace zel::pruebas
