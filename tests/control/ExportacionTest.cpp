#include "control/Exportacion.h"

#include <gtest/gtest.h>

#include <QColor>
#include <QPainter>
#include <QSvgRenderer>
#include <filesystem>

#include "file/lectorArchivo.h"
#include "support/CarpetaTemporal.h"
#include "support/Resultado.h"

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

// Where there is ink, on a grid of 40 x 24 cells.
std::vector<bool> Ocupacion(const QImage& imagen) {
    const QImage gruesa = imagen.scaled(40, 24, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    std::vector<bool> celdas;
    for (int y = 0; y < gruesa.height(); ++y) {
        for (int x = 0; x < gruesa.width(); ++x)
            celdas.push_back(qGray(gruesa.pixel(x, y)) < 248);
    }
    return celdas;
}

TEST(Exportacion, SvgIsTheSameDrawingWithItsTextsAsTexts) {
    QStringList fallos;
    const auto cuenca = Cuenca();
    const QImage png = ImagenDeEsquema(*cuenca, true, 1600, fallos);
    const QByteArray svg = SvgDeEsquema(*cuenca, true, QStringLiteral("Cuenca <&>"), std::nullopt, fallos);
    EXPECT_TRUE(svg.contains("Embalse de El Cañaveral"));
    QSvgRenderer lector(svg);
    ASSERT_TRUE(lector.isValid());
    QImage dibujada(png.size(), QImage::Format_RGB32);
    dibujada.fill(Qt::white);
    QPainter pintor(&dibujada);
    lector.render(&pintor);
    pintor.end();
    const auto de = Ocupacion(png);
    const auto a = Ocupacion(dibujada);
    int distintas = 0;
    for (std::size_t i = 0; i < de.size(); ++i)
        distintas += de[i] != a[i];
    EXPECT_LT(distintas, 40) << "of " << de.size() << " cells";
    EXPECT_GT(std::count(de.begin(), de.end(), true), 200);
    // A schematic as wide as the world keeps the digits of its coordinates.
    Elementos lejos;
    lejos.Add(ctNudo, "Aquí", 1, 1, -3000, 0, 0, 0, nullptr, nullptr, "1", 5, 0);
    lejos.Add(ctNudo, "Allá", 2, 2, 4900000, 0, 0, 0, nullptr, nullptr, "2", 5, 0);
    const QRectF caja = QSvgRenderer(SvgDeEsquema(lejos, true, {}, std::nullopt, fallos)).viewBoxF();
    EXPECT_LE(caja.width(), 100000.5);
    EXPECT_TRUE(fallos.isEmpty());
}

TEST(Exportacion, PdfIsOnePageOfThePicturesSizeAndTheSameEachTime) {
    QStringList fallos;
    const auto cuenca = Cuenca();
    const QByteArray pdf = PdfDeEsquema(*cuenca, true, QStringLiteral("Cuenca"), fallos);
    EXPECT_TRUE(pdf.startsWith("%PDF-1."));
    EXPECT_EQ(pdf.count("/Type /Page\n"), 1);
    EXPECT_TRUE(pdf.contains("/MediaBox [0 0 1186.000000 699.000000]"))
        << pdf.mid(pdf.indexOf("/MediaBox"), 40).toStdString();
    EXPECT_EQ(PdfDeEsquema(*cuenca, true, QStringLiteral("Cuenca"), fallos), pdf);
}

TEST(Exportacion, AFileThatCannotBeWrittenLeavesNothingAndTheFormatIsTheExtensions) {
    const CarpetaTemporal carpeta;
    const auto cuenca = Cuenca();
    for (const char* archivo : {"a.PNG", "a.svg", "a.pdf"}) {
        EXPECT_TRUE(ExportaEsquema(QString::fromLatin1(archivo), *cuenca, true, {}, std::nullopt).isEmpty());
        EXPECT_GT(std::filesystem::file_size(archivo), 10000U) << archivo;
    }
    const auto exporta = [&](const char* archivo) {
        return Resultado([&] {
            return ExportaEsquema(QString::fromLatin1(archivo), *cuenca, true, {}, std::nullopt).size();
        });
    };
    EXPECT_EQ(exporta("a.jpg"), "!5");
    EXPECT_EQ(exporta("no/hay.svg"), "!76");
    EXPECT_FALSE(std::filesystem::exists("a.jpg"));
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
