#pragma once

#include <libxml/tree.h>

#include <memory>
#include <string>
#include <string_view>

namespace zel {

// An XML document in memory (libxml2). Strict: a document that is not well-formed, or that carries an
// internal subset, does not load at all; nothing is fetched from a network and no entity is expanded.
class DocumentoXml {
  public:
    // Reads the file; false when it cannot be read or does not parse, and Motivo() says why (Spanish, one
    // line). What was loaded before is gone either way.
    bool Carga(const std::string& nombreArchivo);
    const std::string& Motivo() const noexcept { return motivo_; }

    // The document element, or null.
    xmlNode* Raiz() const noexcept { return documento_ ? xmlDocGetRootElement(documento_.get()) : nullptr; }

    // The document's own copy of a name, the very pointer that every element of that name holds; null when
    // no element is called so. Names can then be compared as pointers.
    const xmlChar* Nombre(const char* nombre) const noexcept;

  private:
    struct Suelta {
        void operator()(xmlDoc* documento) const noexcept { xmlFreeDoc(documento); }
    };
    std::unique_ptr<xmlDoc, Suelta> documento_;
    std::string motivo_;
};

// The node that follows `nodo` in document order inside `cima`, or null behind the last one. Beginning with
// `cima` itself it visits all its descendants, `cima` excluded.
template <typename Nodo>
Nodo* SiguienteNodo(Nodo* nodo, const xmlNode* cima) noexcept {
    if (nodo->type == XML_ELEMENT_NODE && nodo->children) return nodo->children;
    while (nodo != cima && !nodo->next)
        nodo = nodo->parent;
    return nodo == cima ? nullptr : nodo->next;
}

// The same, elements only.
inline xmlNode* SiguienteElemento(xmlNode* nodo, const xmlNode* cima) noexcept {
    do {
        nodo = SiguienteNodo(nodo, cima);
    } while (nodo && nodo->type != XML_ELEMENT_NODE);
    return nodo;
}

// All the text under the element, joined, in UTF-8. When it is one piece, the view is on the document
// itself; otherwise it is put together in `memoria`, which has to outlive the view.
std::string_view TextoDe(const xmlNode* elemento, std::string& memoria);

}  // namespace zel
