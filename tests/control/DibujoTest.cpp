// Drawing a basin with the mouse, from file to file, and choosing parts of it.
#include <set>

#include "control/ConRaton.h"

namespace zel::pruebas {
namespace {

class Dibujo_ : public ConRaton {
  protected:
    void Herramienta(const char* clave) { ConRaton::EnVentana::Pulsa(clave); }
    // Name, code, place, ends and traces of each element, in any order: a file keeps them by their kind.
    std::multiset<std::string> Elementos_() const {
        std::multiset<std::string> textos;
        for (const auto& e : *esquema.GetElementos()) {
            textos.insert(e->Nombre() + " [" + std::to_string(e->gfCodSIG()) + "] " + Cifra(e->XPos()) + "," +
                          Cifra(e->YPos()) + " " + std::to_string(e->ElemIni()) + "-" +
                          std::to_string(e->ElemFin()) + " " + Relato(e->Trazado()) + " | " +
                          Relato(e->Trazado2()));
        }
        return textos;
    }
};

TEST_F(Dibujo_, ABasinOfAllKindsIsDrawnMovedSavedAndFoundAgain) {
    const std::string vacio = (carpeta / "vacio.xml").string(), lleno = (carpeta / "lleno.xml").string();
    esquema.ArchivoGuardar(QString::fromStdString(vacio));
    esquema.ArchivoAbrir(QString::fromStdString(vacio));
    Pon(esquema.GetElementos());
    Herramienta("nudo");
    EXPECT_EQ(Prompt(), "Escoja el emplazamiento del nuevo elemento");
    Clic({20, 120});
    EXPECT_EQ(Sucesos(), "MouseDown; Seleccionado 1; Creado 0 0-0; Click");
    Clic({100, 120});
    Herramienta("embalse");
    Clic({100, 60});
    Herramienta("demanda");
    Clic({20, 20});
    Herramienta("acuifero");
    Clic({160, 20});
    const std::pair<const char*, Vertices> lineales[] = {{"conduccion1", {{20, 120}, {100, 120}}},
                                                         {"conduccion2", {{100, 120}, {110, 90}, {100, 60}}},
                                                         {"conduccion3", {{20, 120}, {30, 70}, {100, 60}}},
                                                         {"conduccion4", {{20, 120}, {60, 110}, {100, 120}}},
                                                         {"conduccion5", {{100, 60}, {90, 90}, {100, 120}}},
                                                         {"recarga", {{100, 60}, {160, 20}}},
                                                         {"bombeo", {{160, 20}, {130, 110}, {100, 120}}},
                                                         {"toma", {{100, 60}, {20, 20}}}};
    for (const auto& [clave, puntos] : lineales) {
        Herramienta(clave);
        for (const PuntoXY& p : puntos)
            Clic(p);
    }
    Herramienta("centralHE");
    Clic({20, 120});
    Clic({8, 90});
    Clic({10, 60}, Qt::RightButton);
    Clic({100, 60});
    Herramienta("aportacion");
    Clic({100, 120});
    Clic({140, 110}, Qt::RightButton);
    Herramienta("retorno");
    Clic({100, 60});
    Clic({150, 70}, Qt::RightButton);
    Herramienta("subcuenca");
    Clic({140, 110});
    Sucesos();
    Clic({170, 110}, Qt::RightButton);
    EXPECT_EQ(Sucesos(), "MouseDown; Seleccionado 17; Creado 15 17-15; Click");
    Herramienta("flecha");
    SeleccionaYArrastra({{20, 120}, {20, 119}, {20, 100}});
    EXPECT_EQ(Sucesos(), "MouseDown; Seleccionado 1; Movido 1; Click");
    EXPECT_EQ(esquema.GetElementos()->VerificaIntegridad(), 0);
    EXPECT_TRUE(esquema.bHabidoCambios());
    esquema.ArchivoGuardar(QString::fromStdString(lleno));
    const auto antes = Elementos_();
    esquema.ArchivoAbrir(QString::fromStdString(lleno));
    EXPECT_EQ(antes.size(), 17);
    EXPECT_EQ(Elementos_(), antes);
    EXPECT_FALSE(esquema.bHabidoCambios());
}

TEST_F(Dibujo_, ATraceIsTakenBackPointByPointAndGivenUp) {
    auto todos = std::make_shared<Elementos>();
    todos->Add(ctNudo, "Norte", 1, 1, 20, 100, 0, 0, nullptr, nullptr, "x", 6, 6);
    todos->Add(ctNudo, "Sur", 2, 2, 100, 100, 0, 0, nullptr, nullptr, "x", 6, 6);
    Pon(todos);
    const QImage antes = RecienPintada();
    const std::string escoge = "Escoja el nudo o embalse inicial para la conducción",
                      traza = "Agregue puntos";
    Herramienta("conduccion1");
    for (const bool tecla : {false, true}) {
        Clic({20, 100});
        for (const PuntoXY p : {PuntoXY{40, 80}, {60, 80}, {80, 80}})
            Clic(p);
        for (const char* prompt : {traza.c_str(), traza.c_str(), traza.c_str(), escoge.c_str()}) {
            EXPECT_EQ(Prompt().substr(0, 14), traza);
            if (tecla)
                QTest::keyClick(Panel(), Qt::Key_Backspace);
            else
                Clic({60, 40}, Qt::RightButton);
            EXPECT_EQ(Prompt().rfind(prompt, 0), 0) << Prompt();
        }
    }
    Herramienta("centralHE");
    Clic({20, 100});
    Clic({60, 60}, Qt::RightButton);
    dialogos.Espera("Ya ha definido el icono del elemento lineal");
    Clic({60, 30}, Qt::RightButton);
    Mueve({90, 30});
    QTest::keyClick(Panel(), Qt::Key_Escape);
    EXPECT_EQ(Prompt().rfind("Escoja el nudo o embalse inicial", 0), 0) << Prompt();
    QTest::keyClick(Panel(), Qt::Key_Escape);
    EXPECT_EQ(todos->Count(), 2);
    esquema.Seleccionar(2);
    QTest::keyClick(Panel(), Qt::Key_Escape);
    EXPECT_EQ(Imagen(), antes);
}

TEST_F(Dibujo_, ANewElementHasRoomBeforeTheEndOfTheWorld) {
    const auto clic = [this] {
        esquema.Scale_(Variante(-4010), Variante(-4990), Variante(-3990), Variante(-5005));
        QTest::mouseClick(Panel(), Qt::LeftButton, {}, {2, Panel()->height() - 2});
    };
    Herramienta("nudo");
    clic();
    ASSERT_EQ(Sucesos(), "MouseDown; Seleccionado 1; Creado 0 0-0; Click");
    EXPECT_EQ(Donde(1), "-3995,-4995");
    Herramienta("flecha");
    alPulsar = [](qint16&, qint16&, float& x, float& y) {
        EXPECT_EQ(x, -3999);
        EXPECT_EQ(y, -4999);
    };
    clic();
    EXPECT_EQ(Sucesos().rfind("MouseDown", 0), 0);
}

TEST_F(Dibujo_, TheViewToolsEndWithTheRightButtonAndAClickZoomKeepsToItsLimits) {
    for (const char* clave : {"zoommas", "zoomRecuadro", "mano"}) {
        Herramienta(clave);
        EXPECT_NE(Prompt(), "Preparado");
        Clic({60, 60}, Qt::RightButton);
        EXPECT_EQ(Prompt(), "Preparado") << clave;
    }
    const std::tuple<const char*, float, const char*> filas[] = {
        {"zoommas", 39, "Se ha alcanzado el máximo zoom"},
        {"zoommenos", 16001, "Se ha alcanzado el mínimo zoom"}};
    for (const auto& [clave, ancho, aviso] : filas) {
        esquema.Scale_(Variante(0), Variante(ancho), Variante(ancho), Variante(0));
        Herramienta(clave);
        dialogos.Espera(aviso);
        QTest::mouseClick(Panel(), Qt::LeftButton, {}, {1, 1});
        EXPECT_EQ(esquema.ScaleWidth(), ancho);
        EXPECT_LT(esquema.ScaleLeft(), -0.4F * ancho) << "a refused one still centres";
    }
}

// Nodes 1 to 4 at the corners of a square, a conduit 5 above, 6 at its left.
class Subsistemas : public Dibujo_ {
  protected:
    Subsistemas() {
        auto todos = std::make_shared<Elementos>();
        const PuntoXY esquinas[] = {{40, 100}, {100, 100}, {40, 40}, {100, 40}};
        for (const PuntoXY& p : esquinas) {
            const auto c = static_cast<std::int16_t>(todos->Count() + 1);
            todos->Add(ctNudo, "N", c, c, p.X, p.Y, 0, 0, nullptr, nullptr, "x", 6, 6);
        }
        todos->Add(ctToma, "T", 5, 1, 70, 100, 1, 2, Traza({{44, 100}, {96, 100}}), nullptr, "x", 1, 1);
        todos->Add(ctRecarga, "R", 6, 1, 40, 70, 1, 3, Traza({{40, 96}, {40, 44}}), nullptr, "x", 1, 1);
        Pon(todos);
    }
    // The codes of an exported subsystem, which is what is selected.
    std::string Elegidos() {
        const std::string ruta = (carpeta / "parte.xml").string();
        dialogos.ResponderArchivo(ruta);
        Orden("menuContextualSeleccionExportar");
        Esquema otro;
        otro.ArchivoAbrir(QString::fromStdString(ruta));
        std::string codigos;
        for (const auto& e : *otro.GetElementos())
            codigos += (codigos.empty() ? "" : " ") + std::to_string(e->gfCodSIG());
        return codigos;
    }
    const char* const ELEGIDO = "Subsistema";
};

TEST_F(Subsistemas, ALassoTakesTheSymbolsInsideItAndTheConduitsBetweenThem) {
    Orden("menuVisorSubSistema");
    Pulsa({30, 110});
    for (const PuntoXY p : {PuntoXY{120, 110}, {120, 90}, {60, 88}})
        Mueve(p);
    EXPECT_EQ(ColorEn(90, 110), QColor(Qt::blue));
    Suelta({30, 90});
    EXPECT_EQ(Elegidos(), "1 2 5") << "not the half of the recharge";
    Orden("menuContextualSalirSeleccion");
    EXPECT_EQ(Prompt(), "Preparado");
    EXPECT_EQ(Imagen(), RecienPintada());
}

TEST_F(Subsistemas, ARectangleBeginsBesideTheElementsAndAnEmptyOneIsNone) {
    Arrastra({{25, 115}, {26, 114}, {60, 30}});
    EXPECT_EQ(Elegidos(), "1 3 6");
    Orden("menuContextualSalirSeleccion");
    Arrastra({{60, 80}, {61, 80}, {80, 60}});
    EXPECT_EQ(Prompt(), "Preparado");
    EXPECT_EQ(Imagen(), RecienPintada());
    // Given up, it does not begin again by itself.
    Pulsa({60, 80});
    Mueve({61, 80});
    Mueve({80, 60});
    esquema.Refresh();
    const QImage antes = Imagen();
    Mueve({90, 50});
    Suelta({90, 50});
    EXPECT_EQ(Imagen(), antes);
    EXPECT_EQ(Prompt(), "Preparado");
}

TEST_F(Subsistemas, WithCtrlHeldElementsAreTakenOneByOne) {
    Clic({40, 100});
    QTest::keyPress(Panel(), Qt::Key_Control, Qt::ControlModifier);
    Clic({100, 100});
    Clic({70, 100});  // a conduit is not taken
    Clic({40, 40});
    Clic({40, 100});
    Clic({40, 100});
    QTest::keyRelease(Panel(), Qt::Key_Control);
    EXPECT_EQ(Elegidos(), "2 3 1 6 5");
    QTest::keyPress(Panel(), Qt::Key_Control, Qt::ControlModifier);
    Clic({40, 100});
    QTest::keyRelease(Panel(), Qt::Key_Control);
    EXPECT_EQ(Elegidos(), "2 3") << "the conduits of the node that goes go with it";
    QTest::keyClick(Panel(), Qt::Key_Escape);
    EXPECT_EQ(Imagen(), RecienPintada());
}

}  // namespace
}  // namespace zel::pruebas
