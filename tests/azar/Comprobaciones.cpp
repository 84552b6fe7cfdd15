#include "azar/Comprobaciones.h"

#include <QApplication>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <set>
#include <utility>

#include "file/lectorArchivo.h"
#include "model/Contorno.h"
#include "model/TamanyoUnidad.h"
#include "model/Verificador.h"

namespace zel::azar {

namespace {

std::string Bytes(const std::shared_ptr<Elementos>& elementos, const std::string& ruta) {
    lectorArchivo escritor;
    escritor.NombreArchivo(ruta);
    escritor.Coleccion(elementos);
    if (!escritor.GuardaEsquema()) return {};
    escritor.GuardaDocumento();
    return pruebas::LeeArchivo(ruta);
}

std::string Describe(const Elemento& e) {
    return "[" + std::to_string(e.gfCodSIG()) + "] " + e.Nombre();
}

// The radius that the end of a trace keeps from the centre of a symbol.
float RadioDe(const Elemento& simbolo) {
    const float radio = RadioSimbolo(simbolo.Tamanyo());
    return radio >= 3 * TamanyoUnidad() ? TamanyoUnidad() : radio;
}

QImage SinAcuiferos(PanelDibujo& panel, const Elementos& elementos) {
    QImage imagen = panel.lienzo().Imagen().copy();
    QPainter pintor(&imagen);
    for (const auto& e : elementos) {
        if (e->Tipo() != ctAcuifero) continue;
        const float radio = RadioSimbolo(e->Tamanyo());
        const QRectF caja(panel.EnElPanel({e->XPos() - radio, e->YPos() + radio}),
                          panel.EnElPanel({e->XPos() + radio, e->YPos() - radio}));
        pintor.fillRect(caja.adjusted(-3, -3, 3, 3), Qt::gray);
    }
    return imagen;
}

// Shades of 255. A lasso is drawn piece by piece, whose ends lie one upon the other.
constexpr int MARGEN = 60;
constexpr int MARGEN_DEL_LAZO = 150;

// But for a shade at the edge of large letters, which Qt does not always draw at the same fraction of a
// pixel.
bool SeVenIguales(const QImage& a, const QImage& b, int margen) {
    if (a.size() != b.size()) return false;
    for (int y = 0; y < a.height(); ++y) {
        const auto *fila = a.constScanLine(y), *otra = b.constScanLine(y);
        if (!std::equal(fila, fila + qsizetype{4} * a.width(), otra,
                        [margen](int p, int q) { return std::abs(p - q) <= margen; }))
            return false;
    }
    return true;
}

}  // namespace

Comprobaciones::Comprobaciones(Mesa& mesa) : mesa_(mesa) {
    MiraElEsquema();
    limpios_ = bytes_;
}

void Comprobaciones::TrasUnGesto(const Gesto& g, bool conPanel) {
    MiraElEsquema();
    if (mesa_.Renovado()) limpios_ = bytes_;
    if (mesa_.esquema().bHabidoCambios()) {
        mesa_.TomaLaMarca();
        limpios_ = bytes_;
    } else if (bytes_ != limpios_) {
        mesa_.carpeta.Escribe("antes.xml", limpios_);
        mesa_.Falla("what would be saved has changed, and bHabidoCambios is not set");
    }
    if (conPanel) MiraElPanel(g.que == Que::Mueve);
}

void Comprobaciones::MiraElEsquema() {
    std::set<std::int32_t> codigos;
    const auto elementos = mesa_.esquema().GetElementos();
    for (const auto& e : *elementos) {
        if (!codigos.insert(e->gfCodSIG()).second) mesa_.Falla("two elements are " + Describe(*e));
    }
    const std::string ahora = Bytes(elementos, (mesa_.carpeta / "ahora.xml").string());
    if (ahora.empty()) mesa_.Falla("an element cannot be saved");
    if (std::exchange(bytes_, ahora) == ahora) return;
    MiraLosExtremos();
    MiraLoQueSeGuarda(ahora);
}

void Comprobaciones::MiraLosExtremos() {
    const auto elementos = mesa_.esquema().GetElementos();
    const auto exige = [&](const Elemento& e, const std::shared_ptr<Punto>& punto, const Elemento& simbolo) {
        const float lejos = std::hypot(punto->XPos() - simbolo.XPos(), punto->YPos() - simbolo.YPos());
        // On a line that is nearly vertical the point is as exact as its rounded X lets it be.
        const bool vertical = std::abs(punto->XPos() - simbolo.XPos()) < 0.01F;
        if (std::abs(lejos - RadioDe(simbolo)) < TamanyoUnidad() / (vertical ? 4 : 50)) return;
        mesa_.Falla("the trace of " + Describe(e) + " ends at " + std::to_string(lejos) +
                    " of the centre of " + Describe(simbolo) + ", whose radius is " +
                    std::to_string(RadioDe(simbolo)));
    };
    for (const auto& e : *elementos) {
        if (!EsLineal(e->Tipo())) continue;
        const bool central = e->Tipo() == ctCentralHidroelectrica;
        const auto ini = SeTrataComoSimbolo(e->Tipo()) && !central ? e : elementos->ItemCodSIG(e->ElemIni());
        const auto fin = elementos->ItemCodSIG(e->ElemFin());
        if (!ini || !fin) {
            mesa_.Falla(Describe(*e) + " has an end that is not there");
            continue;
        }
        exige(*e, e->Trazado()->Item(1), *ini);
        exige(*e, e->Trazado()->Item(e->Trazado()->Count()), central ? *e : *fin);
        if (!central) continue;
        exige(*e, e->Trazado2()->Item(1), *e);
        exige(*e, e->Trazado2()->Item(e->Trazado2()->Count()), *fin);
    }
}

void Comprobaciones::MiraLoQueSeGuarda(const std::string& bytes) {
    lectorArchivo lector;
    lector.NombreArchivo((mesa_.carpeta / "ahora.xml").string());
    const auto leidos = std::make_shared<Elementos>();
    lector.Coleccion(leidos);
    lector.Carga();
    if (Bytes(leidos, (mesa_.carpeta / "otra.xml").string()) != bytes)
        mesa_.Falla("saved, loaded and saved again it is another");
    Verificador verificador(*leidos, false, true);
    verificador.Verifica();
    for (const HallazgoIntegridad& h : std::move(verificador).Hallazgos()) {
        // What is typed into the second place alone is moved by the check itself.
        if (h.Problema == "ConecSec2 sin ConecSec1") continue;
        mesa_.Falla("integrity: [" + std::to_string(h.Codigo) + "] " + h.Nombre + ": " + h.Problema);
    }
}

// Once the events in waiting are through. A repaint forgets the underline and what follows the mouse until
// this moves; while a button is held an underline does not come back, so that only what moves on is compared
// then. The dots of an aquifer go with the first repaint after a change of the view, and come back with the
// next press. A new element is drawn over what is there, and takes its place among the rest with the next
// repaint.
void Comprobaciones::MiraElPanel(bool seMovia) {
    const bool pulsadoAntes = std::exchange(pulsaciones_, mesa_.Pulsaciones()) == mesa_.Pulsaciones();
    const std::int32_t cuantos = mesa_.esquema().GetElementos()->Count();
    const bool crecia = std::exchange(cuantos_, cuantos) < cuantos;
    const bool compara = !crecia && (!mesa_.Pulsado() || (pulsadoAntes && seMovia));
    const auto espera = [&] {
        QApplication::processEvents();
        mesa_.MueveEnElSitio();
        QApplication::processEvents();
        return SinAcuiferos(mesa_.panel(), *mesa_.esquema().GetElementos());
    };
    const QImage visto = espera();
    mesa_.esquema().BackColor(mesa_.esquema().BackColor());
    const QImage nuevo = espera();
    if (!compara || SeVenIguales(visto, nuevo, mesa_.Pulsado() ? MARGEN_DEL_LAZO : MARGEN)) return;
    visto.save(QString::fromStdString((mesa_.carpeta / "visto.png").string()));
    nuevo.save(QString::fromStdString((mesa_.carpeta / "nuevo.png").string()));
    mesa_.Falla("the panel does not show what a fresh repaint shows");
}

}  // namespace zel::azar
