#include "platform/EscritorXml.h"

#include <algorithm>

#include "platform/Archivos.h"
#include "platform/Fallo.h"
#include "platform/Texto.h"

namespace zel {

namespace {

// What XML 1.0 can carry, control characters aside.
bool EsDeXml(char32_t c) noexcept {
    if (c < 0x20) return c == '\t' || c == '\n' || c == '\r';
    return c < 0xD800 || (c > 0xDFFF && c < 0xFFFE) || (c > 0xFFFF && c <= 0x10FFFF);
}

bool EsLlano(std::string_view texto) noexcept {
    return std::all_of(texto.begin(), texto.end(), [](char c) { return c >= 0x20 && c < 0x7F; });
}

std::string TextoDeXml(std::string_view texto) {
    std::string limpio;
    limpio.reserve(texto.size());
    for (std::size_t i = 0; i < texto.size();) {
        const char32_t c = SiguienteCaracter(texto, i);
        if (EsDeXml(c)) AgregaCaracter(limpio, c);
    }
    return limpio;
}

const xmlChar* Xml(const char* texto) noexcept {
    return reinterpret_cast<const xmlChar*>(texto);
}

void Comprueba(int resultado) {
    if (resultado < 0) throw Fallo(7);
}

}  // namespace

EscritorXml::EscritorXml() : memoria_(xmlBufferCreate()) {
    if (memoria_) escritor_.reset(xmlNewTextWriterMemory(memoria_.get(), 0));
    if (!escritor_) throw Fallo(7);
    Comprueba(xmlTextWriterStartDocument(escritor_.get(), "1.0", "ISO-8859-1", nullptr));
}

void EscritorXml::Abre(const char* nombre) {
    Comprueba(xmlTextWriterStartElement(escritor_.get(), Xml(nombre)));
}

void EscritorXml::Cierra() {
    Comprueba(xmlTextWriterEndElement(escritor_.get()));
}

void EscritorXml::Hijo(const char* nombre, std::string_view texto) {
    Abre(nombre);
    if (EsLlano(texto))
        texto_ = texto;
    else
        texto_ = TextoDeXml(texto);
    if (!texto_.empty()) Comprueba(xmlTextWriterWriteString(escritor_.get(), Xml(texto_.c_str())));
    Cierra();
}

void EscritorXml::Salto() {
    Comprueba(xmlTextWriterWriteString(escritor_.get(), Xml("\n")));
}

void EscritorXml::Guarda(const std::string& nombreArchivo) {
    if (!acabado_) Comprueba(xmlTextWriterEndDocument(escritor_.get()));
    acabado_ = true;
    EscribeArchivo(nombreArchivo, {reinterpret_cast<const char*>(xmlBufferContent(memoria_.get())),
                                   static_cast<std::size_t>(xmlBufferLength(memoria_.get()))});
}

}  // namespace zel
