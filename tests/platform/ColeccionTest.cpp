#include "platform/Coleccion.h"

#include <gtest/gtest.h>

#include <random>

namespace zel::pruebas {
namespace {

TEST(Coleccion, ComparesKeysWithoutRegardToCase) {
    for (const auto& [una, otra] : {std::pair{"Rio", "rIO"}, {"AÑO", "año"}, {"ÀÞ", "àþ"}})
        EXPECT_EQ(EnMinusculas(una), EnMinusculas(otra));
    for (const auto& [una, otra] : {std::pair{"×", "÷"}, {"ano", "año"}, {"@[", "`{"}, {"a", "a "}})
        EXPECT_NE(EnMinusculas(una), EnMinusculas(otra));
}

TEST(Coleccion, StaysAsItWasWhenItFails) {
    Coleccion<int> coleccion;
    coleccion.Add(10);
    coleccion.Add(20, "Clave");
    EXPECT_THROW(coleccion.Add(30, "CLAVE"), Fallo);
    EXPECT_THROW(coleccion.Add(30, 7), Fallo);
    EXPECT_THROW(coleccion.Item(0), Fallo);
    EXPECT_THROW(coleccion.Item(3), Fallo);
    EXPECT_THROW(coleccion.Remove(-1), Fallo);
    EXPECT_THROW(coleccion.Remove("otra"), Fallo);
    const Coleccion<int> movida = std::move(coleccion);
    EXPECT_EQ(std::vector<int>(movida.begin(), movida.end()), (std::vector<int>{10, 20}));
    EXPECT_EQ(movida.Item("cLAVE"), 20);
    EXPECT_EQ(movida.Item(Variante(1.5)), 20);
}

TEST(Coleccion, KeepsPositionsAndKeysTogetherThroughAnyMixOfAddingAndRemoving) {
    Coleccion<int> coleccion;
    std::vector<std::pair<int, std::string>> espejo;
    std::mt19937 azar(20);
    for (int paso = 0; paso < 3000; ++paso) {
        const std::string clave = azar() % 3 == 0 ? "" : "k" + std::to_string(azar() % 40);
        const auto repetida = std::find_if(
            espejo.begin(), espejo.end(), [&](const auto& p) { return !clave.empty() && p.second == clave; });
        if (repetida != espejo.end()) {
            coleccion.Remove(clave);
            espejo.erase(repetida);
        } else if (azar() % 4 == 0 && !espejo.empty()) {
            const auto indice = static_cast<std::int32_t>(azar() % espejo.size());
            coleccion.Remove(indice + 1);
            espejo.erase(espejo.begin() + indice);
        } else {
            clave.empty() ? coleccion.Add(paso) : coleccion.Add(paso, clave);
            espejo.emplace_back(paso, clave);
        }
        ASSERT_EQ(coleccion.Count(), static_cast<std::int32_t>(espejo.size()));
        std::int32_t posicion = 0;
        for (const auto& [valor, suClave] : espejo) {
            ASSERT_EQ(coleccion.Item(++posicion), valor);
            ASSERT_TRUE(suClave.empty() || coleccion.Item(suClave) == valor);
        }
    }
}

}  // namespace
}  // namespace zel::pruebas
