#include "control/Esquema.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QColor>
#include <map>

#include "control/PanelDibujo.h"
#include "model/modErrorHandling.h"
#include "support/DialogosGuion.h"

namespace zel::pruebas {
namespace {

std::shared_ptr<Elementos> DosNudos(float separacion) {
    auto elementos = std::make_shared<Elementos>();
    elementos->Add(ctNudo, "Norte", 1, 1, 0, 0, 0, 0, nullptr, nullptr, "1", 5, 0);
    elementos->Add(ctNudo, "Sur", 2, 2, separacion, separacion, 0, 0, nullptr, nullptr, "2", 5, 0);
    return elementos;
}

class EsquemaEnVentana : public testing::Test {
  protected:
    EsquemaEnVentana() {
        QObject::connect(&esquema, &Esquema::TextoEstado,
                         [this](int cual, const QString& texto) { estado[cual] = texto.toStdString(); });
        QObject::connect(&esquema, &Esquema::FallosDeDibujo, [this](const QStringList& f) { fallos << f; });
        esquema.resize(800, 600);
        esquema.show();
        QApplication::processEvents();
    }
    Lienzo& Dibujo() { return esquema.findChild<PanelDibujo*>(QStringLiteral("Panel"))->lienzo(); }
    bool SeVe(float x, float y) {
        const QImage& imagen = Dibujo().Imagen();
        const int cx = qRound((x - Dibujo().ScaleLeft()) / Dibujo().ScaleWidth() * imagen.width());
        const int cy = qRound((y - Dibujo().ScaleTop()) / Dibujo().ScaleHeight() * imagen.height());
        for (int dx = -3; dx <= 3; ++dx) {
            for (int dy = -3; dy <= 3; ++dy) {
                if (!imagen.valid(cx + dx, cy + dy)) continue;
                if (imagen.pixelColor(cx + dx, cy + dy) != QColor(Qt::white)) return true;
            }
        }
        return false;
    }

    Esquema esquema;
    std::map<int, std::string> estado;
    QList<QStringList> fallos;
};

TEST_F(EsquemaEnVentana, ANewSchematicIsFittedAndSeen) {
    esquema.GetElementos(DosNudos(500));
    esquema.ResizeGrafo();
    EXPECT_EQ(estado[4], "Región mostrada: 100 %");
    EXPECT_TRUE(SeVe(0, 4));
    EXPECT_TRUE(SeVe(500, 504));
    EXPECT_THROW(esquema.GetElementos(nullptr), Error);
    EXPECT_EQ(esquema.GetElementos()->Count(), 2);
}

TEST_F(EsquemaEnVentana, ResizingKeepsTheScaleAndTheCorner) {
    esquema.GetElementos(DosNudos(500));
    esquema.ResizeGrafo();
    const float unidadesPorPixel = Dibujo().AnchoDePixel();
    const Superficie::Escala antes = Dibujo().escala();
    esquema.resize(1000, 400);
    QApplication::processEvents();
    EXPECT_NEAR(Dibujo().AnchoDePixel(), unidadesPorPixel, 1e-4 * unidadesPorPixel);
    EXPECT_FLOAT_EQ(Dibujo().ScaleLeft(), antes.Left);
    EXPECT_FLOAT_EQ(Dibujo().ScaleTop(), antes.Top);
    EXPECT_NEAR(Dibujo().ScaleWidth(), antes.Width * 1000 / 800, 0.01);
    EXPECT_NEAR(Dibujo().ScaleHeight(), antes.Height * 400 / 600, 0.01);
    EXPECT_TRUE(SeVe(500, 504)) << "not repainted after the resize";
}

TEST(Esquema, AFitAskedForBeforeItIsShownHoldsWhenItIs) {
    Esquema esquema;
    esquema.GetElementos(DosNudos(5000));
    esquema.ResizeGrafo();
    esquema.resize(1200, 900);
    esquema.show();
    QApplication::processEvents();
    const Lienzo& dibujo = esquema.findChild<PanelDibujo*>()->lienzo();
    EXPECT_LT(dibujo.ScaleLeft(), 0);
    EXPECT_GT(dibujo.ScaleTop() + dibujo.ScaleHeight(), -1000)
        << "not fitted to the size that it is shown in";
    EXPECT_GT(dibujo.ScaleLeft() + dibujo.ScaleWidth(), 5000);

    // One node: as close as the view gets, and no notice says so.
    const DialogosGuion dialogos;
    Esquema pequeno;
    pequeno.GetElementos(DosNudos(0));
    pequeno.ResizeGrafo();
    pequeno.resize(300, 480);
    pequeno.show();
    QApplication::processEvents();
    EXPECT_NEAR(pequeno.findChild<PanelDibujo*>()->lienzo().ScaleWidth(), 40.04, 0.1);
}

TEST_F(EsquemaEnVentana, ASchematicBeyondTheWorldDoesNotSpoilTheView) {
    auto lejos = DosNudos(500);
    for (const auto& e : *lejos)
        e->YPos(e->YPos() + 4400000);
    esquema.GetElementos(lejos);
    esquema.ResizeGrafo();
    esquema.CambiaZoom(2);
    esquema.resize(900, 700);
    QApplication::processEvents();
    esquema.GetElementos(DosNudos(500));
    esquema.ResizeGrafo();
    EXPECT_TRUE(SeVe(0, 4));
    EXPECT_TRUE(SeVe(500, 504));
}

TEST_F(EsquemaEnVentana, TheZoomGoesOnFromWhatAResizeShows) {
    esquema.GetElementos(DosNudos(500));
    esquema.ResizeGrafo();
    esquema.resize(400, 300);
    QApplication::processEvents();
    const float ancho = Dibujo().ScaleWidth();
    EXPECT_TRUE(esquema.CambiaZoom(0.25));
    EXPECT_NEAR(Dibujo().ScaleWidth(), ancho / 2, 0.1);
}

TEST_F(EsquemaEnVentana, ZoomAndScrollMoveTheView) {
    esquema.GetElementos(DosNudos(500));
    esquema.ResizeGrafo();
    const Superficie::Escala todo = Dibujo().escala();
    esquema.CambiaZoom(0.25);
    EXPECT_EQ(estado[4], "Región mostrada: 25 %");
    EXPECT_NEAR(Dibujo().ScaleWidth(), todo.Width / 2, 0.1);
    EXPECT_NEAR(Dibujo().ScaleLeft(), todo.Left + todo.Width / 4, 0.1) << "the centre moved";
    const float izquierda = Dibujo().ScaleLeft();
    const float arriba = Dibujo().ScaleTop();
    esquema.DesplazaVista(0.5, 0.25);
    EXPECT_NEAR(Dibujo().ScaleLeft(), izquierda + todo.Width / 4, 0.1);
    EXPECT_NEAR(Dibujo().ScaleTop(), arriba - todo.Height / 8, 0.1);
}

TEST_F(EsquemaEnVentana, AnExposeCopiesTheImageAndDrawsNothing) {
    esquema.GetElementos(DosNudos(500));
    esquema.ResizeGrafo();
    Dibujo().DrawMode(Superficie::MODO_INVERTIR);
    Dibujo().Line({0, 0}, {500, 500});
    const QImage marcada = Dibujo().Imagen().copy();
    esquema.repaint();
    EXPECT_EQ(Dibujo().Imagen(), marcada);
    EXPECT_EQ(esquema.grab().toImage().convertToFormat(QImage::Format_RGB32), marcada);
}

TEST_F(EsquemaEnVentana, DrawingFailuresAreToldOnce) {
    auto elementos = DosNudos(500);
    elementos->Add(ctToma, "Sin trazado", 3, 1, 0, 0, 1, 2, nullptr, nullptr, "3", 0, 0);
    esquema.GetElementos(elementos);
    esquema.ResizeGrafo();
    esquema.CambiaZoom(0.5);
    ASSERT_EQ(fallos.size(), 1);
    EXPECT_EQ(fallos[0].size(), 1);
    esquema.GetElementos(DosNudos(500));
    ASSERT_EQ(fallos.size(), 2);
    EXPECT_TRUE(fallos[1].isEmpty());
}

}  // namespace
}  // namespace zel::pruebas
