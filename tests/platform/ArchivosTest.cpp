#include "platform/Archivos.h"

#include <gtest/gtest.h>

#include "platform/Fallo.h"
#include "platform/Texto.h"
#include "support/CarpetaTemporal.h"

namespace zel::pruebas {
namespace {

TEST(Archivos, SplitAPathBehindItsLastSeparatorOfEitherKind) {
    const auto partida = [](const char* ruta) {
        return ParteRuta(ruta).carpeta + "|" + ParteRuta(ruta).nombre;
    };
    EXPECT_EQ(partida("C:\\redes\\a.xml"), "C:\\redes\\|a.xml");
    EXPECT_EQ(partida("redes\\sub/b.xml"), "redes\\sub/|b.xml");
    EXPECT_EQ(partida("redes/sub\\"), "redes/sub\\|");
    EXPECT_EQ(partida("c.xml"), "|c.xml");
}

TEST(Archivos, WriteALogInLatin1BetweenQuotesOverTheEarlierOne) {
    const CarpetaTemporal carpeta;
    carpeta.Escribe("a.log", std::string(500, 'x'));
    EscribeRegistro("a.log", "Río \"Ñ\" ÿ € 水 😀\r\nfin");
    EXPECT_EQ(LeeArchivo(carpeta / "a.log"), "\"R\xEDo \"\xD1\" \xFF ? ? ?\r\nfin\"\r\n");
    EXPECT_EQ(Latin1("a\xF1o.xml\xC3"), "a\xF1o.xml\xC3") << "bytes that are not UTF-8 stay";
}

TEST(Archivos, FailWithTheSystemsReasonWhenALogCannotBeWritten) {
    const CarpetaTemporal carpeta;
    std::filesystem::create_directory(carpeta / "carpeta");
    const auto numero = [](const char* nombre, std::size_t cuanto) {
        try {
            EscribeRegistro(nombre, std::string(cuanto, 'x'));
            return 0;
        } catch (const Fallo& fallo) {
            return fallo.Number();
        }
    };
    EXPECT_EQ(numero("carpeta", 1), 75);
    EXPECT_EQ(numero("falta/a.log", 1), 53);
    if (std::filesystem::exists("/dev/full")) {
        EXPECT_EQ(numero("/dev/full", 10), 61);
        EXPECT_EQ(numero("/dev/full", 1000000), 61);
    }
}

}  // namespace
}  // namespace zel::pruebas
