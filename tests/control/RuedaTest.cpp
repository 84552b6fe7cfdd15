// The wheel, the touchpad and the middle button move the view; a box fails the test.
#include <QNativeGestureEvent>
#include <QPointingDevice>
#include <QWheelEvent>

#include "control/ConRaton.h"

namespace zel::pruebas {
namespace {

// Nodes at (100, 60), selected, and (140, 80); four pixels to a unit.
class Rueda : public ConRaton {
  protected:
    Rueda() {
        auto elementos = std::make_shared<Elementos>();
        elementos->Add(ctNudo, "Norte", 1, 1, 100, 60, 0, 0, nullptr, nullptr, "1", 5, 0);
        elementos->Add(ctNudo, "Sur", 2, 2, 140, 80, 0, 0, nullptr, nullptr, "2", 5, 0);
        Pon(elementos);
        Clic({100, 60});
        sucesos.clear();
    }
    void Gira(QPoint octavos, Qt::KeyboardModifiers teclas = {}, QPoint pixeles = {}) {
        QWheelEvent rueda(raton, Panel()->mapToGlobal(raton), pixeles, octavos, {}, teclas, Qt::NoScrollPhase,
                          false);
        QApplication::sendEvent(Panel(), &rueda);
    }
    void Pellizca(double aumento) {
        QNativeGestureEvent gesto(Qt::ZoomNativeGesture, QPointingDevice::primaryPointingDevice(), 2, raton,
                                  raton, Panel()->mapToGlobal(raton), aumento, {});
        QApplication::sendEvent(Panel(), &gesto);
    }
    // In pixels of the panel, to the right and downwards, since the last time.
    QPointF Movido() {
        const Superficie::Escala e = Dibujo().escala(), a = std::exchange(antes, e);
        return {(a.Left - e.Left) / e.Width * Panel()->width(), (a.Top - e.Top) / e.Height * Panel()->height()};
    }
    PuntoXY BajoElRaton() const {
        const Superficie::Escala e = Dibujo().escala();
        return {e.Left + e.Width * float(raton.x() / Panel()->width()),
                e.Top + e.Height * float(raton.y() / Panel()->height())};
    }
    QImage Fresca() {
        esquema.ScaleLeft(esquema.ScaleLeft());
        return Imagen();
    }
    QPointF raton{150, 100};
    Superficie::Escala antes = Dibujo().escala();
};

TEST_F(Rueda, ANotchScrollsATenthAndSmallTurnsAsMuchAsTheyAre) {
    Movido();
    const double ancho = Panel()->width() / 10.0, alto = Panel()->height() / 10.0;
    const std::tuple<QPoint, Qt::KeyboardModifiers, QPoint, QPointF> filas[] = {
        {{0, 120}, {}, {}, {0, alto}},
        {{0, -120}, Qt::ShiftModifier, {}, {-ancho, 0}},
        {{60, 0}, {}, {}, {ancho / 2, 0}},
        {{-5, 3}, {}, {-1, 1}, {-1, 1}},
        {{0, 3}, Qt::ShiftModifier, {0, 1}, {1, 0}}};
    for (const auto& [octavos, teclas, pixeles, movido] : filas) {
        for (int i = 0; i < 6; ++i) {
            Gira(octavos, teclas, pixeles);
            QApplication::processEvents();
        }
        EXPECT_LT((Movido() - 6 * movido).manhattanLength(), 0.05) << movido.x() << ' ' << movido.y();
    }
    EXPECT_EQ(Sucesos(), "");
    EXPECT_EQ(Imagen(), Fresca());
}

TEST_F(Rueda, CtrlAndAPinchZoomAroundTheMouseWithinTheLimits) {
    const PuntoXY punto = BajoElRaton();
    const float ancho = esquema.ScaleWidth();
    for (int i = 0; i < 8; ++i)
        Gira({0, 15}, Qt::ControlModifier);
    EXPECT_NEAR(esquema.ScaleWidth() * std::sqrt(2.0), ancho, 1e-3);
    Pellizca(0.25);
    EXPECT_NEAR(esquema.ScaleWidth() * std::sqrt(2.0) * 1.25, ancho, 1e-3);
    for (const int sentido : {1, -1, 1}) {
        for (int i = 0; i < 60; ++i)
            Gira({0, 120 * sentido}, Qt::ControlModifier);
        QApplication::processEvents();
        if (sentido > 0) {
            EXPECT_NEAR(esquema.ScaleWidth(), 40.04, 1e-3);
        }
    }
    esquema.ScaleWidth(20);  // closer than that by other means
    Gira({0, 1}, Qt::ControlModifier);
    EXPECT_EQ(esquema.ScaleWidth(), 20);
    Gira({0, -120}, Qt::ControlModifier);
    EXPECT_GT(esquema.ScaleWidth(), 25);
    esquema.Scale_(Variante(0), Variante(100), Variante(200), Variante(0));
    const PuntoXY antesDeLaRafaga = BajoElRaton();
    for (const int octavos : {70, -20, 200, -90})
        Gira({0, octavos}, Qt::ControlModifier);
    EXPECT_NEAR(BajoElRaton().X, antesDeLaRafaga.X, 1e-3);
    EXPECT_NEAR(BajoElRaton().Y, antesDeLaRafaga.Y, 1e-3);
    (void)punto;
}

TEST_F(Rueda, ABurstIsPaintedWhenItIsOverAndBeforeAPress) {
    const QImage imagen = Imagen();
    for (int i = 0; i < 3; ++i)
        Gira({0, 40});
    EXPECT_EQ(Imagen(), imagen);
    esquema.Seleccionar(1);  // cancels what is only asked for
    QApplication::processEvents();
    EXPECT_EQ(Imagen(), Fresca());
    Gira({0, 40});
    QTest::mousePress(Panel(), Qt::RightButton, {}, {5, 5});
}

}  // namespace
}  // namespace zel::pruebas
