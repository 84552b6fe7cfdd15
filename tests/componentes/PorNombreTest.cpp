// Objects made and used by their names, from a program that links nothing of the library.
#include <QAbstractButton>
#include <QMainWindow>
#include <QTest>
#include <memory>

#include "componentes/SinBiblioteca.h"

namespace {

// Puts the control in the window, with a conduit between two nodes.
QWidget* PonEsquema(zel::Componentes& componentes, QMainWindow& ventana) {
    const auto trazado = componentes.Crea("ZELVisorEsquemas.Puntos");
    trazado->Llama("Add", {0, 60});
    trazado->Llama("Add", {80, 0});
    const auto elementos = componentes.Crea("ZELVisorEsquemas.Elementos");
    elementos->Llama("Add", {0, "Cabecera", 1, 1, 0, 60, 0, 0, {}, {}, "1", 5, 5});
    elementos->Llama("Add", {0, "Desembocadura", 2, 2, 80, 0, 0, 0, {}, {}, "2", 5, 5});
    elementos->Llama("Add", {4, "Río", 3, 1, 40, 30, 1, 2, QVariant::fromValue(trazado), {}, "3", 5, 5});

    QWidget* esquema = componentes.CreaWidget("ZELVisorEsquemas.Esquema", &ventana);
    ventana.setCentralWidget(esquema);
    const auto control = componentes.PorNombre(esquema);
    control->Escribe("GetElementos", QVariant::fromValue(elementos));
    control->Llama("ResizeGrafo");  // all of it in sight
    control->AlOcurrir("ElementoMovido", [&ventana](QVariantList& argumentos) {
        const auto elemento = argumentos[1].value<zel::Referencia>();
        ventana.setWindowTitle(elemento->Lee("Nombre").toString() + " se ha movido");
    });
    return esquema;
}

}  // namespace

namespace zel::pruebas {
namespace {

class PorNombre : public SinBiblioteca {
  protected:
    PorNombre() { EXPECT_EQ(Entrada("zelRegistra").numero, 0); }

    Componentes componentes;
};

class ConEsquema : public PorNombre {
  protected:
    ConEsquema() {
        ventana.resize(800, 600);
        esquema = PonEsquema(componentes, ventana);
        control = componentes.PorNombre(esquema);
        elementos = control->Lee("GetElementos").value<Referencia>();
        ventana.show();
        QApplication::processEvents();
    }
    QWidget* Panel() const { return esquema->findChild<QWidget*>("Panel"); }
    QPoint En(float x, float y) const {
        const auto escala = [this](const char* nombre) { return control->Lee(nombre).toFloat(); };
        return {qRound((x - escala("ScaleLeft")) / escala("ScaleWidth") * float(Panel()->width())),
                qRound((y - escala("ScaleTop")) / escala("ScaleHeight") * float(Panel()->height()))};
    }
    Referencia Elemento(int codigo) const {
        return elementos->Llama("ItemCodSIG", {codigo}).value<Referencia>();
    }

    QMainWindow ventana;
    QWidget* esquema;
    Referencia control;
    Referencia elementos;
};

TEST_F(PorNombre, EveryClassIsMadeTellsWhatItIsAndIsLetGo) {
    for (const QString& clase : CLASES) {
        SCOPED_TRACE(clase.toStdString());
        const QString nombre = "ZELVisorEsquemas." + clase;
        std::unique_ptr<QWidget> widget;
        Referencia objeto;
        if (VISIBLES.contains(clase)) {
            widget.reset(componentes.CreaWidget(nombre.toUpper()));
            EXPECT_FALSE(componentes.PuedenDescargarse()) << "a widget is alive that nobody knows by name";
            objeto = componentes.PorNombre(widget.get());
            EXPECT_EQ(Falla([&] { componentes.Crea(nombre); }).numero, 429);
        } else {
            objeto = componentes.Crea(nombre.toUpper());
            EXPECT_EQ(Falla([&] { componentes.CreaWidget(nombre); }).numero, 429);
        }
        EXPECT_EQ(objeto->Clase(), nombre);
        EXPECT_FALSE(objeto->Ayuda().isEmpty());
        EXPECT_FALSE(objeto->Nombres().isEmpty());
        for (const QString& suyo : objeto->Nombres())
            EXPECT_FALSE(objeto->Ayuda(suyo.toLower()).isEmpty()) << suyo.toStdString();
        EXPECT_FALSE(componentes.PuedenDescargarse());
        widget.reset();
        EXPECT_FALSE(componentes.PuedenDescargarse()) << "a reference is held";
        objeto.reset();
        EXPECT_TRUE(componentes.PuedenDescargarse());
    }
    EXPECT_TRUE(componentes.Suelta());
}

TEST_F(ConEsquema, TheControlIsUsedByItsNames) {
    EXPECT_EQ(elementos->Lee("count").toInt(), 3);
    EXPECT_EQ(control->Llama("seleccionar", {3}).toInt(), 3);
    EXPECT_EQ(control->Lee("NombreElemento").toString(), "Río");
    EXPECT_EQ(control->Lee("TipoElemento").toInt(), 50);
    control->Escribe("nombreelemento", "Río Júcar");
    EXPECT_EQ(Elemento(3)->Lee("Nombre").toString(), "Río Júcar");
    EXPECT_EQ(control->Llama("ModificaVarios_Nombres", {QVariantList{1, 3, 0}, QVariantList{"A", "C", ""}}),
              true);
    EXPECT_EQ(control->Lee("NombreElemento").toString(), "C");

    // Arguments left out, and of any type.
    control->Llama("Scale_", {"0", 75.0, 100.5F, 0});
    EXPECT_FLOAT_EQ(control->Lee("ScaleWidth").toFloat(), 100.5F);
    EXPECT_FLOAT_EQ(control->Llama("ScaleX", {10, 7, 6}).toFloat(), 100) << "centimetres, millimetres";
    EXPECT_EQ(control->Lee("Picture").value<QImage>().size(), Panel()->size() * 4);

    control->Llama("ArchivoGuardar", {"rio.xml"});
    control->Llama("BorrarElemento");
    EXPECT_EQ(elementos->Lee("Count").toInt(), 2);
    control->Llama("ArchivoAbrir", {"rio.xml"});
    EXPECT_EQ(control->Lee("MotivoSinLeer").toString(), "");
    EXPECT_EQ(control->Lee("GetElementos").value<Referencia>()->Lee("Count").toInt(), 3);

    const Referencia otros = componentes.Crea(ELEMENTOS);
    control->Llama("SetElementos", {QVariant::fromValue(otros)});
    EXPECT_EQ(control->Lee("GetElementos").value<Referencia>()->Identidad(), otros->Identidad());

    // Qt's own way, for a form designer.
    EXPECT_EQ(esquema->property("CodigoElemento").toInt(), -1);
    EXPECT_THROW(esquema->setProperty("NombreElemento", "Nadie"), std::exception);
}

TEST_F(ConEsquema, EventsComeWithTheirElementsAndMayBeAnswered) {
    int pulsado = 0;
    control->AlOcurrir("ElementoSeleccionado", [&](QVariantList& a) { pulsado = a[0].toInt(); });
    QTest::mouseClick(Panel(), Qt::LeftButton, {}, En(0, 60));
    EXPECT_EQ(pulsado, 1);
    const QPoint hasta = En(20, 40);
    QTest::mousePress(Panel(), Qt::LeftButton, {}, En(0, 60));
    QTest::mouseMove(Panel(), (En(0, 60) + hasta) / 2);
    QTest::mouseMove(Panel(), hasta);
    QTest::mouseRelease(Panel(), Qt::LeftButton, {}, hasta);
    EXPECT_EQ(ventana.windowTitle(), "Cabecera se ha movido");
    EXPECT_NEAR(Elemento(1)->Lee("XPos").toFloat(), 20, 1);

    // What the host changes of the arguments is what the control goes on with.
    const auto donde = std::make_shared<int>(80);
    const auto desvio = control->AlOcurrir("MouseDown", [donde](QVariantList& a) {
        a[2] = *donde;
        a[3] = 0;
    });
    QTest::mouseClick(Panel(), Qt::LeftButton, {}, En(20, 40));
    EXPECT_EQ(pulsado, 2);
    QObject::disconnect(desvio);
    EXPECT_EQ(donde.use_count(), 1) << "what it held is let go";
    QMetaObject::Connection unaVez;
    unaVez = control->AlOcurrir("MouseDown", [&unaVez, donde](QVariantList&) {
        QObject::disconnect(unaVez);
        *donde += 1;
    });
    QTest::mouseClick(Panel(), Qt::LeftButton, {}, En(20, 40));
    QTest::mouseClick(Panel(), Qt::LeftButton, {}, En(20, 40));
    EXPECT_EQ(*donde, 81);
    EXPECT_EQ(donde.use_count(), 1);
    EXPECT_EQ(pulsado, 1);

    const Referencia barra = componentes.PorNombre(esquema->findChild<QWidget*>("ToolBar1"));
    QString boton;
    barra->AlOcurrir("ButtonClick",
                     [&](QVariantList& a) { boton = a[0].value<Referencia>()->Lee("Key").toString(); });
    QTest::mouseClick(esquema->findChild<QWidget*>("embalse"), Qt::LeftButton);
    EXPECT_EQ(boton, "embalse");
    EXPECT_EQ(Falla([&] { elementos->AlOcurrir("Add", {}); }).numero, 438);
}

TEST_F(ConEsquema, WhatIsHeldKeepsTheLibraryWhateverItWasGotFrom) {
    Referencia elemento = Elemento(1);
    Referencia trazado = Elemento(3)->Lee("Trazado").value<Referencia>();
    Referencia punto = trazado->Llama("Item", {1}).value<Referencia>();
    EXPECT_EQ(punto->Identidad(), trazado->Llama("Item", {1}).value<Referencia>()->Identidad());
    delete esquema;
    EXPECT_EQ(Falla([&] { control->Llama("Refresh"); }).numero, 91) << "the control is gone";
    for (Referencia* uno : {&control, &elementos, &elemento, &trazado, &punto}) {
        EXPECT_FALSE(componentes.PuedenDescargarse());
        EXPECT_FALSE(componentes.Suelta());
        EXPECT_FLOAT_EQ(punto->Lee("YPos").toFloat(), 60) << "outlives its collection";
        uno->reset();
    }
    EXPECT_TRUE(componentes.PuedenDescargarse());
    Componentes otros;
    otros.Crea(ELEMENTOS);
    EXPECT_TRUE(componentes.Suelta()) << "whoever else has loaded it";
    EXPECT_TRUE(otros.Crea(ELEMENTOS));
    EXPECT_TRUE(otros.Suelta());
    EXPECT_TRUE(componentes.Crea(ELEMENTOS)) << "found again";
}

TEST_F(PorNombre, CollectionsAreFilledAndSearchedByName) {
    const Referencia elementos = componentes.Crea(ELEMENTOS);
    const auto nuevo = [&](int codigo) {
        const Referencia e = componentes.Crea("ZELVisorEsquemas.Elemento");
        e->Escribe("gfCodSIG", codigo);
        e->Escribe("KeyPant", codigo);
        e->Escribe("Tipo", 0);
        e->Escribe("XPos", codigo * 10);
        return e;
    };
    for (const int codigo : {7, 8, 9})
        elementos->Llama("AddObjetoElemento", {QVariant::fromValue(nuevo(codigo))});
    EXPECT_EQ(elementos->Llama("Item", {"8"}).value<Referencia>()->Lee("XPos").toFloat(), 80);
    EXPECT_FALSE(elementos->Llama("Item", {"88"}).isValid()) << "no element";
    EXPECT_EQ(elementos->Llama("RemoveCodSIG", {8}).toInt(), 2);
    elementos->Llama("Remove", {1});
    EXPECT_EQ(elementos->Llama("Item", {1}).value<Referencia>()->Lee("gfCodSIG").toInt(), 9);
    const Referencia borde = elementos->Llama("PtoContorno", {0, 0, 10, 0}).value<Referencia>();
    EXPECT_FLOAT_EQ(borde->Lee("XPos").toFloat(), 4);
    const auto deObjetos =
        elementos->Llama("PtoContorno", {QVariant::fromValue(nuevo(0)), QVariant::fromValue(nuevo(1)), 2});
    EXPECT_FLOAT_EQ(deObjetos.value<Referencia>()->Lee("XPos").toFloat(), 8);
    EXPECT_EQ(elementos->Llama("VerificaIntegridad").toInt(), 0);

    const Referencia puntos = componentes.Crea("ZELVisorEsquemas.Puntos");
    const Referencia copia = componentes.Crea("ZELVisorEsquemas.Punto");
    copia->Llama("CopiaPropiedades", {puntos->Llama("Add", {1, 2, 3, "a"})});
    puntos->Llama("AddObjetoPunto", {QVariant::fromValue(copia), true, "b"});
    EXPECT_EQ(puntos->Llama("Item", {"B"}).value<Referencia>()->Lee("YPos").toFloat(), 2);
    EXPECT_EQ(puntos->Llama("Item", {2}).value<Referencia>()->Lee("Valor").toFloat(), 0);
}

// What a host brings of its own: read, and written, by the names that the system asks for.
class Propio : public ObjetoPorNombre {
  public:
    explicit Propio(QVariantMap inicial) : valores(std::move(inicial)) {}
    QVariant Lee(const QString& nombre) const override {
        if (!valores.contains(nombre)) NoHay(nombre);
        return valores[nombre];
    }
    void Escribe(const QString& nombre, const QVariant& valor) override { valores[nombre] = valor; }
    QVariant Llama(const QString& nombre, const QVariantList&) override { return Lee(nombre); }

    QVariantMap valores;
};

TEST_F(ConEsquema, AHostsOwnObjectsAreTaken) {
    // A row of its data has the properties of an element.
    QVariantMap fila;
    for (const QString& nombre : Elemento(1)->Nombres(ObjetoPorNombre::PROPIEDAD))
        fila[nombre] = Elemento(1)->Lee(nombre);
    fila["gfCodSIG"] = "40";
    fila["Nombre"] = "De la base de datos";
    const auto deLaFila = std::make_shared<Propio>(fila);
    control->Llama("AddElemento", {QVariant::fromValue<Referencia>(deLaFila)});
    EXPECT_EQ(Elemento(40)->Lee("Nombre").toString(), "De la base de datos");
    const Respuesta repetida =
        Falla([&] { control->Llama("AddElemento", {QVariant::fromValue<Referencia>(deLaFila)}); });
    EXPECT_NE(repetida.texto.find("La clave ya está en la colección"), std::string::npos);

    // What shows a button or a field.
    const Referencia botones = componentes.Crea("ZELVisorEsquemas.Buttons");
    const auto marco = std::make_shared<Propio>(QVariantMap{{"BorderStyle", 0}, {"Heigt", 7}});
    const auto boton = botones
                           ->Llama("Add", {"mano", 7, QImage(3, 2, QImage::Format_RGB32), 0,
                                           QVariant::fromValue<Referencia>(marco)})
                           .value<Referencia>();
    boton->Escribe("Value", 1);
    EXPECT_EQ(marco->valores["BorderStyle"].toInt(), 1);
    EXPECT_EQ(boton->Lee("Image").value<QImage>().width(), 3);
    const Referencia campos = componentes.Crea("ZELVisorEsquemas.Panels");
    const auto letrero = std::make_shared<Propio>(QVariantMap{{"Caption", ""}});
    campos->Llama("Add", {"x", QVariant::fromValue<Referencia>(letrero)})
        .value<Referencia>()
        ->Escribe("Texto", 12.5);
    EXPECT_EQ(letrero->valores["Caption"].toString(), "12.5");
    const Referencia campo = campos->Llama("Item", {"X"}).value<Referencia>();
    campo->Escribe("Texto", QVariant::fromValue(elementos));
    EXPECT_EQ(campo->Lee("Texto").value<Referencia>()->Identidad(), elementos->Identidad());
}

TEST_F(ConEsquema, TheControlsPartsAreReachedByName) {
    const Referencia barra = componentes.PorNombre(esquema->findChild<QWidget*>("ToolBar2"));
    EXPECT_EQ(barra->Lee("ButtonCount").toInt(), 8);
    const Referencia mano =
        barra->Lee("Buttons").value<Referencia>()->Llama("Item", {"mano"}).value<Referencia>();
    mano->Lee("Control").value<Referencia>()->Escribe("BorderStyle", 1);
    EXPECT_TRUE(esquema->findChild<QAbstractButton*>("mano")->isChecked());
    const Referencia estado = componentes.PorNombre(esquema->findChild<QWidget*>("StatusBar1"));
    control->Llama("textoStatBar", {"Leyendo"});
    const auto campo =
        estado->Lee("Panels").value<Referencia>()->Llama("Item", {"stats"}).value<Referencia>();
    EXPECT_EQ(campo->Lee("Texto").toString(), "Leyendo");
    EXPECT_EQ(Falla([&] { componentes.PorNombre(&ventana); }).numero, 13) << "no widget of the library";
}

TEST_F(ConEsquema, WhatCannotBeDoneTellsItsNumberAndWhy) {
    const QVariant nada;
    const QVariant unPunto = QVariant::fromValue(componentes.Crea("ZELVisorEsquemas.Punto"));
    const struct {
        std::function<void()> accion;
        int numero;
        const char* texto;
    } casos[] = {
        {[&] { control->Lee("NombreElement"); }, 438, "NombreElement (ZELVisorEsquemas.Esquema)"},
        {[&] { control->Lee("visible"); }, 438, "visible"},  // of the widget, not of the control
        {[&] { control->Lee("SetElementos"); }, 438, "no se puede leer"},
        {[&] { control->Lee("Cls"); }, 438, "no se puede leer"},  // looking does nothing
        {[&] { control->Escribe("TipoElemento", 3); }, 438, "no se puede escribir"},
        {[&] { control->Llama("Click"); }, 438, "no se puede llamar"},
        {[&] { control->Ayuda("Nada"); }, 438, "Nada"},
        {[&] { control->Llama("Seleccionar"); }, 5, "Seleccionar espera 1 argumento y recibe 0"},
        {[&] {
             control->Llama("ScaleX", {1, 2, 3, 4});
         },
         5, "ScaleX espera 1 a 3"},
        {[&] { control->Llama("Seleccionar", {"uno"}); }, 13, "no es del tipo"},
        {[&] { control->Escribe("NumeroPantallaElemento", 40000); }, 6, "no cabe"},
        {[&] { control->Escribe("NombreElemento", "x"); }, -2147211505, "No hay elemento seleccionado"},
        {[&] { control->Escribe("GetElementos", nada); }, -2147211505, "Falta el objeto"},
        {[&] { control->Escribe("GetElementos", unPunto); }, 13, "no es del tipo"},
        {[&] { elementos->Llama("AddObjetoElemento", {nada}); }, 91, "Falta el objeto"},
        {[&] { elementos->Llama("AddObjetoElemento", {7}); }, 13, "no es del tipo"},
        {[&] { Elemento(1)->Escribe("XPos", "este"); }, -2147211505, "Elemento:xPos Property Let"},
        {[&] { Elemento(1)->Escribe("Trazado", unPunto); }, 13, "no es del tipo"},
        {[&] { elementos->Llama("Remove", {9}); }, -2147211505, "Error Método Remove (Elementos)"},
    };
    for (const auto& caso : casos) {
        const Respuesta fallo = Falla(caso.accion);
        EXPECT_EQ(fallo.numero, caso.numero) << caso.texto;
        EXPECT_NE(fallo.texto.find(caso.texto), std::string::npos) << caso.texto << " in\n" << fallo.texto;
    }
}

// README.md shows this program's own code.
TEST(PorNombreLeeme, ShowsThisCode) {
    const std::string leeme = LeeArchivo(ZEL_RAIZ "/README.md");
    const std::size_t seccion = leeme.find("### By name");
    ASSERT_NE(seccion, std::string::npos);
    const std::size_t desde = leeme.find("```cpp\n", seccion) + 7;
    const std::string mostrado = leeme.substr(desde, leeme.find("```", desde) - desde);
    EXPECT_GT(mostrado.size(), 500U);
    EXPECT_NE(LeeArchivo(ZEL_RAIZ "/tests/componentes/PorNombreTest.cpp").find(mostrado), std::string::npos);
}

}  // namespace
}  // namespace zel::pruebas
