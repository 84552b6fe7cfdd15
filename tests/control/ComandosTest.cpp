// Schematics from file to file, and changes of many elements at once.

#include <QTimer>

#include "control/EnVentana.h"

namespace zel::pruebas {
namespace {

namespace fs = std::filesystem;

const QString CUENCA = QStringLiteral(ZEL_RAIZ "/examples/cuenca.xml");

class Comandos : public EnVentana {
  protected:
    // A file that is read in several turns.
    static QString EsquemaGrande() {
        auto muchos = std::make_shared<Elementos>();
        for (int i = 1; i <= 20000; ++i)
            muchos->Add(ctNudo, "N", i, 1, 0, 0, 0, 0, nullptr, nullptr, std::to_string(i), 5, 0);
        Esquema otro;
        otro.SetElementos(muchos);
        otro.ArchivoGuardar(u"grande.xml"_s);
        return u"grande.xml"_s;
    }
    std::string Guarda(const char* archivo) {
        esquema.ArchivoGuardar(QString::fromLatin1(archivo));
        return LeeArchivo(archivo);
    }
};

TEST_F(Comandos, ASchematicGoesFromFileToFileWhole) {
    Pon(DosNudos());
    esquema.Seleccionar(1);
    esquema.bHabidoCambios(true);
    esquema.ArchivoAbrir(CUENCA);
    EXPECT_FALSE(esquema.bHabidoCambios());
    EXPECT_EQ(esquema.CodigoElemento(), -1);
    EXPECT_EQ(Estado(1), "Preparado");
    EXPECT_EQ(Estado(4), "Región mostrada: 100 %");
    const auto nudo = esquema.GetElementos()->ItemCodSIG(1);
    EXPECT_TRUE(SeVe(nudo->XPos(), nudo->YPos() + 4 * nudo->Tamanyo()));
    const auto cuantos = esquema.GetElementos()->Count();
    EXPECT_GT(cuantos, 20);
    esquema.bHabidoCambios(true);
    const std::string a = Guarda("a.xml");
    EXPECT_FALSE(esquema.bHabidoCambios());
    esquema.ArchivoAbrir(u"a.xml"_s);
    EXPECT_EQ(esquema.GetElementos()->Count(), cuantos);
    EXPECT_EQ(Guarda("b.xml"), a);
}

TEST_F(Comandos, NumberingGoesOnFromTheHighestOfAKind) {
    // A kind that has reached the last number takes no further element; reservoirs count with the nodes.
    auto elementos = DosNudos();
    elementos->ItemCodSIG(1)->Tipo(ctEmbalse);
    elementos->ItemCodSIG(1)->KeyPant(32766);
    esquema.SetElementos(elementos);
    Guarda("casi.xml");
    esquema.ArchivoAbrir(u"casi.xml"_s);
    auto nuevo = std::make_shared<Elemento>(Simbolo(ctNudo, {0, 0}));
    nuevo->gfCodSIG(90);
    esquema.AddElemento(nuevo);
    nuevo->gfCodSIG(91);
    EXPECT_THROW(esquema.AddElemento(nuevo), Fallo);
    esquema.ArchivoAbrir(u"casi.xml"_s);
    esquema.Seleccionar(1);
    esquema.NumeroPantallaElemento(32767);
    esquema.NumeroPantallaElemento(3);
    EXPECT_THROW(esquema.AddElemento(nuevo), Fallo) << "the number has come down";
    nuevo->Tipo(ctDemanda);
    esquema.AddElemento(nuevo);
    EXPECT_THROW(esquema.AddElemento(nuevo), Fallo) << "the code is taken";
    EXPECT_THROW(esquema.AddElemento(nullptr), Fallo);
    EXPECT_EQ(esquema.GetElementos()->Count(), 3);
}

TEST_F(Comandos, AFileWithoutTheSettingLeavesItAsItIs) {
    esquema.SetElementos(DosNudos());
    esquema.bMostrarLineasOcultas(false);
    const QString texto = QString::fromLatin1(Guarda("con.xml"));
    carpeta.Escribe("sin.xml", QString(texto).replace(u"VerLineasSec"_s, u"Otras"_s).toStdString());
    for (const bool valor : {true, false, true}) {
        esquema.bMostrarLineasOcultas(valor);
        esquema.ArchivoAbrir(u"sin.xml"_s);
        EXPECT_EQ(esquema.GetElementos()->Count(), 2);
        EXPECT_EQ(esquema.bMostrarLineasOcultas(), valor);
    }
    esquema.ArchivoAbrir(u"con.xml"_s);
    EXPECT_FALSE(esquema.bMostrarLineasOcultas());
}

TEST_F(Comandos, AFileThatCannotBeReadIsKeptBesideTheNewOne) {
    carpeta.Escribe("x.xml", "no es XML");
    esquema.ArchivoAbrir(u"x.xml"_s);
    EXPECT_NE(esquema.MotivoSinLeer(), QString());
    EXPECT_EQ(esquema.GetElementos()->Count(), 0);
    Guarda("otro.xml");
    EXPECT_FALSE(fs::exists("x.xml.bak"));
    esquema.ArchivoGuardar(QString::fromStdString((carpeta / "x.xml").string()));
    Guarda("x.xml");
    EXPECT_EQ(LeeArchivo("x.xml.bak"), "no es XML");
    EXPECT_EQ(std::distance(fs::directory_iterator("."), {}), 3) << "one copy is enough";
}

TEST_F(Comandos, ARefusedFileLeavesTheSchematic) {
    esquema.SetElementos(DosNudos());
    std::string texto = Guarda("bueno.xml");
    carpeta.Escribe("repetidos.xml", texto.replace(texto.find("<gfCodSig>2"), 11, "<gfCodSig>1"));
    esquema.ArchivoAbrir(u"no existe.xml"_s);
    EXPECT_NE(esquema.MotivoSinLeer(), QString());
    const auto antes = DosNudos();
    Pon(antes);
    esquema.Seleccionar(1);
    esquema.bHabidoCambios(true);
    EXPECT_TRUE(Falla([&] { esquema.ArchivoAbrir(u"repetidos.xml"_s); },
                      {"Lector:Carga ", "Estado de visor 5. ErrArchivoAbrir (Esquema)"}));
    EXPECT_EQ(esquema.GetElementos(), antes);
    EXPECT_TRUE(esquema.bHabidoCambios());
    EXPECT_TRUE(esquema.MotivoSinLeer().contains(u"\"Norte\" y \"Sur\""_s))
        << esquema.MotivoSinLeer().toStdString();
}

TEST_F(Comandos, NumbersAndNamesInBulk) {
    Pon(DosNudos());
    Numera(*esquema.GetElementos(), {Simbolo(ctDemanda, {10, 10})});
    const QList<qint32> demasiados(32769, 1);
    struct Caso {
        QList<qint32> codigos, numeros;
        bool hecho;
        std::vector<int> quedan;
    };
    for (const Caso& c : {Caso{{1, 2, 3}, {11, 12, 13}, true, {11, 12, 3}},  // the last pair is not applied
                          {{}, {}, true, {1, 2, 3}},
                          {{77, 2, 3}, {11, 12, 13}, false, {1, 2, 3}},
                          {{1, 2, 3}, {11, 40000, 13}, false, {11, 2, 3}},
                          {{1, 2, 3}, {11}, false, {11, 2, 3}},
                          {demasiados, demasiados, false, {1, 2, 3}}}) {
        std::vector<int> quedan;
        for (const auto& e : *esquema.GetElementos())
            e->KeyPant(static_cast<qint16>(e->gfCodSIG()));
        EXPECT_EQ(esquema.ModificaVarios_NumUser(c.codigos, c.numeros), c.hecho);
        for (const auto& e : *esquema.GetElementos())
            quedan.push_back(e->KeyPant());
        EXPECT_EQ(quedan, c.quedan);
    }
    esquema.Refresh();
    const QImage antes = Dibujo().Imagen().copy();
    EXPECT_TRUE(esquema.ModificaVarios_Nombres({1, 2}, {u"Ámbar"_s, {}}));
    EXPECT_EQ(esquema.GetElementos()->ItemCodSIG(1)->Nombre(), "Ámbar");
    EXPECT_EQ(esquema.GetElementos()->ItemCodSIG(2)->Nombre(), "Sur");
    EXPECT_EQ(Dibujo().Imagen(), antes) << "bulk calls do not repaint";
    EXPECT_EQ(Estado(1), "Preparado");
}

TEST_F(Comandos, SecondaryConnectionsInBulk) {
    struct Caso {
        QList<qint32> origen, destino;
        bool todas;
        std::string quedan;  // of the node, the reservoir and the demand
    };
    for (const Caso& c : {Caso{{2, 2, 2}, {10, 11, 12}, false, "8,9 10,11 8,9 "},
                          {{1, 77, 3}, {10, 11, 12}, false, "-1,-1 8,9 12,-1 "},
                          {{3}, {10}, true, "-1,-1 -1,-1 10,-1 "},
                          {{}, {}, false, "8,9 8,9 8,9 "},
                          {{2, 3}, {10}, false, "8,9 10,-1 -1,-1 "}}) {  // fails half way
        auto elementos = std::make_shared<Elementos>();
        Numera(*elementos,
               {Simbolo(ctNudo, {0, 0}), Simbolo(ctEmbalse, {9, 0}), Simbolo(ctDemanda, {20, 0})});
        for (const auto& e : *elementos) {
            e->ConecSec1(8);
            e->ConecSec2(9);
        }
        esquema.SetElementos(elementos);
        EXPECT_EQ(esquema.ModificaVarios_ConecSec(c.origen, c.destino, c.todas), QString());
        std::string quedan;
        for (const auto& e : *elementos)
            quedan += std::to_string(e->ConecSec1()) + "," + std::to_string(e->ConecSec2()) + " ";
        EXPECT_EQ(quedan, c.quedan);
    }
}

TEST_F(Comandos, ALongLoadTellsHowFarItIsAndTakesNoInput) {
    const QString grande = EsquemaGrande();
    Pon(DosNudos());
    bool vino = false;
    QObject::connect(&esquema, &Esquema::KeyDown, [] { ADD_FAILURE() << "a key"; });
    QTimer::singleShot(0, &esquema, [&] {
        vino = true;
        for (const auto& llamada : std::vector<std::function<void()>>{
                 [&] { esquema.ArchivoAbrir(CUENCA); }, [&] { esquema.ArchivoGuardar(u"n.xml"_s); },
                 [&] { esquema.GetElementos(DosNudos()); }, [&] { esquema.SetElementos(DosNudos()); }})
            EXPECT_TRUE(Falla(llamada, {"Hay un esquema cargándose"}));
        const float izquierda = Dibujo().ScaleLeft();
        Pulsa("nudo");
        QTest::keyClick(Panel(), Qt::Key_A);
        QTest::keyClick(Parte("HScroll"), Qt::Key_PageDown);
        Parte<QAction>("menuVisorImagen")->trigger();
        EXPECT_FALSE(Parte<QAbstractButton>("nudo")->isChecked());
        EXPECT_EQ(Dibujo().ScaleLeft(), izquierda);
        EXPECT_EQ(Estado(1).find("Cargando el esquema: "), 0U) << Estado(1);
    });
    esquema.ArchivoAbrir(grande);
    EXPECT_TRUE(vino) << "the load gave no turn";
    EXPECT_EQ(esquema.GetElementos()->Count(), 20000);
    EXPECT_EQ(Estado(1), "Preparado");
    esquema.ArchivoAbrir(CUENCA);  // free again
}

TEST_F(Comandos, TheControlMayGoDuringALoad) {
    const QString grande = EsquemaGrande();
    auto* otro = new Esquema;
    QTimer::singleShot(0, otro, [&] { delete std::exchange(otro, nullptr); });
    EXPECT_TRUE(Falla([&] { otro->ArchivoAbrir(grande); }, {"ErrArchivoAbrir (Esquema)"}));
    EXPECT_EQ(otro, nullptr);
}

}  // namespace
}  // namespace zel::pruebas
