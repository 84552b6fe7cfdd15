#include "bars/qt/StatusBar.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>

namespace zel::pruebas {
namespace {

class BarraDeEstado : public testing::Test {
  protected:
    BarraDeEstado() {
        for (int i = 0; i < 4; ++i)
            campos.push_back(barra.findChild<QLabel*>(QStringLiteral("txtPanels(%1)").arg(i)));
        barra.resize(900, 23);
        barra.show();
        QApplication::processEvents();
    }
    StatusBar barra;
    std::vector<QLabel*> campos;
};

TEST_F(BarraDeEstado, KeysAndInitialTexts) {
    const char* const filas[][2] = {{"stats", "Preparado"}, {"x", "x="}, {"y", "y="}, {"porciento", "%"}};
    for (std::int32_t i = 0; i < 4; ++i) {
        EXPECT_EQ(barra.Panels()->Item(i + 1)->Key(), filas[i][0]);
        EXPECT_EQ(barra.Panels()->Item(i + 1), barra.Panels()->Item(filas[i][0]));
        ASSERT_TRUE(campos[static_cast<std::size_t>(i)]);
        EXPECT_EQ(campos[static_cast<std::size_t>(i)]->text().toStdString(), filas[i][1]);
    }
}

TEST_F(BarraDeEstado, TheNarrowFieldsKeepToTheRightAndThePromptTakesTheRest) {
    const int anchos[] = {campos[1]->width(), campos[2]->width(), campos[3]->width()};
    for (const int ancho : {900, 600, 120}) {
        barra.resize(ancho, 23);
        EXPECT_EQ(campos[3]->geometry().right(), ancho - 1);
        EXPECT_EQ(campos[2]->geometry().right() + 1, campos[3]->x());
        EXPECT_EQ(campos[1]->geometry().right() + 1, campos[2]->x());
        EXPECT_EQ(campos[0]->geometry(), QRect(0, 0, std::max(campos[1]->x(), 0), 23));
        for (std::size_t i = 0; i < 3; ++i)
            EXPECT_EQ(campos[i + 1]->width(), anchos[i]);
    }
}

TEST_F(BarraDeEstado, TheFieldsFollowTheirTexts) {
    const int habitual = campos[3]->width();
    barra.Panels()->Item("porciento")->Texto("Región mostrada: 123456 % Máxima región de dibujo");
    EXPECT_GT(campos[3]->width(), habitual);
    EXPECT_GE(campos[3]->width(), campos[3]->fontMetrics().horizontalAdvance(campos[3]->text()));
    EXPECT_EQ(campos[2]->geometry().right() + 1, campos[3]->x());
    barra.Panels()->Item("porciento")->Texto("Región mostrada: 50 %");
    EXPECT_EQ(campos[3]->width(), habitual);
    barra.Panels()->Item("x")->Texto("x=-4999999.9");
    const int ancha = campos[1]->width();
    barra.Panels()->Item("x")->Texto("x=1");
    EXPECT_EQ(campos[1]->width(), ancha) << "it would jump with the mouse";
}

TEST_F(BarraDeEstado, WhatDoesNotFitIsToldByTheTooltip) {
    barra.Panels()->Item("porciento")->Texto("Región mostrada: 100 % Máxima región de dibujo");
    EXPECT_TRUE(campos[3]->toolTip().isEmpty());
    barra.resize(400, 23);
    const std::string largo = "Seleccione el elemento de origen de la conducción y después los demás puntos";
    barra.Panels()->Item(1)->Texto(largo);
    EXPECT_EQ(campos[0]->text().toStdString(), largo);
    EXPECT_EQ(campos[0]->toolTip().toStdString(), largo);
    barra.Panels()->Item(1)->Texto("<b>Presa</b> " + largo);
    EXPECT_TRUE(campos[0]->toolTip().contains(QStringLiteral("&lt;b&gt;")));
    barra.resize(2000, 23);
    EXPECT_TRUE(campos[0]->toolTip().isEmpty());
}

}  // namespace
}  // namespace zel::pruebas
