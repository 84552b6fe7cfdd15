#include "model/Conexiones.h"

#include <gtest/gtest.h>

#include "support/RedAlAzar.h"

namespace zel::pruebas {

TEST(Conexiones, AreThoseThatALookAtEveryElementFindsWhateverHasChanged) {
    RedAlAzar red(60, 1000);
    Conexiones conexiones;
    EXPECT_TRUE(conexiones.De(0).empty());
    int halladas = 0;
    for (int vez = 0; vez < 1500; ++vez) {
        if (vez == 900) red.Renueva(90);
        conexiones.Ata(red.elementos);
        red.Cambia();
        if (red.Hasta(3) == 0) continue;  // several changes at once
        if (red.Hasta(20) == 0) red.elementos->Item(1)->gfCodSIG(red.Codigo());
        const std::int32_t codigo = red.Hasta(5) ? red.Codigo() : 0;
        std::vector<std::shared_ptr<Elemento>> unidos;
        for (const auto& e : *red.elementos) {
            const bool une = e->ElemIni() == codigo || e->ElemFin() == codigo;
            if (une && EsLineal(e->Tipo()) && e->gfCodSIG() != codigo) unidos.push_back(e);
        }
        ASSERT_EQ(conexiones.De(codigo), unidos) << codigo << " at " << vez;
        halladas += static_cast<int>(unidos.size());
    }
    EXPECT_GT(halladas, 1000);
    red.elementos.reset();
    EXPECT_TRUE(conexiones.De(0).empty());
}

}  // namespace zel::pruebas
