#pragma once

#include <functional>
#include <map>
#include <set>
#include <string>
#include <utility>

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
    void HazClic(Barra, std::string_view clave) override { Anota("Clic " + std::string(clave)); }
    void BarraElementosActiva(bool activa) override { barraActiva = activa; }
    void MouseDown(std::int16_t& Button, std::int16_t& Shift, float& X, float& Y) override {
        Anota("MouseDown " + std::to_string(Button) + " " + std::to_string(Shift));
        if (alPulsar) alPulsar(Button, Shift, X, Y);
    }
    void Click() override { Anota("Click"); }
    void DblClick() override { Anota("DblClick"); }
    void ElementoSeleccionado(std::int32_t codigo) override {
        Anota("Seleccionado " + std::to_string(codigo));
    }
    void CreacionNuevoElemento(const std::string& Tipo, std::int32_t ElemIni, std::int32_t ElemFin) override {
        Anota("Creado " + Tipo + " " + std::to_string(ElemIni) + "-" + std::to_string(ElemFin));
    }
    void ElementoMovido(const std::shared_ptr<Elemento>& e) override {
        Anota("Movido " + std::to_string(e->gfCodSIG()));
    }
    void ElementoModificado(const std::shared_ptr<Elemento>& e) override {
        Anota("Modificado " + std::to_string(e->gfCodSIG()));
    }
    void EditarElemento(std::int32_t codigo) override { Anota("Editar " + std::to_string(codigo)); }
    void AdjuntarArchivo(std::int32_t codigo) override { Anota("Adjuntar " + std::to_string(codigo)); }
    void AdjuntarVer(std::int32_t codigo) override { Anota("Ver " + std::to_string(codigo)); }
    void PeticionBorrado(std::int32_t codigo) override { Anota("Borrar " + std::to_string(codigo)); }
    void LanzaMenu() override { Anota("Menu"); }

    // "MouseDown 1 0; Seleccionado 3", and begins anew.
    std::string Eventos() { return std::exchange(eventos, {}); }

    std::map<int, std::string> textos;
    std::map<Barra, std::set<std::string>> pulsados;
    bool barraActiva = true;
    std::function<void(std::int16_t&, std::int16_t&, float&, float&)> alPulsar;
    std::function<void(const std::string&)> alAnotar;  // what the host does in its event

  private:
    void Anota(const std::string& evento) {
        eventos += (eventos.empty() ? "" : "; ") + evento;
        if (alAnotar) alAnotar(evento);
    }
    std::string eventos;
};

}  // namespace zel::pruebas
