#include "drawing/Pintor.h"

#include <gtest/gtest.h>

#include "support/Relato.h"

namespace zel::pruebas {

TEST(Pintor, PaintsTheElementsInOrderThenTheLabelsThenTheSecondaryLines) {
    Elementos elementos;
    Elemento nudo = Rotulado("cauce", {100, 50});
    nudo.ConecSec1(3);
    Numera(elementos, {nudo, Lineal(ctConduccion1, {}, {{10, 10}, {20, 10}}), Simbolo(ctDemanda, {160, 50})});
    SuperficieGrabadora panel;
    panel.FillStyle(Superficie::RELLENO_SOLIDO);
    EXPECT_TRUE(PintaEsquema(panel, Ajustes(), elementos, elementos).empty());
    EXPECT_EQ(Relato(panel.trazos),
              "circulo 100,50 r4; texto 96,58 1; "
              "linea 10,10 20,10; linea 20,10 18,10.83 19.4,10 18,9.17 20,10; "
              "caja 156,46 164,54; texto 156,58 3; "
              "texto 100,50 cauce; "
              "linea 104,50 156,50; linea 156,50 154,50.83 155.4,50 154,49.17 156,50");
    EXPECT_EQ(panel.limpiezas, 1);
    EXPECT_EQ(panel.trazos[0].pluma.FillStyle, Superficie::RELLENO_NINGUNO);
}

TEST(Pintor, ElementsOutOfSightCostNoStrokesButTheirLabelsAndSecondaryLinesReachIntoView) {
    const Vertices izquierda = {{-300, 20}, {-250, 80}};
    Elemento nudo = Rotulado("embalse de cabecera", {-500, 50});
    nudo.EtiquetaPosX(510);
    nudo.ConecSec1(2);
    Elementos elementos;
    Numera(elementos,
           {nudo, Simbolo(ctEmbalse, {700, 50}), Simbolo(ctDemanda, {100, 400}),
            Simbolo(ctAcuifero, {100, -300}), Lineal(ctConduccion1, {100, 50}, izquierda),
            Lineal(ctCentralHidroelectrica, {100, 400}, {{100, 300}, {100, 396}}),
            Lineal(ctAportacion, {-300, 50}, izquierda), Lineal(ctToma, {}, {{0, 300}, {200, 300}})});
    SuperficieGrabadora panel;
    EXPECT_TRUE(PintaEsquema(panel, Ajustes(), elementos, elementos).empty());
    EXPECT_EQ(Relato(panel.trazos),
              "texto 10,50 embalse de cabecera; "
              "linea -496,50 696,50; linea 696,50 694,50.83 695.4,50 694,49.17 696,50");
}

TEST(Pintor, ElementsThatJustReachIntoViewAreDrawn) {
    const Vertices lejos = {{900, 50}, {990, 50}};
    Elemento numerado = Simbolo(ctNudo, {-60, 50}, 3);
    numerado.KeyPant(-20000);
    const std::tuple<const char*, Elemento, float> filas[] = {
        {"circle from the left", Simbolo(ctNudo, {-131.5F, 50}, 33), 1},
        {"the reservoir's apex from above", Simbolo(ctEmbalse, {100, 257.9F}, 33), 1},
        {"octagon from below", Simbolo(ctAcuifero, {100, -131.5F}, 33), 1},
        {"a thick line along the upper side", Lineal(ctConduccion1, {}, {{0, 103}, {200, 103}}, 33), 1},
        {"the twin of a line along the upper side", Lineal(ctRecarga, {}, {{0, 100.2F}, {200, 100.2F}}), 1},
        {"the barb of an arrowhead", Lineal(ctToma, {}, {{100, 300}, {100, 100.4F}, {-30, 100.4F}}), 1},
        {"a line that crosses with both ends far", Lineal(ctToma, {}, {{-900, -400}, {900, 500}}), 1},
        {"the second trace of a far plant",
         Lineal(ctCentralHidroelectrica, {950, 50}, lejos, 1, {{954, 50}, {199.5F, 50}}), 1},
        {"the trace of a far inflow", Lineal(ctAportacion, {900, 50}, {{896, 50}, {150, 50}}), 1},
        {"the symbol of a return with a far trace", Lineal(ctRetorno, {203.5F, 50}, lejos), 1},
        {"the framed number of a node at the left", numerado, 3200},
        {"the number below a plant", Lineal(ctCentralHidroelectrica, {100, 119}, lejos), 1600}};
    for (const auto& [que, elemento, escala] : filas) {
        SuperficieGrabadora panel;
        Elementos elementos;
        elementos.AddObjetoElemento(elemento);
        EXPECT_TRUE(PintaEsquema(panel, Ajustes(escala), elementos, elementos).empty());
        EXPECT_FALSE(panel.trazos.empty()) << que;
    }
}

TEST(Pintor, WhatCannotBeDrawnStopsNothingElseAndIsToldInOrder) {
    Elemento sinTraza = SinTraza(ctConduccion1, {-900, 50});
    sinTraza.ConecSec1(4);
    Elemento nudo = Simbolo(ctNudo, {160, 50});
    nudo.ConecSec1(5);  // outside the set, then nowhere
    Elementos todos, conjunto;
    Numera(todos, {sinTraza, Lineal(ctAportacion, {100, 50}, {{100, 50}}), Lineal(ctRetorno, {-900, 50}, {}),
                   nudo, Simbolo(ctNudo, {190, 50})});
    for (const int codigo : {1, 2, 3, 4})
        conjunto.AddObjetoElemento(*todos.ItemCodSIG(codigo));
    SuperficieGrabadora panel;
    EXPECT_EQ(PintaEsquema(panel, Ajustes(), conjunto, todos).size(), 3U);
    const auto fallos = PintaEsquema(panel, Ajustes(), conjunto, conjunto);
    const std::pair<const char*, const char*> partes[] = {
        {"número: 91, Falta el objeto", "(elemento 1, "},
        {"número: 9, La posición está fuera", "(elemento 2, "},
        {"9. ErrDibujarElemento (Esquema)", "(elemento 3, "},
        {"datos incoherentes (Esquema)", "(elemento 4, "}};
    ASSERT_EQ(fallos.size(), 4U);
    for (std::size_t i = 0; i < fallos.size(); ++i) {
        EXPECT_NE(fallos[i].find(partes[i].first), std::string::npos) << fallos[i];
        EXPECT_NE(fallos[i].find(partes[i].second), std::string::npos) << fallos[i];
    }
    EXPECT_EQ(panel.Textos(), (std::vector<std::string>{"2", "3", "4"}));
    EXPECT_EQ(Relato({panel.trazos[panel.trazos.size() - 2]}), "linea -896,50 156,50");
}

}  // namespace zel::pruebas
