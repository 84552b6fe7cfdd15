#include "editing/Nombres.h"

#include <algorithm>
#include <array>

namespace zel {

namespace {

constexpr std::string_view CLAVE_FLECHA = "flecha";

// By kind.
constexpr std::array<std::string_view, NUMERO_DE_TIPOS> CLAVES = {
    "nudo",        "embalse",     "demanda",     "acuifero", "conduccion1", "conduccion2",
    "conduccion3", "conduccion4", "conduccion5", "recarga",  "bombeo",      "toma",
    "centralHE",   "aportacion",  "retorno",     "subcuenca"};

std::string TipoYNumero(const Elemento& e) {
    const std::string_view tipo = NombreDeTipo(e.Tipo());
    return std::string(tipo.empty() ? "Elemento" : tipo) + " nº " + std::to_string(e.KeyPant());
}

std::string Entrecomillado(const Elemento& e, std::string_view separador) {
    if (e.Nombre().empty()) return {};
    return std::string(separador) + "«" + e.Nombre() + "»";
}

}  // namespace

std::int16_t Add_KeyPant(Documento& documento, TipoElemento tipo) {
    return documento.KeyPantDe(tipo);
}

std::string Add_Nombre(Documento& documento, TipoElemento tipo, bool sinNumero, bool clave) {
    if (clave && tipo == ctFlecha) return std::string(CLAVE_FLECHA);
    if (!TipoConocido(tipo)) return {};
    if (clave) return std::string(CLAVES[static_cast<std::size_t>(tipo)]);
    std::string nombre(NombreDeTipo(tipo));
    if (!sinNumero) nombre += " nº " + std::to_string(Add_KeyPant(documento, tipo));
    return nombre;
}

std::string EnPalabras(const Elementos& elementos, const Elemento& elem) {
    std::string frase = TipoYNumero(elem) + Entrecomillado(elem, ", ");
    if (!EsLineal(elem.Tipo())) return frase;
    std::string extremos;
    const auto extremo = [&](const char* preposicion, std::int32_t codigo) {
        const auto e = elementos.ItemCodSIG(codigo);
        if (e && e.get() != &elem) extremos += preposicion + TipoYNumero(*e) + Entrecomillado(*e, " ");
    };
    extremo(" de ", elem.ElemIni());
    extremo(" a ", elem.ElemFin());
    if (!extremos.empty()) frase += "," + extremos;
    return frase;
}

TipoElemento TipoDeClave(std::string_view clave) noexcept {
    const auto lugar = std::find(CLAVES.begin(), CLAVES.end(), clave);
    return lugar == CLAVES.end() ? ctFlecha : static_cast<TipoElemento>(lugar - CLAVES.begin());
}

}  // namespace zel
