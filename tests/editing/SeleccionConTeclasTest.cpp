#include "editing/SeleccionConTeclas.h"

#include "editing/Nombres.h"
#include "support/MesaDeEdicion.h"

namespace zel::pruebas {
namespace {

Elemento Entre(TipoElemento tipo, std::int32_t inicio, std::int32_t fin) {
    Elemento e = Lineal(tipo, {100, 50}, {{50, 50}, {150, 50}});
    e.ElemIni(inicio);
    e.ElemFin(fin);
    return e;
}

// Codes by their place. 1 -4-> 2 -5-> 3, 1 -6-> 3; the sub-basin 8 of the inflow 7 of 1; 9 ends at nothing.
class SeleccionConTeclasTest : public MesaDeEdicion {
  protected:
    SeleccionConTeclasTest() {
        Pon({Simbolo(ctEmbalse, {50, 50}), Simbolo(ctNudo, {150, 50}), Simbolo(ctNudo, {500, 30}),
             Entre(ctConduccion1, 1, 2), Entre(ctConduccion1, 2, 3), Entre(ctCentralHidroelectrica, 1, 3),
             Entre(ctAportacion, 7, 1), Entre(ctSubcuenca, 8, 7), Entre(ctToma, 2, 99)});
        Repinta();
    }
    static constexpr std::int16_t RE_PAG = 33, AV_PAG = 34;
    // The code that is selected when each key of the row has been pressed, 0 for none.
    std::string Recorre(const std::vector<std::int16_t>& teclas, std::int16_t mayus) {
        std::string codigos;
        for (std::int16_t tecla : teclas) {
            teclado.Panel_KeyUp(tecla, mayus);
            const auto& e = trabajo.elemSeleccionado;
            codigos += (codigos.empty() ? "" : " ") + std::to_string(e ? e->gfCodSIG() : 0);
        }
        return codigos;
    }
    std::string RecorreDesde(std::int32_t codigo, const std::vector<std::int16_t>& teclas,
                             std::int16_t mayus) {
        Selecciona(codigo);
        Repinta();
        return Recorre(teclas, mayus);
    }
};

TEST_F(SeleccionConTeclasTest, GoesToTheNeighbourInTheCollectionAndStopsAtItsEnds) {
    EXPECT_EQ(RecorreDesde(0, {AV_PAG, AV_PAG, RE_PAG, RE_PAG}, 0), "1 2 1 1");
    EXPECT_EQ(anfitrion.Eventos(), "Seleccionado 1; Seleccionado 2; Seleccionado 1");
    documento.colElementos->RemoveCodSIG(8);
    EXPECT_EQ(RecorreDesde(0, {RE_PAG, RE_PAG, AV_PAG, AV_PAG}, 0), "9 7 9 9");
    trabajo.iEstado = E_MANO;
    EXPECT_EQ(RecorreDesde(1, {AV_PAG}, 0) + RecorreDesde(1, {AV_PAG}, 1), "11");
    trabajo.iEstado = E_PREPARADO;
    EXPECT_EQ(RecorreDesde(1, {AV_PAG}, 4), "1");
    Pon({});
    EXPECT_EQ(RecorreDesde(0, {AV_PAG, RE_PAG}, 0), "0 0");
}

TEST_F(SeleccionConTeclasTest, FollowsTheFlowBothWays) {
    EXPECT_EQ(RecorreDesde(8, {AV_PAG, AV_PAG, AV_PAG, AV_PAG, AV_PAG, AV_PAG, AV_PAG}, 1), "7 1 4 2 5 3 3");
    EXPECT_EQ(RecorreDesde(6, {RE_PAG, RE_PAG, RE_PAG, RE_PAG}, 1), "1 7 8 8");
    EXPECT_EQ(RecorreDesde(9, {AV_PAG, RE_PAG}, 1), "9 2") << "where it ends there is nothing";
    EXPECT_EQ(RecorreDesde(0, {AV_PAG}, 1), "0");
}

TEST_F(SeleccionConTeclasTest, ShowsWhatItSelectsWithOneRepaintAtMost) {
    Elem(3)->Nombre("Norte");
    Selecciona(1);
    Repinta();
    // A symbol's highlight goes by itself, a trace's goes with a repaint.
    const std::tuple<const char*, const char*, const char*, int> filas[] = {
        {"2", "", "0,100 200x-100", 0},
        {"3", "Norte", "400,80 200x-100", 1},
        {"4", "", "0,100 200x-100", 1},
        {"5", "", "0,100 200x-100", 1}};
    for (const auto& [codigo, nombre, visible, pintados] : filas) {
        const int antes = panel.limpiezas;
        EXPECT_EQ(Recorre({AV_PAG}, 0), codigo);
        EXPECT_EQ(anfitrion.textos[1], nombre);
        EXPECT_EQ(Visible(), visible) << codigo;
        EXPECT_EQ(panel.limpiezas - antes, pintados) << codigo;
    }
    Selecciona(2);
    Muestra(48, 100, 200, 100);
    Recorre({RE_PAG}, 0);
    EXPECT_EQ(Visible(), "-50,100 200x-100") << "half of it was in sight";
}

TEST_F(SeleccionConTeclasTest, AnElementIsToldInWords) {
    Elem(1)->Nombre("Presa");
    Elem(4)->Nombre("Canal");
    const std::pair<std::int32_t, const char*> filas[] = {
        {1, "Embalse nº 1, «Presa»"},
        {4, "Conducción tipo1 nº 4, «Canal», de Embalse nº 1 «Presa» a Nudo nº 2"},
        {8, "Subcuenca nº 8, a Aportación nº 7"},
        {9, "Toma nº 9, de Nudo nº 2"}};
    for (const auto& [codigo, frase] : filas)
        EXPECT_EQ(EnPalabras(*documento.colElementos, *Elem(codigo)), frase);
    Elem(4)->Tipo(TipoElemento(40));
    Elem(4)->ElemFin(98);
    EXPECT_EQ(EnPalabras(*documento.colElementos, *Elem(4)),
              "Elemento nº 4, «Canal», de Embalse nº 1 «Presa»");
}

}  // namespace
}  // namespace zel::pruebas
