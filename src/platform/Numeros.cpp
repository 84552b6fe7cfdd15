#include "platform/Numeros.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

#include "platform/Fallo.h"

namespace zel {

namespace {

constexpr std::string_view BLANCOS = " \t\r\n\f\v";

bool EsCifra(char c) noexcept {
    return c >= '0' && c <= '9';
}

std::size_t SaltaCifras(std::string_view texto, std::size_t i) noexcept {
    while (i < texto.size() && EsCifra(texto[i]))
        ++i;
    return i;
}

struct Tramo {
    bool negativo = false;
    std::string_view cifras;  // without the sign; empty when the text does not begin with a number
    std::size_t fin = 0;      // first position after the number
};

Tramo BuscaNumero(std::string_view texto) noexcept {
    Tramo tramo;
    std::size_t i = texto.find_first_not_of(BLANCOS);
    if (i == std::string_view::npos) return tramo;
    if (texto[i] == '-' || texto[i] == '+') tramo.negativo = texto[i++] == '-';
    const std::size_t inicio = i;
    i = SaltaCifras(texto, i);
    std::size_t cifras = i - inicio;
    if (i < texto.size() && texto[i] == '.') {
        const std::size_t tras = SaltaCifras(texto, i + 1);
        cifras += tras - (i + 1);
        i = tras;
    }
    if (cifras == 0) return tramo;
    if (i < texto.size() && (texto[i] == 'e' || texto[i] == 'E')) {
        std::size_t j = i + 1;
        if (j < texto.size() && (texto[j] == '-' || texto[j] == '+')) ++j;
        if (const std::size_t fin = SaltaCifras(texto, j); fin > j) i = fin;
    }
    tramo.cifras = texto.substr(inicio, i - inicio);
    tramo.fin = i;
    return tramo;
}

// True when a number that from_chars could not represent is too small rather than too large: by the decimal
// exponent of its first digit other than 0.
bool EsDiminuto(std::string_view cifras) noexcept {
    const std::size_t e = std::min(cifras.find_first_of("eE"), cifras.size());
    const std::string_view mantisa = cifras.substr(0, e);
    const std::size_t primera = mantisa.find_first_not_of("0.");
    if (primera == std::string_view::npos) return true;
    const auto punto = static_cast<std::int64_t>(std::min(mantisa.find('.'), mantisa.size()));
    const auto lugar = punto - static_cast<std::int64_t>(primera);
    std::int64_t exponente = 0;
    if (e < cifras.size()) {
        const std::size_t desde = e + (cifras[e + 1] == '+' ? 2 : 1);
        const auto leido = std::from_chars(cifras.data() + desde, cifras.data() + cifras.size(), exponente);
        if (leido.ec != std::errc()) return cifras[desde] == '-';
    }
    return exponente + lugar < 0;
}

template <typename T>
T Valor(const Tramo& tramo) {
    if (tramo.cifras.empty()) return 0;
    T valor = 0;
    const auto [fin, error] =
        std::from_chars(tramo.cifras.data(), tramo.cifras.data() + tramo.cifras.size(), valor);
    if (error == std::errc::result_out_of_range) {
        if (!EsDiminuto(tramo.cifras)) throw Fallo(6);
        valor = 0;
    }
    return tramo.negativo && valor != 0 ? -valor : valor;  // there is no minus zero
}

template <typename T>
std::string Texto(T valor) {
    if (valor == 0) return "0";
    const T absoluto = std::abs(valor);
    const bool llano = absoluto >= T(1e-5) && absoluto < T(1e15);
    std::array<char, 64> memoria{};
    const auto resultado = std::to_chars(memoria.data(), memoria.data() + memoria.size(), valor,
                                         llano ? std::chars_format::fixed : std::chars_format::scientific);
    std::string texto(memoria.data(), resultado.ptr);
    // Exponents come with a sign and two digits at least.
    if (const std::size_t e = texto.find('e'); e != std::string::npos) {
        if (texto[e + 2] == '0') texto.erase(e + 2, 1);
        if (texto[e + 1] == '+') texto.erase(e + 1, 1);
    }
    return texto;
}

}  // namespace

std::string TextoDeNumero(float valor) {
    return Texto(valor);
}
std::string TextoDeNumero(double valor) {
    return Texto(valor);
}
std::string TextoDeNumero(std::int32_t valor) {
    return std::to_string(valor);
}

std::string TextoRedondeado(double valor) {
    std::array<char, 32> memoria{};
    const auto resultado =
        std::to_chars(memoria.data(), memoria.data() + memoria.size(), valor, std::chars_format::general, 7);
    return TextoDeNumero(NumeroInicial({memoria.data(), resultado.ptr}));
}

double NumeroInicial(std::string_view texto) {
    return Valor<double>(BuscaNumero(texto));
}
float RealInicial(std::string_view texto) {
    return Valor<float>(BuscaNumero(texto));
}

std::optional<double> NumeroCompleto(std::string_view texto) {
    const Tramo tramo = BuscaNumero(texto);
    if (tramo.cifras.empty()) return std::nullopt;
    if (texto.find_first_not_of(BLANCOS, tramo.fin) != std::string_view::npos) return std::nullopt;
    return Valor<double>(tramo);
}

std::optional<double> NumeroDeUsuario(std::string_view texto) {
    std::string conPunto(texto);
    const std::size_t coma = conPunto.find(',');
    if (coma != std::string::npos) conPunto[coma] = '.';
    try {
        return NumeroCompleto(conPunto);
    } catch (const Fallo&) {
        constexpr double INFINITO = std::numeric_limits<double>::infinity();
        return conPunto[conPunto.find_first_not_of(BLANCOS)] == '-' ? -INFINITO : INFINITO;
    }
}

// The floating-point environment's rounding, to nearest and half to even, is never changed here.
double RedondeaPar(double valor) noexcept {
    return std::nearbyint(valor);
}

std::int16_t Entero16(double valor) {
    const double redondo = RedondeaPar(valor);
    if (!(redondo >= -32768.0 && redondo <= 32767.0)) throw Fallo(6);
    return static_cast<std::int16_t>(redondo);
}

std::int32_t Entero32(double valor) {
    const double redondo = RedondeaPar(valor);
    if (!(redondo >= -2147483648.0 && redondo <= 2147483647.0)) throw Fallo(6);
    return static_cast<std::int32_t>(redondo);
}

float Real32(double valor) {
    const auto real = static_cast<float>(valor);
    if (std::isinf(real) && !std::isinf(valor)) throw Fallo(6);
    return real;
}

std::int16_t Estrecha16(std::int64_t valor) {
    if (valor < std::numeric_limits<std::int16_t>::min() ||
        valor > std::numeric_limits<std::int16_t>::max()) {
        throw Fallo(6);
    }
    return static_cast<std::int16_t>(valor);
}

}  // namespace zel
