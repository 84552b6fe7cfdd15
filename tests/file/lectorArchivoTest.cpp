#include "file/lectorArchivo.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <map>
#include <set>

#include "platform/Archivos.h"
#include "support/CarpetaTemporal.h"
#include "support/DialogosGuion.h"

namespace zel::pruebas {
namespace {

std::string Envuelve(const std::string& nombre, const std::string& texto) {
    return "<" + nombre + ">" + texto + "</" + nombre + ">";
}

// One Elemento of a file, complete; a test changes, repeats or leaves out what it is about.
class Xml {
  public:
    Xml(int codigo, int tipo, float x = 0, float y = 0) {
        for (const char* nombre : {"ColorIcono", "ConecSec1", "ConecSec2"})
            Pon(nombre, "-1");
        for (const char* nombre : {"TextoGiro", "NombreMovido", "NombrePosX", "NombrePosY", "NomTamRelativo",
                                   "VerNombre", "Valor", "NumUser"})
            Pon(nombre, "0");
        Pon("NombreTamanyo", "1").Pon("Tamanyo", "1").Pon("Nombre", "N");
        Pon("gfCodSig", std::to_string(codigo)).Pon("Tipo", std::to_string(tipo));
        Pon("posX", std::to_string(x)).Pon("posY", std::to_string(y));
    }
    Xml& Pon(const std::string& nombre, const std::string& texto) {
        hijos_[nombre] = Envuelve(nombre, texto);
        return *this;
    }
    Xml& Quita(const std::string& nombre) {
        hijos_.erase(nombre);
        return *this;
    }
    Xml& Con(const std::string& xml) {
        hijos_["~"] += xml;
        return *this;
    }
    Xml& Une(int ini, int fin) {
        return Pon("ColorLinea", "-1")
            .Pon("NudoOrigen", std::to_string(ini))
            .Pon("NudoDestino", std::to_string(fin));
    }
    operator std::string() const {
        std::string todo;
        for (const auto& [nombre, xml] : hijos_)
            todo += xml;
        return Envuelve("Elemento", todo);
    }

  private:
    std::map<std::string, std::string> hijos_;
};

std::string PuntoXml(const std::string& x, const std::string& y) {
    return "<Punto><X>" + x + "</X><Y>" + y + "</Y></Punto>";
}
const std::string LINEA =
    "<Linea>" + PuntoXml("1", "2") + PuntoXml("3,5", "4.5") + PuntoXml("5", "6") + "</Linea>";

using Camino = std::vector<std::pair<float, float>>;
Camino De(const std::shared_ptr<Puntos>& trazado) {
    Camino camino;
    if (trazado) {
        for (const auto& p : *trazado)
            camino.emplace_back(p->XPos(), p->YPos());
    }
    return camino;
}
const Camino LEIDO = {{1.0F, 2.0F}, {3.5F, 4.5F}, {5.0F, 6.0F}};

class Lector : public ::testing::Test {
  protected:
    Lector() { lector_.Coleccion(elementos_); }

    static std::string Documento(const std::vector<std::string>& elementos) {
        std::string todos;
        for (const auto& xml : elementos)
            todos += xml;
        return "<?xml version='1.0' encoding='UTF-8'?>" + Envuelve("Esquema", Envuelve("Elementos", todos));
    }
    void CargaArchivo(const std::string& contenido) {
        lector_.NombreArchivo(carpeta_.Escribe("año.xml", contenido));
        lector_.Carga();
    }
    void Carga(const std::vector<std::string>& elementos) { CargaArchivo(Documento(elementos)); }
    // The description of the error with which such a load fails.
    std::string ErrorDeCarga(const std::vector<std::string>& elementos) {
        try {
            Carga(elementos);
        } catch (const Error& error) {
            EXPECT_EQ(error.Number(), -2147211505);
            EXPECT_EQ(error.Source(), "Lector:Carga ");
            return error.Description();
        }
        return "no error";
    }
    std::string Cabecera() const {
        return "ZELVisorEsquemas: errores en la carga del fichero: " + lector_.NombreArchivo() + "\r\n";
    }
    std::string Log() const { return LeeArchivo(carpeta_ / "ErroresCarga.log"); }
    // The bytes of a log with that text.
    static std::string BytesDeLog(const std::string& texto) { return Latin1("\"" + texto + "\"\r\n"); }

    const CarpetaTemporal carpeta_;
    const DialogosGuion dialogos_;
    lectorArchivo lector_;
    const std::shared_ptr<Elementos> elementos_ = std::make_shared<Elementos>();
};

TEST_F(Lector, ReadsEveryPropertyInAnyOrderAndDepth) {
    const std::pair<const char*, const char*> TEXTOS[] = {
        {"ColorIcono", "255"},   {"ConecSec1", " 21 "}, {"ConecSec2", "22"}, {"TextoGiro", "90"},
        {"NombreMovido", "1"},   {"NombrePosX", "-1"},  {"NombrePosY", "2"}, {"NombreTamanyo", "5000"},
        {"NomTamRelativo", "0"}, {"NumUser", "7.5"},    {"VerNombre", "0"},  {"Nombre", " R&lt;í&amp;o\n"},
        {"Tamanyo", "50"},       {"Valor", "1e2"},      {"posX", " 3.25 m"}, {"ColorLinea", "65536"},
    };
    auto xml = Xml(12, 50).Une(31, 32).Quita("posY").Con("<a><b><posY>-12,5</posY></b></a>" + LINEA);
    for (const auto& [nombre, texto] : TEXTOS)
        xml.Pon(nombre, texto);
    Carga({"<a>" + std::string(xml) + "</a>"});
    std::string valores;
    for (const auto& fila : Elemento::Propiedades()) {
        const bool esTrazado = fila.nombre.starts_with("Trazado");
        valores += esTrazado ? "" : LeeFila(fila, *elementos_->ItemCodSIG(12)).Texto() + " ";
    }
    EXPECT_EQ(valores, "255 65536 21 22 32 31 90 True -1 2 1 False 12 8 False  R<í&o\n 33 4 100 3.25 -12.5 ");
    EXPECT_EQ(De(elementos_->Item(1)->Trazado()), LEIDO);
    EXPECT_EQ(lector_.Registro(), "");
    EXPECT_FALSE(std::filesystem::exists(carpeta_ / "ErroresCarga.log"));
}

TEST_F(Lector, KnowsEveryKindByItsCode) {
    const int CODIGOS[] = {10, 12, 30, 110, 50, 51, 52, 53, 54, 70, 60, 40, 80, 20, 90, 25};
    const std::string otra = "<Linea>" + PuntoXml("7", "8") + PuntoXml("9", "0") + "</Linea>";
    std::vector<std::string> xml = {Xml(99, 99).Une(5, 6).Con(LINEA), Xml(0, 20).Une(5, 6).Con(LINEA)};
    for (int i = 0; i < 16; ++i)
        xml.push_back(Xml(i + 1, CODIGOS[i]).Une(5, 6).Con(LINEA + (i == 12 ? otra : "")));
    Carga(xml);
    EXPECT_EQ(elementos_->Item(1)->Tipo(), ctFlecha);
    EXPECT_EQ(elementos_->Item(1)->Trazado(), nullptr);
    EXPECT_EQ(elementos_->ItemCodSIG(0)->ElemIni(), 5);
    for (int i = 0; i < 16; ++i) {
        const auto e = elementos_->ItemCodSIG(i + 1);
        EXPECT_EQ(e->Tipo(), i);
        EXPECT_EQ(e->ElemIni(), i < 4 ? 0 : i < 13 ? 5 : i + 1);
        EXPECT_EQ(e->ElemFin(), i < 4 ? 0 : 6);
        EXPECT_EQ(De(e->Trazado()), i < 4 ? Camino() : LEIDO);
        EXPECT_EQ(De(e->Trazado2()), i == 12 ? (Camino{{7.0F, 8.0F}, {9.0F, 0.0F}}) : Camino());
    }
    EXPECT_EQ(lector_.Registro(), "");
}

TEST_F(Lector, LogsWhatIsMissingAndKeepsTheInitialValues) {
    Carga({Xml(1, 10), "<Elemento/>", Xml(2, 10).Quita("Nombre")});
    std::string log = Cabecera();
    for (const char* nombre : {"ColorIcono", "ConecSec1", "ConecSec2", "TextoGiro", "NombreMovido",
                               "NombrePosX", "NombrePosY", "NombreTamanyo", "NomTamRelativo", "gfCodSig",
                               "NumUser", "VerNombre", "Nombre", "Tamanyo", "Tipo", "Valor", "posX", "posY"})
        log += std::string("\r\nEl elemento en la posición 2 no almacenó la propiedad ") + nombre;
    log += "\r\nEl elemento en la posición 3 no almacenó la propiedad Nombre";
    EXPECT_EQ(lector_.Registro(), log);
    EXPECT_EQ(Log(), BytesDeLog(log));
    EXPECT_EQ(elementos_->ItemCodSIG(0)->Tipo(), ctFlecha);
    EXPECT_EQ(elementos_->ItemCodSIG(0)->ConecSec1(), -1);
    EXPECT_EQ(elementos_->ItemCodSIG(2)->Nombre(), "");
}

TEST_F(Lector, LogsWhatIsRepeatedAndReadsTheFirst) {
    const auto repetido = Xml(1, 10).Pon("Tamanyo", "2<!---->").Con("<Tamanyo>3</Tamanyo><posX>9</posX>");
    const std::string avisos =
        "\r\nAviso: El elemento en la posición 1 presenta 2 propiedades Tamanyo. Se cargaron los primeros 1 "
        "datos en el esquema.\r\nAviso: El elemento en la posición 1 presenta 2 propiedades posX. "
        "Se cargaron los primeros 1 datos en el esquema.";
    Carga({repetido});
    EXPECT_EQ(Log(), BytesDeLog(avisos));
    EXPECT_EQ(elementos_->Item(1)->Tamanyo(), 2);
    elementos_->Remove(1);
    Carga({repetido, Xml(2, 10).Quita("Valor")});
    EXPECT_EQ(Log(), BytesDeLog(Cabecera() +
                                "\r\nEl elemento en la posición 2 no almacenó la propiedad Valor" + avisos));
}

TEST_F(Lector, RebuildsTheTracesThatItCannotRead) {
    const std::string en1 = "\r\nEl elemento en la posición 1 ";
    const std::string sin = en1 + "no almacenó la propiedad ";
    const std::string nada = sin + "Linea\r\nEl elemento 1 no almacenó la propiedad de Trazado.";
    const std::string nadaCentral = sin +
                                    "Linea\r\nEl elemento 1 (central hidroeléctrica) no almacenó las "
                                    "propiedades de Trazado ni Trazado2.";
    const std::string noSePudo = "\r\nNo se pudo cargar el trazado";
    const std::string vacia = " del elemento 1. La línea no contiene puntos.";
    const std::string corta = en1 + "sólo almacenó 1 etiquetas de la propiedad Punto." + noSePudo + vacia;
    const std::string rota =
        noSePudo + " del elemento 1. Algún punto del trazado no se guardó correctamente.";
    const std::string aviso = "\r\nAviso: El elemento en la posición 1 presenta ";
    const std::string sobra = aviso + "2 propiedades Linea. Se cargaron los primeros 1 datos en el esquema.";
    const std::string sobran = aviso + "3 propiedades Linea. Se cargaron los primeros 2 datos en el esquema.";
    const std::string unPunto = "<Linea>" + PuntoXml("1", "2") + "</Linea>";
    const std::string sinX = "<Linea>" + PuntoXml("1", "2") + "<Punto><Y>2</Y></Punto></Linea>";
    const std::string sinY = "<Linea><Punto><X>1</X></Punto>" + PuntoXml("1", "2") + "</Linea>";
    const Camino recto = {{4.0F, 0.0F}, {96.0F, 0.0F}};
    const Camino hastaEl = {{4.0F, 0.0F}, {46.0F, 0.0F}};
    const Camino desdeEl = {{54.0F, 0.0F}, {96.0F, 0.0F}};
    const struct {
        int tipo, ini, fin;
        std::string lineas;
        Camino trazado, trazado2;
        std::string log;
    } FILAS[] = {
        {50, 2, 3, "", recto, {}, nada},
        {50, 2, 3, "<Linea/>", recto, {}, sin + "Punto" + noSePudo + vacia},
        {50, 2, 3, unPunto, recto, {}, corta},
        {40, 2, 3, sinX, recto, {}, sin + "X" + rota},
        {50, 2, 3, sinY, recto, {}, sin + "Y" + rota},
        {70, 2, 3, LINEA + unPunto, LEIDO, {}, sobra},
        {50, 2, 9, "", {}, {}, nada},
        {50, 0, 3, "", {}, {}, nada},
        {20, 2, 3, "", desdeEl, {}, nada},
        {90, 2, 9, "", {}, {}, nada},
        {80, 2, 3, "", hastaEl, desdeEl, nadaCentral},
        {80, 9, 3, "", {}, desdeEl, nadaCentral},
        {80, 2, 0, "", hastaEl, {}, nadaCentral},
        {80, 2, 3, LINEA + "<Linea/>", LEIDO, desdeEl, sin + "Punto" + noSePudo + " 2" + vacia},
        {80, 2, 3, "<Linea/>" + LINEA, hastaEl, LEIDO, sin + "Punto" + noSePudo + " 1" + vacia},
        {80, 2, 3, LINEA + LINEA + sinX, LEIDO, LEIDO, sobran},
    };
    for (const auto& fila : FILAS) {
        SCOPED_TRACE(&fila - FILAS);
        while (elementos_->Count() > 0)
            elementos_->Remove(1);
        Carga({Xml(1, fila.tipo, 50).Une(fila.ini, fila.fin).Con(fila.lineas), Xml(2, 10),
               Xml(3, 12, 100).Pon("Tamanyo", "2"), Xml(0, 10, 7, 7)});
        EXPECT_EQ(De(elementos_->Item(1)->Trazado()), fila.trazado);
        EXPECT_EQ(De(elementos_->Item(1)->Trazado2()), fila.trazado2);
        EXPECT_EQ(lector_.Registro(), (fila.log.starts_with(aviso) ? "" : Cabecera()) + fila.log);
    }
}

TEST_F(Lector, RebuildsTheTraceOfTheElementThatLacksItAndNotItsTwins) {
    lector_.AdmiteCodigosRepetidos(true);
    Carga({Xml(7, 50).Une(2, 3).Con(LINEA), Xml(7, 50).Une(2, 3), Xml(2, 10), Xml(3, 10, 100)});
    EXPECT_EQ(De(elementos_->Item(1)->Trazado()), LEIDO);
    EXPECT_EQ(De(elementos_->Item(2)->Trazado()), (Camino{{4.0F, 0.0F}, {96.0F, 0.0F}}));
}

TEST_F(Lector, StopsAtAValueThatIsOutOfRangeAndKeepsWhatItHasRead) {
    carpeta_.Escribe("ErroresCarga.log", "viejo");
    const struct {
        const char *nombre, *texto, *descripcion;
    } FILAS[] = {
        {"gfCodSig", "1", "Error método AddObjetoElemento (Elementos). Error del sistema número: 457"},
        {"NombreMovido", "2", "Error en funcion I2B (lectorArchivo), argumento recibido: 2"},
        {"VerNombre", "-1", "Error en funcion I2B (lectorArchivo), argumento recibido: -1"},
        {"NomTamRelativo", "40000", "número: 6,"},
        {"NumUser", "32768", "número: 6,"},
        {"Tipo", "-1e9", "número: 6,"},
        {"posX", "1e39", "número: 6,"},
        {"ColorIcono", "4294967295", "número: 6,"},
        {"gfCodSig", "doce", "número: 13,"},
        {"ConecSec1", "", "número: 13,"},
    };
    for (const auto& fila : FILAS) {
        while (elementos_->Count() > 0)
            elementos_->Remove(1);
        const std::string error =
            ErrorDeCarga({Xml(1, 10).Quita("Valor"), Xml(2, 10).Pon(fila.nombre, fila.texto), Xml(3, 10)});
        EXPECT_NE(error.find(fila.descripcion), std::string::npos) << error;
        EXPECT_EQ(elementos_->Count(), 1);
    }
    EXPECT_NE(ErrorDeCarga({"<Elemento/>", "<Elemento/>"}).find("457"), std::string::npos);
    ErrorDeCarga({Xml(9, 10).Pon("Nombre", std::string(9999, 'x')), Xml(9, 10).Pon("Nombre", "a\nb")});
    EXPECT_EQ(lector_.MotivoSinCargar(),
              "\"" + std::string(60, 'x') + "...\" y \"a b\" tienen el mismo código, 9");
    EXPECT_EQ(Log(), "viejo");
}

TEST_F(Lector, LoadsAgainAfterAnErrorAndAddsToWhatTheCollectionHolds) {
    std::vector<std::int32_t> antes;
    lector_.AlCederTurno([&] { antes.push_back(elementos_->Count()); });
    ErrorDeCarga({Xml(1, 10).Quita("Valor"), Xml(1, 10)});
    Carga({Xml(2, 10), Xml(3, 10).Quita("Nombre")});
    Carga({});
    EXPECT_EQ(lector_.Registro(), "");
    Carga({Xml(4, 10)});
    EXPECT_NE(Log().find("Nombre\"\r\n"), std::string::npos) << "nothing to report leaves the log alone";
    EXPECT_EQ(antes, (std::vector<std::int32_t>{0, 0, 1, 1, 3}));
    lector_.AlCederTurno([] { throw Fallo(5, "cerrado"); });
    EXPECT_NE(ErrorDeCarga({Xml(5, 10)}).find("número: 5, cerrado"), std::string::npos);
}

TEST_F(Lector, RaisesWhenTheLogCannotBeWrittenOrThereIsNoCollection) {
    std::filesystem::create_directory(carpeta_ / "ErroresCarga.log");
    EXPECT_NE(ErrorDeCarga({Xml(1, 10).Quita("Valor")}).find("número: 75,"), std::string::npos);
    EXPECT_EQ(elementos_->Count(), 1);
    EXPECT_EQ(lector_.FalloDelRegistro(), "No se puede acceder al archivo o a la carpeta");
    lector_.Coleccion(nullptr);
    EXPECT_NE(ErrorDeCarga({Xml(2, 10)}).find("número: 91,"), std::string::npos);
}

TEST_F(Lector, AddsNothingFromAFileThatIsBrokenOrHostile) {
    const std::string bueno = Documento({Xml(1, 10)});
    const std::string sinDeclaracion = bueno.substr(bueno.find("<Esquema>"));
    const auto conTipo = [&](const std::string& tipo, const std::string& nombre) {
        return "<!DOCTYPE Esquema " + tipo + ">" +
               Documento({Xml(1, 10), Xml(2, 10).Pon("Nombre", nombre)}).substr(38);
    };
    std::string bomba = "[<!ENTITY a0 'ja'>";
    for (int i = 1; i < 40; ++i)
        bomba += "<!ENTITY a" + std::to_string(i) + " '&a" + std::to_string(i - 1) + ";&a" +
                 std::to_string(i - 1) + ";'>";
    std::string hondo;
    for (int i = 0; i < 10000; ++i)
        hondo = "<a>" + hondo + "</a>";
    const std::string FILAS[] = {
        "",
        " \n",
        "hola",
        bueno.substr(0, bueno.size() - 1),
        bueno.substr(0, bueno.size() / 2),
        bueno + sinDeclaracion,
        bueno + "hola",
        Documento({Xml(1, 10), "<a><b></a></b>"}),
        Documento({Xml(1, 10), "<a b='1' b='2'/>"}),
        Documento({Xml(1, 10), "&nada;"}),
        Documento({Xml(1, 10), "&#0;"}),
        Documento({Xml(1, 10), std::string("a\0b", 3)}),
        Documento({Xml(1, 10), Xml(2, 10).Pon("Nombre", "Se\xF1or")}),
        sinDeclaracion + "<!-- Se\xF1or -->",
        "<?xml version='1.0' encoding='windows-1252'?>" + sinDeclaracion + "\n\x81",
        "<?xml version='1.0' encoding='klingon'?>" + sinDeclaracion,
        "<?xml version='1.0' encoding='UTF-16'?>" + sinDeclaracion,
        conTipo("[]", ""),
        conTipo("[<!ENTITY a 'b'>]", "&a;"),
        conTipo("SYSTEM 'a.dtd' [<!ENTITY a SYSTEM 'secreto.txt'>]", "&a;"),
        conTipo(bomba + "]", "&a39;"),
        Documento({Xml(1, 10), hondo}),
        Documento({Xml(1, 10), Xml(2, 10).Pon("Nombre", std::string(12000000, 'x'))}),
    };
    carpeta_.Escribe("ErroresCarga.log", "viejo");
    for (const auto& contenido : FILAS) {
        CargaArchivo(contenido);
        EXPECT_EQ(elementos_->Count(), 0) << &contenido - FILAS;
        EXPECT_NE(lector_.MotivoSinLeer(), "") << &contenido - FILAS;
        EXPECT_EQ(lector_.MotivoSinLeer().find('\n'), std::string::npos) << lector_.MotivoSinLeer();
    }
    EXPECT_EQ(Log(), "viejo");
    CargaArchivo("<Esquema/>");
    EXPECT_EQ(lector_.MotivoSinLeer(), "");
    CargaArchivo(conTipo("", "x"));
    EXPECT_EQ(elementos_->Count(), 2) << "a plain document type does no harm";
}

TEST_F(Lector, AddsNothingFromAFileThatItCannotOpen) {
    const std::string cerrado = carpeta_.Escribe("cerrado.xml", Documento({Xml(1, 10)}));
    chmod(cerrado.c_str(), 0);
    for (const std::string& ruta :
         {(carpeta_ / "falta.xml").string(), (carpeta_ / "").string(), std::string(), cerrado}) {
        if (ruta == cerrado && geteuid() == 0) continue;
        lector_.NombreArchivo(ruta);
        lector_.Carga();
        EXPECT_EQ(elementos_->Count(), 0);
        EXPECT_NE(lector_.MotivoSinLeer(), "");
    }
}

TEST_F(Lector, HasNoBoundThatASavedSchematicCouldReach) {
    // Nine million XML elements in one document.
    std::string puntos;
    for (int i = 0; i < 300; ++i)
        puntos += PuntoXml("1", "2");
    std::vector<std::string> xml;
    for (int i = 1; i <= 9900; ++i)
        xml.push_back("<Elemento><Tipo>40</Tipo><gfCodSig>" + std::to_string(i) + "</gfCodSig><Linea>" +
                      puntos + "</Linea></Elemento>");
    CargaArchivo(Documento(xml));
    EXPECT_EQ(lector_.MotivoSinLeer(), "");
    EXPECT_EQ(elementos_->Count(), 9900);
}

TEST_F(Lector, FetchesNothingFromOutsideTheFile) {
    const std::string dtd = carpeta_.Escribe("a.dtd", "<!ENTITY secreto 'filtrado'>");
    carpeta_.Escribe("b.xml", Xml(2, 10));
    const std::string tipo = "<!DOCTYPE Esquema SYSTEM 'file://" + dtd + "'>";
    const std::string inclusion = "<i:include xmlns:i='http://www.w3.org/2001/XInclude' href='b.xml'/>";
    CargaArchivo(tipo + Documento({Xml(1, 10), inclusion}).substr(38));
    EXPECT_EQ(elementos_->Count(), 1);
    // An entity of that outside file is no part of a name: such a document is not read at all.
    CargaArchivo(tipo + Documento({Xml(3, 10).Pon("Nombre", "[&secreto;]")}).substr(38));
    EXPECT_EQ(elementos_->Count(), 1);
    EXPECT_NE(lector_.MotivoSinLeer().find("entidad sin declarar"), std::string::npos)
        << lector_.MotivoSinLeer();
}

TEST_F(Lector, StopsBehindThe32767thElement) {
    std::vector<std::string> xml;
    for (int i = 1; i <= 40000; ++i)
        xml.push_back(Xml(i, 10));
    const std::string error = ErrorDeCarga(xml);
    EXPECT_NE(error.find("número: 6,"), std::string::npos) << error;
    EXPECT_EQ(elementos_->Count(), 32767);
    EXPECT_EQ(elementos_->Item(32767), elementos_->ItemCodSIG(32767));
}

TEST_F(Lector, ReadsTheSampleBasinWithItsSixteenKinds) {
    lector_.NombreArchivo(ZEL_RAIZ "/examples/cuenca.xml");
    lector_.Carga();
    EXPECT_EQ(lector_.Registro() + lector_.MotivoSinLeer(), "");
    std::set<std::int32_t> tipos;
    for (const auto& e : *elementos_) {
        tipos.insert(e->Tipo());
        EXPECT_TRUE(!EsLineal(e->Tipo()) || De(e->Trazado()).size() >= 2) << e->Nombre();
    }
    EXPECT_EQ(tipos.size(), 16U);
    EXPECT_EQ(*tipos.begin(), ctNudo);
    EXPECT_EQ(*tipos.rbegin(), ctSubcuenca);
}

}  // namespace
}  // namespace zel::pruebas
