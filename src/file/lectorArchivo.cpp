#include "file/lectorArchivo.h"

#include <exception>
#include <string_view>

#include "file/Conversion.h"
#include "model/TrazadoRecto.h"
#include "platform/Archivos.h"
#include "platform/Numeros.h"
#include "platform/Texto.h"

namespace zel {

// What lives only while one file is being read. Nothing goes to the collection before the whole file has been
// found well-formed.
struct lectorArchivo::Lectura {
    std::vector<std::unique_ptr<Elemento>> elementos;
    // Of the first element that cannot be loaded; those behind it are not looked at.
    std::exception_ptr fallo;
    // Elements of the collection whose first and second traces have to be rebuilt.
    std::vector<std::shared_ptr<Elemento>> sinTrazado;
    std::vector<std::shared_ptr<Elemento>> sinTrazado2;
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
    sinCargar_.clear();
    falloDelRegistro_.clear();
    esEsquema_ = false;
    secciones_.reset();
    if (!coleccion_) throw Fallo(91);
    // From before it is read: a file that changes meanwhile is not taken for the one that was.
    auto secciones = HuellaDe(nombreArchivo_);
    Lectura lectura;
    const auto sigue = [&](auto accion) {
        if (lectura.fallo) return;
        try {
            accion();
        } catch (...) {
            lectura.fallo = std::current_exception();
        }
    };
    LecturaDeEsquema documento;
    const bool entero = documento.Lee(
        nombreArchivo_,
        [&](std::int32_t posicion) {
            sigue([&] { Estrecha16(posicion); });
            if (cedeTurno_ && !lectura.fallo) cedeTurno_();
        },
        [&](std::int32_t posicion, const ElementoLeido& leido) {
            sigue([&] { LeeElemento(lectura, Estrecha16(posicion), leido); });
        });
    if (!entero) {
        motivo_ = documento.Motivo();
        return;
    }
    if (secciones) {
        secciones->imagen = documento.Imagen();
        secciones->configuracion = documento.Configuracion();
        secciones_ = std::move(secciones);
    }
    esEsquema_ = documento.EsEsquema();
    if (documento.Elementos() == 0) return;
    Agrega(lectura);
    RehaceTrazados(lectura);
    registro_ = TextoDelRegistro();
    if (!registro_.empty()) EscribeElRegistro();
} catch (...) {
    LanzaError(TEXTO_LIBRE, "Lector:Carga ");
}

void lectorArchivo::EscribeElRegistro() try {
    EscribeRegistro("ErroresCarga.log", registro_);
} catch (const Fallo& fallo) {
    falloDelRegistro_ = fallo.Description();
    throw;
}

// Up to the first that fails.
void lectorArchivo::Agrega(Lectura& lectura) {
    for (const auto& e : lectura.elementos) {
        const auto otro = coleccion_->ItemCodSIG(e->gfCodSIG());
        const bool sinClave = otro && admiteRepetidos_;
        if (otro && !sinClave) {
            sinCargar_ = "\"" + EnBreve(otro->Nombre()) + "\" y \"" + EnBreve(e->Nombre()) +
                         "\" tienen el mismo código, " + std::to_string(e->gfCodSIG());
        }
        coleccion_->AddObjetoElemento(*e, sinClave ? std::optional(Variante("")) : std::nullopt);
        if (e->gfCodSIG() == 0 || !EsLineal(e->Tipo())) continue;
        const auto suyo = coleccion_->Item(coleccion_->Count());
        if (!e->Trazado()) lectura.sinTrazado.push_back(suyo);
        if (!e->Trazado2() && e->Tipo() == ctCentralHidroelectrica) lectura.sinTrazado2.push_back(suyo);
    }
    if (lectura.fallo) std::rethrow_exception(lectura.fallo);
}

std::string lectorArchivo::MotivoParaNoAbrir() const {
    LecturaDeEsquema documento;
    if (!documento.Lee(nombreArchivo_)) return documento.Motivo();
    return documento.EsEsquema() || documento.Elementos() > 0 ? std::string() : "no es un esquema";
}

// Whether there is what is looked for, as many times as expected or more; what is not so is noted.
bool lectorArchivo::AsignaPropiedad(std::int32_t cuantos, Hijo hijo, std::int16_t esperados,
                                    std::int16_t posicion, bool bSinAviso) try {
    if (cuantos == esperados) return true;
    const auto texto = [](std::int32_t n) { return std::to_string(n); };
    if (cuantos == 0) {
        textoErrores_ += SALTO + ("El elemento en la posición " + texto(posicion)) +
                         " no almacenó la propiedad " + NombreDe(hijo);
        return false;
    }
    if (cuantos < esperados) {
        textoErrores_ += SALTO + ("El elemento en la posición " + texto(posicion)) + " sólo almacenó " +
                         texto(cuantos) + " etiquetas de la propiedad " + NombreDe(hijo) + ".";
        return false;
    }
    if (!bSinAviso) {
        textoAvisos_ += SALTO + ("Aviso: El elemento en la posición " + texto(posicion)) + " presenta " +
                        texto(cuantos) + " propiedades " + NombreDe(hijo) + ". Se cargaron los primeros " +
                        texto(esperados) + " datos en el esquema.";
    }
    return true;
} catch (...) {
    LanzaError(TEXTO_LIBRE, "Error en ErrAsignaPropiedad (lectorArchivo)");
}

template <typename Tabla>
void lectorArchivo::LeeHijos(const ElementoLeido& leido, std::int16_t posicion, Elemento& e,
                             const Tabla& tabla) {
    for (const LecturaHijo& lee : tabla) {
        const ElementoLeido::Texto& suyo = leido.De(lee.hijo);
        if (AsignaPropiedad(suyo.cuantos, lee.hijo, 1, posicion, false)) lee.asigna(e, suyo.texto);
    }
}

void lectorArchivo::LeeElemento(Lectura& lectura, std::int16_t posicion, const ElementoLeido& leido) {
    auto e = std::make_unique<Elemento>();
    LeeHijos(leido, posicion, *e, HIJOS_COMUNES);
    if (EsLineal(e->Tipo())) {
        LeeHijos(leido, posicion, *e, HIJOS_LINEALES);
        if (EmpiezaEnSiMismo(e->Tipo()) && e->gfCodSIG() != 0) e->ElemIni(e->gfCodSIG());
        LeeTrazados(posicion, leido, *e);
    }
    lectura.elementos.push_back(std::move(e));
}

void lectorArchivo::LeeTrazados(std::int16_t posicion, const ElementoLeido& leido, Elemento& e) {
    const bool esCentral = e.Tipo() == ctCentralHidroelectrica;
    if (!AsignaPropiedad(leido.De(Hijo::Linea).cuantos, Hijo::Linea, esCentral ? 2 : 1, posicion, false)) {
        textoErrores_ +=
            SALTO + ("El elemento " + std::to_string(posicion)) +
            (esCentral ? " (central hidroeléctrica) no almacenó las propiedades de Trazado ni Trazado2."
                       : " no almacenó la propiedad de Trazado.");
        return;
    }
    e.Trazado(LeeTrazado(*leido.lineas[0], posicion, esCentral ? "trazado 1" : "trazado"));
    if (esCentral) e.Trazado2(LeeTrazado(*leido.lineas[1], posicion, "trazado 2"));
}

// The trace of one Linea, or nothing when it cannot be read in full. `cual` names it in the log.
std::shared_ptr<Puntos> lectorArchivo::LeeTrazado(const std::vector<PuntoLeido>& linea, std::int16_t posicion,
                                                  const std::string& cual) {
    const auto falla = [&](const char* motivo) {
        textoErrores_ +=
            SALTO + ("No se pudo cargar el " + cual) + " del elemento " + std::to_string(posicion) + motivo;
        return nullptr;
    };
    const auto cuantos = static_cast<std::int32_t>(linea.size());
    if (!AsignaPropiedad(cuantos, Hijo::Punto, 2, posicion, true))
        return falla(". La línea no contiene puntos.");
    auto trazado = std::make_shared<Puntos>();
    trazado->Reserva(cuantos);
    for (const PuntoLeido& punto : linea) {
        const bool hayX = AsignaPropiedad(punto.cuantasX, Hijo::X, 1, posicion, true);
        const bool hayY = AsignaPropiedad(punto.cuantasY, Hijo::Y, 1, posicion, true);
        if (!hayX || !hayY) return falla(". Algún punto del trazado no se guardó correctamente.");
        if (punto.desborda) throw Fallo(6);
        trazado->Add(punto.x, punto.y);
    }
    return trazado;
}

// The element under that code, or nothing, also for the code 0.
std::shared_ptr<Elemento> lectorArchivo::ElementoDe(std::int32_t codigo) const {
    return codigo == 0 ? nullptr : coleccion_->ItemCodSIG(codigo);
}

void lectorArchivo::RehaceTrazados(const Lectura& lectura) {
    for (const auto& x : lectura.sinTrazado) {
        const auto desde = EmpiezaEnSiMismo(x->Tipo()) ? x : ElementoDe(x->ElemIni());
        const auto hasta = x->Tipo() == ctCentralHidroelectrica ? x : ElementoDe(x->ElemFin());
        if (desde && hasta) x->Trazado(TrazadoEntre(*desde, *hasta));
    }
    for (const auto& x : lectura.sinTrazado2) {
        if (const auto hasta = ElementoDe(x->ElemFin())) x->Trazado2(TrazadoEntre(*x, *hasta));
    }
}

std::string lectorArchivo::TextoDelRegistro() const {
    if (textoErrores_.empty()) return textoAvisos_;
    return "ZELVisorEsquemas: errores en la carga del fichero: " + nombreArchivo_ + SALTO + textoErrores_ +
           textoAvisos_;
}

}  // namespace zel
