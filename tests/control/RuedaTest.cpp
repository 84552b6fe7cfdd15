#include <QNativeGestureEvent>
#include <QPointingDevice>
#include <QWheelEvent>

#include "control/ConRaton.h"

namespace zel::pruebas {
namespace {

// Nodes at the origin and at (40, 40); the second is selected.
class Rueda : public ConRaton {
  protected:
    Rueda() {
        Pon(DosNudos(40));
        Clic({40, 40});
        Movido();
    }
    void Gira(QPoint octavos, Qt::KeyboardModifiers teclas = {}, QPoint pixeles = {}, int veces = 1) {
        for (int i = 0; i < veces; ++i) {
            QApplication::processEvents();
            QWheelEvent giro(raton, Panel()->mapToGlobal(raton), pixeles, octavos, {}, teclas, {}, false);
            QApplication::sendEvent(Panel(), &giro);
        }
    }
    // In pixels since the last time, to the right and downwards, at the first zoom.
    QPointF Movido() {
        const auto e = Dibujo().escala(), a = std::exchange(antes, e);
        return QPointF(a.Left - e.Left, e.Top - a.Top) * PIXELES;
    }
    bool AlDia() {
        const QImage imagen = Imagen();
        esquema.ScaleLeft(esquema.ScaleLeft());
        return Imagen() == imagen;
    }
    QPointF raton{150, 100};
    Superficie::Escala antes;
};

TEST_F(Rueda, ANotchScrollsATenthAndSmallTurnsAsMuchAsTheyAre) {
    const double ancho = Panel()->width() / 10.0, alto = Panel()->height() / 10.0;
    const std::tuple<QPoint, Qt::KeyboardModifiers, QPoint, QPointF> filas[] = {
        {{6, 120}, {}, {}, {ancho / 20, alto}},
        {{0, -120}, Qt::ShiftModifier, {}, {-ancho, 0}},
        {{-5, 3}, {}, {-1, 1}, {-1, 1}}};
    for (const auto& [octavos, teclas, pixeles, movido] : filas) {
        Gira(octavos, teclas, pixeles, 6);
        EXPECT_LT((Movido() - 6 * movido).manhattanLength(), 0.05) << movido.x() << ' ' << movido.y();
    }
    esquema.Scale_(Variante(32000), Variante(150), Variante(32300), Variante(0));
    Gira({-120, 0}, {}, {}, 50);
    EXPECT_FALSE(Parte("HScroll")->isEnabled()) << "beyond what it can tell";
}

TEST_F(Rueda, CtrlAndAPinchZoomAroundTheMouseWithinTheLimits) {
    const Superficie::Escala a = Dibujo().escala();
    Gira({0, 15}, Qt::ControlModifier, {}, 8);
    QNativeGestureEvent pellizco(Qt::ZoomNativeGesture, QPointingDevice::primaryPointingDevice(), 2, raton,
                                 raton, raton, 0.25, {});
    QApplication::sendEvent(Panel(), &pellizco);
    const Superficie::Escala b = Dibujo().escala();
    EXPECT_NEAR(a.Width / b.Width, std::sqrt(2.0) * 1.25, 1e-4);
    EXPECT_NEAR((b.Left - a.Left) / (a.Width - b.Width), raton.x() / Panel()->width(), 1e-4);
    Gira({0, 120}, Qt::ControlModifier, {}, 50);
    EXPECT_NEAR(esquema.ScaleWidth(), 40.04, 1e-4);
    Gira({0, -1200}, Qt::ControlModifier, {}, 50);
    EXPECT_NEAR(-esquema.ScaleWidth() * esquema.ScaleHeight() / (1.45 * 5004000 * 2505000), 1, 1e-5);
}

TEST_F(Rueda, TheRepaintComesWhenABurstIsOverAndBringsTheSegmentInHand) {
    Gira({0, 60});
    EXPECT_FALSE(AlDia());
    Gira({0, -60});
    QTest::keyPress(Panel(), Qt::Key_Q);  // cancels what is only asked for
    QApplication::processEvents();
    EXPECT_TRUE(AlDia());
    Parte<QAbstractButton>("conduccion1")->click();
    Clic({40, 40});
    Gira({0, 60});
    QApplication::processEvents();
    const QImage conTramo = Imagen();
    QTest::mouseMove(Panel(), raton.toPoint());
    EXPECT_EQ(Imagen(), conTramo) << "it was there already";
    EXPECT_FALSE(AlDia()) << "a plain repaint drops it";
}

TEST_F(Rueda, TheMiddleButtonDragsTheViewFromWhereNothingIsAndNoDragIsDisturbed) {
    Pulsa({20, 20}, Qt::MiddleButton);
    for (const PuntoXY p : {PuntoXY{30, 15}, {21, 19}, {24, 14}}) {
        Mueve(p);
        Gira({0, 120});
    }
    EXPECT_LT((Movido() - QPointF(16, 24)).manhattanLength(), 0.05);
    Suelta({24, 14}, Qt::MiddleButton);
    EXPECT_EQ(Sucesos() + ": " + esquema.NombreElemento().toStdString(),
              "MouseDown; Seleccionado 2; Click; MouseDown; Click: Sur");
    Clic({20, 20}, Qt::MiddleButton);
    EXPECT_EQ(esquema.CodigoElemento(), -1);
    Clic({44, 34}, Qt::MiddleButton);
    EXPECT_EQ(Sucesos(), "MouseDown; Click; MouseDown; Seleccionado 2; Click");
    QTest::keyClick(Panel(), Qt::Key_M);
    Gira({0, 120});
    EXPECT_FALSE(Movido().isNull()) << "the hand waits";
    Pulsa({20, 20});
    Gira({0, 120});
    EXPECT_TRUE(Movido().isNull());
}

}  // namespace
}  // namespace zel::pruebas
