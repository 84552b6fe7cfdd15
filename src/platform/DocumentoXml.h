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

    // Parses a text; false when it is not well-formed.
    bool Analiza(std::string_view texto);
    // Writes the document in the encoding of its declaration; a character outside it becomes a numeric
    // reference. Fails with the number of the system's reason (61 disk full, 70 permission, 75 ...).
    void Guarda(const std::string& nombreArchivo) const;
    void Vacia() noexcept { documento_.reset(); }
    explicit operator bool() const noexcept { return documento_ != nullptr; }

    // A new last child of `padre`, empty or with a text. Control characters that XML cannot carry are left
    // out of the text, and bytes that are not UTF-8 are taken as Latin-1. Fails with 7.
    xmlNode* Agrega(xmlNode* padre, const char* nombre);
    xmlNode* Agrega(xmlNode* padre, const char* nombre, std::string_view texto);
    // A line break behind what `padre` has so far, for who reads or compares the file.
    void AgregaSalto(xmlNode* padre) { PonTexto(padre, "\n"); }

    // The document element, or null.
    xmlNode* Raiz() const noexcept { return documento_ ? xmlDocGetRootElement(documento_.get()) : nullptr; }

    // The document's own copy of a name, the very pointer that every element of that name holds; null when
    // no element is called so. Names can then be compared as pointers.
    const xmlChar* Nombre(const char* nombre) const noexcept;

  private:
    void PonTexto(xmlNode* padre, std::string_view texto);

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
