#pragma once

#include <functional>
#include <string>

namespace zel {

// Whether the file holds a picture that can be shown.
using PruebaDeImagen = std::function<bool(const std::string& archivo)>;

// A background picture beside the schematic that shows it: the copy of a picture from another folder. It
// takes a free name where its own belongs to another file, or to the schematic itself, and never replaces
// anything.
class CopiaDeImagen {
  public:
    // Makes the copy beside `esquema`, under `nombre` if it can; of a picture that is beside it already, or
    // that has no folder, there is none to make. With `esImagen`, only what passes it is copied. Where
    // `imagen` cannot be had, `suplente` stands in for it under its own name, if there is one. Never raises.
    CopiaDeImagen(const std::string& imagen, const std::string& nombre, const std::string& esquema,
                  const PruebaDeImagen& esImagen = {}, const std::string& suplente = {}) noexcept;
    CopiaDeImagen(const CopiaDeImagen&) = delete;
    CopiaDeImagen& operator=(const CopiaDeImagen&) = delete;
    // A copy that nobody has kept goes again.
    ~CopiaDeImagen();

    // What the schematic calls it. A picture that could not be copied keeps a name that is nobody else's.
    const std::string& Nombre() const noexcept { return nombre_; }
    // Where the picture is now; empty when it could not be copied.
    std::string Ruta() const { return aviso_.empty() ? carpeta_ + nombre_ : std::string(); }
    // Why there is no copy (Spanish, a sentence without its point); empty when there is one, or no need.
    const std::string& Aviso() const noexcept { return aviso_; }
    void Conserva() noexcept { hecha_.clear(); }

  private:
    void Copia(const std::string& imagen, const std::string& nombre, const std::string& esquema,
               const PruebaDeImagen& esImagen);
    void CopiaSuplente(const std::string& suplente, const std::string& esquema,
                       const PruebaDeImagen& esImagen);

    std::string carpeta_;  // of the schematic
    std::string nombre_;
    std::string aviso_;
    std::string hecha_;  // the path of the copy
};

}  // namespace zel
