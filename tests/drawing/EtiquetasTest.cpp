#include "drawing/Etiquetas.h"

#include <gtest/gtest.h>

#include "support/Relato.h"

namespace zel::pruebas {

TEST(Etiquetas, EachHasItsSizeAndItsPlaceInCollectionOrderInBlack) {
    Elementos elementos;
    Elemento apartada = Rotulado("dos", {10, 50}, 1.5F, 2, false);
    apartada.EtiquetaPosX(30);
    apartada.EtiquetaPosY(-4);
    Numera(elementos, {Rotulado("uno", {10, 20}), Simbolo(ctNudo, {10, 10}), apartada,
                       Rotulado("tres", {10, 90}, 1.5F, 2)});
    SuperficieGrabadora panel;
    panel.ForeColor(255);
    AjustesDibujo ajustes = Ajustes();
    DibujaEtiquetas(panel, ajustes, elementos, false);
    EXPECT_EQ(Relato(panel.trazos), "texto 10,20 uno; texto 40,46 dos; texto 10,90 tres");
    std::string fuentes;
    for (const Trazo& t : panel.trazos)
        fuentes += Cifra(t.fuente) + " color " + std::to_string(t.pluma.ForeColor) + "; ";
    EXPECT_EQ(fuentes, "8 color 0; 16 color 0; 24 color 0; ");
    EXPECT_EQ(panel.FontSize(), 8);

    const auto elegido = elementos.ItemCodSIG(3);
    panel.Cls();
    DibujaEtiquetas(panel, ajustes, elementos, true, elegido.get());
    EXPECT_EQ(Relato(panel.trazos), "texto 40,46 dos");
    panel.Cls();
    DibujaEtiquetas(panel, ajustes, elementos, false, elegido.get());
    DibujaEtiquetas(panel, ajustes, elementos, true, nullptr);
    EXPECT_EQ(panel.trazos.size(), 6U);
    panel.Cls();
    ajustes.bMostrarEtiquetas = false;
    DibujaEtiquetas(panel, ajustes, elementos, false);
    EXPECT_TRUE(panel.trazos.empty());
}

TEST(Etiquetas, OneThatCannotBeDrawnIsToldAndLeavesTheOthers) {
    Elementos elementos;
    Numera(elementos, {Rotulado("enorme", {10, 20}, 33, 4320), Rotulado("otra", {10, 60}, 1, 0.001F)});
    SuperficieGrabadora panel;
    EXPECT_TRUE(Falla([&] { DibujaEtiquetas(panel, Ajustes(4e6F), elementos, false); },
                      {"Estado de visor 9. ErrDibujaEtiquetas (Esquema)"}));
    EXPECT_EQ(Relato(panel.trazos), "texto 10,60 otra");
}

TEST(Etiquetas, TheOnesThatReachIntoViewAreDrawnAndTheOnesFarAwayAreNot) {
    // "ABCD" is 32 wide and 16 high; the view is X 0 to 200, Y 0 to 100.
    const std::tuple<float, float, std::size_t> filas[] = {{-31, 50, 1}, {-1000, 50, 0}, {199, 50, 1},
                                                           {201, 50, 0}, {100, 115, 1},  {100, 200, 0},
                                                           {100, 1, 1},  {100, -1, 0}};
    for (const auto& [x, y, textos] : filas) {
        SuperficieGrabadora panel;
        Elementos elementos;
        Numera(elementos, {Rotulado("ABCD", {x, y})});
        DibujaEtiquetas(panel, Ajustes(), elementos, false);
        EXPECT_EQ(panel.trazos.size(), textos) << x << "," << y;
    }
}

}  // namespace zel::pruebas
