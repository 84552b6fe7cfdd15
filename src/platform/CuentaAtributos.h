#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace zel {

// What a character of an XML file is made of: one byte, of an encoding that holds ASCII, or two, the low one
// first or the high one.
enum class UnidadXml : std::uint8_t { Byte, Utf16Le, Utf16Be };

// Counts the attributes of each tag as an XML file's bytes go by, before a parser gets them: comparing each
// with all the others, that one would take its time.
class CuentaAtributos {
  public:
    static constexpr int MAXIMO = 256;

    explicit CuentaAtributos(UnidadXml unidad) noexcept : unidad_(unidad) {}

    // False when a tag has more than the maximum.
    bool Mira(std::string_view trozo) noexcept;

  private:
    enum class Donde : std::uint8_t {
        Texto,
        Abierta,
        Etiqueta,
        Declaracion,
        Comillas,
        Comentario,
        Cdata,
        Instruccion
    };

    bool Sigue(char c) noexcept;
    void SigueDeclaracion(char c) noexcept;
    void AbreComillas(char c) noexcept;
    bool Acaba(std::string_view con) const noexcept { return std::string_view(ultimos_.data(), 2) == con; }

    UnidadXml unidad_;
    bool aMedias_ = false;  // the first byte of a pair has come
    char mitad_ = 0;
    Donde donde_ = Donde::Texto;
    Donde fuera_ = Donde::Texto;  // of the quotes
    char comilla_ = 0;
    int cuantos_ = 0;
    std::array<char, 2> ultimos_{};
};

}  // namespace zel
