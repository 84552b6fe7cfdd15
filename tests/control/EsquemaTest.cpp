#include "control/Esquema.h"

#include <QScrollBar>
#include <QVBoxLayout>

#include "control/EnVentana.h"

namespace zel::pruebas {
namespace {

using EsquemaEnVentana = EnVentana;

// Counts the events of a type that a widget gets.
class Cuenta : public QObject {
  public:
    Cuenta(QWidget* widget, QEvent::Type tipo) : tipo_(tipo) { widget->installEventFilter(this); }
    bool eventFilter(QObject*, QEvent* evento) override {
        cuantos += evento->type() == tipo_ ? 1 : 0;
        return false;
    }
    int cuantos = 0;

  private:
    QEvent::Type tipo_;
};

TEST_F(EsquemaEnVentana, ANewSchematicIsFittedAndSeen) {
    const Cuenta pintados(Panel(), QEvent::Paint);
    Pon(DosNudos());
    QApplication::processEvents();
    EXPECT_GT(pintados.cuantos, 0) << "the screen still shows the earlier image";
    EXPECT_EQ(Estado(4), "Región mostrada: 100 %");
    EXPECT_TRUE(SeVe(0, 4));
    EXPECT_TRUE(SeVe(500, 504));
    EXPECT_FALSE(SeVe(250, 100));
    // An expose copies the image and draws nothing.
    Dibujo().DrawMode(Superficie::MODO_INVERTIR);
    Dibujo().Line({0, 0}, {500, 500});
    const QImage marcada = Dibujo().Imagen().copy();
    EXPECT_EQ(Panel()->grab().toImage().convertToFormat(QImage::Format_RGB32), marcada);
    EXPECT_EQ(Dibujo().Imagen(), marcada);
}

TEST_F(EsquemaEnVentana, ResizingKeepsTheScaleAndTheCorner) {
    Pon(DosNudos());
    const float unidadesPorPixel = Dibujo().AnchoDePixel();
    const Superficie::Escala antes = Dibujo().escala();
    const QSize panel = Panel()->size();
    esquema.resize(1000, 400);
    QApplication::processEvents();
    EXPECT_EQ(Panel()->size(), panel + QSize(200, -200));
    EXPECT_NEAR(Dibujo().AnchoDePixel(), unidadesPorPixel, 1e-4 * unidadesPorPixel);
    EXPECT_NEAR(Dibujo().ScaleHeight(), antes.Height * Panel()->height() / panel.height(), 0.01);
    // Whole units: the bars' positions.
    EXPECT_NEAR(Dibujo().ScaleLeft(), antes.Left, 1);
    EXPECT_NEAR(Dibujo().ScaleTop(), antes.Top, 1);
    EXPECT_TRUE(SeVe(500, 504)) << "not repainted after the resize";
    EXPECT_NE(Estado(4), "Región mostrada: 100 %");
}

TEST(Esquema, AFitAskedForBeforeItIsShownHoldsWhenItIs) {
    const DialogosGuion dialogos;
    // The second one is a single place: as close as the view gets.
    for (const float separacion : {5000.0F, 0.0F}) {
        Esquema esquema;
        esquema.GetElementos(DosNudos(separacion));
        esquema.ResizeGrafo();
        esquema.resize(1200, 900);
        esquema.show();
        QApplication::processEvents();
        const Lienzo& dibujo = esquema.findChild<PanelDibujo*>()->lienzo();
        const double ancho = separacion == 0 ? 40.04 : separacion + 12;  // or as high as that
        const double aspecto = std::abs(dibujo.ScaleWidth() / dibujo.ScaleHeight());
        EXPECT_NEAR(dibujo.ScaleWidth(), separacion == 0 ? ancho : ancho * aspecto, 1);
        EXPECT_NEAR(dibujo.ScaleLeft() + dibujo.ScaleWidth() / 2, separacion / 2, 1);
    }
}

TEST_F(EsquemaEnVentana, ThePartsFillTheControlInOneRowOfBarsOrInTwo) {
    for (const auto& [tamanyo, dosFilas] :
         {std::pair(QSize(800, 600), false), {QSize(500, 400), true}, {QSize(192, 117), true}}) {
        SCOPED_TRACE(tamanyo.width());
        esquema.resize(tamanyo);
        QApplication::processEvents();
        ASSERT_EQ(esquema.size(), tamanyo);
        const QRect dentro = esquema.contentsRect();
        const auto caja = [&](const char* nombre) { return Parte(nombre)->geometry(); };
        const QRect b1 = caja("ToolBar1"), b2 = caja("ToolBar2"), panel = caja("Panel"), h = caja("HScroll");
        EXPECT_EQ(b1.topLeft(), dentro.topLeft());
        EXPECT_NEAR(b1.width(), 16 * 7 * esquema.logicalDpiX() / 25.4, 1) << "the arrow is in sight";
        EXPECT_EQ(b2.top() > b1.bottom(), dosFilas);
        EXPECT_EQ(b2.left() > b1.right(), !dosFilas);
        EXPECT_GT(caja("Line1").top(), b2.bottom());
        EXPECT_LE(caja("Line2").bottom(), panel.top());
        EXPECT_EQ(h.top(), panel.bottom() + 1);
        EXPECT_EQ(caja("VScroll").left(), panel.right() + 1);
        EXPECT_EQ(caja("VScroll").right(), dentro.right());
        EXPECT_EQ(caja("StatusBar1"), QRect(QPoint(dentro.left(), h.bottom() + 1), dentro.bottomRight()));
    }
}

TEST(Esquema, TooSmallAControlGrowsOnceAndNoMore) {
    QWidget forma;  // its layout insists on the small size
    auto* filas = new QVBoxLayout(&forma);
    filas->setSizeConstraint(QLayout::SetNoConstraint);
    filas->setContentsMargins(0, 0, 0, 0);
    auto* esquema = new Esquema;
    filas->addWidget(esquema);
    esquema->setMinimumSize(1, 1);
    forma.resize(400, 400);
    forma.show();
    QApplication::processEvents();
    const double ppp = esquema->logicalDpiX();
    for (const auto& [tamanyo, crecido] :
         {std::pair(QSize(60, 60), QSizeF(65, 39)), {QSize(400, 60), QSizeF(400 * 25.4 / ppp, 39)}}) {
        const Cuenta cambios(esquema, QEvent::Resize);
        forma.resize(tamanyo);
        QApplication::processEvents();
        EXPECT_NEAR(esquema->width() * 25.4 / ppp, crecido.width(), 1);
        EXPECT_NEAR(esquema->height() * 25.4 / ppp, crecido.height(), 1);
        EXPECT_EQ(cambios.cuantos, 2) << "one from the layout, one grown";
    }
}

TEST_F(EsquemaEnVentana, TheScrollBarsMoveTheViewAndTellItsEnd) {
    Pon(DosNudos(5000));
    const Superficie::Escala todo = Dibujo().escala();
    EXPECT_TRUE(esquema.CambiaZoom(0.04));
    EXPECT_EQ(Estado(4), "Región mostrada: 4 %");
    auto* h = Parte<QScrollBar>("HScroll");
    const Superficie::Escala antes = Dibujo().escala();
    EXPECT_NEAR(antes.Width, todo.Width / 5, 1);
    EXPECT_NEAR(antes.Left, todo.Left + todo.Width * 2 / 5, 2) << "the centre moved";
    // The thumb, in the middle now, under the mouse: the view follows before it is let go.
    const QPoint mando = h->rect().center();
    QTest::mousePress(h, Qt::LeftButton, {}, mando);
    QTest::mouseMove(h, mando + QPoint(60, 0));
    const float arrastrada = Dibujo().ScaleLeft();
    EXPECT_NEAR(arrastrada, antes.Left + 60 * todo.Width / h->width(), todo.Width / 20);
    QTest::mouseRelease(h, Qt::LeftButton, {}, mando + QPoint(60, 0));
    EXPECT_EQ(Dibujo().ScaleLeft(), arrastrada);
    QTest::keyClick(h, Qt::Key_PageUp);
    EXPECT_NEAR(Dibujo().ScaleLeft(), arrastrada - std::floor(antes.Width / 2), 1);
    EXPECT_NEAR(Dibujo().ScaleTop(), antes.Top, 1);
    QTest::keyClick(Parte("VScroll"), Qt::Key_PageDown);  // down the screen, so to lower Y
    EXPECT_NEAR(Dibujo().ScaleTop(), antes.Top - std::floor(-antes.Height / 2), 1);
    EXPECT_EQ(Estado(1), "Preparado");
    QTest::keyClick(h, Qt::Key_End);
    EXPECT_EQ(Dibujo().ScaleLeft(), static_cast<float>(h->maximum()));
    EXPECT_EQ(Estado(1), "Pulse el botón zoom menos o la tecla (-) para ampliar la región activa de dibujo");
}

TEST_F(EsquemaEnVentana, TheViewToolsWorkByClicks) {
    Pon(DosNudos(5000));
    const Superficie::Escala todo = Dibujo().escala();
    Pulsa("zoommas");
    EXPECT_TRUE(Parte<QAbstractButton>("zoommas")->isChecked());
    QTest::mouseClick(Panel(), Qt::LeftButton, {}, EnElPanel(2000, 3000));
    EXPECT_NEAR(Dibujo().ScaleWidth(), todo.Width / 2, 1);
    EXPECT_NEAR(Centro().X, 2000, 15);
    EXPECT_NEAR(Centro().Y, 3000, 15);
    Pulsa("zoomRecuadro");
    const QPoint a = EnElPanel(1000, 4000), b = EnElPanel(3000, 3000);
    QTest::mousePress(Panel(), Qt::LeftButton, {}, a);
    const QImage limpia = Dibujo().Imagen().copy();
    QApplication::processEvents();
    const Cuenta pintados(Panel(), QEvent::Paint);
    QTest::mouseMove(Panel(), b);
    QApplication::processEvents();
    EXPECT_EQ(pintados.cuantos, 1) << "the rectangle does not come to the screen";
    EXPECT_NE(Dibujo().Imagen(), limpia);
    QTest::mouseMove(Panel(), a);
    EXPECT_EQ(Dibujo().Imagen(), limpia) << "the rectangle leaves something behind";
    QTest::mouseMove(Panel(), b);
    QTest::mouseRelease(Panel(), Qt::LeftButton, {}, b);
    EXPECT_NEAR(Centro().X, 2000, 15);
    EXPECT_NEAR(Centro().Y, 3500, 15);
    EXPECT_NEAR(Dibujo().ScaleWidth(), 2000, 30);

    Pulsa("mano");
    const PuntoXY antes = Centro();
    QTest::mousePress(Panel(), Qt::LeftButton, {}, {300, 200});
    QTest::mouseMove(Panel(), {360, 170});
    QTest::mouseRelease(Panel(), Qt::LeftButton, {}, {360, 170});
    EXPECT_NEAR(Centro().X, antes.X - 60 * Dibujo().AnchoDePixel(), 2);
    EXPECT_NEAR(Centro().Y, antes.Y - 30 * Dibujo().AnchoDePixel(), 2);

    dialogos.Responde("50");
    Pulsa("zoom");
    EXPECT_EQ(Estado(4), "Región mostrada: 50 %");
    Pulsa("zoommenos");
    QTest::mouseClick(Panel(), Qt::LeftButton, {}, EnElPanel(2000, 3000));
    EXPECT_GT(Dibujo().ScaleWidth(), todo.Width);
    Pulsa("ajustarzoom");
    EXPECT_NEAR(Dibujo().ScaleWidth(), todo.Width, 1);
    dialogos.Espera("No hay ningún elemento seleccionado en el panel");
    Pulsa("centrarElemento");
    esquema.Seleccionar(2);
    Pulsa("centrarElemento");
    EXPECT_NEAR(Centro().X, 5000, 15);
}

}  // namespace
}  // namespace zel::pruebas
