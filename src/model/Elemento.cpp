#include "model/Elemento.h"

#include "platform/Dialogos.h"

namespace zel {

namespace {

constexpr float ETIQUETA_MINIMA = 0.0002F;
constexpr float ETIQUETA_MAXIMA = 4320.0F;

// The usual texts: "Elemento:P Property Let" and "Elemento:P Property Get".
#define FILA_USUAL(NOMBRE, CONVERSION, AYUDA)                                        \
    ZEL_PROPIEDAD(Elemento, NOMBRE, CONVERSION, "Elemento:" #NOMBRE " Property Let", \
                  "Elemento:" #NOMBRE " Property Get", AYUDA)
#define FILA(NOMBRE, CONVERSION, ESCRITURA, LECTURA, AYUDA) \
    ZEL_PROPIEDAD(Elemento, NOMBRE, CONVERSION, ESCRITURA, LECTURA, AYUDA)

constexpr Propiedad<Elemento> TABLA[] = {
    FILA_USUAL(ColorIcono, Entero32, "Color del símbolo: rojo + 256 verde + 65536 azul; -1, el de su tipo"),
    FILA_USUAL(ColorLinea, Entero32, "Color de la línea: rojo + 256 verde + 65536 azul; -1, el de su tipo"),
    FILA(ConecSec1, Entero32, "ErrLetConecSec1 (Elemento)", "ErrGetConecSec1 (Elemento)",
         "Código del otro extremo de la primera conexión secundaria; -1, ninguna"),
    FILA(ConecSec2, Entero32, "ErrLetConecSec2 (Elemento)", "ErrGetConecSec2 (Elemento)",
         "Código del otro extremo de la segunda conexión secundaria; -1, ninguna"),
    FILA_USUAL(ElemFin, Entero32, "Código del elemento final; 0, ninguno"),
    FILA_USUAL(ElemIni, Entero32, "Código del elemento inicial; 0, ninguno"),
    FILA(EtiquetaGiro, Real32, "ErrLetEtiquetaGiro (Elemento)", "ErrGetEtiquetaGiro (Elemento)",
         "Giro de la etiqueta"),
    FILA_USUAL(EtiquetaMovida, Booleano, "La etiqueta se ha colocado a mano"),
    FILA_USUAL(EtiquetaPosX, Real32, "Abscisa de la etiqueta respecto al elemento"),
    FILA_USUAL(EtiquetaPosY, Real32, "Ordenada de la etiqueta respecto al elemento"),
    FILA_USUAL(EtiquetaTamanyo, Real32, "Tamaño de la etiqueta respecto al normal"),
    FILA(EtiquetaTamanyoRelativo, Booleano, "ErrLetEtiquetaTamanyoRelativo (Elemento)",
         "ErrGetEtiquetaTamanyoRelativo (Elemento)", "La etiqueta crece con el elemento"),
    FILA_USUAL(gfCodSIG, Entero32, "Código único del elemento"),
    FILA_USUAL(KeyPant, Entero16, "Número en pantalla, único entre los de su tipo"),
    FILA_USUAL(MostrarEtiqueta, Booleano, "La etiqueta se ve"),
    FILA_USUAL(Nombre, Texto, "Nombre, el texto de la etiqueta"),
    FILA_USUAL(Tamanyo, Real32, "Tamaño respecto al normal, de 0.5 a 33"),
    {"Tipo", [](const Elemento& e) -> Variante { return std::int32_t{e.Tipo()}; },
     [](Elemento& e, const Variante& v) { e.Tipo(static_cast<TipoElemento>(v.Entero32())); },
     "Elemento:Tipo Property Let", "Elemento:Tipo Property Get",
     "Tipo del elemento, de 0 (nudo) a 15 (subcuenca); -1, ninguno"},
    FILA(Trazado, Referencia<Puntos>, "Elemento:Trazado Property Set", "Elemento:Trazado Property Get",
         "Trazado (Puntos) de un elemento lineal"),
    FILA(Trazado2, Referencia<Puntos>, "Elemento:Trazado2 Property Set", "Elemento:Trazado2 Property Get",
         "Trazado (Puntos) de una central hidroeléctrica hasta su final"),
    FILA(Valor, Real32, "Elemento: Valor Property Let", "Elemento: Valor Property Get",
         "Número libre del elemento"),
    FILA(XPos, Real32, "Elemento:xPos Property Let", "Elemento:xPos Property Get", "Abscisa en el esquema"),
    FILA(YPos, Real32, "Elemento:yPos Property Let", "Elemento:yPos Property Get",
         "Ordenada en el esquema; crece hacia arriba"),
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
