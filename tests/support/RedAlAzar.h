#pragma once

#include <limits>
#include <random>

#include "support/Relato.h"

namespace zel::pruebas {

// A schematic that changes at random, the same way every time, values that are no sense included.
class RedAlAzar {
  public:
    RedAlAzar(int cuantos, float lado) : lado_(lado) { Renueva(cuantos); }

    std::shared_ptr<Elementos> elementos;

    // Another collection.
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
        Elemento& e = *elementos->Item(1 + Hasta(elementos->Count()));
        const auto trazado = e.Trazado();
        switch (Hasta(16)) {
            case 0:
                return e.XPos(Coordenada());
            case 1:
                return e.YPos(Coordenada());
            case 2:
                return e.Tamanyo(static_cast<float>(Hasta(70)) / 2);
            case 3:
                return e.Tipo(Tipo());
            case 4:
                return e.ElemIni(Codigo());
            case 5:
                return e.ElemFin(Codigo());
            case 6:
                return e.ConecSec1(Codigo());
            case 7:
                return e.ConecSec2(Hasta(2) ? -1 : Codigo());
            case 8:
                return e.EtiquetaPosX(Coordenada() - e.XPos());
            case 9:
                return e.MostrarEtiqueta(Hasta(2) == 0);
            case 10:
                return e.EtiquetaTamanyo(static_cast<float>(Hasta(30)) / 10);
            case 11:
                return e.Nombre(std::string(static_cast<std::size_t>(Hasta(30)), 'n') + "\ny más");
            case 12:
                return e.Trazado(Hasta(4) == 0 ? nullptr : Hasta(3) == 0 ? Otra().Trazado() : Nueva());
            case 13:
                if (trazado && trazado->Count())
                    trazado->Item(1 + Hasta(trazado->Count()))->XPos(Coordenada());
                return;
            case 14:
                if (trazado && Hasta(3)) return void(trazado->Add(Coordenada(), Coordenada()));
                if (trazado && trazado->Count()) trazado->Remove(1);
                return;
            default:
                if (Hasta(2)) elementos->Remove(1 + Hasta(elementos->Count()));
                Agrega();
        }
    }

  private:
    Elemento& Otra() { return *elementos->Item(1 + Hasta(elementos->Count())); }
    TipoElemento Tipo() { return static_cast<TipoElemento>(Hasta(40) == 0 ? -1 : Hasta(17)); }
    // Short, as most are.
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
