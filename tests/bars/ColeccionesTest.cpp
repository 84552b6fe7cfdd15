#include <gtest/gtest.h>

#include "bars/Buttons.h"
#include "bars/Panels.h"

namespace zel::pruebas {
namespace {

class ControlFalso : public ControlDeBoton, public ControlDePanel {
  public:
    std::int16_t BorderStyle() const noexcept override { return borde; }
    void BorderStyle(std::int16_t valor) override { borde = valor; }
    std::int16_t Heigt() const noexcept override { return 7; }
    std::string Caption() const override { return texto; }
    void Caption(const std::string& valor) override { texto = valor; }

    std::int16_t borde = 0;
    std::string texto;
};

TEST(Buttons, FindsByPositionAndByKeyWithoutRegardToCase) {
    Buttons botones;
    const auto control = std::make_shared<ControlFalso>();
    std::string sKey = "de antes";
    const auto mano = botones.Add("mano", 7, nullptr, 1, control, sKey);
    EXPECT_EQ(sKey, "mano");
    EXPECT_EQ(control->borde, 1);
    EXPECT_THROW(botones.Add("MANO", 7, nullptr, 0, control, sKey), Fallo);
    EXPECT_EQ(control->borde, 1);
    const auto sinClave = botones.Add("", 7, nullptr, 0, nullptr, sKey);
    EXPECT_EQ(sKey, "");
    EXPECT_EQ(botones.Count(), 2);
    EXPECT_EQ(botones.Item("Mano"), mano);
    EXPECT_EQ(botones.Item(2), sinClave);
    EXPECT_EQ(botones.Busca("zoom"), nullptr);
    EXPECT_THROW(botones.Item("zoom"), Fallo);
    botones.Remove("mano");
    EXPECT_EQ(botones.Item(1), sinClave);
    EXPECT_EQ(botones.Busca("mano"), nullptr);
}

TEST(Panels, TheTextOfAFieldGoesToItsLabel) {
    Panels paneles;
    const auto control = std::make_shared<ControlFalso>();
    std::string sKey;
    const auto campo = paneles.Add("x", control, sKey);
    campo->Texto("x=1");
    EXPECT_EQ(control->texto, "x=1");
    campo->Texto(2.5);
    EXPECT_EQ(control->texto, "2.5");
    const auto objeto = std::make_shared<Panels>();
    campo->Texto(objeto);
    EXPECT_EQ(campo->Texto().Referencia<Panels>(), objeto);
    EXPECT_EQ(control->texto, "2.5");
    EXPECT_EQ(paneles.Item("X"), paneles.Item(1));
}

}  // namespace
}  // namespace zel::pruebas
