#include "drawing/Busqueda.h"

#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <random>

#include "support/Relato.h"

namespace zel::pruebas {
namespace {

using Codigos = std::unordered_set<std::int32_t>;

// "code part segment", with "c" for the element itself; "nada" for nothing.
std::string Dicho(const ElementoHallado& h) {
    if (!h.elemento) return "nada";
    return std::to_string(h.elemento->gfCodSIG()) + " p" + std::to_string(h.iParte) + (h.bCuerpo ? "c" : "") +
           " s" + std::to_string(h.iSegmento);
}

struct Plano {
    explicit Plano(std::vector<Elemento> nuevos) {
        Numera(*elementos, std::move(nuevos));
        indice.Ata(elementos);
    }
    std::string En(PuntoXY p, Busqueda b = {}) {
        b.punto = p;
        return Dicho(Busca(panel, Ajustes(), indice, b));
    }
    std::shared_ptr<Elementos> elementos = std::make_shared<Elementos>();
    IndiceDeElementos indice;
    SuperficieGrabadora panel;
};

TEST(Busqueda, HitsEachPartOfEachKindWithinItsTolerance) {
    constexpr float NAN_ = std::numeric_limits<float>::quiet_NaN();
    constexpr float INF = std::numeric_limits<float>::infinity();
    const Vertices recta = {{0, 0}, {20, 0}};
    const Vertices codo = {{0, 0}, {20, 0}, {20, 0}, {20, 30}};
    const Elemento nudo = Simbolo(ctNudo, {0, 0}, 3);
    const Elemento central = Lineal(ctCentralHidroelectrica, {50, 0}, recta, 1, {{50, 0}, {50, 40}});
    Elemento moviendo = central;
    moviendo.Trazado(Traza(recta));
    moviendo.Trazado()->Valor2(1);
    Elemento editando = Lineal(ctConduccion2, {0, 0}, codo);
    editando.Trazado()->Valor(2.5F);  // rounds to 2, the segment of no length
    Elemento editandoUno = Lineal(ctConduccion2, {0, 0}, codo);
    editandoUno.Trazado()->Valor(1);
    const struct {
        Elemento e;
        PuntoXY punto;
        const char* hallado;
    } filas[] = {
        {nudo, {4.9F, 0}, "1 p0c s0"},
        {nudo, {-4.9F, 4.9F}, "1 p0c s0"},
        {nudo, {5, 0}, "nada"},
        {nudo, {6, 0}, "nada"},
        {nudo, {0, -5}, "nada"},
        {Simbolo(ctAcuifero, {7, 7}), {8, 8}, "1 p0c s0"},
        {Simbolo(ctFlecha, {0, 0}), {0, 0}, "nada"},
        {Simbolo(TipoElemento(99), {0, 0}), {0, 0}, "nada"},
        {Lineal(ctConduccion1, {100, 100}, recta), {10, 1.9F}, "1 p1c s1"},
        {Lineal(ctConduccion1, {100, 100}, recta), {10, 2.1F}, "nada"},
        {Lineal(ctConduccion1, {100, 100}, recta), {100, 100}, "nada"},
        {Lineal(ctToma, {0, 0}, recta), {21.9F, 0}, "1 p1c s1"},
        {Lineal(ctToma, {0, 0}, recta), {22.1F, 0}, "nada"},
        {Lineal(ctToma, {0, 0}, recta), {-0.9F, 0}, "1 p1c s1"},
        {Lineal(ctToma, {0, 0}, recta), {-1.1F, 0}, "nada"},
        {Lineal(ctBombeo, {0, 0}, codo), {20, 15}, "1 p1c s3"},
        {Lineal(ctBombeo, {0, 0}, codo), {20, 0}, "1 p1c s1"},
        {editando, {20, 15}, "1 p1c s3"},
        {editandoUno, {10, 0}, "nada"},
        {editandoUno, {20, 15}, "1 p1c s3"},
        {Lineal(ctConduccion1, {0, 0}, {{0, 0}, {NAN_, 0}, {20, 0}, {20, 9}}), {20, 5}, "1 p1c s3"},
        {Lineal(ctConduccion1, {0, 0}, {{0, 0}, {INF, -INF}, {20, 0}, {20, 9}}), {20, 5}, "1 p1c s3"},
        {Lineal(ctConduccion1, {0, 0}, {{-9e8F, 0}, {9e8F, 0}}), {3, 1}, "1 p1c s1"},
        {Simbolo(ctNudo, {9e8F, 0}), {9e8F, 0}, "1 p0c s0"},
        {Simbolo(ctNudo, {NAN_, 0}), {0, 0}, "nada"},
        {nudo, {NAN_, 0}, "nada"},
        {nudo, {INF, -INF}, "nada"},
        {SinTraza(ctConduccion1, {0, 0}), {0, 0}, "nada"},
        {SinTraza(ctRetorno, {0, 0}), {0, 0}, "1 p0c s0"},
        {central, {50, 4}, "1 p0c s0"},
        {central, {10, 0}, "1 p1 s1"},
        {central, {50, 30}, "1 p2 s1"},
        {moviendo, {54, 0}, "nada"},
        {moviendo, {50, 4}, "1 p2 s1"},
        {Lineal(ctAportacion, {0, 0}, recta), {1, 0}, "1 p0c s0"},
        {Lineal(ctSubcuenca, {0, 0}, recta), {15, 0}, "1 p1 s1"},
    };
    for (const auto& fila : filas)
        EXPECT_EQ(Plano({fila.e}).En(fila.punto), fila.hallado) << "row " << &fila - filas;
}

TEST(Busqueda, TakesTheFirstBodyOrElseTheLastLabelOfThoseNotExcluded) {
    // On the recording surface "AB" is 16 wide and 16 high here.
    const Elemento conducto = Lineal(ctConduccion1, {0, 0}, {{0, 0}, {40, 0}});
    Plano plano({Rotulado("AB", {0, 0}), conducto, Simbolo(ctNudo, {40, 0}), Rotulado("AB", {4, 0}),
                 Rotulado("CD", {8, 0})});
    plano.elementos->Item(2)->MostrarEtiqueta(true);
    plano.elementos->Item(2)->Nombre("EFGH");
    const Codigos uno = {1};
    const Codigos dos = {2};
    const Codigos cinco = {5};
    const Codigos cuatroCinco = {4, 5};
    const struct {
        PuntoXY punto;
        Busqueda b;
        const char* hallado;
    } filas[] = {
        {{0, 0}, {}, "1 p0c s0"},
        {{39, 0}, {}, "2 p1c s1"},
        {{41, 3}, {}, "3 p0c s0"},
        {{0, 0}, {.excluidos = &uno}, "2 p1c s1"},
        {{39, 0}, {.excluidos = &dos}, "3 p0c s0"},
        {{39, 0}, {.excluidos = &dos, .bSoloTramos = true}, "3 p0c s0"},
        {{0, 0}, {.excluidos = &uno, .bSoloTramos = true}, "1 p0c s0"},
        {{39, 3}, {.factorTolerancia = 1}, "2 p1c s1"},
        {{0, 0}, {.bSinSimbolos = true}, "2 p1c s1"},
        {{10, -8}, {}, "5 p3c s0"},
        {{7, -8}, {}, "4 p3c s0"},
        {{10, -8}, {.excluidos = &cinco}, "4 p3c s0"},
        {{10, -8}, {.excluidos = &cuatroCinco}, "2 p3c s0"},
        {{10, -8}, {.bSinEtiquetas = true}, "nada"},
        {{31.9F, -15.9F}, {}, "2 p3c s0"},
        {{32, -8}, {}, "nada"},
        {{30, -16}, {}, "nada"},
        {{30, 3}, {}, "nada"},
    };
    for (const auto& fila : filas)
        EXPECT_EQ(plano.En(fila.punto, fila.b), fila.hallado) << "row " << &fila - filas;
    plano.elementos->Item(2)->Trazado()->Valor(7);
    EXPECT_EQ(plano.En({39, 0}, {.excluidos = &dos}), "2 p1c s1");
    EXPECT_EQ(plano.panel.FontSize(), 8);
    AjustesDibujo sinEtiquetas = Ajustes();
    sinEtiquetas.bMostrarEtiquetas = false;
    EXPECT_EQ(Dicho(Busca(plano.panel, sinEtiquetas, plano.indice, {{10, -8}})), "nada");
    // No font has this size, so no label is there.
    EXPECT_EQ(Dicho(Busca(plano.panel, Ajustes(1e35F), plano.indice, {{10, -8}})), "nada");
}

TEST(Busqueda, TellsWhetherALabelWouldCoverASymbol) {
    Plano plano({Simbolo(ctNudo, {0, 0}, 3), Lineal(ctConduccion1, {50, 50}, {{20, 0}, {40, 0}})});
    const std::tuple<PuntoXY, PuntoXY, bool> filas[] = {
        {{4, 4}, {10, -2}, true},    {{4.1F, 4}, {10, -2}, false}, {{-14, 0}, {10, -2}, true},
        {{-15, 0}, {10, -2}, false}, {{0, -4}, {10, -2}, true},    {{0, -4.1F}, {10, -2}, false},
        {{0, 6}, {10, -2}, true},    {{0, 6.1F}, {10, -2}, false}, {{22, 2}, {10, -4}, false},
        {{48, 52}, {4, -4}, false}};
    for (const auto& [origen, tamanyo, hay] : filas)
        EXPECT_EQ(HayElementoBajoEtiqueta(plano.indice, origen, tamanyo), hay) << origen.X << "," << origen.Y;
    IndiceDeElementos sinElementos;
    EXPECT_FALSE(HayElementoBajoEtiqueta(sinElementos, {0, 0}, {10, -2}));
}

// Whatever has been done to the elements, the index finds what a look at each of them finds.
TEST(Busqueda, FindsThroughTheIndexWhatItFindsWithoutIt) {
    std::mt19937 azar(20);
    const auto hasta = [&](int n) { return std::uniform_int_distribution(0, n - 1)(azar); };
    const auto coordenada = [&] { return std::uniform_real_distribution<float>(-300, 300)(azar); };
    Plano plano({});
    Elementos& elementos = *plano.elementos;
    const auto agrega = [&] {
        Vertices vertices(2 + hasta(4));
        for (PuntoXY& v : vertices)
            v = {coordenada(), coordenada()};
        Elemento e = Lineal(TipoElemento(hasta(17) - 1), {coordenada(), coordenada()}, vertices);
        if (hasta(3) == 0 && elementos.Count() > 0) e.Trazado(elementos.Item(1)->Trazado());
        e.MostrarEtiqueta(hasta(2) == 0);
        e.Nombre(std::string(hasta(9), 'x'));
        elementos.AddObjetoElemento(e, "");
    };
    for (int i = 0; i < 60; ++i)
        agrega();
    const Codigos excluidos = {0};
    float escala = 1600;
    int hallados = 0;
    for (int vuelta = 0; vuelta < 600; ++vuelta) {
        const auto e = elementos.Item(1 + hasta(elementos.Count()));
        const auto punto = e->Trazado()->Count() > 0 ? e->Trazado()->Item(1 + hasta(e->Trazado()->Count()))
                                                     : std::make_shared<Punto>();
        const std::function<void()> cambios[] = {
            [&] { e->XPos(coordenada() * (hasta(9) == 0 ? 1e5F : 1)); },
            [&] { punto->XPos(coordenada()), punto->YPos(coordenada()); },
            [&] { e->Trazado()->Add(coordenada(), coordenada()); },
            [&] { e->Nombre(std::string(hasta(30), 'y')); },
            [&] { e->Tipo(TipoElemento(hasta(16))); },
            [&] { e->EtiquetaTamanyo(0.5F * static_cast<float>(1 + hasta(6))); },
            [&] { agrega(); },
            [&] {
                if (elementos.Count() > 40) elementos.Remove(1 + hasta(elementos.Count()));
            },
            [&] { escala = 400.0F * static_cast<float>(1 + hasta(8)); },
            [&] { plano.panel.ScaleWidth(100.0F * static_cast<float>(1 + hasta(3))); },
            [&] { elementos.Remove(1), agrega(); },  // perhaps where the one removed was
        };
        cambios[hasta(std::size(cambios))]();
        std::vector<const Elemento*> todos;
        for (const auto& uno : elementos)
            todos.push_back(uno.get());
        for (int i = 0; i < 10; ++i) {
            const Busqueda b{.punto = {coordenada(), coordenada()},
                             .factorTolerancia = 0.5F * static_cast<float>(1 + hasta(3)),
                             .excluidos = hasta(5) == 0 ? &excluidos : nullptr};
            const AjustesDibujo ajustes = Ajustes(escala);
            const auto hallado = Busca(plano.panel, ajustes, plano.indice, b);
            ASSERT_EQ(hallado.elemento, Busca(plano.panel, ajustes, todos, b).elemento) << vuelta;
            hallados += hallado.elemento != nullptr;
        }
    }
    EXPECT_GT(hallados, 2000);
    EXPECT_LT(hallados, 5000);
}

}  // namespace
}  // namespace zel::pruebas
