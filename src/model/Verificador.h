#pragma once

#include <cstdint>
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
    Verificador(Elementos& elementos, bool Corrige) : elementos_(elementos), corrige_(Corrige) {}

    // Runs every step and returns the result.
    std::int16_t Verifica();

    // The report, as the log takes it: each entry behind a line break. What was corrected is not in it.
    const std::string& Informe() const noexcept { return informe_; }
    // Everything found, corrected or not, in the order in which it was found.
    std::vector<HallazgoIntegridad> Hallazgos() && { return std::move(hallazgos_); }

  private:
    struct Sitio {
        std::int32_t posicion;  // from 1
        Elemento& e;
    };
    template <typename Accion>
    void PorElementos(Accion accion);

    void VerificaValores();
    void VerificaRepetidos();
    void VerificaTrazados();
    void VerificaExtremos();
    void VerificaConexionesSecundarias();
    void VerificaTiposDeExtremos();
    void CorrigeNumeros();
    void CorrigeCodigos();
    void CorrigeTrazados();

    void VerificaElementoInicial(const Sitio& s);
    void VerificaNumero(const Sitio& s);
    void VerificaTrazado(const Sitio& s, const Puntos* trazado, const char* cual, const char* dueno);
    void VerificaMutua(const Sitio& s, std::int32_t codigo, const char* cual);
    void VerificaTipoDeExtremo(const Sitio& s, std::int32_t codigo, bool inicio);
    bool RehaceTrazados(Elemento& e) const;

    // What cannot be corrected; what can, and how; what a later step repairs, with its flag.
    void Incorregible(const Sitio& s, const std::string& texto);
    template <typename Correccion>
    void Corregible(const Sitio& s, const std::string& texto, const char* correccion, Correccion corrige);
    void Pendiente(const Sitio& s, bool& marca, const std::string& texto);
    // Notes an entry of the report about one element, or a finding alone.
    void Informa(const Sitio& s, const std::string& texto);
    void Encontrado(const Sitio& s, const std::string& problema, const std::string& correccion);

    void IndexaCodigos();
    Elemento* DeCodigo(std::int32_t codigo) const;

    Elementos& elementos_;
    bool corrige_;
    bool mutuas_ = false;
    bool valores_ = false;
    bool numeros_ = false;
    bool codigos_ = false;
    bool trazados_ = false;
    bool incorregible_ = false;
    std::string informe_;
    std::vector<HallazgoIntegridad> hallazgos_;
    std::unordered_map<std::int32_t, Elemento*> porCodigo_;  // the first element with each code
};

}  // namespace zel
