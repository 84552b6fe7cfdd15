#include "platform/DocumentoXml.h"

#include <libxml/parser.h>
#include <libxml/parserInternals.h>

#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <utility>

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

// More elements than the largest schematic with long traces would have; it bounds the memory of a load.
constexpr std::int64_t MAXIMO_DE_ELEMENTOS = 8'000'000;

// One parse: its first failure, and what the parser's callbacks need.
struct Analisis {
    std::string motivo;
    std::int64_t elementos = 0;

    void Falla(std::string porQue) {
        if (motivo.empty()) motivo = std::move(porQue);
    }
};

Analisis& AnalisisDe(void* contexto) {
    return *static_cast<Analisis*>(static_cast<xmlParserCtxt*>(contexto)->_private);
}

void Detiene(void* contexto, const char* motivo) {
    AnalisisDe(contexto).Falla(motivo);
    xmlStopParser(static_cast<xmlParserCtxt*>(contexto));
}

// Called when the document type has been read and before its internal subset is, if there is one: the
// parser stops here, before any entity is declared.
void AlDeclararTipo(void* contexto, const xmlChar* nombre, const xmlChar* idPublico,
                    const xmlChar* idSistema) {
    xmlSAX2InternalSubset(contexto, nombre, idPublico, idSistema);
    const xmlParserInput* entrada = static_cast<xmlParserCtxt*>(contexto)->input;
    if (entrada && *entrada->cur == '[') {
        Detiene(contexto, "el documento declara tipos o entidades propios, que no se admiten");
    }
}

void AlEmpezarElemento(void* contexto, const xmlChar* nombre, const xmlChar* prefijo, const xmlChar* uri,
                       int espacios, const xmlChar** losEspacios, int atributos, int porDefecto,
                       const xmlChar** losAtributos) {
    if (++AnalisisDe(contexto).elementos > MAXIMO_DE_ELEMENTOS) {
        Detiene(contexto, "el documento es demasiado grande");
        return;
    }
    xmlSAX2StartElementNs(contexto, nombre, prefijo, uri, espacios, losEspacios, atributos, porDefecto,
                          losAtributos);
}

const char* PorQue(int codigo) noexcept {
    switch (codigo) {
        case XML_ERR_DOCUMENT_EMPTY:
            return "está vacío o no empieza como un documento XML";
        case XML_ERR_DOCUMENT_END:
            return "hay contenido detrás del elemento raíz";
        case XML_ERR_TAG_NAME_MISMATCH:
            return "una etiqueta de cierre no corresponde a la de apertura";
        case XML_ERR_TAG_NOT_FINISHED:
        case XML_ERR_GT_REQUIRED:
        case XML_ERR_LTSLASH_REQUIRED:
            return "una etiqueta está sin cerrar";
        case XML_ERR_INVALID_CHAR:
        case XML_ERR_INVALID_ENCODING:
        case XML_ERR_UNKNOWN_ENCODING:
        case XML_I18N_CONV_FAILED:
            return "hay caracteres que no son de la codificación declarada";
        case XML_ERR_UNSUPPORTED_ENCODING:
            return "la codificación declarada no se conoce";
        case XML_ERR_UNDECLARED_ENTITY:
        case XML_WAR_UNDECLARED_ENTITY:
            return "se usa una entidad sin declarar";
        case XML_ERR_NO_MEMORY:
        case XML_ERR_INTERNAL_ERROR:
            return "un texto es demasiado largo o hay demasiados niveles";
        default:
            return "la sintaxis no es correcta";
    }
}

// Everything that the parser reports, instead of its own words on the standard error stream. Warnings are
// no reason to refuse a document, save the entity that would vanish from it.
void AlFallar(void* analisis, xmlErrorPtr error) {
    if (error->level < XML_ERR_ERROR && error->code != XML_WAR_UNDECLARED_ENTITY) return;
    const std::string donde = error->line > 0 ? "en la línea " + std::to_string(error->line) + ", " : "";
    static_cast<Analisis*>(analisis)->Falla("el XML no está bien formado: " + donde + PorQue(error->code));
}

// Installs the handler of failures for this thread while it lives: some of them reach no parser's own one.
class EscuchaFallos {
  public:
    explicit EscuchaFallos(Analisis& analisis)
        : contexto_(xmlStructuredErrorContext), funcion_(xmlStructuredError) {
        xmlSetStructuredErrorFunc(&analisis, AlFallar);
    }
    EscuchaFallos(const EscuchaFallos&) = delete;
    EscuchaFallos& operator=(const EscuchaFallos&) = delete;
    ~EscuchaFallos() { xmlSetStructuredErrorFunc(contexto_, funcion_); }

  private:
    void* contexto_;
    xmlStructuredErrorFunc funcion_;
};

// "UTF-8" when the file begins with that encoding's byte order mark, which then outweighs the declaration
// and is left behind; null otherwise.
const char* CodificacionDeLaMarca(std::FILE* archivo) noexcept {
    char inicio[3] = {};
    const bool marca =
        std::fread(inicio, 1, 3, archivo) == 3 && std::string_view(inicio, 3) == "\xEF\xBB\xBF";
    if (marca) return "UTF-8";
    std::rewind(archivo);
    return nullptr;
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
    Analisis analisis;
    const EscuchaFallos escucha(analisis);
    contexto->_private = &analisis;
    contexto->sax->internalSubset = AlDeclararTipo;
    contexto->sax->startElementNs = AlEmpezarElemento;
    constexpr int OPCIONES = XML_PARSE_NONET | XML_PARSE_COMPACT;
    documento_.reset(xmlCtxtReadIO(contexto.get(), LeeTrozo, nullptr, archivo.get(), nullptr,
                                   CodificacionDeLaMarca(archivo.get()), OPCIONES));
    if (std::ferror(archivo.get()) != 0) {
        motivo_ = Fallo(75).Description();
    } else if (!documento_ || !contexto->wellFormed || !analisis.motivo.empty()) {
        motivo_ = analisis.motivo.empty() ? "no es un documento XML" : analisis.motivo;
    }
    if (!motivo_.empty()) documento_.reset();
    return documento_ != nullptr;
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
