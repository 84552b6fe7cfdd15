#include "editing/MaquinaEstados.h"

#include <gtest/gtest.h>

#include "model/Mensajes.h"
#include "support/MesaDeEdicion.h"

namespace zel::pruebas {

class Estados : public MesaDeEdicion {
  protected:
    static constexpr std::int32_t NUDO = 1, TOMA = 2, CENTRAL = 3, EMBALSE = 4;
    Estados() {
        Pon({ConNombre(Simbolo(ctNudo, {10, 20}), "Cauce"),
             ConNombre(Lineal(ctToma, {30, 30}, {{10, 10}, {90, 10}}), "Riego"),
             ConNombre(Lineal(ctCentralHidroelectrica, {50, 20}, {{10, 20}, {46, 20}}), "Salto"),
             ConNombre(Simbolo(ctEmbalse, {90, 20}), "Presa")});
        documento.UltimoKeyPant[ctNudo] = 12;
    }
    // In that state with something of everything in hand, "zoommas" pressed and nothing asked for.
    void Empieza(std::int32_t estado, std::int32_t seleccionado = 0, TipoElemento herramienta = ctFlecha) {
        trabajo = {};
        trabajo.iEstado = estado;
        trabajo.iEstadoAnterior = 7;
        trabajo.iTipoHerramienta = herramienta;
        LlenaLaMano(EMBALSE);
        Selecciona(seleccionado);
        anfitrion.textos.clear();
        anfitrion.pulsados = {{Barra::Elementos, {"bombeo"}}, {Barra::Vista, {"zoommas"}}};
        anfitrion.barraActiva = true;
        panel.puntero = -1;
        panel.DrawStyle(Superficie::ESTILO_TRAZOS);
        panel.DrawMode(Superficie::MODO_COPIAR);
        vista.bVistaActualizada(false);
        refresco.AnularRefresco();
    }
};

TEST_F(Estados, EveryStateIsEnteredWithItsPromptCursorObjectsAndButtons) {
    const auto M = [](std::int32_t numero) { return std::string(*TextoMensaje(numero)); };
    const std::string todo = "nmrcs4tv";
    const struct {
        std::int32_t nuevo, viejo, seleccionado;
        TipoElemento herramienta;
        std::int32_t estado;
        std::string texto;
        const char* puntero;
        int refresca;
        std::string enMano;
        const char* pulsados;
        // clang-format off
    } filas[] = {
        {0, 18, 0, ctFlecha, 7, M(5219), "202", 1, todo, "|"},
        {1, 5, 0, ctFlecha, 1, M(5201), "203", 0, "nmrcs4v", "|zoommas"},
        {1, 3, 0, ctToma, 1, M(5201), "203", 1, "cs4", "|zoommas"},
        {2, 5, 0, ctConduccion1, 2, M(5203), "201", 0, "", "conduccion1|"},
        {2, 3, NUDO, ctAportacion, 2, M(5208), "113", 1, "e", "aportacion|"},
        {2, 8, 0, ctFlecha, 2, "", "normal", 1, "", "flecha|"},
        {3, 2, NUDO, ctRecarga, 3, M(5211), "201", 1, "Ncs4tve", "recarga|"},
        {5, 5, 0, ctFlecha, 5, M(5217), "normal", 1, todo, "flecha|"},
        {5, 2, NUDO, ctToma, 5, "Cauce", "normal", 1, todo + "e", "flecha|"},
        {6, 5, EMBALSE, ctFlecha, 6, "Escoja el emplazamiento para el elemento Embalse nº 12", "202", 1, todo + "e", "|"},
        {8, 14, TOMA, ctFlecha, 8, M(5220), "normal", 1, "nmrcs4te", "|"},
        {9, 8, TOMA, ctFlecha, 9, M(5221), "202", 1, todo + "e", "|"},
        {10, 5, 0, ctFlecha, 10, M(5222), "cruz", 1, "t", "|"},
        {11, 10, 0, ctFlecha, 11, M(5223), "", 0, "nmrCs4tv", "|"},
        {12, 5, 0, ctFlecha, 12, M(5224), "normal", 1, todo, "|"},
        {12, 11, NUDO, ctFlecha, 5, "Cauce", "normal", 1, "te", "flecha|"},
        {12, 17, 0, ctFlecha, 5, M(5217), "normal", 1, "nmrstv", "flecha|"},
        {13, 5, NUDO, ctFlecha, 13, M(5225), "202", 1, "nmrcs4te", "|"},
        {13, 5, CENTRAL, ctFlecha, 13, M(5225), "202", 1, todo + "e", "|"},
        {13, 5, TOMA, ctFlecha, 5, "Riego", "normal", 1, todo + "e", "flecha|"},
        {13, 5, 0, ctFlecha, 5, M(5217), "normal", 1, todo, "flecha|"},
        {14, 8, TOMA, ctFlecha, 14, "", "", 0, todo + "e", "|"},
        {14, 8, EMBALSE, ctFlecha, 5, "Presa", "normal", 1, todo + "e", "flecha|"},
        {15, 5, NUDO, ctFlecha, 15, M(5224), "cruz", 1, "s1t", "|"},
        {15, 12, NUDO, ctFlecha, 15, M(5224), "cruz", 1, "s4t", "|"},
        {15, 1, NUDO, ctFlecha, 15, M(5224), "cruz", 1, "ste", "|"},
        {16, 5, NUDO, ctFlecha, 16, M(5227), "202", 0, "nmcs4tve", "|"},
        {16, 5, 0, ctFlecha, 5, M(5217), "normal", 1, todo, "flecha|"},
        {17, 5, 0, ctFlecha, 17, M(5223), "cruz", 0, todo, "|"},
        {18, 5, 0, ctFlecha, 18, "Seleccione la región que desea ampliar", "cruz", 0, "nmrcs4v", "|zoomRecuadro"},
        {19, 5, 0, ctFlecha, 19, "Arrastre el esquema con el cusor del ratón", "202", 0, "nmrcs4v", "|mano"},
        {20, 5, 0, ctFlecha, 20, "Ajuste la posición y tamaño de la imagen de fondo y pulse aceptar", "cruz", 0, todo, "|"},
        {21, 5, 0, ctFlecha, 21, "Procesando, espere ...", "cruz", 0, todo, "|"},
        {4, 6, 0, ctFlecha, 6, "", "", 0, todo, "|"},
        {22, 6, 0, ctFlecha, 6, "", "", 0, todo, "|"},
        {99, 5, 0, ctToma, 5, "", "", 0, todo, "toma|"}};
    // clang-format on
    for (const auto& f : filas) {
        SCOPED_TRACE(std::to_string(f.nuevo) + " from " + std::to_string(f.viejo));
        Empieza(f.viejo, f.seleccionado, f.herramienta);
        estados.Estado(f.nuevo, 1);
        EXPECT_EQ(trabajo.iEstado, f.estado);
        EXPECT_EQ(trabajo.iEstadoAnterior, f.viejo);
        EXPECT_EQ(anfitrion.textos[1], f.texto);
        EXPECT_EQ(Puntero(), f.puntero);
        EXPECT_EQ(refresco.bRefrescoPendiente(), f.refresca == 1);
        EXPECT_EQ(EnMano(), f.enMano);
        EXPECT_EQ(Pulsados(), f.pulsados);
        EXPECT_EQ(anfitrion.barraActiva, f.nuevo != 20);
        const bool entra5 = f.estado == 5 && f.nuevo != 99;
        EXPECT_EQ(trabajo.iTipoHerramienta, entra5 ? ctFlecha : f.herramienta);
        EXPECT_EQ(vista.bVistaActualizada(), entra5);
        EXPECT_EQ(panel.DrawStyle(), entra5 ? Superficie::ESTILO_SOLIDO : Superficie::ESTILO_TRAZOS);
        const bool banda = f.nuevo >= 17 && f.nuevo <= 19;
        EXPECT_EQ(panel.pluma().DrawMode, banda ? Superficie::MODO_INVERTIR : Superficie::MODO_COPIAR);
    }
    EXPECT_EQ(panel.refrescos, 0);
}

TEST_F(Estados, WithoutBeingAskedNoStateRefreshesAndDragsCancelWhatIsPending) {
    for (std::int32_t nuevo = 1; nuevo <= 21; ++nuevo) {
        Empieza(6, CENTRAL);
        refresco.PedirRefresco();
        estados.Estado(nuevo, 0);
        const bool anula = std::set{5, 13, 16, 17, 18, 19}.contains(nuevo);
        EXPECT_EQ(refresco.bRefrescoPendiente(), !anula) << nuevo;
    }
}

TEST_F(Estados, LeavingAGestureForStateFiveDropsItsObjectsAndItsMarksInTheTraces) {
    for (std::int32_t viejo : {1, 2, 3, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20, 21, 99}) {
        Empieza(viejo);
        for (const auto& trazado : {Elem(TOMA)->Trazado(), Elem(CENTRAL)->Trazado2()}) {
            for (const char* marca : {"Valor", "Valor2", "Valor3", "Flecha"})
                EscribePropiedad(*trazado, marca, Variante(true));
        }
        estados.Estado(5, 1);
        const bool suelta = viejo == 3 || (viejo >= 10 && viejo <= 16) || viejo == 99;
        EXPECT_EQ(EnMano(), suelta ? "t" : "nmrcs4tv") << viejo;
        const bool limpia = viejo == 8 || viejo == 13 || viejo == 14;
        for (const auto& trazado : {Elem(TOMA)->Trazado(), Elem(CENTRAL)->Trazado2()}) {
            for (const char* marca : {"Valor", "Valor2", "Valor3", "Flecha"})
                EXPECT_EQ(LeePropiedad(*trazado, marca).Booleano(), !limpia) << viejo << marca;
        }
    }
}

TEST_F(Estados, NoTraceOfTheSchematicKeepsItsMarksWhoeverHasSetThem) {
    const auto toma = Elem(TOMA), central = Elem(CENTRAL);
    const auto comun = toma->Trazado(), ajena = Traza({{1, 1}}), otra = Traza({{3, 3}});
    // Those that keep their mark: c, a, o.
    const auto borra = [&](const std::function<void()>& antes) {
        for (const auto& trazado : {comun, ajena, otra})
            trazado->Valor3(1);
        antes();
        estados.BorrarInfoExtra();
        return std::string(comun->Valor3() ? "c" : "") + (ajena->Valor3() ? "a" : "") +
               (otra->Valor3() ? "o" : "");
    };
    EXPECT_EQ(borra([&] { central->Trazado2(comun); }), "ao");
    EXPECT_EQ(borra([&] { documento.colElementos->RemoveCodSIG(TOMA); }), "ao") << "another has it";
    EXPECT_EQ(borra([&] { central->Trazado2(ajena); }), "co");
    EXPECT_EQ(borra([&] { toma->Trazado(otra), documento.colElementos->AddObjetoElemento(*toma); }), "c");
    EXPECT_EQ(borra([&] { Pon({*toma}); }), "ca") << "another schematic";
    EXPECT_EQ(borra([] {}), "ca");
}

TEST_F(Estados, GoingBackReturnsToTheStateBefore) {
    estados.Estado(0, 1);  // of a viewer that has just started
    EXPECT_EQ(trabajo.iEstado, 5);
    estados.Estado(18, 1);
    estados.Estado(0, 1);
    EXPECT_EQ(trabajo.iEstado, 5);
    EXPECT_EQ(trabajo.iEstadoAnterior, 18);
    estados.Estado(22, 1);
    EXPECT_EQ(trabajo.iEstadoAnterior, 5);
    EXPECT_TRUE(Falla([&] { estados.Estado(6, 1); }, {"Estado de visor ", ". ErrEstado (Esquema)"}))
        << "none selected";
}

TEST_F(Estados, ADragStartsFromWhereTheElementOrItsLabelIs) {
    Empieza(5, NUDO);
    estados.Estado(13, 1);
    EXPECT_EQ(Cifra(trabajo.puntoReferencia->XPos()) + "," + Cifra(trabajo.puntoReferencia->YPos()), "10,20");
    Empieza(5, NUDO);
    Elem(NUDO)->EtiquetaPosX(5);
    estados.Estado(16, 1);
    // Corner, size and the way from the press, at (3, 4), to the corner.
    EXPECT_EQ(Relato(trabajo.trazadoTemporal), "15,20 40,-16 12,16");
}

TEST_F(Estados, TheStatusBarShowsThePositionOrTheStateWhileDebugging) {
    estados.MuestraPosicion(-3.25F, 1234.06F);
    EXPECT_EQ(anfitrion.textos[2] + " " + anfitrion.textos[3], "x=-3.2 y=1234.1");
    trabajo.bDepurarEstado = true;
    for (const auto& [estado, nombre] : {std::pair(3, "Dibujando conducción"), {20, ""}, {99, "Pruebas"}}) {
        trabajo.iEstado = estado;
        estados.MuestraPosicion(1, 1);
        EXPECT_EQ(anfitrion.textos[2], "Alt+F10/F11");
        EXPECT_EQ(anfitrion.textos[3], std::string("Estado ") + nombre);
    }
}

}  // namespace zel::pruebas
