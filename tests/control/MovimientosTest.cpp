// Selecting and moving with the mouse: elements with what is attached to them, labels, trace points.
#include <map>
#include <random>

#include "control/ConRaton.h"
#include "model/Contorno.h"

namespace zel::pruebas {
namespace {

std::string Contorno(PuntoXY centro, PuntoXY hacia) {
    const Punto p = PuntoDelContorno(centro.X, centro.Y, hacia.X, hacia.Y, 4);
    return Cifra(p.XPos()) + "," + Cifra(p.YPos());
}

// Nodes 1 (20, 100), 2 (100, 100) and 3 (100, 60); a conduit 4 from 1 to 2 in one segment, a bent one 5 from
// 1 to 3; a plant 6 at (60, 20) from 1 to 3; a reservoir 7 at (150, 20) with an inflow 8 at (150, 50), and a
// sub-basin 9 at (180, 80) on that.
class Movimientos : public ConRaton {
  protected:
    Movimientos() {
        auto todos = std::make_shared<Elementos>();
        const auto nudo = [&](std::int32_t c, float x, float y, TipoElemento tipo = ctNudo) {
            todos->Add(tipo, "N" + std::to_string(c), c, static_cast<std::int16_t>(c), x, y, 0, 0, nullptr,
                       nullptr, std::to_string(c), 6, 6);
        };
        const auto lineal = [&](TipoElemento tipo, std::int32_t c, PuntoXY donde, std::int32_t ini,
                                std::int32_t fin, const Vertices& t, const Vertices& t2 = {}) {
            todos->Add(tipo, "L" + std::to_string(c), c, static_cast<std::int16_t>(c), donde.X, donde.Y, ini,
                       fin, Traza(t), Traza(t2), std::to_string(c), 6, 6);
        };
        nudo(1, 20, 100);
        nudo(2, 100, 100);
        nudo(3, 100, 60);
        lineal(ctConduccion1, 4, {60, 100}, 1, 2, {{24, 100}, {96, 100}});
        lineal(ctToma, 5, {40, 60}, 1, 3, {{20, 96}, {20, 80}, {60, 80}, {97, 63}});
        lineal(ctCentralHidroelectrica, 6, {60, 20}, 1, 3, {{22, 96.5}, {30, 40}, {57, 23}},
               {{64, 20}, {100, 20}, {100, 56}});
        nudo(7, 150, 20, ctEmbalse);
        lineal(ctAportacion, 8, {150, 50}, 8, 7, {{150, 46}, {150, 24}});
        lineal(ctSubcuenca, 9, {180, 80}, 9, 8, {{177, 77}, {153, 53}});
        Pon(todos);
        esquema.bHabidoCambios(false);
    }
    std::string Traza_(std::int32_t codigo) const { return Relato(Elem(codigo)->Trazado()); }
    std::string Traza2_(std::int32_t codigo) const { return Relato(Elem(codigo)->Trazado2()); }
};

TEST_F(Movimientos, AFirstPressOnlySelectsAndTheNextOneDrags) {
    Arrastra({{20, 100}, {30, 110}, {40, 110}});
    EXPECT_EQ(Sucesos(), "MouseDown; Seleccionado 1; Click");
    EXPECT_EQ(Donde(1), "20,100");
    Mueve({20, 100});
    EXPECT_EQ(Prompt(), "[1] N1 Arrastre a la posición deseada el elemento");
    Mueve({130, 130});
    EXPECT_EQ(Prompt(), "N1");
    Arrastra({{20, 100}, {30, 110}, {40, 120}});
    EXPECT_EQ(Sucesos(), "MouseDown; Seleccionado 1; Movido 1; Click");
    EXPECT_EQ(Donde(1), "40,120");
    EXPECT_TRUE(esquema.bHabidoCambios());
    EXPECT_EQ(Imagen(), RecienPintada());
    Clic({140, 130});
    EXPECT_EQ(Sucesos(), "MouseDown; Click");
    EXPECT_EQ(esquema.CodigoElemento(), -1);
}

TEST_F(Movimientos, WhatIsAttachedFollowsAMovedElement) {
    SeleccionaYArrastra({{20, 100}, {20, 101}, {20, 120}});
    EXPECT_EQ(Donde(1), "20,120");
    EXPECT_EQ(Traza_(4), Contorno({20, 120}, {100, 100}) + " " + Contorno({100, 100}, {20, 120}))
        << "both ends of two points turn";
    EXPECT_EQ(Traza_(5), "20,116 20,80 60,80 97,63") << "only the end on the node moves";
    EXPECT_EQ(Traza_(6), Contorno({20, 120}, {30, 40}) + " 30,40 57,23");
    EXPECT_EQ(Donde(4), "60,110") << "the label follows the middle of its trace";
    EXPECT_EQ(Cifra(Elem(4)->EtiquetaPosX()), "0.24");

    Elem(4)->EtiquetaMovida(true);
    SeleccionaYArrastra({{100, 100}, {100, 101}, {100, 120}});
    EXPECT_EQ(Traza_(4), "24,120 96,120");
    EXPECT_EQ(Donde(4), "60,110") << "a label that the user has placed stays";

    SeleccionaYArrastra({{60, 20}, {61, 20}, {60, 30}});
    EXPECT_EQ(Traza_(6), Contorno({20, 120}, {30, 40}) + " 30,40 " + Contorno({60, 30}, {30, 40}));
    EXPECT_EQ(Traza2_(6), Contorno({60, 30}, {100, 20}) + " 100,20 100,56");

    SeleccionaYArrastra({{150, 50}, {151, 50}, {170, 50}});
    EXPECT_EQ(Traza_(8), Contorno({170, 50}, {150, 20}) + " " + Contorno({150, 20}, {170, 50}));
    EXPECT_EQ(Traza_(9), Contorno({180, 80}, {170, 50}) + " " + Contorno({170, 50}, {180, 80}))
        << "a sub-basin follows its inflow";
    EXPECT_EQ(Imagen(), RecienPintada());
}

TEST_F(Movimientos, AnElementIsNotDroppedOntoAnother) {
    const struct {
        PuntoXY desde, hasta;
        const char* aviso;
        std::int32_t codigo;
    } filas[] = {
        {{20, 100}, {100, 102}, "Elementos superpuestos", 1},
        {{20, 100}, {60, 80}, "Elementos superpuestos", 1},    // the bend of what is attached
        {{20, 100}, {109, 104}, "Elementos superpuestos", 1},  // a label
        {{60, 20}, {27, 60}, "Superposición de los gráficos que integran el elemento arrastrado", 6},
        {{20, 100}, {50, 100}, nullptr, 1},  // its own piece of the conduit
        {{100, 60}, {80, 71}, nullptr, 3},   // the last segment
    };
    for (const auto& [desde, hasta, aviso, codigo] : filas) {
        if (aviso) dialogos.Espera(aviso);
        const std::string antes = Donde(codigo);
        SeleccionaYArrastra({desde, {desde.X + 1, desde.Y}, hasta});
        EXPECT_EQ(Sucesos() == "MouseDown; Seleccionado " + std::to_string(codigo) + "; Click",
                  aviso != nullptr);
        EXPECT_EQ(Donde(codigo) == antes, aviso != nullptr) << hasta.X;
        EXPECT_EQ(esquema.bHabidoCambios(), aviso == nullptr);
        EXPECT_EQ(Imagen(), RecienPintada());
    }
}

TEST_F(Movimientos, AnAbandonedDragLeavesThePanelAsItWas) {
    esquema.Seleccionar(1);
    const QImage antes = RecienPintada();
    Clic({20, 100});
    const auto empieza = [&] {
        Pulsa({20, 100});
        Mueve({30, 100});
        Mueve({40, 90});
        Mueve({140, 90});
        EXPECT_NE(Imagen(), antes);
    };
    const std::function<void()> abandonos[] = {[&] { QTest::keyClick(Panel(), Qt::Key_Escape); },
                                               [&] { Parte("HScroll")->setFocus(Qt::TabFocusReason); },
                                               [&] { esquema.Seleccionar(1); },
                                               [&] { esquema.BackColor(esquema.BackColor()); }};
    for (const auto& abandona : abandonos) {
        Panel()->setFocus();
        empieza();
        abandona();
        Mueve({150, 95});
        if (&abandona != &abandonos[3]) {
            EXPECT_EQ(Prompt(), "N1") << "the same press drags no more";
            EXPECT_EQ(Imagen(), antes);
        }
        if (&abandona == &abandonos[3]) QTest::keyClick(Panel(), Qt::Key_Escape);  // a repaint in the middle
        Suelta({150, 95});
        EXPECT_EQ(Imagen(), antes);
        EXPECT_EQ(Donde(1), "20,100");
    }
}

TEST_F(Movimientos, ALabelIsHeldWhereItIsPressedAndDroppedBesideEverything) {
    Clic({20, 100});
    Sucesos();
    Arrastra({{28, 104}, {30, 104}, {40, 84}, {48, 94}});
    EXPECT_EQ(Sucesos(), "MouseDown; Seleccionado 1; Modificado 1; Click");
    EXPECT_EQ(Cifra(Elem(1)->EtiquetaPosX()) + " " + Cifra(Elem(1)->EtiquetaPosY()), "26 -4");
    EXPECT_TRUE(Elem(1)->EtiquetaMovida());
    EXPECT_TRUE(esquema.bHabidoCambios());
    const struct {
        PuntoXY hasta;
        const char* aviso;
    } filas[] = {{{102, 98}, "Elementos superpuestos"},
                 {{22, 98}, "La etiqueta del elemento se superpone al centro del mismo"},
                 {{96.5, 103.5}, "Superposición de etiqueta y elemento"}};
    for (const auto& [hasta, aviso] : filas) {
        dialogos.Espera(aviso);
        Arrastra({{48, 94}, {50, 90}, hasta});
        EXPECT_EQ(Sucesos(), "MouseDown; Seleccionado 1; Click");
        EXPECT_EQ(Cifra(Elem(1)->EtiquetaPosX()), "26");
        EXPECT_EQ(Imagen(), RecienPintada());
    }
}

TEST_F(Movimientos, TheInnerPointsOfATraceAreMovedOneAfterTheOther) {
    Clic({40, 80});
    Orden("menuContextualNodosConduccion");
    EXPECT_EQ(Prompt(), "Escoja un nodo de la conducción");
    Mueve({60, 80});
    EXPECT_EQ(Panel()->cursor().shape(), Qt::BitmapCursor);
    Mueve({97, 63});
    EXPECT_EQ(Panel()->cursor().shape(), Qt::ArrowCursor) << "the last point belongs to the node";
    Sucesos();
    Arrastra({{60, 80}, {62, 80}, {62, 90}});
    EXPECT_EQ(Sucesos(), "MouseDown; Modificado 5; Click");
    EXPECT_EQ(Traza_(5), "20,96 20,80 62,90 " + Contorno({100, 60}, {62, 90}));
    const struct {
        PuntoXY hasta;
        const char* aviso;
    } filas[] = {{{100, 100}, "Elementos superpuestos"},
                 {{22, 81}, "Puntos superpuestos"},
                 {{20, 88}, "Superposición de los segmentos de la conducción"}};
    for (const auto& [hasta, aviso] : filas) {
        dialogos.Espera(aviso);
        const std::string antes = Traza_(5);
        const QImage imagen = Imagen();
        Arrastra({{62, 90}, {70, 90}, hasta});
        EXPECT_EQ(Traza_(5), antes);
        EXPECT_EQ(Imagen(), imagen);
    }
    Clic({62, 90}, Qt::RightButton);
    EXPECT_EQ(Prompt(), "L5");
    EXPECT_EQ(Imagen(), RecienPintada());
    EXPECT_EQ(Elem(5)->Trazado()->Valor(), 0);

    Clic({100, 40});
    Orden("menuContextualNodosConduccion");
    Arrastra({{100, 20}, {100, 22}, {110, 10}});
    EXPECT_EQ(Traza2_(6), Contorno({60, 20}, {110, 10}) + " 110,10 " + Contorno({100, 60}, {110, 10}))
        << "a plant's second trace";
    Clic({140, 120});
    EXPECT_EQ(Prompt(), "L6");
}

TEST_F(Movimientos, ADoubleClickEdits) {
    Clic({100, 60});
    QTest::mouseDClick(Panel(), Qt::LeftButton, {}, En({100, 60}));
    EXPECT_EQ(Sucesos(), "MouseDown; Seleccionado 3; Click; DblClick; Editar 3");
    Clic({140, 120});
    dialogos.Espera("Para editar las propiedades de un elemento haga doble clic sobre él");
    QTest::mouseDClick(Panel(), Qt::LeftButton, {}, En({140, 120}));
    EXPECT_EQ(Sucesos(), "MouseDown; Click; DblClick");
}

TEST_F(Movimientos, TheHandlersGoOnWithWhatTheHostHasLeft) {
    alPulsar = [](qint16&, qint16&, float& x, float& y) { x = 100, y = 60; };
    Clic({20, 100});
    EXPECT_EQ(esquema.CodigoElemento(), 3);
    alPulsar = [&](qint16&, qint16&, float& x, float&) {
        EXPECT_EQ(x, -3999);
        x = std::numeric_limits<float>::quiet_NaN();
    };
    esquema.ScaleLeft(-10000);
    Clic({20, 100});
    alPulsar = {};
    Pon(esquema.GetElementos());
    alAnotar = [this](const std::string& suceso) {
        if (suceso == "Seleccionado 1") esquema.BorrarElemento();
    };
    Arrastra({{20, 100}, {30, 100}, {40, 100}});
    EXPECT_EQ(Elem(1), nullptr);
    SeleccionaYArrastra({{100, 100}, {101, 100}, {100, 120}});
    EXPECT_EQ(Traza_(4), "24,100 " + Contorno({100, 120}, {24, 100})) << "a far end that is missing stays";
}

TEST_F(Movimientos, AThousandAbandonedDragsLeaveThePanelAsAFreshPaintWould) {
    std::mt19937 azar(5);
    const auto hasta = [&](std::uint32_t n) { return static_cast<int>(azar() % n); };
    const auto punto = [&] {
        return PuntoXY{static_cast<float>(hasta(200)), static_cast<float>(hasta(130))};
    };
    const auto tecla = [&](Qt::Key cual, Qt::KeyboardModifiers mayus = {}) {
        QTest::keyClick(Panel(), cual, mayus);
    };
    const std::function<void()> abandonos[] = {
        [&] { tecla(Qt::Key_M); }, [&] { tecla(Qt::Key_Z, Qt::ShiftModifier); },
        [&] { esquema.Seleccionar(1 + hasta(9)); }, [&] { tecla(Qt::Key_Escape); },
        [&] { Parte("HScroll")->setFocus(Qt::TabFocusReason); }};
    // How each begins, and how many of those give it up.
    const std::pair<std::function<void()>, std::uint32_t> arrastres[] = {
        {[&] {
             Clic({20, 100}), Pulsa({20, 100});
         },
         5},
        {[&] {
             Clic({60, 20}), Pulsa({60, 20});
         },
         5},
        {[&] {
             Clic({20, 100}), Pulsa({28, 104});
         },
         3},
        {[&] {
             Pulsa({130, 125});
         },
         3},
        {[&] {
             Clic({40, 80}), Orden("menuContextualNodosConduccion"), Pulsa({60, 80});
         },
         3},
        {[&] { Orden("menuVisorSubSistema"), Pulsa(punto()); }, 4},
        {[&] { EnVentana::Pulsa("zoomRecuadro"), Pulsa(punto()); }, 4},
        {[&] { EnVentana::Pulsa("mano"), Pulsa(punto()); }, 4},
        {[&] {
             EnVentana::Pulsa("conduccion1"), Pulsa({20, 100});
         },
         4}};
    std::map<qint32, QImage> limpias;
    for (int i = 0; i < 1000; ++i) {
        const auto& [empieza, modos] = arrastres[hasta(std::size(arrastres))];
        Panel()->setFocus();
        empieza();
        for (int n = hasta(4); n >= 0; --n)
            Mueve(punto());
        abandonos[hasta(modos)]();
        Mueve(punto());
        const QImage abandonada = Imagen();
        Suelta(punto());
        ASSERT_EQ(Imagen(), abandonada) << i;
        const auto [limpia, falta] = limpias.try_emplace(esquema.CodigoElemento());
        if (falta) limpia->second = RecienPintada();
        ASSERT_EQ(abandonada, limpia->second) << i;
        esquema.Seleccionar(1);
    }
    EXPECT_FALSE(esquema.bHabidoCambios());
    EXPECT_EQ(Elem(5)->Trazado()->Valor(), 0);
}

TEST_F(Movimientos, OnlyWhatWasPressedIsDragged) {
    Clic({20, 100}, Qt::MiddleButton);
    alAnotar = [this](const std::string& suceso) {
        if (suceso == "Seleccionado 1") esquema.Seleccionar(2);
    };
    Arrastra({{20, 100}, {30, 100}, {40, 90}});
    EXPECT_EQ(Donde(1) + " " + Donde(2), "20,100 100,100");
    EXPECT_EQ(Sucesos(), "MouseDown; Seleccionado 1; Click; MouseDown; Seleccionado 1; Click");
    Clic({60, 100});
    Mueve({140, 130});
    EXPECT_EQ(Imagen(), RecienPintada()) << "the underline goes from under a conduit's frame";
}

TEST_F(Movimientos, AnElementAndALabelAreMovedByClicks) {
    Clic({100, 60});
    Orden("menuContextualMoverElemento");
    dialogos.Espera("Elementos superpuestos");
    Clic({20, 100});
    Clic({100, 50});
    EXPECT_EQ(Donde(3), "100,50");
    EXPECT_EQ(Traza2_(6), "64,20 100,20 " + Contorno({100, 50}, {100, 20}));
    Clic({100, 50}, Qt::RightButton);
    Orden("menuContextualMoverEtiqueta");
    Clic({120, 40});
    EXPECT_EQ(Cifra(Elem(3)->EtiquetaPosX()) + " " + Cifra(Elem(3)->EtiquetaPosY()), "20 -10");
    Clic({120, 40}, Qt::RightButton);
    EXPECT_EQ(Prompt(), "N3");
    EXPECT_EQ(Imagen(), RecienPintada());
}

TEST_F(Movimientos, WhatCannotBeConnectedIsToldAndCreatesNothing) {
    const std::tuple<const char*, Vertices, const char*> filas[] = {
        {"nudo", {{20, 100}}, "Elementos superpuestos"},
        {"toma", {{130, 130}}, "Primero escoja el elemento inicial de la conducción"},
        {"conduccion1", {{150, 50}}, "El elemento inicial ha de ser un nodo o embalse"},
        {"bombeo", {{20, 100}}, "Los bombeos parten de acuíferos"},
        {"subcuenca", {{20, 100}}, "El elemento inicial ha de ser una Aportación"},
        {"conduccion2", {{20, 100}, {20, 100}}, "Escoja un elemento final distinto del inicial"},
        {"conduccion3", {{20, 100}, {150, 50}}, "Elementos superpuestos. "},
        {"recarga", {{20, 100}, {100, 100}}, "El elemento final de la recarga debe ser un acuífero"},
        {"toma", {{20, 100}, {100, 100}}, "El elemento final de una toma debe ser una demanda"},
        {"centralHE", {{20, 100}, {100, 100}}, "No hay ninguna central hidroeléctrica definida"},
        {"retorno", {{20, 100}, {100, 100}}, "Elementos superpuestos"}};
    for (const auto& [tipo, clics, aviso] : filas) {
        EnVentana::Pulsa(tipo);
        dialogos.Espera(aviso);
        for (const PuntoXY& p : clics)
            Clic(p);
        EXPECT_EQ(Sucesos(), clics.size() == 1 ? "MouseDown; Click" : "MouseDown; Click; MouseDown; Click");
        EnVentana::Pulsa("flecha");
        EXPECT_EQ(Imagen(), RecienPintada()) << tipo;
    }
    EXPECT_EQ(esquema.GetElementos()->Count(), 9);
}

}  // namespace
}  // namespace zel::pruebas
