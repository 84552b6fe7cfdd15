#include "drawing/IndiceDePintado.h"

#include <algorithm>
#include <cmath>

namespace zel {

namespace {

// Room in the labels' boxes: text grows with the zoom, what its rounding adds grows as the view does.
constexpr double HOLGURA_POR_FACTOR = 1.25;
constexpr double HOLGURA_FIJA = 4;
constexpr double DEMASIADA = 16;  // from that much on they are made anew, smaller
constexpr double REDONDEO = 1 + 1e-5;
constexpr double ALTO_EXCESIVO = 1e30;

bool SinLugar(const Elemento& e) noexcept {
    const TipoElemento tipo = e.Tipo();
    const auto falta = [](const std::shared_ptr<Puntos>& t) { return !t || t->Count() < 2; };
    if (!TipoConocido(tipo)) return true;
    if (!EsLineal(tipo)) return false;
    return falta(e.Trazado()) || (tipo == ctCentralHidroelectrica && falta(e.Trazado2()));
}

// Holds the label at any scale at which a line is that high at most; see Alcance in Etiquetas. A label
// without a place is everywhere.
Recuadro CajaMayorDeEtiqueta(const Elemento& e, const AltoDeLetra& mayor) noexcept {
    if (!e.MostrarEtiqueta()) return {};
    constexpr double INFINITO = std::numeric_limits<double>::infinity();
    const double x = e.XPos() + e.EtiquetaPosX();
    const double y = e.YPos() + e.EtiquetaPosY();
    if (std::isnan(x) || std::isnan(y)) return {-INFINITO, -INFINITO, INFINITO, INFINITO};
    const std::string& nombre = e.Nombre();
    const double factor = double{e.EtiquetaTamanyo()} * (e.EtiquetaTamanyoRelativo() ? e.Tamanyo() : 1);
    const double alto = (mayor.porFactor * factor + mayor.fija) * REDONDEO;
    const auto lineas = 1 + std::count(nombre.begin(), nombre.end(), '\n');
    return {x, y - static_cast<double>(lineas) * alto, x + static_cast<double>(nombre.size()) * alto, y};
}

void Ordena(IndiceDePintado::Elegidos& elegidos) {
    std::sort(elegidos.begin(), elegidos.end(),
              [](const Elemento* a, const Elemento* b) { return a->Orden() < b->Orden(); });
    elegidos.erase(std::unique(elegidos.begin(), elegidos.end()), elegidos.end());
}

}  // namespace

bool AltoDeLetra::Vale() const noexcept {
    return porFactor >= 0 && fija >= 0 && porFactor + fija < ALTO_EXCESIVO;
}

void IndiceDePintado::Ata(const std::shared_ptr<Elementos>& elementos) noexcept {
    lugares_.Ata(elementos);
    deListas_.Ata(elementos);
    deEtiquetas_.Ata(elementos);
}

void IndiceDePintado::PonEnLista(PorOrden& lista, const DiarioDeCambios::Cambio& cambio, bool pertenece) {
    if (pertenece)
        lista[cambio.Orden] = cambio.elemento;
    else
        lista.erase(cambio.Orden);
}

void IndiceDePintado::PonListasAlDia() {
    deListas_.PonAlDia(
        [&](std::size_t) {
            siempre_.clear();
            conSecundarias_.clear();
        },
        [&](const DiarioDeCambios::Cambio& c) {
            PonEnLista(siempre_, c, !c.Quitado && SinLugar(*c.elemento));
            PonEnLista(conSecundarias_, c,
                       !c.Quitado && (c.elemento->ConecSec1() > 0 || c.elemento->ConecSec2() > 0));
        });
}

void IndiceDePintado::PonEtiquetasAlDia(const AltoDeLetra& alto) {
    const bool cabe = alto.porFactor <= banda_.porFactor && alto.fija <= banda_.fija;
    const bool holgada = banda_.porFactor + banda_.fija > DEMASIADA * (alto.porFactor + alto.fija);
    if (!cabe || holgada) {
        banda_ = {HOLGURA_POR_FACTOR * alto.porFactor, HOLGURA_FIJA * alto.fija};
        deEtiquetas_.Olvida();
    }
    deEtiquetas_.PonAlDia(
        [&](std::size_t cuantos) {
            etiquetas_.Vacia();
            etiquetas_.Reserva(cuantos);
        },
        [&](const DiarioDeCambios::Cambio& c) {
            if (c.Quitado)
                etiquetas_.Quita(c.elemento);
            else
                etiquetas_.Pon(*c.elemento, CajaMayorDeEtiqueta(*c.elemento, banda_));
        });
}

IndiceDePintado::Elegidos IndiceDePintado::Cuerpos(const Recuadro& region) {
    PonListasAlDia();
    Elegidos elegidos;
    for (const auto& [orden, elemento] : siempre_)
        elegidos.push_back(elemento);
    lugares_.VisitaCuerpos(region, [&](const Elemento& e, const Recuadro&) { elegidos.push_back(&e); });
    Ordena(elegidos);
    return elegidos;
}

IndiceDePintado::Elegidos IndiceDePintado::Etiquetas(const Recuadro& region, const AltoDeLetra& alto) {
    PonEtiquetasAlDia(alto);
    Elegidos elegidos;
    etiquetas_.Visita(region, [&](const Elemento& e, const Recuadro&) { elegidos.push_back(&e); });
    Ordena(elegidos);
    return elegidos;
}

IndiceDePintado::Elegidos IndiceDePintado::ConSecundarias() {
    PonListasAlDia();
    Elegidos elegidos;
    for (const auto& [orden, elemento] : conSecundarias_)
        elegidos.push_back(elemento);
    return elegidos;
}

}  // namespace zel
