#pragma once

namespace zel {

// World size of the radius of a symbol of Tamanyo 1; one per process, 4.0 from its start. The view keeps it.
float TamanyoUnidad() noexcept;
void TamanyoUnidad(float valor) noexcept;

}  // namespace zel
