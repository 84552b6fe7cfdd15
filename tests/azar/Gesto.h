#pragma once

#include <array>
#include <cstdint>
#include <istream>
#include <ostream>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "editing/Menus.h"

namespace zel::azar {

// What the user does at one go. Its numbers are turned into an element, a place, a button... by what there is
// when it is done, so that a sequence from which some are taken away can still be done.
enum class Que : std::uint8_t {
    Pulsa,
    Mueve,
    Suelta,
    Clic,
    DobleClic,
    Rueda,
    Tecla,
    TeclaAbajo,
    TeclaArriba,
    Menu,
    Boton,
    Barra,
    Ventana,
    Foco,
    CuadroDeImagen,
    Edita,
    Guarda,
    Abre,
    Nuevo,
    Anfitrion,
};

constexpr std::array<std::string_view, 20> NOMBRES = {
    "pulsa",      "mueve",       "suelta", "clic",  "dobleclic", "rueda",    "tecla",
    "teclaabajo", "teclaarriba", "menu",   "boton", "barra",     "ventana",  "foco",
    "cuadro",     "edita",       "guarda", "abre",  "nuevo",     "anfitrion"};

// Of a place: the selected element; its label, a point of its trace (the first; five more for each next), the
// middle of its symbol.
constexpr unsigned ELEGIDO = 3;
constexpr unsigned ETIQUETA = 0, VERTICE = 2, CENTRO = 3;

struct Gesto {
    Que que = Que::Mueve;
    std::array<unsigned, 4> n{};
};

inline std::ostream& operator<<(std::ostream& salida, const Gesto& g) {
    salida << NOMBRES[static_cast<std::size_t>(g.que)];
    for (const unsigned n : g.n)
        salida << ' ' << n;
    return salida;
}

// One to a line; what cannot be read ends the sequence and marks the stream as failed.
inline std::vector<Gesto> LeeGestos(std::istream& entrada) {
    std::vector<Gesto> gestos;
    std::string nombre;
    while (entrada >> nombre) {
        std::size_t cual = 0;
        while (cual < NOMBRES.size() && NOMBRES[cual] != nombre)
            ++cual;
        Gesto g;
        for (unsigned& n : g.n)
            entrada >> n;
        if (cual == NOMBRES.size() || !entrada) {
            entrada.setstate(std::ios::badbit);
            break;
        }
        g.que = static_cast<Que>(cual);
        gestos.push_back(g);
    }
    return gestos;
}

// What a user of that seed does: single gestures, and those that belong together.
class Caprichos {
  public:
    explicit Caprichos(unsigned semilla) : azar_(semilla) {}

    std::vector<Gesto> Gestos(std::size_t cuantos) {
        std::vector<Gesto> gestos;
        while (gestos.size() < cuantos)
            Agrega(gestos);
        gestos.resize(cuantos);
        return gestos;
    }

  private:
    unsigned Hasta(unsigned n) { return static_cast<unsigned>(azar_()) % n; }
    Gesto Uno(Que que) { return {que, {Hasta(1000), Hasta(1000), Hasta(1000), Hasta(1000)}}; }
    void Varios(std::vector<Gesto>& gestos, std::initializer_list<Que> que) {
        for (const Que q : que)
            gestos.push_back(Uno(q));
    }
    // The left button, with no key, just there.
    static Gesto Izquierdo(Que que, unsigned elemento, unsigned lugar) {
        return {que, {15, elemento, lugar, 1}};
    }
    void Arrastra(std::vector<Gesto>& gestos) {
        using enum Que;
        constexpr Que ENMEDIO[] = {Que::Tecla, Que::Menu, Que::Barra, Que::Rueda, Que::Anfitrion, Que::Foco};
        gestos.push_back(Uno(Mueve));
        for (unsigned i = Hasta(4); i > 0; --i)
            gestos.push_back(Uno(Mueve));
        if (Hasta(3) == 0) Varios(gestos, {ENMEDIO[Hasta(std::size(ENMEDIO))], Mueve});
        gestos.push_back(Uno(Suelta));
    }
    void Agrega(std::vector<Gesto>& gestos) {
        using enum Que;
        const unsigned suerte = Hasta(100);
        if (suerte < 46 && Hasta(3)) gestos.push_back({Tecla, {}});  // Escape, alone
        if (suerte < 14) {
            // An element is chosen and dragged, or its label.
            gestos.push_back(Izquierdo(Clic, Hasta(1000), Hasta(1000)));
            gestos.push_back(Izquierdo(Pulsa, ELEGIDO, Hasta(3) ? CENTRO : ETIQUETA));
            Arrastra(gestos);
        } else if (suerte < 17) {
            // The view, by one of its tools.
            Varios(gestos, {Boton, Pulsa});
            gestos[gestos.size() - 2].n[0] = 0;
            Arrastra(gestos);
        } else if (suerte < 25) {
            // A point of a trace, on one of the conduits that there are in the beginning.
            const auto vertice = [this] { return VERTICE + 5 * (1 + Hasta(2)); };
            gestos.push_back(Izquierdo(Clic, 8 + Hasta(9), vertice()));
            gestos.push_back({Menu, {0, unsigned(ItemDeMenu::menuContextualNodosConduccion), 0, 0}});
            for (int i = 0; i < 2; ++i) {
                gestos.push_back(Izquierdo(Mueve, ELEGIDO, vertice()));
                gestos.push_back(Izquierdo(Pulsa, ELEGIDO, gestos.back().n[2]));
                Arrastra(gestos);
            }
        } else if (suerte < 36) {
            // A tool, and clicks until something is created.
            gestos.push_back(Uno(Boton));
            for (unsigned i = 1 + Hasta(5); i > 0; --i)
                Varios(gestos, {Mueve, Clic});
        } else if (suerte < 46) {
            Varios(gestos, {Clic, Menu});
            for (unsigned i = Hasta(4); i > 0; --i)
                gestos.push_back(Uno(i % 2 ? Clic : Mueve));
            if (Hasta(3) == 0) {
                gestos.push_back(Uno(Pulsa));
                Arrastra(gestos);
            }
        } else {
            constexpr Que SUELTOS[] = {Pulsa,       Mueve,       Mueve,          Mueve,          Suelta,
                                       Clic,        Clic,        Clic,           DobleClic,      Rueda,
                                       Rueda,       Tecla,       Tecla,          Tecla,          TeclaAbajo,
                                       TeclaArriba, TeclaArriba, Menu,           Menu,           Boton,
                                       Boton,       Barra,       CuadroDeImagen, CuadroDeImagen, Ventana,
                                       Foco,        Edita,       Anfitrion,      Anfitrion,      Guarda,
                                       Abre};
            gestos.push_back(Uno(SUELTOS[Hasta(std::size(SUELTOS))]));
            if (Hasta(150) == 0) gestos.push_back(Uno(Nuevo));
        }
    }

    std::mt19937 azar_;
};

}  // namespace zel::azar
