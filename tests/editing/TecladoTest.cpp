#include "editing/Teclado.h"

#include "support/MesaDeEdicion.h"

namespace zel::pruebas {

// Two nodes, of which the first one is selected. Shows 0..200 x 0..100.
class Teclas : public MesaDeEdicion {
  protected:
    Teclas() {
        Pon({Simbolo(ctNudo, {50, 50}), Simbolo(ctNudo, {150, 50})});
        Repinta();
    }
    void Suelta(std::int16_t tecla, std::int16_t mayus = 0) { teclado.Panel_KeyUp(tecla, mayus); }
    void PulsaCtrl(std::int16_t mascara = 2) {
        std::int16_t ctrl = 17;
        teclado.Panel_KeyDown(ctrl, mascara);
    }
};

TEST_F(Teclas, EachActsByTheStateAndItsCompanions) {
    const std::tuple<std::vector<std::int32_t>, int, std::int16_t, std::string> filas[] = {
        {{1, 3, 5, 15}, 'Z', 1, "18 Seleccione la región que desea ampliar"},
        {{2, 5, 15}, 'M', 0, "19 Arrastre el esquema con el cusor del ratón"},
        {{5}, 'M', 2, "19 Arrastre el esquema con el cusor del ratón"},
        {{5}, 'M', 1, "5 "},
        {{5}, 'M', 4, "5 "},
        // Nothing has been chosen one by one.
        {{15}, 17, 0, "5 Preparado"},
        {{15}, 'C', 0, "5 Preparado"},
        {{5}, 17, 0, "5 "},
        // Escape; state 1 has been entered from state 2.
        {{1}, 27, 0, "2 "},
        {{2, 6, 7, 8, 10, 11, 12, 13, 18, 19, 99}, 27, 0, "5 Preparado"},
        {{3}, 27, 0, "2 "},
        {{9}, 27, 0, "8 Escoja un nodo de la conducción"},
        {{14}, 27, 0, "14 "},
        {{17}, 27, 0, "17 "},
        {{5}, 46, 0, "5  Clic borrar"},
        {{12}, 46, 0, "12 "},
        {{5}, 'C', 0, "5  Clic centrarElemento"},
        {{2}, 'C', 0, "2  Clic centrarElemento"},
        {{5}, 'C', 2, "5 "},
        {{3}, 'C', 0, "3 "},
        {{10}, 'C', 0, "10 "},
        {{12}, 'C', 0, "12 "},
        {{17}, 'C', 0, "17 "},
        // Kinds.
        {{5}, 'E', 1, "5  Clic embalse"},
        {{5}, 'C', 1, "5  Clic centralHE"},
        {{5}, 'T', 1, "5  Clic toma"},
        {{3}, '3', 1, "3  Clic conduccion3"},
        {{3}, 101, 1, "3  Clic conduccion5"},
        {{5}, 102, 1, "5 "},
        {{5}, 'E', 0, "5 "},
        {{5}, 'N', 3, "5 "}};
    for (const auto& [estadosAntes, tecla, mayus, queda] : filas) {
        for (const std::int32_t estado : estadosAntes) {
            trabajo = {};
            trabajo.iEstado = estado;
            trabajo.iEstadoAnterior = 2;
            anfitrion.textos.clear();
            Suelta(static_cast<std::int16_t>(tecla), mayus);
            const std::string eventos = anfitrion.Eventos();
            const std::string visto = std::to_string(trabajo.iEstado) + " " + anfitrion.textos[1] +
                                      (eventos.empty() ? "" : " ") + eventos;
            EXPECT_EQ(visto, queda) << tecla << " in state " << estado;
        }
    }
}

TEST_F(Teclas, EscapeDropsTheSelectionAndRepaintsWhateverTheState) {
    Selecciona(1);
    trabajo.bElementoYaSeleccionado = true;
    for (const std::int32_t estado : {5, 14, 20}) {
        trabajo.iEstado = estado;
        panel.limpiezas = 0;
        Suelta(27);
        EXPECT_EQ(panel.limpiezas, 1) << estado;
    }
    EXPECT_EQ(EnMano(), "");
    EXPECT_FALSE(trabajo.bElementoYaSeleccionado) << "the next press would drag at once";
}

TEST_F(Teclas, TheViewIsZoomedFittedAndMoved) {
    const std::tuple<std::int32_t, int, std::int16_t, const char*> filas[] = {
        {5, 107, 0, "129,85 141.42x-70.71"},
        {5, 109, 0, "58,120 282.84x-141.42"},
        {11, 107, 0, "100,100 200x-100"},
        {11, 'Z', 0, "100,100 200x-100"},
        {3, 'Z', 0, "44,78 112x-56"},
        {5, 37, 0, "50,100 200x-100"},
        {5, 39, 0, "150,100 200x-100"},
        {5, 38, 0, "100,125 200x-100"},
        {5, 40, 0, "100,75 200x-100"},
        {5, 40, 1, "100,100 200x-100"}};
    for (const auto& [estado, tecla, mayus, visible] : filas) {
        vista.DisponeDeNuevo(200, 100);
        Muestra(0, 0, 400, 200);
        Repinta();
        Muestra(100, 100, 200, 100);
        Repinta();
        trabajo.iEstado = estado;
        Suelta(static_cast<std::int16_t>(tecla), mayus);
        EXPECT_EQ(Visible(), visible) << tecla;
        EXPECT_FALSE(refresco.bRefrescoPendiente());
    }
    vista.DisponeDeNuevo(200, 100);
    Repinta();
    vista.bVistaActualizada(true);
    for (int i = 0; i < 5; ++i)
        Suelta(39);
    EXPECT_EQ(Visible(), "200,100 200x-100") << "stops at the end of the bar";
    EXPECT_NE(anfitrion.textos[1].find("ampliar la región activa"), std::string::npos);
    EXPECT_FALSE(vista.bVistaActualizada());
    Muestra(10, 50, 1.5F, 1);
    Repinta();
    Suelta(37);
    EXPECT_EQ(Visible(), "9,50 1.5x-1") << "at least one unit";
    Muestra(40000, 50, 200, 100);
    guion.Espera("más allá de donde llegan las barras");
    Repinta();
    Suelta(37);
    EXPECT_EQ(Visible(), "40000,50 200x-100") << "beyond the bars";
}

TEST_F(Teclas, ASecondaryLineIsAskedForByItsCode) {
    const std::tuple<int, std::optional<std::string>, const char*, std::int32_t, std::int32_t> filas[] = {
        {121, "2", nullptr, 2, 0},
        {122, " 2,0 ", nullptr, 0, 2},
        {121, std::nullopt, "Valor incorrecto", 0, 0},
        {121, "dos", "Valor incorrecto", 0, 0},
        {121, "0", "Valor incorrecto", 0, 0},
        {121, "1.5", "Valor incorrecto", 0, 0},
        {121, "2147483648", "Valor incorrecto", 0, 0},
        {121, "1e999", "Valor incorrecto", 0, 0},
        {122, "1", "No me conectes conmigo mismo", 0, 0},
        {122, "7", "No encuentro ese codigo en mi colección", 0, 0}};
    for (const auto& [tecla, respuesta, aviso, primera, segunda] : filas) {
        Elem(1)->ConecSec1(0);
        Elem(1)->ConecSec2(0);
        documento.bHabidoCambios = false;
        Selecciona(1);
        trabajo.iEstado = 2;
        guion.Responde(respuesta);
        if (aviso) guion.Espera(aviso);
        Suelta(static_cast<std::int16_t>(tecla), 4);
        EXPECT_EQ(std::pair(Elem(1)->ConecSec1(), Elem(1)->ConecSec2()), std::pair(primera, segunda));
        EXPECT_EQ(documento.bHabidoCambios, !aviso) << respuesta.value_or("none");
        EXPECT_EQ(trabajo.iEstado, 5);
    }
    trabajo.elemSeleccionado.reset();
    guion.Espera("Seleccione un elemento para especificar su conexión secundaria");
    guion.MientrasAvisa([this] { trabajo.bTerminado = true; });
    EXPECT_TRUE(Falla([this] { Suelta(121, 4); }, {"Estado de visor 5. ErrPanel_KeyUp (Esquema)"}));
}

TEST_F(Teclas, CtrlSelectsOneByOneUnlessItIsHeldForAnotherKey) {
    for (const bool pulsaElPanel : {false, true}) {
        trabajo = {};
        Selecciona(1);
        PulsaCtrl(3);
        EXPECT_EQ(trabajo.iEstado, 5) << "with Shift";
        PulsaCtrl();
        EXPECT_EQ(std::to_string(trabajo.iEstado) + EnMano(), "15s1");
        if (pulsaElPanel) teclado.PanelPulsado();
        teclado.OtraEntrada();
        EXPECT_EQ(std::to_string(trabajo.iEstado) + EnMano(), pulsaElPanel ? "15s1" : "5e");
        Suelta(17);
        EXPECT_EQ(std::to_string(trabajo.iEstado) + EnMano(), pulsaElPanel ? "12s1" : "5e");
    }
    // With a subsystem: it comes back with its lasso.
    trabajo.curvaSeleccion = Traza({{1, 1}});
    PulsaCtrl();
    EXPECT_EQ(std::to_string(trabajo.iEstado) + EnMano(), "15s1");
    teclado.OtraEntrada();
    EXPECT_EQ(std::to_string(trabajo.iEstado) + EnMano(), "12cs1");
    // What the host has removed meanwhile does not come back.
    estados.Estado(5, 1);
    Selecciona(2);
    PulsaCtrl();
    documento.colElementos->RemoveCodSIG(2);
    teclado.OtraEntrada();
    EXPECT_EQ(std::to_string(trabajo.iEstado) + EnMano(), "5");
    EXPECT_EQ(anfitrion.textos[1], "Preparado");
}

TEST_F(Teclas, TheStateIsShownForDebugging) {
    for (const char* texto : {"DEPURANDO", "FIN DEPURACIÓN"}) {
        Suelta(123, 4);
        EXPECT_EQ(anfitrion.textos[1], texto);
        EXPECT_EQ(trabajo.bDepurarEstado, texto == std::string("DEPURANDO"));
    }
}

}  // namespace zel::pruebas
