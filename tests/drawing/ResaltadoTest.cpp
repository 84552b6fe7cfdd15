#include "drawing/Resaltado.h"

#include <gtest/gtest.h>

#include "drawing/Marcas.h"
#include "support/Relato.h"

namespace zel::pruebas {

namespace {

const Vertices TRAZA = {{10, 30}, {40, 10}};

Elemento ConEtiqueta(Elemento e) {
    e.Nombre("abc");
    e.MostrarEtiqueta(true);
    e.EtiquetaPosX(5);
    e.EtiquetaPosY(10);
    return e;
}

// Mode, style, width, colour where it counts, and interior of every stroke.
std::string Pinceles(const std::vector<Trazo>& trazos) {
    std::string texto;
    for (const Trazo& t : trazos) {
        const auto& p = t.pluma;
        texto += (texto.empty() ? "" : "; ") + std::to_string(p.DrawMode) + " " +
                 std::to_string(p.DrawStyle) + " " + std::to_string(p.DrawWidth) +
                 (p.FillStyle == Superficie::RELLENO_SOLIDO ? " lleno" : "") +
                 (p.DrawMode != Superficie::MODO_INVERTIR ? " " + std::to_string(p.ForeColor) : "");
    }
    return texto;
}

}  // namespace

TEST(Resaltado, SymbolsAreInvertedWithTheirLabelAndConduitsFramedInBlue) {
    struct Fila {
        Elemento e;
        std::string trazos, plumas;
        bool bMostrarEtiquetas = true;
    };
    const std::string azul = "13 1 1 16711680";
    std::vector<Fila> filas = {
        {Simbolo(ctEmbalse, {100, 50}, 2), "caja 91,39.4 109,57.4", "6 0 1 lleno"},
        {ConEtiqueta(Simbolo(ctNudo, {100, 50})), "caja 95,45 105,55; caja 105,60 129,44",
         "6 0 1 lleno; 6 0 1 lleno"},
        {ConEtiqueta(Simbolo(ctNudo, {100, 50})), "caja 95,45 105,55", "6 0 1 lleno", false},
        {ConEtiqueta(Lineal(ctConduccion5, {25, 20}, TRAZA)), "caja 10,10 40,30; caja 30,30 54,14",
         azul + "; 13 0 1 16711680"}};
    for (const auto tipo :
         {ctNudo, ctDemanda, ctAcuifero, ctCentralHidroelectrica, ctAportacion, ctRetorno, ctSubcuenca})
        filas.push_back({Lineal(tipo, {100, 50}, TRAZA), "caja 95,45 105,55", "6 0 1 lleno"});
    for (const auto tipo : {ctConduccion1, ctConduccion5, ctRecarga, ctBombeo, ctToma})
        filas.push_back({Lineal(tipo, {100, 50}, TRAZA, 9), "caja 10,10 40,30", azul});
    for (const Fila& f : filas) {
        SuperficieGrabadora panel;
        panel.FillStyle(Superficie::RELLENO_SOLIDO);
        AjustesDibujo ajustes = Ajustes();
        ajustes.bMostrarEtiquetas = f.bMostrarEtiquetas;
        SombreaElemento(panel, ajustes, &f.e);
        EXPECT_EQ(Relato(panel.trazos), f.trazos) << f.e.Tipo();
        EXPECT_EQ(Pinceles(panel.trazos), f.plumas) << f.e.Tipo();
        EXPECT_EQ(panel.pluma().FillStyle, Superficie::RELLENO_NINGUNO);
        EXPECT_EQ(panel.pluma().DrawMode, Superficie::MODO_NEGRO);
        EXPECT_EQ(ResaltadoInvierte(f.e.Tipo()), f.plumas[0] == '6');
        // The second highlight inverts the same pixels back.
        const auto una = panel.trazos;
        panel.trazos.clear();
        SombreaElemento(panel, ajustes, &f.e);
        EXPECT_EQ(Relato(panel.trazos) + Pinceles(panel.trazos), Relato(una) + Pinceles(una));
    }
    SuperficieGrabadora panel;
    SombreaElemento(panel, Ajustes(), nullptr);
    const Elemento sinTraza = SinTraza(ctToma, {});
    SombreaElemento(panel, Ajustes(), &sinTraza);
    EXPECT_TRUE(panel.trazos.empty());
}

TEST(Resaltado, TheFrameOfAStraightTraceKeepsClearOfIt) {
    for (const auto& [traza, caja] : {std::pair(Vertices{{10, 30}, {90, 30}}, "caja 10,29.3 90,30.7"),
                                      {Vertices{{10, 30}, {10, 80}}, "caja 9.3,30 10.7,80"}}) {
        SuperficieGrabadora panel;
        const Elemento e = Lineal(ctConduccion1, {}, traza);
        SombreaElemento(panel, Ajustes(), &e);
        EXPECT_EQ(Relato(panel.trazos), caja);
    }
}

TEST(Resaltado, TheUnderlineGoesBelowTheLabelOrAroundTheNumber) {
    const std::tuple<Elemento, bool, const char*, const char*> filas[] = {
        {ConEtiqueta(Simbolo(ctNudo, {100, 50})), true, "linea 105,43.4 129,43.4", "6 0 2"},
        {ConEtiqueta(Lineal(ctConduccion1, {25, 20}, TRAZA)), true, "linea 30,13.4 54,13.4", "6 0 2"},
        {ConEtiqueta(Simbolo(ctNudo, {100, 50})), false, "caja 95.8,58.2 104.2,41.8", "6 0 1"},
        {Simbolo(ctEmbalse, {100, 50}, 3), true, "caja 93.6,62.4 106.4,37.6", "6 0 1"},
        {Lineal(ctCentralHidroelectrica, {100, 50}, TRAZA, 2), true, "caja 95.8,42.2 104.2,25.8", "6 0 1"},
        {Lineal(ctConduccion1, {25, 20}, TRAZA), true, "", ""}};
    for (const auto& [e, bMostrarEtiquetas, trazos, plumas] : filas) {
        SuperficieGrabadora panel;
        AjustesDibujo ajustes = Ajustes();
        ajustes.bMostrarEtiquetas = bMostrarEtiquetas;
        AlternaSubrayado(panel, ajustes, e);
        EXPECT_EQ(Relato(panel.trazos), trazos) << e.Tipo();
        EXPECT_EQ(Pinceles(panel.trazos), plumas) << e.Tipo();
    }
}

TEST(Resaltado, EachStateShowsWhatTheUserHasInHand) {
    const Elemento central =
        Lineal(ctCentralHidroelectrica, {50, 50}, {{10, 10}, {20, 30}, {30, 10}, {40, 40}}, 1,
               {{60, 10}, {70, 20}, {80, 10}});
    const Elemento toma = Lineal(ctToma, {}, TRAZA);
    Elementos elegidos;
    Numera(elegidos, {Simbolo(ctNudo, {100, 50}), Simbolo(ctDemanda, {150, 50})});
    const auto nuevo = Traza({{1, 1}, {9, 9}}), nuevo2 = Traza({{20, 20}, {30, 20}}),
               lazo = Traza({{0, 0}, {50, 0}, {0, 0}});
    const Punto referencia(15, 15);
    const std::string una = "caja 45,45 55,55", invertido = "6 0 1 lleno", marco = "caja 10,10 40,30";
    const std::string central13 =
        "circulo 15,15 r4; arco 13.4,15 r1.6 0..3.1416; arco 16.6,15 r1.6 3.1416..6.283; texto 7,11 13";
    const std::tuple<std::int32_t, const Elemento*, std::string, std::string> filas[] = {
        {3, &central, "linea 1,1 9,9; " + central13 + "; linea 20,20 30,20",
         "13 3 1 0; 13 0 1 255; 13 0 1 255; 13 0 1 255; 1 0 1 0; 13 3 1 0"},
        {5, &central, una, invertido},
        {5, nullptr, "", ""},
        {8, &central, una + "; caja 19.2,29.2 20.8,30.8; caja 29.2,9.2 30.8,10.8; caja 69.2,19.2 70.8,20.8",
         invertido + "; 6 0 1 lleno; 6 0 1 lleno; 6 0 1 lleno"},
        {8, &toma, marco, "13 1 1 16711680"},
        {9, &central, una + "; caja 14.2,14.2 15.8,15.8", invertido + "; 6 0 1 lleno"},
        {12, &central, una + "; linea 0,0 50,0 0,0", invertido + "; 13 0 1 16711680"},
        {13, nullptr, "", ""},
        {15, &central, "caja 95,45 105,55; caja 145,45 155,55", invertido + "; 6 0 1 lleno"},
        {16, &central, "", ""}};

    for (const auto& [estado, elegido, trazos, plumas] : filas) {
        const Marcas marcas{elegido, &elegidos, nuevo.get(), nuevo2.get(), &referencia, lazo.get(), 13};
        AjustesDibujo ajustes = Ajustes();
        ajustes.iEstado = estado;
        ajustes.iTipoHerramienta = ctCentralHidroelectrica;
        SuperficieGrabadora panel;
        const auto paso = [](const std::function<void()>& accion) { accion(); };
        PintaResaltado(panel, ajustes, marcas, paso);
        PintaMarcas(panel, ajustes, marcas, paso);
        EXPECT_EQ(Relato(panel.trazos), trazos) << estado;
        EXPECT_EQ(Pinceles(panel.trazos), plumas) << estado;
        EXPECT_EQ(panel.pluma().FillStyle, Superficie::RELLENO_NINGUNO);
        EXPECT_NE(panel.pluma().DrawMode, Superficie::MODO_INVERTIR);
    }
}

}  // namespace zel::pruebas
