#include "editing/Subsistema.h"

#include <gtest/gtest.h>

#include "support/MesaDeEdicion.h"

namespace zel::pruebas {

class Subsistemas : public MesaDeEdicion {
  protected:
    Subsistemas() {
        // Two nodes joined by 2, one of them with an intake to a demand, a plant, and a node far away.
        const auto une = [](TipoElemento tipo, std::int32_t ini, std::int32_t fin) {
            Elemento e = Lineal(tipo, {30, 5}, {{10, 10}, {50, 10}});
            e.ElemIni(ini);
            e.ElemFin(fin);
            return e;
        };
        Pon({Simbolo(ctNudo, {10, 10}), une(ctConduccion1, 1, 3), Simbolo(ctEmbalse, {50, 10}),
             une(ctToma, 3, 5), Simbolo(ctDemanda, {30, 15}), une(ctConduccion2, 3, 7),
             Simbolo(ctNudo, {200, 10}), une(ctCentralHidroelectrica, 1, 7)});
    }
    std::string Encierra(const Vertices& lazo, std::int32_t desde = 11) {
        trabajo.iEstado = desde;
        trabajo.curvaSeleccion = Traza(lazo);
        estados.Estado(12, 1);
        return trabajo.elemSubsistema ? Codigos() : "";
    }
};

TEST_F(Subsistemas, TheLassoTakesWhatStandsInsideAndTheConduitsBetween) {
    const std::pair<Vertices, const char*> filas[] = {
        {{{0, 0}, {60, 0}, {60, 20}, {0, 20}, {0, 0}}, "1 3 5 8 2 4"},
        {{{0, 0}, {20, 0}, {20, 20}, {0, 20}, {0, 0}}, "1"},
        {{{40, 0}, {300, 0}, {300, 20}, {40, 20}, {40, 0}}, "3 7 6"},
        // Around the plant and the demand, with both nodes left out by a dent, and with a corner at their
        // height.
        {{{20, 0}, {40, 0}, {40, 20}, {20, 20}, {20, 0}}, "5 8"},
        {{{0, 10}, {30, -30}, {60, 10}, {30, 40}, {0, 10}}, "1 3 5 8 2 4"},
        {{{300, 300}, {400, 300}, {400, 400}, {300, 300}}, ""}};
    for (const auto& [lazo, codigos] : filas) {
        for (const std::int32_t desde : {11, 17}) {
            EXPECT_EQ(Encierra(lazo, desde), codigos);
            EXPECT_EQ(trabajo.iEstado, *codigos ? 12 : 5);
            if (*codigos) {
                EXPECT_EQ(trabajo.curvaSeleccion != nullptr, desde == 11);
                EXPECT_NE(trabajo.elemSubsistema->Item(1), Elem(trabajo.elemSubsistema->Item(1)->gfCodSIG()));
            } else {
                EXPECT_EQ(anfitrion.textos[1], "Preparado");
            }
        }
    }
}

TEST_F(Subsistemas, ElementsOfOneCodeAreToldAndTheGestureIsOver) {
    Elem(3)->gfCodSIG(1);
    EXPECT_THROW(Encierra({{0, 0}, {60, 0}, {60, 20}, {0, 20}, {0, 0}}, 17), std::exception);
    EXPECT_EQ(trabajo.iEstado, 5);
    EXPECT_EQ(anfitrion.textos[1], "Preparado");
    EXPECT_EQ(trabajo.trazadoTemporal, nullptr);
}

TEST_F(Subsistemas, ReleasingCtrlMakesTheConduitsMatchTheChosenSymbols) {
    ASSERT_EQ(Encierra({{0, 0}, {60, 0}, {60, 20}, {0, 20}, {0, 0}}), "1 3 5 8 2 4");
    estados.Estado(15, 1);
    EXPECT_EQ(Codigos(), "1 3 5 8 2 4");
    trabajo.elemSubsistema->RemoveCodSIG(1);
    trabajo.elemSubsistema->AddObjetoElemento(*Elem(7));
    estados.Estado(12, 1);
    EXPECT_EQ(Codigos(), "3 5 8 7 4 6");
}

}  // namespace zel::pruebas
