#include "model/modErrorHandling.h"

#include <gtest/gtest.h>

#include <functional>

#include "model/Mensajes.h"

namespace zel::pruebas {
namespace {

TEST(modErrorHandling, AddsTheTextOfEachLevelToTheChain) {
    try {
        try {
            throw Error(-2147211505, "Dentro", "Origen. Dentro. Error del sistema número: 91, falta");
        } catch (...) {
            LanzaErrorVisor(17, ". Fuera (Esquema)");
        }
    } catch (const Error& error) {
        EXPECT_EQ(error.Number(), -2147211505);
        EXPECT_EQ(error.Source(), "Estado de visor 17. Fuera (Esquema)");
        EXPECT_EQ(error.Description(),
                  "DentroEstado de visor 17. Fuera (Esquema). Error del sistema número: -2147211505, "
                  "Origen. Dentro. Error del sistema número: 91, falta");
    }
    EXPECT_EQ(TextoError(TEXTO_LIBRE, "X", 5), "X. Error del sistema número: 5, ");
}

TEST(modErrorHandling, FindsTheCauseAtTheEndOfTheChain) {
    const auto cadena = [](const std::function<void()>& dentro) {
        try {
            try {
                dentro();
            } catch (...) {
                LanzaError(TEXTO_LIBRE, "Fuera");
            }
        } catch (const Error& error) {
            return CausaDe(error.Description());
        }
        return std::string();
    };
    EXPECT_EQ(cadena([] { throw Fallo(6, "No cabe, 1"); }), "No cabe, 1");
    EXPECT_EQ(cadena([] { LanzaError(TEXTO_LIBRE, "El dato sobra"); }), "El dato sobra");
    EXPECT_EQ(CausaDe("El dato sobra. Error del sistema número: 0, "), "El dato sobra");
    EXPECT_EQ(CausaDe("Otra cosa"), "Otra cosa");
}

TEST(modErrorHandling, TakesTextsFromTheMessageTable) {
    EXPECT_EQ(TextoError(5217, "X", 5), "Preparado");
    EXPECT_EQ(TextoError(5218, "", 0), "Escoja el emplazamiento para el elemento ");
    EXPECT_EQ(TextoError(5129, "X", 5), "Se ha producido un error desconocido.");
    for (std::int32_t id = 0; id < 70000; ++id) {
        const bool esperado = id == 5000 || (id > 5100 && id < 5129) || (id > 5200 && id < 5232);
        ASSERT_EQ(!TextoMensaje(id).value_or("").empty(), esperado) << id;
    }
}

}  // namespace
}  // namespace zel::pruebas
