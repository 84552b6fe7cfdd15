#include "drawing/Simbolos.h"

#include <gtest/gtest.h>

#include <set>

#include "drawing/Parrilla.h"
#include "support/Relato.h"

namespace zel::pruebas {

constexpr PuntoXY SITIO{100, 50};

// How each kind looks at SITIO with a radius of 10, in its own colour; the number comes last.
using Dibujar = void (*)(Superficie&, const AjustesDibujo&, const Elemento&, bool, float, float);
const std::tuple<TipoElemento, Dibujar, std::int32_t, const char*> SIMBOLOS[] = {
    {ctNudo, DibujarNudo, 0, "circulo 100,50 r10; texto 96,58 7"},
    {ctEmbalse, DibujarEmbalse, 255, "linea 90,58 110,58 100,38 90,58; texto 96,58 7"},
    {ctDemanda, DibujarDemanda, 65280, "caja 90,40 110,60; texto 96,58 7"},
    {ctAcuifero, DibujarAcuifero, 32896,
     "linea 95,40 90,45 90,55 95,60 105,60 110,55 110,45 105,40 95,40; texto 96,58 7"},
    {ctCentralHidroelectrica, DibujarCentralHE, 255,
     "circulo 100,50 r10; arco 96,50 r4 0..3.1416; arco 104,50 r4 3.1416..6.283; texto 96,40 7"},
    {ctAportacion, DibujarAportacion, 255,
     "linea 90,40 90,50 92.5,47.5 105,60 110,55 97.5,42.5 100,40 90,40; texto 96,58 7"},
    {ctRetorno, DibujarRetorno, 32896,
     "arco 100,50 r10 5.4978..3.1416; linea 106.01,41.87 108.01,42.7 106.43,42.29 106.84,43.87 "
     "106.01,41.87; linea 107.07,42.93 106.43,42.29; texto 96,58 7"},
    {ctSubcuenca, DibujarSubcuenca, 8421376,
     "linea 90,60 90,40 110,40 110,60; linea 90,45 94,48 96,54 98,50 102,48 110,47; texto 96,60 7"}};

const AjustesDibujo CON_PARRILLA = Ajustes(1600, true);

TEST(Simbolos, EachOneIsItsOutlineInItsOwnColourOrItsKindsAndItsNumberInBlack) {
    for (const auto& [tipo, dibuja, delTipo, relato] : SIMBOLOS) {
        for (const std::int32_t propio : {-1, 0, 66051}) {
            SuperficieGrabadora panel;
            panel.DrawStyle(Superficie::ESTILO_TRAZOS);
            panel.ForeColor(77);
            Elemento e = Simbolo(tipo, SITIO, 2.5F);
            e.ColorIcono(propio);
            dibuja(panel, Ajustes(), e, false, 5, 5);
            ASSERT_EQ(Relato(panel.trazos), relato);
            const Trazo numero = panel.trazos.back();
            EXPECT_TRUE(numero.pluma.ForeColor == 0 && numero.fuente == 8) << tipo;
            panel.trazos.pop_back();
            const std::string color = std::to_string(propio == -1 ? delTipo : propio);
            for (const Trazo& t : panel.trazos)
                EXPECT_EQ(Pincel(t.pluma), "modo 13 estilo 0 ancho 1 color " + color) << tipo;
            EXPECT_EQ(Pincel(panel.pluma()), "modo 1 estilo 0 ancho 1 color 0");
        }
    }
}

TEST(Simbolos, AGhostIsTheSameOutlineInvertedAtTheGivenPointWithoutNumberOrDots) {
    for (const auto& [tipo, dibuja, color, relato] : SIMBOLOS) {
        SuperficieGrabadora panel;
        dibuja(panel, CON_PARRILLA, Simbolo(tipo, {17, 90}, 2.5F), true, 100, 50);
        EXPECT_EQ(Relato(panel.trazos), std::string(relato, std::string(relato).rfind("; texto")));
        for (const Trazo& t : panel.trazos)
            EXPECT_EQ(t.pluma.DrawMode, Superficie::MODO_INVERTIR);
    }
}

TEST(Simbolos, ADraggedGhostOnlyInverts) {
    for (const TipoElemento tipo : {ctNudo, ctAportacion, ctCentralHidroelectrica, ctRetorno, ctSubcuenca}) {
        SuperficieGrabadora panel;
        const Elemento e =
            ConNombre(Lineal(tipo, SITIO, {{0, 0}, {10, 10}}, 3, {{20, 20}, {30, 30}}), "Salto");
        DibujarFantasma(panel, Ajustes(), e, 90, 40);
        EXPECT_GE(panel.trazos.size(), 2U) << tipo;
        for (const Trazo& t : panel.trazos)
            EXPECT_EQ(t.pluma.DrawMode, Superficie::MODO_INVERTIR) << tipo;
    }
}

TEST(Simbolos, AnAquifersDotsFollowTheGivenStepWhereThereIsOne) {
    const auto puntos = [](float paso) {
        SuperficieGrabadora panel;
        AjustesDibujo ajustes = CON_PARRILLA;
        ajustes.pasoDeParrilla = paso;
        DibujaAcuiferoParrilla(panel, ajustes, Simbolo(ctAcuifero, SITIO, 2));
        return panel.De(Que::Punto).size();
    };
    EXPECT_NEAR(static_cast<double>(puntos(0.5F)) / static_cast<double>(puntos(1)), 4, 0.3);
}

TEST(Simbolos, TheSubcuencasProfileStandsOnAFrameRoundedHalfToEvenAlsoFarOut) {
    SuperficieGrabadora panel;
    DibujarSubcuenca(panel, Ajustes(), Simbolo(ctSubcuenca, {100, 54.75F}, 2.125F), false, 0, 0);
    EXPECT_EQ(Relato(panel.trazos),
              "linea 91.5,63.25 91.5,46.25 108.5,46.25 108.5,63.25; "
              "linea 92,50 95.4,52.4 97.1,57.2 98.8,54 102.2,52.4 109,51.6; texto 96,64.75 7");
    panel.Cls();
    const Elemento lejos = Simbolo(ctSubcuenca, {40000, 50});
    DibujarSubcuenca(panel, Ajustes(), lejos, false, 0, 0);
    EXPECT_EQ(
        Relato(panel.trazos),
        "linea 39996,54 39996,46 40004,46 40004,54; "
        "linea 39996,48 39997.6,49.2 39998.4,51.6 39999.2,50 40000.8,49.2 40004,48.8; texto 39996,60 7");
}

TEST(Simbolos, TheNumberOfALargeSymbolIsFramedInBlueAtItsStoredPositionAlsoForAGhost) {
    const std::tuple<int, float, bool> filas[] = {
        {0, 3, true},    {0, 2.99F, false}, {1, 33, true},     {3, 3, true},  {4, 3, false}, {11, 3, false},
        {12, 33, false}, {13, 3, true},     {14, 2.5F, false}, {14, 3, true}, {15, 3, true}};
    for (const auto& [tipo, tamanyo, conMarco] : filas) {
        for (const bool fantasma : {false, true}) {
            SuperficieGrabadora panel;
            Elemento e = Lineal(static_cast<TipoElemento>(tipo), SITIO, {{0, 0}, {10, 10}}, tamanyo);
            e.KeyPant(-3);
            DibujarElemento(panel, Ajustes(), &e, fantasma, 20, 20);
            EXPECT_EQ(Relato(panel.De(Que::Caja)), conMarco ? "caja 88,62 112,38" : "") << tipo;
            for (const Trazo& t : panel.De(Que::Caja))
                EXPECT_EQ(Pincel(t.pluma), "modo 13 estilo 0 ancho 1 color 16711680");
        }
    }
}

TEST(Simbolos, AGhostOutlinesItsLabelAtThePointWhereItStands) {
    const std::tuple<bool, bool, bool, bool, const char*> filas[] = {
        {true, true, true, false, "caja 25,40 57,8"},    // two characters of 16 points
        {true, true, true, true, "caja 25,40 105,-40"},  // of 40
        {true, true, false, true, ""},
        {true, false, true, true, ""},
        {false, true, true, true, ""}};
    for (const auto& [mostrar, mostrarTodas, fantasma, relativo, caja] : filas) {
        SuperficieGrabadora panel;
        AjustesDibujo ajustes = Ajustes();
        ajustes.bMostrarEtiquetas = mostrarTodas;
        Elemento e = Rotulado("AB", SITIO, 2.5F, 2, relativo);
        e.MostrarEtiqueta(mostrar);
        e.EtiquetaPosX(5);
        e.EtiquetaPosY(10);
        DibujarElemento(panel, ajustes, &e, fantasma, 20, 30);
        EXPECT_EQ(Relato(panel.De(Que::Caja)), caja);
        for (const Trazo& t : panel.De(Que::Caja))
            EXPECT_EQ(t.pluma.DrawMode, Superficie::MODO_INVERTIR);
    }
}

TEST(Simbolos, AnElementDrawsItsTracesBeforeItsSymbolAndTheTracesOfAGhostStay) {
    const Elemento central =
        Lineal(ctCentralHidroelectrica, SITIO, {{0, 50}, {96, 50}}, 1, {{104, 50}, {200, 50}});
    for (const bool fantasma : {false, true}) {
        SuperficieGrabadora panel;
        DibujarElemento(panel, Ajustes(), &central, fantasma, 20, 20);
        ASSERT_GE(panel.trazos.size(), 7U);
        EXPECT_EQ(Relato({panel.trazos[0], panel.trazos[2], panel.trazos[4]}),
                  std::string("linea 0,50 96,50; linea 104,50 200,50; circulo ") +
                      (fantasma ? "20,20 r4" : "100,50 r4"));
        EXPECT_EQ(panel.trazos[2].pluma.DrawMode, Superficie::MODO_COPIAR);
    }
}

TEST(Simbolos, APartThatCannotBeDrawnKeepsNoOtherFromTheScreen) {
    Elemento central = SinTraza(ctCentralHidroelectrica, SITIO);
    central.Trazado2(Traza({{104, 50}, {200, 50}}));
    SuperficieGrabadora panel;
    EXPECT_TRUE(Falla([&] { DibujarElemento(panel, Ajustes(), &central, false); },
                      {"Estado de visor 9. ErrDibujarConduccion (Esquema)",
                       "Estado de visor 9. ErrDibujarElemento (Esquema)", "91, Falta el objeto"}));
    EXPECT_EQ(panel.De(Que::Linea).size(), 2U);  // the second trace and its arrowhead
    EXPECT_EQ(Relato(panel.De(Que::Circulo)), "circulo 100,50 r4");
    EXPECT_EQ(Relato(panel.De(Que::Texto)), "texto 96,46 7");
}

TEST(Simbolos, APlantThatIsNoElementYetTakesItsNumberFromAText) {
    SuperficieGrabadora panel;
    DibujarCentralHE2(panel, Ajustes(), 100, 50, " 12", 2.5F, std::nullopt, false);
    DibujarCentralHE2(panel, Ajustes(), 60, 50, "9", 1, 66051, false);
    EXPECT_EQ(Relato(panel.De(Que::Texto)), "texto 92,40 12; texto 56,46 9");
    EXPECT_EQ(Relato(panel.De(Que::Circulo)), "circulo 100,50 r10; circulo 60,50 r4");
    EXPECT_EQ(panel.De(Que::Circulo)[0].pluma.ForeColor, 255);
    EXPECT_EQ(panel.De(Que::Circulo)[1].pluma.ForeColor, 66051);
}

// On 200 units the dots are 1 unit apart; with size 5 the aquifer reaches 20 units to every side.
TEST(Parrilla, StaggeredRowsFillTheOctagonAtTheSameDistanceOnTheScreenAtEveryZoom) {
    for (const int puntosPorUnidad : {1, 2}) {
        const int n = 40 * puntosPorUnidad;
        std::set<std::pair<float, float>> esperados, vistos;
        for (int j = 1; j <= n; ++j) {
            for (int i = 1; i <= n; ++i) {
                const float x = (static_cast<float>(i) - (j % 2 == 1 ? 0.5F : 0)) / puntosPorUnidad;
                const float y = (static_cast<float>(j) - 0.5F) / puntosPorUnidad;
                if (std::abs(x - 20) + std::abs(y - 20) < 30) esperados.emplace(30 + x, 30 + y);
            }
        }
        SuperficieGrabadora panel;
        panel.ScaleWidth(200.0F / puntosPorUnidad);
        Elemento e = Simbolo(ctAcuifero, {50, 50}, 5);
        e.ColorIcono(255);
        panel.DrawMode(Superficie::MODO_NEGRO);
        DibujaAcuiferoParrilla(panel, CON_PARRILLA, e);
        for (const Trazo& t : panel.trazos) {
            EXPECT_TRUE(vistos.emplace(t.puntos[0].X, t.puntos[0].Y).second);
            EXPECT_TRUE(t.color == 32896 && t.pluma.DrawMode == Superficie::MODO_COPIAR);
        }
        EXPECT_EQ(vistos, esperados);
    }
}

TEST(Parrilla, OnlyTheVisiblePartGetsDots) {
    // A centre and how many dots there are, from and to; the whole octagon takes some 1400.
    const std::tuple<float, float, std::size_t, std::size_t> filas[] = {
        {0, 50, 600, 800},    {200, 50, 600, 800}, {100, 0, 600, 800}, {100, 100, 600, 800},
        {200, 100, 300, 400}, {-19.4F, 50, 5, 30}, {-30, 50, 0, 0},    {100, 300, 0, 0}};
    for (const auto& [x, y, desde, hasta] : filas) {
        SuperficieGrabadora panel;
        DibujaAcuiferoParrilla(panel, CON_PARRILLA, Simbolo(ctAcuifero, {x, y}, 5));
        EXPECT_TRUE(desde <= panel.trazos.size() && panel.trazos.size() <= hasta) << x << "," << y;
        for (const Trazo& t : panel.trazos) {
            const PuntoXY p = t.puntos[0];
            EXPECT_TRUE(p.X >= 0 && p.X <= 200 && p.Y >= 0 && p.Y <= 100) << p.X << "," << p.Y;
        }
    }
}

TEST(Parrilla, ThereAreNoDotsWhileDrawingChoosingOrDragging) {
    const std::set<std::int32_t> sin = {2, 3, 8, 12, 13, 14, 15, 16};
    for (std::int32_t estado = 0; estado <= 21; ++estado) {
        SuperficieGrabadora panel;
        AjustesDibujo ajustes = CON_PARRILLA;
        ajustes.iEstado = estado;
        DibujarAcuifero(panel, ajustes, Simbolo(ctAcuifero, SITIO), false, 0, 0);
        EXPECT_EQ(panel.De(Que::Punto).empty(), sin.contains(estado)) << estado;
        EXPECT_TRUE(panel.trazos.front().que == Que::Linea && panel.trazos.back().que == Que::Texto);
    }
}

}  // namespace zel::pruebas
