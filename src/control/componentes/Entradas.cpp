#include "control/componentes/Entradas.h"

#include <algorithm>
#include <cstring>
#include <string>

#include "control/componentes/Clases.h"
#include "control/componentes/RegistroPropio.h"
#include "control/componentes/Vivos.h"
#include "platform/Fallo.h"

namespace {

constexpr int NO_ES_LA_BIBLIOTECA = 48;
constexpr int CLASE_DESCONOCIDA = 429;
constexpr int SIN_MEMORIA = 7;

void Copia(const std::string& de, char* texto, std::size_t tamanyo) noexcept {
    if (!texto || tamanyo == 0) return;
    std::size_t cuantos = std::min(de.size(), tamanyo - 1);
    // Not in the middle of a character.
    while (cuantos < de.size() && cuantos > 0 && (static_cast<unsigned char>(de[cuantos]) & 0xC0U) == 0x80U)
        --cuantos;
    std::memcpy(texto, de.data(), cuantos);
    texto[cuantos] = '\0';
}

// Nothing thrown goes beyond this. `accion` gives the text of what it has done.
template <typename Accion>
int EnLaFrontera(char* texto, std::size_t tamanyo, Accion accion) noexcept {
    try {
        try {
            Copia(accion(), texto, tamanyo);
            return 0;
        } catch (...) {
            const zel::Fallo fallo = zel::FalloEnCurso();
            Copia(fallo.Description(), texto, tamanyo);
            return fallo.Number();
        }
    } catch (...) {
        Copia("No queda memoria suficiente", texto, tamanyo);
        return SIN_MEMORIA;
    }
}

}  // namespace

int zelRegistra(int paraElSistema, char* texto, std::size_t tamanyo) noexcept {
    return EnLaFrontera(texto, tamanyo, [&] { return zel::EscribeRegistroPropio(paraElSistema != 0); });
}

int zelAnulaRegistro(int delSistema, char* texto, std::size_t tamanyo) noexcept {
    return EnLaFrontera(texto, tamanyo, [&] { return zel::BorraRegistroPropio(delSistema != 0); });
}

int zelObjetoDeClase(const char* clase, const char* version, int interfaz, const void** objeto, char* texto,
                     std::size_t tamanyo) noexcept {
    return EnLaFrontera(texto, tamanyo, [&] {
        if (!clase || !objeto) throw zel::Fallo(91);
        *objeto = nullptr;
        const std::string propia = zel::VERSION_PROPIA;
        if (version && QVersionNumber::fromString(QString::fromUtf8(version)).normalized() !=
                           QVersionNumber::fromString(QString::fromStdString(propia)).normalized()) {
            throw zel::Fallo(NO_ES_LA_BIBLIOTECA,
                             "es de la versión " + propia + ", y se esperaba la " + version);
        }
        if (interfaz != zel::INTERFAZ_POR_NOMBRE) {
            throw zel::Fallo(NO_ES_LA_BIBLIOTECA, "sus clases son de otra versión de Componentes.h");
        }
        for (const zel::ClasePorNombre* una : zel::ClasesDelComponente()) {
            if (una->Nombre().compare(QString::fromUtf8(clase), Qt::CaseInsensitive) != 0) continue;
            *objeto = una;
            return std::string();
        }
        throw zel::Fallo(CLASE_DESCONOCIDA, std::string("no tiene la clase \"") + clase + '"');
    });
}

int zelPuedeDescargarse() noexcept {
    return zel::Vivo::HayAlguno() ? 0 : 1;
}
