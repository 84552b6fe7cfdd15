#include "platform/Numeros.h"

#include <gtest/gtest.h>

#include <bit>
#include <clocale>
#include <limits>

#include "platform/Fallo.h"

namespace zel::pruebas {
namespace {

// Under the locale of the environment, which in Spain writes numbers with a comma.
class Numeros : public ::testing::Test {
  protected:
    void SetUp() override { std::setlocale(LC_ALL, ""); }
    void TearDown() override { std::setlocale(LC_ALL, anterior_.c_str()); }

  private:
    std::string anterior_ = std::setlocale(LC_ALL, nullptr);
};

TEST_F(Numeros, AreReadFromTheStartOfAText) {
    const std::pair<const char*, double> FILAS[] = {
        {"12.5", 12.5},  {" \t\r\n-3", -3}, {"+4", 4},     {"7 hm3", 7},   {".5", 0.5}, {"5.", 5},
        {"-.25e2", -25}, {"1E3x", 1000},    {"1e", 1},     {"1e+", 1},     {"1e-x", 1}, {"2e5.5", 2e5},
        {"1.5.3", 1.5},  {"12,5", 12},      {"1e-999", 0}, {"0e999", 0},   {"- 5", 0},  {"--5", 0},
        {".", 0},        {"-.e5", 0},       {"", 0},       {"   ", 0},     {"abc", 0},  {"e5", 0},
        {"inf", 0},      {"nan", 0},        {"0x10", 0},   {"\u00A05", 0},
    };
    for (const auto& [texto, valor] : FILAS) {
        EXPECT_EQ(NumeroInicial(texto), valor) << texto;
        EXPECT_EQ(RealInicial(texto), static_cast<float>(valor)) << texto;
    }
}

TEST_F(Numeros, RoundHalfToEvenAndFailBeyondTheirType) {
    const std::pair<double, double> FILAS[] = {{0.5, 0},  {1.5, 2},   {2.5, 2},
                                               {-0.5, 0}, {-1.5, -2}, {-2.51, -3}};
    for (const auto& [valor, redondo] : FILAS)
        EXPECT_EQ(RedondeaPar(valor), redondo) << valor;
    EXPECT_EQ(Entero16(-32768.5), -32768);
    EXPECT_THROW(Entero16(32767.5), Fallo);
    EXPECT_THROW(Entero16(std::numeric_limits<double>::quiet_NaN()), Fallo);
    EXPECT_EQ(Entero32(-2147483648.5), std::numeric_limits<std::int32_t>::min());
    EXPECT_THROW(Entero32(2147483647.5), Fallo);
    EXPECT_THROW(Estrecha16(32768), Fallo);
    EXPECT_EQ(RealInicial("3.4028235e38"), std::numeric_limits<float>::max());
    EXPECT_THROW(RealInicial("-" + std::string(40, '9')), Fallo);
    EXPECT_THROW(NumeroInicial("1e309"), Fallo);
    EXPECT_EQ(RealInicial("-1e-40"), -1e-40F);
    EXPECT_EQ(RealInicial("0." + std::string(400, '0') + "1"), 0);
    // Too large and too small are told apart by the whole number, not by its exponent alone.
    EXPECT_THROW(RealInicial("1" + std::string(60, '0') + "e-5"), Fallo);
    EXPECT_EQ(RealInicial("0." + std::string(60, '0') + "1e5"), 0);
    EXPECT_EQ(RealInicial("1e-99999999999999999999"), 0);
}

TEST_F(Numeros, AreWrittenPlainAndShort) {
    const std::pair<float, const char*> FILAS[] = {
        {0, "0"},           {-0.0F, "0"},       {12.5F, "12.5"},        {-0.1F, "-0.1"},
        {1e-5F, "0.00001"}, {100000, "100000"}, {16777216, "16777216"}, {1234567.9F, "1234567.9"},
    };
    for (const auto& [valor, texto] : FILAS)
        EXPECT_EQ(TextoDeNumero(valor), texto);
    EXPECT_EQ(TextoDeNumero(-999999999999999.0), "-999999999999999");
    EXPECT_EQ(TextoDeNumero(std::int32_t{-1234567}), "-1234567");
    EXPECT_EQ(TextoDeNumero(9e-6F), "9e-6");
    EXPECT_EQ(TextoDeNumero(1.5e20), "1.5e20");
    for (const double valor : {1e15, -1e15, 9.9e-6, 1e-300})
        EXPECT_NE(TextoDeNumero(valor).find('e'), std::string::npos) << valor;
}

TEST_F(Numeros, OfAUserAreWholeTextsWithEitherDecimalSign) {
    constexpr double INFINITO = std::numeric_limits<double>::infinity();
    const std::pair<const char*, std::optional<double>> FILAS[] = {
        {" 12,5 ", 12.5}, {"-1.5e1", -15}, {"1e999", INFINITO}, {" -1e999", -INFINITO}, {"1,2,3", {}},
        {"1.2,3", {}},    {"50%", {}},     {" ", {}},           {"0x10", {}},           {"inf", {}}};
    for (const auto& [texto, valor] : FILAS)
        EXPECT_EQ(NumeroDeUsuario(texto), valor) << texto;
    EXPECT_EQ(TextoRedondeado(1.2F * 100.0), "120");
    EXPECT_EQ(TextoRedondeado(0.333333343F * 100.0), "33.33333");
    EXPECT_EQ(TextoRedondeado(123456789), "123456800");
}

TEST_F(Numeros, ReadBackToTheSameValue) {
    // A prime step visits exponents and fractions of every kind, denormals included.
    for (std::uint32_t bits = 1; bits < 0x7F800000; bits += 104729) {
        const auto valor = std::bit_cast<float>(bits);
        ASSERT_EQ(RealInicial(TextoDeNumero(valor)), valor);
        ASSERT_EQ(NumeroCompleto(TextoDeNumero(-double{valor})), -double{valor});
    }
}

}  // namespace
}  // namespace zel::pruebas
