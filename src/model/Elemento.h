#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>

#include "model/DiarioDeCambios.h"
#include "model/Puntos.h"
#include "model/TipoElemento.h"

namespace zel {

// One element of the schematic: a symbol at a position (point kinds), or a connection from a start element
// to an end element along a trace (linear kinds). Positions and label offsets are world units; colours are
// red + 256 green + 65536 blue, -1 being the kind's default; texts are UTF-8.
//
// An element of a collection notes its changes of place, shape, label and connections in the collection's
// journal. A copy of it belongs to no collection; what is to become equal to another takes CopiaPropiedades.
class Elemento : public Objeto {
  public:
    Elemento();
    Elemento(const Elemento&) = default;
    Elemento& operator=(const Elemento&) = delete;
    ~Elemento() override = default;

    // Copies every property of Origen, read by its name, in the order of the property table, through the
    // write accesses below; traces become shared. It never raises: at the first property that Origen lacks
    // or that cannot be converted it shows the failure in a message box and leaves the rest as it was.
    void CopiaPropiedades(const FuentePropiedades& Origen);
    void CopiaPropiedades(const Elemento& Origen);

    // gfCodSIG of the element at the far end of a secondary connection; -1 = none.
    void ConecSec1(std::int32_t valor) noexcept { Cambia(conecSec1_, valor); }
    std::int32_t ConecSec1() const noexcept { return conecSec1_; }
    void ConecSec2(std::int32_t valor) noexcept { Cambia(conecSec2_, valor); }
    std::int32_t ConecSec2() const noexcept { return conecSec2_; }

    // The label grows with the element's size.
    void EtiquetaTamanyoRelativo(bool valor) noexcept { Cambia(etiquetaTamanyoRelativo_, valor); }
    bool EtiquetaTamanyoRelativo() const noexcept { return etiquetaTamanyoRelativo_; }
    // Rotation of the label; kept, not drawn.
    void EtiquetaGiro(float valor) noexcept { etiquetaGiro_ = valor; }
    float EtiquetaGiro() const noexcept { return etiquetaGiro_; }
    // A free number of the element.
    void Valor(float valor) noexcept { valor_ = valor; }
    float Valor() const noexcept { return valor_; }
    // The user has placed the label by hand.
    void EtiquetaMovida(bool valor) noexcept { etiquetaMovida_ = valor; }
    bool EtiquetaMovida() const noexcept { return etiquetaMovida_; }
    void MostrarEtiqueta(bool valor) noexcept { Cambia(mostrarEtiqueta_, valor); }
    bool MostrarEtiqueta() const noexcept { return mostrarEtiqueta_; }

    static constexpr float TAMANYO_MINIMO = 0.5F;
    static constexpr float TAMANYO_MAXIMO = 33.0F;
    // Factor of the base symbol size; a value outside 0.5 .. 33 becomes the nearer bound. It is also the pen
    // width, in pixels, of conduits, recharges, pumpings and intakes.
    void Tamanyo(float valor) noexcept;
    float Tamanyo() const noexcept { return tamanyo_; }

    void ColorIcono(std::int32_t valor) noexcept { colorIcono_ = valor; }
    std::int32_t ColorIcono() const noexcept { return colorIcono_; }
    void ColorLinea(std::int32_t valor) noexcept { colorLinea_ = valor; }
    std::int32_t ColorLinea() const noexcept { return colorLinea_; }

    // Offset of the label's top left corner from the position.
    void EtiquetaPosX(float valor) noexcept { Cambia(etiquetaPosX_, valor); }
    float EtiquetaPosX() const noexcept { return etiquetaPosX_; }
    void EtiquetaPosY(float valor) noexcept { Cambia(etiquetaPosY_, valor); }
    float EtiquetaPosY() const noexcept { return etiquetaPosY_; }
    // Size factor of the label; a value outside 0.0002 .. 4320 is ignored.
    void EtiquetaTamanyo(float valor) noexcept;
    float EtiquetaTamanyo() const noexcept { return etiquetaTamanyo_; }

    // The trace, shared with whoever gave it; the second one is a hydro plant's, from the plant to its end.
    void Trazado(std::shared_ptr<Puntos> valor) noexcept {
        CambiaTrazado(trazado_, pertenencia_.uso, std::move(valor));
    }
    const std::shared_ptr<Puntos>& Trazado() const noexcept { return trazado_; }
    void Trazado2(std::shared_ptr<Puntos> valor) noexcept {
        CambiaTrazado(trazado2_, pertenencia_.uso2, std::move(valor));
    }
    const std::shared_ptr<Puntos>& Trazado2() const noexcept { return trazado2_; }

    // gfCodSIG of the start and end elements; 0 = none.
    void ElemIni(std::int32_t valor) noexcept { Cambia(elemIni_, valor); }
    std::int32_t ElemIni() const noexcept { return elemIni_; }
    void ElemFin(std::int32_t valor) noexcept { Cambia(elemFin_, valor); }
    std::int32_t ElemFin() const noexcept { return elemFin_; }

    // The unique code, by which the element collection knows the element.
    void gfCodSIG(std::int32_t valor) noexcept { gfCodSIG_ = valor; }
    std::int32_t gfCodSIG() const noexcept { return gfCodSIG_; }
    // The number on the screen, unique among the elements of one kind.
    void KeyPant(std::int16_t valor) noexcept { keyPant_ = valor; }
    std::int16_t KeyPant() const noexcept { return keyPant_; }
    void Nombre(std::string valor) noexcept { Cambia(nombre_, std::move(valor)); }
    const std::string& Nombre() const noexcept { return nombre_; }
    void YPos(float valor) noexcept { Cambia(yPos_, valor); }
    float YPos() const noexcept { return yPos_; }
    void XPos(float valor) noexcept { Cambia(xPos_, valor); }
    float XPos() const noexcept { return xPos_; }
    void Tipo(TipoElemento valor) noexcept { Cambia(tipo_, valor); }
    TipoElemento Tipo() const noexcept { return tipo_; }

    // Grows from each element of a collection to the next, so that it compares their places in it; 0 for an
    // element of none.
    std::uint64_t Orden() const noexcept { return pertenencia_.orden; }

    // The table for access by name: every property above, in the order in which they are copied.
    static std::span<const Propiedad<Elemento>> Propiedades() noexcept;

  private:
    friend class Elementos;
    friend class Puntos;

    // What binds the element to its collection.
    struct Pertenencia {
        Pertenencia() = default;
        Pertenencia(const Pertenencia&) noexcept {}
        Pertenencia& operator=(const Pertenencia&) = delete;
        ~Pertenencia() = default;

        DiarioDeCambios* diario = nullptr;
        std::uint64_t orden = 0;
        UsoDeTrazado uso;
        UsoDeTrazado uso2;
    };

    void Entra(DiarioDeCambios& diario, std::uint64_t orden) noexcept;
    void Sale() noexcept;
    void CambiaTrazado(std::shared_ptr<Puntos>& trazado, UsoDeTrazado& uso,
                       std::shared_ptr<Puntos> valor) noexcept;

    template <typename T>
    void Cambia(T& campo, T valor) noexcept {
        const bool seAnota = pertenencia_.diario && campo != valor;
        campo = std::move(valor);
        if (seAnota) Anota();
    }
    // Only in a collection.
    void Anota() const noexcept { pertenencia_.diario->Anota(*this); }

    template <typename Lectura>
    void CopiaFilas(Lectura lee);

    std::int32_t conecSec1_ = -1;
    std::int32_t conecSec2_ = -1;
    std::int32_t colorIcono_ = -1;
    std::int32_t colorLinea_ = -1;
    std::int32_t elemIni_ = 0;
    std::int32_t elemFin_ = 0;
    std::int32_t gfCodSIG_ = 0;
    TipoElemento tipo_ = ctFlecha;
    float etiquetaGiro_ = 0;
    float valor_ = 0;
    float tamanyo_ = 1;
    float etiquetaPosX_ = 0;
    float etiquetaPosY_ = 0;
    float etiquetaTamanyo_ = 1;
    float xPos_ = 0;
    float yPos_ = 0;
    std::int16_t keyPant_ = 0;
    bool etiquetaTamanyoRelativo_ = true;
    bool etiquetaMovida_ = false;
    bool mostrarEtiqueta_ = true;
    std::shared_ptr<Puntos> trazado_;
    std::shared_ptr<Puntos> trazado2_;
    std::string nombre_;
    Pertenencia pertenencia_;  // behind the traces: it lets go of them first
};

}  // namespace zel
