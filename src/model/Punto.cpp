#include "model/Punto.h"

#include "model/Puntos.h"

namespace zel {

namespace {

constexpr Propiedad<Punto> TABLA[] = {
    ZEL_PROPIEDAD(Punto, Valor, Real32, "Error en Property Let Valor (Punto)",
                  "Error en Property Get Valor (Punto)", "Número libre que acompaña al vértice"),
    ZEL_PROPIEDAD(Punto, YPos, Real32, "Error en Property Let YPos (Punto)",
                  "Error en Property Get YPos (Punto)", "Ordenada en el esquema; crece hacia arriba"),
    ZEL_PROPIEDAD(Punto, XPos, Real32, "Error en Property Let XPos (Punto)",
                  "Error en Porperty Get XPos (Punto)", "Abscisa en el esquema"),
};

}  // namespace

Punto::Punto() try {
} catch (...) {
    LanzaError(TEXTO_LIBRE, "Error en la incialización del objeto Punto");
}

void Punto::CopiaPropiedades(const std::shared_ptr<Punto>& Origen, bool SoloCoordenadas) try {
    if (!Origen) throw Fallo(91);
    if (!SoloCoordenadas) Valor(Origen->Valor());
    XPos(Origen->XPos());
    YPos(Origen->YPos());
} catch (...) {
    LanzaError(
        TEXTO_LIBRE,
        "ErrCopiaPropiedades: hay un error en el método o el argumento que se pasó no es un objeto Punto");
}

void Punto::AvisaAlTrazado() const noexcept {
    trazado_->HaCambiado();
}

std::span<const Propiedad<Punto>> Punto::Propiedades() noexcept {
    return TABLA;
}

}  // namespace zel
