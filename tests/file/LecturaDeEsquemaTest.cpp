// Documents that are made to cost their reader more than their size, and the encodings that it takes.
#include "file/LecturaDeEsquema.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <chrono>

#include "support/CarpetaTemporal.h"

namespace zel::pruebas {
namespace {

using namespace std::string_literals;

constexpr int MUCHOS = 40000;

std::string Veces(int n, const std::string& texto) {
    std::string todo;
    for (int i = 0; i < n; ++i)
        todo += texto;
    return todo;
}
// The text with each "#" replaced by a number that no other has.
std::string Distintos(const std::string& texto) {
    std::string todo;
    for (int i = 0; i < MUCHOS; ++i)
        todo += texto.substr(0, texto.find('#')) + std::to_string(i) + texto.substr(texto.find('#') + 1);
    return todo;
}
std::string Declarado(const std::string& codificacion, const std::string& xml) {
    return "<?xml version='1.0' encoding='" + codificacion + "'?>" + xml;
}
std::string Utf16(const std::string& ascii, bool bajoDelante = true) {
    std::string ancho;
    for (const char c : ascii)
        ancho += bajoDelante ? std::string{c, '\0'} : std::string{'\0', c};
    return ancho;
}

TEST(LecturaDeEsquema, RefusesAtOnceWhatIsMadeToBeSlow) {
    const CarpetaTemporal carpeta;
    const std::string atributos = "<Esquema><b" + Distintos(" a#=''") + "/></Esquema>";
    // In two bytes, and bytes that would be "<!--" in one.
    const std::string disfraz = "\0<\0!\0-\0-"s;
    const auto anidado = [](int n, const std::string& abre, const std::string& dentro,
                            const std::string& cierra) {
        return "<Esquema>" + Veces(n, abre) + dentro + Veces(n, cierra) + "</Esquema>";
    };
    const std::string tubo = carpeta / "tubo.xml";
    ASSERT_EQ(mkfifo(tubo.c_str(), 0600), 0);
    const std::pair<std::string, const char*> filas[] = {
        {atributos, "demasiados atributos"},
        {"<!DOCTYPE Esquema SYSTEM '--'>" + atributos, "demasiados atributos"},
        {"<!DOCTYPE Esquema PUBLIC \"[\" '<!--'>" + atributos, "demasiados atributos"},
        {"<!---> <a '--><![CDATA[>']]>" + atributos, "demasiados atributos"},
        {"\xFF\xFE" + Utf16("<a>") + disfraz + Utf16(atributos), "demasiados atributos"},
        {Declarado("UTF-7", "<Esquema><b" + Distintos(" a#+AD0-''") + "/></Esquema>"),
         "la codificación declarada no se admite"},
        {"\x4C\x6F\xA7\x94" + atributos, "no empieza como un documento XML"},
        {"<Esquema>" + Distintos("<n#/>") + "</Esquema>", "demasiados nombres"},
        {anidado(150, "<b xmlns:a='u' xmlns:c='u'>", "", "</b>"), "demasiados espacios de nombres"},
        {"<!DOCTYPE Esquema SYSTEM 'x'><Esquema>" + Distintos("&a#;") + "</Esquema>",
         "en la línea 1, se usa una entidad"},
        {"<!DOCTYPE Esquema SYSTEM 'x'><Esquema a='" + Distintos("&a#;") + "'/>",
         "se usa una entidad sin declarar"},
        {anidado(100, "<Elemento>", "<Nombre>" + std::string(1'000'000, 'x') + "</Nombre>", "</Elemento>"),
         "unos dentro de otros"},
        {anidado(9, "<Elemento><Linea>", Veces(MUCHOS, "<Punto/>"), "</Linea></Elemento>"),
         "unos dentro de otros"},
        {anidado(4, "<Elemento>", "<Nombre><Valor><Tipo>x</Tipo></Valor></Nombre>", "</Elemento>"),
         "unos dentro de otros"},
    };
    LecturaDeEsquema lectura;
    const auto antes = std::chrono::steady_clock::now();
    for (const auto& [contenido, motivo] : filas) {
        EXPECT_FALSE(lectura.Lee(carpeta.Escribe("a.xml", contenido))) << motivo;
        EXPECT_NE(lectura.Motivo().find(motivo), std::string::npos) << motivo << ": " << lectura.Motivo();
    }
    EXPECT_FALSE(lectura.Lee(tubo)) << "who reads a pipe waits";
    // Seconds or minutes, if time grew with the square.
    EXPECT_LT(std::chrono::steady_clock::now() - antes, std::chrono::seconds(2));
}

TEST(LecturaDeEsquema, TakesTheEncodingsThatHoldAscii) {
    const CarpetaTemporal carpeta;
    const std::string xml = "<Esquema><Elemento><Nombre>R\xEDo</Nombre></Elemento></Esquema>";
    const std::string ascii = "<Esquema><Elemento><Nombre>R&#237;o</Nombre></Elemento></Esquema>";
    for (const std::string& contenido :
         {ascii, "\n" + ascii, "\xEF\xBB\xBF" + Declarado("ISO-8859-1", ascii), Declarado("ISO-8859-15", xml),
          Declarado("windows-1252", xml), Declarado("us-ascii", ascii), Declarado("latin1", xml),
          Declarado("ISO_8859-1", xml), "\xEF\xBB\xBF" + Declarado("utf-16", ascii),
          "\xFF\xFE" + Utf16(Declarado("utf-8", xml)), "\xFE\xFF" + Utf16(Declarado("UTF-16BE", xml), false),
          "\xFF\xFE" + Utf16(Declarado("utf-16", xml)), "\xFE\xFF" + Utf16(ascii, false),
          Utf16(Declarado("UTF-16", xml), false)}) {
        std::string nombre;
        LecturaDeEsquema lectura;
        lectura.Lee(carpeta.Escribe("a.xml", contenido), {},
                    [&](std::int32_t, const ElementoLeido& leido) { nombre = leido.De(Hijo::Nombre).texto; });
        EXPECT_EQ(nombre, "Río") << contenido << "\n" << lectura.Motivo();
    }
}

}  // namespace
}  // namespace zel::pruebas
