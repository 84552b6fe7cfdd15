#include <QCheckBox>
#include <QLineEdit>
#include <fstream>

#include "control/EnVentana.h"

namespace zel::pruebas {
namespace {

namespace fs = std::filesystem;

class ImagenFondo : public EnVentana {
  protected:
    ImagenFondo() { Encuadra(); }
    // X from -100 to 300 and Y from 100 to -200.
    void Encuadra() { esquema.Scale_(Variante(-100), Variante(100), Variante(300), Variante(-200)); }
    // A red picture.
    std::string Pinta(const char* nombre, QSize tamanyo) const {
        QImage imagen(tamanyo, QImage::Format_RGB32);
        imagen.fill(Qt::red);
        EXPECT_TRUE(imagen.save(QString::fromLatin1(nombre)));
        return (carpeta / nombre).string();
    }
    void Edita() { Parte<QAction>("menuVisorImagen")->trigger(); }
    void Escoge(std::optional<std::string> ruta) {
        dialogos.ResponderArchivo(std::move(ruta));
        Edita();
    }
    QLineEdit* Caja(int i) const { return Parte<QLineEdit>("otbImagenFondo(" + std::to_string(i) + ")"); }
    std::string Cajas() const {
        std::string textos;
        for (int i = 0; i < 4; ++i)
            textos += Caja(i)->text().toStdString() + " ";
        return textos;
    }
    void Escribe(const char* textos) {
        const QStringList cuatro = QString::fromLatin1(textos).split(u';');
        for (int i = 0; i < 4; ++i)
            Caja(i)->setText(cuatro[i]);
    }
    void AlternaOcultar() { Parte<QCheckBox>("Check1OcultarImagenFondo")->click(); }
    bool HayRojo(float x, float y) { return ColorEn(x, y) == QColor(Qt::red); }
    bool MarcoAbierto() const { return Parte("FrameImagenFondo")->isVisible(); }
};

TEST_F(ImagenFondo, AChosenPictureIsPlacedUnderTheElements) {
    auto nudo = std::make_shared<Elementos>();
    Numera(*nudo, {Simbolo(ctNudo, {50, -25})});
    esquema.GetElementos(nudo);
    Escoge(Pinta("plano.bmp", {100, 50}));
    EXPECT_TRUE(MarcoAbierto());
    EXPECT_FALSE(Parte("ToolBar1")->isEnabled());
    EXPECT_EQ(Estado(1), "Ajuste la posición y tamaño de la imagen de fondo y pulse aceptar");
    EXPECT_EQ(Cajas(), "0 0 100 0.5 ");
    for (const PuntoXY dentro : {PuntoXY{2, -2}, {98, -48}})
        EXPECT_TRUE(HayRojo(dentro.X, dentro.Y)) << dentro.X;
    for (const PuntoXY fuera : {PuntoXY{-2, -2}, {102, -2}, {50, 3}, {50, -53}})
        EXPECT_FALSE(HayRojo(fuera.X, fuera.Y)) << fuera.X << " " << fuera.Y;
    bool nudoDelante = false;
    for (float r = 3; r < 5; r += 0.2F)
        nudoDelante = nudoDelante || !HayRojo(50 + r, -25);
    EXPECT_TRUE(nudoDelante);

    Escribe("-20;30.5 m;200;-0.25");  // upwards
    Pulsa("cmdImagenFondoVer");
    EXPECT_TRUE(HayRojo(178, 78));
    EXPECT_FALSE(HayRojo(178, 83));
    for (const char* malos :
         {"1e400;1;50;1", "1;1;50;0.005", "1;1;50;-0.005", "1;1;50;12", "1;1;0.5;1", "1;1;mucho;1"}) {
        Escribe(malos);
        Pulsa("cmdImagenFondoVer");
        EXPECT_EQ(Cajas(), "-20 30.5 200 -0.25 ") << malos;
        EXPECT_TRUE(MarcoAbierto());
    }
    Escribe("1;1;0;1");
    Pulsa("cmdImagenFondoAceptar");
    EXPECT_FALSE(MarcoAbierto()) << "accepting closes, whatever the boxes say";
    EXPECT_TRUE(Parte("ToolBar1")->isEnabled());
    EXPECT_EQ(Estado(1), "Preparado");
    EXPECT_TRUE(HayRojo(178, 78));
    // The second press of a double click on "Aceptar" edits nothing.
    QObject::connect(&esquema, &Esquema::DblClick, [] { ADD_FAILURE() << "the host is told"; });
    QTest::mouseDClick(Panel(), Qt::LeftButton, {}, {5, 5});
}

TEST_F(ImagenFondo, WithoutAPictureNothingChanges) {
    Escoge(std::nullopt);
    // 54 bytes that say 15,000 by 15,000.
    std::string enorme("BM\x36\0\0\0\0\0\0\0\x36\0\0\0\x28\0\0\0\x98\x3A\0\0\x98\x3A\0\0\1\0\x18\0", 30);
    enorme.resize(54);
    const std::string svg =
        "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'>"
        "<image href='plano.bmp' width='9' height='9'/></svg>";
    const std::pair<std::string, const char*> filas[] = {
        {carpeta.Escribe("texto.bmp", "no es una imagen"), "no es una imagen BMP"},
        {"no hay", "no se encuentra el archivo"},
        {carpeta.Escribe("enorme.bmp", enorme), "demasiado grande (15000 x 15000 puntos"},
        {carpeta.Escribe("dibujo.svg", svg), "no es una imagen BMP"},
        {carpeta.Escribe("dibujo.png", svg), "no es una imagen BMP"}};
    for (const auto& [ruta, motivo] : filas) {
        dialogos.Espera(motivo);
        Escoge(ruta);
        EXPECT_TRUE(dialogos.Ultimo().starts_with("No se puede leer la imagen")) << dialogos.Ultimo();
    }
    EXPECT_FALSE(MarcoAbierto());
    EXPECT_EQ(Estado(1), "Preparado");
    EXPECT_EQ(Cajas(), "0 0 300 1 ");
}

TEST_F(ImagenFondo, ItGoesWithTheFileHiddenOrRemoved) {
    fs::create_directory("mapas");
    Escoge(Pinta("mapas/plano.bmp", {100, 50}));
    Escribe("10;-20;150;0.4");
    Pulsa("cmdImagenFondoAceptar");
    EXPECT_TRUE(esquema.bHabidoCambios());
    esquema.ArchivoGuardar(u"con.xml"_s);
    Edita();  // there is one: no dialog
    EXPECT_FALSE(esquema.bHabidoCambios());
    AlternaOcultar();
    EXPECT_TRUE(HayRojo(158, -78)) << "hidden before it was asked for";
    Pulsa("cmdImagenFondoAceptar");
    EXPECT_TRUE(esquema.bHabidoCambios());
    EXPECT_FALSE(HayRojo(158, -78));
    esquema.ArchivoGuardar(u"oculta.xml"_s);
    esquema.ArchivoAbrir(u"con.xml"_s);
    Encuadra();
    EXPECT_TRUE(HayRojo(158, -78));
    Edita();
    Parte<QAction>("menuVisorQuitarImagen")->trigger();
    EXPECT_FALSE(MarcoAbierto());
    EXPECT_FALSE(HayRojo(158, -78));
    EXPECT_TRUE(esquema.bHabidoCambios());
    esquema.ArchivoGuardar(u"sin.xml"_s);
    const auto abre = [&](const char* archivo, bool seVe, bool guardaIgual) {
        esquema.ArchivoAbrir(QString::fromLatin1(archivo));
        Encuadra();
        EXPECT_EQ(HayRojo(158, -78), seVe) << archivo;
        EXPECT_FALSE(HayRojo(162, -78)) << archivo;
        esquema.ArchivoGuardar(u"otra.xml"_s);
        EXPECT_EQ(LeeArchivo("otra.xml") == LeeArchivo(archivo), guardaIgual) << archivo;
    };
    abre("con.xml", true, true);
    EXPECT_EQ(Cajas(), "10 -20 150 0.4 ");
    abre("oculta.xml", false, true);
    EXPECT_TRUE(Parte<QCheckBox>("Check1OcultarImagenFondo")->isChecked());
    abre("sin.xml", false, true);
    fs::remove("plano.bmp");  // the copy beside the schematic
    abre("con.xml", false, true);
    esquema.ArchivoAbrir(u"con.xml"_s);
    EXPECT_TRUE(esquema.AvisoDeImagen().contains(u"plano.bmp"_s)) << esquema.AvisoDeImagen().toStdString();
    // One that is not shown can be taken away.
    esquema.PonAlDiaMenu();
    ASSERT_TRUE(Parte<QAction>("menuVisorQuitarImagen")->isVisible());
    Parte<QAction>("menuVisorQuitarImagen")->trigger();
    esquema.ArchivoGuardar(u"otra.xml"_s);
    EXPECT_EQ(LeeArchivo("otra.xml"), LeeArchivo("sin.xml"));
    // A new schematic knows nothing of the one before.
    esquema.ArchivoAbrir(u"oculta.xml"_s);
    esquema.ArchivoNuevo();
    EXPECT_EQ(Cajas(), "0 0 300 1 ");
    EXPECT_FALSE(Parte<QCheckBox>("Check1OcultarImagenFondo")->isChecked());
}

TEST_F(ImagenFondo, TheCopyOfTheLastSaveStandsInForAPictureThatIsGone) {
    for (const char* nombre : {"usb", "uno", "otro"})
        fs::create_directory(nombre);
    std::ofstream("uno/plano.bmp") << "de otro";
    Escoge(Pinta("usb/plano.bmp", {100, 50}));
    Pulsa("cmdImagenFondoAceptar");
    const auto guarda = [&](const char* archivo) {
        esquema.ArchivoGuardar(QString::fromLatin1(archivo));
        EXPECT_EQ(esquema.AvisoDeImagen(), QString()) << archivo;
        return LeeArchivo(archivo);
    };
    const std::string antes = guarda("uno/a.xml");
    EXPECT_NE(antes.find("<Archivo>plano-2.bmp<"), std::string::npos) << antes;
    fs::remove_all("usb");
    EXPECT_EQ(guarda("uno/a.xml"), antes);
    EXPECT_EQ(guarda("otro/b.xml"), antes);
    fs::remove_all("uno");
    EXPECT_EQ(guarda("otro/b.xml"), antes);
    fs::remove("otro/plano-2.bmp");
    esquema.ArchivoGuardar(u"otro/b.xml"_s);
    EXPECT_NE(esquema.AvisoDeImagen(), QString());
    EXPECT_EQ(LeeArchivo("otro/b.xml"), antes) << "its name is kept for it";
}

TEST_F(ImagenFondo, AScannedMapOfManyPixelsIsTaken) {
    Escoge(Pinta("mapa.jpg", {6000, 6000}));
    EXPECT_EQ(Cajas(), "0 0 6000 1 ");
    EXPECT_GT(ColorEn(200, -100).red(), 240);
    EXPECT_LT(ColorEn(200, -100).blue(), 20);
}

}  // namespace
}  // namespace zel::pruebas
