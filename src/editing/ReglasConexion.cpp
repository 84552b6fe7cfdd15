#include "editing/ReglasConexion.h"

#include <algorithm>
#include <array>

#include "session/NumeroDeAviso.h"

namespace zel {

namespace {

using Tipos = ReglaConexion::Tipos;

constexpr Tipos Solo(TipoElemento tipo) noexcept {
    return Tipos{1} << tipo;
}
bool Admite(Tipos tipos, TipoElemento tipo) noexcept {
    return TipoConocido(tipo) && (tipos & Solo(tipo)) != 0;
}

constexpr Tipos NINGUNO = 0;
constexpr Tipos NUDO_O_EMBALSE = Solo(ctNudo) | Solo(ctEmbalse);

constexpr AvisoDeConexion SUPERPUESTOS{AVISO_SUPERPUESTOS};
constexpr AvisoDeConexion FALTA_EL_INICIAL{AVISO_FALTA_EL_INICIAL};
constexpr AvisoDeConexion INICIA_EN_NODO{AVISO_INICIA_EN_NODO};
constexpr AvisoDeConexion INICIA_EN_ACUIFERO{AVISO_INICIA_EN_ACUIFERO};
constexpr AvisoDeConexion YA_TIENE_SIMBOLO{AVISO_YA_TIENE_SIMBOLO};
constexpr AvisoDeConexion FINAL_DISTINTO{AVISO_FINAL_DISTINTO};
constexpr AvisoDeConexion TERMINA_EN_NODO{AVISO_TERMINA_EN_NODO};
constexpr AvisoDeConexion NO_EN_ESE{AVISO_SUPERPUESTOS, AVISO_TERMINA_EN_NODO};
constexpr AvisoDeConexion TERMINA_EN_ACUIFERO{AVISO_TERMINA_EN_ACUIFERO};
constexpr AvisoDeConexion TERMINA_EN_DEMANDA{AVISO_TERMINA_EN_DEMANDA};
constexpr AvisoDeConexion FALTA_LA_CENTRAL{AVISO_FALTA_LA_CENTRAL};
constexpr AvisoDeConexion INICIA_EN_APORTACION{AVISO_INICIA_EN_APORTACION};

constexpr ReglaConexion DeConduccion(TipoElemento tipo) noexcept {
    return {tipo, NUDO_O_EMBALSE, INICIA_EN_NODO, NUDO_O_EMBALSE, NO_EN_ESE, SimboloDelTrazado::Ninguno,
            true};
}

constexpr std::array REGLAS = {
    DeConduccion(ctConduccion1),
    DeConduccion(ctConduccion2),
    DeConduccion(ctConduccion3),
    DeConduccion(ctConduccion4),
    DeConduccion(ctConduccion5),
    ReglaConexion{ctRecarga, NUDO_O_EMBALSE, INICIA_EN_NODO, Solo(ctAcuifero), TERMINA_EN_ACUIFERO,
                  SimboloDelTrazado::Ninguno, false},
    ReglaConexion{ctBombeo, Solo(ctAcuifero), INICIA_EN_ACUIFERO, NUDO_O_EMBALSE, NO_EN_ESE,
                  SimboloDelTrazado::Ninguno, true},
    ReglaConexion{ctToma, NUDO_O_EMBALSE, INICIA_EN_NODO, Solo(ctDemanda), TERMINA_EN_DEMANDA,
                  SimboloDelTrazado::Ninguno, false},
    ReglaConexion{ctCentralHidroelectrica, NUDO_O_EMBALSE, INICIA_EN_NODO, NUDO_O_EMBALSE, TERMINA_EN_NODO,
                  SimboloDelTrazado::EnMedio, true},
    ReglaConexion{ctAportacion, NUDO_O_EMBALSE, INICIA_EN_NODO, NINGUNO, SUPERPUESTOS,
                  SimboloDelTrazado::AlFinal, false},
    ReglaConexion{ctRetorno, NUDO_O_EMBALSE, INICIA_EN_NODO, NINGUNO, SUPERPUESTOS,
                  SimboloDelTrazado::AlFinal, false},
    ReglaConexion{ctSubcuenca, Solo(ctAportacion), INICIA_EN_APORTACION, NINGUNO, SUPERPUESTOS,
                  SimboloDelTrazado::AlFinal, false},
};

}  // namespace

const ReglaConexion* ReglaDe(TipoElemento tipo) noexcept {
    const auto* regla = std::find_if(REGLAS.begin(), REGLAS.end(),
                                     [tipo](const ReglaConexion& una) { return una.tipo == tipo; });
    return regla == REGLAS.end() ? nullptr : regla;
}

AvisoDeConexion ImpideEmpezar(const ReglaConexion& regla, const Elemento* inicio) noexcept {
    if (!inicio) return FALTA_EL_INICIAL;
    return Admite(regla.inicio, inicio->Tipo()) ? AvisoDeConexion{} : regla.avisoInicio;
}

AvisoDeConexion ImpideTerminar(const ReglaConexion& regla, const Elemento& inicio, const Elemento& fin,
                               bool conSimbolo) noexcept {
    if (!Admite(regla.fin, fin.Tipo())) return regla.avisoFin;
    if (regla.simbolo == SimboloDelTrazado::EnMedio && !conSimbolo) return FALTA_LA_CENTRAL;
    return regla.extremosDistintos && &inicio == &fin ? FINAL_DISTINTO : AvisoDeConexion{};
}

AvisoDeConexion ImpideSimbolo(bool conSimbolo) noexcept {
    return conSimbolo ? YA_TIENE_SIMBOLO : AvisoDeConexion{};
}

}  // namespace zel
