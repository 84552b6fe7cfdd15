// What keeps a schematic from being opened again once it is saved.

#include <algorithm>
#include <cmath>
#include <unordered_map>

#include "file/GuardadoSeguro.h"
#include "file/LecturaDeEsquema.h"
#include "platform/Texto.h"

namespace zel {

namespace {

constexpr std::int32_t MAXIMO_DE_ELEMENTOS = 32767;
constexpr std::size_t MOTIVOS_CONTADOS = 5;

struct Sitio {
    const Elemento& e;
    std::int32_t posicion;
};

std::string Describe(const Sitio& s) {
    return "El elemento en la posición " + std::to_string(s.posicion) + ", \"" + EnBreve(s.e.Nombre()) +
           "\" (código " + std::to_string(s.e.gfCodSIG()) + "),";
}

bool SonNumeros(std::initializer_list<float> valores) noexcept {
    return std::all_of(valores.begin(), valores.end(), [](float v) { return std::isfinite(v); });
}

const char* FaltaDe(const Puntos* trazado) {
    if (!trazado || trazado->Count() < 2) return "tiene un trazado de menos de dos puntos";
    const bool sonNumeros = std::all_of(trazado->begin(), trazado->end(), [](const auto& p) {
        return SonNumeros({p->XPos(), p->YPos()});
    });
    return sonNumeros ? nullptr : "tiene un punto del trazado que no es un número";
}

// Null when nothing is wrong with it.
const char* FaltaDe(const Elemento& e) {
    if (!TipoConocido(e.Tipo())) return "es de un tipo desconocido";
    if (!SonNumeros({e.XPos(), e.YPos(), e.EtiquetaPosX(), e.EtiquetaPosY(), e.EtiquetaGiro(), e.Valor()})) {
        return "tiene una posición u otro valor que no es un número";
    }
    if (e.Nombre().size() > LecturaDeEsquema::TEXTO_MAXIMO) return "tiene un nombre demasiado largo";
    if (!EsLineal(e.Tipo())) return nullptr;
    const char* falta = FaltaDe(e.Trazado().get());
    return !falta && e.Tipo() == ctCentralHidroelectrica ? FaltaDe(e.Trazado2().get()) : falta;
}

class Motivos {
  public:
    void Anota(const std::string& motivo) {
        if (++cuantos_ > MOTIVOS_CONTADOS) return;
        texto_ += (texto_.empty() ? "" : ". ") + motivo;
    }
    std::string Texto() && {
        if (cuantos_ > MOTIVOS_CONTADOS)
            texto_ += ". Y hay " + std::to_string(cuantos_ - MOTIVOS_CONTADOS) + " faltas más";
        return std::move(texto_);
    }

  private:
    std::string texto_;
    std::size_t cuantos_ = 0;
};

}  // namespace

std::string MotivoParaNoGuardar(const Elementos& elementos) {
    Motivos motivos;
    if (elementos.Count() > MAXIMO_DE_ELEMENTOS) {
        motivos.Anota("El esquema tiene " + std::to_string(elementos.Count()) +
                      " elementos y un archivo no puede tener más de " + std::to_string(MAXIMO_DE_ELEMENTOS));
    }
    std::unordered_map<std::int32_t, Sitio> porCodigo;
    porCodigo.reserve(static_cast<std::size_t>(elementos.Count()));
    std::int32_t posicion = 0;
    for (const auto& e : elementos) {
        const Sitio s{*e, ++posicion};
        if (const char* falta = FaltaDe(*e)) motivos.Anota(Describe(s) + " " + falta);
        const auto [otro, nuevo] = porCodigo.try_emplace(e->gfCodSIG(), s);
        if (!nuevo) {
            motivos.Anota(Describe(s) + " tiene el mismo código que el de la posición " +
                          std::to_string(otro->second.posicion) + ", \"" + EnBreve(otro->second.e.Nombre()) +
                          "\"");
        }
    }
    return std::move(motivos).Texto();
}

}  // namespace zel
