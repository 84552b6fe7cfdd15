// What a host may do to the control while the control is at work, and before it is shown.
#include <gtest/gtest.h>

#include <QAction>
#include <QScrollBar>
#include <QTimer>
#include <functional>
#include <memory>

#include "control/EnVentana.h"
#include "platform/qt/DialogosQt.h"

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
    esquema = std::make_unique<Esquema>();
    QObject::connect(esquema.get(), &Esquema::KeyPress, [this] {
        esquema->ModificaVarios_Nombres({}, {});  // asks for a repaint that nobody is left to perform
        esquema.reset();
    });
    QTest::keyClick(Parte("Panel"), Qt::Key_A);
    QApplication::processEvents();
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

// Whatever of the platform is at work when a box opens, or a failure is told.
TEST_F(HostQueDestruye, UnderEachWidgetOfTheControl) {
    const auto barra = [this](const char* nombre) {
        return esquema->findChild<QScrollBar*>(QLatin1String(nombre));
    };
    const auto pulsa = [this](const char* nombre) { QTest::mouseClick(Parte(nombre), Qt::LeftButton); };
    const std::function<void()> gestos[] = {
        [&] { barra("HScroll")->setValue(barra("HScroll")->value() + 9); },
        [&] { QTest::keyClick(barra("VScroll"), Qt::Key_PageDown); },
        [&] {
            QScrollBar* h = barra("HScroll");
            QTest::mousePress(h, Qt::LeftButton, {}, h->rect().center());
            QTest::mouseMove(h, h->rect().center() + QPoint(60, 0));
            if (esquema) QTest::mouseRelease(h, Qt::LeftButton, {}, h->rect().center() + QPoint(60, 0));
        },
        [&] { esquema->resize(700, 500); },
        [&] {
            Parte("otbImagenFondo(0)")->setFocus();
            Parte("Panel")->setFocus(Qt::TabFocusReason);
        },
        [&] { pulsa("ajustarzoom"); },
        [&] { QTest::keyClick(Parte("ajustarzoom"), Qt::Key_Space); },
        [&] { pulsa("cmdImagenFondoVer"); },
        [&] { QTest::keyClick(Parte("cmdImagenFondoAceptar"), Qt::Key_Space); }};
    for (const auto& gesto : gestos) {
        for (const bool porElError : {false, true}) {
            SCOPED_TRACE(std::to_string(&gesto - gestos) + (porElError ? " by the event" : " in a box"));
            QImage(40, 40, QImage::Format_RGB32).save(u"plano.bmp"_s);
            esquema = std::make_unique<Esquema>();
            esquema->resize(800, 600);
            esquema->show();
            esquema->activateWindow();
            ASSERT_TRUE(QTest::qWaitForWindowActive(esquema.get()));
            const auto elementos = DosNudos(5000);
            esquema->GetElementos(elementos);
            esquema->ResizeGrafo();
            esquema->CambiaZoom(0.2);
            dialogos.ResponderArchivo((carpeta / "plano.bmp").string());
            esquema->findChild<QAction*>(u"menuVisorImagen"_s)->trigger();
            elementos->Add(ctToma, "Sin trazado", 3, 1, 0, 0, 1, 2, nullptr, nullptr, "3", 0, 0);
            if (porElError) {
                dialogos.MientrasAvisa([] { throw Fallo(5, "no box can be shown"); });
                QObject::connect(esquema.get(), &Esquema::ErrorEnEvento, [this] { esquema.reset(); });
            } else {
                dialogos.MientrasAvisa([this] { esquema.reset(); });
                dialogos.Espera("ErrDibujarConduccion");
            }
            gesto();
            QApplication::processEvents();
            EXPECT_EQ(esquema, nullptr);
            dialogos.MientrasAvisa({});
        }
    }
}

TEST_F(HostQueDestruye, ItsWindowUnderABoxOfThePlatform) {
    DialogosQt qt;
    for (const std::function<bool()>& responde :
         {std::function<bool()>([&] { return qt.MsgBox("a", {}), false; }),
          {[&] { return qt.InputBox("a", {}, "b").has_value(); }},
          {[&] { return qt.ArchivoAbrir("a", "b|*.b").has_value(); }},
          {[&] { return qt.Color(0).has_value(); }}}) {
        esquema = std::make_unique<Esquema>();
        esquema->show();
        esquema->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(esquema.get()));
        QTimer::singleShot(0, [this] { esquema.reset(); });
        EXPECT_FALSE(responde());
        EXPECT_EQ(esquema, nullptr);
    }
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
