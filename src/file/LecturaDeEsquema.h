#pragma once

#include <array>
#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "file/Formato.h"
#include "platform/LectorXml.h"

namespace zel {

// A vertex of a trace as a file has it.
struct PuntoLeido {
    float x = 0, y = 0;
    std::uint8_t cuantasX = 0, cuantasY = 0;  // up to 2, which stands for more
    bool desborda = false;                    // a coordinate is beyond 32-bit floats
};

// What stands in one Elemento of a file, at any depth: how many children there are of each name, the text of
// the first one, and the first two traces.
struct ElementoLeido {
    struct Texto {
        std::int32_t cuantos = 0;
        std::string texto;
    };
    std::array<Texto, NUMERO_DE_HIJOS> hijos;
    std::array<std::shared_ptr<std::vector<PuntoLeido>>, 2> lineas;

    const Texto& De(Hijo hijo) const noexcept { return hijos[static_cast<std::size_t>(hijo)]; }
    void Vacia() noexcept;
};

// A section beside the elements: its children in their order, and the texts under the names of the format.
struct SeccionLeida {
    std::vector<std::pair<std::string, std::string>> hijos;
    std::vector<std::optional<std::string>> textos;  // by the section's names
};

// Reads a schematic file element by element, without keeping more of it than the one in hand.
class LecturaDeEsquema : private OyenteXml {
  public:
    // The limit of one text, in bytes.
    static constexpr std::size_t TEXTO_MAXIMO = 10'000'000;

    // Called when an element begins, and when all of it is known, with its place in the file from 1; nested
    // ones come behind the one around them. What they raise ends the reading.
    using AlEmpezar = std::function<void(std::int32_t posicion)>;
    using AlLeer = std::function<void(std::int32_t posicion, const ElementoLeido&)>;

    // False when the file cannot be read to its end: what has been told by then counts for nothing.
    bool Lee(const std::string& archivo, const AlEmpezar& alEmpezar = {}, const AlLeer& alLeer = {});

    // Of the last reading. Why it failed; whether the root is that of a schematic; how many elements there
    // are; the sections.
    const std::string& Motivo() const noexcept { return motivo_; }
    bool EsEsquema() const noexcept { return esEsquema_; }
    std::int32_t Elementos() const noexcept { return elementos_; }
    const std::optional<SeccionLeida>& Imagen() const noexcept { return imagen_.leida; }
    const std::optional<SeccionLeida>& Configuracion() const noexcept { return configuracion_.leida; }

  private:
    struct Abierto {
        std::int32_t nivel;
        ElementoLeido* elemento;
    };
    struct LineaAbierta {
        std::int32_t nivel;
        std::shared_ptr<std::vector<PuntoLeido>> puntos;
    };
    struct PuntoAbierto {
        std::int32_t nivel = 0;
        PuntoLeido punto;
        std::vector<std::size_t> lugares;  // in each of the open traces
    };
    // A text that is being read: where it begins in texto_, and for whom it is.
    struct Captura {
        std::int32_t nivel;
        std::size_t desde;
        std::string* texto;  // or else
        std::size_t punto;   // a coordinate of this open vertex
        float PuntoLeido::*coordenada;
    };
    struct Seccion {
        std::optional<SeccionLeida> leida;
        std::int32_t nivel = 0;  // while it is open
    };

    void AlAbrir(std::int32_t numero, std::string_view nombre) override;
    void AlTexto(std::string_view texto) override;
    void AlCerrar() override;

    void AbreElemento();
    void AbreLinea();
    void AbrePunto();
    void AbreCoordenada(std::uint8_t PuntoLeido::*cuantas, float PuntoLeido::*coordenada);
    void AbreHijo(std::size_t hijo);
    void AbreEnSeccion(Seccion& seccion, std::int32_t primero, std::size_t cuantos, std::int32_t numero,
                       std::string_view nombre);
    void AcabaCapturas();
    void AcabaPunto();
    void EntregaElementos();

    const AlEmpezar* alEmpezar_ = nullptr;
    const AlLeer* alLeer_ = nullptr;
    std::string motivo_;
    bool esEsquema_ = false;
    std::int32_t elementos_ = 0;
    Seccion imagen_;
    Seccion configuracion_;

    std::int32_t nivel_ = 0;
    std::deque<ElementoLeido> registros_;  // those in use first, in the order in which they began
    std::size_t enUso_ = 0;
    std::vector<Abierto> abiertos_;
    std::vector<LineaAbierta> lineas_;
    std::vector<PuntoAbierto> puntos_;  // those in use first
    std::size_t puntosEnUso_ = 0;
    std::vector<Captura> capturas_;
    std::string texto_;
};

}  // namespace zel
