#include "session/Pintado.h"

#include <gtest/gtest.h>

#include "support/Mesa.h"

namespace zel::pruebas {

class Pinturas : public Mesa {
  protected:
    struct : public Imagen {
        int Ancho() const noexcept override { return 2; }
        int Alto() const noexcept override { return 1; }
    } foto;
};

TEST_F(Pinturas, APaintThatNobodyAskedForOnlyBringsTheBarsUpToDate) {
    Pon({Simbolo(ctNudo, {100, 50})});
    Repinta();
    EXPECT_EQ(Relato(panel.trazos), "circulo 100,50 r4; texto 96,58 1");
    for (const bool pedido : {true, false}) {
        pedido ? refresco.PedirRefresco() : refresco.AnularRefresco();
        Muestra(pedido ? 30.0F : 50.0F, 100, 200, 100);
        panel.trazos.clear();
        pintado.Panel_Paint();
        EXPECT_EQ(panel.limpiezas, 1);
        EXPECT_TRUE(panel.trazos.empty());
        EXPECT_EQ(horizontal.estado.Value, panel.ScaleLeft());
        EXPECT_EQ(refresco.bRefrescoPendiente(), pedido);
    }
}

TEST_F(Pinturas, APaintGoesInOrderAndNeverInsideItself) {
    Pon({ConNombre(Lineal(ctConduccion1, {25, 20}, {{10, 10}, {25, 30}, {40, 10}}), "a"),
         Simbolo(ctNudo, {100, 50})});
    Elem(2)->ConecSec1(1);
    Selecciona(1);
    trabajo.iEstado = 8;
    fondo = {&foto, {5, 90}, 100, -50};
    int peticiones = 0;
    alPedirFondo = [&] {
        ++peticiones;
        pintado.Panel_Paint();
        return fondo;
    };
    Repinta();
    EXPECT_EQ(peticiones, 1);
    EXPECT_EQ(panel.limpiezas, 1);
    std::string orden;
    for (const Trazo& t : panel.trazos)
        orden += Relato({t}).substr(0, 5) + (t.pluma.DrawMode == Superficie::MODO_INVERTIR ? "i " : " ");
    // Picture, conduit with its head, node, label, secondary line with its head, frame, its label, mark.
    EXPECT_EQ(orden, "image linea linea circu texto texto linea linea caja  caja  caja i ");
    EXPECT_EQ(panel.trazos[0].puntos[1].Y, 40);
    alPedirFondo = []() -> Fondo { throw Fallo(53); };
    Repinta();
    EXPECT_EQ(panel.De(Que::Imagen).size(), 0U);
    EXPECT_EQ(panel.De(Que::Circulo).size(), 1U);
}

TEST_F(Pinturas, FailuresAreToldAfterThePaintInThreeBoxesAtMost) {
    const std::tuple<int, bool, std::vector<std::string>> filas[] = {
        {1, false, {"datos"}},
        {3, false, {"datos", "datos", "datos"}},
        {5, false, {"datos", "datos", "Hay 2 fallos más de dibujo."}},
        {3, true, {"barras de desplazamiento", "datos", "Hay 1 fallo más de dibujo."}}};
    for (const auto& [rotos, lejos, cajas] : filas) {
        std::vector<Elemento> elementos(static_cast<std::size_t>(rotos), SinTraza(ctConduccion1, {}));
        elementos.push_back(Simbolo(ctNudo, {100, 50}));
        Pon(elementos);
        if (lejos) Muestra(90000, 100, 200, 100);
        for (const std::string& caja : cajas)
            guion.Espera(caja == "datos" ? "ErrDibujarElemento" : caja);
        int abiertas = 0;
        guion.MientrasAvisa([&] {
            if (++abiertas > 3) return;
            EXPECT_EQ(panel.De(Que::Circulo).size(), lejos ? 0U : 1U) << "the paint is over";
            Repinta();  // a box lets the panel be repainted
        });
        Repinta();
        EXPECT_EQ(abiertas, static_cast<int>(cajas.size()));
        EXPECT_EQ(guion.Ultimo().find("Hay") != std::string::npos, rotos + lejos > 3);
    }
}

TEST_F(Pinturas, ASelectionThatTheHostHasRemovedIsDropped) {
    Pon({Simbolo(ctNudo, {100, 50}), Simbolo(ctNudo, {150, 50})});
    Selecciona(1);
    Repinta();
    EXPECT_EQ(panel.De(Que::Caja).size(), 1U);
    const auto guardado = Elem(1);
    documento.colElementos->RemoveCodSIG(1);
    Repinta();
    EXPECT_EQ(trabajo.elemSeleccionado, nullptr);
    EXPECT_EQ(panel.De(Que::Caja).size(), 0U);
}

TEST_F(Pinturas, OnlyTheSelectedSubsystemIsDrawnInItsState) {
    Pon({Simbolo(ctNudo, {100, 50}), Simbolo(ctNudo, {150, 50})});
    trabajo.elemSubsistema = std::make_shared<Elementos>();
    trabajo.elemSubsistema->AddObjetoElemento(*Elem(2));
    trabajo.curvaSeleccion = Traza({{140, 40}, {160, 40}, {150, 60}, {140, 40}});
    using Numeros = std::vector<std::string>;
    for (const auto& [estado, numeros] : {std::pair(12, Numeros{"2"}), std::pair(15, Numeros{"1", "2"})}) {
        trabajo.iEstado = estado;
        Repinta();
        EXPECT_EQ(panel.Textos(), numeros);
        EXPECT_EQ(panel.De(Que::Linea).size(), estado == 12 ? 1U : 0U);
    }
}

TEST_F(Pinturas, TheUnderlineFollowsTheMouseAndAPaintWipesIt) {
    Pon({Simbolo(ctNudo, {100, 50}), Simbolo(ctNudo, {150, 50}), Lineal(ctToma, {}, {{10, 10}, {40, 10}})});
    Repinta();
    const std::string uno = "caja 95.8,58.2 104.2,41.8", dos = "caja 145.8,58.2 154.2,41.8";
    const std::pair<std::int32_t, std::string> filas[] = {{0, ""},   {1, uno}, {1, ""}, {2, uno + "; " + dos},
                                                          {77, dos}, {0, ""},  {3, ""}, {1, uno},
                                                          {0, uno},  {2, dos}};
    for (const auto& [codigo, trazos] : filas) {
        panel.trazos.clear();
        pintado.SubrayaElem(codigo);
        EXPECT_EQ(Relato(panel.trazos), trazos) << codigo;
    }
    Repinta();
    panel.trazos.clear();
    pintado.SubrayaElem(0);
    EXPECT_EQ(Relato(panel.trazos), "");
    pintado.SubrayaElem(2);
    documento.colElementos->RemoveCodSIG(2);
    pintado.SubrayaElem(1);  // what was underlined is gone
    EXPECT_EQ(Relato(panel.trazos), dos + "; " + uno);
}

TEST_F(Pinturas, OutlinesOfADragAreNotWipedByTheControlsOwnRepaint) {
    for (int estado = 1; estado <= 21; ++estado) {
        trabajo.iEstado = estado;
        panel.limpiezas = 0;
        pintado.UserControl_Paint();
        const bool arrastra = std::set{11, 13, 14, 16, 17, 18, 19}.contains(estado);
        EXPECT_EQ(panel.limpiezas, arrastra ? 0 : 1) << estado;
    }
}

TEST_F(Pinturas, ASymbolsHighlightIsTakenAwayByDrawingItAgainAConduitsByRepainting) {
    Pon({Simbolo(ctNudo, {100, 50}), Lineal(ctToma, {}, {{10, 10}, {40, 10}}),
         Lineal(ctToma, {}, {{10, 20}, {40, 20}})});
    refresco.AnularRefresco();
    Selecciona(2);
    pintado.DesSombreaElemeSelecc(nullptr);
    pintado.DesSombreaElemeSelecc(Elem(1));
    EXPECT_EQ(Relato(panel.trazos), "caja 95,45 105,55");
    EXPECT_FALSE(refresco.bRefrescoPendiente());
    for (const std::int32_t codigo : {3, 2}) {
        EXPECT_EQ(trabajo.elemSeleccionado, Elem(2));
        refresco.AnularRefresco();
        pintado.DesSombreaElemeSelecc(Elem(codigo));
        EXPECT_TRUE(refresco.bRefrescoPendiente());
    }
    EXPECT_EQ(trabajo.elemSeleccionado, nullptr);
    EXPECT_EQ(panel.trazos.size(), 1U);
}

}  // namespace zel::pruebas
