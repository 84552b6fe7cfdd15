// Hovering over a schematic: the search that every movement of the mouse makes, with labels, against
// QGraphicsView::items at the same points of a view of the same lines, shapes and texts.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <random>

#include "GeneraRed.h"
#include "VistaQt.h"
#include "control/PanelDibujo.h"
#include "session/Ajustes.h"
#include "session/Localizador.h"

namespace {

using zel::bench::Encuadre;
using zel::bench::PANEL;

enum Acercamiento { ENCAJADO, LEGIBLE };  // all of it; labels of eight points
constexpr std::size_t MOVIMIENTOS = 4096;

class SinBarra : public zel::Anfitrion {
    void TextoEstado(int, const std::string&) override {}
    void SueltaBotones(zel::Barra) override {}
    void PulsaBoton(zel::Barra, std::string_view) override {}
    bool BotonPulsado(zel::Barra, std::string_view) const override { return false; }
    void HazClic(zel::Barra, std::string_view) override {}
    void BarraElementosActiva(bool) override {}
    void MouseDown(std::int16_t&, std::int16_t&, float&, float&) override {}
    void Click() override {}
    void DblClick() override {}
    void ElementoSeleccionado(std::int32_t) override {}
    void CreacionNuevoElemento(const std::string&, std::int32_t, std::int32_t) override {}
    void ElementoMovido(const std::shared_ptr<zel::Elemento>&) override {}
    void ElementoModificado(const std::shared_ptr<zel::Elemento>&) override {}
    void EditarElemento(std::int32_t) override {}
    void AdjuntarArchivo(std::int32_t) override {}
    void AdjuntarVer(std::int32_t) override {}
    void PeticionBorrado(std::int32_t) override {}
    void LanzaMenu() override {}
};

// A viewer of a schematic and the places where the mouse goes, all of them over the elements.
class Visor {
  public:
    Visor(int elementos, std::int64_t acercamiento) {
        panel_.resize(PANEL);
        panel_.show();
        QApplication::processEvents();
        documento_.colElementos = zel::bench::CargaRed(elementos);
        vista_.Dispone(panel_.AnchoMm(), panel_.AltoMm());
        const float plano = panel().ScaleWidth();
        vista_.AjustarImagen(panel(), 0);
        if (acercamiento == LEGIBLE) {
            const float parte = plano / panel().ScaleWidth();
            vista_.AjustarZoomUsuario(panel(), parte * parte, true, true, 0);
        }
        std::mt19937 azar(7);
        const zel::Marco visible = zel::Marco::Visible(panel());
        const zel::Marco& red = vista_.RegionElementos();
        std::uniform_real_distribution<float> x(std::max(visible.Xmin, red.Xmin),
                                                std::min(visible.Xmax, red.Xmax));
        std::uniform_real_distribution<float> y(std::max(visible.Ymin, red.Ymin),
                                                std::min(visible.Ymax, red.Ymax));
        for (std::size_t i = 0; i < MOVIMIENTOS; ++i)
            puntos_.push_back({x(azar), y(azar)});
    }

    zel::PuntoXY Siguiente() { return puntos_[turno_++ % MOVIMIENTOS]; }
    bool Busca(zel::PuntoXY p) { return localizador_.BuscaElemento(p.X, p.Y) != nullptr; }
    zel::Lienzo& panel() { return panel_.lienzo(); }
    const zel::Elementos& Red() const { return *documento_.colElementos; }
    Encuadre encuadre() { return {panel().escala(), AjustesDe(trabajo_, documento_, vista_)}; }
    // Where the mouse would be on a view of the same part.
    QPoint EnPixeles(zel::PuntoXY p) {
        const double escala = encuadre().PixelesPorUnidad();
        return {static_cast<int>((p.X - panel().ScaleLeft()) * escala),
                static_cast<int>((panel().ScaleTop() - p.Y) * escala)};
    }

  private:
    zel::PanelDibujo panel_;
    zel::Documento documento_;
    zel::Trabajo trabajo_;
    zel::Refresco refresco_{panel_.lienzo()};
    zel::Avisos avisos_{trabajo_, refresco_};
    SinBarra anfitrion_;
    zel::Vista vista_{panel_.lienzo(), documento_, trabajo_, refresco_, avisos_, anfitrion_};
    std::int32_t subrayado_ = 0;
    zel::Localizador localizador_{panel_.lienzo(), documento_, trabajo_, vista_,
                                  [this](std::int32_t codigo) { subrayado_ = codigo; }};
    std::vector<zel::PuntoXY> puntos_;
    std::size_t turno_ = 0;
};

// `antes` is called before each search.
template <typename Antes>
void Pasea(benchmark::State& estado, Visor& visor, Antes antes) {
    visor.Busca(visor.Siguiente());  // the index is there
    std::int64_t hallados = 0;
    for (auto _ : estado) {
        antes();
        hallados += visor.Busca(visor.Siguiente());
    }
    estado.counters["found"] = static_cast<double>(hallados) / static_cast<double>(estado.iterations());
}

void BuscaElemento(benchmark::State& estado) {
    Visor visor(static_cast<int>(estado.range(0)), estado.range(1));
    Pasea(estado, visor, [] {});
}

// An element, its label and its trace's end move before each search, another one each time.
void BuscaElementoTrasMover(benchmark::State& estado) {
    Visor visor(static_cast<int>(estado.range(0)), estado.range(1));
    std::int32_t turno = 0;
    Pasea(estado, visor, [&] {
        const auto& e = **(visor.Red().begin() + turno++ % visor.Red().Count());
        const auto movido = visor.Red().Referencia(&e);
        movido->XPos(movido->XPos() + (turno % 2 == 0 ? 1.0F : -1.0F));
        if (movido->Trazado())
            movido->Trazado()->Item(1)->YPos(movido->YPos() + static_cast<float>(turno % 2));
    });
}

// The first search after a change of the zoom: every label is measured anew.
void BuscaElementoTrasZoom(benchmark::State& estado) {
    Visor visor(static_cast<int>(estado.range(0)), estado.range(1));
    const float ancho = visor.panel().ScaleWidth();
    int turno = 0;
    Pasea(estado, visor, [&] { visor.panel().ScaleWidth(ancho * (++turno % 2 == 0 ? 1.0F : 1.01F)); });
}

void ItemsDeVista(benchmark::State& estado) {
    Visor visor(static_cast<int>(estado.range(0)), estado.range(1));
    zel::bench::VistaQt vista(visor.Red(), visor.encuadre());
    QApplication::processEvents();
    vista.Vista().items(visor.EnPixeles(visor.Siguiente()));  // its index is there
    std::int64_t hallados = 0;
    for (auto _ : estado)
        hallados += !vista.Vista().items(visor.EnPixeles(visor.Siguiente())).isEmpty();
    estado.counters["found"] = static_cast<double>(hallados) / static_cast<double>(estado.iterations());
}

void Tamanyos(benchmark::internal::Benchmark* b) {
    b->Args({32767, ENCAJADO})->Args({32767, LEGIBLE})->Unit(benchmark::kMicrosecond);
}
BENCHMARK(ItemsDeVista)->Apply(Tamanyos);
BENCHMARK(BuscaElemento)->Apply(Tamanyos)->Args({8192, LEGIBLE});
BENCHMARK(BuscaElementoTrasMover)->Apply(Tamanyos)->Args({8192, LEGIBLE});
BENCHMARK(BuscaElementoTrasZoom)->Apply(Tamanyos);

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication programa(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
