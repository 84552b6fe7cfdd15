#include "session/Desplazamiento.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "support/Mesa.h"

namespace zel::pruebas {

constexpr const char* FIN =
    "Pulse el botón zoom menos o la tecla (-) para ampliar la región activa de dibujo";

class Barras : public Mesa {};

TEST_F(Barras, TheBarsFollowTheViewAndTheViewTheirWholePositions) {
    const struct {
        float left, top, ancho, alto;
        const char *horizontal, *vertical, *vista, *region;
    } filas[] = {
        {0, 100, 200, 100, "0..200 paso 100 en 0", "200..100 paso 50 en 100", "0,100 200x-100", "100 %"},
        {30.7F, 150.3F, 200, 100, "0..200 paso 100 en 30", "200..100 paso 50 en 150", "30,150 200x-100",
         "100 %"},
        // Beyond the region, which grows.
        {-10.5F, 250.5F, 200, 100, "-11..200 paso 100 en -11", "250..100 paso 50 en 250", "-11,250 200x-100",
         "100 %"},
        {300.5F, 20, 200, 100, "0..300 paso 100 en 300", "200..20 paso 50 en 20", "300,20 200x-100", "100 %"},
        // All of it in sight, or all but a little.
        {0, 200, 400, 200, "0..0 paso 1 en 0", "200..200 paso 1 en 200", "0,200 400x-200", "400 %"},
        {3, 198, 395, 195, "0..0 paso 1 en 0", "200..200 paso 1 en 200", "3,200 395x-195", "385 %"},
        {3, 198, 394, 194, "0..6 paso 6 en 3", "200..194 paso 6 en 198", "3,198 394x-194", "382 %"},
        {10, 50, 1.5F, 1, "0..398 paso 1 en 10", "200..1 paso 1 en 50", "10,50 1.5x-1", "0 %"},
        // Missed by the rounding of the view's right edge.
        {30000, 50, 0.1F, 0.05F, "0..29999 paso 1 en 29999", "200..0 paso 1 en 50", "29999,50 0.1x-0.05",
         "0 %"},
        // Beyond the world.
        {-4100.5F, 51.5F, 200, 100, "-4100..-4100 paso 1 en -4100", "52..52 paso 1 en 52",
         "-4100,52 200x-100", "100 % Máxima región de dibujo"}};
    for (const auto& f : filas) {
        vista.DisponeDeNuevo(200, 100);
        horizontal.estado = vertical.estado = {};
        Muestra(f.left, f.top, f.ancho, f.alto);
        EXPECT_EQ(desplazamiento.ActualizaVista(2), std::nullopt);
        EXPECT_EQ(horizontal.Texto(), f.horizontal);
        EXPECT_EQ(vertical.Texto(), f.vertical);
        EXPECT_EQ(Visible(), f.vista);
        EXPECT_EQ(anfitrion.textos[4], std::string("Región mostrada: ") + f.region);
        EXPECT_FALSE(anfitrion.textos.contains(1)) << "a hint that nobody asked for";
        EXPECT_FALSE(desplazamiento.bActualizandoScroll());
    }
    EXPECT_EQ(panel.refrescos, 0);
}

TEST_F(Barras, WhateverTheViewTheBarsHoldItAndASecondLookChangesNothing) {
    std::mt19937 azar(20240501);
    const auto entre = [&](float a, float b) { return std::uniform_real_distribution<float>(a, b)(azar); };
    for (int i = 0; i < 100; ++i) {
        const float ancho = std::exp(entre(std::log(40.0F), std::log(8000.0F)));
        vista.DisponeDeNuevo(200, 100);
        Muestra(entre(-3900, 15000), entre(8000, 20000), ancho, ancho * entre(0.2F, 2));
        const Superficie::Escala antes = panel.escala();
        EXPECT_EQ(desplazamiento.ActualizaVista(2), std::nullopt);
        EXPECT_TRUE(vista.RegionElementos().Contiene(
            {antes.Left, antes.Top + antes.Height, antes.Left + antes.Width, antes.Top}));
        for (const BarraAnotadora* barra : {&horizontal, &vertical}) {
            const auto [menor, mayor] = std::minmax(barra->estado.Min, barra->estado.Max);
            EXPECT_TRUE(menor <= barra->estado.Value && barra->estado.Value <= mayor) << barra->Texto();
            EXPECT_GE(barra->estado.LargeChange, 1);
            EXPECT_LE(barra->estado.LargeChange, std::max(1, mayor - menor)) << barra->Texto();
        }
        const auto cerca = [](const BarraAnotadora& b, float a, float c) {
            return b.estado.Min == b.estado.Max || std::abs(a - c) <= 1;
        };
        EXPECT_TRUE(cerca(horizontal, panel.ScaleLeft(), antes.Left)) << horizontal.Texto();
        EXPECT_TRUE(cerca(vertical, panel.ScaleTop(), antes.Top)) << vertical.Texto();
        EXPECT_EQ(panel.ScaleWidth(), antes.Width);
        const std::string una = Visible() + horizontal.Texto() + vertical.Texto();
        desplazamiento.ActualizaVista(2);
        EXPECT_EQ(Visible() + horizontal.Texto() + vertical.Texto(), una);
    }
}

TEST_F(Barras, AViewBeyondSixteenBitsIsToldWhenItBecomesSo) {
    const auto mira = [&](float left) {
        Pon({Simbolo(ctNudo, {left, 50})});
        vista.CalculaRegionActiva(panel, true);
        Muestra(left, 100, 200, 100);
        return desplazamiento.ActualizaVista(2).value_or("");
    };
    mira(100);
    const std::string antes = horizontal.Texto() + vertical.Texto();
    EXPECT_NE(mira(40000).find("barras de desplazamiento"), std::string::npos);
    EXPECT_FALSE(horizontal.activa || vertical.activa);
    EXPECT_EQ(horizontal.Texto() + vertical.Texto(), antes);
    EXPECT_EQ(Visible(), "40000,100 200x-100");
    anfitrion.textos.clear();
    EXPECT_EQ(mira(50000), "");
    EXPECT_EQ(anfitrion.textos[4], "Región mostrada: " + Cifra(vista.Zoom() * 100, 1) + " %");
    EXPECT_EQ(mira(100), "");
    EXPECT_TRUE(horizontal.activa && vertical.activa);
    EXPECT_NE(mira(60000).find("barras de desplazamiento"), std::string::npos);
    EXPECT_EQ(mira(60000), "");
    desplazamiento.NuevoDocumento();
    EXPECT_NE(mira(60000).find("barras de desplazamiento"), std::string::npos);
    EXPECT_FALSE(desplazamiento.bActualizandoScroll());
}

TEST_F(Barras, ABarMovesTheViewAndTellsOnceThatItIsAtItsEnd) {
    Muestra(200, 100, 200, 100);
    desplazamiento.ActualizaVista(2);
    panel.pinta = nullptr;
    vista.bVistaActualizada(true);
    // The view's update has left it at an end already: nothing to tell at the other one.
    for (const auto& [posicion, aviso] : std::vector<std::pair<std::int16_t, bool>>{
             {0, false}, {60, false}, {200, true}, {0, false}, {199, false}, {0, true}}) {
        trabajo.trazadoTemporal = Traza({{1, 1}});
        panel.ScaleHeight(100);
        horizontal.estado.Value = posicion;
        anfitrion.textos.erase(1);
        desplazamiento.HScroll_Change();
        EXPECT_EQ(anfitrion.textos[1], aviso ? FIN : "") << posicion;
        EXPECT_EQ(Visible(), Cifra(posicion) + ",100 200x-100");
        EXPECT_EQ(trabajo.trazadoTemporal, nullptr);
    }
    EXPECT_EQ(panel.refrescos, 6);
    EXPECT_TRUE(vista.bVistaActualizada());
    anfitrion.textos.erase(1);
    vertical.estado.Value = 150;
    desplazamiento.VScroll_Change();
    vertical.estado.Value = 200;
    desplazamiento.VScroll_Scroll();
    EXPECT_FALSE(vista.bVistaActualizada());
    horizontal.estado.Value = 70;
    desplazamiento.HScroll_Scroll();
    EXPECT_EQ(Visible(), "70,200 200x-100");
    EXPECT_EQ(anfitrion.textos.count(1), 0U) << "the thumb is still held";
    EXPECT_EQ(panel.refrescos, 9);
    desplazamiento.VScroll_Change();
    EXPECT_EQ(anfitrion.textos[1], FIN);
}

TEST_F(Barras, OnlyModeOneRepaintsAndItDoesNotEnterItself) {
    for (const std::int16_t modo : {1, 2}) {
        panel.refrescos = panel.limpiezas = 0;
        Muestra(20.5F * modo, 120, 200, 100);
        refresco.PedirRefresco();
        desplazamiento.ActualizaVista(modo);
        EXPECT_EQ(panel.refrescos > 0, modo == 1);
        EXPECT_EQ(panel.limpiezas, panel.refrescos);
        EXPECT_TRUE(refresco.bRefrescoPendiente());
        EXPECT_FALSE(refresco.bPintado());
    }
}

}  // namespace zel::pruebas
