#pragma once

#include <array>
#include <cstdint>
#include <memory_resource>
#include <string>
#include <unordered_map>
#include <vector>

#include "model/Elementos.h"
#include "model/Integridad.h"

namespace zel {

// Checks a collection step by step against what drawing and editing rely on, and repairs what can be
// repaired when it corrects. Cost grows with the number of elements: equal values are found by grouping,
// ends by code.
class Verificador {
  public:
    // Findings are collected when asked for; the report always is.
    Verificador(Elementos& elementos, bool Corrige, bool conHallazgos)
        : elementos_(elementos), corrige_(Corrige), conHallazgos_(conHallazgos) {}

    // Runs every step and returns the result.
    std::int16_t Verifica();

    // The report, as the log takes it: each entry behind a line break. What was corrected is not in it.
    std::string Informe() const;
    // Everything found, corrected or not: element by element, then the equal ones, then what was repaired.
    std::vector<HallazgoIntegridad> Hallazgos() && { return std::move(hallazgos_); }

  private:
    struct Sitio {
        std::int32_t posicion;  // from 1
        Elemento& e;
    };
    // The elements at the ends of a linear one; null for one that does not exist.
    struct Extremos {
        const Elemento* inicio;
        const Elemento* fin;
    };
    // The steps, in the order of the report.
    enum class Paso { Valores, Repetidos, Trazados, Extremos, ConexionesSecundarias, TiposDeExtremos };
    static constexpr std::size_t PASOS = 6;

    void VerificaValores(const Sitio& s);
    void VerificaRepetidos();
    void VerificaTrazados(const Sitio& s);
    void VerificaExtremos(const Sitio& s, const Extremos& extremos);
    void VerificaConexionesSecundarias(const Sitio& s);
    void VerificaTiposDeExtremos(const Sitio& s, const Extremos& extremos);
    void CorrigeNumeros();
    void CorrigeCodigos();
    void CorrigeTrazados();

    void VerificaElementoInicial(const Sitio& s);
    void VerificaNumero(const Sitio& s);
    void VerificaTrazado(const Sitio& s, const Puntos* trazado, const char* cual, const char* dueno);
    void VerificaMutua(const Sitio& s, std::int32_t codigo, const char* cual);
    void VerificaTipoDeExtremo(const Sitio& s, const Elemento* extremo, bool inicio);
    bool RehaceTrazados(Elemento& e) const;

    // What cannot be corrected; what can, and how; what a later step repairs, with its flag.
    void Incorregible(const Sitio& s, const std::string& texto);
    template <typename Correccion>
    void Corregible(const Sitio& s, const std::string& texto, const char* correccion, Correccion corrige);
    void Pendiente(const Sitio& s, bool& marca, const std::string& texto);
    // Notes an entry of the report about one element, or a finding alone.
    void Informa(const Sitio& s, const std::string& texto);
    void Encontrado(const Sitio& s, const std::string& problema, const std::string& correccion);

    std::string& ParteDelInforme() noexcept;
    void IndexaCodigos();
    Elemento* DeCodigo(std::int32_t codigo) const;

    Elementos& elementos_;
    bool corrige_;
    bool conHallazgos_;
    bool mutuas_ = false;
    bool valores_ = false;
    bool numeros_ = false;
    bool codigos_ = false;
    bool trazados_ = false;
    bool incorregible_ = false;
    Paso paso_ = Paso::Valores;
    std::array<std::string, PASOS> informe_;  // a part for each step
    std::vector<HallazgoIntegridad> hallazgos_;
    // The first element with each code; its nodes lie together, which is what looking up costs.
    std::pmr::monotonic_buffer_resource memoria_;
    std::pmr::unordered_map<std::int32_t, Elemento*> porCodigo_{&memoria_};
};

}  // namespace zel
