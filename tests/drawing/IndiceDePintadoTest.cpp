#include "drawing/IndiceDePintado.h"

#include <gtest/gtest.h>

#include "drawing/Pintor.h"
#include "support/RedAlAzar.h"

namespace zel::pruebas {
namespace {

bool SonIguales(const Trazo& a, const Trazo& b) {
    const auto lados = [](const Trazo& t) {
        std::vector<double> valores = {t.radio, t.inicio, t.fin, t.fuente};
        for (const PuntoXY& p : t.puntos)
            valores.insert(valores.end(), {p.X, p.Y});
        for (double& v : valores)
            v = std::isnan(v) ? 1e99 : v;
        return valores;
    };
    return a.que == b.que && a.texto == b.texto && a.color == b.color && a.pluma == b.pluma &&
           lados(a) == lados(b);
}

// A schematic and a surface that shows a part of it.
class Indices : public ::testing::Test {
  protected:
    void Muestra(PuntoXY centro, float ancho) {
        panel.ScaleWidth(ancho);
        panel.ScaleHeight(-ancho / 2);
        panel.ScaleLeft(centro.X - ancho / 2);
        panel.ScaleTop(centro.Y + ancho / 4);
    }
    std::vector<std::string> Pinta(IndiceDePintado* conIndice) {
        return PintaEsquema(panel, Ajustes(), *red.elementos, *red.elementos, {}, nullptr, conIndice);
    }

    RedAlAzar red{1300, 9000};
    SuperficieGrabadora panel;
    IndiceDeElementos lugares;
    IndiceDePintado indice{lugares};
};

TEST_F(Indices, PaintTheSameStrokesAndTellTheSameFailuresAsALookAtEveryElement) {
    std::size_t trazos = 0;
    for (int vez = 0; vez < 400; ++vez) {
        if (vez == 250) red.Renueva(1500);
        for (int i = red.Hasta(4); i > 0; --i)
            red.Cambia();
        indice.Ata(red.elementos);
        const auto& e = *red.elementos->Item(1 + red.Hasta(red.elementos->Count()));
        Muestra({e.XPos() + static_cast<float>(red.Hasta(400) - 200), e.YPos()},
                static_cast<float>(20 << red.Hasta(8)));
        const auto fallos = Pinta(&indice);
        const auto escogidos = std::move(panel.trazos);
        ASSERT_EQ(fallos, Pinta(nullptr)) << vez;
        ASSERT_TRUE(std::equal(escogidos.begin(), escogidos.end(), panel.trazos.begin(), panel.trazos.end(),
                               SonIguales))
            << vez << '\n'
            << Relato(escogidos) << '\n'
            << Relato(panel.trazos);
        trazos += escogidos.size();
    }
    EXPECT_GT(trazos, 5000U);
}

TEST_F(Indices, LookOnlyAtWhatMayBeInSight) {
    red.elementos = std::make_shared<Elementos>();
    for (int i = 0; i < 1100; ++i) {
        Elemento e = Rotulado("cauce", {200.0F * static_cast<float>(i), 50});
        e.ConecSec1(i == 500 ? 1 : -1);
        Numera(*red.elementos, {e});
    }
    Numera(*red.elementos, {SinTraza(ctToma, {-9000, 0}), Simbolo(ctFlecha, {-9000, 0})});
    indice.Ata(red.elementos);
    const auto codigos = [](const IndiceDePintado::Elegidos& elegidos) {
        std::vector<std::int32_t> cada;
        for (const Elemento* e : elegidos)
            cada.push_back(e->gfCodSIG());
        return cada;
    };
    using Codigos = std::vector<std::int32_t>;
    const Recuadro region = Recuadro::Alrededor({80000, 50}, 150);
    EXPECT_EQ(codigos(indice.Cuerpos(region)), (Codigos{401, 1101, 1102}));
    EXPECT_EQ(codigos(indice.Etiquetas(region, {8, 2})), (Codigos{400, 401})) << "with their usual room";
    EXPECT_EQ(codigos(indice.Etiquetas(region, {80, 2})), (Codigos{397, 398, 399, 400, 401}));
    EXPECT_EQ(codigos(indice.Etiquetas(region, {2, 0.5})), (Codigos{401})) << "made anew when too large";
    EXPECT_EQ(codigos(indice.ConSecundarias()), (Codigos{501}));
}

}  // namespace
}  // namespace zel::pruebas
