#pragma once

#include <functional>
#include <limits>
#include <random>

#include "support/Relato.h"

namespace zel::pruebas {

// A schematic that changes at random, the same way every time, values that are no sense included.
class RedAlAzar {
  public:
    RedAlAzar(int cuantos, float lado) : lado_(lado) { Renueva(cuantos); }

    std::shared_ptr<Elementos> elementos;

    void Renueva(int cuantos) {
        elementos = std::make_shared<Elementos>();
        while (elementos->Count() < cuantos)
            Agrega();
    }

    int Hasta(int n) { return static_cast<int>(azar_() % static_cast<unsigned>(n)); }
    float Coordenada() {
        constexpr float RARAS[] = {std::numeric_limits<float>::quiet_NaN(), -1e7F, 3e38F};
        if (Hasta(200) == 0) return RARAS[Hasta(3)];
        return lado_ * static_cast<float>(Hasta(100000)) / 100000;
    }
    std::int32_t Codigo() { return Hasta(ultimo_ + 2); }

    void Cambia() {
        Elemento& e = Uno();
        const auto trazado = e.Trazado();
        const bool conPuntos = trazado && trazado->Count() > 0;
        const std::function<void()> cambios[] = {
            [&] { e.XPos(Coordenada()), e.YPos(Coordenada()); },
            [&] { e.Tamanyo(static_cast<float>(Hasta(70)) / 2); },
            [&] { e.Tipo(Tipo()); },
            [&] { Hasta(2) ? e.ElemIni(Codigo()) : e.ElemFin(Codigo()); },
            [&] { Hasta(2) ? e.ConecSec1(Codigo()) : e.ConecSec2(Hasta(2) ? -1 : Codigo()); },
            [&] { e.EtiquetaPosX(Coordenada() - e.XPos()); },
            [&] { e.MostrarEtiqueta(Hasta(2) == 0); },
            [&] { e.EtiquetaTamanyo(static_cast<float>(Hasta(30)) / 10); },
            [&] { e.Nombre(std::string(static_cast<std::size_t>(Hasta(30)), 'n') + "\ny más"); },
            [&] {
                e.Trazado(Hasta(4) == 0 ? nullptr : Hasta(3) == 0 ? Uno().Trazado() : Nueva());
            },
            [&] { conPuntos ? trazado->Item(1)->XPos(Coordenada()) : e.YPos(0); },
            [&] { conPuntos ? trazado->Remove(1) : e.XPos(0); },
            [&] { Uno().Trazado(Nueva()), trazado ? void(trazado->Add(Coordenada(), 9)) : void(); },
            [&] { elementos->Remove(1 + Hasta(elementos->Count())), Agrega(); },
            [&] { Agrega(); }};
        cambios[Hasta(static_cast<int>(std::size(cambios)))]();
    }

  private:
    Elemento& Uno() { return *elementos->Item(1 + Hasta(elementos->Count())); }
    TipoElemento Tipo() { return static_cast<TipoElemento>(Hasta(40) == 0 ? -1 : Hasta(17)); }
    std::shared_ptr<Puntos> Nueva() {
        auto trazado = std::make_shared<Puntos>();
        const float x = Coordenada(), y = Coordenada();
        for (int i = Hasta(20) ? 1 + Hasta(4) : 0; i >= 0; --i)
            trazado->Add(x + static_cast<float>(Hasta(90)), y + static_cast<float>(Hasta(90)));
        return trazado;
    }
    void Agrega() {
        const std::int32_t codigo = ++ultimo_;
        const auto e = elementos->Add(Tipo(), "Elemento " + std::to_string(codigo), codigo, 7, Coordenada(),
                                      Coordenada(), Codigo(), Codigo(), Nueva(), Nueva(), "id", 5, 4);
        if (Hasta(30) == 0) e->ConecSec1(Codigo());
        if (Hasta(8) == 0) e->Tamanyo(30);
    }

    float lado_;
    std::mt19937 azar_{20};
    std::int32_t ultimo_ = 0;
};

}  // namespace zel::pruebas
