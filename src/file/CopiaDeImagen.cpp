#include "file/CopiaDeImagen.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "platform/Archivos.h"
#include "platform/Fallo.h"
#include "platform/ReemplazoDeArchivo.h"

namespace zel {

namespace {

namespace fs = std::filesystem;

constexpr int MAXIMO_DE_NOMBRES = 10000;

// "mapa.png", "mapa-2.png", "mapa-3.png"...
std::string NombreNumero(const std::string& nombre, int n) {
    if (n == 1) return nombre;
    const fs::path partes(nombre);
    return partes.stem().string() + "-" + std::to_string(n) + partes.extension().string();
}

bool EstaEnLaCarpeta(const std::string& imagen, const std::string& carpeta) {
    std::error_code error;
    const fs::path suya = CarpetaDe(imagen);
    return suya.empty() || fs::equivalent(suya, carpeta.empty() ? "." : carpeta, error);
}

bool SonIguales(const std::string& a, const std::string& b) {
    std::error_code error;
    if (fs::equivalent(a, b, error)) return true;
    if (!fs::is_regular_file(a, error) || !fs::is_regular_file(b, error)) return false;
    if (fs::file_size(a, error) != fs::file_size(b, error) || error) return false;
    std::ifstream de(a, std::ios::binary), con(b, std::ios::binary);
    using Bytes = std::istreambuf_iterator<char>;
    return de && con && std::equal(Bytes(de), Bytes(), Bytes(con), Bytes());
}

}  // namespace

CopiaDeImagen::CopiaDeImagen(const std::string& imagen, const std::string& nombre, const std::string& esquema,
                             const PruebaDeImagen& esImagen, const std::string& suplente) noexcept
    : carpeta_(CarpetaDe(esquema)), nombre_(nombre) {
    try {
        Copia(imagen, nombre, esquema, esImagen);
    } catch (...) {
        aviso_ = "No se ha podido copiar la imagen de fondo \"" + imagen +
                 "\" a la carpeta del esquema: " + FalloEnCurso().Description();
    }
    if (!aviso_.empty() && !suplente.empty()) CopiaSuplente(suplente, esquema, esImagen);
}

// The name that an earlier save has written is kept, whatever has become of the file.
void CopiaDeImagen::CopiaSuplente(const std::string& suplente, const std::string& esquema,
                                  const PruebaDeImagen& esImagen) {
    std::error_code error;
    try {
        Copia(suplente, fs::path(suplente).filename().string(), esquema, esImagen);
        if (fs::is_regular_file(suplente, error)) aviso_.clear();
    } catch (...) {
        return;  // what has to be told is why there is no original
    }
}

CopiaDeImagen::~CopiaDeImagen() {
    std::error_code error;
    if (!hecha_.empty()) fs::remove(hecha_, error);
}

void CopiaDeImagen::Copia(const std::string& imagen, const std::string& nombre, const std::string& esquema,
                          const PruebaDeImagen& esImagen) {
    nombre_ = nombre;
    if (EstaEnLaCarpeta(imagen, carpeta_)) return;
    // What it can be called: the name of the same picture, or else one that nothing has.
    const auto libre = [&](int n) {
        const std::string ruta = carpeta_ + NombreNumero(nombre, n);
        return ruta != esquema && !fs::exists(fs::symlink_status(ruta));
    };
    int n = 1;
    for (; n < MAXIMO_DE_NOMBRES && !libre(n); ++n) {
        nombre_ = NombreNumero(nombre, n);
        if (carpeta_ + nombre_ != esquema && SonIguales(imagen, carpeta_ + nombre_)) return;
    }
    nombre_ = NombreNumero(nombre, n);
    CopiaSinReemplazo copia(imagen, carpeta_ + nombre_);
    if (esImagen && !esImagen(copia.Temporal())) throw Fallo(5, "no es una imagen");
    while (!copia.Confirma(carpeta_ + nombre_)) {
        do {
            if (++n == MAXIMO_DE_NOMBRES) throw Fallo(75);
        } while (!libre(n));
        nombre_ = NombreNumero(nombre, n);
    }
    hecha_ = carpeta_ + nombre_;
}

}  // namespace zel
