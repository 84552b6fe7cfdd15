#include <chrono>
#include <sstream>

#include "platform/Texto.h"
#include "support/CarpetaTemporal.h"
#include "support/DialogosGuion.h"
#include "support/Relato.h"

namespace zel::pruebas {
namespace {

using Lineas = std::vector<std::string>;

// One element of every kind, of code kind + 1 and at x = 100 kind, with traces drawn by hand.
void Cuenca(Elementos& elementos) {
    const int INICIOS[] = {0, 0, 0, 0, 1, 2, 1, 2, 1, 2, 4, 1, 1, 14, 15, 16};
    const int FINALES[] = {0, 0, 0, 0, 2, 1, 1, 2, 2, 4, 1, 3, 2, 1, 2, 14};
    std::vector<Elemento> todos;
    for (int tipo = 0; tipo < 16; ++tipo) {
        todos.push_back(Simbolo(TipoElemento(tipo), {100.0F * static_cast<float>(tipo), 0}, 9));
        if (tipo >= 4) todos.back().Trazado(Traza({{1, 2}, {3, 4}, {5, 6}}));
        if (tipo == 12) todos.back().Trazado2(Traza({{7, 8}, {9, 10}}));
        todos.back().ElemIni(INICIOS[tipo]);
        todos.back().ElemFin(FINALES[tipo]);
    }
    Numera(elementos, todos);
}

// The straight trace between two codes of the basin.
std::shared_ptr<Puntos> Recta(int desde, int hasta) {
    const float signo = desde < hasta ? 1.0F : desde > hasta ? -1.0F : 0.0F;
    const auto x = [](int codigo) { return 100.0F * static_cast<float>(codigo - 1); };
    return Traza({{x(desde) + 4 * signo, 0}, {x(hasta) - 4 * signo, 0}});
}

// Triples of a position, a property and its value: of a trace, its number of points, -1 for none. "Recta"
// makes the traces of all linear elements up to that position straight.
void Cambia(Elementos& elementos, const std::string& cambios) {
    std::istringstream entrada(cambios);
    int posicion = 0, valor = 0;
    for (std::string nombre; entrada >> posicion >> nombre >> valor;) {
        if (nombre.starts_with("Trazado")) {
            const auto traza = Traza(Vertices(static_cast<std::size_t>(std::max(valor, 0))));
            EscribePropiedad(*elementos.Item(posicion), nombre, valor < 0 ? nullptr : traza);
        } else if (nombre != "Recta") {
            EscribePropiedad(*elementos.Item(posicion), nombre, valor);
        }
        for (int i = 5; nombre == "Recta" && i <= posicion; ++i) {
            Elemento& e = *elementos.Item(i);
            e.Trazado(Recta(i >= 14 ? i : e.ElemIni(), i == 13 ? i : e.ElemFin()));
            e.Trazado2(i == 13 ? Recta(i, e.ElemFin()) : nullptr);
        }
    }
}

// Every property of every element.
Lineas Foto(const Elementos& elementos) {
    Lineas foto;
    for (const auto& e : elementos) {
        foto.emplace_back();
        for (const auto& fila : Elemento::Propiedades())
            if (!fila.nombre.starts_with("Trazado")) foto.back() += fila.lee(*e).Texto() + " ";
        for (const auto& traza : {e->Trazado(), e->Trazado2()})
            foto.back() += traza ? "[" + Relato(traza) + "]" : "-";
    }
    return foto;
}

// Checks; the result, the box and the lines of the log are these. Lines that start with a digit are an
// element's, those behind a "!" are told by verifying only.
void Comprueba(Elementos& elementos, bool corrige, int resultado, const Lineas& lineas) {
    const CarpetaTemporal carpeta;
    DialogosGuion dialogos;
    if (resultado != 0) dialogos.Espera("Los datos");
    EXPECT_EQ(elementos.VerificaIntegridad(corrige), resultado);
    std::string texto =
        "\"ZELVisorEsquemas: Verificación de integridad de los datos de cargados en memoria fallida. Los "
        "datos están corruptos.\r\n";
    for (const auto& linea : lineas) {
        const std::string propia = linea.substr(linea.starts_with('!'));
        if (corrige && propia != linea) continue;
        texto += (propia[0] > '9' ? "\r\n" : "\r\nEl elemento almacenado en la posición ") + propia;
    }
    EXPECT_EQ(LeeArchivo(carpeta / "Integridad.log"), resultado == 0 ? "" : Latin1(texto + "\"\r\n"));
    EXPECT_EQ(std::filesystem::exists(carpeta / "Integridad.log"), resultado != 0);
    const std::string caja = "Los datos cargados en memoria no verifican las condiciones de integridad";
    const std::string incorregible = resultado < 0 ? " y no pueden ser corregidos automáticamente" : "";
    EXPECT_EQ(
        dialogos.Ultimo(),
        resultado == 0 ? "" : caja + incorregible + ". Operación cancelada. Ver fichero Integridad.log");
}

std::string Mutua(const std::string& posicion, const std::string& cual, const std::string& codigo) {
    return posicion + " tiene una conexión secundaria (ConecSec" + cual + ") con el elemento de código " +
           codigo + " y éste también tienen una concexión secundaria con el primero. ";
}

TEST(Integridad, TellsEveryFaultAndCorrectsWhatCanBe) {
    const std::string UNO = Mutua("1", "1", "2"), DOS = Mutua("2", "1", "1");
    const char* const IGUAL = nullptr;
    const struct {
        const char* cambia;
        int verificando;
        Lineas lineas;
        int corrigiendo;
        const char* queda;  // what differs from the sound basin after correcting
        bool mueve = false;
    } FILAS[] = {
        // clang-format off
        {"", 0, {}, 0, ""},
        {"5 ColorIcono -5", 2, {"!5: ColorIcono incorrecto: -5. "}, 0, ""},
        {"1 ColorLinea -2", 2, {"!1: ColorLínea incorrecto: -2. "}, 0, ""},
        {"3 ConecSec1 -2", -1, {"3: ConecSec1 incorrecta: -2. "}, -1, IGUAL},
        {"3 ConecSec1 2 3 ConecSec2 -3", -1, {"3: ConecSec2 incorrecta: -3. "}, -1, IGUAL},
        {"1 ElemFin -1", -1, {"1: ElemFin incorrecto: -1. "}, -1, IGUAL},
        {"2 ElemIni -4", -1, {"2: ElemIni incorrecto: -4. "}, -1, IGUAL},
        {"13 ElemIni -4", -1, {"13: ElemIni incorrecto: -4. ", "13 no tiene nudo de inicio: ElemIni: -4. "}, -1, IGUAL},
        {"14 ElemIni -4", -1, {"!14: ElemIni incorrecto: -4. ", "!14 no tiene nudo de inicio: ElemIni: -4. "}, 0, ""},
        {"16 ElemIni -1", -1, {"!16: ElemIni incorrecto: -1. ", "!16 no tiene nudo de inicio: ElemIni: -1. "}, 0, ""},
        {"5 gfCodSIG -7", -1, {"5 contiene un código negativo: -7. "}, -1, IGUAL},
        {"1 KeyPant 0", 0, {}, 0, IGUAL},
        {"2 KeyPant 0", 4, {"!2: Keypant incorrecto: 0. "}, 0, "2 KeyPant 17"},
        {"1 KeyPant -3", 4, {"!1: Keypant incorrecto: -3. "}, 0, IGUAL},
        {"5 Tipo 16 5 Trazado -1 5 ElemFin 99", -1, {"5: Tipo incorrecto: 16. "}, -1, IGUAL},
        {"5 Tipo -1", -1, {"5: Tipo incorrecto: -1. "}, -1, IGUAL},
        {"5 Trazado -1 6 Trazado2 1", 16, {"!5 no tiene un Trazado definido. "}, 0, "16 Recta 0"},
        {"9 Trazado 0", 16, {"!9 contiene 0 puntos en su Trazado. "}, 0, "16 Recta 0"},
        {"16 Trazado 1", 16, {"!16 contiene 1 puntos en su Trazado. "}, 0, "16 Recta 0"},
        {"13 Trazado2 -1", 16, {"!El elemento centralHE almacenado en la posición 13 no tiene un Trazado2 definido. "}, 0, "16 Recta 0"},
        {"13 Trazado2 1", 16, {"!13 contiene 1 puntos en su Trazado2. "}, 0, "16 Recta 0"},
        {"5 ElemIni 99", -1, {"5 no tiene nudo de inicio: ElemIni: 99. "}, -1, IGUAL},
        {"16 ElemFin 99", -1, {"16 no tiene nudo de destino: ElemFin: 99. "}, -1, IGUAL},
        {"1 ConecSec1 2 2 ConecSec1 1", 1, {UNO, DOS}, 1, IGUAL},
        {"1 ConecSec1 2 1 ConecSec2 3 2 ConecSec1 1 3 ConecSec1 9 3 ConecSec2 1", 1, {Mutua("1", "2", "3"), UNO, DOS, Mutua("3", "2", "1")}, 1, IGUAL},
        {"3 ConecSec2 5", 0, {}, 0, "3 ConecSec1 5", true},
        {"1 ConecSec2 2 2 ConecSec1 1", 1, {UNO, DOS}, 1, "1 ConecSec1 2 2 ConecSec1 1", true},
        // Once numbers are given, those that other kinds and intakes share are given anew too.
        {"1 KeyPant 0 2 KeyPant 0 12 KeyPant 5", 4, {"!2: Keypant incorrecto: 0. "}, 0, "1 KeyPant 17 2 KeyPant 18 12 KeyPant 19"},
        // When something stays wrong, only the first linear element is rebuilt, and only with both ends.
        {"1 ConecSec1 -2 7 Trazado -1", -1, {"1: ConecSec1 incorrecta: -2. ", "!7 no tiene un Trazado definido. "}, -1, "1 ConecSec1 -2 7 Trazado -1 5 Recta 0"},
        {"5 ElemFin 99 7 Trazado -1", -1, {"!7 no tiene un Trazado definido. ", "5 no tiene nudo de destino: ElemFin: 99. "}, -1, IGUAL},
        // References do not follow new codes, only elements that start at themselves do; the eighth one's
        // start is lost by that.
        {"2 gfCodSIG 0 8 ElemIni 0 8 ElemFin 1 5 ElemFin 1 6 ElemIni 1 9 ElemFin 1 10 ElemIni 1 13 ElemFin 1 15 ElemFin 1 "
         "16 ElemFin 1 14 gfCodSIG 16 14 ElemIni 16 9 Trazado -1", 24,
         {"!El objeto Elementos contiene dos o más elementos con el código gfCodSIG 16. ", "!9 no tiene un Trazado definido. "}, -1,
         "2 gfCodSIG 17 8 ElemIni 0 8 ElemFin 1 5 ElemFin 1 6 ElemIni 1 9 ElemFin 1 10 ElemIni 1 13 ElemFin 1 15 ElemFin 1 "
         "16 ElemFin 1 14 gfCodSIG 16 14 ElemIni 16 9 Trazado -1 16 gfCodSIG 18 16 ElemIni 18 7 Recta 0"},
        // clang-format on
    };
    for (const auto& f : FILAS) {
        SCOPED_TRACE(f.cambia);
        Elementos verificados, corregidos, despues;
        for (Elementos* e : {&verificados, &corregidos, &despues}) {
            Cuenca(*e);
            Cambia(*e, e == &despues && f.queda ? f.queda : f.cambia);
        }
        const Lineas antes = Foto(f.mueve ? despues : verificados);
        Comprueba(verificados, false, f.verificando, f.lineas);
        EXPECT_EQ(Foto(verificados), antes);
        Comprueba(corregidos, true, f.corrigiendo, f.lineas);
        EXPECT_EQ(Foto(corregidos), Foto(despues));
    }
}

TEST(Integridad, KnowsWhichKindsMayStandAtEachEnd) {
    const std::string NUDO = "un nudo o embalse. ", ACUIFERO = "un acuífero. ", DEMANDA = "una demanda. ";
    for (int caso = 0; caso < 12 * 2 * 16; ++caso) {
        const int tipo = 4 + caso / 32, otro = caso % 16;
        const bool fin = caso / 16 % 2 == 1;
        const std::string& regla = tipo == (fin ? 9 : 10) ? ACUIFERO : tipo == 11 && fin ? DEMANDA : NUDO;
        const bool bien = (tipo >= 13 && !fin) || (tipo == 15 && otro == 13) ||
                          (regla == ACUIFERO  ? otro == 3
                           : regla == DEMANDA ? otro == 2
                                              : otro < 2);
        const std::string posicion = std::to_string(tipo + 1), codigo = std::to_string(otro + 1);
        SCOPED_TRACE(posicion + (fin ? " ElemFin " : " ElemIni ") + codigo);
        Elementos elementos;
        Cuenca(elementos);
        Cambia(elementos, posicion + (fin ? " ElemFin " : " ElemIni ") + codigo);
        Comprueba(
            elementos, false, bien ? 0 : -1,
            {posicion + " está conectado al elemento de código " + codigo + ", cuyo tipo no es " + regla});
    }
}

// Elements of these kinds, numbers and codes; at most every second one has a key.
void Agrega(Elementos& elementos, const std::vector<std::array<int, 3>>& filas) {
    for (const auto& [tipo, numero, codigo] : filas) {
        Elemento e = Simbolo(TipoElemento(tipo), {0, 0});
        e.KeyPant(static_cast<std::int16_t>(numero));
        e.gfCodSIG(codigo);
        const bool conClave = elementos.Count() % 2 == 0 && !elementos.ItemCodSIG(codigo);
        elementos.AddObjetoElemento(e, conClave ? std::to_string(codigo) : "");
    }
}

TEST(Integridad, ListsPairsByTheirPositionsAndStepsInOrder) {
    const std::string CODIGO = "!El objeto Elementos contiene dos o más elementos con el código gfCodSIG 7. ";
    const std::string TIPO = "!El objeto Elementos contiene dos o más elementos tipo ";
    const std::string TRES = TIPO + "0 con el código de pantalla 3. ";
    Elementos pares;
    Agrega(pares, {{0, 3, 7}, {0, 3, 8}, {0, 3, 7}, {2, 3, 7}, {0, 0, 9}, {0, 0, 6}, {1, -2, 5}, {1, -2, 4}});
    Comprueba(pares, false, 12,
              {"7: Keypant incorrecto: -2. ", "8: Keypant incorrecto: -2. ", TRES, CODIGO, TRES, CODIGO, TRES,
               CODIGO, TIPO + "1 con el código de pantalla -2. "});
    for (const bool corrige : {false, true}) {
        Elementos e;
        Agrega(e, {{4, -9, -8}, {0, 1, 7}, {2, 1, 2}, {9, 1, 7}, {11, 5, 4}, {11, 5, 5}});
        Cambia(e, "1 ColorIcono -2 1 ColorLinea -3 1 ConecSec1 -4 1 ConecSec2 -5 1 ElemFin -6 1 ElemIni -7");
        Cambia(e, "2 ConecSec1 2 4 ElemIni 7 4 ElemFin 2 5 ElemIni 7 5 ElemFin 2 6 ElemIni 7 6 ElemFin 2");
        Cambia(e, "4 Trazado 1 5 Trazado 2 6 Trazado 2");
        Comprueba(e, corrige, -1,
                  {"!1: ColorIcono incorrecto: -2. ", "!1: ColorLínea incorrecto: -3. ",
                   "1: ConecSec1 incorrecta: -4. ", "1: ConecSec2 incorrecta: -5. ",
                   "1: ElemFin incorrecto: -6. ", "1: ElemIni incorrecto: -7. ",
                   "1 contiene un código negativo: -8. ", "!1: Keypant incorrecto: -9. ", CODIGO,
                   "!1 no tiene un Trazado definido. ", "!4 contiene 1 puntos en su Trazado. ",
                   "1 no tiene nudo de inicio: ElemIni: -7. ", "1 no tiene nudo de destino: ElemFin: -6. ",
                   "4 está conectado al elemento de código 2, cuyo tipo no es un acuífero. "});
    }
}

TEST(Integridad, WritesTheLogInLatin1OverAnEarlierOneOrRaises) {
    const CarpetaTemporal carpeta;
    carpeta.Escribe("Integridad.log", std::string(999, 'x'));
    DialogosGuion dialogos;
    dialogos.Espera("integridad. ");
    Elementos elementos;
    EXPECT_EQ(elementos.VerificaIntegridad(true), 0);
    Agrega(elementos, {{0, 0, 7}});
    elementos.Item(1)->ColorLinea(-5);
    EXPECT_EQ(elementos.VerificaIntegridad(), 2);
    EXPECT_EQ(
        LeeArchivo(carpeta / "Integridad.log"),
        "\"ZELVisorEsquemas: Verificaci\xF3n de integridad de los datos de cargados en memoria fallida. "
        "Los datos est\xE1n corruptos.\r\n\r\nEl elemento almacenado en la posici\xF3n 1: ColorL\xEDnea "
        "incorrecto: -5. \"\r\n");
    std::filesystem::remove(carpeta / "Integridad.log");
    std::filesystem::create_directory(carpeta / "Integridad.log");
    dialogos.Espera("integridad. ");
    EXPECT_TRUE(
        Falla([&] { elementos.VerificaIntegridad(); }, {"Error en función VerificarIntegridad (Elementos)"}));
}

TEST(Integridad, NumbersAnewFromTheLargest) {
    const struct {
        std::vector<std::array<int, 3>> antes;
        std::vector<int> numeros, codigos;  // none: it raises
    } FILAS[] = {
        {{{0, 0, 1}, {0, 5, 2}, {1, 5, 3}, {2, -2, 4}, {0, 0, 5}, {3, -2, 6}, {1, 0, 7}},
         {6, 5, 7, -2, 9, 8, 10},
         {1, 2, 3, 4, 5, 6, 7}},
        {{{1, -4, 1}, {1, 0, 2}}, {-4, 1}, {1, 2}},
        {{{0, 5, 1}, {1, 5, 2}, {0, 0, 3}}, {5, 5, 0}, {1, 2, 3}},
        {{{0, 1, 4}, {0, 2, 0}, {0, 3, 4}, {0, 4, 9}, {0, 5, 0}}, {1, 2, 3, 4, 5}, {4, 11, 10, 9, 12}},
        {{{0, 1, 0}, {0, 2, 3}}, {1, 2}, {0, 3}},
        {{{0, 1, 32766}, {0, 2, 1}, {0, 3, 1}}, {1, 2, 3}, {32766, 1, 32767}},
        {{{0, 1, 40000}, {0, 2, 1}}, {1, 2}, {40000, 1}},
        {{{0, 1, 40000}, {0, 2, 1}, {0, 3, 1}}, {}, {}},
        {{{0, 1, 32767}, {0, 2, 1}, {0, 3, 1}}, {}, {}},
        {{{0, 32767, 1}, {1, 0, 2}}, {}, {}},
    };
    for (const auto& f : FILAS) {
        SCOPED_TRACE(&f - FILAS);
        Elementos elementos;
        Agrega(elementos, f.antes);
        const std::vector<std::shared_ptr<Elemento>> todos(elementos.begin(), elementos.end());
        if (f.numeros.empty()) {
            EXPECT_TRUE(Falla([&] { elementos.VerificaIntegridad(true); },
                              {"Error en función VerificarIntegridad (Elementos)"}));
            continue;
        }
        Comprueba(elementos, true, 0, {});
        EXPECT_EQ(todos, std::vector(elementos.begin(), elementos.end()));
        for (std::size_t i = 0; i < todos.size(); ++i) {
            EXPECT_EQ((std::array{int{todos[i]->KeyPant()}, todos[i]->gfCodSIG()}),
                      (std::array{f.numeros[i], f.codigos[i]}));
            const bool conClave = i % 2 == 0 || f.codigos.back() != f.antes.back()[2];
            EXPECT_EQ(elementos.ItemCodSIG(f.codigos[i]), conClave ? todos[i] : nullptr);
        }
        EXPECT_EQ(elementos.ItemCodSIG(0), f.codigos[0] == 0 ? todos[0] : nullptr);
    }
}

TEST(Integridad, IsQuickWhenEveryElementHasTheSameCode) {
    for (const bool corrige : {false, true}) {
        const CarpetaTemporal carpeta;
        DialogosGuion dialogos;
        if (!corrige) dialogos.Espera("integridad. ");
        Elementos elementos;
        for (int i = 1; i <= 32767; ++i)
            Agrega(elementos, {{0, i, 1}});
        const auto inicio = std::chrono::steady_clock::now();
        EXPECT_EQ(elementos.VerificaIntegridad(corrige), corrige ? 0 : 8);
        EXPECT_LT(std::chrono::steady_clock::now() - inicio, std::chrono::seconds(5));
        EXPECT_EQ(elementos.ItemCodSIG(32767), corrige ? elementos.Item(32767) : nullptr);
    }
}

}  // namespace
}  // namespace zel::pruebas
