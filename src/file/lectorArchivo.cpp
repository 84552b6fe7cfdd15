#include "file/lectorArchivo.h"

#include <string_view>

#include "file/Conversion.h"
#include "model/TrazadoRecto.h"
#include "platform/Archivos.h"
#include "platform/Numeros.h"

namespace zel {

// What lives only while one file is being read.
struct lectorArchivo::Lectura {
    explicit Lectura(const DocumentoXml& documento)
        : delElemento(documento), deLinea(documento), dePunto(documento) {}

    Hallazgos delElemento;
    Hallazgos deLinea;
    Hallazgos dePunto;
    std::int16_t posicion = 0;
    std::string memoria;
    // Codes of the elements whose first and second traces have to be rebuilt.
    std::vector<std::int32_t> sinTrazado;
    std::vector<std::int32_t> sinTrazado2;
};

namespace {

constexpr const char* SALTO = "\r\n";

struct LecturaHijo {
    Hijo hijo;
    void (*asigna)(Elemento&, std::string_view);
};

bool LeeBandera(std::string_view texto) {
    return I2B(LeeEntero(texto));
}

// In the order in which they are read, which is the order of the log's lines.
constexpr LecturaHijo HIJOS_COMUNES[] = {
    {Hijo::ColorIcono, [](Elemento& e, std::string_view t) { e.ColorIcono(LeeEntero32(t)); }},
    {Hijo::ConecSec1, [](Elemento& e, std::string_view t) { e.ConecSec1(LeeEntero32(t)); }},
    {Hijo::ConecSec2, [](Elemento& e, std::string_view t) { e.ConecSec2(LeeEntero32(t)); }},
    {Hijo::TextoGiro, [](Elemento& e, std::string_view t) { e.EtiquetaGiro(LeeReal(t)); }},
    {Hijo::NombreMovido, [](Elemento& e, std::string_view t) { e.EtiquetaMovida(LeeBandera(t)); }},
    {Hijo::NombrePosX, [](Elemento& e, std::string_view t) { e.EtiquetaPosX(LeeReal(t)); }},
    {Hijo::NombrePosY, [](Elemento& e, std::string_view t) { e.EtiquetaPosY(LeeReal(t)); }},
    {Hijo::NombreTamanyo, [](Elemento& e, std::string_view t) { e.EtiquetaTamanyo(LeeReal(t)); }},
    {Hijo::NomTamRelativo, [](Elemento& e, std::string_view t) { e.EtiquetaTamanyoRelativo(LeeBandera(t)); }},
    {Hijo::gfCodSig, [](Elemento& e, std::string_view t) { e.gfCodSIG(LeeEntero32(t)); }},
    {Hijo::NumUser, [](Elemento& e, std::string_view t) { e.KeyPant(LeeEntero(t)); }},
    {Hijo::VerNombre, [](Elemento& e, std::string_view t) { e.MostrarEtiqueta(LeeBandera(t)); }},
    {Hijo::Nombre, [](Elemento& e, std::string_view t) { e.Nombre(std::string(t)); }},
    {Hijo::Tamanyo, [](Elemento& e, std::string_view t) { e.Tamanyo(LeeReal(t)); }},
    {Hijo::Tipo, [](Elemento& e, std::string_view t) { e.Tipo(TipoDeCodigo(LeeEntero(t))); }},
    {Hijo::Valor, [](Elemento& e, std::string_view t) { e.Valor(LeeReal(t)); }},
    {Hijo::posX, [](Elemento& e, std::string_view t) { e.XPos(LeeReal(t)); }},
    {Hijo::posY, [](Elemento& e, std::string_view t) { e.YPos(LeeReal(t)); }},
};

constexpr LecturaHijo HIJOS_LINEALES[] = {
    {Hijo::ColorLinea, [](Elemento& e, std::string_view t) { e.ColorLinea(LeeEntero32(t)); }},
    {Hijo::NudoDestino, [](Elemento& e, std::string_view t) { e.ElemFin(LeeEntero32(t)); }},
    {Hijo::NudoOrigen, [](Elemento& e, std::string_view t) { e.ElemIni(LeeEntero32(t)); }},
};

void Apunta(std::vector<std::int32_t>& lista, std::int32_t codigo) {
    if (codigo != 0) lista.push_back(codigo);
}

std::shared_ptr<Puntos> TrazadoEntre(const Elemento& desde, const Elemento& hasta) try {
    return TrazadoRecto(desde, hasta);
} catch (...) {
    LanzaError(TEXTO_LIBRE, "ErrPtoContorno (lectorArchivo)");
}

}  // namespace

void lectorArchivo::Carga() try {
    textoErrores_.clear();
    textoAvisos_.clear();
    motivo_.clear();
    registro_.clear();
    esEsquema_ = false;
    secciones_.reset();
    if (!coleccion_) throw Fallo(91);
    DocumentoXml documento;
    // From before it is read: a file that changes meanwhile is not taken for the one that was.
    auto secciones = HuellaDe(nombreArchivo_);
    if (!documento.Carga(nombreArchivo_)) {
        motivo_ = documento.Motivo();
        return;
    }
    if (secciones) {
        LeeSecciones(documento, secciones->imagen, secciones->configuracion);
        secciones_ = std::move(secciones);
    }
    Lectura lectura(documento);
    xmlNode* const raiz = documento.Raiz();
    esEsquema_ = raiz->name == documento.Nombre("Esquema");
    bool hayElementos = false;
    for (auto* nodo = raiz; nodo; nodo = SiguienteElemento(nodo, raiz)) {
        if (!lectura.delElemento.Es(nodo, Hijo::Elemento)) continue;
        hayElementos = true;
        lectura.posicion = Estrecha16(lectura.posicion + 1);
        if (cedeTurno_) cedeTurno_();
        LeeElemento(lectura, nodo);
    }
    if (!hayElementos) return;
    RehaceTrazados(lectura.sinTrazado);
    RehaceTrazados2(lectura.sinTrazado2);
    registro_ = TextoDelRegistro();
    if (!registro_.empty()) EscribeRegistro("ErroresCarga.log", registro_);
} catch (...) {
    LanzaError(TEXTO_LIBRE, "Lector:Carga ");
}

std::string lectorArchivo::MotivoParaNoAbrir() const {
    DocumentoXml documento;
    if (!documento.Carga(nombreArchivo_)) return documento.Motivo();
    const bool esEsquema = documento.Raiz()->name == documento.Nombre("Esquema");
    return esEsquema || documento.Nombre("Elemento") ? std::string() : "no es un esquema";
}

const Hallazgos::Lista* lectorArchivo::AsignaPropiedad(const Hallazgos& hallazgos, Hijo hijo,
                                                       std::int16_t esperados, std::int16_t posicion,
                                                       bool bSinAviso) try {
    const Hallazgos::Lista& lista = hallazgos.De(hijo);
    if (lista.Cuantos == esperados) return &lista;
    const auto texto = [](std::int32_t n) { return std::to_string(n); };
    if (lista.Cuantos == 0) {
        textoErrores_ += SALTO + ("El elemento en la posición " + texto(posicion)) +
                         " no almacenó la propiedad " + NombreDe(hijo);
        return nullptr;
    }
    if (lista.Cuantos < esperados) {
        textoErrores_ += SALTO + ("El elemento en la posición " + texto(posicion)) + " sólo almacenó " +
                         texto(lista.Cuantos) + " etiquetas de la propiedad " + NombreDe(hijo) + ".";
        return nullptr;
    }
    if (!bSinAviso) {
        textoAvisos_ += SALTO + ("Aviso: El elemento en la posición " + texto(posicion)) + " presenta " +
                        texto(lista.Cuantos) + " propiedades " + NombreDe(hijo) +
                        ". Se cargaron los primeros " + texto(esperados) + " datos en el esquema.";
    }
    return &lista;
} catch (...) {
    LanzaError(TEXTO_LIBRE, "Error en ErrAsignaPropiedad (lectorArchivo)");
}

template <typename Tabla>
void lectorArchivo::LeeHijos(Lectura& lectura, Elemento& e, const Tabla& tabla) {
    for (const LecturaHijo& lee : tabla) {
        const auto* lista = AsignaPropiedad(lectura.delElemento, lee.hijo, 1, lectura.posicion, false);
        if (lista) lee.asigna(e, TextoDe(lista->Primeros[0], lectura.memoria));
    }
}

void lectorArchivo::LeeElemento(Lectura& lectura, xmlNode* nodo) {
    Elemento e;
    lectura.delElemento.Recoge(nodo);
    LeeHijos(lectura, e, HIJOS_COMUNES);
    if (EsLineal(e.Tipo())) {
        LeeHijos(lectura, e, HIJOS_LINEALES);
        if (EmpiezaEnSiMismo(e.Tipo()) && e.gfCodSIG() != 0) e.ElemIni(e.gfCodSIG());
        LeeTrazados(lectura, e);
    }
    coleccion_->AddObjetoElemento(e);
}

void lectorArchivo::LeeTrazados(Lectura& lectura, Elemento& e) {
    if (e.Tipo() == ctCentralHidroelectrica) {
        LeeTrazadosCentral(lectura, e);
        return;
    }
    const auto* lineas = AsignaPropiedad(lectura.delElemento, Hijo::Linea, 1, lectura.posicion, false);
    if (!lineas) {
        textoErrores_ += SALTO + ("El elemento " + std::to_string(lectura.posicion)) +
                         " no almacenó la propiedad de Trazado.";
        Apunta(lectura.sinTrazado, e.gfCodSIG());
        return;
    }
    e.Trazado(LeeTrazado(lectura, lineas->Primeros[0], "trazado"));
    if (!e.Trazado()) Apunta(lectura.sinTrazado, e.gfCodSIG());
}

void lectorArchivo::LeeTrazadosCentral(Lectura& lectura, Elemento& e) {
    const auto* lineas = AsignaPropiedad(lectura.delElemento, Hijo::Linea, 2, lectura.posicion, false);
    if (!lineas) {
        textoErrores_ += SALTO + ("El elemento " + std::to_string(lectura.posicion)) +
                         " (central hidroeléctrica) no almacenó las propiedades de Trazado ni Trazado2.";
        Apunta(lectura.sinTrazado, e.gfCodSIG());
        Apunta(lectura.sinTrazado2, e.gfCodSIG());
        return;
    }
    e.Trazado(LeeTrazado(lectura, lineas->Primeros[0], "trazado 1"));
    if (!e.Trazado()) Apunta(lectura.sinTrazado, e.gfCodSIG());
    e.Trazado2(LeeTrazado(lectura, lineas->Primeros[1], "trazado 2"));
    if (!e.Trazado2()) Apunta(lectura.sinTrazado2, e.gfCodSIG());
}

// The trace of one Linea, or nothing when it cannot be read in full. `cual` names it in the log.
std::shared_ptr<Puntos> lectorArchivo::LeeTrazado(Lectura& lectura, xmlNode* linea, const std::string& cual) {
    const std::int16_t posicion = lectura.posicion;
    const auto falla = [&](const char* motivo) {
        textoErrores_ +=
            SALTO + ("No se pudo cargar el " + cual) + " del elemento " + std::to_string(posicion) + motivo;
        return nullptr;
    };
    lectura.deLinea.Recoge(linea);
    const auto* puntos = AsignaPropiedad(lectura.deLinea, Hijo::Punto, 2, posicion, true);
    if (!puntos) return falla(". La línea no contiene puntos.");
    auto trazado = std::make_shared<Puntos>();
    trazado->Reserva(puntos->Cuantos);
    for (auto* nodo = SiguienteElemento(linea, linea); nodo; nodo = SiguienteElemento(nodo, linea)) {
        if (!lectura.deLinea.Es(nodo, Hijo::Punto)) continue;
        lectura.dePunto.Recoge(nodo);
        const auto* x = AsignaPropiedad(lectura.dePunto, Hijo::X, 1, posicion, true);
        const auto* y = AsignaPropiedad(lectura.dePunto, Hijo::Y, 1, posicion, true);
        if (!x || !y) return falla(". Algún punto del trazado no se guardó correctamente.");
        const float xPos = LeeReal(TextoDe(x->Primeros[0], lectura.memoria));
        trazado->Add(xPos, LeeReal(TextoDe(y->Primeros[0], lectura.memoria)));
    }
    return trazado;
}

// The element under that code, or nothing, also for the code 0.
std::shared_ptr<Elemento> lectorArchivo::ElementoDe(std::int32_t codigo) const {
    return codigo == 0 ? nullptr : coleccion_->ItemCodSIG(codigo);
}

void lectorArchivo::RehaceTrazados(const std::vector<std::int32_t>& codigos) {
    for (const std::int32_t codigo : codigos) {
        const auto x = ElementoDe(codigo);
        if (!x) continue;
        auto desde = EmpiezaEnSiMismo(x->Tipo()) ? x : ElementoDe(x->ElemIni());
        auto hasta = x->Tipo() == ctCentralHidroelectrica ? x : ElementoDe(x->ElemFin());
        if (desde && hasta) x->Trazado(TrazadoEntre(*desde, *hasta));
    }
}

void lectorArchivo::RehaceTrazados2(const std::vector<std::int32_t>& codigos) {
    for (const std::int32_t codigo : codigos) {
        const auto x = ElementoDe(codigo);
        if (!x || x->Tipo() != ctCentralHidroelectrica) continue;
        if (const auto hasta = ElementoDe(x->ElemFin())) x->Trazado2(TrazadoEntre(*x, *hasta));
    }
}

std::string lectorArchivo::TextoDelRegistro() const {
    if (textoErrores_.empty()) return textoAvisos_;
    return "ZELVisorEsquemas: errores en la carga del fichero: " + nombreArchivo_ + SALTO + textoErrores_ +
           textoAvisos_;
}

}  // namespace zel
