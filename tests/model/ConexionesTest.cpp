#include "model/Conexiones.h"

#include <gtest/gtest.h>

#include "support/RedAlAzar.h"

namespace zel::pruebas {

TEST(Conexiones, AreThoseThatALookAtEveryElementFindsWhateverHasChanged) {
    RedAlAzar red(60, 1000);
    Conexiones conexiones;
    for (int vez = 0; vez < 1500; ++vez) {
        if (vez == 900) red.Renueva(90);
        conexiones.Ata(red.elementos);
        for (int i = red.Hasta(4); i >= 0; --i)
            red.Cambia();
        if (red.Hasta(20) == 0) red.elementos->Item(1)->gfCodSIG(red.Codigo());
        const std::int32_t codigo = red.Hasta(5) ? red.elementos->Item(5)->ElemFin() : 0;
        std::vector<std::shared_ptr<Elemento>> unidos;
        for (const auto& e : *red.elementos) {
            const bool une = e->ElemIni() == codigo || e->ElemFin() == codigo;
            if (une && EsLineal(e->Tipo()) && e->gfCodSIG() != codigo) unidos.push_back(e);
        }
        ASSERT_EQ(conexiones.De(codigo), unidos) << codigo << " at " << vez;
    }
    red.elementos.reset();
    EXPECT_TRUE(conexiones.De(0).empty());
}

}  // namespace zel::pruebas
