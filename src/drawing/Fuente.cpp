#include "drawing/Fuente.h"

#include <algorithm>
#include <cmath>

#include "model/modErrorHandling.h"
#include "platform/Numeros.h"

namespace zel {

void AjustarFuentePanel(Superficie& picture, float& size, std::int32_t iEstado) try {
    if (std::isnan(size)) return;
    size = static_cast<float>(RedondeaPar(Entero32(size) / 2.0) * 2);
    picture.FontSize(std::clamp(size, 1.0F, 2000.0F));
} catch (...) {
    LanzaErrorVisor(iEstado, ". ErrAjustarFuentePanel (Esquema)");
}

void PonFuente(Superficie& picture, float size, std::int32_t iEstado) {
    AjustarFuentePanel(picture, size, iEstado);
}

}  // namespace zel
