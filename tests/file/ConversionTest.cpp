#include "file/Conversion.h"

#include <gtest/gtest.h>

#include <clocale>
#include <string>

#include "model/modErrorHandling.h"
#include "support/Resultado.h"

namespace zel::pruebas {
namespace {

TEST(Conversion, ReadsEachTypeAsLenientlyAsItShouldBeWhateverTheLocale) {
    const std::string anterior = std::setlocale(LC_ALL, nullptr);
    std::setlocale(LC_ALL, "");
    const struct {
        const char *texto, *entero16, *entero32, *real;
    } FILAS[] = {
        {"7", "7", "7", "7"},
        {" -7\n", "-7", "-7", "-7"},
        {"12.5", "12", "12", "12.5"},
        {"13.5", "14", "14", "13.5"},
        {"12,5", "12", "!13", "12.5"},
        {"1,234.5", "1", "!13", "1.234"},
        {"7 m", "7", "!13", "7"},
        {"1e", "1", "!13", "1"},
        {"1e3", "1000", "1000", "1000"},
        {"+5", "5", "5", "5"},
        {"", "0", "!13", "0"},
        {"nada", "0", "!13", "0"},
        {"0x1F", "0", "!13", "0"},
        {"-32768", "-32768", "-32768", "-32768"},
        {"32767.5", "!6", "32768", "32767.5"},
        {"2147483647", "!6", "2147483647", "2.14748e+09"},
        {"-2147483649", "!6", "!6", "-2.14748e+09"},
        {"1e39", "!6", "!6", "!6"},
        {"1e999", "!6", "!6", "!6"},
    };
    for (const auto& fila : FILAS) {
        EXPECT_EQ(Resultado([&] { return LeeEntero(fila.texto); }), fila.entero16) << fila.texto;
        EXPECT_EQ(Resultado([&] { return LeeEntero32(fila.texto); }), fila.entero32) << fila.texto;
        EXPECT_EQ(Resultado([&] { return LeeReal(fila.texto); }), fila.real) << fila.texto;
    }
    std::setlocale(LC_ALL, anterior.c_str());
}

}  // namespace
}  // namespace zel::pruebas
