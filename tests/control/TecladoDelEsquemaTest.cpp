// Keys as they come from the platform: shortcuts, repetitions, the host that changes them.
#include <QShortcut>
#include <QWheelEvent>

#include "control/EnVentana.h"

namespace zel::pruebas {
namespace {

// Two nodes, of which "Norte" is selected; an error in answer to a key fails the test.
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
    bool ConMano() const { return Parte<QAbstractButton>("mano")->isChecked(); }
};

TEST_F(TecladoDelEsquema, CtrlForAShortcutOrTheWheelLeavesTheSelection) {
    const QString unoAUno = u"SUBSISTEMA"_s;
    const auto enUnoAUno = [&] { return QString::fromStdString(Estado(1)).startsWith(unoAUno); };
    int disparos = 0;
    const QShortcut atajo(QKeySequence(u"Ctrl+G"_s), &esquema, [&] {
        ++disparos;
        EXPECT_EQ(esquema.CodigoElemento(), 1);
    });
    QTest::keyPress(Panel(), Qt::Key_Control);
    EXPECT_TRUE(enUnoAUno());
    QTest::keyClick(Panel(), Qt::Key_G, Qt::ControlModifier);
    EXPECT_EQ(disparos, 1);
    QTest::keyRelease(Panel(), Qt::Key_Control);
    EXPECT_EQ(esquema.CodigoElemento(), 1);

    const QPointF medio = Panel()->rect().center();
    QTest::keyPress(Panel(), Qt::Key_Control);
    QWheelEvent rueda(medio, Panel()->mapToGlobal(medio), {}, {0, 120}, {}, Qt::ControlModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(Panel(), &rueda);
    EXPECT_EQ(esquema.CodigoElemento(), 1);
    Envia(QEvent::KeyPress, Qt::Key_Control, true);
    EXPECT_FALSE(enUnoAUno()) << "Ctrl repeats itself";
    QTest::keyRelease(Panel(), Qt::Key_Control);
}

TEST_F(TecladoDelEsquema, OnlyAReleaseWhosePressWasSeenHereCounts) {
    Envia(QEvent::KeyRelease, Qt::Key_M);
    EXPECT_FALSE(ConMano()) << "pressed elsewhere";
    {
        const QShortcut atajo(QKeySequence(Qt::Key_M), &esquema, [] {});
        QTest::keyClick(Panel(), Qt::Key_M);
        EXPECT_FALSE(ConMano()) << "a shortcut's";
    }
    Envia(QEvent::KeyPress, Qt::Key_M);
    Envia(QEvent::KeyRelease, Qt::Key_M, true);
    EXPECT_FALSE(ConMano()) << "held";
    Parte("HScroll")->setFocus();
    Panel()->setFocus();
    Envia(QEvent::KeyRelease, Qt::Key_M);
    EXPECT_FALSE(ConMano()) << "the focus has been elsewhere";
    QTest::keyClick(Parte("nudo"), Qt::Key_M);
    EXPECT_TRUE(ConMano());
}

TEST_F(TecladoDelEsquema, WhatTheHostMakesOfAKeyIsWhatCounts) {
    QObject::connect(&esquema, &Esquema::KeyUp, [](qint16& tecla, qint16&) {
        tecla = tecla == 'M' ? qint16{0} : tecla == 'Q' ? qint16{'M'} : tecla;
    });
    QTest::keyClick(Panel(), Qt::Key_M);
    EXPECT_FALSE(ConMano());
    QTest::keyClick(Panel(), Qt::Key_Q);
    EXPECT_TRUE(ConMano());
}

TEST_F(TecladoDelEsquema, TheKindsKeysClickTheirButtonsIfTheyCanBe) {
    QTest::keyClick(Panel(), Qt::Key_Clear, Qt::ShiftModifier | Qt::KeypadModifier);
    EXPECT_TRUE(Parte<QAbstractButton>("conduccion5")->isChecked());
    Parte("nudo")->setEnabled(false);
    QTest::keyClick(Panel(), Qt::Key_N, Qt::ShiftModifier);
    EXPECT_FALSE(Parte<QAbstractButton>("nudo")->isChecked());
    esquema.AnulaAgregarElementos();
    QTest::keyClick(Panel(), Qt::Key_E, Qt::ShiftModifier);
    EXPECT_EQ(Estado(1), "Norte");
    qint32 pedido = 0;
    QObject::connect(&esquema, &Esquema::PeticionBorrado, [&](qint32& codigo) { pedido = codigo; });
    QTest::keyClick(Panel(), Qt::Key_Delete);
    EXPECT_EQ(pedido, 1);
}

TEST_F(TecladoDelEsquema, TheArrowsMoveTheBarsAndTheView) {
    EXPECT_TRUE(esquema.CambiaZoom(0.04));
    const Superficie::Escala antes = Dibujo().escala();
    QTest::keyClick(Panel(), Qt::Key_Right);
    QTest::keyClick(Panel(), Qt::Key_Down);
    EXPECT_NEAR(Dibujo().ScaleLeft(), antes.Left + antes.Width / 4, 2);
    EXPECT_NEAR(Dibujo().ScaleTop(), antes.Top + antes.Height / 4, 2);
}

TEST(TecladoSinEsquema, AHostMayDestroyTheControlInAKey) {
    const DialogosGuion dialogos;
    for (const auto& [tecla, mientras] :
         {std::pair(Qt::Key_Delete, "PeticionBorrado"), {Qt::Key_Z, "KeyUp"}}) {
        auto esquema = std::make_unique<Esquema>();
        esquema->GetElementos(DosNudos());
        esquema->Seleccionar(1);
        const auto destruye = [&] { esquema.reset(); };
        if (tecla == Qt::Key_Z)
            QObject::connect(esquema.get(), &Esquema::KeyUp, destruye);
        else
            QObject::connect(esquema.get(), &Esquema::PeticionBorrado, destruye);
        QTest::keyClick(esquema->findChild<PanelDibujo*>(), tecla);
        EXPECT_EQ(esquema, nullptr) << mientras;
    }
}

}  // namespace
}  // namespace zel::pruebas
