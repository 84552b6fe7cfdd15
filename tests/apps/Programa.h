#pragma once

#include <sys/wait.h>

#include <array>
#include <cstdio>
#include <string>

namespace zel::pruebas {

inline const std::string CUENCA = ZEL_RAIZ "/examples/cuenca.xml";

struct Resultado {
    int codigo = -1;
    std::string texto;  // both streams
};

inline Resultado Corre(const std::string& orden) {
    Resultado resultado;
    std::FILE* tubo = popen((orden + " 2>&1").c_str(), "r");
    if (!tubo) return resultado;
    std::array<char, 4096> trozo{};
    while (const std::size_t leido = std::fread(trozo.data(), 1, trozo.size(), tubo)) {
        resultado.texto.append(trozo.data(), leido);
    }
    resultado.codigo = WEXITSTATUS(pclose(tubo));
    return resultado;
}

// The program, without a display.
inline Resultado Ejecuta(const std::string& argumentos) {
    return Corre("env -u DISPLAY -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM \"" ZEL_PROGRAMA "\" " + argumentos);
}

inline bool Contiene(const std::string& texto, const std::string& parte) {
    return texto.find(parte) != std::string::npos;
}

}  // namespace zel::pruebas
