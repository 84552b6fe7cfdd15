// The background picture on its way into a folder that is not its own, and out of files that say too much.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "file/GuardadoSeguro.h"
#include "file/lectorArchivo.h"
#include "support/CarpetaTemporal.h"

namespace zel::pruebas {
namespace {

namespace fs = std::filesystem;

class ImagenAlGuardar : public ::testing::Test {
  protected:
    ImagenAlGuardar() {
        fs::create_directory(carpeta_ / "dibujos");
        mapa_ = carpeta_.Escribe("dibujos/mapa.png", "png del mapa");
    }
    static bool EsPng(const std::string& archivo) { return LeeArchivo(archivo).starts_with("png"); }
    // Saves with that picture; what has to be told.
    std::string Guarda(const std::string& nombre, const std::string& imagen) const {
        return GuardaConSeguridad(carpeta_ / nombre, std::make_shared<Elementos>(),
                                  ImagenGuardada{imagen, 1, 2, 3, 4, false}, true, EsPng)
            .aviso;
    }
    std::optional<SeccionImagen> Lee(const std::string& nombre) const {
        lectorArchivo lector;
        lector.NombreArchivo(carpeta_ / nombre);
        return lector.LeeSeccionImagen();
    }
    // The name under which the schematic knows its picture.
    std::string Nombre(const std::string& nombre) const {
        const auto seccion = Lee(nombre);
        return seccion && !seccion->textos.empty() ? seccion->textos.front().second : "";
    }
    std::string Contenido(const std::string& nombre) const { return LeeArchivo(carpeta_ / nombre); }

    CarpetaTemporal carpeta_;
    std::string mapa_;
};

TEST_F(ImagenAlGuardar, ACopyTakesAFreeNameAndReplacesNothing) {
    carpeta_.Escribe("mapa.png", "de otro");
    EXPECT_EQ(Guarda("a.xml", mapa_), "");
    EXPECT_EQ(Nombre("a.xml"), "mapa-2.png");
    EXPECT_EQ(Contenido("mapa.png"), "de otro");
    EXPECT_EQ(Contenido("mapa-2.png"), "png del mapa");
    EXPECT_EQ(Guarda("b.xml", mapa_), "");
    EXPECT_EQ(Nombre("b.xml"), "mapa-2.png") << "it is that picture already";
    EXPECT_FALSE(fs::exists(carpeta_ / "mapa-3.png"));
    fs::create_symlink("nada", carpeta_ / "plano.png");
    fs::rename(mapa_, carpeta_ / "dibujos/plano.png");
    Guarda("c.xml", carpeta_ / "dibujos/plano.png");
    EXPECT_EQ(Nombre("c.xml"), "plano-2.png");
    EXPECT_FALSE(fs::exists(carpeta_ / "nada")) << "a link is a name that is taken";
}

TEST_F(ImagenAlGuardar, TheSchematicIsNotReplacedByItsPicture) {
    const std::string tocaya = carpeta_.Escribe("dibujos/red.xml", "png que se llama así");
    EXPECT_EQ(Guarda("red.xml", tocaya), "");
    EXPECT_TRUE(Contenido("red.xml").starts_with("<?xml"));
    EXPECT_EQ(Nombre("red.xml"), "red-2.xml");
    EXPECT_EQ(Guarda("red.xml", tocaya), "") << "saved again";
    EXPECT_EQ(Nombre("red.xml"), "red-2.xml");
}

TEST_F(ImagenAlGuardar, WhatIsNoPictureIsNotCopiedAndThatIsTold) {
    const std::string secreto = carpeta_.Escribe("dibujos/secreto.png", "root:x:0:0");
    const std::string tubo = carpeta_ / "dibujos/tubo.png";
    ASSERT_EQ(mkfifo(tubo.c_str(), 0600), 0);
    for (const std::string& imagen : {secreto, (carpeta_ / "dibujos/falta.png").string(), tubo}) {
        const std::string aviso = Guarda("a.xml", imagen);
        EXPECT_TRUE(aviso.starts_with("No se ha podido copiar la imagen de fondo \"" + imagen)) << aviso;
        EXPECT_EQ(std::distance(fs::directory_iterator(carpeta_ / ""), {}), 2) << imagen;
    }
}

TEST_F(ImagenAlGuardar, ASectionThatCannotBeUsedIsKeptAsItWas) {
    const auto seccion = [](const std::string& archivo, const std::string& lx, const char* resto) {
        return "<ImagenFondo><Archivo>" + archivo + "</Archivo><X0>1,50</X0><Y0>2</Y0><LX>" + lx + "</LX>" +
               resto + "</ImagenFondo>";
    };
    constexpr const char* ENTERA = "<LY>4</LY><Oculta>Falso</Oculta>";
    const std::pair<std::string, const char*> filas[] = {
        {seccion("../x/secreto.txt", "3", ENTERA), "no está en la carpeta del esquema"},
        {seccion("sub\\..\\..\\secreto.txt", "3", ENTERA), "no está en la carpeta del esquema"},
        {seccion("/etc/passwd", "3", ENTERA), "no está en la carpeta del esquema"},
        {seccion("C:\\mapa.png", "3", ENTERA), "no está en la carpeta del esquema"},
        {seccion("mapa.png", "1e999", ENTERA), "LX = \"1e999\""},
        {seccion("mapa.png", "3", "<LY>4</LY><Oculta>quizá</Oculta>"), "Oculta = \"quizá\""},
        {seccion("mapa.png", "3", "<LY>4</LY>"), "falta Oculta"}};
    for (const auto& [xml, motivo] : filas) {
        carpeta_.Escribe(
            "a.xml", "<?xml version=\"1.0\" encoding=\"UTF-8\"?><Esquema><Elementos/>" + xml + "</Esquema>");
        const auto leida = Lee("a.xml");
        ASSERT_TRUE(leida && !leida->imagen) << xml;
        EXPECT_NE(leida->motivo.find(motivo), std::string::npos) << leida->motivo;
        fs::create_directory(carpeta_ / "lejos");
        EXPECT_EQ(
            GuardaConSeguridad(carpeta_ / "lejos/b.xml", std::make_shared<Elementos>(), *leida, true).aviso,
            "");
        const auto vuelta = Lee("lejos/b.xml");
        ASSERT_TRUE(vuelta) << xml;
        EXPECT_EQ(vuelta->textos, leida->textos) << xml;
        EXPECT_EQ(std::distance(fs::directory_iterator(carpeta_ / "lejos"), {}), 1) << "nothing was copied";
    }
}

}  // namespace
}  // namespace zel::pruebas
