// The writing half of lectorArchivo, and the sections beside the elements.

#include <algorithm>
#include <array>
#include <cmath>
#include <initializer_list>
#include <vector>

#include "file/Conversion.h"
#include "file/CopiaDeImagen.h"
#include "file/lectorArchivo.h"
#include "platform/Archivos.h"
#include "platform/Numeros.h"

namespace zel {

namespace {

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

bool SonNumeros(std::initializer_list<float> valores) noexcept {
    return std::all_of(valores.begin(), valores.end(), [](float v) { return std::isfinite(v); });
}

bool SonNumeros(const Puntos& trazado) noexcept {
    return std::all_of(trazado.begin(), trazado.end(), [](const auto& p) {
        return SonNumeros({p->XPos(), p->YPos()});
    });
}

bool SePuedeGuardar(const Elemento& e) noexcept {
    if (!TipoConocido(e.Tipo())) return false;
    if (!SonNumeros({e.XPos(), e.YPos(), e.EtiquetaPosX(), e.EtiquetaPosY(), e.EtiquetaGiro(), e.Valor()}))
        return false;
    if (EsLineal(e.Tipo()) && e.Trazado() && !SonNumeros(*e.Trazado())) return false;
    if (e.Tipo() == ctCentralHidroelectrica && e.Trazado2() && !SonNumeros(*e.Trazado2())) return false;
    if (EsLineal(e.Tipo()) && !e.Trazado()) return false;
    return e.Tipo() != ctCentralHidroelectrica || e.Trazado2();
}

// True when a separator stands at the second character or later.
bool TieneCarpeta(const std::string& ruta) {
    return ruta.find_first_of("\\/", 1) != std::string::npos;
}

}  // namespace

std::optional<lectorArchivo::Secciones> lectorArchivo::HuellaDe(const std::string& archivo) {
    std::error_code fallo;
    Secciones huella;
    huella.archivo = std::filesystem::weakly_canonical(archivo, fallo).string();
    if (!fallo) huella.bytes = std::filesystem::file_size(archivo, fallo);
    if (!fallo) huella.cambiado = std::filesystem::last_write_time(archivo, fallo);
    return fallo ? std::nullopt : std::optional(std::move(huella));
}

std::optional<SeccionLeida> lectorArchivo::LeeSeccion(std::optional<SeccionLeida> Secciones::*seccion) {
    auto huella = HuellaDe(nombreArchivo_);
    const auto esLaMisma = [&] {
        return secciones_->archivo == huella->archivo && secciones_->bytes == huella->bytes &&
               secciones_->cambiado == huella->cambiado;
    };
    if (secciones_ && huella && esLaMisma()) return *secciones_.*seccion;
    LecturaDeEsquema documento;
    if (!documento.Lee(nombreArchivo_)) return std::nullopt;
    const Secciones leidas{{}, 0, {}, documento.Imagen(), documento.Configuracion()};
    return leidas.*seccion;
}

// Where the schematic is, whatever links lead to it, with its separator; empty for the current folder.
std::string lectorArchivo::Carpeta() const {
    return CarpetaDe(SinEnlaces(nombreArchivo_));
}

std::optional<Coleccion<std::string>> lectorArchivo::LeeImagenFondo() {
    const auto seccion = LeeSeccion(&Secciones::imagen);
    if (!seccion) return std::nullopt;
    // The file name is stored without its folder, which is the document's.
    zel::Coleccion<std::string> conClaves;
    for (std::size_t i = 0; i < HIJOS_DE_IMAGEN.size() && seccion->textos[i]; ++i)
        conClaves.Add(i == 0 ? Carpeta() + *seccion->textos[i] : *seccion->textos[i], HIJOS_DE_IMAGEN[i]);
    return conClaves;
}

std::optional<Coleccion<std::string>> lectorArchivo::LeeConfiguracion() {
    const auto seccion = LeeSeccion(&Secciones::configuracion);
    if (!seccion) return std::nullopt;
    zel::Coleccion<std::string> conClaves;
    if (seccion->textos[0]) conClaves.Add(*seccion->textos[0], VER_LINEAS_SECUNDARIAS);
    return conClaves;
}

std::optional<SeccionImagen> lectorArchivo::LeeSeccionImagen() {
    const auto seccion = LeeSeccion(&Secciones::imagen);
    if (!seccion) return std::nullopt;
    return InterpretaImagen(*seccion, Carpeta());
}

// An empty schematic goes to the file before anything else: whether it can be written shows at once.
bool lectorArchivo::NuevoDocumento() {
    EscritorXml esqueleto;
    esqueleto.Abre("Esquema");
    esqueleto.Abre("Elementos");
    for (std::size_t i = 1; i < NOMBRES_DE_CONTENEDOR.size(); ++i) {
        esqueleto.Abre(NOMBRES_DE_CONTENEDOR[i]);
        esqueleto.Cierra();
    }
    esqueleto.Guarda(nombreArchivo_);
    return true;
}

bool lectorArchivo::GuardaEsquema() {
    posicionSinGuardar_ = 0;
    documento_.reset();
    if (!coleccion_) throw Fallo(91);
    if (!NuevoDocumento()) return false;
    // The elements of each container, in the order of the collection, up to the first that cannot be saved.
    std::array<std::vector<const Elemento*>, NOMBRES_DE_CONTENEDOR.size()> contenedores;
    std::int32_t posicion = 0;
    for (const auto& e : *coleccion_) {
        ++posicion;
        if (!SePuedeGuardar(*e)) {
            posicionSinGuardar_ = posicion;
            break;
        }
        contenedores[ContenedorDe(e->Tipo())].push_back(e.get());
    }
    documento_.emplace();
    documento_->Abre("Esquema");
    documento_->Abre("Elementos");
    for (std::size_t i = 1; i < NOMBRES_DE_CONTENEDOR.size(); ++i) {
        documento_->Abre(NOMBRES_DE_CONTENEDOR[i]);
        for (const Elemento* e : contenedores[i]) {
            if (!GuardaElemento(*e)) return false;
        }
        documento_->Cierra();
    }
    documento_->Cierra();
    return posicionSinGuardar_ == 0;
}

bool lectorArchivo::GuardaElemento(const Elemento& e) noexcept {
    try {
        documento_->Abre(NombreDe(Hijo::Elemento));
        for (const auto& hijo : HIJOS_COMUNES)
            AgregaNodo(NombreDe(hijo.hijo), hijo.texto(e));
        if (EsLineal(e.Tipo())) {
            for (const auto& hijo : HIJOS_LINEALES)
                AgregaNodo(NombreDe(hijo.hijo), hijo.texto(e));
            GuardaLinea(*e.Trazado());
            if (e.Tipo() == ctCentralHidroelectrica) GuardaLinea(*e.Trazado2());
        }
        documento_->Cierra();
        documento_->Salto();
        return true;
    } catch (...) {
        return false;
    }
}

void lectorArchivo::GuardaLinea(const Puntos& trazado) {
    documento_->Abre(NombreDe(Hijo::Linea));
    for (const auto& vertice : trazado) {
        documento_->Abre(NombreDe(Hijo::Punto));
        AgregaNodo(NombreDe(Hijo::X), Texto(vertice->XPos()));
        AgregaNodo(NombreDe(Hijo::Y), Texto(vertice->YPos()));
        documento_->Cierra();
    }
    documento_->Cierra();
}

void lectorArchivo::AgregaNodo(const char* nombre, std::string_view texto) {
    documento_->Hijo(nombre, texto);
}

// A section with what `escribe` puts into it, as far as that gets: a picture or a setting is not worth the
// schematic, which is saved all the same.
template <typename Escribe>
void lectorArchivo::EscribeSeccion(const char* nombre, Escribe escribe) noexcept {
    if (!documento_) return;
    try {
        documento_->Abre(nombre);
        try {
            escribe();
        } catch (...) {
            documento_->Cierra();
            return;
        }
        documento_->Cierra();
    } catch (...) {
        return;
    }
}

void lectorArchivo::EscribeImagenFondo(const std::string& archivo, double X0, double Y0, double LX, double LY,
                                       bool oculta) noexcept {
    EscribeSeccion(SECCION_IMAGEN, [&] {
        std::string guardado = archivo;
        if (TieneCarpeta(archivo)) {
            const RutaPartida partes = ParteRuta(archivo);
            CopiaDeImagen copia(archivo, partes.nombre, SinEnlaces(nombreArchivo_));
            if (!copia.Aviso().empty()) throw Fallo(75, copia.Aviso());
            copia.Conserva();
            guardado = copia.Nombre();
        }
        const std::string textos[] = {guardado,          TextoDeNumero(X0), TextoDeNumero(Y0),
                                      TextoDeNumero(LX), TextoDeNumero(LY), TextoDeBooleano(oculta)};
        for (std::size_t i = 0; i < HIJOS_DE_IMAGEN.size(); ++i)
            AgregaNodo(HIJOS_DE_IMAGEN[i], textos[i]);
    });
}

void lectorArchivo::EscribeImagenFondo(
    const std::vector<std::pair<std::string, std::string>>& textos) noexcept {
    EscribeSeccion(SECCION_IMAGEN, [&] {
        for (const auto& [nombre, texto] : textos)
            AgregaNodo(nombre.c_str(), texto);
    });
}

void lectorArchivo::EscribeConfiguracion(bool bVerLineasSecundarias) noexcept {
    EscribeSeccion(SECCION_CONFIGURACION,
                   [&] { AgregaNodo(VER_LINEAS_SECUNDARIAS, TextoDeBooleano(bVerLineasSecundarias)); });
}

bool lectorArchivo::GuardaDocumento() {
    if (!documento_) throw Fallo(91);
    documento_->Guarda(nombreArchivo_);
    documento_.reset();
    return true;
}

}  // namespace zel
