#include "drawing/IndiceDePintado.h"

#include <gtest/gtest.h>

#include "drawing/Pintor.h"
#include "support/RedAlAzar.h"

namespace zel::pruebas {
namespace {

std::string RelatoConPinceles(const std::vector<Trazo>& trazos) {
    std::string relato = Relato(trazos);
    for (const Trazo& t : trazos)
        relato += '\n' + Pincel(t.pluma) + " " + Cifra(t.fuente);
    return relato;
}

struct Indices : ::testing::Test {
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
        panel.ScaleWidth(static_cast<float>(20 << red.Hasta(8)));
        panel.ScaleHeight(-panel.ScaleWidth() / 2);
        panel.ScaleLeft(e.XPos() - static_cast<float>(red.Hasta(400)));
        panel.ScaleTop(e.YPos() + static_cast<float>(red.Hasta(100)));
        const auto pinta = [&](IndiceDePintado* con) {
            return PintaEsquema(panel, Ajustes(), *red.elementos, *red.elementos, {}, nullptr, con);
        };
        const auto fallos = pinta(&indice);
        const std::string escogidos = RelatoConPinceles(panel.trazos);
        ASSERT_EQ(fallos, pinta(nullptr)) << vez;
        ASSERT_EQ(escogidos, RelatoConPinceles(panel.trazos)) << vez;
        trazos += panel.trazos.size();
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
        std::string texto;
        for (const Elemento* e : elegidos)
            texto += std::to_string(e->gfCodSIG()) + " ";
        return texto;
    };
    const Recuadro region = Recuadro::Alrededor({80000, 50}, 150);
    EXPECT_EQ(codigos(indice.Cuerpos(region)), "401 1101 1102 ");
    EXPECT_EQ(codigos(indice.Etiquetas(region, {8, 2})), "400 401 ") << "with their usual room";
    EXPECT_EQ(codigos(indice.Etiquetas(region, {80, 2})), "398 399 400 401 ");
    EXPECT_EQ(codigos(indice.Etiquetas(region, {2, 0.5})), "401 ") << "made anew when too large";
    EXPECT_EQ(codigos(indice.ConSecundarias()), "501 ");
}

}  // namespace
}  // namespace zel::pruebas
