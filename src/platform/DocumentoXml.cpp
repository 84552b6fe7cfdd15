#include "platform/DocumentoXml.h"

#include <libxml/parser.h>
#include <libxml/parserInternals.h>

#include <cerrno>
#include <cstdio>

#include "platform/Fallo.h"

namespace zel {

namespace {

struct CierraArchivo {
    void operator()(std::FILE* archivo) const noexcept { std::fclose(archivo); }
};
struct SueltaContexto {
    void operator()(xmlParserCtxt* contexto) const noexcept { xmlFreeParserCtxt(contexto); }
};

int LeeTrozo(void* archivo, char* destino, int cuanto) {
    auto* f = static_cast<std::FILE*>(archivo);
    const std::size_t leido = std::fread(destino, 1, static_cast<std::size_t>(cuanto), f);
    return leido == 0 && std::ferror(f) != 0 ? -1 : static_cast<int>(leido);
}

// Called when the document type has been read and before its internal subset is, if there is one: the
// parser stops here, before any entity is declared.
void AlDeclararTipo(void* ctxt, const xmlChar* nombre, const xmlChar* idPublico, const xmlChar* idSistema) {
    auto* contexto = static_cast<xmlParserCtxt*>(ctxt);
    xmlSAX2InternalSubset(ctxt, nombre, idPublico, idSistema);
    if (contexto->input && *contexto->input->cur == '[') {
        *static_cast<bool*>(contexto->_private) = true;
        xmlStopParser(contexto);
    }
}

std::string MotivoDelAnalizador(const xmlError* error) {
    if (!error || error->code == XML_ERR_OK) return "no es un documento XML";
    std::string motivo = "el XML no está bien formado (línea " + std::to_string(error->line) + ": ";
    motivo += error->message ? error->message : "error desconocido";
    while (!motivo.empty() && motivo.back() == '\n')
        motivo.pop_back();
    return motivo + ")";
}

}  // namespace

bool DocumentoXml::Carga(const std::string& nombreArchivo) {
    documento_.reset();
    motivo_.clear();
    const std::unique_ptr<std::FILE, CierraArchivo> archivo(std::fopen(nombreArchivo.c_str(), "rb"));
    if (!archivo) {
        motivo_ = Fallo(NumeroDeErrno(errno)).Description();
        return false;
    }
    const std::unique_ptr<xmlParserCtxt, SueltaContexto> contexto(xmlNewParserCtxt());
    if (!contexto) throw Fallo(7);
    bool conSubconjunto = false;
    contexto->_private = &conSubconjunto;
    contexto->sax->internalSubset = AlDeclararTipo;
    constexpr int OPCIONES = XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING | XML_PARSE_COMPACT;
    documento_.reset(
        xmlCtxtReadIO(contexto.get(), LeeTrozo, nullptr, archivo.get(), nullptr, nullptr, OPCIONES));
    if (documento_ && contexto->wellFormed && !conSubconjunto && std::ferror(archivo.get()) == 0) return true;
    documento_.reset();
    if (std::ferror(archivo.get()) != 0) {
        motivo_ = Fallo(75).Description();
    } else if (conSubconjunto) {
        motivo_ = "el documento declara entidades o tipos propios, que no se admiten";
    } else {
        motivo_ = MotivoDelAnalizador(xmlCtxtGetLastError(contexto.get()));
    }
    return false;
}

const xmlChar* DocumentoXml::Nombre(const char* nombre) const noexcept {
    if (!documento_ || !documento_->dict) return nullptr;
    return xmlDictExists(documento_->dict, reinterpret_cast<const xmlChar*>(nombre), -1);
}

std::string_view TextoDe(const xmlNode* elemento, std::string& memoria) {
    const auto esTexto = [](const xmlNode* n) {
        return n->type == XML_TEXT_NODE || n->type == XML_CDATA_SECTION_NODE;
    };
    const xmlNode* hijo = elemento->children;
    if (!hijo) return {};
    if (!hijo->next && esTexto(hijo)) return reinterpret_cast<const char*>(hijo->content);
    memoria.clear();
    for (const xmlNode* nodo = SiguienteNodo(elemento, elemento); nodo;
         nodo = SiguienteNodo(nodo, elemento)) {
        if (esTexto(nodo)) memoria += reinterpret_cast<const char*>(nodo->content);
    }
    return memoria;
}

}  // namespace zel
