#include "file/LecturaDeEsquema.h"

#include <algorithm>

#include "file/Conversion.h"
#include "platform/Fallo.h"

namespace zel {

namespace {

// The names that count: those of an element first, by Hijo.
constexpr auto VOCABULARIO = [] {
    std::array<const char*, NUMERO_DE_HIJOS + 2 + HIJOS_DE_IMAGEN.size() + 1> nombres{};
    auto* lugar = std::copy(NOMBRES_DE_HIJO.begin(), NOMBRES_DE_HIJO.end(), nombres.begin());
    *lugar++ = SECCION_IMAGEN;
    *lugar++ = SECCION_CONFIGURACION;
    lugar = std::copy(HIJOS_DE_IMAGEN.begin(), HIJOS_DE_IMAGEN.end(), lugar);
    *lugar = VER_LINEAS_SECUNDARIAS;
    return nombres;
}();
constexpr std::int32_t DE_HIJOS = NUMERO_DE_HIJOS;
constexpr std::int32_t IMAGEN = DE_HIJOS;
constexpr std::int32_t CONFIGURACION = DE_HIJOS + 1;
constexpr std::int32_t PRIMERO_DE_IMAGEN = DE_HIJOS + 2;
constexpr std::int32_t PRIMERO_DE_CONFIGURACION = PRIMERO_DE_IMAGEN + std::int32_t{HIJOS_DE_IMAGEN.size()};

constexpr std::string_view RAIZ = "Esquema";
constexpr std::size_t HIJOS_DE_SECCION = 256;  // that are kept of one
constexpr std::int32_t MAXIMO_DE_ELEMENTOS = 32767;
// Each level keeps what stands in the innermost: a schematic has one.
constexpr std::size_t NIVELES_DE_UNO_EN_OTRO = 8;

void ExigeHondura(std::size_t abiertos) {
    if (abiertos > NIVELES_DE_UNO_EN_OTRO)
        throw DocumentoRechazado{"hay demasiados elementos o datos unos dentro de otros"};
}

}  // namespace

void ElementoLeido::Vacia() noexcept {
    for (Texto& hijo : hijos) {
        hijo.cuantos = 0;
        hijo.texto.clear();
    }
    lineas = {};
}

bool LecturaDeEsquema::Lee(const std::string& archivo, const AlEmpezar& alEmpezar, const AlLeer& alLeer) {
    alEmpezar_ = &alEmpezar;
    alLeer_ = &alLeer;
    motivo_.clear();
    esEsquema_ = false;
    elementos_ = 0;
    imagen_ = {};
    configuracion_ = {};
    nivel_ = 0;
    enUso_ = puntosEnUso_ = 0;
    abiertos_.clear();
    lineas_.clear();
    capturas_.clear();
    texto_.clear();
    LectorXml lector(VOCABULARIO);
    const bool entero = lector.Lee(archivo, *this);
    motivo_ = lector.Motivo();
    return entero;
}

void LecturaDeEsquema::AlAbrir(std::int32_t numero, std::string_view nombre) {
    ++nivel_;
    if (nivel_ == 1)
        esEsquema_ = nombre == RAIZ;
    else if (numero == IMAGEN && !imagen_.leida)
        imagen_ = {SeccionLeida{{}, std::vector<std::optional<std::string>>(HIJOS_DE_IMAGEN.size())}, nivel_};
    else if (numero == CONFIGURACION && !configuracion_.leida)
        configuracion_ = {SeccionLeida{{}, std::vector<std::optional<std::string>>(1)}, nivel_};
    else
        for (Seccion* seccion : {&imagen_, &configuracion_}) {
            const bool esImagen = seccion == &imagen_;
            AbreEnSeccion(*seccion, esImagen ? PRIMERO_DE_IMAGEN : PRIMERO_DE_CONFIGURACION,
                          esImagen ? HIJOS_DE_IMAGEN.size() : 1, numero, nombre);
        }
    if (numero < 0 || numero >= DE_HIJOS) return;
    switch (static_cast<Hijo>(numero)) {
        case Hijo::X:
            return AbreCoordenada(&PuntoLeido::cuantasX, &PuntoLeido::x);
        case Hijo::Y:
            return AbreCoordenada(&PuntoLeido::cuantasY, &PuntoLeido::y);
        case Hijo::Punto:
            return AbrePunto();
        case Hijo::Linea:
            return AbreLinea();
        case Hijo::Elemento:
            return AbreElemento();
        default:
            return AbreHijo(static_cast<std::size_t>(numero));
    }
}

// The first of each name at any depth, and every child, which is what a section is kept by.
void LecturaDeEsquema::AbreEnSeccion(Seccion& seccion, std::int32_t primero, std::size_t cuantos,
                                     std::int32_t numero, std::string_view nombre) {
    if (seccion.nivel == 0) return;
    const auto i = static_cast<std::size_t>(numero - primero);
    if (numero >= primero && i < cuantos && !seccion.leida->textos[i]) {
        seccion.leida->textos[i].emplace();
        capturas_.push_back({nivel_, texto_.size(), &*seccion.leida->textos[i], 0, nullptr});
    }
    auto& hijos = seccion.leida->hijos;
    if (nivel_ != seccion.nivel + 1 || hijos.size() == HIJOS_DE_SECCION) return;
    hijos.reserve(HIJOS_DE_SECCION);  // captures hold the places of their texts
    hijos.emplace_back(nombre, std::string());
    capturas_.push_back({nivel_, texto_.size(), &hijos.back().second, 0, nullptr});
}

// Of what is beyond the largest schematic only the number counts.
void LecturaDeEsquema::AbreElemento() {
    if (elementos_ > MAXIMO_DE_ELEMENTOS) return;
    ++elementos_;
    if (*alEmpezar_) (*alEmpezar_)(elementos_);
    if (enUso_ == registros_.size()) registros_.emplace_back();
    ElementoLeido& registro = registros_[enUso_++];
    registro.Vacia();
    abiertos_.push_back({nivel_, &registro});
    ExigeHondura(abiertos_.size());
}

void LecturaDeEsquema::AbreHijo(std::size_t hijo) {
    for (const Abierto& abierto : abiertos_) {
        ElementoLeido::Texto& suyo = abierto.elemento->hijos[hijo];
        if (++suyo.cuantos == 1) capturas_.push_back({nivel_, texto_.size(), &suyo.texto, 0, nullptr});
    }
    ExigeHondura(capturas_.size());
}

void LecturaDeEsquema::AbreLinea() {
    std::shared_ptr<std::vector<PuntoLeido>> puntos;
    for (const Abierto& abierto : abiertos_) {
        auto& lineas = abierto.elemento->lineas;
        const auto i = static_cast<std::size_t>(
            abierto.elemento->hijos[static_cast<std::size_t>(Hijo::Linea)].cuantos++);
        if (i >= lineas.size()) continue;
        if (!puntos) puntos = std::make_shared<std::vector<PuntoLeido>>();
        lineas[i] = puntos;
    }
    if (puntos) lineas_.push_back({nivel_, std::move(puntos)});
    ExigeHondura(lineas_.size());
}

void LecturaDeEsquema::AbrePunto() {
    if (lineas_.empty()) return;
    if (puntosEnUso_ == puntos_.size()) puntos_.emplace_back();
    PuntoAbierto& abierto = puntos_[puntosEnUso_++];
    ExigeHondura(puntosEnUso_);
    abierto.nivel = nivel_;
    abierto.punto = {};
    abierto.lugares.clear();
    for (const LineaAbierta& linea : lineas_) {
        abierto.lugares.push_back(linea.puntos->size());
        linea.puntos->emplace_back();
    }
}

void LecturaDeEsquema::AbreCoordenada(std::uint8_t PuntoLeido::*cuantas, float PuntoLeido::*coordenada) {
    for (std::size_t i = 0; i < puntosEnUso_; ++i) {
        std::uint8_t& suyas = puntos_[i].punto.*cuantas;
        if (suyas == 0) capturas_.push_back({nivel_, texto_.size(), nullptr, i, coordenada});
        if (suyas < 2) ++suyas;
    }
}

void LecturaDeEsquema::AlTexto(std::string_view texto) {
    if (capturas_.empty()) return;
    if (texto_.size() + texto.size() > TEXTO_MAXIMO) throw DocumentoRechazado{"un texto es demasiado largo"};
    texto_ += texto;
}

void LecturaDeEsquema::AlCerrar() {
    AcabaCapturas();
    if (puntosEnUso_ > 0 && puntos_[puntosEnUso_ - 1].nivel == nivel_) AcabaPunto();
    if (!lineas_.empty() && lineas_.back().nivel == nivel_) lineas_.pop_back();
    if (!abiertos_.empty() && abiertos_.back().nivel == nivel_) {
        abiertos_.pop_back();
        if (abiertos_.empty()) EntregaElementos();
    }
    for (Seccion* seccion : {&imagen_, &configuracion_}) {
        if (seccion->nivel == nivel_) seccion->nivel = 0;
    }
    --nivel_;
}

void LecturaDeEsquema::AcabaCapturas() {
    while (!capturas_.empty() && capturas_.back().nivel == nivel_) {
        const Captura captura = capturas_.back();
        capturas_.pop_back();
        const std::string_view texto = std::string_view(texto_).substr(captura.desde);
        if (captura.texto) {
            *captura.texto = texto;
            continue;
        }
        PuntoLeido& punto = puntos_[captura.punto].punto;
        try {
            punto.*captura.coordenada = LeeReal(texto);
        } catch (const Fallo&) {
            punto.desborda = true;
        }
    }
    if (capturas_.empty()) texto_.clear();
}

void LecturaDeEsquema::AcabaPunto() {
    const PuntoAbierto& abierto = puntos_[--puntosEnUso_];
    for (std::size_t i = 0; i < abierto.lugares.size(); ++i)
        (*lineas_[i].puntos)[abierto.lugares[i]] = abierto.punto;
}

void LecturaDeEsquema::EntregaElementos() {
    const std::int32_t primera = elementos_ - static_cast<std::int32_t>(enUso_) + 1;
    for (std::size_t i = 0; i < enUso_; ++i) {
        if (*alLeer_) (*alLeer_)(primera + static_cast<std::int32_t>(i), registros_[i]);
    }
    enUso_ = 0;
}

}  // namespace zel
