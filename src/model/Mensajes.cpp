#include "model/Mensajes.h"

#include <algorithm>
#include <iterator>

namespace zel {

namespace {

struct Mensaje {
    std::int32_t id;
    std::string_view texto;
};

constexpr Mensaje MENSAJES[] = {
#define MENSAJE(id, texto) {id, texto},
#include "Mensajes.inc"
#undef MENSAJE
};

static_assert(std::is_sorted(std::begin(MENSAJES), std::end(MENSAJES),
                             [](const Mensaje& a, const Mensaje& b) { return a.id < b.id; }));

}  // namespace

std::optional<std::string_view> TextoMensaje(std::int32_t id) noexcept {
    const auto* const lugar = std::lower_bound(std::begin(MENSAJES), std::end(MENSAJES), id,
                                               [](const Mensaje& m, std::int32_t n) { return m.id < n; });
    if (lugar == std::end(MENSAJES) || lugar->id != id) return std::nullopt;
    return lugar->texto;
}

std::string_view TextoMensajeODesconocido(std::int32_t id) noexcept {
    return TextoMensaje(id).value_or("Se ha producido un error desconocido.");
}

}  // namespace zel
