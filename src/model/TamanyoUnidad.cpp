#include "model/TamanyoUnidad.h"

namespace zel {

namespace {
float tamanyoUnidad = 4.0F;
}

float TamanyoUnidad() noexcept {
    return tamanyoUnidad;
}
void TamanyoUnidad(float valor) noexcept {
    tamanyoUnidad = valor;
}

}  // namespace zel
