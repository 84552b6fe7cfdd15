#pragma once

#include <cstdint>
#include <exception>
#include <string>

namespace zel {

// A failure that the platform reports: its number, who reports it and what happened.
//
// The numbers in use: 5 wrong call or argument, 6 overflow, 7 out of memory, 9 position out of range,
// 13 type mismatch, 53 file not found, 57 input or output error, 61 disk full, 70 permission denied,
// 75 path or file access, 76 path not found, 91 missing object, 438 missing property, 457 repeated key.
class Fallo : public std::exception {
  public:
    // With the platform's own text for the number.
    explicit Fallo(std::int32_t numero);
    Fallo(std::int32_t numero, std::string descripcion);
    Fallo(std::int32_t numero, std::string origen, std::string descripcion);

    std::int32_t Number() const noexcept { return numero_; }
    const std::string& Source() const noexcept { return origen_; }
    const std::string& Description() const noexcept { return descripcion_; }
    const char* what() const noexcept override { return descripcion_.c_str(); }

  private:
    std::int32_t numero_;
    std::string origen_;
    std::string descripcion_;
};

// The failure being handled at this moment, whatever was thrown: the one place where failures of the
// standard library become platform failures. With none being handled: number 0 and empty texts.
Fallo FalloEnCurso();

// The number that stands for an errno value of the C library.
std::int32_t NumeroDeErrno(int codigo) noexcept;

}  // namespace zel
