#pragma once

#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace zel::pruebas {

inline std::string LeeArchivo(const std::filesystem::path& ruta) {
    std::ifstream archivo(ruta, std::ios::binary);
    return {std::istreambuf_iterator<char>(archivo), {}};
}

// A new folder that is the current directory while this lives, and goes with all that is in it.
class CarpetaTemporal {
  public:
    CarpetaTemporal() : anterior_(std::filesystem::current_path()) {
        std::string plantilla = (std::filesystem::temp_directory_path() / "zel-XXXXXX").string();
        ruta_ = mkdtemp(plantilla.data());
        std::filesystem::current_path(ruta_);
    }
    CarpetaTemporal(const CarpetaTemporal&) = delete;
    CarpetaTemporal& operator=(const CarpetaTemporal&) = delete;
    ~CarpetaTemporal() {
        std::error_code ignorado;
        std::filesystem::current_path(anterior_, ignorado);
        std::filesystem::remove_all(ruta_, ignorado);
    }

    std::filesystem::path operator/(const std::string& nombre) const { return ruta_ / nombre; }
    std::string Escribe(const std::string& nombre, const std::string& contenido) const {
        std::ofstream(ruta_ / nombre, std::ios::binary) << contenido;
        return (ruta_ / nombre).string();
    }

  private:
    std::filesystem::path anterior_;
    std::filesystem::path ruta_;
};

}  // namespace zel::pruebas
