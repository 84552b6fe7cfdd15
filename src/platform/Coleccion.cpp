#include "platform/Coleccion.h"

namespace zel {

std::string ClavePlegada(std::string_view clave) {
    std::string plegada(clave);
    for (std::size_t i = 0; i < plegada.size(); ++i) {
        auto c = static_cast<unsigned char>(plegada[i]);
        if (c >= 'A' && c <= 'Z') {
            plegada[i] = static_cast<char>(c + ('a' - 'A'));
        } else if (c == 0xC3 && i + 1 < plegada.size()) {
            // The capitals U+00C0 to U+00DE stand 0x20 below their small letters; U+00D7 is the times sign.
            const auto segundo = static_cast<unsigned char>(plegada[i + 1]);
            if (segundo >= 0x80 && segundo <= 0x9E && segundo != 0x97)
                plegada[i + 1] = static_cast<char>(segundo + 0x20);
            ++i;
        }
    }
    return plegada;
}

}  // namespace zel
