#include "session/ExtensionAlDia.h"

#include <gtest/gtest.h>

#include "model/TamanyoUnidad.h"
#include "support/RedAlAzar.h"

namespace zel::pruebas {

TEST(ExtensionAlDia, IsTheExtensionToTheLastBitWhateverHasChanged) {
    const float unidad = TamanyoUnidad();
    RedAlAzar red(5, 1000);
    ExtensionAlDia alDia;
    int distintas = 0;
    std::optional<Marco> anterior;
    for (int vez = 0; vez < 4000; ++vez) {
        if (vez == 1500) red.Renueva(300);
        if (vez == 2600) TamanyoUnidad(3);
        while (vez == 3000 && red.elementos->Count() > 0)
            red.elementos->Remove(1);
        if (vez == 3100) red.Renueva(3);
        if (red.elementos->Count() > 0) red.Cambia();
        if (vez % 50 == 0 && red.elementos->Count() > 1) red.elementos->Remove(1);  // the first one
        const float margen = vez % 500 < 400 ? 2 : 4;
        const auto extension = alDia.De(red.elementos, margen);
        ASSERT_EQ(extension, ExtensionDe(*red.elementos, margen)) << vez;
        distintas += extension != anterior;
        anterior = extension;
    }
    TamanyoUnidad(unidad);
    EXPECT_GT(distintas, 100);
}

}  // namespace zel::pruebas
