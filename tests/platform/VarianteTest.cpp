#include "platform/Variante.h"

#include <gtest/gtest.h>
#include "support/Resultado.h"

namespace zel::pruebas {
namespace {

TEST(Variante, ConvertsItselfToTheTypeThatTheReceiverWants) {
    const struct {
        Variante valor;
        const char *entero16, *entero32, *real, *booleano, *texto;
    } FILAS[] = {
        {{}, "0", "0", "0", "false", R"("")"},
        {true, "-1", "-1", "-1", "true", R"("True")"},
        {40000, "!6", "40000", "40000", "true", R"("40000")"},
        {-2.5F, "-2", "-2", "-2.5", "true", R"("-2.5")"},
        {1e39, "!6", "!6", "!6", "true", R"("1e39")"},
        {" 1.5 ", "2", "2", "1.5", "true", R"(" 1.5 ")"},
        {"1,5", "!13", "!13", "!13", "!13", R"("1,5")"},
        {" Verdadero ", "!13", "!13", "!13", "true", R"(" Verdadero ")"},
        {"True", "!13", "!13", "!13", "true", R"("True")"},
        {"FALSE", "!13", "!13", "!13", "false", R"("FALSE")"},
        {std::make_shared<Objeto>(), "!13", "!13", "!13", "!13", "!13"},
    };
    for (const auto& fila : FILAS) {
        SCOPED_TRACE(&fila - FILAS);
        EXPECT_EQ(Resultado([&] { return fila.valor.Entero16(); }), fila.entero16);
        EXPECT_EQ(Resultado([&] { return fila.valor.Entero32(); }), fila.entero32);
        EXPECT_EQ(Resultado([&] { return fila.valor.Real32(); }), fila.real);
        EXPECT_EQ(Resultado([&] { return fila.valor.Booleano(); }), fila.booleano);
        EXPECT_EQ(Resultado([&] { return fila.valor.Texto(); }), fila.texto);
    }
}

}  // namespace
}  // namespace zel::pruebas
