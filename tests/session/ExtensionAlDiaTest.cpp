#include "session/ExtensionAlDia.h"

#include <gtest/gtest.h>

#include <array>

#include "model/TamanyoUnidad.h"
#include "support/RedAlAzar.h"

namespace zel::pruebas {
namespace {

std::array<float, 5> Lados(const std::optional<Marco>& m) {
    if (!m) return {};
    return {1, m->Xmin, m->Xmax, m->Ymin, m->Ymax};
}

TEST(ExtensionAlDia, IsTheExtensionToTheLastBitWhateverHasChanged) {
    const float unidad = TamanyoUnidad();
    RedAlAzar red(5, 1000);
    ExtensionAlDia alDia;
    int distintas = 0;
    std::array<float, 5> anterior{};
    for (int vez = 0; vez < 4000; ++vez) {
        if (vez == 1500) red.Renueva(300);
        if (vez == 2500) TamanyoUnidad(3);
        while (vez == 3000 && red.elementos->Count() > 0)  // the tree shrinks, then grows again
            red.elementos->Remove(1);
        if (red.elementos->Count() > 0) red.Cambia();
        if (vez == 3100) red.Renueva(3);
        if (vez % 50 == 0 && red.elementos->Count() > 1) red.elementos->Remove(1);  // the first one
        const float margen = vez % 500 < 400 ? 2 : 4;
        const auto lados = Lados(alDia.De(red.elementos, margen));
        ASSERT_EQ(lados, Lados(ExtensionDe(*red.elementos, margen))) << vez;
        distintas += lados != anterior;
        anterior = lados;
    }
    TamanyoUnidad(unidad);
    EXPECT_GT(distintas, 100);
}

}  // namespace
}  // namespace zel::pruebas
