#include "model/TipoElemento.h"

#include <array>

namespace zel {

std::string_view NombreDeTipo(TipoElemento tipo) noexcept {
    static constexpr std::array<std::string_view, NUMERO_DE_TIPOS> NOMBRES = {
        "Nudo",
        "Embalse",
        "Demanda",
        "Acuífero",
        "Conducción tipo1",
        "Conducción tipo2",
        "Conducción tipo3",
        "Conducción tipo4",
        "Conducción tipo5",
        "Recarga",
        "Bombeo",
        "Toma",
        "Central Hidroeléctrica",
        "Aportación",
        "Retorno",
        "Subcuenca",
    };
    return TipoConocido(tipo) ? NOMBRES[static_cast<std::size_t>(tipo)] : std::string_view();
}

}  // namespace zel
