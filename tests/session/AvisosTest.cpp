#include "session/Avisos.h"

#include <gtest/gtest.h>

#include <tuple>

#include "support/DialogosGuion.h"
#include "support/SuperficieGrabadora.h"

namespace zel::pruebas {

TEST(Avisos, ANoticeDropsTheOutlineInHandAndRepaintsUnlessItIsAboutValuesOrZoom) {
    // The messages, an outline in hand, iRefrescar before and after.
    const std::tuple<std::int16_t, std::int16_t, bool, std::int32_t, std::int32_t, const char*> filas[] = {
        {101, 0, false, 1, 1, "Elementos superpuestos"},
        {101, 102, false, 0, 0, "Elementos superpuestos. Puntos superpuestos"},
        {106, 0, false, 1, 2, "Introduzca una expresión numérica"},
        {109, 0, false, 1, 2, "El tamaño mínimo permitido para un elemento es del 50%"},
        {110, 0, false, 1, 1, "Nombre de archivo incorrecto"},
        {111, 0, false, 1, 2, "Se ha alcanzado el máximo zoom"},
        {111, 0, true, 1, 1, "Se ha alcanzado el máximo zoom"},
        {113, 0, false, 1, 2, "Para editar las propiedades de un elemento haga doble clic sobre él"},
        {114, 0, true, 0, 0, "Primero escoja el elemento inicial de la conducción"}};
    for (const auto& [mensaje, mensaje2, conTrazado, pedido, queda, texto] : filas) {
        DialogosGuion guion;
        SuperficieGrabadora panel;
        Refresco refresco(panel);
        Trabajo trabajo;
        if (conTrazado) trabajo.trazadoTemporal = std::make_shared<Puntos>();
        std::int32_t iRefrescar = pedido;
        guion.Espera(texto);
        Avisos(trabajo, refresco).LanzaMensaje(mensaje, mensaje2, iRefrescar);
        EXPECT_EQ(guion.Ultimo(), texto);
        EXPECT_EQ(iRefrescar, queda) << mensaje;
        EXPECT_EQ(refresco.bRefrescoPendiente(), queda == 1) << mensaje;
        EXPECT_EQ(trabajo.trazadoTemporal, nullptr);
    }
}

TEST(Refrescos, ManyRequestsAreOneRepaintAndACancelledOneIsNone) {
    SuperficieGrabadora panel;
    Refresco refresco(panel);
    refresco.PedirRefresco();
    refresco.PedirRefresco();
    EXPECT_FALSE(refresco.bPintado());
    refresco.RefrescarSiPendiente();
    refresco.RefrescarSiPendiente();
    EXPECT_TRUE(refresco.bPintado());
    refresco.PedirRefresco();
    refresco.AnularRefresco();
    refresco.RefrescarSiPendiente();
    EXPECT_EQ(panel.refrescos, 1);
    EXPECT_FALSE(refresco.bPintado());
}

}  // namespace zel::pruebas
