#include "platform/qt/Lienzo.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cmath>
#include <functional>
#include <vector>

#include "platform/qt/ImagenQt.h"

namespace zel::pruebas {
namespace {

constexpr std::int32_t ROJO = 255;

// 100 x 80 logical pixels showing 100 x 80 units, Y upwards.

void Prepara(Lienzo& hoja, double relacion = 1) {
    hoja.Redimensiona({qRound(100 * relacion), qRound(80 * relacion)}, relacion);
    hoja.ScaleLeft(0);
    hoja.ScaleTop(80);
    hoja.ScaleWidth(100);
    hoja.ScaleHeight(-80);
}

int Cuenta(const QImage& imagen, const std::function<bool(QColor)>& cumple) {
    int cuantos = 0;
    for (int y = 0; y < imagen.height(); ++y) {
        for (int x = 0; x < imagen.width(); ++x)
            cuantos += cumple(imagen.pixelColor(x, y));
    }
    return cuantos;
}
bool EsBlanco(QColor c) {
    return c == QColor(Qt::white);
}
bool EsNegro(QColor c) {
    return c == QColor(Qt::black);
}

struct Dibujo {
    const char* nombre;
    std::function<void(Superficie&)> dibuja;
};

class Inversion : public testing::TestWithParam<Dibujo> {};

TEST_P(Inversion, DrawnTwiceRestoresTheImageBitByBit) {
    for (const double relacion : {1.0, 2.0}) {
        Lienzo hoja;
        Prepara(hoja, relacion);
        hoja.ForeColor(ROJO);
        for (float x = 0; x < 100; x += 7)
            hoja.Line({x, 0}, {100 - x, 80});
        const QImage antes = hoja.Imagen().copy();
        hoja.DrawMode(Superficie::MODO_INVERTIR);
        GetParam().dibuja(hoja);
        EXPECT_NE(hoja.Imagen(), antes);
        GetParam().dibuja(hoja);
        EXPECT_EQ(hoja.Imagen(), antes);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Todos, Inversion,
    testing::Values(Dibujo{"segment",
                           [](Superficie& s) {
                               s.Line({10, 10}, {70, 43});
                           }},
                    Dibujo{"chain",
                           [](Superficie& s) {
                               const PuntoXY cadena[] = {{10, 10}, {30, 60}, {80, 20}, {10, 10}};
                               s.Line(cadena);
                           }},
                    Dibujo{"box",
                           [](Superficie& s) {
                               s.Caja({10, 10}, {40, 40});
                           }},
                    Dibujo{"filledBox",
                           [](Superficie& s) {
                               s.FillStyle(Superficie::RELLENO_SOLIDO);
                               s.Caja({10, 10}, {40, 40});
                               s.FillStyle(Superficie::RELLENO_NINGUNO);
                           }},
                    Dibujo{"circle",
                           [](Superficie& s) {
                               s.Circle({50, 40}, 20);
                           }},
                    Dibujo{"arc",
                           [](Superficie& s) {
                               s.Circle({50, 40}, 20, 5.5, 3.1);
                           }},
                    Dibujo{"dot",
                           [](Superficie& s) {
                               s.PSet({50, 40}, ROJO);
                           }},
                    Dibujo{"wide",
                           [](Superficie& s) {
                               s.DrawWidth(4);
                               s.Line({10, 10}, {70, 43});
                               s.DrawWidth(1);
                           }}),
    [](const auto& caso) { return caso.param.nombre; });

TEST(Lienzo, AnInvertedOutlineHasNoHolesAtItsCorners) {
    Lienzo hoja;
    Prepara(hoja);
    hoja.DrawMode(Superficie::MODO_INVERTIR);
    const PuntoXY cuadrado[] = {{10, 20}, {30, 20}, {30, 60}, {10, 60}, {10, 20}};
    hoja.Line(cuadrado);
    // 20 pixels across and 40 down, each corner belonging to two sides.
    EXPECT_EQ(Cuenta(hoja.Imagen(), EsNegro), 2 * (20 + 40));
    EXPECT_EQ(Cuenta(hoja.Imagen(), EsBlanco), 100 * 80 - 2 * (20 + 40));
}

TEST(Lienzo, FlatBoxesAndReturningLinesAreSeen) {
    Lienzo hoja;
    Prepara(hoja);
    hoja.Caja({10, 50}, {90, 50});
    hoja.Caja({50, 10}, {50, 40});
    EXPECT_NEAR(Cuenta(hoja.Imagen(), EsNegro), 81 + 31, 4);
    hoja.Cls();
    hoja.DrawMode(Superficie::MODO_INVERTIR);
    const PuntoXY idaYVuelta[] = {{10, 20}, {90, 20}, {10, 20}};
    hoja.Line(idaYVuelta);
    EXPECT_NEAR(Cuenta(hoja.Imagen(), EsNegro), 80, 5);
}

TEST(Lienzo, AFilledBoxCoversItsInsideAndItsBorder) {
    for (const std::int16_t modo : {Superficie::MODO_COPIAR, Superficie::MODO_INVERTIR}) {
        Lienzo hoja;
        Prepara(hoja);
        hoja.DrawMode(modo);
        hoja.FillStyle(Superficie::RELLENO_SOLIDO);
        hoja.Caja({10, 20}, {30, 60});
        EXPECT_EQ(Cuenta(hoja.Imagen(), EsNegro), 21 * 41) << modo;
    }
}

TEST(Lienzo, BoxesAreCrispAndDiagonalsSmooth) {
    for (const double relacion : {1.0, 1.5, 2.0}) {
        const auto aMedias = [](QColor c) { return !EsNegro(c) && !EsBlanco(c); };
        Lienzo cajas;
        Prepara(cajas, relacion);
        cajas.Caja({10.3F, 10.7F}, {60.2F, 50.9F});
        cajas.Line({5, 3.3F}, {95, 3.3F});
        EXPECT_GT(Cuenta(cajas.Imagen(), EsNegro), 200);
        // The ends of the free segment may fade.
        EXPECT_LE(Cuenta(cajas.Imagen(), aMedias), 8) << relacion;

        Lienzo diagonal;
        Prepara(diagonal, relacion);
        diagonal.Line({5, 5}, {90, 47});
        EXPECT_GT(Cuenta(diagonal.Imagen(), aMedias), 40) << relacion;
    }
}

TEST(Lienzo, ThinStrokesWeighTheSameInEveryDirection) {
    const auto tinta = [](double grados, std::int16_t ancho, double relacion) {
        Lienzo hoja;
        Prepara(hoja, relacion);
        hoja.DrawWidth(ancho);
        const double a = grados * M_PI / 180;
        hoja.Line(
            {50.3F - 30 * static_cast<float>(std::cos(a)), 40.4F - 30 * static_cast<float>(std::sin(a))},
            {50.3F + 30 * static_cast<float>(std::cos(a)), 40.4F + 30 * static_cast<float>(std::sin(a))});
        double suma = 0;
        for (int y = 0; y < hoja.Imagen().height(); ++y) {
            for (int x = 0; x < hoja.Imagen().width(); ++x)
                suma += 1 - hoja.Imagen().pixelColor(x, y).lightnessF();
        }
        return suma / (60 * relacion);
    };
    for (const double relacion : {1.0, 1.5, 2.0}) {
        for (const std::int16_t ancho : {std::int16_t{1}, std::int16_t{2}}) {
            const double llana = tinta(0, ancho, relacion);
            for (const double grados : {7.0, 20.0, 45.0, 63.0, 90.0, 135.0, 170.0})
                EXPECT_NEAR(tinta(grados, ancho, relacion) / llana, 1, 0.05) << grados << " " << relacion;
        }
    }
}

TEST(Lienzo, DashesTurnTheCornersOfATrace) {
    for (const std::int16_t estilo :
         {Superficie::ESTILO_TRAZOS, Superficie::ESTILO_TRAZO_PUNTO, Superficie::ESTILO_TRAZO_PUNTO_PUNTO}) {
        Lienzo hoja;
        Prepara(hoja);
        hoja.DrawStyle(estilo);
        // Its bends come at every place of the pattern.
        std::vector<PuntoXY> traza;
        for (int i = 0; i < 8; ++i) {
            const float x = 5 + 11.3F * static_cast<float>(i);
            traza.push_back({x, i % 2 ? 70.0F : 20.0F});
            traza.push_back({x + 11.3F, i % 2 ? 70.0F : 20.0F});
        }
        hoja.Line(traza);
        const int tinta = Cuenta(hoja.Imagen(), [](QColor c) { return !EsBlanco(c); });
        EXPECT_LT(tinta, 0.85 * (8 * 11.3 + 7 * 50)) << "dashes still";
        for (std::size_t i = 1; i + 1 < traza.size(); ++i) {
            const QPoint p(static_cast<int>(traza[i].X), 80 - static_cast<int>(traza[i].Y));
            const QImage cerca = hoja.Imagen().copy(QRect(p - QPoint(1, 1), QSize(3, 3)));
            EXPECT_LT(Cuenta(cerca, EsBlanco), 9) << "no ink on bend " << i << " of style " << estilo;
        }
    }
}

TEST(Lienzo, WhatIsNoNumberIsNotDrawnAndCostsNothing) {
    for (const std::int16_t ancho : {std::int16_t{1}, std::int16_t{5}}) {
        for (const std::int16_t estilo : {Superficie::ESTILO_SOLIDO, Superficie::ESTILO_TRAZO_PUNTO}) {
            Lienzo hoja;
            Prepara(hoja);
            hoja.DrawWidth(ancho);
            hoja.DrawStyle(estilo);
            const PuntoXY traza[] = {{10, 10}, {NAN, 20}, {30, INFINITY}, {40, 40}};
            const auto antes = std::chrono::steady_clock::now();
            hoja.Line(traza);
            hoja.Circle({NAN, 40}, 9);
            hoja.Caja({10, NAN}, {30, 40});
            hoja.PSet({NAN, NAN}, ROJO);
            EXPECT_LT(std::chrono::steady_clock::now() - antes, std::chrono::milliseconds(500));
            hoja.Line({10, 60}, {90, 60});
            EXPECT_FALSE(EsBlanco(hoja.Imagen().pixelColor(12, 20))) << "what follows is";
        }
    }
}

TEST(Lienzo, ThePenFollowsWidthStyleAndMode) {
    const auto tinta = [](std::int16_t ancho, std::int16_t estilo, std::int16_t modo, double relacion) {
        Lienzo hoja;
        Prepara(hoja, relacion);
        hoja.ForeColor(ROJO);
        hoja.DrawWidth(ancho);
        hoja.DrawStyle(estilo);
        hoja.DrawMode(modo);
        hoja.Line({10, 40}, {90, 40});
        EXPECT_EQ(Cuenta(hoja.Imagen(), EsNegro) > 0, modo == Superficie::MODO_NEGRO);
        return Cuenta(hoja.Imagen(), [](QColor c) { return !EsBlanco(c); });
    };
    constexpr auto SOLIDO = Superficie::ESTILO_SOLIDO;
    constexpr auto COPIAR = Superficie::MODO_COPIAR;
    const int fina = tinta(1, SOLIDO, COPIAR, 1);
    EXPECT_NEAR(fina, 80, 3);
    EXPECT_NEAR(tinta(1, SOLIDO, Superficie::MODO_NEGRO, 1), fina, 1);
    EXPECT_NEAR(tinta(3, SOLIDO, COPIAR, 1), 3 * 80, 24);
    EXPECT_NEAR(tinta(1, SOLIDO, COPIAR, 2), 4 * 80, 16);
    for (const std::int16_t trazos :
         {Superficie::ESTILO_TRAZOS, Superficie::ESTILO_TRAZO_PUNTO, Superficie::ESTILO_TRAZO_PUNTO_PUNTO}) {
        EXPECT_LT(tinta(1, trazos, COPIAR, 1), 0.85 * fina) << trazos;
        EXPECT_EQ(tinta(3, trazos, COPIAR, 1), tinta(3, SOLIDO, COPIAR, 1)) << trazos;
    }
}

TEST(Lienzo, StrokesThatComeFromFarAwayKeepTheirPlace) {
    Lienzo hoja;
    Prepara(hoja);
    const PuntoXY lejana[] = {{-4e6F, 40}, {4e6F, 40}, {4e6F, 2e6F}};
    hoja.Line(lejana);
    hoja.Circle({50, -1e5F}, 1e5F + 60);
    hoja.Caja({-1e7F, 20}, {1e7F, -1e7F});
    for (const int x : {5, 50, 95}) {
        EXPECT_TRUE(EsNegro(hoja.Imagen().pixelColor(x, 40))) << x;
        EXPECT_TRUE(EsNegro(hoja.Imagen().pixelColor(x, 60))) << x;
        EXPECT_FALSE(EsBlanco(hoja.Imagen().pixelColor(x, 20)) && EsBlanco(hoja.Imagen().pixelColor(x, 19)))
            << x;
    }
}

TEST(Lienzo, TextIsMeasuredInUnitsAndGrowsEvenly) {
    Lienzo hoja;
    Prepara(hoja);
    hoja.FontSize(12);
    const float ancho = hoja.TextWidth("Embalse");
    const float alto = hoja.TextHeight("Embalse");
    EXPECT_GT(ancho, 40);
    EXPECT_NEAR(alto, -16 * 1.15, 1);  // Y grows upwards
    EXPECT_NEAR(hoja.TextHeight("dos\nlíneas"), 2 * alto, 1e-3);
    EXPECT_EQ(hoja.TextWidth("más\nEmbalse"), ancho);
    hoja.FontSize(48);
    EXPECT_NEAR(hoja.TextWidth("Embalse"), 4 * ancho, 0.01 * ancho);
    hoja.FontSize(0.12F);  // too small to be drawn, not to be measured
    EXPECT_NEAR(hoja.TextWidth("Embalse"), ancho / 100, 0.01 * ancho / 100);
    hoja.FontSize(12);
    hoja.ScaleWidth(50);
    EXPECT_NEAR(hoja.TextWidth("Embalse"), ancho / 2, 1e-3);
    // Twice the pixels for the same size on the screen.
    Lienzo doble;
    Prepara(doble, 2);
    doble.FontSize(12);
    EXPECT_NEAR(doble.TextWidth("Embalse"), ancho, 0.01 * ancho);
}

TEST(Lienzo, TextHangsFromItsCornerInItsColourWhateverTheMode) {
    for (const char* texto : {"Añó", "Río Łódź"}) {
        for (const std::int16_t modo :
             {Superficie::MODO_COPIAR, Superficie::MODO_NEGRO, Superficie::MODO_INVERTIR}) {
            Lienzo hoja;
            Prepara(hoja);
            hoja.FontSize(12);
            hoja.ForeColor(ROJO);
            hoja.DrawMode(modo);
            hoja.Line({0, 5}, {1, 5});
            hoja.CurrentX(20);
            hoja.CurrentY(60);
            hoja.Print(texto);
            QRect tinta;
            for (int y = 0; y < 70; ++y) {
                for (int x = 0; x < 100; ++x) {
                    const QColor c = hoja.Imagen().pixelColor(x, y);
                    if (EsBlanco(c)) continue;
                    tinta |= QRect(x, y, 1, 1);
                    EXPECT_GT(c.red(), 250);
                    EXPECT_EQ(c.green(), c.blue());
                }
            }
            // 80 - 60 pixels down, within the measured box.
            EXPECT_GE(tinta.left(), 19) << texto;
            EXPECT_LE(tinta.right(), 21 + hoja.TextWidth(texto)) << texto;
            EXPECT_GE(tinta.top(), 19) << texto;
            EXPECT_LE(tinta.bottom(), 21 - hoja.TextHeight(texto)) << texto;
            EXPECT_GT(tinta.height(), 8) << texto;
        }
    }
}

TEST(Lienzo, DotsKeepTheirOrderAmongTheOtherStrokes) {
    Lienzo hoja;
    Prepara(hoja);
    hoja.PSet({50.5F, 40.5F}, ROJO);
    hoja.Line({40, 40.5F}, {60, 40.5F});
    EXPECT_TRUE(EsNegro(hoja.Imagen().pixelColor(50, 39)));
    hoja.PSet({50.5F, 40.5F}, ROJO);
    EXPECT_EQ(hoja.Imagen().pixelColor(50, 39), QColor(255, 0, 0));
    hoja.Cls();
    EXPECT_EQ(Cuenta(hoja.Imagen(), EsBlanco), 100 * 80);
}

TEST(Lienzo, TextsFollowTheFontAndItsBackground) {
    Lienzo hoja;
    Prepara(hoja);
    hoja.FontSize(20);
    const float llana = hoja.TextWidth("Cuenca");
    QFont fuente = hoja.Font();
    fuente.setBold(true);
    hoja.Font(fuente);
    EXPECT_GT(hoja.TextWidth("Cuenca"), llana * 1.02F);
    const auto tinta = [&](bool subrayada) {
        fuente.setUnderline(subrayada);
        hoja.Font(fuente);
        hoja.Cls();
        hoja.CurrentX(5);
        hoja.CurrentY(60);
        hoja.Print("Cuenca");
        return Cuenta(hoja.Imagen(), EsNegro);
    };
    EXPECT_GT(tinta(true), tinta(false) + 60);
    hoja.BackColor(ROJO);
    hoja.Cls();
    EXPECT_EQ(hoja.Imagen().pixelColor(0, 0), QColor(Qt::red));
    hoja.BackColor(65535);
    hoja.FontTransparent(false);
    hoja.Print("Cuenca");
    EXPECT_GT(Cuenta(hoja.Imagen(), [](QColor c) { return c == QColor(Qt::yellow); }), 200);
}

TEST(Lienzo, APictureStandsUprightInItsPlaceAlsoWhereMostOfItIsOutOfSight) {
    QImage cuatro(2, 2, QImage::Format_RGB32);
    cuatro.setPixelColor(0, 0, Qt::red);
    cuatro.setPixelColor(1, 0, Qt::green);
    cuatro.setPixelColor(0, 1, Qt::blue);
    cuatro.setPixelColor(1, 1, Qt::yellow);
    const ImagenQt imagen(cuatro);
    const struct {
        PuntoXY esquina;
        float ancho, alto;
        QColor arribaIzquierda, abajoDerecha;
    } casos[] = {{{10, 70}, 80, -60, Qt::red, Qt::yellow},
                 {{10, 10}, 80, 60, Qt::blue, Qt::green},  // upwards: mirrored
                 {{-1000, 1000}, 200000, -200000, Qt::red, Qt::red}};
    for (const auto& caso : casos) {
        Lienzo hoja;
        Prepara(hoja);
        hoja.PaintPicture(imagen, caso.esquina, caso.ancho, caso.alto);
        EXPECT_EQ(hoja.Imagen().pixelColor(15, 15), caso.arribaIzquierda) << caso.esquina.X;
        EXPECT_EQ(hoja.Imagen().pixelColor(85, 65), caso.abajoDerecha) << caso.esquina.X;
    }
    Lienzo fuera;
    Prepara(fuera);
    fuera.PaintPicture(imagen, {200, 70}, 50, -50);
    EXPECT_EQ(Cuenta(fuera.Imagen(), EsBlanco), 8000);
}

}  // namespace
}  // namespace zel::pruebas
