#pragma once

#include <libxml/xmlwriter.h>

#include <memory>
#include <string>
#include <string_view>

namespace zel {

// An XML document being written, in ISO-8859-1, in memory until it is saved (libxml2). A character outside
// Latin-1 becomes a numeric reference; control characters that XML cannot carry are left out; bytes that
// are not UTF-8 are taken as Latin-1. Its operations fail with 7 when there is no memory.
class EscritorXml {
  public:
    EscritorXml();

    void Abre(const char* nombre);
    void Cierra();
    // An element with a text.
    void Hijo(const char* nombre, std::string_view texto);
    // A line break, for who reads or compares the file.
    void Salto();

    // Closes what is open and writes the file; nothing can be added then, but it can be saved again. Fails
    // with the number of the system's reason (61 disk full, 70 permission, 75 ...).
    void Guarda(const std::string& nombreArchivo);

  private:
    struct Suelta {
        void operator()(xmlBuffer* memoria) const noexcept { xmlBufferFree(memoria); }
        void operator()(xmlTextWriter* escritor) const noexcept { xmlFreeTextWriter(escritor); }
    };
    std::unique_ptr<xmlBuffer, Suelta> memoria_;
    std::unique_ptr<xmlTextWriter, Suelta> escritor_;
    bool acabado_ = false;
    std::string texto_;  // the text in hand, ended by a zero
};

}  // namespace zel
