#include "model/Elemento.h"

#include "platform/Dialogos.h"

namespace zel {

namespace {

constexpr float ETIQUETA_MINIMA = 0.0002F;
constexpr float ETIQUETA_MAXIMA = 4320.0F;

// The usual texts: "Elemento:P Property Let" and "Elemento:P Property Get".
#define FILA_USUAL(NOMBRE, CONVERSION)                                               \
    ZEL_PROPIEDAD(Elemento, NOMBRE, CONVERSION, "Elemento:" #NOMBRE " Property Let", \
                  "Elemento:" #NOMBRE " Property Get")
#define FILA(NOMBRE, CONVERSION, ESCRITURA, LECTURA) \
    ZEL_PROPIEDAD(Elemento, NOMBRE, CONVERSION, ESCRITURA, LECTURA)

constexpr Propiedad<Elemento> TABLA[] = {
    FILA_USUAL(ColorIcono, Entero32),
    FILA_USUAL(ColorLinea, Entero32),
    FILA(ConecSec1, Entero32, "ErrLetConecSec1 (Elemento)", "ErrGetConecSec1 (Elemento)"),
    FILA(ConecSec2, Entero32, "ErrLetConecSec2 (Elemento)", "ErrGetConecSec2 (Elemento)"),
    FILA_USUAL(ElemFin, Entero32),
    FILA_USUAL(ElemIni, Entero32),
    FILA(EtiquetaGiro, Real32, "ErrLetEtiquetaGiro (Elemento)", "ErrGetEtiquetaGiro (Elemento)"),
    FILA_USUAL(EtiquetaMovida, Booleano),
    FILA_USUAL(EtiquetaPosX, Real32),
    FILA_USUAL(EtiquetaPosY, Real32),
    FILA_USUAL(EtiquetaTamanyo, Real32),
    FILA(EtiquetaTamanyoRelativo, Booleano, "ErrLetEtiquetaTamanyoRelativo (Elemento)",
         "ErrGetEtiquetaTamanyoRelativo (Elemento)"),
    FILA_USUAL(gfCodSIG, Entero32),
    FILA_USUAL(KeyPant, Entero16),
    FILA_USUAL(MostrarEtiqueta, Booleano),
    FILA_USUAL(Nombre, Texto),
    FILA_USUAL(Tamanyo, Real32),
    {"Tipo", [](const Elemento& e) -> Variante { return std::int32_t{e.Tipo()}; },
     [](Elemento& e, const Variante& v) { e.Tipo(static_cast<TipoElemento>(v.Entero32())); },
     "Elemento:Tipo Property Let", "Elemento:Tipo Property Get"},
    FILA(Trazado, Referencia<Puntos>, "Elemento:Trazado Property Set", "Elemento:Trazado Property Get"),
    FILA(Trazado2, Referencia<Puntos>, "Elemento:Trazado2 Property Set", "Elemento:Trazado2 Property Get"),
    FILA(Valor, Real32, "Elemento: Valor Property Let", "Elemento: Valor Property Get"),
    FILA(XPos, Real32, "Elemento:xPos Property Let", "Elemento:xPos Property Get"),
    FILA(YPos, Real32, "Elemento:yPos Property Let", "Elemento:yPos Property Get"),
};

#undef FILA
#undef FILA_USUAL

}  // namespace

Elemento::Elemento() try {
} catch (...) {
    LanzaError(TEXTO_LIBRE, "Error en la inicialización del objeto Elemento");
}

template <typename Lectura>
void Elemento::CopiaFilas(Lectura lee) {
    try {
        for (const auto& fila : TABLA)
            EscribeFila(fila, *this, lee(fila));
    } catch (...) {
        dialogos().MsgBox(FalloEnCurso().Description());
    }
}

void Elemento::CopiaPropiedades(const FuentePropiedades& Origen) {
    CopiaFilas([&](const Propiedad<Elemento>& fila) { return Origen.Lee(fila.nombre); });
}

void Elemento::CopiaPropiedades(const Elemento& Origen) {
    CopiaFilas([&](const Propiedad<Elemento>& fila) { return LeeFila(fila, Origen); });
}

void Elemento::Tamanyo(float valor) noexcept {
    Cambia(tamanyo_, valor > TAMANYO_MAXIMO   ? TAMANYO_MAXIMO
                     : valor > TAMANYO_MINIMO ? valor
                                              : TAMANYO_MINIMO);
}

void Elemento::EtiquetaTamanyo(float valor) noexcept {
    if (ETIQUETA_MINIMA <= valor && valor <= ETIQUETA_MAXIMA) Cambia(etiquetaTamanyo_, valor);
}

void Elemento::Entra(DiarioDeCambios& diario, std::uint64_t orden) noexcept {
    pertenencia_.diario = &diario;
    pertenencia_.orden = orden;
    pertenencia_.uso.Empieza(trazado_.get(), *this);
    pertenencia_.uso2.Empieza(trazado2_.get(), *this);
    Anota();
}

void Elemento::Sale() noexcept {
    pertenencia_.diario->Anota(*this, true);
    pertenencia_.diario = nullptr;
    pertenencia_.orden = 0;
    pertenencia_.uso.Termina();
    pertenencia_.uso2.Termina();
}

void Elemento::CambiaTrazado(std::shared_ptr<Puntos>& trazado, UsoDeTrazado& uso,
                             std::shared_ptr<Puntos> valor) noexcept {
    if (trazado == valor) return;
    uso.Termina();
    trazado = std::move(valor);
    if (!pertenencia_.diario) return;
    uso.Empieza(trazado.get(), *this);
    Anota();
}

std::span<const Propiedad<Elemento>> Elemento::Propiedades() noexcept {
    return TABLA;
}

}  // namespace zel
