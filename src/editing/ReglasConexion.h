#pragma once

#include <cstdint>

#include "model/Elemento.h"

namespace zel {

// The symbol of a kind's own that a trace may carry.
enum class SimboloDelTrazado {
    Ninguno,
    EnMedio,  // the trace goes on behind it, to an end element
    AlFinal,  // it is the end
};

// Notices of the message table that tell what is wrong with a press: the first alone or followed by the
// second. 0 for none.
struct AvisoDeConexion {
    std::int16_t id = 0;
    std::int16_t id2 = 0;
    explicit operator bool() const noexcept { return id != 0; }
};

// What a kind of linear element may connect.
struct ReglaConexion {
    using Tipos = std::uint32_t;  // a bit for each kind

    TipoElemento tipo;
    Tipos inicio;
    AvisoDeConexion avisoInicio;  // the start element is of no such kind
    Tipos fin;
    AvisoDeConexion avisoFin;  // the end element is of no such kind
    SimboloDelTrazado simbolo;
    bool extremosDistintos;
};

// The rule of a kind, or null for those that are no linear ones.
const ReglaConexion* ReglaDe(TipoElemento tipo) noexcept;

// What keeps a trace from starting at the element; nothing is under the mouse where there is none.
AvisoDeConexion ImpideEmpezar(const ReglaConexion& regla, const Elemento* inicio) noexcept;
// What keeps a trace from ending at the element. `conSimbolo`: the trace has its symbol already.
AvisoDeConexion ImpideTerminar(const ReglaConexion& regla, const Elemento& inicio, const Elemento& fin,
                               bool conSimbolo) noexcept;
// What keeps a trace from taking its symbol where nothing else is.
AvisoDeConexion ImpideSimbolo(bool conSimbolo) noexcept;

}  // namespace zel
