#include "editing/Teclado.h"

#include "support/MesaDeEdicion.h"

namespace zel::pruebas {

// Two nodes. Shows 0..200 x 0..100.
class Teclas : public MesaDeEdicion {
  protected:
    Teclas() {
        Pon({Simbolo(ctNudo, {50, 50}), Simbolo(ctNudo, {150, 50})});
        Repinta();
    }
    void Suelta(std::int16_t tecla, std::int16_t mayus = 0) { teclado.Panel_KeyUp(tecla, mayus); }
    void PulsaCtrl() {
        std::int16_t ctrl = 17, mascara = 2;
        teclado.Panel_KeyDown(ctrl, mascara);
    }
    std::string EstadoYMano() const { return std::to_string(trabajo.iEstado) + EnMano(); }
};

TEST_F(Teclas, EachActsByTheStateAndItsCompanions) {
    // The state after it, and what the prompt and the host are told.
    const std::tuple<std::vector<std::int32_t>, std::int16_t, std::int16_t, std::int32_t, const char*>
        filas[] = {{{1, 3, 5, 15}, 'Z', 1, 18, "Seleccione la región que desea ampliar"},
                   {{2, 5}, 'M', 0, 19, "Arrastre el esquema con el cusor del ratón"},
                   {{15}, 'C', 0, 5, "Preparado"},  // nothing was chosen one by one
                   {{3}, 8, 0, 2, ""},              // there is no point to take back
                   {{1}, 27, 0, 2, ""},             // entered from state 2
                   {{2, 6, 7, 8, 10, 11, 12, 13, 18, 19, 99}, 27, 0, 5, "Preparado"},
                   {{9}, 27, 0, 8, "Escoja un nodo de la conducción"},
                   {{5}, 46, 0, 5, "Clic borrar"},
                   {{5}, 'C', 0, 5, "Clic centrarElemento"},
                   {{5}, 'C', 1, 5, "Clic centralHE"},
                   {{3}, '3', 1, 3, "Clic conduccion3"},
                   {{3}, 101, 1, 3, "Clic conduccion5"},
                   {{5}, 123, 4, 5, "DEPURANDO"}};
    const auto prueba = [&](std::int32_t estado, std::int16_t tecla, std::int16_t mayus) {
        trabajo = {};
        trabajo.iEstado = estado;
        trabajo.iEstadoAnterior = 2;
        anfitrion.textos[1].clear();
        Suelta(tecla, mayus);
        return std::to_string(trabajo.iEstado) + " " + anfitrion.textos[1] + anfitrion.Eventos();
    };
    for (const auto& [antes, tecla, mayus, queda, dice] : filas) {
        for (const std::int32_t estado : antes)
            EXPECT_EQ(prueba(estado, tecla, mayus), std::to_string(queda) + " " + dice)
                << tecla << " in " << estado;
    }
    const std::tuple<std::int32_t, std::int16_t, std::int16_t> nada[] = {
        {5, 'M', 1},  {5, 'M', 2},  {5, 'M', 4}, {5, 'Z', 2}, {5, 17, 0},   {14, 27, 0},
        {17, 27, 0},  {12, 46, 0},  {5, 'C', 2}, {3, 'C', 0}, {10, 'C', 0}, {11, 'C', 0},
        {12, 'C', 0}, {17, 'C', 0}, {5, 102, 1}, {5, 'E', 0}};
    for (const auto& [estado, tecla, mayus] : nada)
        EXPECT_EQ(prueba(estado, tecla, mayus), std::to_string(estado) + " ") << tecla;
}

TEST_F(Teclas, EscapeDropsTheSelectionAndRepaintsWhateverTheState) {
    Pulsa(50, 50);
    EXPECT_EQ(anfitrion.textos[1], Elem(1)->Nombre());
    trabajo.bElementoYaSeleccionado = true;
    Suelta(27);
    EXPECT_EQ(anfitrion.textos[1], "Preparado") << "its name would stay";
    trabajo.iEstado = 14;
    Suelta(27);
    EXPECT_EQ(panel.limpiezas, 3);
    EXPECT_EQ(EnMano(), "");
    EXPECT_FALSE(trabajo.bElementoYaSeleccionado) << "the next press would drag at once";
}

TEST_F(Teclas, TheViewIsZoomedFittedAndMoved) {
    const std::tuple<std::int32_t, std::vector<std::int16_t>, const char*> filas[] = {
        {5, {107}, "129,135 141.42x-70.71"},       {5, {109}, "58,170 282.84x-141.42"},
        {11, {107, 109, 'Z'}, "100,150 200x-100"}, {3, {'Z'}, "44,78 112x-56"},
        {5, {37, 38}, "50,175 200x-100"},          {5, {40, 39, 39, 39}, "200,125 200x-100"}};
    for (const auto& [estado, teclas, visible] : filas) {
        vista.DisponeDeNuevo(200, 100);
        Muestra(100, 150, 200, 100);
        Repinta();
        trabajo.iEstado = estado;
        for (const std::int16_t tecla : teclas)
            Suelta(tecla);
        EXPECT_EQ(Visible(), visible);
        EXPECT_FALSE(refresco.bRefrescoPendiente());
    }
    EXPECT_FALSE(vista.bVistaActualizada());
    Muestra(40000, 50, 200, 100);
    guion.Espera("más allá de donde llegan las barras");
    Repinta();
    Suelta(37);
    EXPECT_EQ(Visible(), "40000,50 200x-100");
}

TEST_F(Teclas, ASecondaryLineIsAskedForByItsCode) {
    const std::tuple<std::int16_t, std::optional<std::string>, const char*> filas[] = {
        {121, "2", nullptr},
        {122, " 2,0 ", nullptr},
        {121, std::nullopt, "Valor incorrecto"},
        {121, "1.5", "Valor incorrecto"},
        {121, "1e999", "Valor incorrecto"},
        {122, "1", "No me conectes conmigo mismo"},
        {122, "7", "No encuentro ese codigo en mi colección"}};
    const auto e = Elem(1);
    for (const auto& [tecla, respuesta, aviso] : filas) {
        e->ConecSec1(0);
        e->ConecSec2(0);
        trabajo.iEstado = 2;
        trabajo.elemSeleccionado = e;
        guion.Responde(respuesta);
        if (aviso) guion.Espera(aviso);
        Suelta(tecla, 4);
        EXPECT_EQ(e->ConecSec1() + 10 * e->ConecSec2(), aviso ? 0 : tecla == 121 ? 2 : 20);
        EXPECT_EQ(trabajo.iEstado, 5);
    }
    EXPECT_TRUE(documento.bHabidoCambios);
    trabajo.elemSeleccionado.reset();
    guion.Espera("Seleccione un elemento para especificar su conexión secundaria");
    guion.MientrasAvisa([this] { trabajo.bTerminado = true; });
    EXPECT_TRUE(Falla([this] { Suelta(121, 4); }, {"Estado de visor 5. ErrPanel_KeyUp (Esquema)"}));
}

TEST_F(Teclas, CtrlSelectsOneByOneUnlessItIsHeldForAnotherKey) {
    for (const bool pulsaElPanel : {false, true}) {
        trabajo = {};
        Selecciona(1);
        PulsaCtrl();
        EXPECT_EQ(EstadoYMano(), "15s1");
        if (pulsaElPanel) teclado.PanelPulsado();
        teclado.OtraEntrada();
        EXPECT_EQ(EstadoYMano(), pulsaElPanel ? "15s1" : "5e");
        Suelta(17);
        EXPECT_EQ(EstadoYMano(), pulsaElPanel ? "12s1" : "5e");
    }
    trabajo.curvaSeleccion = Traza({{1, 1}});
    PulsaCtrl();
    teclado.OtraEntrada();
    EXPECT_EQ(EstadoYMano(), "12cs1");
    // What the host has removed meanwhile does not come back.
    estados.Estado(5, 1);
    Selecciona(2);
    PulsaCtrl();
    documento.colElementos->RemoveCodSIG(2);
    teclado.OtraEntrada();
    EXPECT_EQ(EstadoYMano() + anfitrion.textos[1], "5Preparado");
}

}  // namespace zel::pruebas
