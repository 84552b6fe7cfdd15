#include "drawing/Conducciones.h"

#include <gtest/gtest.h>

#include "support/Relato.h"

namespace zel::pruebas {

const Vertices CODO = {{10, 10}, {50, 10}, {50, 40}};
const std::string LINEA_DEL_CODO = "linea 10,10 50,10 50,40";
// A tenth of the unit aside, or a pixel clear of the pen where that is more.
const std::string GEMELAS_DEL_CODO = "; linea 10,9.6 50,9.6; linea 50.4,10 50.4,40";
const std::string GEMELAS_DE_DOS = "; linea 10,9.4 50,9.4; linea 50.6,10 50.6,40";
const std::string PUNTA_DEL_CODO = "; linea 50,40 49.17,38 50,39.4 50.83,38 50,40";

TEST(Conducciones, EachKindHasItsLineItsTwinItsWidthAndItsColourAndEndsInAnArrowhead) {
    // From ctConduccion1 on; the width is that of a size of 2.5.
    const std::tuple<int, int, int, bool> filas[] = {
        {0, 2, 0, false},    {0, 2, 255, false}, {0, 2, 65280, false}, {0, 2, 255, true},
        {0, 2, 65280, true}, {0, 2, 255, true},  {0, 2, 65280, true},  {4, 2, 0, false},
        {3, 1, 0, false},    {3, 1, 0, false},   {3, 1, 0, false},     {3, 1, 0, false}};
    auto tipo = static_cast<int>(ctConduccion1);
    for (const auto& [estilo, ancho, color, gemela] : filas) {
        SuperficieGrabadora panel;
        panel.DrawMode(Superficie::MODO_INVERTIR);
        DibujarConduccion(panel, Ajustes(), Lineal(static_cast<TipoElemento>(tipo++), {10, 10}, CODO, 2.5F));
        EXPECT_EQ(Relato(panel.trazos), LINEA_DEL_CODO + (gemela ? GEMELAS_DE_DOS : "") + PUNTA_DEL_CODO);
        const std::string resto = " ancho " + std::to_string(ancho) + " color " + std::to_string(color);
        for (const Trazo& t : panel.trazos) {
            const bool primera = &t == &panel.trazos.front();
            const int suyo = primera ? estilo : &t == &panel.trazos.back() ? 0 : 1;
            EXPECT_EQ(Pincel(t.pluma), "modo 13 estilo " + std::to_string(suyo) + resto) << tipo - 1;
        }
        EXPECT_EQ(Pincel(panel.pluma()), "modo 1 estilo 0 ancho 1 color 0");
    }
}

TEST(Conducciones, TheWidthIsTheSizeRoundedHalfToEvenAndAtLeastOneAndAnOwnColourComesFirst) {
    for (const auto& [tamanyo, ancho] :
         {std::pair{0.5F, 1}, {1.0F, 1}, {1.5F, 2}, {2.5F, 2}, {3.49F, 3}, {3.5F, 4}, {33.0F, 33}}) {
        SuperficieGrabadora panel;
        Elemento e = Lineal(ctRecarga, {}, CODO, tamanyo);
        e.ColorLinea(0);
        e.ColorIcono(77);
        DibujarConduccion(panel, Ajustes(), e);
        for (const Trazo& t : panel.trazos)
            EXPECT_TRUE(t.pluma.DrawWidth == ancho && t.pluma.ForeColor == 0) << Pincel(t.pluma);
    }
}

TEST(Conducciones, TheTwinRunsAtTheRightOfTheDirectionOfTravelAndAnUnknownKindIsItsArrowheadAlone) {
    const std::tuple<int, float, float, bool, const char*> filas[] = {
        {10, 110, 50, false, "linea 100,50 110,50; linea 100,49.6 110,49.6"},
        {9, 100, 60, false, "linea 100,50 100,60; linea 100.4,50 100.4,60"},
        {8, 100, 40, false, "linea 100,50 100,40; linea 99.6,50 99.6,40"},
        {7, 108, 56, false, "linea 100,50 108,56; linea 100.24,49.68 108.24,55.68"},
        {11, 100, 50, true, "linea 100,50 100,50"},
        {99, 100, 60, true, "linea 100,60 99.17,58 100,59.4 100.83,58 100,60"},
        {99, 100, 60, false, ""}};
    for (const auto& [tipo, x, y, flecha, relato] : filas) {
        SuperficieGrabadora panel;
        DibujaLinea(panel, Ajustes(), {100, 50}, {x, y}, static_cast<TipoElemento>(tipo), flecha);
        EXPECT_EQ(Relato(panel.trazos), relato);
    }
}

TEST(Conducciones, APreviewIsOfTheKindInHandOnePixelWideAndWithoutArrowhead) {
    AjustesDibujo ajustes = Ajustes();
    ajustes.iTipoHerramienta = ctRecarga;
    Elemento e = Lineal(ctToma, {}, {{1, 1}, {2, 2}}, 9);
    e.ColorLinea(12345);
    const std::pair<Vertices, std::string> filas[] = {
        {CODO, LINEA_DEL_CODO + GEMELAS_DEL_CODO}, {{{10, 10}}, ""}, {{}, ""}};
    for (const auto& [vertices, relato] : filas) {
        SuperficieGrabadora panel;
        DibujarConduccion(panel, ajustes, e, Traza(vertices).get());
        EXPECT_EQ(Relato(panel.trazos), relato);
        for (const Trazo& t : panel.trazos)
            EXPECT_TRUE(t.pluma.ForeColor == 255 && t.pluma.DrawWidth == 1) << Pincel(t.pluma);
    }
}

TEST(Conducciones, ALongTraceIsDrawnWhole) {
    Vertices larga(33);
    larga.back() = {299, 7};
    SuperficieGrabadora panel;
    DibujarConduccion(panel, Ajustes(), Lineal(ctToma, {}, larga));
    ASSERT_EQ(panel.trazos[0].puntos.size(), 33U);
    EXPECT_EQ(panel.trazos[0].puntos.back().X, 299);
}

TEST(Flechas, EachDesignHasItsSolidHeadAndAShaftInTheStyleOfThePen) {
    const std::tuple<int, bool, float, const char*> filas[] = {
        {1, false, 0, "linea 100,50 96.8,53.2 96.8,46.8 100,50; linea 0,50 96.8,50"},
        {2, false, 0, "linea 100,50 98,52 99.4,50 98,48 100,50; linea 0,50 99.4,50"},
        {2, true, 200, "linea 100,50 102,48 100.6,50 102,52 100,50"},
        {7, false, 0, "linea 100,50 100,50"},
        {1, false, 100, ""}};  // both points are one
    for (const auto& [diseno, sinAsta, desde, relato] : filas) {
        SuperficieGrabadora panel;
        panel.DrawMode(Superficie::MODO_INVERTIR);
        panel.DrawStyle(Superficie::ESTILO_TRAZO_PUNTO);
        Flecha(panel, Ajustes(), {desde, 50}, {100, 50}, sinAsta, 255, 90, static_cast<std::int16_t>(diseno));
        EXPECT_EQ(Relato(panel.trazos), relato);
        for (std::size_t i = 0; i < panel.trazos.size(); ++i)
            EXPECT_EQ(Pincel(panel.trazos[i].pluma),
                      "modo 13 estilo " + std::to_string(3 * i) + " ancho 1 color 255");
    }
}

TEST(Contornos, ALineLeavesTheSymbolAtItsRadiusOrAtTheUnitFromThreeUnitsOn) {
    const std::tuple<PuntoXY, PuntoXY, float, const char*> filas[] = {
        {{0, 0}, {10, 0}, 1, "4,0"},   {{0, 0}, {30, 0}, 2.5F, "10,0"},     {{0, 0}, {30, 0}, 3, "4,0"},
        {{0, 0}, {0, -10}, 1, "0,-4"}, {{10, 10}, {-20, -30}, 2.5F, "4,2"}, {{7, 8}, {7, 8}, 1, "7,8"}};
    for (const auto& [a, b, tamanyo, punto] : filas) {
        const PuntoXY p = PtoContorno(a.X, a.Y, b.X, b.Y, tamanyo);
        EXPECT_EQ(Cifra(p.X) + "," + Cifra(p.Y), punto);
    }
    // Without a size the radius is the unit between numbers and none between objects.
    EXPECT_EQ(PtoContorno(1, 2, 9, 2).X, 5);
    EXPECT_EQ(PtoContorno(Simbolo(ctNudo, {1, 2}), Punto(9, 2)).X, 1);
    EXPECT_EQ(PtoContorno(Simbolo(ctNudo, {1, 2}), Punto(9, 2), 1.0F).X, 5);
}

TEST(Contornos, TheBoxOfALinearElementHoldsItsTraceAndFromAportacionOnItsPosition) {
    const std::pair<int, const char*> filas[] = {
        {3, ""}, {4, "10,10 50,40"}, {12, "10,10 50,40"}, {13, "-5,10 50,90"}, {15, "-5,10 50,90"}};
    for (const auto& [tipo, caja] : filas)
        EXPECT_EQ(Relato(EncuadreConduccion(Lineal(static_cast<TipoElemento>(tipo), {-5, 90}, CODO), 5)),
                  caja);
    for (const Elemento& e : {SinTraza(ctToma, {}), Lineal(ctToma, {}, {})})
        EXPECT_TRUE(Falla([&] { EncuadreConduccion(e, 4); }, {"Estado de visor 4. ErrEncuadreConduccion ("}));
}

TEST(LineasSecundarias, GoFromOutlineToOutlineAndAnUnknownCodeIsToldAfterTheOthersAreDrawn) {
    Elementos todos, conjunto;
    Elemento nudo = Simbolo(ctNudo, {20, 50});
    nudo.ConecSec1(99);  // nowhere
    nudo.ConecSec2(2);
    Elemento embalse = Simbolo(ctEmbalse, {60, 50}, 2);
    embalse.ConecSec1(3);  // outside the set
    Numera(todos, {nudo, embalse, Simbolo(ctNudo, {100, 50})});
    for (const int codigo : {1, 2})
        conjunto.AddObjetoElemento(*todos.ItemCodSIG(codigo));
    SuperficieGrabadora panel;
    panel.DrawMode(Superficie::MODO_INVERTIR);
    AjustesDibujo ajustes = Ajustes();
    EXPECT_TRUE(Falla([&] { DibujaLineasSecundarias(panel, ajustes, conjunto, todos); },
                      {"Estado de visor 9. ErrDibujaLineasSecundarias: datos incoherentes (Esquema)",
                       "Estado de visor 9. ErrDibujaLineasSecundarias (Esquema)"}));
    EXPECT_EQ(Relato(panel.trazos), "linea 24,50 52,50; linea 52,50 50,50.83 51.4,50 50,49.17 52,50");
    EXPECT_EQ(Pincel(panel.trazos[0].pluma), "modo 1 estilo 3 ancho 1 color 0");
    EXPECT_EQ(Pincel(panel.trazos[1].pluma), "modo 1 estilo 0 ancho 1 color 0");
    ajustes.bMostrarLineasOcultas = false;
    EXPECT_NO_THROW(DibujaLineasSecundarias(panel, ajustes, conjunto, todos));
    EXPECT_EQ(panel.trazos.size(), 2U);
}

}  // namespace zel::pruebas
