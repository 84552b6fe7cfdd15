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

TipoElemento TipoDeClave(std::string_view clave) noexcept {
    const auto lugar = std::find(CLAVES.begin(), CLAVES.end(), clave);
    return lugar == CLAVES.end() ? ctFlecha : static_cast<TipoElemento>(lugar - CLAVES.begin());
}

}  // namespace zel
