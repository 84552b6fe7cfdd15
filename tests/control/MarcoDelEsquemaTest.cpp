// The control's frame: elements by code, the drawing surface's members, errors and keys.

#include <QMetaProperty>

#include "control/EnVentana.h"

namespace zel::pruebas {
namespace {

using MarcoDelEsquema = EnVentana;
using V = Variante;

TEST_F(MarcoDelEsquema, AnElementIsSelectedByItsCode) {
    Pon(DosNudos());
    EXPECT_EQ(esquema.CodigoElemento(), -1);
    EXPECT_EQ(esquema.NumeroPantallaElemento(), -1);
    EXPECT_EQ(esquema.TipoElemento(), -1);
    EXPECT_EQ(esquema.NombreElemento(), QString());
    EXPECT_EQ(esquema.Seleccionar(2), 2);
    EXPECT_EQ(esquema.Seleccionar(77), -1);
    EXPECT_EQ(esquema.NombreElemento(), u"Sur"_s);
    EXPECT_EQ(esquema.NumeroPantallaElemento(), 2);
    EXPECT_EQ(esquema.SeleccionarCentrarElemento(1), 1);
    EXPECT_NEAR(Centro().X, 0, 1);
    EXPECT_NEAR(Centro().Y, 0, 1);
    esquema.NombreElemento(u"Azud"_s);
    esquema.NumeroPantallaElemento(9);
    EXPECT_EQ(esquema.GetElementos()->ItemCodSIG(1)->Nombre(), "Azud");
    EXPECT_EQ(esquema.GetElementos()->ItemCodSIG(1)->KeyPant(), 9);
    EXPECT_EQ(esquema.BorrarElemento(), 0);
    EXPECT_EQ(esquema.BorrarElemento(), -1);
    EXPECT_EQ(esquema.GetElementos()->Count(), 1);
    EXPECT_FALSE(SeVe(0, 4));
}

TEST_F(MarcoDelEsquema, AnElementsSizeIsWrittenAsTheMenusCommandDoes) {
    Pon(DosNudos());
    const auto toma = esquema.GetElementos()->Add(ctToma, "T", 3, 1, 250, 250, 1, 2,
                                                  Traza({{3, 3}, {497, 497}}), nullptr, "3", 5, 0);
    EXPECT_EQ(esquema.TamanyoElemento(), -1);
    esquema.Seleccionar(1);
    EXPECT_TRUE(
        Falla([this] { esquema.TamanyoElemento(0.4F); }, {"fuera de sus límites", "TamanyoElemento"}));
    EXPECT_FALSE(esquema.bHabidoCambios());
    esquema.TamanyoElemento(2);
    EXPECT_EQ(esquema.TamanyoElemento(), 2);
    EXPECT_NEAR(toma->Trazado()->Item(1)->XPos(), 8 * std::sqrt(0.5), 0.001);
    EXPECT_TRUE(esquema.bHabidoCambios());
}

TEST_F(MarcoDelEsquema, WhatIsNoLongerInTheSchematicIsNotSelected) {
    Pon(DosNudos());
    esquema.Seleccionar(2);
    esquema.GetElementos()->RemoveCodSIG(2);
    EXPECT_EQ(esquema.BorrarElemento(), -1) << "removed by the host";
    EXPECT_EQ(esquema.GetElementos()->Count(), 1);
    esquema.Seleccionar(1);
    const auto otra = DosNudos(300);
    esquema.GetElementos(otra);
    EXPECT_EQ(esquema.CodigoElemento(), -1);
    EXPECT_EQ(Estado(1), "Preparado");
    EXPECT_EQ(esquema.GetElementos(), otra);
    esquema.Seleccionar(1);
    esquema.SetElementos(DosNudos(300));
    EXPECT_EQ(esquema.CodigoElemento(), -1);
}

TEST_F(MarcoDelEsquema, TheHostsCodeOfEachKind) {
    auto todos = std::make_shared<Elementos>();
    for (int t = ctNudo; t <= ctSubcuenca; ++t)
        Numera(*todos, {Lineal(static_cast<TipoElemento>(t), {0, 0}, {{0, 0}, {50, 50}})});
    esquema.SetElementos(todos);
    std::vector<int> codigos;
    for (const auto& e : *todos) {
        esquema.Seleccionar(e->gfCodSIG());
        codigos.push_back(esquema.TipoElemento());
    }
    EXPECT_EQ(codigos, (std::vector<int>{10, 12, 30, 110, 50, 51, 52, 53, 54, 70, 60, 40, 80, 20, 90, 25}));
}

TEST_F(MarcoDelEsquema, ErrorsTellTheStateAndTheWholeChain) {
    Pon(DosNudos());
    const std::string visor = "Estado de visor 5. ";
    struct Caso {
        std::function<void()> llamada;
        std::string dentro, fuera;
    };
    const std::string nada = " Property Let. No hay elemento seleccionado";
    const Caso casos[] = {
        {[&] { esquema.NombreElemento(u"x"_s); }, "Esquema: NombreElemento" + nada,
         "Error en Property Let NombreElemento (Esquema)"},
        {[&] { esquema.CodigoElemento(4); }, "Esquema: CodigoElemento" + nada,
         "Error en Property Let CodigoElemento (Esquema)"},
        {[&] { esquema.NumeroPantallaElemento(4); }, "Esquema: NumeroPantallaElemento" + nada,
         "Error en Property Let NumeroPantallaElemento (Esquema)"},
        {[&] {
             esquema.Seleccionar(1);
             esquema.CodigoElemento(40);  // the collection knows it under the old one
             esquema.NombreElemento(u"x"_s);
         },
         "", "Error en Property Let NombreElemento (Esquema)"},
        {[&] {
             esquema.GetElementos()->Item(1)->Tipo(static_cast<TipoElemento>(16));
             static_cast<void>(esquema.TipoElemento());
         },
         "", "Error en Property Get TipoElemento (Esquema)"},
        {[&] { esquema.GetElementos(nullptr); }, "", "Error en Property Set GetElementos (Esquema)"},
        {[&] { esquema.AjustarAVentana(); }, "", "Error en método AjustarAVentana (Esquema)"},
        {[&] { esquema.ArchivoGuardar(u"no/hay/x.xml"_s); }, "", "ErrArchivoGuardar (Esquema)"},
        {[&] { esquema.ScaleWidth(0); }, "", "ErrLetScaleWidth (Esquema)"},
        {[&] { esquema.ScaleMode(8); }, "", "ErrLetScaleMode (Esquema)"},
        {[&] { esquema.Scale_(V(1.0F)); }, "", "ErrScale_ (Esquema)"},
        {[&] { esquema.FontSize(0); }, "", "ErrLetFontSize (Esquema)"},
    };
    for (const Caso& c : casos)
        EXPECT_TRUE(Falla(c.llamada, {c.dentro.empty() ? "" : visor + c.dentro, visor + c.fuera}));
    EXPECT_EQ(esquema.GetElementos()->Count(), 2) << "a refused collection replaced the schematic";
}

TEST_F(MarcoDelEsquema, TheSurfacesMembersReachThePanelAndAreNeverStored) {
    EXPECT_EQ(esquema.FontName(), u"Arial"_s);
    // ForeColor and FontSize are the pen's: the repaint that follows leaves its own there.
    const std::pair<const char*, QVariant> valores[] = {
        {"BorderStyle", 1},   {"BackColor", 0x00FFFF}, {"ScaleLeft", 10},        {"ScaleTop", 90},
        {"ScaleWidth", 300},  {"ScaleHeight", -200},   {"FontBold", true},       {"FontItalic", true},
        {"FontName", "Mono"}, {"FontUnderline", true}, {"FontStrikethru", true}, {"FontTransparent", false}};
    for (const auto& [nombre, valor] : valores)
        EXPECT_TRUE(esquema.setProperty(nombre, valor)) << nombre;
    for (const auto& [nombre, valor] : valores)
        EXPECT_EQ(esquema.property(nombre).toString(), valor.toString()) << nombre;
    EXPECT_EQ(ColorEn(100, 50), QColor(255, 255, 0));
    const QMetaObject& clase = Esquema::staticMetaObject;
    for (int i = clase.propertyOffset(); i < clase.propertyCount(); ++i)
        EXPECT_FALSE(clase.property(i).isStored()) << clase.property(i).name();
}

TEST_F(MarcoDelEsquema, ScalesUpwardsInEveryUnit) {
    for (const float alto : {300.0F, -300.0F}) {
        esquema.ScaleHeight(alto);
        EXPECT_EQ(esquema.ScaleHeight(), -300);
    }
    const double ppp = esquema.logicalDpiX();
    const double porPulgada[] = {0, 1440, 72, ppp, 12, 1, 25.4, 2.54};
    for (qint16 modo = 1; modo <= 7; ++modo) {
        esquema.ScaleMode(modo);
        EXPECT_EQ(esquema.ScaleMode(), modo);
        EXPECT_NEAR(esquema.ScaleWidth() / porPulgada[modo], Panel()->width() / ppp, 1e-3) << modo;
        EXPECT_LT(esquema.ScaleHeight(), 0);
        EXPECT_NEAR(esquema.ScaleX(2, V(5), V(modo)), 2 * porPulgada[modo], 1e-3) << modo;
        EXPECT_NEAR(esquema.ScaleX(2540), porPulgada[modo], 1e-3) << modo;
    }
    EXPECT_NEAR(esquema.ScaleY(1, V(4), V(1)), 240, 1e-3);
    esquema.Scale_(V(10), V(0), V(-90), V(50));
    EXPECT_EQ(Dibujo().escala(), (Superficie::Escala{10, 0, 100, -50}));
    EXPECT_EQ(esquema.ScaleMode(), 0);
}

// A screen whose pixels are not square.
class EsquemaApaisado : public Esquema {
  protected:
    int metric(PaintDeviceMetric que) const override {
        return que == PdmDpiY ? 2 * Esquema::metric(PdmDpiX) : Esquema::metric(que);
    }
};

TEST(MarcoSinVentana, VerticalLengthsUseTheVerticalResolution) {
    const DialogosGuion dialogos;
    EsquemaApaisado esquema;
    esquema.resize(800, 600);
    esquema.show();
    QApplication::processEvents();
    const auto* panel = esquema.findChild<PanelDibujo*>();
    const double ppp = esquema.logicalDpiX();
    for (const qint16 modo : {qint16{5}, qint16{6}}) {
        esquema.ScaleMode(modo);
        const double porPulgada = modo == 5 ? 1 : 25.4;
        EXPECT_NEAR(esquema.ScaleWidth(), panel->width() / ppp * porPulgada, 1e-2);
        EXPECT_NEAR(-esquema.ScaleHeight(), panel->height() / (2 * ppp) * porPulgada, 1e-2);
    }
}

// The first and the last column with anything drawn, from one on.
std::pair<int, int> Columnas(const QImage& imagen, int desde) {
    std::pair<int, int> columnas{imagen.width(), -1};
    for (int x = desde; x < imagen.width(); ++x) {
        for (int y = 0; y < imagen.height(); ++y) {
            if (imagen.pixelColor(x, y).lightness() < 128)
                columnas = {std::min(columnas.first, x), std::max(columnas.second, x)};
        }
    }
    return columnas;
}

TEST_F(MarcoDelEsquema, ThePictureIsFourTimesThePanelAndItsTextFiveTimes) {
    auto elementos = std::make_shared<Elementos>();
    elementos->Add(ctNudo, "Norte", 1, 1, 20, 100, 0, 0, nullptr, nullptr, "1", 5, 0);
    esquema.GetElementos(elementos);
    const QImage imagen = esquema.Picture();
    ASSERT_EQ(imagen.size(), Dibujo().Imagen().size() * 4);
    const int borde = EnElPanel(24.5F, 100).x() + 1;  // beyond the symbol
    const auto [a, b] = Columnas(Dibujo().Imagen(), borde);
    const auto [c, d] = Columnas(imagen, borde * 4);
    ASSERT_GT(b - a, 10) << "no label";
    EXPECT_NEAR(c, 4 * a, 6);
    EXPECT_NEAR(double(d - c) / (b - a), 5, 0.25);
}

TEST(MarcoSinVentana, TheControlFillsItsContainer) {
    const DialogosGuion dialogos;
    QWidget contenedor;
    contenedor.resize(700, 500);
    auto* esquema = new Esquema(&contenedor);
    const auto caja = [&](double x, double y, double ancho, double alto) {
        const double mm = esquema->logicalDpiX() / 25.4;
        return QRect(qRound(x * mm), qRound(y * mm), qRound(ancho * mm), qRound(alto * mm));
    };
    esquema->AjustarAVentana();
    EXPECT_EQ(esquema->geometry(), contenedor.rect());
    esquema->AjustarAVentana(V(20), V(10));
    EXPECT_EQ(esquema->geometry().topLeft(), caja(20, 10, 0, 0).topLeft());
    EXPECT_LE((esquema->geometry().bottomRight() - contenedor.rect().bottomRight()).manhattanLength(), 2);
    esquema->AjustarAVentana(V(20), {}, V(100), V(80.0F));
    EXPECT_EQ(esquema->geometry(), caja(20, 0, 100, 80));
    EXPECT_GT(esquema->findChild<PanelDibujo*>()->width(), esquema->width() - 30)
        << "the parts do not follow";
}

TEST_F(MarcoDelEsquema, TheHostSeesEachKeyOnce) {
    std::string visto;
    const auto anota = [&](const char* que) {
        return [&visto, que](qint16& tecla, qint16& mayus) {
            visto += que + std::to_string(tecla) + "/" + std::to_string(mayus) + " ";
        };
    };
    QObject::connect(&esquema, &Esquema::KeyDown, anota("D"));
    QObject::connect(&esquema, &Esquema::KeyPress,
                     [&](qint16& c) { visto += "P" + std::to_string(c) + " "; });
    QObject::connect(&esquema, &Esquema::KeyUp, anota("U"));
    const auto pulsa = [&](const char* donde, Qt::Key tecla, Qt::KeyboardModifiers con = {}) {
        visto.clear();
        QTest::keyClick(Parte(donde), tecla, con);
        return visto;
    };
    EXPECT_EQ(pulsa("Panel", Qt::Key_A), "D65/0 P97 U65/0 ");
    EXPECT_EQ(pulsa("Panel", Qt::Key_Plus, Qt::KeypadModifier), "D107/0 P43 U107/0 ");
    EXPECT_EQ(pulsa("Panel", Qt::Key_F5, Qt::ControlModifier), "D17/2 D116/2 U116/2 U17/0 ");
    EXPECT_EQ(pulsa("nudo", Qt::Key_Escape), "D27/0 P27 U27/0 ");
    EXPECT_EQ(pulsa("otbImagenFondo(0)", Qt::Key_1), "") << "keys of a box are its own";
}

TEST_F(MarcoDelEsquema, TheFocusRepaintsWhenItComesFromAnotherWidget) {
    Pon(DosNudos());
    for (const auto& [razon, repinta] : {std::pair(Qt::ActiveWindowFocusReason, false),
                                         {Qt::PopupFocusReason, false},
                                         {Qt::MenuBarFocusReason, false},
                                         {Qt::TabFocusReason, true}}) {
        Dibujo().Cls();
        QFocusEvent llega(QEvent::FocusIn, razon);
        QApplication::sendEvent(Panel(), &llega);
        EXPECT_EQ(SeVe(500, 504), repinta) << razon;
    }
}

}  // namespace
}  // namespace zel::pruebas
