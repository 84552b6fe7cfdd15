#include "model/DiarioDeCambios.h"

#include <gtest/gtest.h>

#include <functional>

#include "model/Elementos.h"

namespace zel::pruebas {
namespace {

// A conduit 1 and a hydro plant 2 that share a trace, and a reader of what happens to them.
class Diarios : public ::testing::Test {
  protected:
    Diarios() {
        trazado->Add(1, 2);
        trazado->Add(3, 4);
        Agrega(1, ctConduccion1);
        Agrega(2, ctCentralHidroelectrica);
        Lee();
    }
    void Agrega(std::int32_t codigo, TipoElemento tipo) {
        elementos.Add(tipo, "N", codigo, 1, 0, 0, 0, 0, trazado, trazado, "id", 0, 0);
    }
    // The codes of what has changed, "-" for what is gone, "todo" when it is not known any more.
    std::string Lee() {
        const auto cambios = elementos.Diario().Lee(leido);
        if (!cambios) return "todo";
        std::string codigos;
        for (const auto& cambio : *cambios)
            codigos += cambio.Quitado ? "-" : std::to_string(cambio.elemento->gfCodSIG());
        return codigos;
    }

    std::shared_ptr<Puntos> trazado = std::make_shared<Puntos>();
    Elementos elementos;
    std::uint64_t leido = 0;
};

TEST_F(Diarios, TellWhatWhoeverItWasHasChangedAndNothingElse) {
    Elemento& e = *elementos.Item(1);
    const auto otro = std::make_shared<Puntos>();
    const auto punto = trazado->Item(1);
    std::shared_ptr<Elemento> retenido;
    const struct {
        const char* que;
        std::function<void()> accion;
        const char* leido;
    } filas[] = {
        {"each of the element's", [&] { e.XPos(1); }, "1"},
        {"", [&] { e.YPos(1); }, "1"},
        {"", [&] { e.Tipo(ctToma); }, "1"},
        {"", [&] { e.Tamanyo(2); }, "1"},
        {"", [&] { e.Nombre("Otro"); }, "1"},
        {"", [&] { e.EtiquetaPosX(1); }, "1"},
        {"", [&] { e.EtiquetaPosY(1); }, "1"},
        {"", [&] { e.EtiquetaTamanyo(2); }, "1"},
        {"", [&] { e.EtiquetaTamanyoRelativo(false); }, "1"},
        {"", [&] { e.MostrarEtiqueta(false); }, "1"},
        {"", [&] { e.ElemIni(8); }, "1"},
        {"", [&] { e.ElemFin(8); }, "1"},
        {"", [&] { e.ConecSec1(8); }, "1"},
        {"", [&] { e.ConecSec2(8); }, "1"},
        {"a mark of both", [&] { trazado->Valor(1); }, "21"},
        {"", [&] { trazado->Valor2(1); }, "21"},
        {"", [&] { trazado->Valor3(1); }, "21"},
        {"", [&] { trazado->Flecha(true); }, "21"},
        {"no marks any more", [&] { trazado->BorraMarcas(), Lee(), trazado->BorraMarcas(); }, ""},
        {"the values that there are", [&] { e.XPos(1), e.Nombre("Otro"), e.Trazado(trazado); }, ""},
        {"what is not seen", [&] { e.Valor(3), e.KeyPant(9), e.ColorLinea(1), e.gfCodSIG(1); }, ""},
        {"several in a row", [&] { e.XPos(2), e.YPos(2), e.XPos(3); }, "1"},
        {"a copy", [&] { Elemento(e).XPos(8); }, ""},
        {"a point of both", [&] { punto->XPos(7); }, "21"},
        {"a point assigned to", [&] { *punto = Punto(7, 8); }, "21"},
        {"a copy of a point", [&] { Punto(*punto).XPos(9); }, ""},
        {"a point more", [&] { trazado->Add(5, 6); }, "21"},
        {"a point's copy more", [&] { trazado->AddObjetoPunto(punto); }, "21"},
        {"a point less", [&] { trazado->Remove(1); }, "21"},
        {"the point taken out", [&] { punto->XPos(99); }, ""},
        {"another trace", [&] { e.Trazado(otro); }, "1"},
        {"the new trace", [&] { otro->Add(0, 0); }, "1"},
        {"the old trace, which the plant has twice", [&] { trazado->Add(0, 0); }, "2"},
        {"the plant's second one", [&] { elementos.Item(2)->Trazado2(nullptr); }, "2"},
        {"a new element", [&] { Agrega(3, ctNudo); }, "3"},
        {"one removed", [&] { retenido = elementos.Item(1), elementos.Remove(1); }, "-"},
        {"what has been removed", [&] { retenido->XPos(77), otro->Add(1, 1); }, ""},
    };
    for (const auto& fila : filas) {
        fila.accion();
        EXPECT_EQ(Lee(), fila.leido) << fila.que << " at " << &fila - filas;
    }
    EXPECT_FALSE(elementos.Contiene(retenido.get()));
    EXPECT_EQ(retenido->Orden(), 0U);
    EXPECT_FALSE(elementos.Contiene(nullptr));
    EXPECT_TRUE(elementos.Contiene(elementos.Item(1).get()));
    EXPECT_EQ(elementos.Referencia(elementos.Item(2).get()), elementos.Item(2));
    EXPECT_EQ(elementos.Referencia(retenido.get()), nullptr);
    EXPECT_LT(elementos.Item(1)->Orden(), elementos.Item(2)->Orden());
}

TEST_F(Diarios, LoseWhatIsTooMuchForTheReadersAndGoOn) {
    std::uint64_t otro = 0;
    elementos.Diario().Lee(otro);
    const auto cambia = [&](int veces) {
        for (int i = 0; i < veces; ++i)
            elementos.Item(1 + i % 2)->XPos(static_cast<float>(i + 1));
    };
    cambia(1000);
    EXPECT_EQ(Lee().size(), 1000U);
    cambia(100);
    EXPECT_EQ(Lee(), "todo");
    elementos.Item(1)->XPos(-1);
    EXPECT_EQ(Lee(), "1");
    EXPECT_FALSE(elementos.Diario().Lee(otro));
}

TEST(Elementos, LeavesItsElementsAndTheirTracesToThemselvesWhenItEnds) {
    auto elementos = std::make_unique<Elementos>();
    auto trazado = std::make_shared<Puntos>();
    const auto punto = trazado->Add(1, 2);
    const auto e = elementos->Add(ctToma, "N", 1, 1, 0, 0, 0, 0, trazado, {}, "id", 0, 0);
    elementos.reset();
    e->XPos(5);
    punto->XPos(5);
    e->Trazado(nullptr);
    trazado.reset();
    punto->XPos(6);
    EXPECT_EQ(e->Orden(), 0U);
}

}  // namespace
}  // namespace zel::pruebas
