#include "platform/LectorXml.h"

#include <fcntl.h>
#include <libxml/parser.h>
#include <libxml/parserInternals.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <exception>
#include <memory>
#include <utility>

#include "platform/Fallo.h"

namespace zel {

namespace {

struct CierraArchivo {
    void operator()(std::FILE* archivo) const noexcept { std::fclose(archivo); }
};
using Archivo = std::unique_ptr<std::FILE, CierraArchivo>;
struct SueltaContexto {
    void operator()(xmlParserCtxt* contexto) const noexcept { xmlFreeParserCtxt(contexto); }
};

// The parser compares each attribute of an element with all the others, and looks names up in a table that
// stops growing: both are bounded. The format has no attributes, and some sixty names.
constexpr int MAXIMO_DE_ATRIBUTOS = 256;
constexpr int MAXIMO_DE_NOMBRES = 20000;

// Counts the attributes of a tag as the bytes go by, in any encoding in which the characters of a tag are
// their ASCII bytes, with or without zeros between.
class Atributos {
  public:
    // False when a tag has too many.
    bool Mira(std::string_view trozo) noexcept {
        for (std::size_t i = 0; i < trozo.size(); ++i) {
            if (donde_ == Donde::Texto) {
                const void* abre = std::memchr(trozo.data() + i, '<', trozo.size() - i);
                if (!abre) return true;
                i = static_cast<std::size_t>(static_cast<const char*>(abre) - trozo.data());
                donde_ = Donde::Abierta;
                cuantos_ = 0;
                ultimos_ = {};
            } else if (trozo[i] != '\0' && !Sigue(trozo[i])) {
                return false;
            }
        }
        return true;
    }

  private:
    enum class Donde { Texto, Abierta, Etiqueta, Comillas, Declaracion, Comentario, Cdata, Instruccion };

    bool Sigue(char c) noexcept {
        switch (donde_) {
            case Donde::Abierta:
                donde_ = c == '!' ? Donde::Declaracion : c == '?' ? Donde::Instruccion : Donde::Etiqueta;
                return true;
            case Donde::Etiqueta:
                if (c == '"' || c == '\'') {
                    comilla_ = c;
                    donde_ = Donde::Comillas;
                } else if (c == '>') {
                    donde_ = Donde::Texto;
                } else if (c == '=') {
                    return ++cuantos_ <= MAXIMO_DE_ATRIBUTOS;
                }
                return true;
            case Donde::Comillas:
                if (c == comilla_) donde_ = Donde::Etiqueta;
                return true;
            case Donde::Declaracion:
                if (c == '>') donde_ = Donde::Texto;
                if (c == '[') donde_ = Donde::Cdata;
                if (c == '-' && ultimos_.back() == '-') {
                    donde_ = Donde::Comentario;
                    c = '\0';
                }
                break;
            case Donde::Comentario:
                if (c == '>' && Acaba("--")) donde_ = Donde::Texto;
                break;
            case Donde::Cdata:
                if (c == '>' && Acaba("]]")) donde_ = Donde::Texto;
                break;
            case Donde::Instruccion:
                if (c == '>' && ultimos_.back() == '?') donde_ = Donde::Texto;
                break;
            case Donde::Texto:
                break;
        }
        ultimos_ = {ultimos_.back(), c};
        return true;
    }
    bool Acaba(std::string_view con) const noexcept { return std::string_view(ultimos_.data(), 2) == con; }

    Donde donde_ = Donde::Texto;
    char comilla_ = 0;
    int cuantos_ = 0;
    std::array<char, 2> ultimos_{};
};

// The vocabulary by the parser's own copies of its names.
class Vocabulario {
  public:
    Vocabulario(std::span<const char* const> nombres, xmlDict* diccionario) {
        std::int32_t numero = 0;
        for (const char* nombre : nombres) {
            const xmlChar* propio = xmlDictLookup(diccionario, reinterpret_cast<const xmlChar*>(nombre), -1);
            if (!propio) throw Fallo(7);
            std::size_t i = Lugar(propio);
            while (casillas_[i].nombre)
                i = (i + 1) % CASILLAS;
            casillas_[i] = {propio, numero++};
        }
    }
    std::int32_t NumeroDe(const xmlChar* nombre) const noexcept {
        std::size_t i = Lugar(nombre);
        while (casillas_[i].nombre && casillas_[i].nombre != nombre)
            i = (i + 1) % CASILLAS;
        return casillas_[i].numero;
    }

  private:
    static constexpr std::size_t CASILLAS = 256;  // a power of two, several times as many as there are names
    struct Casilla {
        const xmlChar* nombre = nullptr;
        std::int32_t numero = -1;
    };
    static std::size_t Lugar(const xmlChar* nombre) noexcept {
        return (reinterpret_cast<std::uintptr_t>(nombre) * 0x9E3779B97F4A7C15U >> 32U) % CASILLAS;
    }
    std::array<Casilla, CASILLAS> casillas_;
};

// One reading: its first failure, and what the parser's callbacks need.
struct Analisis {
    std::FILE* archivo;
    OyenteXml& oyente;
    const Vocabulario* vocabulario = nullptr;
    Atributos atributos;
    bool demasiadosAtributos = false;
    std::string motivo;
    std::exception_ptr excepcion;  // the listener's

    void Falla(std::string porQue) {
        if (motivo.empty()) motivo = std::move(porQue);
    }
};

Analisis& AnalisisDe(void* contexto) {
    return *static_cast<Analisis*>(static_cast<xmlParserCtxt*>(contexto)->_private);
}

int LeeTrozo(void* analisis, char* destino, int cuanto) {
    auto& a = *static_cast<Analisis*>(analisis);
    const std::size_t leido = std::fread(destino, 1, static_cast<std::size_t>(cuanto), a.archivo);
    if (leido == 0 && std::ferror(a.archivo) != 0) return -1;
    a.demasiadosAtributos = a.demasiadosAtributos || !a.atributos.Mira({destino, leido});
    return a.demasiadosAtributos ? -1 : static_cast<int>(leido);
}

void Detiene(void* contexto, const char* motivo) {
    AnalisisDe(contexto).Falla(motivo);
    xmlStopParser(static_cast<xmlParserCtxt*>(contexto));
}

// What the listener raises must not cross the parser: it waits until that has come back.
template <typename Accion>
void Avisa(void* contexto, Accion accion) noexcept {
    Analisis& a = AnalisisDe(contexto);
    if (a.excepcion || !a.motivo.empty()) return;
    try {
        accion(a);
        return;
    } catch (DocumentoRechazado& rechazo) {
        a.Falla(std::move(rechazo.motivo));
    } catch (...) {
        a.excepcion = std::current_exception();
    }
    xmlStopParser(static_cast<xmlParserCtxt*>(contexto));
}

void MiraLosNombres(void* contexto) {
    if (xmlDictSize(static_cast<xmlParserCtxt*>(contexto)->dict) > MAXIMO_DE_NOMBRES) {
        Detiene(contexto, "el documento usa demasiados nombres distintos");
    }
}

void AlEmpezarElemento(void* contexto, const xmlChar* nombre, const xmlChar* prefijo, const xmlChar*, int,
                       const xmlChar**, int, int, const xmlChar**) {
    MiraLosNombres(contexto);
    Avisa(contexto, [&](Analisis& a) {
        a.oyente.AlAbrir(prefijo ? -1 : a.vocabulario->NumeroDe(nombre),
                         reinterpret_cast<const char*>(nombre));
    });
}

void AlAcabarElemento(void* contexto, const xmlChar*, const xmlChar*, const xmlChar*) {
    Avisa(contexto, [](Analisis& a) { a.oyente.AlCerrar(); });
}

void AlLeerTexto(void* contexto, const xmlChar* texto, int largo) {
    Avisa(contexto, [&](Analisis& a) {
        a.oyente.AlTexto({reinterpret_cast<const char*>(texto), static_cast<std::size_t>(largo)});
    });
}

void AlLeerInstruccion(void* contexto, const xmlChar*, const xmlChar*) {
    MiraLosNombres(contexto);
}

// Called when the document type has been read and before its internal subset is, if there is one: the
// parser stops here, before any entity is declared.
void AlDeclararTipo(void* contexto, const xmlChar*, const xmlChar*, const xmlChar*) {
    const xmlParserInput* entrada = static_cast<xmlParserCtxt*>(contexto)->input;
    if (entrada && *entrada->cur == '[') {
        Detiene(contexto, "el documento declara tipos o entidades propios, que no se admiten");
    }
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
    auto& a = *static_cast<Analisis*>(analisis);
    if (a.demasiadosAtributos) {
        a.Falla("una etiqueta tiene demasiados atributos");
        return;
    }
    const std::string donde = error->line > 0 ? "en la línea " + std::to_string(error->line) + ", " : "";
    a.Falla("el XML no está bien formado: " + donde + PorQue(error->code));
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

// A pipe would keep whoever opens it waiting, for ever perhaps.
Archivo AbreArchivo(const std::string& nombre, std::string& motivo) {
    const int fd = open(nombre.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
    struct stat estado {};
    if (fd < 0 || fstat(fd, &estado) != 0) {
        motivo = Fallo(NumeroDeErrno(errno)).Description();
    } else if (!S_ISREG(estado.st_mode)) {
        motivo = S_ISDIR(estado.st_mode) ? "es una carpeta"
                                         : "no es un archivo, sino una tubería o un dispositivo";
    } else {
        return Archivo(fdopen(fd, "rb"));
    }
    if (fd >= 0) close(fd);
    return nullptr;
}

void PonLlamadas(xmlSAXHandler& sax) noexcept {
    sax = {};
    sax.initialized = XML_SAX2_MAGIC;
    sax.internalSubset = AlDeclararTipo;
    sax.startElementNs = AlEmpezarElemento;
    sax.endElementNs = AlAcabarElemento;
    sax.characters = AlLeerTexto;
    sax.ignorableWhitespace = AlLeerTexto;
    sax.cdataBlock = AlLeerTexto;
    sax.processingInstruction = AlLeerInstruccion;
}

}  // namespace

bool LectorXml::Lee(const std::string& nombreArchivo, OyenteXml& oyente) {
    motivo_.clear();
    const Archivo archivo = AbreArchivo(nombreArchivo, motivo_);
    if (!archivo) return false;
    const std::unique_ptr<xmlParserCtxt, SueltaContexto> contexto(xmlNewParserCtxt());
    if (!contexto) throw Fallo(7);
    Analisis analisis{archivo.get(), oyente, nullptr, {}, false, {}, nullptr};
    const Vocabulario vocabulario(vocabulario_, contexto->dict);
    analisis.vocabulario = &vocabulario;
    const EscuchaFallos escucha(analisis);
    contexto->_private = &analisis;
    PonLlamadas(*contexto->sax);
    xmlFreeDoc(xmlCtxtReadIO(contexto.get(), LeeTrozo, nullptr, &analisis, nullptr,
                             CodificacionDeLaMarca(archivo.get()), XML_PARSE_NONET));
    if (analisis.excepcion) std::rethrow_exception(analisis.excepcion);
    if (analisis.demasiadosAtributos) analisis.Falla("una etiqueta tiene demasiados atributos");
    if (std::ferror(archivo.get()) != 0)
        motivo_ = Fallo(75).Description();
    else if (!analisis.motivo.empty())
        motivo_ = analisis.motivo;
    else if (!contexto->wellFormed)
        motivo_ = "no es un documento XML";
    return motivo_.empty();
}

}  // namespace zel
