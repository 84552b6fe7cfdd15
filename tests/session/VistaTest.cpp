#include "session/Vista.h"

#include "model/TamanyoUnidad.h"
#include "support/Mesa.h"

namespace zel::pruebas {

constexpr const char* MAXIMO = "Se ha alcanzado el máximo zoom";

static std::string Texto(const Marco& m) {
    return Cifra(m.Xmin) + ".." + Cifra(m.Xmax) + " x " + Cifra(m.Ymin) + ".." + Cifra(m.Ymax);
}

// Without the scroll bars, which a paint brings into line with the view.
class Vistas : public Mesa {
  protected:
    Vistas() { panel.pinta = {}; }
    // Two nodes; region 4..416 x 14..126, shown whole 412 wide and 206 high around (210, 70).
    void PonDosNudos() {
        Pon({Simbolo(ctNudo, {10, 20}), Simbolo(ctNudo, {410, 120})});
        vista.AjustarImagen(panel, 1);
    }
    bool Zoom(float z) { return vista.AjustarZoomUsuario(panel, z, true, true, 1); }
    std::string Visible() const { return Texto(Marco::Visible(panel)); }
    std::string Centro() const {
        return Cifra(panel.ScaleLeft() + panel.ScaleWidth() / 2) + "," +
               Cifra(panel.ScaleTop() + panel.ScaleHeight() / 2);
    }
};

TEST_F(Vistas, TheFirstLayoutShowsTheWorldFromZeroAndLaterOnesKeepTheCornerAndTheScale) {
    EXPECT_EQ(Visible(), "0..200 x 0..100");
    EXPECT_EQ(Texto(vista.RegionElementos()), "0..400 x 0..200");
    EXPECT_EQ(Texto(vista.RegionActiva()), "0..200 x 0..100");
    EXPECT_EQ(vista.AreaActiva(), 20000);
    EXPECT_EQ(vista.Zoom(), 1);
    EXPECT_EQ(vista.EscalaDibujo(), 1600);
    EXPECT_EQ(vista.RelacionAspecto(), 2);
    EXPECT_EQ(TamanyoUnidad(), 4);
    PonDosNudos();
    vista.Dispone(400, 80);
    EXPECT_EQ(Visible(), "4..828 x 8.2..173");
    EXPECT_EQ(vista.EscalaDibujo(), 3200);
    EXPECT_FLOAT_EQ(vista.RelacionAspecto(), 5);
    EXPECT_FLOAT_EQ(vista.Zoom(), 1.6F);
    EXPECT_FALSE(vista.bVistaActualizada());
    EXPECT_TRUE(refresco.bRefrescoPendiente());
    vista.Dispone(0, 50);  // hidden
    vista.Dispone(200, 100);
    EXPECT_EQ(Visible(), "4..416 x -33..173");
}

TEST_F(Vistas, MueveScrollCentresOnAPointInsideTheWorldAndRepaintsWhenTold) {
    const std::tuple<float, float, float, float> filas[] = {{30, 40, 30, 40},
                                                            {-5000, 3000000, -3999, 2499999},
                                                            {-4000, -5000, -3999, -4999},
                                                            {5000000, 2500000, 4999999, 2499999},
                                                            {-3999.5F, -4999.5F, -3999.5F, -4999.5F}};
    for (const auto& [x, y, cx, cy] : filas) {
        vista.MueveScroll(x, y, 2);
        EXPECT_EQ(panel.ScaleLeft(), cx - 100);
        EXPECT_EQ(panel.ScaleTop(), cy + 50);
    }
    EXPECT_EQ(panel.refrescos, 0);
    EXPECT_TRUE(refresco.bRefrescoPendiente());
    vista.MueveScroll(30, 40, 1);
    EXPECT_EQ(panel.refrescos, 1);
}

TEST_F(Vistas, TheRegionsHoldSymbolsTracesAndTheirMarginAndTheActiveOneHasThePanelsShape) {
    const Elemento nudo = Simbolo(ctNudo, {100, 50});
    const Elemento acuifero = Simbolo(ctAcuifero, {500, 50});
    const Elemento toma = Lineal(ctToma, {900, 40}, {{500, 50}, {700, 40}}, 9);
    const Elemento central = Lineal(ctCentralHidroelectrica, {100, 50}, {{0, 50}}, 2, {{100, 300}});
    const Elemento cuenca = Lineal(ctSubcuenca, {100, 50}, {{100, 50}, {100, 62}}, 2);
    const Elemento sinTraza = SinTraza(ctConduccion1, {9000, 9000});
    const Elemento oeste = Simbolo(ctNudo, {-3996, 50});
    const Elemento sur = Simbolo(ctNudo, {0, -4990}), sureste = Simbolo(ctNudo, {1000, -4990});
    const Elemento este = Simbolo(ctNudo, {4999990, 50}), norte = Simbolo(ctNudo, {50, 2499998});
    const Elemento fuera = Simbolo(ctNudo, {-9000, 50});
    const std::tuple<std::vector<Elemento>, int, std::string, std::string> filas[] = {
        {{nudo, acuifero}, 1, "94..506 x 44..56", "94..506 x -53..153"},
        {{nudo, toma}, 1, "94..702 x 38..56", "94..702 x -105..199"},
        {{toma}, 1, "498..900 x 38..52", "498..900 x -55.5..145.5"},
        {{central}, 1, "-2..110 x 40..302", "-208..316 x 40..302"},
        {{cuenca}, 1, "90..110 x 40..64", "76..124 x 40..64"},
        {{sinTraza, nudo, sinTraza}, 1, "94..106 x 44..56", "88..112 x 44..56"},
        {{oeste}, -2, "-3999..-3990 x 44..56", "-3999..-3984 x 44..56"},
        {{sur, sureste}, -2, "-6..1006 x -4996..-4984", "-6..1006 x -4999..-4737"},
        {{este}, -2, "4999984..4999996 x 44..56", "4999978..4999999 x 44..56"},
        {{norte}, -2, "44..56 x 2499992..2499999", "38..62 x 2499992..2499999"},
        {{fuera}, -2, "-3999..-3998 x 44..56", "-3999..-3998 x 44..56"},
        {{}, -1, "0..200 x 0..100", "0..200 x 0..100"},
        {{sinTraza}, -1, "0..200 x 0..100", "0..200 x 0..100"}};
    for (const auto& [elementos, resultado, region, activa] : filas) {
        Pon(elementos);
        EXPECT_EQ(vista.CalculaRegionActiva(panel, true), resultado) << region;
        EXPECT_EQ(Texto(vista.RegionElementos()), region);
        EXPECT_EQ(Texto(vista.RegionActiva()), activa);
        const Marco& m = vista.RegionActiva();
        EXPECT_EQ(vista.AreaActiva(), (m.Xmax - m.Xmin) * (m.Ymax - m.Ymin));
        EXPECT_FLOAT_EQ(vista.Zoom(), 20000 / vista.AreaActiva());
    }
}

TEST_F(Vistas, WithoutEitherFlagOnlyTheRegionOfTheGivenElementsChanges) {
    Elementos parte;
    Numera(parte, {Simbolo(ctNudo, {100, 50})});
    EXPECT_EQ(vista.CalculaRegionActiva(panel, false, &parte), 1);
    EXPECT_EQ(Texto(vista.RegionElementos()), "94..106 x 44..56");
    EXPECT_EQ(Texto(vista.RegionActiva()), "0..200 x 0..100");
    EXPECT_EQ(vista.AreaActiva(), 20000);
    EXPECT_EQ(vista.CalculaRegionActiva(panel, false, &parte, true), 1);
    EXPECT_EQ(Texto(vista.RegionActiva()), "88..112 x 44..56");
}

TEST_F(Vistas, AjustarImagenShowsTheWholeRegionAndRepaintsOnce) {
    PonDosNudos();
    EXPECT_EQ(Visible(), "4..416 x -33..173");
    EXPECT_EQ(vista.Zoom(), 1);
    EXPECT_EQ(anfitrion.textos[4], "Región mostrada: 100 %");
    EXPECT_EQ(panel.refrescos, 1);
    EXPECT_TRUE(vista.bVistaActualizada());
    vista.AjustarImagen(panel, 2);
    EXPECT_EQ(panel.refrescos, 1);
    EXPECT_TRUE(refresco.bRefrescoPendiente());
}

TEST_F(Vistas, TheCentreIsKeptOrPulledInsideTheRegionOrPutInItsMiddle) {
    // From that centre, 103 x 51.5 units shown; the zoom; keeping the centre, allowing more than the region.
    const std::tuple<float, float, float, bool, bool, const char*, const char*> filas[] = {
        {300, 110, 0.25F, true, true, "300,110 206x-103", "25 %"},
        {300, 100, 0.25F, false, true, "300,100 206x-103", "25 %"},
        {400, 70, 0.25F, false, true, "364.5,70 206x-103", "25 %"},  // by the half extents before the zoom
        {50, 70, 0.25F, false, true, "55.5,70 206x-103", "25 %"},
        {210, 200, 0.25F, false, true, "210,100.25 206x-103", "25 %"},
        {210, 30, 0.375F, false, false, "210,39.75 252.3x-126.15", "38 %"},  // half to even
        {210, 70, 0.125F, true, false, "210,70 145.66x-72.83", "12 %"},
        {300, 110, 1, false, false, "210,70 412x-206", "100 %"},
        {300, 110, 4, false, true, "210,70 824x-412", "400 %"},
        {300, 110, 4, false, false, "210,70 824x-412", "100 %"},
        {300, 110, 4, true, false, "300,110 824x-412", "400 %"}};
    for (const auto& [x, y, z, mantener, permitirMayor, vista2, porcentaje] : filas) {
        PonDosNudos();
        ASSERT_TRUE(Zoom(0.0625F));
        vista.MueveScroll(x, y, 2);
        EXPECT_TRUE(vista.AjustarZoomUsuario(panel, z, mantener, permitirMayor, 2));
        EXPECT_EQ(Centro() + " " + Cifra(panel.ScaleWidth()) + "x" + Cifra(panel.ScaleHeight()), vista2);
        EXPECT_EQ(anfitrion.textos[4], std::string("Región mostrada: ") + porcentaje) << vista2;
    }
}

TEST_F(Vistas, TheClosestViewIsReachedOnceAndThenTold) {
    PonDosNudos();
    EXPECT_TRUE(Zoom(1e-6F));
    EXPECT_EQ(Visible(), "189.98..230.02 x 59.99..80.01");
    const float zoom = vista.Zoom();
    const int refrescos = panel.refrescos;
    for (const float z : {zoom * 0.9F, 1e-6F, 0.0F}) {
        guion.Espera(MAXIMO);
        EXPECT_FALSE(Zoom(z));
        EXPECT_EQ(Visible(), "189.98..230.02 x 59.99..80.01");
        EXPECT_EQ(vista.Zoom(), zoom);
    }
    EXPECT_EQ(panel.refrescos, refrescos);
    EXPECT_TRUE(Zoom(2 * zoom));
}

TEST_F(Vistas, TheFarthestViewIsNotPassed) {
    PonDosNudos();
    const double mundo = 5004000.0 * 2505000.0 / vista.AreaActiva();
    EXPECT_TRUE(Zoom(static_cast<float>(1.449 * mundo)));
    const std::string lejos = Visible();
    guion.Espera("Se ha alcanzado el mínimo zoom");
    EXPECT_FALSE(Zoom(static_cast<float>(1.451 * mundo)));
    EXPECT_EQ(Visible(), lejos);
}

TEST_F(Vistas, ASchematicOfOneNodeIsShownInTheMiddleOfTheClosestViewAlsoTheSecondTime) {
    Pon({Simbolo(ctNudo, {1010, 20})});
    vista.AjustarImagen(panel, 1);
    EXPECT_EQ(Visible(), "989.98..1030.02 x 9.99..30.01");
    EXPECT_EQ(anfitrion.textos[4], "Región mostrada: 278 %");
    // Panels of many shapes: the view's zoom is never the limit's to the last bit.
    for (float alto = 65; alto < 300; alto += 7.3F) {
        Vista otra(panel, documento, trabajo, refresco, avisos, anfitrion);
        otra.Dispone(200, alto);
        otra.AjustarImagen(panel, 1);
        otra.MueveScroll(90000, 20, 1);
        panel.refrescos = 0;
        guion.Espera(MAXIMO);
        otra.AjustarImagen(panel, 1);
        EXPECT_EQ(Centro(), "1010,20");
        EXPECT_NEAR(panel.ScaleWidth(), 40.04, 1e-4);
        EXPECT_EQ(panel.refrescos, 1);
    }
}

TEST_F(Vistas, AnEmptySchematicKeepsTheViewAsItsActiveRegion) {
    PonDosNudos();
    Zoom(0.25F);
    Pon({});
    vista.AjustarImagen(panel, 1);
    EXPECT_EQ(Visible(), "107..313 x 18.5..121.5");
    EXPECT_EQ(Texto(vista.RegionActiva()), "107..313 x 18.5..121.5");
    EXPECT_EQ(anfitrion.textos[4], "Región mostrada: 100 %");
}

TEST_F(Vistas, AFailureIsRaisedWithTheStateOfTheViewer) {
    struct : public AnfitrionAnotador {
        void TextoEstado(int, const std::string&) override { throw Fallo(7); }
    } roto;
    Vista otra(panel, documento, trabajo, refresco, avisos, roto);
    otra.Dispone(200, 100);
    trabajo.iEstado = 19;
    EXPECT_TRUE(Falla([&] { otra.AjustarImagen(panel, 1); },
                      {"Estado de visor 19. ErrAjustarZoomUsuario (Esquema)",
                       "Estado de visor 19. ErrAjustarImagen (Esquema)", "No queda memoria suficiente"}));
    for (const float z : {-1.0F, NAN})
        EXPECT_TRUE(Falla([&] { Zoom(z); }, {"Estado de visor 19. ErrAjustarZoomUsuario (Esquema)"}));
    EXPECT_EQ(Visible(), "0..200 x 0..100");
}

}  // namespace zel::pruebas
