#include "model/Puntos.h"

#include "model/Elemento.h"

namespace zel {

namespace {

constexpr Propiedad<Puntos> TABLA[] = {
    ZEL_PROPIEDAD(Puntos, Flecha, Booleano, "Error en Property Let Flecha (Puntos)",
                  "Error en Property Get Flecha (Puntos)", "Marca de trabajo del trazado"),
    ZEL_PROPIEDAD(Puntos, Valor, Real32, "Error en Property Let Valor (Puntos)", "ErrGetValor (Puntos)",
                  "Número de trabajo del trazado"),
    ZEL_PROPIEDAD(Puntos, Valor2, Real32, "ErrLetValor2 (Puntos)", "ErrGetValor2 (Puntos)",
                  "Segundo número de trabajo"),
    ZEL_PROPIEDAD(Puntos, Valor3, Real32, "ErrLetValor3 (Puntos)", "ErrGetValor3 (Puntos)",
                  "Tercer número de trabajo"),
};

bool SinClave(const std::optional<Variante>& clave) {
    return !clave || clave->Texto().empty();
}

}  // namespace

Puntos::Puntos() try {
} catch (...) {
    LanzaError(TEXTO_LIBRE, "ErrInitialize (Puntos)");
}

Puntos::~Puntos() {
    while (usos_)
        usos_->Termina();
    for (const auto& punto : puntos_)
        punto->trazado_ = nullptr;
}

void Puntos::BorraMarcas() noexcept {
    Flecha(false);
    Valor(0);
    Valor2(0);
    Valor3(0);
}

void UsoDeTrazado::Empieza(Puntos* trazado, const Elemento& elemento) noexcept {
    if (!trazado) return;
    elemento_ = &elemento;
    enlace_ = &trazado->usos_;
    siguiente_ = trazado->usos_;
    if (siguiente_) siguiente_->enlace_ = &siguiente_;
    trazado->usos_ = this;
}

void UsoDeTrazado::Termina() noexcept {
    if (!enlace_) return;
    *enlace_ = siguiente_;
    if (siguiente_) siguiente_->enlace_ = enlace_;
    enlace_ = nullptr;
}

void Puntos::HaCambiado() const noexcept {
    for (const UsoDeTrazado* uso = usos_; uso; uso = uso->siguiente_)
        uso->elemento_->Anota();
}

void Puntos::AddObjetoPunto(const std::shared_ptr<Punto>& aPunto, bool SoloCoordenadas,
                            const std::optional<Variante>& ClaveColeccion) try {
    if (!aPunto) throw Fallo(91);
    auto punto = std::make_shared<Punto>();
    if (SoloCoordenadas) {
        punto->XPos(aPunto->XPos());
        punto->YPos(aPunto->YPos());
    } else {
        punto->CopiaPropiedades(aPunto, false);
    }
    if (SinClave(ClaveColeccion)) {
        puntos_.Add(punto);
    } else {
        puntos_.Add(punto, Variante(ClaveColeccion->Texto()));
    }
    punto->trazado_ = this;
    HaCambiado();
} catch (...) {
    LanzaError(TEXTO_LIBRE, "Error en método AddObjetoPunto");
}

std::shared_ptr<Punto> Puntos::Add(float aXPos, float aYPos, float aValor,
                                   const std::optional<Variante>& aClaveColeccion) try {
    auto punto = std::make_shared<Punto>(aXPos, aYPos, aValor);
    if (SinClave(aClaveColeccion)) {
        puntos_.Add(punto);
    } else {
        puntos_.Add(punto, *aClaveColeccion);
    }
    punto->trazado_ = this;
    HaCambiado();
    return punto;
} catch (...) {
    LanzaError(TEXTO_LIBRE, "Error en método Add (Puntos)");
}

std::shared_ptr<Punto> Puntos::Item(const Variante& vntIndexKey) const try {
    return puntos_.Item(vntIndexKey);
} catch (...) {
    LanzaError(TEXTO_LIBRE, "ErrGetItem (Puntos)");
}

void Puntos::Remove(const Variante& vntIndexKey) try {
    const std::shared_ptr<Punto> punto = puntos_.Item(vntIndexKey);
    puntos_.Remove(vntIndexKey);
    punto->trazado_ = nullptr;
    HaCambiado();
} catch (...) {
    LanzaError(TEXTO_LIBRE, "ErrRemove (Puntos)");
}

std::span<const Propiedad<Puntos>> Puntos::Propiedades() noexcept {
    return TABLA;
}

}  // namespace zel
