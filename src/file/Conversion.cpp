#include "file/Conversion.h"

#include <algorithm>
#include <charconv>
#include <string>

#include "file/Formato.h"
#include "model/modErrorHandling.h"
#include "platform/Numeros.h"

namespace zel {

namespace {

// The usual case, a plain integer and nothing else.
template <typename T>
bool EsEnteroLlano(std::string_view texto, T& valor) noexcept {
    const char* const fin = texto.data() + texto.size();
    const auto [leido, error] = std::from_chars(texto.data(), fin, valor);
    return error == std::errc() && leido == fin;
}

}  // namespace

std::int16_t LeeEntero(std::string_view texto) {
    if (std::int16_t valor = 0; EsEnteroLlano(texto, valor)) return valor;
    return Entero16(NumeroInicial(texto));
}

std::int32_t LeeEntero32(std::string_view texto) {
    if (std::int32_t valor = 0; EsEnteroLlano(texto, valor)) return valor;
    const auto numero = NumeroCompleto(texto);
    if (!numero) throw Fallo(13);
    return Entero32(*numero);
}

float LeeReal(std::string_view texto) {
    if (texto.find(',') == std::string_view::npos) return RealInicial(texto);
    std::string conPunto(texto);
    std::replace(conPunto.begin(), conPunto.end(), ',', '.');
    return RealInicial(conPunto);
}

bool I2B(std::int16_t n) {
    if (n != 0 && n != 1) {
        LanzaError(TEXTO_LIBRE,
                   "Error en funcion I2B (lectorArchivo), argumento recibido: " + std::to_string(n));
    }
    return n == 1;
}

std::int16_t B2I(bool valor) try { return valor ? 1 : 0; } catch (...) {
    LanzaError(TEXTO_LIBRE, "Error en funcion B2I (lectorArchivo)");
}

TipoElemento TipoDeCodigo(std::int16_t codigo) noexcept {
    const auto* const lugar = std::find(CODIGOS_DE_TIPO.begin(), CODIGOS_DE_TIPO.end(), codigo);
    return lugar == CODIGOS_DE_TIPO.end() ? ctFlecha : TipoElemento(lugar - CODIGOS_DE_TIPO.begin());
}

}  // namespace zel
