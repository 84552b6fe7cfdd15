#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <cfloat>
#include <chrono>
#include <cmath>
#include <limits>

#include "file/lectorArchivo.h"
#include "support/CarpetaTemporal.h"
#include "support/DialogosGuion.h"
#include "support/Resultado.h"

namespace zel::pruebas {
namespace {

namespace fs = std::filesystem;
using Esquema = std::shared_ptr<Elementos>;

std::string Bits(double valor) {
    return std::to_string(std::bit_cast<std::uint64_t>(valor)) + " ";
}

// One line per element with all that it holds: numbers by their bits, traces vertex by vertex.
std::vector<std::string> Huellas(const Elementos& elementos) {
    std::vector<std::string> huellas;
    for (const auto& e : elementos) {
        std::string& huella = huellas.emplace_back();
        for (const auto& fila : Elemento::Propiedades()) {
            const Variante valor = LeePropiedad(*e, fila.nombre);
            huella += std::string(fila.nombre) + "=";
            if (fila.nombre.starts_with("Trazado")) {
                const auto trazado = valor.Referencia<Puntos>();
                huella += trazado ? "[" : "none";
                for (std::int32_t i = 1; trazado && i <= trazado->Count(); ++i)
                    huella += Bits(trazado->Item(i)->XPos()) + Bits(trazado->Item(i)->YPos());
            } else {
                huella += fila.nombre == "Nombre" ? "'" + valor.Texto() + "' " : Bits(valor.Numero());
            }
        }
    }
    return huellas;
}

std::shared_ptr<Puntos> Traza(const std::vector<float>& coordenadas) {
    auto traza = std::make_shared<Puntos>();
    for (std::size_t i = 0; i + 1 < coordenadas.size(); i += 2)
        traza->Add(coordenadas[i], coordenadas[i + 1]);
    return traza;
}

class Escritor : public ::testing::Test {
  protected:
    std::shared_ptr<Elemento> Nuevo(std::int32_t tipo, const std::string& nombre, std::int32_t codigo) const {
        return elementos_->Add(TipoElemento(tipo), nombre, codigo, 1, 1.5F, -2.5F, 7, 8,
                               Traza({1, 2, 3.5F, 4}), Traza({5, 6, 7, 8}), "k", 0, 0);
    }
    // The bytes of the file, saved with its settings.
    std::string Guarda(const Esquema& esquema) const {
        lectorArchivo escritor;
        escritor.NombreArchivo(ruta_);
        escritor.Coleccion(esquema);
        EXPECT_TRUE(escritor.GuardaEsquema()) << escritor.PosicionSinGuardar();
        escritor.EscribeConfiguracion(true);
        EXPECT_TRUE(escritor.GuardaDocumento());
        return LeeArchivo(ruta_);
    }
    static Esquema Carga(const std::string& ruta) {
        lectorArchivo lector;
        lector.NombreArchivo(ruta);
        auto esquema = std::make_shared<Elementos>();
        lector.Coleccion(esquema);
        lector.Carga();
        EXPECT_EQ(lector.MotivoSinLeer() + lector.Registro(), "");
        return esquema;
    }
    // That saving, loading and saving again, twice, changes neither an element nor a byte.
    void ComprueboIdaYVuelta(const Esquema& esquema) const {
        const std::string bytes = Guarda(esquema);
        EXPECT_EQ(Guarda(esquema), bytes);
        for (int vez = 0; vez < 2; ++vez) {
            const Esquema leido = Carga(ruta_);
            EXPECT_EQ(Huellas(*leido), Huellas(*esquema));
            EXPECT_EQ(Guarda(leido), bytes);
        }
    }

    const CarpetaTemporal carpeta_;
    const DialogosGuion dialogos_;
    const std::string ruta_ = (carpeta_ / "año.xml").string();
    const Esquema elementos_ = std::make_shared<Elementos>();
};

TEST_F(Escritor, WritesAnEmptySchematicByteByByte) {
    EXPECT_EQ(Guarda(elementos_),
              "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>\n<Esquema><Elementos><Nudo/><Embalse/>"
              "<Aportacion/><Demanda/><Conduccion1/><Conduccion2/><Conduccion3/><Acuifero/><Centralhidro/>"
              "<Retorno/><Union/><Recarga/><Bombeo/><Toma/><Conduccion4/><Conduccion5/><SubCuenca/>"
              "</Elementos><Configuracion><VerLineasSecundarias>True</VerLineasSecundarias></Configuracion>"
              "</Esquema>\n");
    EXPECT_EQ(Carga(ruta_)->Count(), 0);
}

TEST_F(Escritor, WritesTheChildrenInTheirOrder) {
    const auto central = Nuevo(ctCentralHidroelectrica, "Se\u00F1or \u20AC <&", 12);
    central->MostrarEtiqueta(false);
    const std::string bytes = Guarda(elementos_);
    const std::string esperado =
        "<Centralhidro><Elemento><ColorIcono>-1</ColorIcono><ConecSec1>-1</ConecSec1><ConecSec2>-1"
        "</ConecSec2><TextoGiro>0</TextoGiro><NombrePosX>0</NombrePosX><NombrePosY>0</NombrePosY>"
        "<NombreTamanyo>1</NombreTamanyo><gfCodSig>12</gfCodSig><NumUser>1</NumUser><Nombre>Se\xF1or "
        "&#8364; &lt;&amp;</Nombre><Tamanyo>1</Tamanyo><Tipo>80</Tipo><Valor>0</Valor><posX>1.5</posX>"
        "<posY>-2.5</posY><NombreMovido>0</NombreMovido><NomTamRelativo>1</NomTamRelativo><VerNombre>0"
        "</VerNombre><ColorLinea>-1</ColorLinea><NudoDestino>8</NudoDestino><NudoOrigen>7</NudoOrigen>"
        "<Linea><Punto><X>1</X><Y>2</Y></Punto><Punto><X>3.5</X><Y>4</Y></Punto></Linea><Linea><Punto>"
        "<X>5</X><Y>6</Y></Punto><Punto><X>7</X><Y>8</Y></Punto></Linea></Elemento>";
    EXPECT_NE(bytes.find(esperado), std::string::npos) << bytes;
}

TEST_F(Escritor, KeepsEveryPropertyOfEveryKind) {
    const char* const NOMBRES[] = {"  r\u00EDo  ancho ",
                                   "<a>&amp;]]>\"'",
                                   "a\r\nb\rc\nd\te",
                                   "\r\n",
                                   " ",
                                   "",
                                   "\t",
                                   "\u00F1\u20AC\u6C34\U0001F30A",
                                   "\u0085\u2028\uFEFF\u007F\u00A0",
                                   "<![CDATA[x]]>",
                                   "&#65;",
                                   "<!--"};
    const float FLOTANTES[] = {
        FLT_MAX,    -FLT_MAX, FLT_MIN, FLT_TRUE_MIN, -FLT_TRUE_MIN, 1e-5F, std::nextafter(1e-5F, 0.0F),
        9.9999e14F, 1e15F,    0.1F,    16777217.0F,  -1.0F / 3};
    for (int tipo = 0; tipo < NUMERO_DE_TIPOS; ++tipo) {
        for (std::size_t i = 0; i < std::size(NOMBRES); ++i) {
            const auto e = Nuevo(tipo, NOMBRES[i], tipo * 100 + static_cast<std::int32_t>(i));
            const float f = FLOTANTES[i], g = FLOTANTES[(i + 5) % std::size(FLOTANTES)];
            e->XPos(f);
            e->YPos(g);
            e->Valor(g);
            e->EtiquetaGiro(f);
            e->EtiquetaPosX(g);
            e->EtiquetaPosY(f);
            e->EtiquetaTamanyo(i % 2 ? 0.0002F : 4320.0F);
            e->Tamanyo(i % 2 ? 0.7F : 33.0F);
            e->ColorIcono(i % 2 ? std::numeric_limits<std::int32_t>::min() : 0xFFFFFF);
            e->ConecSec1(std::numeric_limits<std::int32_t>::max());
            e->ConecSec2(static_cast<std::int32_t>(i));
            e->KeyPant(i % 2 ? -32768 : 32767);
            e->EtiquetaMovida(i % 2);
            e->EtiquetaTamanyoRelativo(i % 3);
            e->MostrarEtiqueta(i % 4);
            if (tipo < ctConduccion1) continue;
            e->ColorLinea(static_cast<std::int32_t>(i) - 3);
            e->ElemFin(-77);
            e->Trazado(Traza({f, g, g, f, 0, 1}));
            std::vector<float> larga;
            for (int k = 0; k < 70; ++k)
                larga.push_back(k % 2 ? f : static_cast<float>(k) / 7);
            if (tipo == ctCentralHidroelectrica) e->Trazado2(Traza(larga));
        }
    }
    ASSERT_EQ(elementos_->Count(), NUMERO_DE_TIPOS * static_cast<int>(std::size(NOMBRES)));
    // The file groups the kinds: what is loaded stands in the order of the containers.
    Guarda(elementos_);
    const Esquema leido = Carga(ruta_);
    auto antes = Huellas(*elementos_), despues = Huellas(*leido);
    std::sort(antes.begin(), antes.end());
    std::sort(despues.begin(), despues.end());
    EXPECT_EQ(antes, despues);
    ComprueboIdaYVuelta(leido);
    EXPECT_EQ(leido->ItemCodSIG(1203)->Trazado2()->Count(), 35);
}

TEST_F(Escritor, WritesMinusZeroAsZero) {
    Nuevo(ctNudo, "", 1)->XPos(-0.0F);
    Guarda(elementos_);
    EXPECT_EQ(LeeArchivo(ruta_).find("-0<"), std::string::npos);
    ComprueboIdaYVuelta(Carga(ruta_));
}

TEST_F(Escritor, DropsTheControlCharactersThatXmlCannotCarry) {
    Nuevo(ctNudo,
          std::string("a\0\x01\x08"
                      "b\x0B\x0C\x1F\xEF\xBF\xBE\xEF\xBF\xBF",
                      14) +
              "c\xF1",
          1);
    Guarda(elementos_);
    EXPECT_EQ(Carga(ruta_)->Item(1)->Nombre(), "abc\u00F1");
}

TEST_F(Escritor, RoundTripsTheSampleBasin) {
    ComprueboIdaYVuelta(Carga(ZEL_RAIZ "/examples/cuenca.xml"));
}

TEST_F(Escritor, TellsWhichElementCannotBeWritten) {
    const struct {
        std::int32_t tipo;
        bool trazado, trazado2;
    } FILAS[] = {{ctConduccion1, false, true},
                 {ctSubcuenca, false, true},
                 {ctCentralHidroelectrica, true, false},
                 {ctCentralHidroelectrica, false, true},
                 {ctFlecha, true, true},
                 {16, true, true},
                 {-2147483647 - 1, true, true}};
    for (const auto& fila : FILAS) {
        SCOPED_TRACE(&fila - FILAS);
        while (elementos_->Count() > 0)
            elementos_->Remove(1);
        Nuevo(ctAportacion, "antes", 1);
        const auto malo = Nuevo(fila.tipo, "malo", 2);
        if (!fila.trazado) malo->Trazado(nullptr);
        if (!fila.trazado2) malo->Trazado2(nullptr);
        Nuevo(ctNudo, "despues", 3);
        lectorArchivo escritor;
        escritor.NombreArchivo(ruta_);
        escritor.Coleccion(elementos_);
        EXPECT_FALSE(escritor.GuardaEsquema());
        EXPECT_EQ(escritor.PosicionSinGuardar(), 2);
        EXPECT_EQ(Carga(ruta_)->Count(), 0) << "until the end the file holds an empty schematic";
        elementos_->Remove(2);
        EXPECT_TRUE(escritor.GuardaEsquema()) << "a failure does not stay";
        EXPECT_EQ(escritor.PosicionSinGuardar(), 0);
        EXPECT_TRUE(escritor.GuardaDocumento());
        EXPECT_EQ(Carga(ruta_)->Count(), 2);
    }
}

TEST_F(Escritor, RaisesWhenTheFileCannotBeWrittenOrThereIsNoDocument) {
    lectorArchivo escritor;
    escritor.Coleccion(elementos_);
    EXPECT_EQ(Resultado([&] { return escritor.GuardaDocumento(); }), "!91");
    escritor.EscribeConfiguracion(true);
    escritor.EscribeImagenFondo("a.png", 0, 0, 1, 1, false);
    escritor.NombreArchivo((carpeta_ / "falta/a.xml").string());
    EXPECT_EQ(Resultado([&] { return escritor.GuardaEsquema(); }), "!53");
    escritor.NombreArchivo((carpeta_ / "").string());
    EXPECT_NE(Resultado([&] { return escritor.GuardaEsquema(); }).find('!'), std::string::npos);
    escritor.Coleccion(nullptr);
    EXPECT_EQ(Resultado([&] { return escritor.GuardaEsquema(); }), "!91");
}

TEST_F(Escritor, SavesTheSameDocumentAfterAFailure) {
    Nuevo(ctNudo, "N", 1);
    const std::string bytes = Guarda(elementos_);
    lectorArchivo escritor;
    escritor.Coleccion(elementos_);
    escritor.NombreArchivo(ruta_);
    EXPECT_TRUE(escritor.GuardaEsquema());
    escritor.EscribeConfiguracion(true);
    escritor.NombreArchivo((carpeta_ / "falta/a.xml").string());
    EXPECT_EQ(Resultado([&] { return escritor.GuardaDocumento(); }), "!53");
    escritor.NombreArchivo(ruta_);
    EXPECT_EQ(Resultado([&] { return escritor.GuardaDocumento(); }), "true");
    EXPECT_EQ(LeeArchivo(ruta_), bytes);
}

class Secciones : public Escritor {
  protected:
    Secciones() {
        fs::create_directory(carpeta_ / "otra");
        lector_.Coleccion(elementos_);
        lector_.NombreArchivo(ruta_);
    }
    // The section's texts in order, joined; what is missing is "none".
    static std::string Junta(const std::optional<Coleccion<std::string>>& textos) {
        if (!textos) return "none";
        std::string todos;
        for (const auto& texto : *textos)
            todos += texto + "|";
        return todos;
    }
    std::string GuardaImagen(const std::string& imagen, bool oculta) {
        EXPECT_TRUE(lector_.GuardaEsquema());
        lector_.EscribeImagenFondo(imagen, -1.25, 1e300, 0.1, 3, oculta);
        lector_.EscribeConfiguracion(oculta);
        EXPECT_TRUE(lector_.GuardaDocumento());
        return LeeArchivo(ruta_);
    }
    std::size_t Archivos() const {
        return static_cast<std::size_t>(std::distance(fs::directory_iterator(carpeta_ / ""), {}));
    }
    const std::string carpetaTexto_ = (carpeta_ / "").string();
    lectorArchivo lector_;
};

TEST_F(Secciones, KeepThePictureBesideTheDocument) {
    const std::string ajena = carpeta_.Escribe("otra/f\u00F3to.png", "png");
    const std::string numeros = "<X0>-1.25</X0><Y0>1e300</Y0><LX>0.1</LX><LY>3</LY>";
    const std::string bytes = GuardaImagen(ajena, true);
    EXPECT_NE(bytes.find("</Elementos><ImagenFondo><Archivo>f\xF3to.png</Archivo>" + numeros +
                         "<Oculta>True</Oculta></ImagenFondo><Configuracion>"),
              std::string::npos)
        << bytes;
    EXPECT_EQ(LeeArchivo(carpeta_ / "f\u00F3to.png"), "png");
    EXPECT_EQ(LeeArchivo(ajena), "png");
    EXPECT_EQ(Archivos(), 3U) << "the document, its picture and the other folder";
    EXPECT_EQ(Junta(lector_.LeeImagenFondo()), carpetaTexto_ + "f\u00F3to.png|-1.25|1e300|0.1|3|True|");
    EXPECT_EQ(lector_.LeeImagenFondo()->Item("oculta"), "True");
    EXPECT_EQ(Junta(lector_.LeeConfiguracion()), "True|");

    // The picture of the document's own folder, however it is written, is not copied over itself.
    const fs::path propia = carpeta_ / "f\u00F3to.png";
    const auto fecha = fs::file_time_type::clock::now() - std::chrono::hours(5);
    fs::last_write_time(propia, fecha);
    for (const std::string& ruta : {propia.string(), (carpeta_ / "otra/../f\u00F3to.png").string()}) {
        GuardaImagen(ruta, false);
        EXPECT_EQ(fs::last_write_time(propia), fecha) << ruta;
        EXPECT_EQ(Junta(lector_.LeeImagenFondo()), propia.string() + "|-1.25|1e300|0.1|3|False|");
    }
    EXPECT_NE(GuardaImagen("sola.png", false).find("<Archivo>sola.png</Archivo>"), std::string::npos);
    EXPECT_EQ(Archivos(), 3U);
}

TEST_F(Secciones, AreWrittenThoughThePictureCannotBeCopiedOrItsNameIsTaken) {
    GuardaImagen((carpeta_ / "otra/falta.png").string(), true);
    EXPECT_EQ(Junta(lector_.LeeImagenFondo()), "");
    EXPECT_EQ(Junta(lector_.LeeConfiguracion()), "True|");
    EXPECT_EQ(Archivos(), 2U) << "the document and the other folder";
    fs::create_directory(carpeta_ / "ocupado.png");
    GuardaImagen(carpeta_.Escribe("otra/ocupado.png", "png"), true);
    EXPECT_EQ(Junta(lector_.LeeImagenFondo()), carpetaTexto_ + "ocupado-2.png|-1.25|1e300|0.1|3|True|");
}

TEST_F(Secciones, AreReadAsFarAsTheyGo) {
    const struct {
        std::string xml, imagen, configuracion;
    } FILAS[] = {
        {"<Esquema/>", "none", "none"},
        {"<Esquema>", "none", "none"},
        {"<Esquema><ImagenFondo/><Configuracion/></Esquema>", "", ""},
        {"<Esquema><ImagenFondo><X0>1</X0><Archivo>a</Archivo><LX>3</LX></ImagenFondo></Esquema>",
         carpetaTexto_ + "a|1|", "none"},
        {"<Esquema><ImagenFondo><X0>1</X0></ImagenFondo></Esquema>", "", "none"},
        {"<Esquema><Configuracion><VerLineasSecundarias> 1,x </VerLineasSecundarias></Configuracion>"
         "<ImagenFondo><Oculta>o</Oculta><LY>ly</LY><LX>lx</LX><Y0>0,5</Y0><X0> </X0><Archivo/>"
         "</ImagenFondo></Esquema>",
         carpetaTexto_ + "| |0,5|lx|ly|o|", " 1,x |"},
    };
    for (const auto& fila : FILAS) {
        carpeta_.Escribe("a\u00F1o.xml", fila.xml);
        EXPECT_EQ(Junta(lector_.LeeImagenFondo()), fila.imagen) << fila.xml;
        EXPECT_EQ(Junta(lector_.LeeConfiguracion()), fila.configuracion) << fila.xml;
    }
    fs::remove(ruta_);
    EXPECT_EQ(Junta(lector_.LeeImagenFondo()) + Junta(lector_.LeeConfiguracion()), "nonenone");
}

}  // namespace
}  // namespace zel::pruebas
