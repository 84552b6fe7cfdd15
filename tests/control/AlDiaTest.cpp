// That the panel shows what a fresh paint would, and the view what was chosen, whatever has come between.
#include "control/ConRaton.h"

namespace zel::pruebas {
namespace {

class AlDia : public ConRaton {
  protected:
    AlDia() {
        for (const Elemento& e :
             {ConNombre(Simbolo(ctNudo, {20, 20}), "Norte"), ConNombre(Simbolo(ctEmbalse, {60, 60}), "Presa"),
              ConNombre(Simbolo(ctNudo, {110, 20}), "Sur")}) {
            const auto nuevo = std::make_shared<Elemento>(e);
            nuevo->gfCodSIG(esquema.GetElementos()->Count() + 1);
            esquema.AddElemento(nuevo);
        }
        Pon(esquema.GetElementos());
    }
    // The repaint that is owed comes when the events are through.
    bool EstaAlDia() {
        QApplication::processEvents();
        const QImage vista = Imagen();
        const bool alDia = RecienPintada() == vista;
        return alDia;
    }
    // A conduit from "Norte" with an inner point, and the mouse further on.
    void EmpiezaTraza() {
        ConRaton::EnVentana::Pulsa("conduccion1");
        Clic({20, 20});
        Clic({60, 20});
        Mueve({80, 35});
    }
    void Boton(const char* nombre) { ConRaton::EnVentana::Pulsa(nombre); }
    bool Pulsado(const char* boton) const { return Parte<QAbstractButton>(boton)->isChecked(); }
};

TEST_F(AlDia, AfterACommandThatIsCancelledOrFails) {
    const std::string texto = carpeta.Escribe("texto.png", "no es una imagen");
    const std::pair<const char*, std::function<void()>> ordenes[] = {
        {"menuVisorImagen",
         [&] {
             dialogos.ResponderArchivo(texto);
             dialogos.Espera("No se puede leer la imagen");
         }},
        {"menuVisorModifFtes", [&] { dialogos.Responde(std::nullopt); }},
        {"menuVisorModifElems", [&] { dialogos.Responde(std::nullopt); }}};
    for (const auto& [orden, prepara] : ordenes) {
        for (const bool conTraza : {false, true}) {
            if (conTraza) EmpiezaTraza();
            prepara();
            Orden(orden);
            Mueve({150, 90});
            EXPECT_TRUE(EstaAlDia()) << orden << conTraza;
            QTest::keyClick(Panel(), Qt::Key_Escape);
        }
    }
    // A key in the middle of a press.
    Clic({20, 20});
    Pulsa({20, 20});
    Mueve({30, 30});
    QTest::keyClick(Panel(), Qt::Key_Z);
    Suelta({30, 30});
    EXPECT_TRUE(EstaAlDia());
}

TEST_F(AlDia, AfterCallsOfTheHostThatDoNotRepaint) {
    Elem(1)->Nombre("Azud");
    esquema.ModificaVarios_Nombres({3, 3}, {u"Delta"_s, {}});
    EXPECT_TRUE(EstaAlDia());
    EXPECT_TRUE(esquema.ModificaVarios_NumUser({3, 3}, {77, 0}));
    EXPECT_TRUE(EstaAlDia());
    esquema.Seleccionar(2);
    EXPECT_THROW(esquema.TamanyoElemento(0.1F), Error);
    EXPECT_TRUE(EstaAlDia());
    Mueve({20, 20});  // underlined
    esquema.Cls();
    const QImage vacio = Imagen();
    Mueve({150, 90});
    EXPECT_EQ(Imagen(), vacio) << "a mark taken off what is not there";
    QObject::connect(&esquema, &Esquema::MouseDown, [this] { esquema.BorrarElemento(); });
    Pulsa({20, 20});
    Suelta({20, 20});
    Mueve({140, 90});
    EXPECT_TRUE(EstaAlDia());
}

TEST_F(AlDia, TheViewStaysWhenTheRegionShrinks) {
    esquema.ResizeGrafo();
    ASSERT_TRUE(esquema.CambiaZoom(0.6));
    esquema.SeleccionarCentrarElemento(3);
    const auto antes = Dibujo().escala();
    esquema.BorrarElemento();
    QApplication::processEvents();
    esquema.Refresh();
    EXPECT_EQ(Dibujo().escala(), antes);
}

TEST_F(AlDia, ATraceIsKeptThroughTheZoomsAndTheHand) {
    const std::function<void()> interrupciones[] = {[&] {
                                                        Boton("zoommas");
                                                        Clic({60, 30});
                                                        Clic({60, 30}, Qt::RightButton);
                                                    },
                                                    [&] {
                                                        Boton("mano");
                                                        Arrastra({{60, 30}, {62, 34}});
                                                        Clic({60, 30}, Qt::RightButton);
                                                    },
                                                    [&] {
                                                        QTest::keyClick(Panel(), Qt::Key_Z,
                                                                        Qt::ShiftModifier);
                                                        Arrastra({{10, 10}, {140, 90}});
                                                    },
                                                    [&] {
                                                        QTest::keyClick(Panel(), Qt::Key_M);
                                                        QTest::keyClick(Panel(), Qt::Key_Escape);
                                                    }};
    for (const auto& interrumpe : interrupciones) {
        SCOPED_TRACE(&interrumpe - interrupciones);
        EmpiezaTraza();
        const int antes = esquema.GetElementos()->Count();
        interrumpe();
        EXPECT_EQ(Prompt(),
                  "Agregue puntos al trazado o escoja el elemento de destino. Backspace para deshacer");
        EXPECT_TRUE(Pulsado("conduccion1"));
        for (const char* boton : {"zoommas", "zoomRecuadro", "mano"})
            EXPECT_FALSE(Pulsado(boton)) << boton;
        QTest::mouseClick(Panel(), Qt::LeftButton, {}, EnElPanel(110, 20));
        ASSERT_EQ(esquema.GetElementos()->Count(), antes + 1);
        EXPECT_EQ(esquema.GetElementos()->Item(antes + 1)->Trazado()->Count(), 3);
        QTest::keyClick(Panel(), Qt::Key_Escape);
        esquema.GetElementos()->Remove(antes + 1);
        Pon(esquema.GetElementos());
    }
}

TEST_F(AlDia, TheViewButtonsFollowTheState) {
    const auto ancho = [this] { return Dibujo().ScaleWidth(); };
    Boton("zoommenos");
    Boton("ajustarzoom");  // of one shot: the zoom goes on
    EXPECT_TRUE(Pulsado("zoommenos"));
    const float antes = ancho();
    QTest::mouseClick(Panel(), Qt::LeftButton, {}, Panel()->rect().center());
    EXPECT_GT(ancho(), antes);
    QTest::keyClick(Panel(), Qt::Key_Escape);
    for (const char* boton : {"zoommas", "zoommenos", "mano", "zoomRecuadro"})
        EXPECT_FALSE(Pulsado(boton)) << boton;
    esquema.Seleccionar(1);
    Boton("zoommas");
    QTest::keyClick(Panel(), Qt::Key_C);
    EXPECT_TRUE(Pulsado("zoommas"));
    const float cerca = ancho();
    QTest::mouseClick(Panel(), Qt::LeftButton, {}, Panel()->rect().center());
    EXPECT_LT(ancho(), cerca);
}

TEST_F(AlDia, TheOtherButtonsOfTheMouseDoNothing) {
    Boton("nudo");
    for (const auto boton : {Qt::BackButton, Qt::ForwardButton, Qt::TaskButton})
        Clic({90, 90}, boton);
    EXPECT_EQ(esquema.GetElementos()->Count(), 3);
    EXPECT_EQ(Sucesos(), "");
    QTest::keyClick(Panel(), Qt::Key_Escape);
    Clic({20, 20});
    Sucesos();
    const PuntoXY antes = Centro();
    QTest::mouseDClick(Panel(), Qt::MiddleButton, {}, En({20, 20}));
    EXPECT_EQ(Sucesos().find("DblClick"), std::string::npos);
    Suelta({20, 20}, Qt::MiddleButton);
    Clic({90, 90}, Qt::MiddleButton);
    QTest::mouseDClick(Panel(), Qt::MiddleButton, {}, En({90, 90}));
    Pulsa({90, 90}, Qt::MiddleButton);
    Mueve({80, 80});
    Suelta({80, 80}, Qt::MiddleButton);
    EXPECT_NEAR(Centro().X, antes.X + 10, 0.5) << "its drag moves the view";
}

TEST_F(AlDia, ThePromptsNameWhatIsSelectedNow) {
    Clic({20, 20});
    EXPECT_EQ(Prompt(), "Norte");
    esquema.Seleccionar(2);
    EXPECT_EQ(Prompt(), "Presa");
    Mueve({60, 59});
    EXPECT_EQ(Prompt(), "[2] Presa Arrastre a la posición deseada el elemento");
    esquema.NombreElemento(u"Azud"_s);
    EXPECT_EQ(Prompt(), "Azud");
    Mueve({60, 60});
    EXPECT_EQ(Prompt(), "[2] Azud Arrastre a la posición deseada el elemento");
}

TEST_F(AlDia, ASelectedTakeWithoutATraceIsToldOnceInEachPaint) {
    esquema.GetElementos()->Add(ctToma, "Acequia", 4, 1, 0, 0, 1, 2, nullptr, nullptr, "4", 0, 0);
    dialogos.Espera("elemento 4, \"Acequia\"");
    esquema.Seleccionar(3);
    Sucesos();
    Panel()->setFocus();
    QTest::keyClick(Panel(), Qt::Key_PageDown);
    QApplication::processEvents();
    EXPECT_EQ(Sucesos(), "Seleccionado 4");
    dialogos.Espera("elemento 4, \"Acequia\"");
    esquema.Refresh();
}

TEST_F(AlDia, TheChangedMarkIsToldWhenItTurns) {
    QApplication::processEvents();
    std::string dichas;
    QObject::connect(&esquema, &Esquema::HabidoCambios,
                     [&](bool hay) { dichas += hay == esquema.bHabidoCambios() ? (hay ? "1" : "0") : "?"; });
    const auto tras = [&](const std::function<void()>& accion) {
        accion();
        EXPECT_EQ(dichas, "") << "the platform may be in the middle of something";
        QApplication::processEvents();
        return std::exchange(dichas, "");
    };
    esquema.bHabidoCambios(false);
    QApplication::processEvents();
    dichas.clear();
    const auto mueve = [this] {
        Clic({20, 20});
        Arrastra({{20, 20}, {30, 30}});
    };
    EXPECT_EQ(tras(mueve), "1");
    EXPECT_EQ(tras([this] { Arrastra({{30, 30}, {20, 20}}); }), "");
    EXPECT_EQ(tras([this] { esquema.ArchivoGuardar(u"a.xml"_s); }), "0");
    EXPECT_EQ(tras([this] {
                  esquema.bHabidoCambios(true);
                  esquema.bHabidoCambios(false);
              }),
              "");
    EXPECT_EQ(tras([this] { esquema.bHabidoCambios(true); }), "1");
    EXPECT_EQ(tras([this] { esquema.ArchivoAbrir(u"a.xml"_s); }), "0");
}

TEST_F(AlDia, TheFrameOfAPictureThatIsReplacedLeavesNothingBehind) {
    QImage(4, 4, QImage::Format_RGB32).save(u"plano.bmp"_s);
    dialogos.ResponderArchivo((carpeta / "plano.bmp").string());
    Orden("menuVisorImagen");
    esquema.SetElementos(DosNudos(40));
    QApplication::processEvents();
    EXPECT_EQ(Prompt(), "Preparado");
    Pon(DosNudos(40));
    Clic({40, 40});
    EXPECT_EQ(Prompt(), "Sur");
    // A zoom that comes between does not bring it back, nor a trace of the earlier schematic.
    for (const bool conTraza : {false, true}) {
        conTraza ? Boton("conduccion1") : Orden("menuVisorImagen");
        if (conTraza) Clic({0, 0});
        Boton("zoommas");
        esquema.SetElementos(DosNudos(40));
        QTest::keyClick(Panel(), Qt::Key_Escape);
        EXPECT_EQ(Prompt(), "Preparado");
        EXPECT_TRUE(Parte("ToolBar1")->isEnabled());
    }
    Pon(DosNudos(40));
    Orden("menuVisorSubSistema");
    Arrastra({{0, 10}, {80, 10}, {80, 60}, {0, 60}});
    ASSERT_TRUE(Prompt().starts_with("SUBSISTEMA")) << Prompt();
    esquema.SetElementos(DosNudos(40));
    EXPECT_EQ(Prompt(), "Preparado");
}

TEST_F(AlDia, AMoveOfTheBarsInAHandsDragLeavesNoBand) {
    Panel()->setFocus();
    for (const Qt::Key tecla : {Qt::Key_Left, Qt::Key_Up, Qt::Key_Right, Qt::Key_Down}) {
        Boton("mano");
        Pulsa({60, 30});
        Mueve({80, 50});
        QTest::keyClick(Panel(), tecla);
        Suelta({80, 50});
        EXPECT_TRUE(EstaAlDia()) << tecla;
    }
}

TEST(AlDiaAlPrincipio, ANewControlShowsAHundredPercentAndWhatWasChosenBefore) {
    const DialogosGuion dialogos;
    const auto region = [](const Esquema& e) {
        return e.findChild<QLabel*>(u"txtPanels(3)"_s)->text().toStdString();
    };
    for (const QSize tamanyo : {QSize(640, 480), QSize(1000, 700)}) {
        Esquema esquema;
        esquema.resize(tamanyo);
        esquema.show();
        QApplication::processEvents();
        EXPECT_EQ(region(esquema), "Región mostrada: 100 %");
        const float ancho = esquema.ScaleWidth();
        // What "Nuevo" does is the same.
        esquema.GetElementos(DosNudos(5000));
        esquema.ResizeGrafo();
        esquema.bMostrarLineasOcultas(false);
        esquema.ArchivoNuevo();
        EXPECT_EQ(region(esquema), "Región mostrada: 100 %");
        EXPECT_EQ(esquema.ScaleWidth(), ancho);
        EXPECT_EQ(esquema.GetElementos()->Count(), 0);
        EXPECT_TRUE(esquema.bMostrarLineasOcultas());
        EXPECT_FALSE(esquema.bHabidoCambios());
    }
    // What was chosen before the first show holds, on the view of the size that it has then.
    for (qint16 modo = 2; modo <= 7; ++modo) {
        Esquema otro;
        otro.ScaleMode(modo);
        otro.resize(900 + modo, 700);
        otro.show();
        QApplication::processEvents();
        EXPECT_EQ(otro.ScaleMode(), modo);
    }
    for (const double factor : {1.0, 0.5}) {
        Esquema otro;
        otro.resize(1000, 700);
        otro.SetElementos(DosNudos(500));
        otro.SeleccionarCentrarElemento(2);
        if (factor != 1) otro.CambiaZoom(factor);
        otro.show();
        QApplication::processEvents();
        EXPECT_EQ(region(otro), factor == 1 ? "Región mostrada: 100 %" : "Región mostrada: 50 %");
        EXPECT_NEAR(otro.ScaleLeft() + otro.ScaleWidth() / 2, 500, 1);
        EXPECT_NEAR(otro.ScaleTop() + otro.ScaleHeight() / 2, 500, 1);
    }
}

}  // namespace
}  // namespace zel::pruebas
