#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "model/Contorno.h"
#include "model/Elemento.h"
#include "model/Integridad.h"
#include "platform/Coleccion.h"

namespace zel {

// Anything with a position in the world: an element, a point.
template <typename T>
concept ConPosicion = requires(const T& objeto) {
    { objeto.XPos() } -> std::convertible_to<float>;
    { objeto.YPos() } -> std::convertible_to<float>;
};

// The schematic in memory: its elements in order, positions from 1, each under the key formed by the decimal
// text of its gfCodSIG ("1024"). An element stored without a key is found by position and by code, not by
// key.
class Elementos : public Objeto {
  public:
    Elementos();
    Elementos(const Elementos&) = delete;
    Elementos& operator=(const Elementos&) = delete;
    ~Elementos() override;

    // Stores a copy of aElemento, never aElemento itself: under the key given, under none when that is an
    // empty text, under the key of its code when no key is given. Raises when the key is taken, and then
    // stores nothing.
    void AddObjetoElemento(const FuentePropiedades& aElemento,
                           const std::optional<Variante>& ClaveColeccion = std::nullopt);
    void AddObjetoElemento(const Elemento& aElemento,
                           const std::optional<Variante>& ClaveColeccion = std::nullopt);

    // Creates an element and stores it, under the key of its code unless Identificador is empty. The ends
    // and traces are taken for linear kinds only (kinds 13 to 15 start at themselves, only 12 has a second
    // trace) and the traces are shared with the caller. Absent optional values leave the element's initial
    // ones. A code that is already a key is told in a message box: nothing is added and the result is empty.
    // Raises when an optional value cannot be converted.
    std::shared_ptr<Elemento> Add(TipoElemento aTipo, const std::string& aNombre, std::int32_t agfCodSig,
                                  std::int16_t aKeyPant, float aXPos, float aYPos, std::int32_t aElemIni,
                                  std::int32_t aElemFin, std::shared_ptr<Puntos> aTrazado,
                                  std::shared_ptr<Puntos> aTrazado2, const std::string& Identificador,
                                  float aEtPosX, float aEtPosY,
                                  const std::optional<Variante>& aTamanyo = std::nullopt,
                                  const std::optional<Variante>& aEtTamanyo = std::nullopt,
                                  const std::optional<Variante>& aColorIcono = std::nullopt,
                                  const std::optional<Variante>& aColorLinea = std::nullopt);

    // The element at a position or under a key, or an empty pointer. Neither raises.
    std::shared_ptr<Elemento> Item(const Variante& vntIndexKey) const noexcept;
    std::shared_ptr<Elemento> ItemCodSIG(std::int32_t codigo) const noexcept;

    std::int32_t Count() const noexcept { return elementos_.Count(); }

    // Whether the element is one of the collection's own. It may be any that exists, or none.
    bool Contiene(const Elemento* elemento) const noexcept;
    // The collection's own reference to the element; empty when it is not one of its own.
    std::shared_ptr<Elemento> Referencia(const Elemento* elemento) const noexcept;
    // Its neighbours in the collection's order, empty behind the last and before the first. Of what is none
    // of the collection's own: the first element, the last one. They cost a search, no pass over the
    // elements.
    std::shared_ptr<Elemento> Siguiente(const Elemento* elemento) const noexcept;
    std::shared_ptr<Elemento> Anterior(const Elemento* elemento) const noexcept;

    // The changes of its elements.
    const DiarioDeCambios& Diario() const noexcept { return diario_; }

    // Removes the element at a position or under a key. Raises when there is none.
    void Remove(const Variante& vntIndexKey);
    // Removes the first element with that code, keyed or not, and returns the position it had; -1 when no
    // element has the code.
    std::int32_t RemoveCodSIG(std::int32_t codigo);

    // Checks the collection against what drawing and editing rely on. Verifying, it only reports (and moves
    // a lone second secondary connection into the first slot); with Corrige it repairs what can be repaired:
    // default values, screen numbers, codes, straight traces for every linear element.
    // Returns -1 when something cannot be corrected, else the sum of what remains (INTEGRIDAD_...), 0 for
    // nothing. Unless 0 it shows a box and writes the report to "Integridad.log" in the current directory.
    // `hallazgos`, when given, receives everything found.
    // Raises when a code or number would go beyond 32767 and when the log cannot be written.
    std::int16_t VerificaIntegridad(bool Corrige = false,
                                    std::vector<HallazgoIntegridad>* hallazgos = nullptr);

    // Stores every element under the key of its present code.
    void RehaceClaves();

    auto begin() const noexcept { return elementos_.begin(); }
    auto end() const noexcept { return elementos_.end(); }

    // Where the line from the first point towards the second leaves a circle around the first, see
    // PuntoDelContorno. The radius is a factor of TamanyoUnidad: with numbers 1 when absent, with objects 0.
    static std::shared_ptr<Punto> PtoContorno(float A, float B, float C, float D,
                                              std::optional<float> E = std::nullopt);
    template <ConPosicion T, ConPosicion U>
    static std::shared_ptr<Punto> PtoContorno(const T& A, const U& B, std::optional<float> C = std::nullopt) {
        return PtoContorno(A.XPos(), A.YPos(), B.XPos(), B.YPos(), C.value_or(0.0F));
    }

  private:
    template <typename Origen>
    void AddCopia(const Origen& origen, const std::optional<Variante>& clave);
    void Guarda(const std::shared_ptr<Elemento>& elemento, const std::string& clave);
    void Quita(const Variante& posicionOClave);

    DiarioDeCambios diario_;
    std::uint64_t ultimoOrden_ = 0;

    Coleccion<std::shared_ptr<Elemento>> elementos_;
};

}  // namespace zel
