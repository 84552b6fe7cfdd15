#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

#include "session/Anfitrion.h"

namespace zel::pruebas {

// A host that writes down what the editor asks of it.
class AnfitrionAnotador : public Anfitrion {
  public:
    void TextoEstado(int panel, const std::string& texto) override { textos[panel] = texto; }
    void SueltaBotones(Barra barra) override { pulsados[barra].clear(); }
    void PulsaBoton(Barra barra, std::string_view clave) override { pulsados[barra].emplace(clave); }
    bool BotonPulsado(Barra barra, std::string_view clave) const override {
        const auto lugar = pulsados.find(barra);
        return lugar != pulsados.end() && lugar->second.contains(std::string(clave));
    }
    void BarraElementosActiva(bool activa) override { barraActiva = activa; }
    void PeticionBorrado(std::int32_t codigo) override { borrados.push_back(codigo); }

    std::map<int, std::string> textos;
    std::map<Barra, std::set<std::string>> pulsados;
    bool barraActiva = true;
    std::vector<std::int32_t> borrados;
};

}  // namespace zel::pruebas
