#pragma once

#include <array>
#include <cstdint>

#include "file/Formato.h"
#include "platform/DocumentoXml.h"

namespace zel {

// What one pass over the descendants of an XML element finds of each name of the format: how many there
// are, and the first two.
class Hallazgos {
  public:
    struct Lista {
        std::int32_t Cuantos = 0;
        std::array<xmlNode*, 2> Primeros{};
    };

    explicit Hallazgos(const DocumentoXml& documento) {
        for (std::size_t i = 0; i < NUMERO_DE_HIJOS; ++i)
            nombres_[i] = documento.Nombre(NOMBRES_DE_HIJO[i]);
    }

    void Recoge(xmlNode* cima) noexcept {
        listas_.fill({});
        for (auto* nodo = SiguienteElemento(cima, cima); nodo; nodo = SiguienteElemento(nodo, cima)) {
            if (EsDeOtroVocabulario(nodo)) continue;
            for (const std::size_t i : POR_FRECUENCIA) {
                if (nodo->name != nombres_[i]) continue;
                Lista& lista = listas_[i];
                if (lista.Cuantos < 2) lista.Primeros[static_cast<std::size_t>(lista.Cuantos)] = nodo;
                ++lista.Cuantos;
                break;
            }
        }
    }

    const Lista& De(Hijo hijo) const noexcept { return listas_[static_cast<std::size_t>(hijo)]; }
    bool Es(const xmlNode* nodo, Hijo hijo) const noexcept {
        return nodo->name == nombres_[static_cast<std::size_t>(hijo)] && !EsDeOtroVocabulario(nodo);
    }

  private:
    static bool EsDeOtroVocabulario(const xmlNode* nodo) noexcept { return nodo->ns && nodo->ns->prefix; }

    // The names in the order in which they are tried: most elements of a document are vertices of traces.
    static constexpr auto POR_FRECUENCIA = [] {
        std::array<std::size_t, NUMERO_DE_HIJOS> orden{};
        std::size_t n = 0;
        const auto esDeVertice = [](std::size_t i) {
            return i == std::size_t(Hijo::X) || i == std::size_t(Hijo::Y) || i == std::size_t(Hijo::Punto);
        };
        for (std::size_t i = 0; i < NUMERO_DE_HIJOS; ++i) {
            if (esDeVertice(i)) orden[n++] = i;
        }
        for (std::size_t i = 0; i < NUMERO_DE_HIJOS; ++i) {
            if (!esDeVertice(i)) orden[n++] = i;
        }
        return orden;
    }();

    std::array<const xmlChar*, NUMERO_DE_HIJOS> nombres_{};
    std::array<Lista, NUMERO_DE_HIJOS> listas_;
};

}  // namespace zel
