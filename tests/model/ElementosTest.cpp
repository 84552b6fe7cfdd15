#include "model/Elementos.h"

#include <gtest/gtest.h>

#include "model/TamanyoUnidad.h"
#include "support/DialogosGuion.h"

namespace zel::pruebas {
namespace {

std::shared_ptr<Elemento> Nudo(Elementos& elementos, std::int32_t codigo, const char* identificador = "id") {
    return elementos.Add(ctNudo, "N", codigo, 1, 0, 0, 0, 0, {}, {}, identificador, 0, 0);
}

// The source of the error that the action raises; empty when it raises none.
template <typename Accion>
std::string OrigenDelError(Accion accion) {
    try {
        accion();
        return {};
    } catch (const Error& error) {
        return error.Source();
    }
}

TEST(Elementos, TakesTheEndsAndTracesThatTheKindHas) {
    const auto uno = std::make_shared<Puntos>();
    const auto dos = std::make_shared<Puntos>();
    for (const std::int32_t tipo : {-1, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 99}) {
        Elementos elementos;
        const auto e = elementos.Add(TipoElemento(tipo), "Río", 9, 2, 3, 4, 5, 6, uno, dos, "id", 7, 8);
        const bool enSiMismo = tipo >= 13 && tipo <= 15;
        EXPECT_EQ(e->ElemIni(), tipo < 4 ? 0 : enSiMismo ? 9 : 5) << tipo;
        EXPECT_EQ(e->ElemFin(), tipo < 4 ? 0 : 6) << tipo;
        EXPECT_EQ(e->Trazado(), tipo < 4 ? nullptr : uno) << tipo;
        EXPECT_EQ(e->Trazado2(), tipo == 12 ? dos : nullptr) << tipo;
        EXPECT_EQ(
            (std::array{e->KeyPant() + 0.0F, e->XPos(), e->YPos(), e->EtiquetaPosX(), e->EtiquetaPosY()}),
            (std::array{2.0F, 3.0F, 4.0F, 7.0F, 8.0F}));
    }
}

TEST(Elementos, TellsInABoxThatACodeIsTakenUnlessTheFirstOneHasNoKey) {
    DialogosGuion dialogos;
    Elementos elementos;
    Nudo(elementos, 7, "");
    EXPECT_EQ(elementos.ItemCodSIG(7), nullptr);
    const auto conClave = Nudo(elementos, 7);
    for (const char* identificador : {"id", ""}) {
        dialogos.Espera("La colección");
        EXPECT_EQ(Nudo(elementos, 7, identificador), nullptr);
        EXPECT_EQ(dialogos.Ultimo(),
                  "La colección de elementos ya contiene un elemento con codigo gfCodSIG 7");
    }
    EXPECT_EQ(elementos.Count(), 2);
    EXPECT_EQ(elementos.RemoveCodSIG(7), 1);
    EXPECT_EQ(elementos.Item(1), conClave);
    EXPECT_EQ(elementos.ItemCodSIG(7), conClave);
}

TEST(Elementos, ConvertsTheOptionalValuesOrRaises) {
    Elementos elementos;
    const auto agrega = [&](const Variante& tamanyo, const Variante& etiqueta, const Variante& icono) {
        return elementos.Add(ctNudo, "", 1, 1, 0, 0, 0, 0, {}, {}, "", 0, 0, tamanyo, etiqueta, icono, 255.0);
    };
    const auto e = agrega("40", 5000, "3.5");
    EXPECT_EQ((std::array{e->Tamanyo(), e->EtiquetaTamanyo()}), (std::array{33.0F, 1.0F}));
    EXPECT_EQ((std::array{e->ColorIcono(), e->ColorLinea()}), (std::array{4, 255}));
    EXPECT_EQ(OrigenDelError([&] { agrega("grande", 1, 1); }), "Error en método Add (Elementos)");
    EXPECT_EQ(elementos.Count(), 1);
}

TEST(Elementos, StoresACopyUnderTheKeyAskedFor) {
    Elementos elementos;
    Elemento e;
    e.gfCodSIG(-12);
    e.Trazado(std::make_shared<Puntos>());
    elementos.AddObjetoElemento(e);
    elementos.AddObjetoElemento(e, "");
    elementos.AddObjetoElemento(e, "Otra");
    elementos.AddObjetoElemento(e, 34);
    e.Nombre("después");
    EXPECT_EQ(elementos.Item("-12"), elementos.Item(1));
    EXPECT_EQ(elementos.Item("OTRA"), elementos.Item(3));
    EXPECT_EQ(elementos.ItemCodSIG(34), elementos.Item(4));
    EXPECT_EQ(elementos.Item(1)->Nombre(), "");
    EXPECT_EQ(elementos.Item(2)->Trazado(), e.Trazado());
    EXPECT_EQ(OrigenDelError([&] { elementos.AddObjetoElemento(e); }),
              "Error método AddObjetoElemento (Elementos)");
    EXPECT_EQ(elementos.Count(), 4);
}

TEST(Elementos, FindsNothingQuietlyButRemovesOnlyWhatIsThere) {
    Elementos elementos;
    EXPECT_EQ(elementos.RemoveCodSIG(8), -1);
    Nudo(elementos, 4);
    Nudo(elementos, 8, "");
    Nudo(elementos, 8);
    const Variante AUSENTES[] = {0, 4, -1, "9", "", 1e20, Variante(), std::make_shared<Objeto>()};
    for (const auto& clave : AUSENTES) {
        EXPECT_EQ(elementos.Item(clave), nullptr);
        EXPECT_EQ(OrigenDelError([&] { elementos.Remove(clave); }), "Error Método Remove (Elementos)");
    }
    EXPECT_EQ(elementos.RemoveCodSIG(5), -1);
    EXPECT_EQ(elementos.RemoveCodSIG(8), 2);
    elementos.Remove("4");
    EXPECT_EQ(std::distance(elementos.begin(), elementos.end()), 1);
    EXPECT_EQ(elementos.Item(1), elementos.ItemCodSIG(8));
}

TEST(Elementos, FindsWhereALineLeavesASymbol) {
    const struct {
        float x1, y1, x2, y2;
        std::optional<float> factor;
        float x, y;
    } FILAS[] = {
        {0, 0, 10, 0, {}, 4, 0},    {0, 0, 0, -10, {}, 0, -4},       {3, 3, 3, 3, {}, 3, 3},
        {0, 0, 10, 0, 3, 4, 0},     {0, 0, 10, 0, 2.5F, 10, 0},      {0, 0, 0, 1, 0, 0, 0},
        {1, 2, -9, 2, 0.5F, -1, 2}, {100, 50, 70, 90, 2.5F, 94, 58}, {100, 50, 130, 10, {}, 102.4F, 46.8F},
    };
    for (const auto& f : FILAS) {
        const auto p = Elementos::PtoContorno(f.x1, f.y1, f.x2, f.y2, f.factor);
        EXPECT_FLOAT_EQ(p->XPos(), f.x) << &f - FILAS;
        EXPECT_FLOAT_EQ(p->YPos(), f.y) << &f - FILAS;
    }
    EXPECT_EQ(Elementos::PtoContorno(Elemento(), Punto(10, 0))->XPos(), 0);
    EXPECT_EQ(Elementos::PtoContorno(Elemento(), Punto(10, 0), 2.0F)->XPos(), 8);
    TamanyoUnidad(10);
    EXPECT_EQ(Elementos::PtoContorno(0, 0, 100, 0, 3.0F)->XPos(), 10);
    TamanyoUnidad(4);
}

}  // namespace
}  // namespace zel::pruebas
