#include "control/Comandos.h"

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <limits>
#include <unordered_map>
#include <unordered_set>

#include "file/GuardadoSeguro.h"
#include "model/Mensajes.h"
#include "model/modErrorHandling.h"
#include "platform/Archivos.h"
#include "platform/Guardia.h"
#include "platform/Numeros.h"
#include "platform/ReemplazoDeArchivo.h"
#include "platform/qt/LectorDeImagen.h"

namespace zel {

namespace {

using Reloj = std::chrono::steady_clock;
constexpr auto ENTRE_TURNOS = std::chrono::milliseconds(15);
constexpr std::size_t MAXIMO_DE_PAREJAS = std::numeric_limits<std::int16_t>::max();

std::string RutaEntera(const std::string& ruta) {
    std::error_code fallo;
    const auto entera = std::filesystem::weakly_canonical(ruta, fallo);
    return fallo ? ruta : entera.string();
}

bool AdmiteSecundarias(TipoElemento tipo) noexcept {
    return tipo == ctEmbalse || tipo == ctDemanda || (tipo >= ctConduccion1 && tipo <= ctConduccion5) ||
           tipo == ctToma || tipo == ctCentralHidroelectrica;
}

}  // namespace

Comandos::Comandos(Superficie& panel, Documento& documento, Trabajo& trabajo, Refresco& refresco,
                   Vista& vista, Desplazamiento& desplazamiento, MaquinaEstados& estados,
                   Anfitrion& anfitrion, ImagenFondo& imagen, std::function<void()> cedeTurno)
    : panel_(panel),
      documento_(documento),
      trabajo_(trabajo),
      refresco_(refresco),
      vista_(vista),
      desplazamiento_(desplazamiento),
      estados_(estados),
      anfitrion_(anfitrion),
      imagen_(imagen),
      cedeTurno_(std::move(cedeTurno)) {}

void Comandos::ExigeLibre() const {
    if (vida_->cargando) throw Fallo(5, "Hay un esquema cargándose. Espere a que termine");
}

// While it runs, events come in, and one of them may destroy the control: from the first turn given away on,
// only what is held here is sure.
void Comandos::ArchivoAbrir(const std::string& archNombre) {
    std::int32_t iEstado = trabajo_.iEstado;
    const std::shared_ptr<Vida> vida = vida_;
    const auto nueva = std::make_shared<Elementos>();
    try {
        ExigeLibre();
        estados_.Estado(E_PREPARADO, 1);
        iEstado = trabajo_.iEstado;
        refresco_.AnularRefresco();
        panel_.Cls();
        trabajo_.elemSeleccionado.reset();
        Carga(archNombre, nueva);
        imagen_.AplicaSeccion(lector_->LeeSeccionImagen());
        avisoDeImagen_ = imagen_.Motivo();
    } catch (...) {
        // A call refused in the middle of a load leaves that one's progress in sight.
        if (vida->viva && !vida->cargando) {
            anfitrion_.TextoEstado(1, std::string(TextoMensajeODesconocido(5217)));
        }
        LanzaErrorVisor(iEstado, ". ErrArchivoAbrir (Esquema)");
    }
    LeeSecciones();
    documento_.bHabidoCambios = false;
    AceptaColeccion(nueva);
    RecalculaNumeracion();
    vista_.bVistaActualizada(true);
    desplazamiento_.bActualizandoScroll(false);
    refresco_.AnularRefresco();
    estados_.Estado(E_PREPARADO, 1);
    vista_.AjustarImagen(panel_, 1);
}

void Comandos::Carga(const std::string& archNombre, const std::shared_ptr<Elementos>& nueva) {
    const std::shared_ptr<Vida> vida = vida_;
    motivo_.clear();
    problemas_.clear();
    if (!lector_) lector_ = std::make_shared<lectorArchivo>();
    const std::shared_ptr<lectorArchivo> lector = lector_;
    auto ultimoTurno = Reloj::now();
    std::int32_t leidos = 0;
    lector->NombreArchivo(archNombre);
    lector->Coleccion(nueva);
    lector->AlCederTurno([&, this] {
        ++leidos;
        if (Reloj::now() - ultimoTurno < ENTRE_TURNOS) return;
        anfitrion_.TextoEstado(1, "Cargando el esquema: " + std::to_string(leidos) + " elementos ...");
        const auto cede = cedeTurno_;
        cede();
        if (!vida->viva) throw Fallo(5, "El visor se ha cerrado mientras cargaba el esquema");
        ultimoTurno = Reloj::now();
    });
    const struct Suelta {
        lectorArchivo& lector;
        ~Suelta() {
            lector.Coleccion(nullptr);
            lector.AlCederTurno({});
        }
    } suelta{*lector};
    const Guardia cargando(vida->cargando, true);
    try {
        lector->Carga();
    } catch (...) {
        if (vida->viva) motivo_ = lector->MotivoSinCargar();
        // A schematic is worth more than the log of its load.
        if (lector->FalloDelRegistro().empty()) throw;
        problemas_ = SIN_REGISTRO + (": " + lector->FalloDelRegistro()) + "\r\n";
    }
    motivo_ = lector->MotivoSinLeer();
    problemas_ += lector->Registro();
    sinLeer_ = motivo_.empty() ? std::string() : RutaEntera(archNombre);
    // The picture is looked for beside the file, wherever the process goes meanwhile.
    lector->NombreArchivo(RutaEntera(archNombre));
}

// The setting that a file may bring; whatever is wrong with it, the present value stays.
void Comandos::LeeSecciones() {
    try {
        const auto ajustes = lector_->LeeConfiguracion();
        const std::string* valor = ajustes ? ajustes->Busca("VerLineasSecundarias") : nullptr;
        if (valor) documento_.bMostrarLineasOcultas = Variante(*valor).Booleano();
    } catch (...) {
        return;
    }
}

void Comandos::AceptaColeccion(std::shared_ptr<Elementos> nueva) {
    // The one that goes may come back: it keeps no marks of a drag.
    if (trabajo_.iEstado == E_ARRASTRAR_PUNTO) estados_.BorrarInfoExtra();
    documento_.colElementos = std::move(nueva);
    const auto& e = trabajo_.elemSeleccionado;
    if (e && !documento_.colElementos->Contiene(e.get())) trabajo_.elemSeleccionado.reset();
    estados_.BorrarVariablesEstado(false);
    trabajo_.trazadoTemporal.reset();
    // What a zoom has interrupted may go on where it stands on nothing of the earlier one.
    const auto& interrumpido = trabajo_.interrumpido;
    if (interrumpido && interrumpido->iEstado != E_DIBUJANDO &&
        interrumpido->iEstado != E_ESPERAR_SUBSISTEMA) {
        trabajo_.interrumpido.reset();
        trabajo_.iEstadoAnterior = E_PREPARADO;
    }
    desplazamiento_.NuevoDocumento();
    imagen_.CierraFrame();
    // What these stand on was the earlier one's.
    switch (trabajo_.iEstado) {
        case E_ZOOM:
        case E_DIBUJANDO:
        case E_PREPARADO:
        case E_ESPERAR_SUBSISTEMA:
        case E_RECUADRO_ZOOM:
        case E_MANO:
        case E_PROCESANDO:
            return;
        default:
            estados_.Estado(E_PREPARADO, 0);
    }
}

void Comandos::ArchivoNuevo() {
    ExigeLibre();
    motivo_.clear();
    problemas_.clear();
    sinLeer_.clear();
    avisoDeImagen_.clear();
    trabajo_.elemSeleccionado.reset();
    documento_.bHabidoCambios = false;
    documento_.bMostrarLineasOcultas = true;
    documento_.bMostrarEtiquetas = true;
    AceptaColeccion(std::make_shared<Elementos>());
    imagen_.AplicaSeccion(std::nullopt);
    RecalculaNumeracion();
    estados_.Estado(E_PREPARADO, 1);
}

void Comandos::PonColeccion(std::shared_ptr<Elementos> elementos) {
    ExigeLibre();
    if (!elementos) throw Fallo(91);
    AceptaColeccion(std::move(elementos));
}

void Comandos::RecalculaNumeracion() {
    documento_.UltimoKeyPant.fill(0);
    documento_.UltimoCodSIG = 0;
    Estrecha16(documento_.colElementos->Count());
    for (const auto& e : *documento_.colElementos) {
        documento_.UltimoCodSIG = std::max(documento_.UltimoCodSIG, e->gfCodSIG());
        if (!TipoConocido(e->Tipo())) continue;
        std::int16_t& ultimo = documento_.KeyPantDe(e->Tipo());
        ultimo = std::max(ultimo, e->KeyPant());
    }
}

void Comandos::ArchivoGuardar(const std::string& archNombre) try {
    ExigeLibre();
    estados_.Estado(E_PREPARADO, 1);
    ApartaSinLeer(archNombre);
    ImagenYaGuardada guardada = GuardaConSeguridad(archNombre, documento_.colElementos, imagen_.Guardada(),
                                                   documento_.bMostrarLineasOcultas, EsImagen);
    imagen_.Guardada(std::move(guardada.ruta));
    avisoDeImagen_ = std::move(guardada.aviso);
    documento_.bHabidoCambios = false;
    estados_.Estado(E_PREPARADO, 1);
    refresco_.PedirRefresco();
    refresco_.RefrescarSiPendiente();
} catch (...) {
    LanzaErrorVisor(trabajo_.iEstado, ". ErrArchivoGuardar (Esquema)");
}

void Comandos::Exporta(const std::string& archNombre, const std::shared_ptr<Elementos>& elementos) {
    ExigeLibre();
    ApartaSinLeer(archNombre);
    GuardaConSeguridad(archNombre, elementos, std::nullopt, documento_.bMostrarLineasOcultas);
}

// A file that could not be read may still be worth something to who can mend it: it is kept beside the new
// one before that takes its place.
void Comandos::ApartaSinLeer(const std::string& archNombre) {
    if (sinLeer_.empty() || RutaEntera(archNombre) != sinLeer_) return;
    if (std::filesystem::exists(sinLeer_)) {
        std::string copia = sinLeer_ + ".bak";
        for (int i = 2; std::filesystem::exists(copia); ++i)
            copia = sinLeer_ + ".bak" + std::to_string(i);
        CopiaArchivo(sinLeer_, copia);
    }
    sinLeer_.clear();
}

void Comandos::AddElemento(const Elemento& elem) {
    std::int16_t& ultimo = documento_.KeyPantDe(elem.Tipo());
    const std::int16_t siguiente = Estrecha16(ultimo + 1);
    documento_.colElementos->AddObjetoElemento(elem, elem.gfCodSIG());
    documento_.UltimoCodSIG = elem.gfCodSIG();
    ultimo = siguiente;
}

// All pairs but the last, up to the first that fails.
template <typename Aplica>
bool Comandos::ModificaVarios(std::size_t cuantos, Aplica aplica) {
    bool hecho = true;
    try {
        refresco_.AnularRefresco();
        estados_.Estado(E_PROCESANDO, 1);
        if (cuantos > MAXIMO_DE_PAREJAS + 1) throw Fallo(6);
        for (std::size_t i = 0; i + 1 < cuantos; ++i)
            aplica(i);
    } catch (...) {
        hecho = false;
    }
    try {
        estados_.Estado(E_PREPARADO, 1);
        refresco_.PedirRefresco();
    } catch (...) {
        hecho = false;
    }
    return hecho;
}

bool Comandos::ModificaVarios_NumUser(std::span<const std::int32_t> aiCodSig,
                                      std::span<const std::int32_t> aiNums) {
    return ModificaVarios(aiCodSig.size(), [&](std::size_t i) {
        const auto e = documento_.colElementos->ItemCodSIG(aiCodSig[i]);
        if (!e || i >= aiNums.size()) throw Fallo(9);
        e->KeyPant(Estrecha16(aiNums[i]));
    });
}

bool Comandos::ModificaVarios_Nombres(std::span<const std::int32_t> aiCodGIS,
                                      std::span<const std::string> asNoms) {
    return ModificaVarios(aiCodGIS.size(), [&](std::size_t i) {
        const auto e = documento_.colElementos->ItemCodSIG(aiCodGIS[i]);
        if (!e || i >= asNoms.size()) throw Fallo(9);
        e->Nombre(asNoms[i]);
    });
}

void Comandos::ModificaVarios_ConecSec(std::span<const std::int32_t> aivOrigen,
                                       std::span<const std::int32_t> aivDestino, bool aBorraAnteriores) {
    try {
        refresco_.AnularRefresco();
        estados_.Estado(E_PROCESANDO, 1);
        BorraConexiones(aivOrigen, aBorraAnteriores);
        ConectaSecundarias(aivOrigen, aivDestino);
    } catch (...) {
        // What has been set stays set, and the host is told nothing: so this call is.
        refresco_.AnularRefresco();
    }
    try {
        estados_.Estado(E_PREPARADO, 1);
        refresco_.PedirRefresco();
    } catch (...) {
        refresco_.PedirRefresco();
    }
}

void Comandos::BorraConexiones(std::span<const std::int32_t> aivOrigen, bool todas) {
    const auto borra = [](Elemento& e) {
        e.ConecSec1(-1);
        e.ConecSec2(-1);
    };
    if (todas) {
        for (const auto& e : *documento_.colElementos)
            borra(*e);
        return;
    }
    // By code, as they are set: the host may have changed one without its key.
    const std::unordered_set<std::int32_t> origenes(aivOrigen.begin(), aivOrigen.end());
    for (const auto& e : *documento_.colElementos) {
        if (origenes.contains(e->gfCodSIG())) borra(*e);
    }
}

void Comandos::ConectaSecundarias(std::span<const std::int32_t> aivOrigen,
                                  std::span<const std::int32_t> aivDestino) {
    // Where each origin stands in the list, the first time and the second.
    constexpr std::size_t NINGUNO = std::numeric_limits<std::size_t>::max();
    std::unordered_map<std::int32_t, std::pair<std::size_t, std::size_t>> lugares;
    for (std::size_t i = 0; i < aivOrigen.size(); ++i) {
        const auto [lugar, nuevo] = lugares.try_emplace(aivOrigen[i], i, NINGUNO);
        if (!nuevo && lugar->second.second == NINGUNO) lugar->second.second = i;
    }
    const auto destino = [&](std::size_t i) {
        if (i >= aivDestino.size()) throw Fallo(9);
        return aivDestino[i];
    };
    for (const auto& e : *documento_.colElementos) {
        if (!AdmiteSecundarias(e->Tipo())) continue;
        const auto lugar = lugares.find(e->gfCodSIG());
        if (lugar == lugares.end()) continue;
        e->ConecSec1(destino(lugar->second.first));
        if (lugar->second.second != NINGUNO) e->ConecSec2(destino(lugar->second.second));
    }
}

}  // namespace zel
