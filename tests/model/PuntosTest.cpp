#include "model/Puntos.h"

#include <gtest/gtest.h>

#include <array>

namespace zel::pruebas {
namespace {

using Valores = std::vector<std::array<float, 3>>;

Valores De(const Puntos& trazado) {
    Valores valores;
    for (const auto& p : trazado)
        valores.push_back({p->XPos(), p->YPos(), p->Valor()});
    return valores;
}

TEST(Puntos, KeepsItsPointsInOrderUnderPositionsAndKeys) {
    Puntos trazado;
    EXPECT_FALSE(trazado.Flecha());
    EXPECT_EQ(trazado.Valor() + trazado.Valor2() + trazado.Valor3(), 0);
    const auto primero = trazado.Add(3, 4);
    trazado.Add(5, 6, 7, "");
    trazado.Add(8, 9, 10, "");
    const auto ultimo = trazado.Add(11, 12, 13, "Fin");
    EXPECT_EQ(De(trazado), (Valores{{3, 4, 0}, {5, 6, 7}, {8, 9, 10}, {11, 12, 13}}));
    trazado.Remove(2);
    EXPECT_EQ(trazado.Item(1), primero);
    EXPECT_EQ(trazado.Item(3), ultimo);
    EXPECT_EQ(trazado.Item("FIN"), ultimo);
    trazado.Remove("fin");
    EXPECT_EQ(De(trazado), (Valores{{3, 4, 0}, {8, 9, 10}}));
}

TEST(Puntos, StoresACopyOfAGivenPoint) {
    Puntos trazado;
    const auto p = std::make_shared<Punto>(1.0F, 2.0F, 5.0F);
    trazado.AddObjetoPunto(p);
    trazado.AddObjetoPunto(p, true);
    trazado.AddObjetoPunto(p, false, 7);
    p->XPos(99);
    trazado.Item("7")->CopiaPropiedades(p);
    trazado.Item(2)->CopiaPropiedades(p, true);
    EXPECT_EQ(De(trazado), (Valores{{1, 2, 5}, {99, 2, 0}, {99, 2, 5}}));
}

TEST(Puntos, RaisesWithTheTextOfTheOperationAndStaysAsItWas) {
    Puntos trazado;
    trazado.Add(1, 2, 0, "a");
    const struct {
        void (*accion)(Puntos&);
        const char* origen;
        std::int32_t numero;
    } FILAS[] = {
        {[](auto& t) { t.Item(0); }, "ErrGetItem (Puntos)", 9},
        {[](auto& t) { t.Item("b"); }, "ErrGetItem (Puntos)", 5},
        {[](auto& t) { t.Remove("b"); }, "ErrRemove (Puntos)", 5},
        {[](auto& t) { t.Add(1, 1, 1, "A"); }, "Error en método Add (Puntos)", 457},
        {[](auto& t) { t.Add(1, 1, 1, 7); }, "Error en método Add (Puntos)", 13},
        {[](auto& t) { t.AddObjetoPunto(t.Item(1), true, "A"); }, "Error en método AddObjetoPunto", 457},
        {[](auto& t) { t.AddObjetoPunto(nullptr); }, "Error en método AddObjetoPunto", 91},
        {[](auto& t) { t.Item(1)->CopiaPropiedades(nullptr); },
         "ErrCopiaPropiedades: hay un error en el método o el argumento que se pasó no es un objeto Punto",
         91},
        {[](auto& t) { EscribePropiedad(t, "VALOR2", 1e39); }, "ErrLetValor2 (Puntos)", 6},
        {[](auto& t) { EscribePropiedad(*t.Item(1), "XPos", "x"); }, "Error en Property Let XPos (Punto)",
         13},
    };
    for (const auto& [accion, origen, numero] : FILAS) {
        try {
            accion(trazado);
            ADD_FAILURE() << "No error: " << origen;
        } catch (const Error& error) {
            const auto texto =
                std::string(origen) + ". Error del sistema número: " + std::to_string(numero) + ", ";
            EXPECT_EQ(error.Number(), -2147211505);
            EXPECT_EQ(error.Source(), origen);
            EXPECT_NE(error.Description().find(texto), std::string::npos) << error.Description();
        }
    }
    EXPECT_EQ(De(trazado), (Valores{{1, 2, 0}}));
}

}  // namespace
}  // namespace zel::pruebas
