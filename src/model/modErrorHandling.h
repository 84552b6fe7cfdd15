#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/Fallo.h"

namespace zel {

// Every error that the system raises has this number: the platform's base for object-defined errors plus
// the id 9999, which stands for a free text.
constexpr std::int32_t BASE_ERRORES = -2147221504;
constexpr std::int32_t TEXTO_LIBRE = 9999;

// An error raised by the system. Source() is the text of the procedure that raised it last; Description()
// is the whole chain, from the innermost failure outwards.
class Error : public Fallo {
  public:
    using Fallo::Fallo;
};

// The description of an error. With the id 9999: the source of the failure being handled, `texto`,
// ". Error del sistema número: ", `numero`, ", " and the description of that failure. With any other id, the
// message table's text, or "Se ha producido un error desconocido.".
std::string TextoError(std::int32_t id, std::string_view texto, std::int32_t numero);

// The innermost text of a chain of failures: what it was that went wrong, without who passed it on.
std::string CausaDe(const std::string& descripcion);

// Raises an Error with the number BASE_ERRORES + id, `texto` as its source and the text above. Called where
// a failure is being handled, or where a procedure finds a bad condition itself.
[[noreturn]] void LanzaError(std::int32_t id, std::string_view texto);

// The same for the procedures of the viewer: "Estado de visor ", the number of its state and the suffix.
[[noreturn]] void LanzaErrorVisor(std::int32_t iEstado, std::string_view sufijo);

}  // namespace zel
