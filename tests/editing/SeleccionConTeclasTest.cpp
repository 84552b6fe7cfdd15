#include "editing/Nombres.h"
#include "support/MesaDeEdicion.h"

namespace zel::pruebas {

Elemento Entre(TipoElemento tipo, std::int32_t inicio, std::int32_t fin) {
    Elemento e = Lineal(tipo, {100, 50}, {{50, 50}, {150, 50}});
    e.ElemIni(inicio);
    e.ElemFin(fin);
    return e;
}

// Codes by their place. 1 -4-> 2 -5-> 3, 1 -6-> 3; the sub-basin 8 of the inflow 7 of 1; 9 ends at nothing.
class SeleccionConTeclas : public MesaDeEdicion {
  protected:
    SeleccionConTeclas() {
        Pon({Simbolo(ctEmbalse, {50, 50}), Simbolo(ctNudo, {150, 50}), Simbolo(ctNudo, {500, 30}),
             Entre(ctConduccion1, 1, 2), Entre(ctConduccion1, 2, 3), Entre(ctCentralHidroelectrica, 1, 3),
             Entre(ctAportacion, 7, 1), Entre(ctSubcuenca, 8, 7), Entre(ctToma, 2, 99)});
    }
    // The codes that are selected after each page down (+) or up (-).
    std::string Pasa(std::int32_t desde, const std::string& paginas, std::int16_t mayus = 0) {
        Selecciona(desde);
        Repinta();
        std::string codigos;
        for (const char pagina : paginas) {
            std::int16_t tecla = pagina == '+' ? 34 : 33;
            teclado.Panel_KeyUp(tecla, mayus);
            codigos += std::to_string(trabajo.elemSeleccionado->gfCodSIG());
        }
        return codigos;
    }
};

TEST_F(SeleccionConTeclas, GoesToTheNeighbourInTheCollectionAndStopsAtItsEnds) {
    EXPECT_EQ(Pasa(0, "++--"), "1211");
    EXPECT_EQ(anfitrion.Eventos(), "Seleccionado 1; Seleccionado 2; Seleccionado 1");
    documento.colElementos->RemoveCodSIG(8);
    EXPECT_EQ(Pasa(0, "--++"), "9799");
    trabajo.iEstado = E_MANO;
    EXPECT_EQ(Pasa(1, "+") + Pasa(1, "+", 1), "11");
}

TEST_F(SeleccionConTeclas, FollowsTheFlowBothWays) {
    EXPECT_EQ(Pasa(8, "+++++++", 1), "7142533");
    EXPECT_EQ(Pasa(6, "----", 1), "1788");
    EXPECT_EQ(Pasa(9, "+-", 1), "92") << "where it ends there is nothing";
}

TEST_F(SeleccionConTeclas, ShowsWhatItSelectsWithOneRepaintAtMost) {
    // A symbol's highlight goes by itself, a trace's goes with a repaint.
    const std::tuple<std::int32_t, float, const char*, int> filas[] = {
        {1, 0, "0,100", 0}, {2, 0, "400,80", 1}, {4, 0, "0,100", 1}, {1, -48, "50,100", 1}};
    for (const auto& [desde, left, visible, pintados] : filas) {
        Muestra(left, 100, 200, 100);
        panel.limpiezas = -1;  // that of the one that is selected first
        Elem(desde + 1)->Nombre("N");
        EXPECT_EQ(Pasa(desde, "+"), std::to_string(desde + 1));
        EXPECT_EQ(Visible(), visible + std::string(" 200x-100"));
        EXPECT_EQ(panel.limpiezas, pintados) << desde;
        EXPECT_EQ(std::exchange(anfitrion.textos[1], ""), "N");
    }
}

TEST_F(SeleccionConTeclas, AnElementIsToldInWords) {
    Elem(1)->Nombre("Presa");
    Elem(4)->Nombre("Canal");
    EXPECT_EQ(EnPalabras(*documento.colElementos, *Elem(4)),
              "Conducción tipo1 nº 4, «Canal», de Embalse nº 1 «Presa» a Nudo nº 2");
    EXPECT_EQ(EnPalabras(*documento.colElementos, *Elem(8)), "Subcuenca nº 8, a Aportación nº 7");
}

}  // namespace zel::pruebas
