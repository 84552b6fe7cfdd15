#pragma once

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <limits>
#include <unordered_map>
#include <vector>

#include "drawing/Marco.h"

namespace zel {

class Elemento;

// A rectangle of the world in which sums of 32-bit coordinates keep their digits.
struct Recuadro {
    double Xmin = std::numeric_limits<double>::max();
    double Ymin = std::numeric_limits<double>::max();
    double Xmax = std::numeric_limits<double>::lowest();
    double Ymax = std::numeric_limits<double>::lowest();

    static Recuadro De(const Marco& m) noexcept { return {m.Xmin, m.Ymin, m.Xmax, m.Ymax}; }
    // That much wider, and by what is lost where coordinates are rounded to 32 bits.
    static Recuadro ConHolgura(const Marco& m, double margen) noexcept {
        const double mayor = std::max({std::abs(double{m.Xmin}), std::abs(double{m.Xmax}),
                                       std::abs(double{m.Ymin}), std::abs(double{m.Ymax}), margen});
        const double holgura = margen + 1e-6 * mayor;
        return {m.Xmin - holgura, m.Ymin - holgura, m.Xmax + holgura, m.Ymax + holgura};
    }
    static Recuadro Alrededor(PuntoXY p, double margen) noexcept {
        return {p.X - margen, p.Y - margen, p.X + margen, p.Y + margen};
    }

    // Also when a side is no number.
    bool Vacio() const noexcept { return !(Xmin <= Xmax && Ymin <= Ymax); }
    bool Toca(const Recuadro& otro) const noexcept {
        return Xmin <= otro.Xmax && otro.Xmin <= Xmax && Ymin <= otro.Ymax && otro.Ymin <= Ymax;
    }
    // Strictly inside.
    bool Contiene(PuntoXY p) const noexcept { return Xmin < p.X && p.X < Xmax && Ymin < p.Y && p.Y < Ymax; }
};

// Elements by the boxes that they take up in the world. A hierarchy of grids, each with cells twice as wide
// as the one below: a box goes into the first grid whose cells are as large as it is, and there into four
// cells at most, so that neither a small box nor one that spans the world costs more than another.
class RejillaEspacial {
  public:
    void Vacia() noexcept;
    void Reserva(std::size_t elementos);
    // Puts the element into that box, instead of the one that it had; into none when it is empty.
    void Pon(const Elemento& elemento, const Recuadro& recuadro);
    // The element need not exist any more, nor be here.
    void Quita(const Elemento* elemento) noexcept;

    // Calls accion(const Elemento&, const Recuadro&) with those whose box touches the region, in no special
    // order; the same one may come up to four times.
    template <typename Accion>
    void Visita(const Recuadro& region, Accion accion) const {
        if (region.Vacio()) return;
        for (int n = 0; n < NIVELES; ++n) {
            const Nivel& nivel = niveles_[static_cast<std::size_t>(n)];
            if (nivel.empty()) continue;
            const Celdas celdas = CeldasDe(region, n);
            if (celdas.Cuantas() > static_cast<std::int64_t>(nivel.size())) {
                for (const auto& [clave, primera] : nivel)
                    VisitaCelda(primera, region, accion);
                continue;
            }
            celdas.Recorre([&](std::uint64_t clave) {
                const auto celda = nivel.find(clave);
                if (celda != nivel.end()) VisitaCelda(celda->second, region, accion);
            });
        }
    }

  private:
    static constexpr int NIVELES = 24;
    static constexpr std::size_t CELDAS_POR_FICHA = 4;
    static constexpr std::int32_t NINGUNA = -1;

    using Nivel = std::unordered_map<std::uint64_t, std::int32_t>;  // a cell's first entry

    struct Celdas {
        std::int32_t x0, y0, x1, y1;
        std::int64_t Cuantas() const noexcept { return std::int64_t{x1 - x0 + 1} * (y1 - y0 + 1); }
        template <typename Accion>
        void Recorre(Accion accion) const {
            for (std::int32_t y = y0; y <= y1; ++y) {
                for (std::int32_t x = x0; x <= x1; ++x)
                    accion(std::uint64_t{static_cast<std::uint32_t>(y)} << 32 |
                           static_cast<std::uint32_t>(x));
            }
        }
    };
    // An entry of a cell, number 4 f + i for the i-th cell of the card f; the entries of a cell are a list.
    struct Entrada {
        std::uint64_t celda = 0;
        std::int32_t anterior = NINGUNA;
        std::int32_t siguiente = NINGUNA;
    };
    struct Ficha {
        const Elemento* elemento = nullptr;
        Recuadro recuadro;
        std::int32_t nivel = 0;
        std::size_t cuantas = 0;
        std::array<Entrada, CELDAS_POR_FICHA> entradas;
    };

    static Celdas CeldasDe(const Recuadro& recuadro, int nivel) noexcept;
    static int NivelDe(const Recuadro& recuadro) noexcept;

    const Ficha& FichaDe(std::int32_t entrada) const noexcept {
        return fichas_[static_cast<std::size_t>(entrada) / CELDAS_POR_FICHA];
    }
    Entrada& EntradaDe(std::int32_t entrada) noexcept {
        const auto i = static_cast<std::size_t>(entrada);
        return fichas_[i / CELDAS_POR_FICHA].entradas[i % CELDAS_POR_FICHA];
    }
    template <typename Accion>
    void VisitaCelda(std::int32_t entrada, const Recuadro& region, Accion& accion) const {
        while (entrada != NINGUNA) {
            const Ficha& ficha = FichaDe(entrada);
            if (ficha.recuadro.Toca(region)) accion(*ficha.elemento, ficha.recuadro);
            entrada = ficha.entradas[static_cast<std::size_t>(entrada) % CELDAS_POR_FICHA].siguiente;
        }
    }
    std::int32_t FichaNueva();
    void Coloca(std::int32_t ficha);
    void Descoloca(std::int32_t ficha) noexcept;

    std::array<Nivel, NIVELES> niveles_;
    std::vector<Ficha> fichas_;
    std::vector<std::int32_t> libres_;
    std::unordered_map<const Elemento*, std::int32_t> lugares_;
};

}  // namespace zel
