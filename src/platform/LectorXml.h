#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace zel {

// Raised by a listener that will not have the document: it is refused for that reason (Spanish, one line).
struct DocumentoRechazado {
    std::string motivo;
};

// Who is told what an XML document holds, as it is read. It may raise: the reading ends there.
class OyenteXml {
  public:
    OyenteXml() = default;
    OyenteXml(const OyenteXml&) = delete;
    OyenteXml& operator=(const OyenteXml&) = delete;
    virtual ~OyenteXml() = default;

    // An element begins: its name without prefix, and the place of that name in the reader's vocabulary, from
    // 0; -1 for other names and for those with a prefix, which are of another vocabulary.
    virtual void AlAbrir(std::int32_t numero, std::string_view nombre) = 0;
    // Text in UTF-8, in as many pieces as the reader likes.
    virtual void AlTexto(std::string_view texto) = 0;
    // The element that began last, and has not ended, ends.
    virtual void AlCerrar() = 0;
};

// Reads an XML document from its beginning to its end (libxml2), without keeping it: memory does not grow
// with the document. Strict: nothing is fetched from a network, no entity is expanded, and a document that is
// not well-formed, or that carries an internal subset, is refused, as is one made to be slow: with more
// attributes to an element or more different names than any schematic has.
class LectorXml {
  public:
    explicit LectorXml(std::span<const char* const> vocabulario) noexcept : vocabulario_(vocabulario) {}

    // False when the file cannot be read to its end, and Motivo() says why (Spanish, one line); by then the
    // listener has been told of what stands before that.
    bool Lee(const std::string& nombreArchivo, OyenteXml& oyente);
    const std::string& Motivo() const noexcept { return motivo_; }

  private:
    std::span<const char* const> vocabulario_;
    std::string motivo_;
};

}  // namespace zel
