// Keys as they come from the platform: shortcuts, repetitions, the host that changes them.
#include <QAccessible>
#include <QContextMenuEvent>
#include <QMenu>
#include <QShortcut>
#include <QWheelEvent>

#include "control/EnVentana.h"

namespace zel::pruebas {
namespace {

// Two nodes, of which "Norte" is selected.
class TecladoDelEsquema : public EnVentana {
  protected:
    TecladoDelEsquema() {
        Pon(DosNudos(5000));
        esquema.Seleccionar(1);
        esquema.activateWindow();
        Panel()->setFocus();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&esquema));
    }
    void Envia(QEvent::Type tipo, int tecla, bool repetida = false) {
        QKeyEvent evento(tipo, tecla, {}, {}, repetida);
        QApplication::sendEvent(Panel(), &evento);
    }
    // Where the menu opens for it, from the panel's corner.
    std::optional<QPoint> Menu(QEvent&& pide) const {
        QApplication::sendEvent(Panel(), &pide);
        auto* menu = Parte<QMenu>("menuContextual");
        const bool abierto = menu->isVisible();
        menu->close();
        return abierto ? std::optional(Panel()->mapFromGlobal(menu->pos())) : std::nullopt;
    }
    bool Marcado(const char* boton) const { return Parte<QAbstractButton>(boton)->isChecked(); }
};

TEST_F(TecladoDelEsquema, CtrlForAShortcutOrTheWheelLeavesTheSelection) {
    qint32 enElAtajo = 0;
    const QShortcut atajo(QKeySequence(u"Ctrl+G"_s), &esquema, [&] { enElAtajo = esquema.CodigoElemento(); });
    QTest::keyPress(Panel(), Qt::Key_Control);
    EXPECT_EQ(esquema.CodigoElemento(), -1) << "one by one";
    QTest::keyClick(Panel(), Qt::Key_G, Qt::ControlModifier);
    EXPECT_EQ(enElAtajo, 1);
    QTest::keyRelease(Panel(), Qt::Key_Control);
    EXPECT_EQ(Estado(1), "Norte");

    const QPointF medio = Panel()->rect().center();
    QTest::keyPress(Panel(), Qt::Key_Control);
    QWheelEvent rueda(medio, Panel()->mapToGlobal(medio), {}, {0, 120}, {}, Qt::ControlModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(Panel(), &rueda);
    Envia(QEvent::KeyPress, Qt::Key_Control, true);
    EXPECT_EQ(Estado(1), "Norte") << "Ctrl repeats itself";
    QTest::keyRelease(Panel(), Qt::Key_Control);
}

TEST_F(TecladoDelEsquema, AReleaseOfWhatWasPressedElsewhereDoesNotCount) {
    Parte("nudo")->setFocus();
    Panel()->setFocus();
    Envia(QEvent::KeyRelease, Qt::Key_M);
    EXPECT_FALSE(Marcado("mano")) << "pressed before the focus came";
    {
        const QShortcut atajo(QKeySequence(Qt::Key_M), &esquema, [] {});
        QTest::keyClick(Panel(), Qt::Key_M);
        EXPECT_FALSE(Marcado("mano")) << "a shortcut's";
    }
    Envia(QEvent::KeyPress, Qt::Key_M);
    Envia(QEvent::KeyRelease, Qt::Key_M, true);
    EXPECT_FALSE(Marcado("mano")) << "held";
    QTest::keyClick(Parte("nudo"), Qt::Key_M);
    EXPECT_TRUE(Marcado("mano"));
    QTest::keyClick(Panel(), Qt::Key_Escape);
    Envia(QEvent::KeyRelease, Qt::Key_M);
    EXPECT_TRUE(Marcado("mano")) << "whatever has become of its press";
}

TEST_F(TecladoDelEsquema, AKeyActsWithTheCompanionsOfItsPress) {
    std::string visto;
    const auto suelta = [&](Qt::Key tecla, Qt::KeyboardModifiers con) {
        QTest::keyPress(Panel(), tecla, con);
        QTest::keyRelease(Panel(), tecla);
    };
    const auto oye = QObject::connect(&esquema, &Esquema::KeyUp, [&](qint16& tecla, qint16& mayus) {
        visto += std::to_string(tecla) + "/" + std::to_string(mayus) + " ";
    });
    suelta(Qt::Key_N, Qt::ShiftModifier);
    EXPECT_TRUE(visto.ends_with("78/0 ")) << visto << "the host is told what is";
    EXPECT_TRUE(Marcado("nudo"));
    QObject::disconnect(oye);
    QTest::keyClick(Panel(), Qt::Key_Escape);
    QObject::connect(&esquema, &Esquema::KeyUp, [&](qint16&, qint16& mayus) { mayus = 4; });
    suelta(Qt::Key_E, Qt::ShiftModifier);
    EXPECT_FALSE(Marcado("embalse")) << "the host has changed it";
}

TEST_F(TecladoDelEsquema, CtrlLeavesWithTheFocus) {
    QTest::keyPress(Panel(), Qt::Key_Control);
    EXPECT_EQ(esquema.CodigoElemento(), -1);
    Parte("nudo")->setFocus();
    Panel()->setFocus();
    const QImage antes = Dibujo().Imagen().copy();
    QTest::mouseClick(Panel(), Qt::LeftButton, {}, EnElPanel(5000, 5000));
    EXPECT_EQ(Dibujo().Imagen(), antes) << "a plain click adds nothing to the subsystem";
    for (const Qt::Key tecla : {Qt::Key_Z, Qt::Key_M}) {
        const auto escala = Dibujo().escala();
        QTest::keyClick(Panel(), tecla, Qt::ControlModifier);
        EXPECT_FALSE(Marcado("mano"));
        EXPECT_EQ(Dibujo().escala(), escala);
    }
}

TEST_F(TecladoDelEsquema, TheKeysOfThePanel) {
    const auto pulsa = [&](Qt::Key tecla, Qt::KeyboardModifiers con = {}) {
        QTest::keyClick(Panel(), tecla, con);
        return Dibujo().escala();
    };
    const Superficie::Escala lejos = Dibujo().escala(), cerca = pulsa(Qt::Key_Plus, Qt::KeypadModifier);
    EXPECT_LT(cerca.Width, lejos.Width);
    EXPECT_GT(pulsa(Qt::Key_Right).Left, cerca.Left);
    EXPECT_NEAR(pulsa(Qt::Key_Left).Left, cerca.Left, 1);
    EXPECT_GT(pulsa(Qt::Key_Up).Top, cerca.Top);
    EXPECT_NEAR(pulsa(Qt::Key_Down).Top, cerca.Top, 1);
    EXPECT_NEAR(pulsa(Qt::Key_Minus, Qt::KeypadModifier).Width, lejos.Width, 1);
    pulsa(Qt::Key_C);
    EXPECT_NEAR(Centro().X, 0, 20);
    pulsa(Qt::Key_Z);
    EXPECT_NEAR(Centro().X, 2500, 20);
    pulsa(Qt::Key_Z, Qt::ShiftModifier);
    EXPECT_TRUE(Marcado("zoomRecuadro"));
    pulsa(Qt::Key_Escape);
    for (const Qt::Key tecla : {Qt::Key_F10, Qt::Key_F11}) {
        dialogos.Responde("2");
        pulsa(tecla, Qt::AltModifier);
    }
    const auto norte = esquema.GetElementos()->ItemCodSIG(1);
    EXPECT_EQ(norte->ConecSec1() + norte->ConecSec2(), 4);
    pulsa(Qt::Key_F12, Qt::AltModifier);
    EXPECT_EQ(Estado(1), "DEPURANDO");
}

TEST_F(TecladoDelEsquema, WhatTheHostMakesOfAKeyIsWhatCounts) {
    QObject::connect(&esquema, &Esquema::KeyUp, [](qint16& tecla, qint16&) { tecla = 'M'; });
    QTest::keyClick(Panel(), Qt::Key_Q);
    EXPECT_TRUE(Marcado("mano"));
}

TEST_F(TecladoDelEsquema, KeysClickTheButtonsThatCanBeClicked) {
    QTest::keyClick(Panel(), Qt::Key_Clear, Qt::ShiftModifier | Qt::KeypadModifier);
    EXPECT_TRUE(Marcado("conduccion5"));
    Parte("nudo")->setEnabled(false);
    QTest::keyClick(Panel(), Qt::Key_N, Qt::ShiftModifier);
    EXPECT_TRUE(Marcado("conduccion5"));
    esquema.AnulaAgregarElementos();
    QTest::keyClick(Panel(), Qt::Key_E, Qt::ShiftModifier);
    EXPECT_EQ(Estado(1), "Norte");
}

TEST_F(TecladoDelEsquema, TheMenuKeyOpensTheMenuBesideTheSelectionWhereverTheMouseIs) {
    const auto pide = [](auto motivo) { return QContextMenuEvent(motivo, {1, 1}, {1, 1}); };
    const auto enNorte = Menu(pide(QContextMenuEvent::Keyboard));
    EXPECT_LE((enNorte.value() - EnElPanel(0, 0)).manhattanLength(), 2);
    EXPECT_EQ(Menu(QKeyEvent(QEvent::KeyPress, Qt::Key_F10, Qt::ShiftModifier)), enNorte);
    EXPECT_EQ(Menu(pide(QContextMenuEvent::Mouse)), std::nullopt) << "the press has opened it already";
    esquema.ScaleLeft(esquema.ScaleLeft() + 2 * esquema.ScaleWidth());
    EXPECT_EQ(Menu(pide(QContextMenuEvent::Keyboard)), Panel()->rect().center()) << "out of sight";
    Pulsa("mano");
    EXPECT_EQ(Menu(pide(QContextMenuEvent::Keyboard)), std::nullopt);
}

TEST_F(TecladoDelEsquema, AScreenReaderFindsWhatIsSelectedHoweverThatWas) {
    const auto lee = [this] {
        return QAccessible::queryAccessibleInterface(Panel())->text(QAccessible::Description).toStdString();
    };
    QTest::keyClick(Panel(), Qt::Key_PageDown);
    EXPECT_EQ(lee(), "Nudo nº 2, «Sur»");
    QTest::mouseClick(Panel(), Qt::LeftButton, {}, EnElPanel(0, 0));
    EXPECT_EQ(lee(), "Nudo nº 1, «Norte»");
    esquema.BorrarElemento();
    EXPECT_EQ(lee(), "Ningún elemento seleccionado");
}

}  // namespace
}  // namespace zel::pruebas
