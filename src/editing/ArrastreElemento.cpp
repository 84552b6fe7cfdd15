#include "editing/ArrastreElemento.h"

namespace zel {

void E_13_BuscaConduccionesParaMovimiento(const Documento&, Trabajo& trabajo) {
    trabajo.colConduccionesMovidas.clear();
}

}  // namespace zel
