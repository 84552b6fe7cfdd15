// The orders where a file, a folder or a name is not what it should be.
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>

#include "apps/Programa.h"
#include "support/CarpetaTemporal.h"

namespace zel::pruebas {
namespace {

namespace fs = std::filesystem;

TEST(Ordenes, WhatTheIntegrityCheckCanRepairIsReadForIt) {
    const CarpetaTemporal carpeta;
    std::string repetidos = LeeArchivo(CUENCA);
    const std::string codigo = "<gfCodSig>114<";
    ASSERT_TRUE(Contiene(repetidos, codigo));
    repetidos.replace(repetidos.find(codigo), codigo.size(), "<gfCodSig>1<");
    carpeta.Escribe("a.xml", repetidos);
    EXPECT_EQ(Ejecuta("info a.xml").codigo, 0);
    const Resultado convertido = Ejecuta("convertir a.xml b.xml");
    EXPECT_EQ(convertido.codigo, 2);
    EXPECT_TRUE(Contiene(convertido.texto, "tienen el mismo código, 1")) << convertido.texto;
    EXPECT_EQ(Ejecuta("verificar a.xml --corregir b.xml").codigo, 1);
    EXPECT_EQ(Ejecuta("convertir b.xml c.xml").codigo, 0);
    EXPECT_EQ(LeeArchivo("b.xml"), LeeArchivo("c.xml"));
}

TEST(Ordenes, APictureThatIsNotTheSchematicsIsNeitherFollowedNorForgotten) {
    const CarpetaTemporal carpeta;
    fs::create_directory("red");
    fs::create_directory("otra");
    carpeta.Escribe("secreto.png", "de otro");
    const std::string seccion =
        "<ImagenFondo><Archivo>../secreto.png</Archivo><X0>1</X0><Y0>2</Y0><LX>1e999</LX></ImagenFondo>";
    carpeta.Escribe("red/a.xml", "<Esquema><Elementos/>" + seccion + "</Esquema>");
    const Resultado convertido = Ejecuta("convertir red/a.xml otra/b.xml");
    EXPECT_EQ(convertido.codigo, 0) << convertido.texto;
    EXPECT_TRUE(Contiene(LeeArchivo("otra/b.xml"), seccion)) << LeeArchivo("otra/b.xml");
    EXPECT_FALSE(fs::exists("otra/secreto.png"));
    // One that is not there any more, where another has its name and where none has.
    const std::string falta =
        "<ImagenFondo><Archivo>fondos/mapa.png</Archivo><X0>1,50</X0><Y0>2</Y0><LX>3</LX><LY>1</LY>"
        "<Oculta>Falso</Oculta></ImagenFondo>";
    carpeta.Escribe("red/c.xml", "<Esquema><Elementos/>" + falta + "</Esquema>");
    carpeta.Escribe("otra/mapa.png", "de otro");
    for (const char* orden : {"convertir red/c.xml red/d.xml", "convertir red/c.xml otra/d.xml",
                              "verificar red/c.xml --corregir red/d.xml"}) {
        EXPECT_TRUE(Contiene(Ejecuta(orden).texto, "fondos/mapa.png\" no se puede mostrar")) << orden;
        const std::string salida = std::string(orden).substr(std::string(orden).rfind(' ') + 1);
        EXPECT_TRUE(Contiene(LeeArchivo(salida), falta)) << orden << LeeArchivo(salida);
        fs::remove(salida);
    }
    EXPECT_TRUE(Contiene(Ejecuta("info red/c.xml").texto, "mapa.png\" no se puede mostrar"));
    for (const char* orden : {"info red/a.xml", "verificar red/a.xml", "exportar red/a.xml red/a.png"})
        EXPECT_EQ(Ejecuta(orden).codigo, 0) << orden;
}

// The program as somebody else, beside its library, where both can be read.
TEST(Ordenes, APlainUserWhoMayNotWriteHereIsServedAllTheSame) {
    const CarpetaTemporal carpeta;
    fs::create_directory("casa");
    fs::copy_file(ZEL_PROGRAMA, "zelvisor");
    fs::copy_file(ZEL_BIBLIOTECA, fs::path(ZEL_BIBLIOTECA).filename());
    fs::copy_file(CUENCA, "cuenca.xml");
    fs::permissions("casa", fs::perms::all);
    fs::permissions(".", static_cast<fs::perms>(0555));
    const std::string aqui = fs::current_path().string() + "/";
    const std::string quien =
        geteuid() == 0 ? "setpriv --reuid 65534 --regid 65534 --clear-groups " : std::string();
    const std::string como =
        quien + "env HOME=" + aqui + "casa LD_LIBRARY_PATH=" + aqui + " " + aqui + "zelvisor ";
    const std::pair<const char*, int> filas[] = {{"info cuenca.xml", 0},
                                                 {"verificar cuenca.xml", 0},
                                                 {"info falta.xml", 2},
                                                 {"exportar cuenca.xml casa/cuenca.png", 0},
                                                 {"verificar cuenca.xml --corregir casa/b.xml", 0},
                                                 {"convertir cuenca.xml b.xml", 3},
                                                 {"verificar cuenca.xml --corregir b.xml", 3}};
    for (const auto& [orden, codigo] : filas) {
        const Resultado resultado = Corre(como + orden);
        EXPECT_EQ(resultado.codigo, codigo) << orden << ":\n" << resultado.texto;
        EXPECT_FALSE(Contiene(resultado.texto, "Uso:")) << orden;
    }
    EXPECT_TRUE(fs::exists("casa/b.xml") && fs::exists("casa/cuenca.png"));
    fs::permissions(".", fs::perms::owner_all);
}

TEST(Ordenes, FilesWhoseNamesAreNoUtf8KeepThem) {
    const CarpetaTemporal carpeta;
    fs::copy_file(CUENCA, "r\xEDo.xml");
    EXPECT_EQ(Ejecuta("convertir r\xEDo.xml 'a\xF1o.xml'").codigo, 0);
    EXPECT_TRUE(fs::exists("a\xF1o.xml"));
    EXPECT_EQ(Ejecuta("exportar r\xEDo.xml r\xEDo.png").codigo, 0);
    EXPECT_TRUE(fs::exists("r\xEDo.png"));
    EXPECT_EQ(std::distance(fs::directory_iterator("."), {}), 3);
}

}  // namespace
}  // namespace zel::pruebas
