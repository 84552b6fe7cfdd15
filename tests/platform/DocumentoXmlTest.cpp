#include "platform/DocumentoXml.h"

#include <gtest/gtest.h>

#include "support/CarpetaTemporal.h"

namespace zel::pruebas {
namespace {

TEST(DocumentoXml, GivesAllTheTextUnderAnElement) {
    const CarpetaTemporal carpeta;
    const std::pair<const char*, const char*> FILAS[] = {
        {"<n/>", ""},
        {"<n>  \r\n\t</n>", "  \n\t"},
        {"<n>a<!-- b -->c<?d e?>f</n>", "acf"},
        {"<n>a<b>b<c>c</c></b><d/>d</n>", "abcd"},
        {"<n><![CDATA[a < b]]> &amp; &lt;c&gt; &#8364;</n>", "a < b & <c> €"},
        {"\xEF\xBB\xBF<n>Júcar</n>", "Júcar"},
        {"<?xml version='1.0' encoding='UTF-8'?><n>Señorío 水</n>", "Señorío 水"},
        {"<?xml version='1.0' encoding='windows-1252'?><n>Se\xF1or \x80</n>", "Señor €"},
        {"<?xml version='1.0' encoding='ISO-8859-15'?><n>Se\xF1or \xA4</n>", "Señor €"},
    };
    for (const auto& [contenido, texto] : FILAS) {
        DocumentoXml documento;
        std::string memoria;
        ASSERT_TRUE(documento.Carga(carpeta.Escribe("a.xml", contenido))) << documento.Motivo();
        EXPECT_EQ(TextoDe(documento.Raiz(), memoria), texto);
    }
}

TEST(DocumentoXml, ForgetsWhatItHeldWhenTheNextFileDoesNotLoad) {
    const CarpetaTemporal carpeta;
    DocumentoXml documento;
    ASSERT_TRUE(documento.Carga(carpeta.Escribe("a.xml", "<a/>")));
    EXPECT_FALSE(documento.Carga(carpeta.Escribe("b.xml", "<a><b></a>")));
    EXPECT_EQ(documento.Raiz(), nullptr);
    EXPECT_NE(documento.Motivo().find("línea 1"), std::string::npos) << documento.Motivo();
}

}  // namespace
}  // namespace zel::pruebas
