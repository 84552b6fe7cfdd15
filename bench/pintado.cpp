// Painting a schematic against a QGraphicsView that shows the same lines, shapes and texts. Both are widgets
// of the same size on Qt's offscreen platform, both antialias, and each turn ends with the widget repainted.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <cmath>

#include "GeneraRed.h"
#include "VistaQt.h"
#include "control/PanelDibujo.h"
#include "drawing/Pintor.h"
#include "session/Extension.h"

using zel::bench::Encuadre;
using zel::bench::PANEL;

namespace {

constexpr int ELEMENTOS = 32767;
// Points of the plain text per pixel that a world unit takes: eight where a unit is a millimetre.
constexpr double PUNTOS_POR_PIXEL = 8 * 25.4 / 96;

const zel::Elementos& Red() {
    static const auto red = zel::bench::CargaRed(ELEMENTOS);
    return *red;
}

// The whole, or its middle part of that share of the area.
Encuadre Parte(const benchmark::State& estado) {
    const zel::Marco todo = *zel::ExtensionDe(Red(), 2);
    const double lado = std::sqrt(1.0 / static_cast<double>(estado.range(0)));
    const double ancho =
        std::max<double>(todo.Xmax - todo.Xmin, (todo.Ymax - todo.Ymin) * PANEL.width() / PANEL.height()) *
        lado;
    Encuadre encuadre;
    encuadre.escala.Width = static_cast<float>(ancho);
    encuadre.escala.Height = static_cast<float>(-ancho * PANEL.height() / PANEL.width());
    encuadre.escala.Left = (todo.Xmin + todo.Xmax - encuadre.escala.Width) / 2;
    encuadre.escala.Top = (todo.Ymin + todo.Ymax - encuadre.escala.Height) / 2;
    encuadre.ajustes.EscalaDibujo =
        static_cast<float>(PUNTOS_POR_PIXEL * encuadre.PixelesPorUnidad() * encuadre.escala.Width);
    return encuadre;
}

void Pintor(benchmark::State& estado) {
    const Encuadre encuadre = Parte(estado);
    zel::PanelDibujo panel;
    panel.resize(PANEL);
    panel.show();
    QApplication::processEvents();
    encuadre.En(panel.lienzo());
    for (auto _ : estado) {
        const auto fallos = zel::PintaEsquema(panel.lienzo(), encuadre.ajustes, Red(), Red());
        if (!fallos.empty()) estado.SkipWithError(fallos.front().c_str());
        panel.repaint();
    }
}
BENCHMARK(Pintor)->Arg(1)->Arg(10)->Arg(10000)->Unit(benchmark::kMillisecond)->MinTime(3);

void VistaDeGraficos(benchmark::State& estado) {
    const Encuadre encuadre = Parte(estado);
    zel::bench::VistaQt vista(Red(), encuadre);
    QApplication::processEvents();
    for (auto _ : estado)
        vista.Vista().viewport()->repaint();
    estado.counters["items"] = static_cast<double>(vista.Vista().items().size());
}
BENCHMARK(VistaDeGraficos)->Arg(1)->Arg(10)->Unit(benchmark::kMillisecond)->MinTime(3);

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication programa(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
