#include "control/Exportacion.h"

#include <gtest/gtest.h>

#include <QColor>

#include "file/lectorArchivo.h"

namespace zel::pruebas {
namespace {

std::shared_ptr<Elementos> Cuenca() {
    lectorArchivo lector;
    auto elementos = std::make_shared<Elementos>();
    lector.NombreArchivo(ZEL_RAIZ "/examples/cuenca.xml");
    lector.Coleccion(elementos);
    lector.Carga();
    return elementos;
}

// The share of the picture's border, and of its whole, that is not white.
double Tinta(const QImage& imagen, bool soloBorde) {
    int tinta = 0;
    int todos = 0;
    for (int y = 0; y < imagen.height(); ++y) {
        for (int x = 0; x < imagen.width(); ++x) {
            const bool borde = x == 0 || y == 0 || x == imagen.width() - 1 || y == imagen.height() - 1;
            if (soloBorde && !borde) continue;
            ++todos;
            tinta += imagen.pixelColor(x, y) != QColor(Qt::white);
        }
    }
    return static_cast<double>(tinta) / todos;
}

TEST(Exportacion, TheWholeBasinIsInThePictureAtAnyWidth) {
    const auto cuenca = Cuenca();
    QStringList fallos;
    const QImage normal = ImagenDeEsquema(*cuenca, true, 1600, fallos);
    const double tinta = Tinta(normal, false);
    EXPECT_GT(tinta, 0.02);
    for (const int ancho : {400, 1600, 4000}) {
        const QImage imagen = ImagenDeEsquema(*cuenca, true, ancho, fallos);
        EXPECT_EQ(imagen.width(), ancho);
        EXPECT_NEAR(imagen.height(), ancho * double(normal.height()) / normal.width(), 1.5);
        EXPECT_EQ(Tinta(imagen, true), 0) << "cut at the border of " << ancho;
    }
    // The same drawing, not a thinner one: twice as wide, about the same share of ink.
    EXPECT_NEAR(Tinta(ImagenDeEsquema(*cuenca, true, 3200, fallos), false), tinta, 0.4 * tinta);
    EXPECT_TRUE(fallos.isEmpty()) << fallos.join(u'\n').toStdString();
    EXPECT_NE(ImagenDeEsquema(*cuenca, false, 1600, fallos), normal) << "secondary lines are not seen";
}

TEST(Exportacion, SmallSchematicsKeepAReadableScale) {
    QStringList fallos;
    Elementos vacio;
    EXPECT_EQ(Tinta(ImagenDeEsquema(vacio, true, 200, fallos), false), 0);
    Elementos uno;
    uno.Add(ctNudo, "Único", 1, 1, 300, 300, 0, 0, nullptr, nullptr, "1", 5, 0);
    const QImage imagen = ImagenDeEsquema(uno, true, 400, fallos);
    EXPECT_EQ(Tinta(imagen, true), 0);
    EXPECT_LT(Tinta(imagen, false), 0.2);
    EXPECT_GT(Tinta(imagen, false), 0.01);
    EXPECT_TRUE(fallos.isEmpty());
}

TEST(Exportacion, WhatCannotBeDrawnIsTold) {
    Elementos elementos;
    elementos.Add(ctNudo, "A", 1, 1, 0, 0, 0, 0, nullptr, nullptr, "1", 5, 0);
    elementos.Add(ctConduccion1, "Sin trazado", 2, 1, 0, 0, 1, 1, nullptr, nullptr, "2", 5, 0);
    QStringList fallos;
    ImagenDeEsquema(elementos, true, 200, fallos);
    ASSERT_EQ(fallos.size(), 1);
    EXPECT_TRUE(fallos[0].contains(QStringLiteral("ErrDibujarConduccion (Esquema)")));
}

}  // namespace
}  // namespace zel::pruebas
