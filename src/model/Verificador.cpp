#include "model/Verificador.h"

#include <algorithm>
#include <optional>

#include "model/TrazadoRecto.h"
#include "platform/Numeros.h"

namespace zel {

namespace {

constexpr const char* SALTO = "\r\n";
// Pairs of equal elements grow with the square of their number; a report of more would help nobody.
constexpr std::int32_t PAREJAS_INFORMADAS = 100000;

std::string Texto(std::int32_t n) {
    return std::to_string(n);
}

bool EsNudoOEmbalse(TipoElemento tipo) noexcept {
    return tipo == ctNudo || tipo == ctEmbalse;
}

// What may stand at an end of an element, and the ending of the text that says it does not.
struct ReglaDeExtremo {
    bool (*admite)(TipoElemento);
    const char* final;
};
constexpr ReglaDeExtremo NUDO_O_EMBALSE{EsNudoOEmbalse, ", cuyo tipo no es un nudo o embalse. "};
constexpr ReglaDeExtremo ACUIFERO{[](TipoElemento t) { return t == ctAcuifero; },
                                  ", cuyo tipo no es un acuífero. "};
constexpr ReglaDeExtremo DEMANDA{[](TipoElemento t) { return t == ctDemanda; },
                                 ", cuyo tipo no es una demanda. "};
// A sub-basin drains into an inflow, or straight into the network.
constexpr ReglaDeExtremo DESTINO_DE_SUBCUENCA{
    [](TipoElemento t) { return EsNudoOEmbalse(t) || t == ctAportacion; }, NUDO_O_EMBALSE.final};

const ReglaDeExtremo* ReglaDe(TipoElemento tipo, bool inicio) noexcept {
    switch (tipo) {
        case ctConduccion1:
        case ctConduccion2:
        case ctConduccion3:
        case ctConduccion4:
        case ctConduccion5:
        case ctCentralHidroelectrica:
            return &NUDO_O_EMBALSE;
        case ctRecarga:
            return inicio ? &NUDO_O_EMBALSE : &ACUIFERO;
        case ctBombeo:
            return inicio ? &ACUIFERO : &NUDO_O_EMBALSE;
        case ctToma:
            return inicio ? &NUDO_O_EMBALSE : &DEMANDA;
        case ctAportacion:
        case ctRetorno:
            return inicio ? nullptr : &NUDO_O_EMBALSE;
        case ctSubcuenca:
            return inicio ? nullptr : &DESTINO_DE_SUBCUENCA;
        default:
            return nullptr;
    }
}

bool EsLinealConocido(const Elemento& e) noexcept {
    return TipoConocido(e.Tipo()) && EsLineal(e.Tipo());
}

// The positions, counted from 0, of the elements that share a value with another one, by value.
template <typename Clave>
class Grupos {
  public:
    template <typename ValorDe>
    Grupos(const Elementos& elementos, ValorDe valorDe)
        : siguiente_(static_cast<std::size_t>(elementos.Count()), -1) {
        std::pmr::monotonic_buffer_resource memoria;
        std::pmr::unordered_map<Clave, std::int32_t> ultima(&memoria);
        ultima.reserve(siguiente_.size());
        std::int32_t i = 0;
        for (const auto& e : elementos) {
            if (const std::optional<Clave> valor = valorDe(*e)) {
                const auto [lugar, nuevo] = ultima.try_emplace(*valor, i);
                if (!nuevo) {
                    siguiente_[static_cast<std::size_t>(lugar->second)] = i;
                    lugar->second = i;
                    hayRepetidos_ = true;
                }
            }
            ++i;
        }
    }
    bool HayRepetidos() const noexcept { return hayRepetidos_; }
    // The next element with the same value, or -1.
    std::int32_t Siguiente(std::int32_t i) const { return siguiente_[static_cast<std::size_t>(i)]; }

  private:
    std::vector<std::int32_t> siguiente_;
    bool hayRepetidos_ = false;
};

// Intakes may share screen numbers, and 0 is no number.
std::optional<std::int64_t> NumeroDentroDelTipo(const Elemento& e) noexcept {
    if (e.Tipo() == ctToma || e.KeyPant() == 0) return std::nullopt;
    return (std::int64_t{e.Tipo()} << 32) | static_cast<std::uint16_t>(e.KeyPant());
}

struct NumeroNuevo {
    std::int32_t posicion;
    Elemento* elemento;
    std::int16_t numero;
};

// A new number, above all others, for every element that has none (0) and for every one that repeats the
// number of an earlier one. The numbers run in 16 bits; when they do not suffice it fails with 6.
template <typename Lee>
std::vector<NumeroNuevo> NumerosNuevos(const Elementos& elementos, Lee lee) {
    std::int32_t mayor = 0;
    std::vector<Elemento*> todos;
    for (const auto& e : elementos) {
        mayor = std::max(mayor, std::int32_t{lee(*e)});
        todos.push_back(e.get());
    }
    const Grupos<std::int32_t> grupos(elementos, [&](const Elemento& e) {
        return lee(e) == 0 ? std::nullopt : std::optional<std::int32_t>(lee(e));
    });
    std::vector<NumeroNuevo> nuevos;
    std::vector<bool> renumerado(todos.size(), false);
    std::int16_t m = Estrecha16(mayor);
    const auto renumera = [&](std::int32_t i) {
        m = Estrecha16(std::int32_t{m} + 1);
        nuevos.push_back({i + 1, todos[static_cast<std::size_t>(i)], m});
        renumerado[static_cast<std::size_t>(i)] = true;
    };
    for (std::int32_t i = 0; i < elementos.Count(); ++i) {
        if (renumerado[static_cast<std::size_t>(i)]) continue;
        if (lee(*todos[static_cast<std::size_t>(i)]) == 0)
            renumera(i);
        else
            for (std::int32_t j = grupos.Siguiente(i); j >= 0; j = grupos.Siguiente(j))
                renumera(j);
    }
    return nuevos;
}

// A text of the report by itself, without what joins it to the element's position.
std::string SinEnlace(const std::string& texto) {
    const std::size_t inicio = texto.find_first_not_of(": ");
    const std::size_t fin = texto.find_last_not_of(". ");
    return inicio == std::string::npos ? texto : texto.substr(inicio, fin - inicio + 1);
}

}  // namespace

std::int16_t Verificador::Verifica() {
    IndexaCodigos();
    // One walk over the elements for all the steps, each of which reports into its own part.
    std::int32_t posicion = 0;
    for (const auto& e : elementos_) {
        const Sitio s{++posicion, *e};
        paso_ = Paso::Valores;
        VerificaValores(s);
        if (EsLinealConocido(*e)) {
            const Extremos extremos{DeCodigo(e->ElemIni()), DeCodigo(e->ElemFin())};
            paso_ = Paso::Trazados;
            VerificaTrazados(s);
            paso_ = Paso::Extremos;
            VerificaExtremos(s, extremos);
            paso_ = Paso::TiposDeExtremos;
            VerificaTiposDeExtremos(s, extremos);
        }
        paso_ = Paso::ConexionesSecundarias;
        VerificaConexionesSecundarias(s);
    }
    paso_ = Paso::Repetidos;
    VerificaRepetidos();
    if (corrige_ && numeros_) CorrigeNumeros();
    if (corrige_ && codigos_) CorrigeCodigos();
    if (corrige_ && trazados_) CorrigeTrazados();
    if (incorregible_) return INTEGRIDAD_INCORREGIBLE;
    std::int16_t resultado = 0;
    if (mutuas_) resultado += INTEGRIDAD_CONEXIONES_MUTUAS;
    if (valores_) resultado += INTEGRIDAD_VALORES;
    if (numeros_) resultado += INTEGRIDAD_NUMEROS;
    if (codigos_) resultado += INTEGRIDAD_CODIGOS;
    if (trazados_) resultado += INTEGRIDAD_TRAZADOS;
    return resultado;
}

std::string Verificador::Informe() const {
    std::string informe;
    for (const std::string& parte : informe_)
        informe += parte;
    return informe;
}

std::string& Verificador::ParteDelInforme() noexcept {
    return informe_[static_cast<std::size_t>(paso_)];
}

void Verificador::IndexaCodigos() {
    porCodigo_.clear();
    porCodigo_.reserve(static_cast<std::size_t>(elementos_.Count()));
    for (const auto& e : elementos_)
        porCodigo_.try_emplace(e->gfCodSIG(), e.get());
}

Elemento* Verificador::DeCodigo(std::int32_t codigo) const {
    const auto lugar = porCodigo_.find(codigo);
    return lugar == porCodigo_.end() ? nullptr : lugar->second;
}

void Verificador::Encontrado(const Sitio& s, const std::string& problema, const std::string& correccion) {
    if (!conHallazgos_) return;
    hallazgos_.push_back({s.posicion, s.e.gfCodSIG(), s.e.Nombre(), SinEnlace(problema), correccion});
}

void Verificador::Informa(const Sitio& s, const std::string& texto) {
    ParteDelInforme() += SALTO + ("El elemento almacenado en la posición " + Texto(s.posicion)) + texto;
    Encontrado(s, texto, "");
}

void Verificador::Incorregible(const Sitio& s, const std::string& texto) {
    incorregible_ = true;
    Informa(s, texto);
}

template <typename Correccion>
void Verificador::Corregible(const Sitio& s, const std::string& texto, const char* correccion,
                             Correccion corrige) {
    if (corrige_) {
        corrige();
        Encontrado(s, texto, correccion);
    } else {
        valores_ = true;
        Informa(s, texto + ". ");
    }
}

void Verificador::Pendiente(const Sitio& s, bool& marca, const std::string& texto) {
    marca = true;
    if (corrige_)
        Encontrado(s, texto, "");
    else
        Informa(s, texto);
}

void Verificador::VerificaValores(const Sitio& s) {
    const auto mal = [](std::int32_t valor) { return valor < 0 && valor != -1; };
    Elemento& e = s.e;
    if (mal(e.ColorIcono())) {
        Corregible(s, ": ColorIcono incorrecto: " + Texto(e.ColorIcono()), "ColorIcono puesto a -1",
                   [&] { e.ColorIcono(-1); });
    }
    if (mal(e.ColorLinea())) {
        Corregible(s, ": ColorLínea incorrecto: " + Texto(e.ColorLinea()), "ColorLinea puesto a -1",
                   [&] { e.ColorLinea(-1); });
    }
    if (mal(e.ConecSec1())) Incorregible(s, ": ConecSec1 incorrecta: " + Texto(e.ConecSec1()) + ". ");
    if (mal(e.ConecSec2())) Incorregible(s, ": ConecSec2 incorrecta: " + Texto(e.ConecSec2()) + ". ");
    if (e.ElemFin() < 0) Incorregible(s, ": ElemFin incorrecto: " + Texto(e.ElemFin()) + ". ");
    VerificaElementoInicial(s);
    if (e.EtiquetaTamanyo() <= 0) {
        Corregible(s, ": EtiquetaTamanyo incorrecto: " + TextoDeNumero(e.EtiquetaTamanyo()),
                   "EtiquetaTamanyo puesto a 1", [&] { e.EtiquetaTamanyo(1); });
    }
    if (e.gfCodSIG() < 0) Incorregible(s, " contiene un código negativo: " + Texto(e.gfCodSIG()) + ". ");
    VerificaNumero(s);
    if (e.Tamanyo() <= 0) {
        Corregible(s, ": Tamanyo incorrecto: " + TextoDeNumero(e.Tamanyo()), "Tamanyo puesto a 1",
                   [&] { e.Tamanyo(1); });
    }
    if (!TipoConocido(e.Tipo())) Incorregible(s, ": Tipo incorrecto: " + Texto(e.Tipo()) + ". ");
}

void Verificador::VerificaElementoInicial(const Sitio& s) {
    if (s.e.ElemIni() >= 0) return;
    const std::string texto = ": ElemIni incorrecto: " + Texto(s.e.ElemIni()) + ". ";
    if (!corrige_ || !EmpiezaEnSiMismo(s.e.Tipo())) {
        Incorregible(s, texto);
        return;
    }
    s.e.ElemIni(s.e.gfCodSIG());
    Encontrado(s, texto, "ElemIni puesto al código del propio elemento");
}

void Verificador::VerificaNumero(const Sitio& s) {
    const std::int16_t numero = s.e.KeyPant();
    const bool falta = s.e.Tipo() != ctNudo && numero == 0;
    if (!falta && numero >= 0) return;
    Pendiente(s, numeros_, ": Keypant incorrecto: " + Texto(numero) + ". ");
}

void Verificador::VerificaRepetidos() {
    const Grupos<std::int32_t> deCodigo(elementos_,
                                        [](const Elemento& e) { return std::optional(e.gfCodSIG()); });
    const Grupos<std::int64_t> deNumero(elementos_, NumeroDentroDelTipo);
    codigos_ = deCodigo.HayRepetidos();
    numeros_ = numeros_ || deNumero.HayRepetidos();
    if (!codigos_ && !deNumero.HayRepetidos()) return;
    if (corrige_ && !conHallazgos_) return;
    std::vector<Elemento*> todos;
    for (const auto& e : elementos_)
        todos.push_back(e.get());
    std::int32_t parejas = 0;
    const auto informa = [&](std::int32_t i, std::int32_t j, const std::string& texto) {
        if (++parejas > PAREJAS_INFORMADAS) return;
        const Sitio segundo{j + 1, *todos[static_cast<std::size_t>(j)]};
        Encontrado(segundo, texto + "(también en la posición " + Texto(i + 1) + ")", "");
        if (!corrige_) ParteDelInforme() += SALTO + texto;
    };
    for (std::int32_t i = 0; i < elementos_.Count() && parejas <= PAREJAS_INFORMADAS; ++i) {
        const Elemento& e = *todos[static_cast<std::size_t>(i)];
        // Both chains run upwards: merged, the pairs of i come in the order of their second element.
        std::int32_t c = deCodigo.Siguiente(i);
        std::int32_t n = deNumero.Siguiente(i);
        while ((c >= 0 || n >= 0) && parejas <= PAREJAS_INFORMADAS) {
            if (c >= 0 && (n < 0 || c <= n)) {
                informa(i, c,
                        "El objeto Elementos contiene dos o más elementos con el código gfCodSIG " +
                            Texto(e.gfCodSIG()) + ". ");
                c = deCodigo.Siguiente(c);
            } else {
                informa(i, n,
                        "El objeto Elementos contiene dos o más elementos tipo " + Texto(e.Tipo()) +
                            " con el código de pantalla " + Texto(e.KeyPant()) + ". ");
                n = deNumero.Siguiente(n);
            }
        }
    }
    if (parejas > PAREJAS_INFORMADAS && !corrige_) {
        ParteDelInforme() +=
            SALTO + ("Hay más elementos repetidos; se informa de los primeros " + Texto(PAREJAS_INFORMADAS)) +
            ". ";
    }
}

void Verificador::VerificaTrazado(const Sitio& s, const Puntos* trazado, const char* cual,
                                  const char* dueno) {
    if (!trazado) {
        trazados_ = true;
        const std::string texto = " no tiene un " + std::string(cual) + " definido. ";
        Encontrado(s, texto, "");
        if (!corrige_)
            ParteDelInforme() +=
                SALTO + std::string(dueno) + " almacenado en la posición " + Texto(s.posicion) + texto;
    } else if (trazado->Count() < 2) {
        Pendiente(s, trazados_, " contiene " + Texto(trazado->Count()) + " puntos en su " + cual + ". ");
    }
}

void Verificador::VerificaTrazados(const Sitio& s) {
    VerificaTrazado(s, s.e.Trazado().get(), "Trazado", "El elemento");
    if (s.e.Tipo() != ctCentralHidroelectrica) return;
    VerificaTrazado(s, s.e.Trazado2().get(), "Trazado2", "El elemento centralHE");
}

void Verificador::VerificaExtremos(const Sitio& s, const Extremos& extremos) {
    if (!extremos.inicio) {
        Incorregible(s, " no tiene nudo de inicio: ElemIni: " + Texto(s.e.ElemIni()) + ". ");
    }
    if (!extremos.fin) {
        Incorregible(s, " no tiene nudo de destino: ElemFin: " + Texto(s.e.ElemFin()) + ". ");
    }
}

void Verificador::VerificaMutua(const Sitio& s, std::int32_t codigo, const char* cual) {
    const Elemento* otro = DeCodigo(codigo);
    if (!otro) return;
    const std::int32_t propio = s.e.gfCodSIG();
    if (otro->ConecSec1() != propio && otro->ConecSec2() != propio) return;
    mutuas_ = true;
    Informa(s, " tiene una conexión secundaria (" + std::string(cual) + ") con el elemento de código " +
                   Texto(codigo) + " y éste también tienen una concexión secundaria con el primero. ");
}

void Verificador::VerificaConexionesSecundarias(const Sitio& s) {
    Elemento& e = s.e;
    if (e.ConecSec2() != -1 && e.ConecSec1() == -1) {
        e.ConecSec1(e.ConecSec2());
        e.ConecSec2(-1);
        Encontrado(s, "ConecSec2 sin ConecSec1", "pasada a ConecSec1");
    } else if (e.ConecSec2() != -1) {
        VerificaMutua(s, e.ConecSec2(), "ConecSec2");
    }
    if (e.ConecSec1() != -1) VerificaMutua(s, e.ConecSec1(), "ConecSec1");
}

void Verificador::VerificaTipoDeExtremo(const Sitio& s, const Elemento* extremo, bool inicio) {
    const ReglaDeExtremo* regla = ReglaDe(s.e.Tipo(), inicio);
    if (!regla || !extremo || regla->admite(extremo->Tipo())) return;
    Incorregible(s, " está conectado al elemento de código " + Texto(extremo->gfCodSIG()) + regla->final);
}

void Verificador::VerificaTiposDeExtremos(const Sitio& s, const Extremos& extremos) {
    VerificaTipoDeExtremo(s, extremos.inicio, true);
    VerificaTipoDeExtremo(s, extremos.fin, false);
}

void Verificador::CorrigeNumeros() {
    for (const auto& nuevo : NumerosNuevos(elementos_, [](const Elemento& e) { return e.KeyPant(); })) {
        Encontrado({nuevo.posicion, *nuevo.elemento}, "Keypant " + Texto(nuevo.elemento->KeyPant()),
                   "Keypant " + Texto(nuevo.numero));
        nuevo.elemento->KeyPant(nuevo.numero);
    }
    numeros_ = false;
}

void Verificador::CorrigeCodigos() {
    for (const auto& nuevo : NumerosNuevos(elementos_, [](const Elemento& e) { return e.gfCodSIG(); })) {
        Elemento& e = *nuevo.elemento;
        Encontrado({nuevo.posicion, e}, "gfCodSIG " + Texto(e.gfCodSIG()), "gfCodSIG " + Texto(nuevo.numero));
        e.gfCodSIG(nuevo.numero);
        if (EmpiezaEnSiMismo(e.Tipo())) e.ElemIni(nuevo.numero);
    }
    elementos_.RehaceClaves();
    IndexaCodigos();
    codigos_ = false;
}

// True when both ends are there; the element is not touched otherwise.
bool Verificador::RehaceTrazados(Elemento& e) const {
    const Elemento* inicio = EmpiezaEnSiMismo(e.Tipo()) ? &e : DeCodigo(e.ElemIni());
    const Elemento* fin = DeCodigo(e.ElemFin());
    if (!inicio || !fin) return false;
    if (e.Tipo() == ctCentralHidroelectrica) {
        e.Trazado(TrazadoRecto(*inicio, e));
        e.Trazado2(TrazadoRecto(e, *fin));
    } else {
        e.Trazado(TrazadoRecto(*inicio, *fin));
        e.Trazado2(nullptr);
    }
    return true;
}

void Verificador::CorrigeTrazados() {
    trazados_ = false;
    std::int32_t posicion = 0;
    for (const auto& e : elementos_) {
        ++posicion;
        if (!EsLinealConocido(*e)) continue;
        if (RehaceTrazados(*e))
            Encontrado({posicion, *e}, "Trazado", "trazado recto entre sus extremos");
        else
            incorregible_ = true;
        if (incorregible_) return;
    }
}

}  // namespace zel
