#include "Registro.h"

#include <array>
#include <cstddef>
#include <iostream>

#include "control/componentes/Entradas.h"

namespace zel {

namespace {

int Dice(int (*entrada)(int, char*, std::size_t), bool sistema) {
    std::array<char, 4096> texto{};
    if (entrada(sistema ? 1 : 0, texto.data(), texto.size()) == 0) {
        std::cout << texto.data() << '\n';
        return 0;
    }
    std::cerr << "zelvisor: " << texto.data() << '\n';
    return 3;
}

}  // namespace

int Registra(bool sistema) {
    return Dice(zelRegistra, sistema);
}

int AnulaRegistro(bool sistema) {
    return Dice(zelAnulaRegistro, sistema);
}

}  // namespace zel
