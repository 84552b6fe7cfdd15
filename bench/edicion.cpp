// Editing by hand: what one movement of a dragged node costs, with ten conduits at it, and what its drop
// costs, in a schematic of many elements. Through the widget's own mouse events.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QGraphicsEllipseItem>
#include <QGraphicsLineItem>
#include <QMouseEvent>
#include <algorithm>
#include <cmath>
#include <vector>

#include "GeneraRed.h"
#include "VistaQt.h"
#include "control/Esquema.h"
#include "control/PanelDibujo.h"
#include "editing/Subsistema.h"

namespace {

constexpr int UNIDOS = 10;
constexpr float RADIO = 60;
constexpr float LADO_VISIBLE = 400;  // world units across the view
constexpr std::int32_t CODIGO = 1000000;

// Beside the network, a node in the middle of ten others, with a conduit to each.
void AgregaEstrella(zel::Elementos& red, zel::PuntoXY centro) {
    red.Add(zel::ctNudo, "Centro", CODIGO, 1, centro.X, centro.Y, 0, 0, nullptr, nullptr, "x", 5, 4);
    for (int i = 1; i <= UNIDOS; ++i) {
        const double angulo = 6.283 * i / UNIDOS;
        const zel::PuntoXY p{centro.X + RADIO * static_cast<float>(std::cos(angulo)),
                             centro.Y + RADIO * static_cast<float>(std::sin(angulo))};
        red.Add(zel::ctNudo, "Punta", CODIGO + i, 1, p.X, p.Y, 0, 0, nullptr, nullptr, "x", 5, 4);
        auto traza = std::make_shared<zel::Puntos>();
        traza->Add(centro.X, centro.Y);
        traza->Add(p.X, p.Y);
        red.Add(zel::ctConduccion1, "Conducción", CODIGO + 100 + i, 1, centro.X, centro.Y, CODIGO, CODIGO + i,
                traza, nullptr, "x", 1, 1);
    }
}

// A control that shows the star and a corner of the network, the same whatever its size.
class Mesa {
  public:
    explicit Mesa(int elementos) {
        esquema_.resize(zel::bench::PANEL);
        esquema_.show();
        QApplication::processEvents();
        auto red = zel::bench::CargaRed(elementos);
        float x = 1e9F, y = 1e9F;
        for (const auto& e : *red) {
            x = std::min(x, e->XPos());
            y = std::min(y, e->YPos());
        }
        centro_ = {x - RADIO - 40, y + LADO_VISIBLE / 4};
        AgregaEstrella(*red, centro_);
        esquema_.GetElementos(red);
        const float alto =
            LADO_VISIBLE * static_cast<float>(Panel().height()) / static_cast<float>(Panel().width());
        const float izquierda = centro_.X - LADO_VISIBLE / 2, abajo = centro_.Y - alto / 2;
        esquema_.Scale_(zel::Variante(izquierda), zel::Variante(abajo + alto),
                        zel::Variante(izquierda + LADO_VISIBLE), zel::Variante(abajo));
        Raton(QEvent::MouseButtonPress, centro_);
        Raton(QEvent::MouseButtonRelease, centro_);
    }

    void Empieza() {
        Raton(QEvent::MouseButtonPress, donde_);
        Mueve();
    }
    // Round the middle.
    void Mueve() {
        const double angulo = 0.1 * ++turno_;
        donde_ = {centro_.X + 20 * static_cast<float>(std::cos(angulo)),
                  centro_.Y + 20 * static_cast<float>(std::sin(angulo))};
        Raton(QEvent::MouseMove, donde_);
    }
    void Suelta() { Raton(QEvent::MouseButtonRelease, donde_); }
    void Pinta() { Panel().repaint(); }
    bool SeHaMovidoA(zel::PuntoXY p) const {
        const auto e = esquema_.GetElementos()->ItemCodSIG(CODIGO);
        return std::hypot(e->XPos() - p.X, e->YPos() - p.Y) < 1;
    }
    zel::PuntoXY Donde() const { return donde_; }
    void VuelveAlCentro() { donde_ = centro_; }

  private:
    zel::PanelDibujo& Panel() const { return *esquema_.findChild<zel::PanelDibujo*>("Panel"); }
    void Raton(QEvent::Type tipo, zel::PuntoXY p) {
        const double escala = Panel().width() / double{esquema_.ScaleWidth()};
        const QPointF en((p.X - esquema_.ScaleLeft()) * escala, (esquema_.ScaleTop() - p.Y) * escala);
        const bool mueve = tipo == QEvent::MouseMove;
        QMouseEvent evento(tipo, en, Panel().mapToGlobal(en), mueve ? Qt::NoButton : Qt::LeftButton,
                           tipo == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton,
                           Qt::NoModifier);
        QApplication::sendEvent(&Panel(), &evento);
    }

    zel::Esquema esquema_;
    zel::PuntoXY centro_{};
    zel::PuntoXY donde_{};
    int turno_ = 0;
};

// One movement of the mouse in the middle of a drag; with the widget repainted when asked for.
void MueveArrastrado(benchmark::State& estado) {
    Mesa mesa(static_cast<int>(estado.range(0)));
    mesa.VuelveAlCentro();
    mesa.Empieza();
    for (auto _ : estado) {
        mesa.Mueve();
        if (estado.range(1) == 1) mesa.Pinta();
    }
    mesa.Suelta();
    if (!mesa.SeHaMovidoA(mesa.Donde())) estado.SkipWithError("nothing was dragged");
}

// The release that drops it: the checks, the traces, the labels, the regions and the repaint.
void SueltaArrastrado(benchmark::State& estado) {
    Mesa mesa(static_cast<int>(estado.range(0)));
    mesa.VuelveAlCentro();
    for (auto _ : estado) {
        estado.PauseTiming();
        mesa.Empieza();
        mesa.Mueve();
        estado.ResumeTiming();
        mesa.Suelta();
        if (!mesa.SeHaMovidoA(mesa.Donde())) {
            estado.SkipWithError("nothing was dropped");
            break;
        }
    }
}

// The peer of the movement: an item and ten lines of a QGraphicsView on the same network.
void MueveItemDeVista(benchmark::State& estado) {
    const auto red = zel::bench::CargaRed(static_cast<int>(estado.range(0)));
    zel::bench::Encuadre encuadre;
    const float alto = LADO_VISIBLE * static_cast<float>(zel::bench::PANEL.height()) /
                       static_cast<float>(zel::bench::PANEL.width());
    encuadre.escala = {0, alto, LADO_VISIBLE, -alto};
    zel::bench::VistaQt vista(*red, encuadre);
    QGraphicsScene& escena = *vista.Vista().scene();
    const QPointF centro = vista.Vista().mapToScene(vista.Vista().viewport()->rect().center());
    auto* nudo = escena.addEllipse(-4, -4, 8, 8);
    std::vector<QGraphicsLineItem*> lineas;
    for (int i = 0; i < UNIDOS; ++i)
        lineas.push_back(escena.addLine({}));
    QApplication::processEvents();
    int turno = 0;
    for (auto _ : estado) {
        const double angulo = 0.1 * ++turno;
        const QPointF p = centro + QPointF(20 * std::cos(angulo), 20 * std::sin(angulo));
        nudo->setPos(p);
        for (int i = 0; i < UNIDOS; ++i) {
            const double a = 6.283 * i / UNIDOS;
            lineas[static_cast<std::size_t>(i)]->setLine(
                QLineF(p, centro + QPointF(RADIO * std::cos(a), RADIO * std::sin(a))));
        }
        QApplication::processEvents();
    }
}

// The conduits join a subsystem of half of the elements.
void UneConducciones(benchmark::State& estado) {
    zel::Documento documento;
    documento.colElementos = zel::bench::CargaRed(static_cast<int>(estado.range(0)));
    std::int64_t unidas = 0;
    for (auto _ : estado) {
        estado.PauseTiming();
        zel::Trabajo trabajo;
        trabajo.elemSubsistema = std::make_shared<zel::Elementos>();
        std::int32_t turno = 0;
        for (const auto& e : *documento.colElementos) {
            if (zel::TieneSimbolo(e->Tipo()) && ++turno * 2 <= documento.colElementos->Count())
                trabajo.elemSubsistema->AddObjetoElemento(*e);
        }
        const std::int32_t antes = trabajo.elemSubsistema->Count();
        estado.ResumeTiming();
        E_15_AgregarConducciones(documento, trabajo);
        unidas = trabajo.elemSubsistema->Count() - antes;
        estado.PauseTiming();
        trabajo.elemSubsistema.reset();
        estado.ResumeTiming();
    }
    estado.counters["joined"] = static_cast<double>(unidas);
}

}  // namespace

BENCHMARK(MueveArrastrado)->Args({8192, 0})->Args({32767, 0})->Args({8192, 1})->Args({32767, 1});
BENCHMARK(MueveItemDeVista)->Arg(8192)->Arg(32767);
BENCHMARK(SueltaArrastrado)->Arg(8192)->Arg(32767)->Unit(benchmark::kMillisecond);
BENCHMARK(UneConducciones)->Arg(8192)->Arg(32767)->Unit(benchmark::kMillisecond);

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication aplicacion(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
