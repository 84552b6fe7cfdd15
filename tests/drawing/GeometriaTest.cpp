#include "drawing/Geometria.h"

#include <gtest/gtest.h>

#include <numbers>

#include "drawing/Fuente.h"
#include "support/Relato.h"

namespace zel::pruebas {

TEST(Geometria, ArcotangenteGivesTheDirectionFromZeroToAWholeTurn) {
    // A vector and its direction in quarter turns.
    const std::tuple<float, float, double> filas[] = {{1, 0, 0},  {2, 2, 0.5},   {0, 5, 1},  {-3, 3, 1.5},
                                                      {-1, 0, 2}, {-1, -1, 2.5}, {0, -5, 3}, {1, -1, 3.5}};
    for (const auto& [dx, dy, cuartos] : filas)
        EXPECT_NEAR(Arcotangente(dx, dy), cuartos * std::numbers::pi / 2, 1e-6);
    EXPECT_EQ(Arcotangente(0, -0.0F), -1);
}

TEST(Geometria, SignoTakesAnyNumberAndRaisesForAnythingElse) {
    const std::pair<Variante, int> filas[] = {{0.001F, 1}, {-1e-9, -1}, {0, 0}, {true, -1}, {"-2.5", -1}};
    for (const auto& [valor, signo] : filas)
        EXPECT_EQ(Signo(valor, 5), signo);
    EXPECT_TRUE(
        Falla([] { Signo("abc", 8); }, {"Estado de visor 8. Función Signo: argumento no numérico (Esquema)",
                                        "Estado de visor 8. ErrSigno (Esquema)"}));
}

TEST(Geometria, TheLabelOfAConduitGoesBesideTheMiddleOfItsTrace) {
    // A text is 16 high: in the second and fourth quadrants the label hangs that much higher.
    const std::pair<Vertices, const char*> filas[] = {
        {{{0, 0}, {0, 10}}, "0,5 1,16"},
        {{{10, 0}, {0, 0}}, "5,0 0,-1"},
        {{{0, 10}, {0, 0}}, "0,5 1,16"},
        {{{0, 0}, {8, 6}}, "4,3 0.6,-0.8"},
        {{{0, 0}, {-8, 6}}, "-4,3 0.6,16.8"},
        {{{0, 0}, {-8, -6}}, "-4,-3 0.6,-0.8"},
        {{{0, 0}, {8, -6}}, "4,-3 0.6,16.8"},
        {{{0, 0}, {4, 0}, {4, 0}, {4, 16}}, "4,6 1,16"},  // a bend before the middle, a point twice
        {{{0, 0}, {10, 0}, {10, 10}}, "10,0 1,16"},       // the middle is the bend: the later segment
        {{{0, 0}, {30, 0}, {30, 2}, {0, 2}}, "30,1 1,16"}};
    for (const auto& [vertices, esperado] : filas) {
        SuperficieGrabadora panel;
        EXPECT_EQ(Relato(BuscaMitadConduccion(panel, *Traza(vertices), 5)), esperado);
    }
}

TEST(Geometria, ATraceWithoutAMiddleIsToldWithBothTexts) {
    const std::string corta = "llamada incorrecta, la coleccion Trazado contiene 1 punto o ninguno (Esquema)";
    const std::string nula = "se acabó el bucle sin encontrar el punto medio (Esquema)";
    for (const auto& [vertices, motivo] :
         {std::pair{Vertices(0), corta}, {Vertices(1), corta}, {Vertices(3), nula}}) {
        SuperficieGrabadora panel;
        EXPECT_TRUE(Falla([&, &v = vertices] { BuscaMitadConduccion(panel, *Traza(v), 6); },
                          {"Estado de visor 6. BuscaMitadConduccion: " + motivo,
                           "Estado de visor 6. ErrBuscaMitadConduccion (Esquema)"}));
    }
}

TEST(Fuente, TheSizeBecomesTheNearestEvenNumberBetweenOneAndTwoThousand) {
    const std::tuple<float, float, float> filas[] = {
        // asked for, given back, set
        {7, 8, 8},    {5, 4, 4}, {2.5F, 2, 2}, {3.5F, 4, 4},          {3000, 3000, 2000},
        {0.2F, 0, 1}, {1, 0, 1}, {-9, -8, 1},  {2000.4F, 2000, 2000}, {NAN, NAN, 12}};
    for (const auto& [pedido, devuelto, puesto] : filas) {
        SuperficieGrabadora panel;
        panel.FontSize(12);
        float tamanyo = pedido;
        AjustarFuentePanel(panel, tamanyo, 5);
        EXPECT_EQ(Cifra(tamanyo), Cifra(devuelto)) << pedido;
        EXPECT_EQ(panel.FontSize(), puesto) << pedido;
    }
    SuperficieGrabadora panel;
    EXPECT_TRUE(
        Falla([&] { PonFuente(panel, 1e10F, 3); }, {"Estado de visor 3. ErrAjustarFuentePanel (Esquema)"}));
}

}  // namespace zel::pruebas
