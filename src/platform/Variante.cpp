#include "platform/Variante.h"

#include "platform/Numeros.h"
#include "platform/Texto.h"

namespace zel {

namespace {

std::string Recortado(const std::string& texto) {
    constexpr const char* BLANCOS = " \t\r\n\f\v";
    const std::size_t inicio = texto.find_first_not_of(BLANCOS);
    if (inicio == std::string::npos) return {};
    return texto.substr(inicio, texto.find_last_not_of(BLANCOS) - inicio + 1);
}

double NumeroDeTexto(const std::string& texto) {
    const auto numero = NumeroCompleto(texto);
    if (!numero) throw Fallo(13);
    return *numero;
}

bool BooleanoDeTexto(const std::string& texto) {
    const std::string palabra = EnMinusculas(Recortado(texto));
    if (palabra == "true" || palabra == "verdadero") return true;
    if (palabra == "false" || palabra == "falso") return false;
    return NumeroDeTexto(palabra) != 0;
}

}  // namespace

double Variante::Numero() const {
    struct {
        double operator()(std::monostate) const { return 0; }
        double operator()(bool v) const { return v ? -1 : 0; }
        double operator()(std::int32_t v) const { return v; }
        double operator()(float v) const { return v; }
        double operator()(double v) const { return v; }
        double operator()(const std::string& v) const { return NumeroDeTexto(v); }
        double operator()(const std::shared_ptr<Objeto>&) const { throw Fallo(13); }
    } const aNumero;
    return std::visit(aNumero, valor_);
}

std::int16_t Variante::Entero16() const {
    return zel::Entero16(Numero());
}

std::int32_t Variante::Entero32() const {
    if (const auto* entero = std::get_if<std::int32_t>(&valor_)) return *entero;
    return zel::Entero32(Numero());
}

float Variante::Real32() const {
    if (const auto* real = std::get_if<float>(&valor_)) return *real;
    return zel::Real32(Numero());
}

bool Variante::Booleano() const {
    if (const auto* texto = std::get_if<std::string>(&valor_)) return BooleanoDeTexto(*texto);
    return Numero() != 0;
}

std::string Variante::Texto() const {
    struct {
        std::string operator()(std::monostate) const { return {}; }
        std::string operator()(bool v) const { return v ? "True" : "False"; }
        std::string operator()(std::int32_t v) const { return TextoDeNumero(v); }
        std::string operator()(float v) const { return TextoDeNumero(v); }
        std::string operator()(double v) const { return TextoDeNumero(v); }
        std::string operator()(const std::string& v) const { return v; }
        std::string operator()(const std::shared_ptr<Objeto>&) const { throw Fallo(13); }
    } const aTexto;
    return std::visit(aTexto, valor_);
}

}  // namespace zel
