#include "model/Elementos.h"

#include <gtest/gtest.h>

#include <cmath>
#include <map>

#include "support/DialogosGuion.h"

namespace zel::pruebas {
namespace {

const std::shared_ptr<Puntos> TRAZADO = std::make_shared<Puntos>();
const std::shared_ptr<Puntos> TRAZADO2 = std::make_shared<Puntos>();

// A row of a host's own table.
class FilaDeAnfitrion : public FuentePropiedades {
  public:
    Variante Lee(std::string_view nombre) const override {
        if (!valores.contains(std::string(nombre))) throw Fallo(438);
        return valores.at(std::string(nombre));
    }
    std::map<std::string, Variante> valores = {
        {"ColorIcono", "1"},     {"ColorLinea", "2.5"},   {"ConecSec1", 3.5},
        {"ConecSec2", "4"},      {"ElemFin", "5"},        {"ElemIni", " 6 "},
        {"EtiquetaGiro", "7.5"}, {"EtiquetaMovida", "1"}, {"EtiquetaPosX", -8},
        {"EtiquetaPosY", "9"},   {"EtiquetaTamanyo", 10}, {"EtiquetaTamanyoRelativo", "Falso"},
        {"gfCodSIG", "-11"},     {"KeyPant", 12.5},       {"MostrarEtiqueta", 0},
        {"Nombre", 13},          {"Tamanyo", "1400"},     {"Tipo", "99"},
        {"Trazado", TRAZADO},    {"Trazado2", TRAZADO2},  {"Valor", "15"},
        {"XPos", "16"},          {"YPos", "17"},
    };
};

// The values of an element in the order in which they are copied.
std::vector<std::string> Retrato(const Elemento& e) {
    std::vector<std::string> retrato;
    for (const auto& fila : Elemento::Propiedades()) {
        const Variante valor = LeeFila(fila, e);
        const bool esTrazado = fila.nombre.starts_with("Trazado");
        const auto trazado = esTrazado ? valor.Referencia<Puntos>() : nullptr;
        retrato.push_back(!esTrazado ? valor.Texto() : !trazado ? "-" : trazado == TRAZADO ? "1" : "2");
    }
    return retrato;
}

const std::vector<std::string> INICIAL = {"-1", "-1", "-1", "-1",   "0", "0", "0",    "False",
                                          "0",  "0",  "1",  "True", "0", "0", "True", "",
                                          "1",  "-1", "-",  "-",    "0", "0", "0"};
const std::vector<std::string> DE_LA_FILA = {"1",  "2",  "4",  "4",     "5",   "6",  "7.5",   "True",
                                             "-8", "9",  "10", "False", "-11", "12", "False", "13",
                                             "33", "99", "1",  "2",     "15",  "16", "17"};

TEST(Elemento, CopiesEveryPropertyByNameAndConverted) {
    const DialogosGuion dialogos;
    Elemento deFila;
    EXPECT_EQ(Retrato(deFila), INICIAL);
    deFila.CopiaPropiedades(FilaDeAnfitrion());
    EXPECT_EQ(Retrato(deFila), DE_LA_FILA);
    Elemento deElemento;
    deElemento.CopiaPropiedades(deFila);
    EXPECT_EQ(Retrato(deElemento), DE_LA_FILA);
}

TEST(Elemento, ShowsOneBoxAndIsStoredWithWhatCameBeforeAMissingProperty) {
    for (std::size_t i = 0; i < INICIAL.size(); ++i) {
        DialogosGuion dialogos;
        dialogos.Espera("El objeto no tiene esa propiedad");
        FilaDeAnfitrion fila;
        fila.valores.erase(std::string(Elemento::Propiedades()[i].nombre));
        Elementos elementos;
        elementos.AddObjetoElemento(fila);
        std::vector<std::string> aMedias = INICIAL;
        std::copy_n(DE_LA_FILA.begin(), i, aMedias.begin());
        EXPECT_EQ(Retrato(*elementos.Item(1)), aMedias);
    }
}

TEST(Elemento, TellsInTheBoxWhatCannotBeConverted) {
    const std::tuple<const char*, Variante, std::string> FILAS[] = {
        {"KeyPant", "70000", "Elemento:KeyPant Property Let. Error del sistema número: 6, "},
        {"YPos", "12,5", "Elemento:yPos Property Let. Error del sistema número: 13, "},
        {"ConecSec2", 3e9, "ErrLetConecSec2 (Elemento). Error del sistema número: 6, "},
        {"Trazado", std::make_shared<Objeto>(),
         "Elemento:Trazado Property Set. Error del sistema número: 13, "},
    };
    for (const auto& [nombre, valor, caja] : FILAS) {
        DialogosGuion dialogos;
        dialogos.Espera(caja);
        FilaDeAnfitrion fila;
        fila.valores.insert_or_assign(nombre, valor);
        Elemento().CopiaPropiedades(fila);
    }
}

TEST(Elemento, ClampsItsSizeAndIgnoresALabelSizeOutOfRange) {
    Elemento e;
    for (const auto& [escrito, leido] :
         {std::pair{0.2F, 0.5F}, {0.5F, 0.5F}, {33, 33}, {40, 33}, {-1, 0.5F}, {2, 2}}) {
        e.Tamanyo(escrito);
        EXPECT_EQ(e.Tamanyo(), leido);
    }
    for (const float valor : {0.0002F, 4320.0F, 2.0F}) {
        e.EtiquetaTamanyo(valor);
        EXPECT_EQ(e.EtiquetaTamanyo(), valor);
    }
    for (const float valor : {std::nextafter(0.0002F, 0.0F), std::nextafter(4320.0F, 5000.0F), -1.0F, NAN}) {
        e.EtiquetaTamanyo(valor);
        EXPECT_EQ(e.EtiquetaTamanyo(), 2);
    }
}

}  // namespace
}  // namespace zel::pruebas
