// The writing half of lectorArchivo, and the sections beside the elements.

#include "file/Conversion.h"
#include "file/lectorArchivo.h"
#include "platform/Archivos.h"
#include "platform/Numeros.h"
#include "platform/ReemplazoDeArchivo.h"

namespace zel {

namespace {

constexpr const char* ESQUELETO =
    "<?xml version=\"1.0\" encoding=\"ISO-8859-1\" ?>\r\n<Esquema><Elementos></Elementos></Esquema>";

std::string Texto(std::int32_t valor) {
    return TextoDeNumero(valor);
}
std::string Texto(float valor) {
    return TextoDeNumero(valor);
}
std::string Texto(bool valor) {
    return Texto(std::int32_t{B2I(valor)});
}
std::string TextoDeBooleano(bool valor) {
    return Variante(valor).Texto();
}

struct EscrituraHijo {
    Hijo hijo;
    std::string (*texto)(const Elemento&);
};

// In the order of the file.
constexpr EscrituraHijo HIJOS_COMUNES[] = {
    {Hijo::ColorIcono, [](const Elemento& e) { return Texto(e.ColorIcono()); }},
    {Hijo::ConecSec1, [](const Elemento& e) { return Texto(e.ConecSec1()); }},
    {Hijo::ConecSec2, [](const Elemento& e) { return Texto(e.ConecSec2()); }},
    {Hijo::TextoGiro, [](const Elemento& e) { return Texto(e.EtiquetaGiro()); }},
    {Hijo::NombrePosX, [](const Elemento& e) { return Texto(e.EtiquetaPosX()); }},
    {Hijo::NombrePosY, [](const Elemento& e) { return Texto(e.EtiquetaPosY()); }},
    {Hijo::NombreTamanyo, [](const Elemento& e) { return Texto(e.EtiquetaTamanyo()); }},
    {Hijo::gfCodSig, [](const Elemento& e) { return Texto(e.gfCodSIG()); }},
    {Hijo::NumUser, [](const Elemento& e) { return Texto(std::int32_t{e.KeyPant()}); }},
    {Hijo::Nombre, [](const Elemento& e) { return e.Nombre(); }},
    {Hijo::Tamanyo, [](const Elemento& e) { return Texto(e.Tamanyo()); }},
    {Hijo::Tipo,
     [](const Elemento& e) {
         return Texto(std::int32_t{CODIGOS_DE_TIPO[static_cast<std::size_t>(e.Tipo())]});
     }},
    {Hijo::Valor, [](const Elemento& e) { return Texto(e.Valor()); }},
    {Hijo::posX, [](const Elemento& e) { return Texto(e.XPos()); }},
    {Hijo::posY, [](const Elemento& e) { return Texto(e.YPos()); }},
    {Hijo::NombreMovido, [](const Elemento& e) { return Texto(e.EtiquetaMovida()); }},
    {Hijo::NomTamRelativo, [](const Elemento& e) { return Texto(e.EtiquetaTamanyoRelativo()); }},
    {Hijo::VerNombre, [](const Elemento& e) { return Texto(e.MostrarEtiqueta()); }},
};

constexpr EscrituraHijo HIJOS_LINEALES[] = {
    {Hijo::ColorLinea, [](const Elemento& e) { return Texto(e.ColorLinea()); }},
    {Hijo::NudoDestino, [](const Elemento& e) { return Texto(e.ElemFin()); }},
    {Hijo::NudoOrigen, [](const Elemento& e) { return Texto(e.ElemIni()); }},
};

// The first descendant of that name, or null.
xmlNode* BuscaPrimero(const DocumentoXml& documento, xmlNode* cima, const char* nombre) {
    const xmlChar* propio = documento.Nombre(nombre);
    if (!propio || !cima) return nullptr;
    xmlNode* nodo = SiguienteElemento(cima, cima);
    while (nodo && nodo->name != propio)
        nodo = SiguienteElemento(nodo, cima);
    return nodo;
}

// True when a separator stands at the second character or later.
bool TieneCarpeta(const std::string& ruta) {
    return ruta.find_first_of("\\/", 1) != std::string::npos;
}

}  // namespace

std::optional<Coleccion<std::string>> lectorArchivo::LeeSeccion(const char* seccion,
                                                                std::span<const char* const> hijos) {
    DocumentoXml documento;
    if (!documento.Carga(nombreArchivo_)) return std::nullopt;
    xmlNode* const nodo = BuscaPrimero(documento, documento.Raiz(), seccion);
    if (!nodo) return std::nullopt;
    zel::Coleccion<std::string> textos;
    std::string memoria;
    for (const char* hijo : hijos) {
        const xmlNode* valor = BuscaPrimero(documento, nodo, hijo);
        if (!valor) break;
        textos.Add(std::string(TextoDe(valor, memoria)), hijo);
    }
    return textos;
}

std::optional<Coleccion<std::string>> lectorArchivo::LeeImagenFondo() {
    auto textos = LeeSeccion(SECCION_IMAGEN, HIJOS_DE_IMAGEN);
    if (!textos || textos->Count() == 0) return textos;
    // The file name is stored without its folder, which is the document's.
    zel::Coleccion<std::string> conCarpeta;
    std::size_t i = 0;
    for (const std::string& texto : *textos) {
        conCarpeta.Add(i == 0 ? ParteRuta(nombreArchivo_).carpeta + texto : texto, HIJOS_DE_IMAGEN[i]);
        ++i;
    }
    return conCarpeta;
}

std::optional<Coleccion<std::string>> lectorArchivo::LeeConfiguracion() {
    return LeeSeccion(SECCION_CONFIGURACION, std::span(&VER_LINEAS_SECUNDARIAS, 1));
}

bool lectorArchivo::NuevoDocumento() {
    if (!documento_.Analiza(ESQUELETO)) return false;
    xmlNode* const elementos = BuscaPrimero(documento_, documento_.Raiz(), "Elementos");
    contenedores_.fill(nullptr);
    for (std::size_t i = 1; i < NOMBRES_DE_CONTENEDOR.size(); ++i) {
        contenedores_[i] = documento_.Agrega(elementos, NOMBRES_DE_CONTENEDOR[i]);
    }
    documento_.Guarda(nombreArchivo_);
    return true;
}

bool lectorArchivo::GuardaEsquema() {
    posicionSinGuardar_ = 0;
    if (!NuevoDocumento()) return false;
    std::int32_t posicion = 0;
    for (const auto& e : *coleccion_) {
        ++posicion;
        if (GuardaElemento(*e)) continue;
        posicionSinGuardar_ = posicion;
        return false;
    }
    return true;
}

bool lectorArchivo::GuardaElemento(const Elemento& e) {
    try {
        xmlNode* const contenedor = contenedores_[ContenedorDe(e.Tipo())];
        if (!contenedor) throw Fallo(91);
        xmlNode* const elemento = documento_.Agrega(contenedor, NombreDe(Hijo::Elemento));
        for (const auto& hijo : HIJOS_COMUNES)
            AgregaNodo(elemento, NombreDe(hijo.hijo), hijo.texto(e));
        documento_.AgregaSalto(contenedor);
        if (!EsLineal(e.Tipo())) return true;
        for (const auto& hijo : HIJOS_LINEALES)
            AgregaNodo(elemento, NombreDe(hijo.hijo), hijo.texto(e));
        GuardaLinea(elemento, e.Trazado().get());
        if (e.Tipo() == ctCentralHidroelectrica) GuardaLinea(elemento, e.Trazado2().get());
        return true;
    } catch (...) {
        return false;
    }
}

void lectorArchivo::GuardaLinea(xmlNode* elemento, const Puntos* trazado) {
    if (!trazado) throw Fallo(91);
    xmlNode* const linea = documento_.Agrega(elemento, NombreDe(Hijo::Linea));
    for (const auto& vertice : *trazado) {
        xmlNode* const punto = documento_.Agrega(linea, NombreDe(Hijo::Punto));
        AgregaNodo(punto, NombreDe(Hijo::X), Texto(vertice->XPos()));
        AgregaNodo(punto, NombreDe(Hijo::Y), Texto(vertice->YPos()));
    }
}

xmlNode* lectorArchivo::AgregaNodo(xmlNode* padre, const char* nombre, std::string_view texto) {
    return documento_.Agrega(padre, nombre, texto);
}

// The section of the document being written, a new one when it has none.
xmlNode* lectorArchivo::Seccion(const char* nombre) {
    if (!documento_) throw Fallo(91);
    xmlNode* const seccion = BuscaPrimero(documento_, documento_.Raiz(), nombre);
    return seccion ? seccion : documento_.Agrega(documento_.Raiz(), nombre);
}

void lectorArchivo::EscribeImagenFondo(const std::string& archivo, double X0, double Y0, double LX, double LY,
                                       bool oculta) noexcept {
    try {
        xmlNode* const seccion = Seccion(SECCION_IMAGEN);
        std::string guardado = archivo;
        if (TieneCarpeta(archivo)) {
            const RutaPartida partes = ParteRuta(archivo);
            const std::string carpeta = ParteRuta(nombreArchivo_).carpeta;
            if (partes.carpeta != carpeta) CopiaArchivo(archivo, carpeta + partes.nombre);
            guardado = partes.nombre;
        }
        const std::string textos[] = {guardado,          TextoDeNumero(X0), TextoDeNumero(Y0),
                                      TextoDeNumero(LX), TextoDeNumero(LY), TextoDeBooleano(oculta)};
        for (std::size_t i = 0; i < HIJOS_DE_IMAGEN.size(); ++i)
            AgregaNodo(seccion, HIJOS_DE_IMAGEN[i], textos[i]);
    } catch (...) {
        return;  // the schematic is saved all the same, without its picture
    }
}

void lectorArchivo::EscribeConfiguracion(bool bVerLineasSecundarias) noexcept {
    try {
        AgregaNodo(Seccion(SECCION_CONFIGURACION), VER_LINEAS_SECUNDARIAS,
                   TextoDeBooleano(bVerLineasSecundarias));
    } catch (...) {
        return;  // a setting is not worth the schematic
    }
}

bool lectorArchivo::GuardaDocumento() {
    documento_.Guarda(nombreArchivo_);
    documento_.Vacia();
    return true;
}

}  // namespace zel
