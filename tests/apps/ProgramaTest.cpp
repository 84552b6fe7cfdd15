#include <gtest/gtest.h>

#include <QImage>
#include <filesystem>

#include "apps/Programa.h"
#include "support/CarpetaTemporal.h"

namespace zel::pruebas {
namespace {

TEST(Programa, InfoCountsTheKindsAndTellsTheProblems) {
    const CarpetaTemporal carpeta;
    const Resultado cuenca = Ejecuta("info " + CUENCA);
    EXPECT_EQ(cuenca.codigo, 0) << cuenca.texto;
    for (const char* linea : {"Elementos: 114", "  Nudo: 20", "  Central Hidroeléctrica: 4", "  Subcuenca: 4",
                              "Problemas de carga: ninguno"}) {
        EXPECT_TRUE(Contiene(cuenca.texto, linea)) << linea << " in\n" << cuenca.texto;
    }
    const std::string incompleto =
        carpeta.Escribe("incompleto.xml",
                        "<Esquema><Elementos><Nudo><Elemento><gfCodSig>5</gfCodSig><Tipo>10</Tipo>"
                        "<posX>12.5</posX></Elemento></Nudo></Elementos></Esquema>");
    const Resultado conProblemas = Ejecuta("info " + incompleto);
    EXPECT_EQ(conProblemas.codigo, 0);
    EXPECT_TRUE(Contiene(conProblemas.texto, "Extensión: X de 8.5 a 16.5, Y de -4 a 4"))
        << conProblemas.texto;
    EXPECT_TRUE(
        Contiene(conProblemas.texto, "El elemento en la posición 1 no almacenó la propiedad Nombre\n"))
        << conProblemas.texto;
    EXPECT_TRUE(std::filesystem::exists("ErroresCarga.log"));
}

TEST(Programa, ExportarDrawsThePictureWithoutADisplay) {
    const CarpetaTemporal carpeta;
    EXPECT_EQ(Ejecuta("exportar " + CUENCA + " cuenca.png --ancho 500").codigo, 0);
    const QImage imagen(QStringLiteral("cuenca.png"));
    EXPECT_EQ(imagen.width(), 500);
    EXPECT_GT(imagen.height(), 200);
    EXPECT_EQ(Ejecuta("exportar " + CUENCA + " cuenca.svg --ancho 960").codigo, 0);
    EXPECT_TRUE(Contiene(LeeArchivo("cuenca.svg"), "<svg width=\"254mm\""));
    EXPECT_EQ(Ejecuta("exportar " + CUENCA + " cuenca.pdf").codigo, 0);
}

TEST(Programa, ConvertirSavesWhatItReadsAndVerificarTellsWhatIsWrong) {
    const CarpetaTemporal carpeta;
    EXPECT_EQ(Ejecuta("convertir " + CUENCA + " a.xml").codigo, 0);
    EXPECT_EQ(Ejecuta("convertir a.xml b.xml").codigo, 0);
    const std::string sano = LeeArchivo("a.xml");
    EXPECT_EQ(LeeArchivo("b.xml"), sano);
    EXPECT_TRUE(Contiene(sano, "<VerLineasSecundarias>True<"));
    EXPECT_EQ(Ejecuta("verificar a.xml").codigo, 0);

    std::string malo = sano;
    malo.replace(malo.find("<ColorIcono>-1<"), 15, "<ColorIcono>-7<");
    carpeta.Escribe("malo.xml", malo);
    const Resultado faltas = Ejecuta("verificar malo.xml");
    EXPECT_EQ(faltas.codigo, 1);
    EXPECT_TRUE(
        Contiene(faltas.texto, "posición 1, código 1, \"Puente de Villar\": ColorIcono incorrecto: -7\n"))
        << faltas.texto;
    EXPECT_TRUE(std::filesystem::exists("Integridad.log"));
    const Resultado corregido = Ejecuta("verificar malo.xml --corregir malo.xml");
    EXPECT_EQ(corregido.codigo, 1);
    EXPECT_TRUE(Contiene(corregido.texto, "-7 -> ColorIcono puesto a -1")) << corregido.texto;
    EXPECT_EQ(LeeArchivo("malo.xml"), sano);
    EXPECT_EQ(Ejecuta("verificar nada.xml").codigo, 2);
    EXPECT_EQ(Ejecuta("convertir a.xml no/hay.xml").codigo, 3);
    EXPECT_EQ(Ejecuta("convertir a.xml c.xml --corregir d.xml").codigo, 3);
}

TEST(Programa, WrongUseAndUnreadableFilesSayWhatToDo) {
    const CarpetaTemporal carpeta;
    const std::string roto = carpeta.Escribe("roto.xml", "<Esquema><Elementos>");
    const std::string repetido = carpeta.Escribe(
        "repetido.xml",
        "<Esquema><Elemento><Tipo>10</Tipo></Elemento><Elemento><Tipo>10</Tipo></Elemento></Esquema>");
    const std::string bandera = carpeta.Escribe(
        "bandera.xml", "<Esquema><Elemento><NombreMovido>2</NombreMovido></Elemento></Esquema>");
    const struct {
        std::string orden;
        int codigo;
        std::string texto;
    } casos[] = {
        {"info", 3, "Uso:"},
        {"exportar " + CUENCA, 3, "Uso:"},
        {"exportar " + CUENCA + " salida.png --ancho doce", 3, "número de píxeles"},
        {"exportar " + CUENCA + " salida.png --ancho 16001", 3, "número de píxeles"},
        {"exportar " + CUENCA + " salida.jpg", 3, ".png, .svg o .pdf"},
        {"exportar " + CUENCA + " salida.pdf --ancho 300", 3, "quite --ancho"},
        {"exportar " + CUENCA + " no/hay/salida.png", 3, "no se puede escribir"},
        {"exportar nada.xml salida.png", 2, "No se ha encontrado el archivo"},
        {"info .", 2, "no se puede leer \".\""},
        {"info " + roto, 2, "no está bien formado: en la línea 1, una etiqueta está sin cerrar"},
        {"convertir " + repetido + " otro.xml", 2, "verificar ARCHIVO --corregir OTRO"},
        {"info " + bandera, 2,
         "no se pueden cargar: Error en funcion I2B (lectorArchivo), argumento recibido: 2."},
        {"cuenca", 3, "\"cuenca\" no es una orden ni un archivo"},
        {"infor " + CUENCA, 3, "\"infor\" no es una orden"},
        {CUENCA + " --negro", 3, "no se conoce la opción \"negro\""},
        {"info " + CUENCA + " --ancho 300", 3, "le faltan o le sobran argumentos"},
        {CUENCA, 3, "no hay pantalla"},
        {"--version", 0, "zelvisor "},
        {"--help", 0, "Opciones:"},
    };
    for (const auto& caso : casos) {
        const Resultado resultado = Ejecuta(caso.orden);
        EXPECT_EQ(resultado.codigo, caso.codigo) << caso.orden;
        EXPECT_TRUE(Contiene(resultado.texto, caso.texto)) << caso.orden << ":\n" << resultado.texto;
        EXPECT_FALSE(std::filesystem::exists("salida.png")) << caso.orden;
    }
    // A display that does not answer is as good as none.
    const Resultado muda = Corre("env QT_QPA_PLATFORM=nada \"" ZEL_PROGRAMA "\" " + CUENCA);
    EXPECT_EQ(muda.codigo, 3);
    EXPECT_TRUE(muda.texto.starts_with("zelvisor: no hay pantalla")) << muda.texto;
}

}  // namespace
}  // namespace zel::pruebas
