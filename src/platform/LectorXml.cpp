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
#include <exception>
#include <initializer_list>
#include <iterator>
#include <memory>
#include <tuple>
#include <utility>

#include "platform/CuentaAtributos.h"
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

// The parser looks names up in a table that stops growing, and namespaces one by one: both are bounded. The
// format has some sixty names, and no namespaces.
constexpr int MAXIMO_DE_NOMBRES = 20000;
constexpr int MAXIMO_DE_ESPACIOS = 256;
// Families of encodings with ASCII for their first half.
constexpr std::string_view ANTES_DE_SU_NUMERO[] = {"ISO8859", "LATIN", "ISOLATIN", "WINDOWS125", "CP125"};
constexpr const char* DEMASIADOS_ATRIBUTOS = "una etiqueta tiene demasiados atributos";

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
    UnidadXml unidad;
    CuentaAtributos atributos{unidad};
    const Vocabulario* vocabulario = nullptr;
    bool conMarcaUtf8 = false;  // what is declared does not count then
    std::string motivo{};
    std::exception_ptr excepcion{};  // the listener's

    void Falla(std::string porQue) {
        if (motivo.empty()) motivo = std::move(porQue);
    }
    bool Acabado() const noexcept { return excepcion || !motivo.empty(); }
};

Analisis& AnalisisDe(void* contexto) {
    return *static_cast<Analisis*>(static_cast<xmlParserCtxt*>(contexto)->_private);
}

// What will not be accepted is not read any further: of some failures the parser makes little.
int LeeTrozo(void* analisis, char* destino, int cuanto) {
    auto& a = *static_cast<Analisis*>(analisis);
    if (a.Acabado()) return -1;
    const std::size_t leido = std::fread(destino, 1, static_cast<std::size_t>(cuanto), a.archivo);
    if (leido == 0 && std::ferror(a.archivo) != 0) return -1;
    if (a.atributos.Mira({destino, leido})) return static_cast<int>(leido);
    a.Falla(DEMASIADOS_ATRIBUTOS);
    return -1;
}

void Detiene(void* contexto, const char* motivo) {
    AnalisisDe(contexto).Falla(motivo);
    xmlStopParser(static_cast<xmlParserCtxt*>(contexto));
}

// What the listener raises must not cross the parser: it waits until that has come back.
template <typename Accion>
void Avisa(void* contexto, Accion accion) noexcept {
    Analisis& a = AnalisisDe(contexto);
    if (a.Acabado()) return;
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

// Whether it is an encoding in which the attributes can be counted: with ASCII for its first half, or of the
// two bytes that the file begins with (which then hold, whatever is declared). Names are written in many
// ways.
bool SeAdmite(std::string_view declarada, UnidadXml unidad) {
    std::string codificacion;
    for (const char c : declarada) {
        if (c == '-' || c == '_') continue;
        codificacion += c >= 'a' && c <= 'z' ? static_cast<char>(c - ('a' - 'A')) : c;
    }
    const auto es = [&](std::initializer_list<std::string_view> nombres) {
        return std::find(nombres.begin(), nombres.end(), codificacion) != nombres.end();
    };
    if (unidad != UnidadXml::Byte) {
        return es(
            {"UTF16", "UTF8", "UCS2", "ISO10646UCS2", unidad == UnidadXml::Utf16Le ? "UTF16LE" : "UTF16BE"});
    }
    if (es({"UTF8", "ASCII", "USASCII", "CP850", "IBM850", "MACINTOSH"})) return true;
    return std::any_of(std::begin(ANTES_DE_SU_NUMERO), std::end(ANTES_DE_SU_NUMERO),
                       [&](std::string_view principio) { return codificacion.starts_with(principio); });
}

void AlEmpezarDocumento(void* contexto) {
    if (AnalisisDe(contexto).conMarcaUtf8) return;
    const auto* c = static_cast<xmlParserCtxt*>(contexto);
    for (const xmlChar* declarada : {c->encoding, c->input ? c->input->encoding : nullptr}) {
        if (!declarada) continue;
        if (!SeAdmite(reinterpret_cast<const char*>(declarada), AnalisisDe(contexto).unidad))
            Detiene(contexto, "la codificación declarada no se admite: guárdelo en UTF-8");
    }
}

void AlEmpezarElemento(void* contexto, const xmlChar* nombre, const xmlChar* prefijo, const xmlChar*, int,
                       const xmlChar**, int atributos, int, const xmlChar**) {
    MiraLosNombres(contexto);
    if (atributos > CuentaAtributos::MAXIMO) Detiene(contexto, DEMASIADOS_ATRIBUTOS);
    // Two entries for each that is in scope, this element's among them.
    if (static_cast<xmlParserCtxt*>(contexto)->nsNr / 2 > MAXIMO_DE_ESPACIOS)
        Detiene(contexto, "el documento usa demasiados espacios de nombres");
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
            return "se usa una entidad sin declarar";
        case XML_ERR_NO_MEMORY:
        case XML_ERR_INTERNAL_ERROR:
            return "un texto es demasiado largo o hay demasiados niveles";
        default:
            return "la sintaxis no es correcta";
    }
}

void NoEstaBienFormado(Analisis& a, int codigo, int linea) {
    const std::string donde = linea > 0 ? "en la línea " + std::to_string(linea) + ", " : "";
    a.Falla("el XML no está bien formado: " + donde + PorQue(codigo));
}

// Everything that the parser reports, instead of its own words on the standard error stream. Warnings are
// no reason to refuse a document.
void AlFallar(void* analisis, xmlErrorPtr error) {
    if (error->level < XML_ERR_ERROR) return;
    NoEstaBienFormado(*static_cast<Analisis*>(analisis), error->code, error->line);
}

// XML's own five do not come here, and no document may declare others: this one would vanish from it.
xmlEntity* AlPedirEntidad(void* contexto, const xmlChar*) {
    auto* c = static_cast<xmlParserCtxt*>(contexto);
    NoEstaBienFormado(AnalisisDe(contexto), XML_ERR_UNDECLARED_ENTITY, c->input ? c->input->line : 0);
    xmlStopParser(c);
    return nullptr;
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

// What a file begins with. Anything else than the one mark and the other two forms is no XML that the parser
// is asked about: it knows encodings in which the attributes could not be counted.
struct Principio {
    UnidadXml unidad = UnidadXml::Byte;
    const char* codificacion = nullptr;  // a UTF-8 byte order mark outweighs what is declared
    bool esXml = false;
};

Principio LeePrincipio(std::FILE* archivo) noexcept {
    using namespace std::string_view_literals;
    char bytes[5] = {};
    const std::string_view inicio(bytes, std::fread(bytes, 1, sizeof bytes, archivo));
    std::rewind(archivo);
    for (const auto& [unidad, marca, sinMarca] : {std::tuple(UnidadXml::Utf16Le, "\xFF\xFE"sv, "<\0?\0"sv),
                                                  std::tuple(UnidadXml::Utf16Be, "\xFE\xFF"sv, "\0<\0?"sv)})
        if (inicio.starts_with(marca) || inicio.starts_with(sinMarca)) return {unidad, nullptr, true};
    const bool conMarca = inicio.starts_with("\xEF\xBB\xBF");
    const std::string_view texto = inicio.substr(conMarca ? 3 : 0);
    const bool esXml = !texto.empty() && "< \t\r\n"sv.find(texto[0]) != std::string_view::npos &&
                       !texto.substr(0, 2).ends_with('\0');
    if (conMarca) std::fseek(archivo, 3, SEEK_SET);
    return {UnidadXml::Byte, conMarca ? "UTF-8" : nullptr, esXml};
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
    sax.startDocument = AlEmpezarDocumento;
    sax.internalSubset = AlDeclararTipo;
    sax.getEntity = AlPedirEntidad;
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
    const Principio principio = LeePrincipio(archivo.get());
    Analisis analisis{archivo.get(), oyente, principio.unidad};
    if (!principio.esXml) {
        NoEstaBienFormado(analisis, XML_ERR_DOCUMENT_EMPTY, 0);
        motivo_ = analisis.motivo;
        return false;
    }
    const Vocabulario vocabulario(vocabulario_, contexto->dict);
    analisis.vocabulario = &vocabulario;
    analisis.conMarcaUtf8 = principio.codificacion != nullptr;
    const EscuchaFallos escucha(analisis);
    contexto->_private = &analisis;
    PonLlamadas(*contexto->sax);
    xmlFreeDoc(xmlCtxtReadIO(contexto.get(), LeeTrozo, nullptr, &analisis, nullptr, principio.codificacion,
                             XML_PARSE_NONET | (analisis.conMarcaUtf8 ? XML_PARSE_IGNORE_ENC : 0)));
    if (analisis.excepcion) std::rethrow_exception(analisis.excepcion);
    if (std::ferror(archivo.get()) != 0)
        motivo_ = Fallo(75).Description();
    else if (!analisis.motivo.empty())
        motivo_ = analisis.motivo;
    else if (!contexto->wellFormed)
        motivo_ = "no es un documento XML";
    return motivo_.empty();
}

}  // namespace zel
