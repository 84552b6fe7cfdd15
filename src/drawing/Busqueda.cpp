#include "drawing/Busqueda.h"

#include <cmath>
#include <optional>

#include "model/TamanyoUnidad.h"
#include "platform/Numeros.h"

namespace zel {

namespace {

constexpr double MEDIO_LADO_SIMBOLO = 1.25;

class FuenteGuardada {
  public:
    explicit FuenteGuardada(Superficie& panel) noexcept : panel_(panel), puntos_(panel.FontSize()) {}
    FuenteGuardada(const FuenteGuardada&) = delete;
    FuenteGuardada& operator=(const FuenteGuardada&) = delete;
    ~FuenteGuardada() { panel_.FontSize(puntos_); }

  private:
    Superficie& panel_;
    float puntos_;
};

double Tolerancia(const Busqueda& b) noexcept {
    return double{TamanyoUnidad()} * b.factorTolerancia;
}

// The point of the segment's line that is as far from its first point as the pointer is.
bool TocaTramo(const Punto& a, const Punto& b, PuntoXY m, double tolerancia) noexcept {
    const double dx = double{b.XPos()} - a.XPos();
    const double dy = double{b.YPos()} - a.YPos();
    const double mx = double{m.X} - a.XPos();
    const double my = double{m.Y} - a.YPos();
    const double largo = std::hypot(dx, dy);
    const double distancia = std::hypot(mx, my);
    if (largo == 0 || distancia > largo + tolerancia) return false;
    const double parte = distancia / largo;
    return std::hypot(mx - parte * dx, my - parte * dy) < tolerancia;
}

// The number of the first segment hit, 0 for none.
std::int32_t TramoTocado(const Puntos* trazado, const Busqueda& b) {
    if (!trazado) return 0;
    const double editado = trazado->Valor() > 0 ? RedondeaPar(trazado->Valor()) : 0;
    const Punto* anterior = nullptr;
    std::int32_t numero = 0;
    for (const auto& punto : *trazado) {
        if (anterior && numero != editado && TocaTramo(*anterior, *punto, b.punto, Tolerancia(b)))
            return numero;
        anterior = punto.get();
        ++numero;
    }
    return 0;
}

bool TocaSimbolo(const Elemento& e, const Busqueda& b) noexcept {
    if (b.bSinSimbolos || !TieneSimbolo(e.Tipo())) return false;
    if (EsLineal(e.Tipo()) && e.Trazado() && e.Trazado()->Valor2() != 0) return false;
    return Recuadro::Alrededor({e.XPos(), e.YPos()}, MEDIO_LADO_SIMBOLO * TamanyoUnidad()).Contiene(b.punto);
}

bool EstaExcluido(const Elemento& e, const Busqueda& b) {
    return b.excluidos && b.excluidos->contains(e.gfCodSIG());
}

bool SeEdita(const Elemento& e) noexcept {
    const Puntos* trazado = e.Trazado() ? e.Trazado().get() : e.Trazado2().get();
    return trazado && trazado->Valor() > 0;
}

bool SeMira(const Elemento& e, const Busqueda& b) {
    return b.bSoloTramos || !EstaExcluido(e, b) || (EsLineal(e.Tipo()) && SeEdita(e));
}

std::optional<ElementoHallado> BuscaEnCuerpo(const Elemento& e, const Busqueda& b) {
    const TipoElemento tipo = e.Tipo();
    if (TocaSimbolo(e, b)) return ElementoHallado{&e, PARTE_SIMBOLO, true, 0};
    if (!TipoConocido(tipo) || !EsLineal(tipo) || (b.bSoloTramos && EstaExcluido(e, b))) return std::nullopt;
    if (const std::int32_t tramo = TramoTocado(e.Trazado().get(), b))
        return ElementoHallado{&e, PARTE_TRAZADO, !TieneSimbolo(tipo), Estrecha16(tramo)};
    if (tipo != ctCentralHidroelectrica) return std::nullopt;
    if (const std::int32_t tramo = TramoTocado(e.Trazado2().get(), b))
        return ElementoHallado{&e, PARTE_TRAZADO2, false, Estrecha16(tramo)};
    return std::nullopt;
}

// `visitaCuerpos` and `visitaEtiquetas` call what they are given with the candidates in any order, each with
// its place in the collection and, for labels, its box.
template <typename VisitaCuerpos, typename VisitaEtiquetas>
ElementoHallado BuscaEntre(Superficie& panel, const AjustesDibujo& ajustes, const Busqueda& b,
                           VisitaCuerpos visitaCuerpos, VisitaEtiquetas visitaEtiquetas) {
    ElementoHallado hallado;
    std::uint64_t ordenHallado = 0;
    visitaCuerpos([&](const Elemento& e, std::uint64_t orden) {
        if ((hallado.elemento && orden >= ordenHallado) || !SeMira(e, b)) return;
        if (const auto cuerpo = BuscaEnCuerpo(e, b)) {
            hallado = *cuerpo;
            ordenHallado = orden;
        }
    });
    if (hallado.elemento || b.bSinEtiquetas || !ajustes.bMostrarEtiquetas) return hallado;
    const FuenteGuardada fuente(panel);
    visitaEtiquetas([&](const Elemento& e, std::uint64_t orden, const Recuadro& recuadro) {
        if ((hallado.elemento && orden <= ordenHallado) || !recuadro.Contiene(b.punto) || !SeMira(e, b))
            return;
        hallado = {&e, PARTE_ETIQUETA, true, 0};
        ordenHallado = orden;
    });
    return hallado;
}

}  // namespace

ElementoHallado Busca(Superficie& panel, const AjustesDibujo& ajustes, IndiceDeElementos& indice,
                      const Busqueda& b) {
    // A segment is hit up to the tolerance beyond its end, and there as far beside it. The last term is for
    // the rounding of the two sides of a comparison.
    const double margen = std::max(MEDIO_LADO_SIMBOLO * TamanyoUnidad(), 2 * Tolerancia(b)) + 1e-3;
    return BuscaEntre(
        panel, ajustes, b,
        [&](auto prueba) {
            indice.VisitaCuerpos(Recuadro::Alrededor(b.punto, margen),
                                 [&](const Elemento& e, const Recuadro&) { prueba(e, e.Orden()); });
        },
        [&](auto prueba) {
            indice.VisitaEtiquetas(
                panel, ajustes, Recuadro::Alrededor(b.punto, 0),
                [&](const Elemento& e, const Recuadro& recuadro) { prueba(e, e.Orden(), recuadro); });
        });
}

ElementoHallado Busca(Superficie& panel, const AjustesDibujo& ajustes,
                      std::span<const Elemento* const> elementos, const Busqueda& b) {
    return BuscaEntre(
        panel, ajustes, b,
        [&](auto prueba) {
            for (std::size_t i = 0; i < elementos.size(); ++i)
                prueba(*elementos[i], i);
        },
        [&](auto prueba) {
            for (std::size_t i = 0; i < elementos.size(); ++i)
                prueba(*elementos[i], i, RecuadroDeEtiqueta(panel, ajustes, *elementos[i]));
        });
}

bool HayElementoBajoEtiqueta(IndiceDeElementos& indice, PuntoXY origen, PuntoXY tamanyo) {
    const double u = TamanyoUnidad();
    const Recuadro region{origen.X - u, double{origen.Y} + tamanyo.Y - u, double{origen.X} + tamanyo.X + u,
                          origen.Y + u};
    bool hay = false;
    indice.VisitaCuerpos(region, [&](const Elemento& e, const Recuadro&) {
        const Recuadro centro{e.XPos(), e.YPos(), e.XPos(), e.YPos()};
        hay = hay || (TieneSimbolo(e.Tipo()) && centro.Toca(region));
    });
    return hay;
}

}  // namespace zel
