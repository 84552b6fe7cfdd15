#include "model/Elementos.h"

#include <algorithm>

#include "model/Verificador.h"
#include "platform/Archivos.h"
#include "platform/Dialogos.h"

namespace zel {

namespace {

// Of one of the collection's own.
auto LugarDe(const Elementos& elementos, const Elemento& elemento) noexcept {
    return std::lower_bound(elementos.begin(), elementos.end(), elemento.Orden(),
                            [](const auto& e, std::uint64_t orden) { return e->Orden() < orden; });
}

}  // namespace

Elementos::Elementos() try {
} catch (...) {
    LanzaError(TEXTO_LIBRE, "Error inicialización objeto Elementos");
}

Elementos::~Elementos() {
    for (const auto& elemento : elementos_)
        elemento->Sale();
}

void Elementos::Guarda(const std::shared_ptr<Elemento>& elemento, const std::string& clave) {
    if (clave.empty()) {
        elementos_.Add(elemento);
    } else {
        elementos_.Add(elemento, clave);
    }
    diario_.Limita(Count());
    elemento->Entra(diario_, ++ultimoOrden_);
}

void Elementos::Quita(const Variante& posicionOClave) {
    const std::shared_ptr<Elemento> elemento = elementos_.Item(posicionOClave);
    elementos_.Remove(posicionOClave);
    elemento->Sale();
    diario_.Limita(Count());
}

template <typename Origen>
void Elementos::AddCopia(const Origen& origen, const std::optional<Variante>& clave) try {
    auto elemento = std::make_shared<Elemento>();
    elemento->CopiaPropiedades(origen);
    Guarda(elemento, clave ? clave->Texto() : std::to_string(elemento->gfCodSIG()));
} catch (...) {
    LanzaError(TEXTO_LIBRE, "Error método AddObjetoElemento (Elementos)");
}

void Elementos::AddObjetoElemento(const FuentePropiedades& aElemento,
                                  const std::optional<Variante>& ClaveColeccion) {
    AddCopia(aElemento, ClaveColeccion);
}

void Elementos::AddObjetoElemento(const Elemento& aElemento, const std::optional<Variante>& ClaveColeccion) {
    AddCopia(aElemento, ClaveColeccion);
}

std::shared_ptr<Elemento> Elementos::Add(
    TipoElemento aTipo, const std::string& aNombre, std::int32_t agfCodSig, std::int16_t aKeyPant,
    float aXPos, float aYPos, std::int32_t aElemIni, std::int32_t aElemFin, std::shared_ptr<Puntos> aTrazado,
    std::shared_ptr<Puntos> aTrazado2, const std::string& Identificador, float aEtPosX, float aEtPosY,
    const std::optional<Variante>& aTamanyo, const std::optional<Variante>& aEtTamanyo,
    const std::optional<Variante>& aColorIcono, const std::optional<Variante>& aColorLinea) try {
    auto e = std::make_shared<Elemento>();
    e->Tipo(aTipo);
    e->Nombre(aNombre);
    e->EtiquetaPosX(aEtPosX);
    e->EtiquetaPosY(aEtPosY);
    e->EtiquetaMovida(false);
    if (aTamanyo) e->Tamanyo(aTamanyo->Real32());
    if (aEtTamanyo) e->EtiquetaTamanyo(aEtTamanyo->Real32());
    if (aColorIcono) e->ColorIcono(aColorIcono->Entero32());
    if (aColorLinea) e->ColorLinea(aColorLinea->Entero32());
    if (ItemCodSIG(agfCodSig)) {
        dialogos().MsgBox("La colección de elementos ya contiene un elemento con codigo gfCodSIG " +
                          std::to_string(agfCodSig));
        return nullptr;
    }
    e->gfCodSIG(agfCodSig);
    e->KeyPant(aKeyPant);
    e->XPos(aXPos);
    e->YPos(aYPos);
    if (EsLineal(aTipo)) {
        e->ElemIni(EmpiezaEnSiMismo(aTipo) ? e->gfCodSIG() : aElemIni);
        e->ElemFin(aElemFin);
        e->Trazado(std::move(aTrazado));
        if (aTipo == ctCentralHidroelectrica) e->Trazado2(std::move(aTrazado2));
    }
    Guarda(e, Identificador.empty() ? std::string() : std::to_string(agfCodSig));
    return e;
} catch (...) {
    LanzaError(TEXTO_LIBRE, "Error en método Add (Elementos)");
}

std::shared_ptr<Elemento> Elementos::Item(const Variante& vntIndexKey) const noexcept {
    try {
        return elementos_.Item(vntIndexKey);
    } catch (...) {
        return nullptr;
    }
}

std::shared_ptr<Elemento> Elementos::ItemCodSIG(std::int32_t codigo) const noexcept {
    try {
        const auto* elemento = elementos_.Busca(std::to_string(codigo));
        return elemento ? *elemento : nullptr;
    } catch (...) {
        return nullptr;
    }
}

bool Elementos::Contiene(const Elemento* elemento) const noexcept {
    return elemento && elemento->pertenencia_.diario == &diario_;
}

std::shared_ptr<Elemento> Elementos::Referencia(const Elemento* elemento) const noexcept {
    return Contiene(elemento) ? *LugarDe(*this, *elemento) : nullptr;
}

std::shared_ptr<Elemento> Elementos::Siguiente(const Elemento* elemento) const noexcept {
    const auto siguiente = Contiene(elemento) ? LugarDe(*this, *elemento) + 1 : begin();
    return siguiente == end() ? nullptr : *siguiente;
}

std::shared_ptr<Elemento> Elementos::Anterior(const Elemento* elemento) const noexcept {
    const auto lugar = Contiene(elemento) ? LugarDe(*this, *elemento) : end();
    return lugar == begin() ? nullptr : *(lugar - 1);
}

void Elementos::Remove(const Variante& vntIndexKey) try { Quita(vntIndexKey); } catch (...) {
    LanzaError(TEXTO_LIBRE, "Error Método Remove (Elementos)");
}

std::int32_t Elementos::RemoveCodSIG(std::int32_t codigo) try {
    std::int32_t posicion = 0;
    for (const auto& elemento : elementos_) {
        ++posicion;
        if (elemento->gfCodSIG() != codigo) continue;
        Quita(posicion);
        return posicion;
    }
    return -1;
} catch (...) {
    LanzaError(TEXTO_LIBRE, "Error Método RemoveCodSIG (Elementos)");
}

std::int16_t Elementos::VerificaIntegridad(bool Corrige, std::vector<HallazgoIntegridad>* hallazgos) try {
    Verificador verificador(*this, Corrige, hallazgos != nullptr);
    const std::int16_t resultado = verificador.Verifica();
    const std::string informe = verificador.Informe();
    if (hallazgos) *hallazgos = std::move(verificador).Hallazgos();
    if (resultado == 0) return resultado;
    dialogos().MsgBox(
        resultado == INTEGRIDAD_INCORREGIBLE
            ? "Los datos cargados en memoria no verifican las condiciones de integridad y no pueden ser "
              "corregidos automáticamente. Operación cancelada. Ver fichero Integridad.log"
            : "Los datos cargados en memoria no verifican las condiciones de integridad. Operación "
              "cancelada. Ver fichero Integridad.log");
    EscribeRegistro(
        "Integridad.log",
        "ZELVisorEsquemas: Verificación de integridad de los datos de cargados en memoria fallida. Los "
        "datos están corruptos.\r\n" +
            informe);
    return resultado;
} catch (...) {
    LanzaError(TEXTO_LIBRE, "Error en función VerificarIntegridad (Elementos)");
}

void Elementos::RehaceClaves() {
    elementos_.RehaceClaves([](const std::shared_ptr<Elemento>& e) { return std::to_string(e->gfCodSIG()); });
}

std::shared_ptr<Punto> Elementos::PtoContorno(float A, float B, float C, float D,
                                              std::optional<float> E) try {
    return std::make_shared<Punto>(PuntoDelContorno(A, B, C, D, RadioSimbolo(E)));
} catch (...) {
    LanzaError(TEXTO_LIBRE, "ErrPtoContorno (Elementos)");
}

}  // namespace zel
