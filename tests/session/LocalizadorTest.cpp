#include "session/Localizador.h"

#include "support/Mesa.h"

namespace zel::pruebas {
namespace {

class Localizadores : public Mesa {
  protected:
    Localizadores() {
        Numera(*documento.colElementos,
               {Simbolo(ctNudo, {0, 0}), Lineal(ctRetorno, {40, 0}, {{40, 0}, {80, 0}, {80, 40}})});
    }
    // The code found, "temporal" for an element of no collection; then the part, "c" for the element
    // itself, the segment and the underline.
    std::string En(PuntoXY p, bool bTrazadoNuevo = false, bool bSoloSeleccionado = false,
                   const std::shared_ptr<Puntos>& prueba = nullptr,
                   const std::unordered_set<std::int32_t>* excluidos = nullptr) {
        subrayado = -1;
        const auto e =
            localizador.BuscaElemento(p.X, p.Y, excluidos, bTrazadoNuevo, bSoloSeleccionado, prueba);
        const auto& propios = *documento.colElementos;
        return (!e                          ? "nada"
                : propios.Contiene(e.get()) ? std::to_string(e->gfCodSIG())
                                            : "temporal") +
               " p" + std::to_string(trabajo.iParteEncontrada) + (trabajo.bCuerpoElemento ? "c" : "") + " s" +
               std::to_string(trabajo.iSegmentoEncontrado) + " u" + std::to_string(subrayado);
    }

    std::int32_t subrayado = -1;
    Localizador localizador{panel, documento, trabajo, vista, [this](std::int32_t c) { subrayado = c; }};
};

TEST_F(Localizadores, KeepWhatIsFoundAndUnderlineIt) {
    EXPECT_EQ(En({80, 20}), "2 p1 s2 u2");
    EXPECT_EQ(En({1, 1}), "1 p0c s0 u1");
    EXPECT_EQ(En({200, 200}), "nada p0 s0 u0");
    EXPECT_TRUE(localizador.HayElementoBajoEtiqueta({38, 10}, {10, -10}));
    EXPECT_FALSE(localizador.HayElementoBajoEtiqueta({76, 20}, {10, -10}));
    documento.colElementos = std::make_shared<Elementos>();
    EXPECT_EQ(En({1, 1}), "nada p0 s0 u0");
    EXPECT_FALSE(localizador.HayElementoBajoEtiqueta({38, 10}, {10, -10}));
}

TEST_F(Localizadores, SearchOnlyWhatTheyAreAsked) {
    EXPECT_EQ(En({0, 0}, false, true), "nada p0 s0 u0");
    trabajo.elemSeleccionado = documento.colElementos->Item(2);
    EXPECT_EQ(En({0, 0}, false, true), "nada p0 s0 u0");
    EXPECT_EQ(En({80, 20}, false, true), "2 p1 s2 u2");
    const std::unordered_set<std::int32_t> dos = {2};
    EXPECT_EQ(En({80, 20}, false, true, nullptr, &dos), "nada p0 s0 u0");
    EXPECT_EQ(En({40, 0}, false, true, nullptr, &dos), "2 p0c s0 u2");
    EXPECT_EQ(En({80, 20}, false, false, nullptr, &dos), "nada p0 s0 u0");
    EXPECT_EQ(En({0, 90}, false, false, Traza({{-5, 90}, {5, 90}})), "temporal p1c s1 u0");
    EXPECT_EQ(En({0, 0}, false, false, Traza({{-5, 90}, {5, 90}})), "nada p0 s0 u0");
}

TEST_F(Localizadores, SearchTheTraceBeingDrawnWithoutItsSymbol) {
    EXPECT_EQ(En({0, 0}, true), "nada p-1 s0 u0");
    trabajo.trazadoNuevo = Traza({{10, 10}});
    EXPECT_EQ(En({0, 0}, true), "nada p-1 s0 u0");
    trabajo.iTipoHerramienta = ctCentralHidroelectrica;
    EXPECT_EQ(En({10, 10}, true), "nada p0 s0 u0");
    trabajo.trazadoNuevo->Add(30, 10);
    EXPECT_EQ(En({20, 10}, true), "temporal p1 s1 u0");
    EXPECT_EQ(En({0, 0}, true), "nada p0 s0 u0");
    trabajo.trazadoNuevo2 = Traza({{0, -30}, {30, -30}});
    EXPECT_EQ(En({20, -30}, true), "temporal p2 s1 u0");
    trabajo.iTipoHerramienta = ctToma;
    EXPECT_EQ(En({20, -30}, true), "nada p0 s0 u0");
}

TEST_F(Localizadores, RaiseWithTheViewersState) {
    Localizador fallido{panel, documento, trabajo, vista, [](std::int32_t) { throw Fallo(6); }};
    EXPECT_TRUE(
        Falla([&] { fallido.BuscaElemento(0, 0); }, {"Estado de visor 5. ErrBuscaElemento (Esquema)"}));
}

}  // namespace
}  // namespace zel::pruebas
