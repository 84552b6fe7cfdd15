#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace zel {

// The text of the message table under a full number (5217), or nothing when the table has no such number.
std::optional<std::string_view> TextoMensaje(std::int32_t id) noexcept;

// The same, or "Se ha producido un error desconocido.".
std::string_view TextoMensajeODesconocido(std::int32_t id) noexcept;

}  // namespace zel
