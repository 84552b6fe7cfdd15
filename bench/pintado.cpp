// Painting a schematic against a QGraphicsView that shows the same lines, shapes and texts. Both are widgets
// of the same size on Qt's offscreen platform, both antialias, and each turn ends with the widget repainted.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QGraphicsView>
#include <cmath>

#include "EscenaQt.h"
#include "GeneraRed.h"
#include "control/PanelDibujo.h"
#include "drawing/Etiquetas.h"
#include "drawing/Fuente.h"
#include "drawing/Pintor.h"
#include "drawing/Simbolos.h"
#include "file/lectorArchivo.h"
#include "session/Extension.h"

namespace {

constexpr int ELEMENTOS = 32767;
constexpr QSize PANEL(1280, 800);
// Points of the plain text per pixel that a world unit takes: eight where a unit is a millimetre.
constexpr double PUNTOS_POR_PIXEL = 8 * 25.4 / 96;

const zel::Elementos& Red() {
    static const auto red = [] {
        zel::lectorArchivo lector;
        auto elementos = std::make_shared<zel::Elementos>();
        lector.NombreArchivo(zel::bench::EscribeRed(ELEMENTOS));
        lector.Coleccion(elementos);
        lector.Carga();
        return elementos;
    }();
    return *red;
}

// The part of the world that is shown: the whole, or its middle part of that share of the area.
struct Encuadre {
    explicit Encuadre(double parteDelArea) {
        const zel::Marco todo = *zel::ExtensionDe(Red(), 2);
        const double lado = std::sqrt(parteDelArea);
        const double ancho = std::max<double>(todo.Xmax - todo.Xmin,
                                              (todo.Ymax - todo.Ymin) * PANEL.width() / PANEL.height()) *
                             lado;
        escala.Width = static_cast<float>(ancho);
        escala.Height = static_cast<float>(-ancho * PANEL.height() / PANEL.width());
        escala.Left = (todo.Xmin + todo.Xmax - escala.Width) / 2;
        escala.Top = (todo.Ymin + todo.Ymax - escala.Height) / 2;
        pixelesPorUnidad = PANEL.width() / ancho;
    }
    void En(zel::Superficie& panel) const {
        panel.ScaleLeft(escala.Left);
        panel.ScaleTop(escala.Top);
        panel.ScaleWidth(escala.Width);
        panel.ScaleHeight(escala.Height);
    }
    zel::AjustesDibujo Ajustes() const {
        zel::AjustesDibujo ajustes;
        ajustes.EscalaDibujo = static_cast<float>(PUNTOS_POR_PIXEL * pixelesPorUnidad * escala.Width);
        return ajustes;
    }
    zel::Superficie::Escala escala;
    double pixelesPorUnidad = 1;
};

double ParteDelArea(const benchmark::State& estado) {
    return 1.0 / static_cast<double>(estado.range(0));
}

void Pintor(benchmark::State& estado) {
    const Encuadre encuadre(ParteDelArea(estado));
    zel::PanelDibujo panel;
    panel.resize(PANEL);
    panel.show();
    QApplication::processEvents();
    encuadre.En(panel.lienzo());
    for (auto _ : estado) {
        const auto fallos = zel::PintaEsquema(panel.lienzo(), encuadre.Ajustes(), Red(), Red());
        if (!fallos.empty()) estado.SkipWithError(fallos.front().c_str());
        panel.repaint();
    }
}
BENCHMARK(Pintor)->Arg(1)->Arg(10)->Arg(10000)->Unit(benchmark::kMillisecond)->MinTime(3);

void VistaDeGraficos(benchmark::State& estado) {
    const Encuadre encuadre(ParteDelArea(estado));
    QGraphicsScene escena;
    zel::bench::EscenaQt superficie(escena, encuadre.pixelesPorUnidad);
    encuadre.En(superficie);
    const zel::AjustesDibujo ajustes = encuadre.Ajustes();
    for (const auto& e : Red()) {
        zel::DibujarElemento(superficie, ajustes, e.get(), false);
        superficie.AsientaPuntos();
    }
    for (const auto& e : Red()) {
        zel::PonFuente(superficie, zel::FactorEtiqueta(superficie, ajustes, *e), 5);
        superficie.CurrentX(e->XPos() + e->EtiquetaPosX());
        superficie.CurrentY(e->YPos() + e->EtiquetaPosY());
        superficie.Print(e->Nombre());
    }
    QGraphicsView vista(&escena);
    vista.setRenderHint(QPainter::Antialiasing);
    vista.setViewportUpdateMode(QGraphicsView::FullViewportUpdate);
    vista.setOptimizationFlags(QGraphicsView::DontAdjustForAntialiasing |
                               QGraphicsView::DontSavePainterState);
    vista.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    vista.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    vista.setFrameShape(QFrame::NoFrame);
    vista.resize(PANEL);
    const double p = encuadre.pixelesPorUnidad;
    vista.setSceneRect(encuadre.escala.Left * p, -encuadre.escala.Top * p, PANEL.width(), PANEL.height());
    vista.show();
    QApplication::processEvents();
    for (auto _ : estado)
        vista.viewport()->repaint();
    estado.counters["items"] = static_cast<double>(escena.items().size());
}
BENCHMARK(VistaDeGraficos)->Arg(1)->Arg(10)->Unit(benchmark::kMillisecond)->MinTime(3);

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication programa(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
