#include <gtest/gtest.h>

#include "support/MesaDeEdicion.h"

namespace zel::pruebas {

// Shows 0..200 x 0..100; the active area is that of the view.
class Herramienta : public MesaDeEdicion {
  protected:
    Herramienta() {
        Repinta();
        panel.limpiezas = 0;
    }
    void Arrastra(const Vertices& puntos) {
        Pulsa(puntos[0].X, puntos[0].Y, 1);
        for (const PuntoXY& p : puntos)
            Mueve(p.X, p.Y, 1);
        Suelta(puntos.back().X, puntos.back().Y, 1);
    }
    const char* const MAXIMO = "Se ha alcanzado el máximo zoom";
};

TEST_F(Herramienta, TheZoomRectangleIsShownWholeAroundItsMiddle) {
    const std::tuple<Vertices, const char*> filas[] = {
        {{{20, 20}, {60, 90}, {120, 80}}, "10,80 120x-60"},  // as high as dragged
        {{{120, 40}, {20, 20}}, "20,55 100x-50"},            // as wide, from right to left
        {{{60, 20}, {60, 80}}, "0,80 120x-60"},
        {{{60, 20}, {60, 20}}, "0,100 200x-100"}};
    for (const auto& [puntos, visible] : filas) {
        Muestra(0, 100, 200, 100);
        Repinta();
        herramientas.Toolbar2_ButtonClick("zoomRecuadro");
        EXPECT_EQ(Pulsados(), "|zoomRecuadro");
        Arrastra(puntos);
        EXPECT_EQ(Visible(), visible);
        EXPECT_EQ(trabajo.iEstado, 5);
        EXPECT_EQ(Pulsados(), "flecha|");
        EXPECT_EQ(anfitrion.textos[1], "Preparado");
    }
}

TEST_F(Herramienta, ARefusedZoomRectangleCentresAndKeepsTheState) {
    herramientas.Toolbar2_ButtonClick("zoomRecuadro");
    Arrastra({{100, 50}, {101, 51}});
    EXPECT_EQ(Cifra(panel.ScaleWidth()), "40.04");
    herramientas.Toolbar2_ButtonClick("zoomRecuadro");
    guion.Espera(MAXIMO);
    Arrastra({{100, 50}, {101, 51}});
    EXPECT_EQ(Visible(), "80.48,60.51 40.04x-20.02");
    EXPECT_EQ(trabajo.iEstado, 18);
    EXPECT_EQ(trabajo.trazadoTemporal, nullptr);
    EXPECT_TRUE(panel.De(Que::Caja).empty()) << "the repaint wipes the band";
    Suelta(100, 50, 1);  // without a band
    EXPECT_EQ(trabajo.iEstado, 5);
    for (const char* clave : {"zoomRecuadro", "mano", "zoommas"}) {
        herramientas.Toolbar2_ButtonClick(clave);
        Pulsa(100, 50, 2);
        EXPECT_EQ(trabajo.iEstado, 5) << clave;
    }
}

TEST_F(Herramienta, TheBandsAreDrawnTwiceToErase) {
    for (const auto& [clave, banda] : {std::pair("zoomRecuadro", "caja"), {"mano", "linea"}}) {
        herramientas.Toolbar2_ButtonClick(clave);
        panel.trazos.clear();
        Pulsa(20, 30, 1);
        for (const float x : {50.0F, 90.0F})
            Mueve(x, 70, 1);
        const std::string uno = std::string(banda) + " 20,30 20,30; ",
                          dos = std::string(banda) + " 20,30 50,70; ";
        EXPECT_EQ(Relato(panel.trazos), uno + uno + dos + dos + banda + " 20,30 90,70");
        for (const Trazo& t : panel.trazos)
            EXPECT_EQ(t.pluma.DrawMode, Superficie::MODO_INVERTIR);
        EXPECT_EQ(panel.limpiezas, 0);
        EXPECT_EQ(anfitrion.textos[2], "x=90");
        estados.Estado(5, 0);
    }
}

TEST_F(Herramienta, TheHandMovesTheViewAndStaysInHand) {
    herramientas.Toolbar2_ButtonClick("mano");
    Arrastra({{100, 50}, {130, 60}});
    EXPECT_EQ(Visible(), "-30,90 200x-100");
    Arrastra({{10, 50}, {0, 20}});
    EXPECT_EQ(Visible(), "-20,120 200x-100");
    Suelta(50, 50, 1);
    EXPECT_EQ(Visible(), "-20,120 200x-100");
    EXPECT_EQ(trabajo.iEstado, 19);
    EXPECT_EQ(Pulsados(), "|mano");
    EXPECT_EQ(panel.limpiezas, 2);
}

TEST_F(Herramienta, TheZoomIsAskedForAsAPercentage) {
    const std::tuple<std::optional<std::string>, const char*, const char*> filas[] = {
        {std::nullopt, nullptr, "0,100 200x-100"},
        {"25", nullptr, "50,75 100x-50"},
        {"400", nullptr, "0,200 400x-200"},
        {"1", nullptr, "79,60 40.04x-20.02"},
        {"1e300", "Se ha alcanzado el mínimo zoom", "0,100 200x-100"},
        {"doce", "Introduzca una expresión numérica", "0,100 200x-100"},
        {"0.99", "Valor numérico incorrecto", "0,100 200x-100"}};
    for (const auto& [respuesta, aviso, visible] : filas) {
        vista.DisponeDeNuevo(200, 100);
        Repinta();
        guion.Responde(respuesta);
        if (aviso) guion.Espera(aviso);
        herramientas.Toolbar2_ButtonClick("zoom");
        EXPECT_EQ(guion.Pregunta(), "Introduzca el zoom deseado entre el 1 y el 100%:");
        EXPECT_EQ(guion.Propuesta(), "100");
        EXPECT_EQ(Visible(), visible) << respuesta.value_or("none");
        EXPECT_EQ(Pulsados(), "|") << "one-shot buttons pop up";
    }
}

TEST_F(Herramienta, AnElementButtonArmsItsKindAndKeepsATraceBetweenConduits) {
    const std::tuple<std::int32_t, TipoElemento, const char*, std::int32_t, const char*, const char*, bool>
        filas[] = {{5, ctFlecha, "nudo", 2, "100", "nudo|", false},
                   {2, ctNudo, "flecha", 5, "normal", "flecha|", true},
                   {3, ctConduccion1, "conduccion3", 3, "201", "conduccion3|mano", true},
                   {3, ctConduccion1, "recarga", 2, "201", "recarga|", false},
                   {3, ctSubcuenca, "flecha", 5, "normal", "flecha|", false},
                   {1, ctFlecha, "centralHE", 2, "112", "centralHE|", false}};
    Pon({Simbolo(ctNudo, {10, 20})});
    for (const auto& [estado, anterior, clave, nuevo, puntero, pulsados, conTrazado] : filas) {
        trabajo = {};
        trabajo.iEstado = estado;
        trabajo.iTipoHerramienta = anterior;
        trabajo.trazadoNuevo = Traza({{1, 1}});
        anfitrion.pulsados[Barra::Vista] = {"mano"};
        herramientas.Toolbar1_ButtonClick(clave);
        EXPECT_EQ(trabajo.iEstado, nuevo) << clave;
        EXPECT_EQ(Puntero(), puntero) << clave;
        EXPECT_EQ(Pulsados(), pulsados);
        EXPECT_EQ(trabajo.trazadoNuevo != nullptr, conTrazado) << clave;
    }
}

TEST_F(Herramienta, ViewToolsActOnceOrTellWhatIsMissing) {
    Pon({Simbolo(ctNudo, {150, 80}), Simbolo(ctNudo, {350, 180})});
    estados.Estado(19, 1);
    const std::tuple<const char*, std::int32_t, const char*, const char*> filas[] = {
        {"centrarElemento", 0, "No hay ningún elemento seleccionado en el panel", "0,100 200x-100"},
        {"centrarElemento", 1, nullptr, "50,130 200x-100"},
        {"borrar", 0, "Seleccione en el panel el elemento que desee borrar", "50,130 200x-100"},
        {"borrar", 2, nullptr, "50,130 200x-100"},
        {"ajustarzoom", 2, nullptr, "138,186 224x-112"}};
    for (const auto& [clave, seleccionado, aviso, visible] : filas) {
        Selecciona(seleccionado);
        if (aviso) guion.Espera(aviso);
        herramientas.Toolbar2_ButtonClick(clave);
        EXPECT_EQ(Visible(), visible) << clave;
        EXPECT_EQ(Pulsados(), "|mano") << clave;
        EXPECT_EQ(trabajo.iEstado, 19);
        EXPECT_FALSE(refresco.bRefrescoPendiente());
    }
    EXPECT_EQ(anfitrion.Eventos(), "Borrar 2");
}

TEST_F(Herramienta, TheTwoZoomsHaveTheirCursors) {
    for (const auto& [clave, puntero] : {std::pair("zoommas", "203"), {"zoommenos", "204"}}) {
        herramientas.Toolbar2_ButtonClick(clave);
        EXPECT_EQ(std::to_string(trabajo.iEstado) + Puntero() + Pulsados(),
                  std::string("1") + puntero + "|" + clave);
    }
}

TEST_F(Herramienta, LosingTheFocusAbandonsADrag) {
    Pon({Simbolo(ctNudo, {150, 80})});
    const std::tuple<std::int32_t, std::int32_t, int> filas[] = {
        {3, 3, 1}, {13, 5, 1}, {5, 5, 0}, {18, 18, 0}};
    for (const auto& [estado, queda, repintados] : filas) {
        trabajo = {};
        trabajo.iEstado = estado;
        trabajo.trazadoTemporal = Traza({{1, 1}});
        panel.limpiezas = 0;
        refresco.AnularRefresco();
        herramientas.Panel_LostFocus();
        EXPECT_EQ(trabajo.iEstado, queda);
        EXPECT_EQ(panel.limpiezas, repintados) << estado;
        EXPECT_EQ(trabajo.trazadoTemporal == nullptr, estado == 3);
    }
    herramientas.Panel_GotFocus();
    EXPECT_EQ(panel.limpiezas, 1);
}

TEST_F(Herramienta, APressBringsTheAquifersDotsBackButNotInADragOfTheView) {
    for (const std::int32_t estado : {5, 1, 18, 19}) {
        trabajo.iEstado = estado;
        vista.bVistaActualizada(false);
        panel.limpiezas = 0;
        Pulsa(50, 50, 1);
        EXPECT_EQ(vista.bVistaActualizada(), estado < 18);
        if (estado < 18) Suelta(50, 50);
        EXPECT_EQ(panel.limpiezas, estado < 18 ? 1 : 0);
    }
}

}  // namespace zel::pruebas
