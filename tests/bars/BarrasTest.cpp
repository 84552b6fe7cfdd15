#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QTest>
#include <set>

#include "bars/qt/BotonDeBarra.h"
#include "bars/qt/ZelToolBar.h"
#include "bars/qt/ZelToolBar2.h"
#include "platform/qt/Dibujos.h"
#include "platform/qt/ImagenQt.h"

namespace zel::pruebas {
namespace {

struct Clic {
    std::string clave;
    int valor;
    bool operator==(const Clic&) const = default;
};

template <typename Barra>
class BarraEnVentana {
  public:
    BarraEnVentana() {
        QObject::connect(&barra, &BarraDeBotones::ButtonClick, [this](const std::shared_ptr<Boton>& boton) {
            clics.push_back({boton->Key(), boton->Value()});
        });
        barra.show();
        QApplication::processEvents();
    }
    BotonDeBarra* Widget(const char* clave) {
        return barra.template findChild<BotonDeBarra*>(QString::fromUtf8(clave));
    }

    Barra barra;
    std::vector<Clic> clics;
};

TEST(Barras, AClickTogglesTheButtonThenReportsIt) {
    BarraEnVentana<ZelToolBar2> ventana;
    const auto zoom = ventana.barra.Buttons()->Item("ZOOM");
    QTest::mouseClick(ventana.Widget("zoom"), Qt::LeftButton);
    EXPECT_EQ(zoom->Control()->BorderStyle(), 1);
    QTest::mouseClick(ventana.Widget("zoom"), Qt::LeftButton);
    EXPECT_EQ(zoom->Control()->BorderStyle(), 0);
    EXPECT_EQ(ventana.clics, (std::vector<Clic>{{"zoom", 1}, {"zoom", 0}}));

    // Setting the value shows, but is no click.
    zoom->Value(1);
    EXPECT_TRUE(ventana.Widget("zoom")->isChecked());
    QTest::mouseClick(ventana.Widget("zoom"), Qt::LeftButton);
    EXPECT_EQ(ventana.clics.size(), 3U);
    EXPECT_EQ(zoom->Value(), 0);
}

TEST(Barras, OnlyACompletePressOfTheLeftButtonClicks) {
    BarraEnVentana<ZelToolBar2> ventana;
    BotonDeBarra* borrar = ventana.Widget("borrar");
    QTest::mousePress(borrar, Qt::LeftButton);
    QTest::mouseRelease(borrar, Qt::LeftButton, {}, QPoint(borrar->width() + 5, 5));
    QTest::mouseClick(borrar, Qt::RightButton);
    ventana.barra.Enabled(false);
    EXPECT_FALSE(ventana.barra.Enabled());
    QTest::mouseClick(borrar, Qt::LeftButton);
    borrar->click();
    EXPECT_TRUE(ventana.clics.empty());
    ventana.barra.Enabled(true);
    QTest::mouseClick(borrar, Qt::LeftButton);
    EXPECT_EQ(ventana.clics, (std::vector<Clic>{{"borrar", 1}}));
}

TEST(Barras, TheKeyboardAndAnAssistiveProgramClickToo) {
    BarraEnVentana<ZelToolBar> ventana;
    BotonDeBarra* toma = ventana.Widget("toma");
    QTest::keyClick(toma, Qt::Key_Space);
    QTest::keyClick(toma, Qt::Key_Return);
    auto* accesible = QAccessible::queryAccessibleInterface(toma);
    ASSERT_TRUE(accesible);
    EXPECT_EQ(accesible->text(QAccessible::Name).toStdString(), "Toma (mayus+T)");
    accesible->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    QApplication::processEvents();
    EXPECT_TRUE(accesible->state().checked);
    EXPECT_EQ(ventana.clics, (std::vector<Clic>{{"toma", 1}, {"toma", 0}, {"toma", 1}}));
}

TEST(Barras, WhoHearsAClickMayDeleteTheBar) {
    auto* barra = new ZelToolBar2;
    auto zoom = barra->Buttons()->Item("zoom");
    QObject::connect(barra, &BarraDeBotones::ButtonClick, [barra] { delete barra; });
    QTest::mouseClick(barra->findChild<BotonDeBarra*>(QStringLiteral("zoom")), Qt::LeftButton);
    zoom->Value(0);
    EXPECT_EQ(zoom->Control()->BorderStyle(), 0);
}

TEST(Barras, TheOrderOfTheButtonsAndTheirTooltips) {
    ZelToolBar elementos;
    ZelToolBar2 vista;
    EXPECT_EQ(elementos.ButtonCount(), 17);
    EXPECT_EQ(vista.ButtonCount(), 8);
    const struct {
        BarraDeBotones& barra;
        std::int32_t posicion;
        const char* clave;
        const char* ayuda;
    } filas[] = {
        {elementos, 1, "subcuenca", "Subcuenca"},
        {elementos, 4, "centralHE", "Central Hidroeléctrica (mayus+C)"},
        {elementos, 8, "conduccion5", "Conducción tipo 5 (mayus+5)"},
        {elementos, 16, "nudo", "Nudo (mayus+N)"},
        {elementos, 17, "flecha", "Selección"},
        {vista, 1, "centrarElemento", "Centrar elemento seleccionado (tecla C)"},
        {vista, 4, "zoom", "Especificar zoom"},
        {vista, 7, "zoommenos", "Reducir zoom (con raton o con tecla - )"},
        {vista, 8, "zoommas", "Ampliar zoom (con ratón o con tecla +)"},
    };
    for (const auto& fila : filas) {
        const auto boton = fila.barra.Buttons()->Item(fila.posicion);
        EXPECT_EQ(boton->Key(), fila.clave);
        EXPECT_EQ(fila.barra.Buttons()->Item(fila.clave), boton);
        const auto* widget = fila.barra.findChild<QWidget*>(QString::fromUtf8(fila.clave));
        ASSERT_TRUE(widget) << fila.clave;
        EXPECT_EQ(widget->toolTip().toStdString(), fila.ayuda);
        EXPECT_NEAR(widget->x(), (fila.posicion - 1) * 7 * widget->logicalDpiX() / 25.4, 1) << fila.clave;
    }
}

TEST(Barras, TheButtonThatTheWidthLeavesOutTakesNoFocus) {
    BarraEnVentana<ZelToolBar> ventana;
    ventana.barra.resize(qRound(16 * 7 * ventana.barra.logicalDpiX() / 25.4), ventana.barra.height());
    EXPECT_EQ(ventana.Widget("nudo")->focusPolicy(), Qt::TabFocus);
    EXPECT_EQ(ventana.Widget("flecha")->focusPolicy(), Qt::NoFocus);
}

TEST(Barras, EveryButtonHasAPictureOfItsOwn) {
    ZelToolBar elementos;
    ZelToolBar2 vista;
    std::set<std::string> distintas;
    for (const BarraDeBotones* barra : std::initializer_list<BarraDeBotones*>{&elementos, &vista}) {
        for (const auto& boton : *barra->Buttons()) {
            const auto imagen = std::dynamic_pointer_cast<const ImagenQt>(boton->Image());
            ASSERT_TRUE(imagen) << boton->Key();
            const QImage datos = imagen->Datos().convertToFormat(QImage::Format_ARGB32);
            int pintados = 0;
            for (int y = 0; y < datos.height(); ++y) {
                for (int x = 0; x < datos.width(); ++x)
                    pintados += qAlpha(datos.pixel(x, y)) > 200;
            }
            EXPECT_GT(pintados, 30) << boton->Key();
            const std::string bytes(reinterpret_cast<const char*>(datos.constBits()), datos.sizeInBytes());
            EXPECT_TRUE(distintas.insert(bytes).second) << boton->Key();
        }
    }
    EXPECT_EQ(distintas.size(), 25U);
}

TEST(Barras, PicturesTakeTheInkAndTheResolutionAskedFor) {
    const QPixmap doble = DibujoPropio(QStringLiteral("botones/flecha"), 24, 2, Qt::yellow);
    EXPECT_EQ(doble.size(), QSize(48, 48));
    EXPECT_EQ(doble.deviceIndependentSize(), QSizeF(24, 24));
    EXPECT_EQ(doble.toImage().pixelColor(16, 20), QColor(Qt::yellow));
    EXPECT_EQ(DibujoPropio(QStringLiteral("botones/flecha"), 24, 2, Qt::yellow).cacheKey(), doble.cacheKey());
    EXPECT_TRUE(DibujoPropio(QStringLiteral("botones/nada"), 24, 1).isNull());
}

}  // namespace
}  // namespace zel::pruebas
