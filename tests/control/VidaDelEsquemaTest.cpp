// What a host may do to the control while the control is at work, and before it is shown.
#include <gtest/gtest.h>

#include <QAction>
#include <memory>

#include "control/EnVentana.h"

namespace zel::pruebas {
namespace {

// A host that destroys the control in the middle of something.
class HostQueDestruye : public testing::Test {
  protected:
    HostQueDestruye() : esquema(std::make_unique<Esquema>()) {
        esquema->resize(800, 600);
        esquema->show();
        esquema->GetElementos(DosNudos());
        QObject::connect(esquema.get(), &Esquema::ErrorEnEvento, [this] { ++errores; });
    }
    QWidget* Parte(const char* nombre) const { return esquema->findChild<QWidget*>(QLatin1String(nombre)); }

    CarpetaTemporal carpeta;
    DialogosGuion dialogos;
    std::unique_ptr<Esquema> esquema;
    int errores = 0;
};

TEST_F(HostQueDestruye, InASlot) {
    const auto destruye = [this] { esquema.reset(); };
    QObject::connect(esquema.get(), &Esquema::KeyDown, destruye);
    QTest::keyClick(Parte("Panel"), Qt::Key_A);
    EXPECT_EQ(esquema, nullptr);
    esquema = std::make_unique<Esquema>();
    esquema->GetElementos(DosNudos());
    esquema->Seleccionar(1);
    QObject::connect(esquema.get(), &Esquema::PeticionBorrado, destruye);
    QTest::keyClick(Parte("Panel"), Qt::Key_Delete);
    EXPECT_EQ(esquema, nullptr);
    EXPECT_EQ(errores, 0);
}

TEST_F(HostQueDestruye, WhileABoxIsOpen) {
    dialogos.MientrasAvisa([this] { esquema.reset(); });
    dialogos.Espera("Seleccione en el panel");
    QTest::mouseClick(Parte("borrar"), Qt::LeftButton);
    EXPECT_EQ(esquema, nullptr);
    // A paint that fails, in answer to a call of the host: that call raises.
    esquema = std::make_unique<Esquema>();
    esquema->GetElementos()->Add(ctToma, "Sin trazado", 3, 1, 0, 0, 1, 2, nullptr, nullptr, "3", 0, 0);
    dialogos.Espera("ErrDibujarConduccion");
    EXPECT_TRUE(Falla([this] { esquema->Refresh(); }, {"El visor se ha cerrado"}));
    EXPECT_EQ(esquema, nullptr);
    // In the middle of a resize there is no box: it comes after.
    esquema = std::make_unique<Esquema>();
    esquema->show();
    esquema->GetElementos()->Add(ctToma, "Sin trazado", 3, 1, 0, 0, 1, 2, nullptr, nullptr, "3", 0, 0);
    esquema->resize(700, 500);
    EXPECT_NE(esquema, nullptr);
    dialogos.Espera("ErrDibujarConduccion");
    QApplication::processEvents();
    EXPECT_EQ(esquema, nullptr);
}

TEST(EsquemaSinMostrar, TheFirstShowFitsUnlessTheHostHasChosenAView) {
    for (const bool elige : {false, true}) {
        Esquema esquema;
        esquema.GetElementos(DosNudos(5000));
        esquema.ResizeGrafo();
        if (elige) {
            EXPECT_TRUE(esquema.CambiaZoom(0.01));
            esquema.SeleccionarCentrarElemento(2);
        }
        esquema.resize(900, 700);
        esquema.show();
        QApplication::processEvents();
        EXPECT_EQ(esquema.ScaleWidth() > 5000, !elige);
        EXPECT_EQ(esquema.ScaleLeft() > 4000, elige);
    }
}

class EsquemaEnUso : public EnVentana {};

TEST_F(EsquemaEnUso, EachAxisKeepsItsUnitsInAResizeAndWildValuesAreRefused) {
    esquema.ScaleHeight(1000);
    const float porPixel = esquema.ScaleHeight() / static_cast<float>(Panel()->height());
    esquema.resize(800, 700);
    QApplication::processEvents();
    EXPECT_NEAR(esquema.ScaleHeight() / static_cast<float>(Panel()->height()), porPixel, 1e-4);
    const Superficie::Escala antes = Dibujo().escala();
    for (const float malo : {NAN, INFINITY, 1e30F, 0.0F, 1e-30F}) {
        EXPECT_THROW(esquema.ScaleWidth(malo), Error) << malo;
        EXPECT_THROW(esquema.ScaleHeight(malo), Error) << malo;
    }
    EXPECT_THROW(esquema.AjustarAVentana(NAN), Error);
    EXPECT_EQ(Dibujo().escala(), antes);
}

TEST_F(EsquemaEnUso, WhatTheHostRemovesIsSelectedNoMoreAndWhatItSaysIsShown) {
    Pon(DosNudos());
    esquema.Seleccionar(2);
    qint32 pedido = 0;
    QObject::connect(&esquema, &Esquema::PeticionBorrado, [&](qint32& codigo) { pedido = codigo; });
    Pulsa("borrar");
    EXPECT_EQ(pedido, 2);
    esquema.GetElementos()->RemoveCodSIG(2);
    EXPECT_EQ(esquema.CodigoElemento(), -1);
    EXPECT_EQ(esquema.TipoElemento(), -1);
    esquema.textoStatBar(u"Calculando el balance"_s);
    EXPECT_EQ(Estado(1), "Calculando el balance");
    esquema.Cls();
    EXPECT_FALSE(SeVe(0, 4));
    esquema.Refresh();
    EXPECT_TRUE(SeVe(0, 4));
    EXPECT_EQ(esquema.hdc(), static_cast<qint32>(Panel()->winId()));
    EXPECT_TRUE(SeVe(0, 4));
    esquema.AnulaAgregarElementos();
    Pulsa("nudo");
    EXPECT_EQ(Estado(1), "Preparado");
}

TEST_F(EsquemaEnUso, APictureBeyondAllMeasureIsNotPainted) {
    QImage(4, 4, QImage::Format_RGB32).save(u"plano.bmp"_s);
    carpeta.Escribe("lejos.xml",
                    "<Esquema><Elementos/><ImagenFondo><Archivo>plano.bmp</Archivo><X0>0</X0><Y0>0</Y0>"
                    "<LX>1e300</LX><LY>-10</LY><Oculta>False</Oculta></ImagenFondo></Esquema>");
    esquema.ArchivoAbrir(u"lejos.xml"_s);
    EXPECT_EQ(ColorEn(Centro().X, Centro().Y), QColor(Qt::white));
}

}  // namespace
}  // namespace zel::pruebas
