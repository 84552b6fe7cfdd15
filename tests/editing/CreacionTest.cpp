#include <gtest/gtest.h>

#include "editing/Nombres.h"
#include "support/MesaDeEdicion.h"

namespace zel::pruebas {

// A node, a reservoir, a demand, an aquifer and an inflow; 20 is the highest code and 5 the highest number
// of each kind, 11 of the nodes.
class Creando : public MesaDeEdicion {
  protected:
    struct Clic {
        std::int16_t boton;
        float x, y;
    };
    using Clics = std::vector<Clic>;
    static constexpr Clic NUDO{1, 20, 20}, EMBALSE{1, 120, 20}, DEMANDA{4, 120, 60}, ACUIFERO{1, 20, 60},
        APORTACION{1, 60, 90}, VACIO{1, 20, 40}, LEJOS{4, 120, 40}, SIMBOLO{2, 70, 40};

    void Empieza(TipoElemento tipo, const Clics& clics = {}) {
        Pon({Simbolo(ctNudo, {20, 20}), Simbolo(ctEmbalse, {120, 20}), Simbolo(ctDemanda, {120, 60}),
             Simbolo(ctAcuifero, {20, 60}), Lineal(ctAportacion, {60, 90}, {{60, 86}, {60, 80}})});
        documento.UltimoKeyPant.fill(5);
        documento.UltimoKeyPant[ctNudo] = 11;
        documento.UltimoCodSIG = 20;
        documento.bHabidoCambios = false;
        trabajo = {};
        trabajo.iTipoHerramienta = tipo;
        estados.Estado(2, 1);
        Pulsa(clics);
    }
    void Pulsa(const Clics& clics) {
        for (const Clic& clic : clics) {
            creacion.Pulsa(clic.boton, clic.x, clic.y);
            refresco.RefrescarSiPendiente();
        }
    }
    // "3 24,20 70,20 | 74,20": the state, the trace and what is behind the plant.
    std::string EnCurso() const {
        const std::string primero = std::to_string(trabajo.iEstado) + " " + Relato(trabajo.trazadoNuevo);
        return trabajo.trazadoNuevo2 ? primero + " | " + Relato(trabajo.trazadoNuevo2) : primero;
    }
};

TEST_F(Creando, EachKindHasItsClicksItsTraceItsNameAndItsEnds) {
    const std::tuple<TipoElemento, Clics, const char*, const char*, const char*> filas[] = {
        {ctNudo, {VACIO}, "20,40 +5.2,4", "Nudo nº 12", "0 0-0"},
        {ctEmbalse, {LEJOS}, "120,40 +5.2,4", "Embalse nº 12", "1 0-0"},
        {ctDemanda, {VACIO}, "20,40 +5.2,4", "Demanda nº 6", "2 0-0"},
        {ctAcuifero, {VACIO}, "20,40 +5.2,4", "Acuífero nº 6", "3 0-0"},
        {ctConduccion1, {NUDO, EMBALSE}, "70,20 +0,-1 24,20 116,20", "Conducción tipo1 nº 6", "4 1-2"},
        {ctConduccion2, {EMBALSE, NUDO}, "70,20 +0,-1 116,20 24,20", "Conducción tipo2 nº 6", "5 2-1"},
        {ctConduccion3,
         {NUDO, VACIO, LEJOS, EMBALSE},
         "70,40 +0,-1 20,24 20,40 120,40 120,24",
         "Conducción tipo3 nº 6",
         "6 1-2"},
        {ctConduccion4, {NUDO, EMBALSE}, "70,20 +0,-1 24,20 116,20", "Conducción tipo4 nº 6", "7 1-2"},
        {ctConduccion5, {NUDO, EMBALSE}, "70,20 +0,-1 24,20 116,20", "Conducción tipo5 nº 6", "8 1-2"},
        {ctRecarga, {NUDO, ACUIFERO}, "20,40 +1,16 20,24 20,56", "Recarga nº 6", "9 1-4"},
        {ctBombeo, {ACUIFERO, NUDO}, "20,40 +1,16 20,56 20,24", "Bombeo nº 6", "10 4-1"},
        {ctToma, {EMBALSE, DEMANDA}, "120,40 +1,16 120,24 120,56", "Toma nº 6", "11 2-3"},
        {ctCentralHidroelectrica,
         {NUDO, VACIO, SIMBOLO, LEJOS, EMBALSE},
         "70,40 +5.2,4 20,24 20,40 66,40 | 74,40 120,40 120,24",
         "Central Hidroeléctrica nº 6",
         "12 1-2"},
        {ctAportacion, {NUDO, {2, 20, 40}}, "20,40 +5.2,4 20,36 20,24", "Aportación nº 6", "13 21-1"},
        {ctRetorno, {EMBALSE, LEJOS, SIMBOLO}, "70,40 +5.2,4 74,40 120,40 120,24", "Retorno nº 6", "14 21-2"},
        {ctSubcuenca, {APORTACION, {2, 90, 90}}, "90,90 +5.2,4 86,90 64,90", "Subcuenca nº 6", "15 21-5"}};
    for (const auto& [tipo, clics, figura, nombre, extremos] : filas) {
        Empieza(tipo, clics);
        const auto e = Elem(21);
        ASSERT_TRUE(e) << nombre;
        std::string relato = Cifra(e->XPos()) + "," + Cifra(e->YPos()) + " +" + Cifra(e->EtiquetaPosX()) +
                             "," + Cifra(e->EtiquetaPosY());
        if (e->Trazado()) relato += " " + Relato(e->Trazado());
        if (e->Trazado2()) relato += " | " + Relato(e->Trazado2());
        EXPECT_EQ(relato, figura) << nombre;
        EXPECT_EQ(e->Nombre(), nombre);
        EXPECT_EQ(e->KeyPant(), tipo <= ctEmbalse ? 12 : 6) << nombre;
        EXPECT_EQ(anfitrion.Eventos(), std::string("Seleccionado 21; Creado ") + extremos);
        EXPECT_EQ(trabajo.elemSeleccionado, e);
        EXPECT_EQ(EnMano() + std::to_string(trabajo.iEstado) + Pulsados(),
                  "e2" + Add_Nombre(documento, tipo, true, true) + "|");
        EXPECT_TRUE(documento.bHabidoCambios);
    }
}

TEST_F(Creando, WhatMayNotBeConnectedIsToldAndChangesNothing) {
    const char* const SUPERPUESTOS = "Elementos superpuestos";
    const char* const NO_EN_ESE = "Elementos superpuestos. El elemento final debe ser un nudo o embalse";
    const char* const EN_NODO = "El elemento inicial ha de ser un nodo o embalse";
    const char* const DISTINTO = "Escoja un elemento final distinto del inicial";
    const std::tuple<TipoElemento, Clics, Clic, std::string> filas[] = {
        {ctConduccion1, {}, VACIO, "Primero escoja el elemento inicial de la conducción"},
        {ctDemanda, {}, NUDO, SUPERPUESTOS},
        {ctBombeo, {}, NUDO, "Los bombeos parten de acuíferos"},
        {ctSubcuenca, {}, EMBALSE, "El elemento inicial ha de ser una Aportación"},
        {ctRecarga, {}, ACUIFERO, EN_NODO},
        {ctRetorno, {}, DEMANDA, EN_NODO},
        {ctConduccion5, {NUDO, VACIO}, DEMANDA, NO_EN_ESE},
        {ctConduccion5, {NUDO, VACIO, LEJOS}, {1, 60, 41}, NO_EN_ESE},  // its own trace
        {ctConduccion1, {NUDO, VACIO}, NUDO, DISTINTO},
        {ctBombeo, {ACUIFERO}, ACUIFERO, NO_EN_ESE},
        {ctRecarga, {NUDO}, EMBALSE, "El elemento final de la recarga debe ser un acuífero"},
        {ctToma, {NUDO}, ACUIFERO, "El elemento final de una toma debe ser una demanda"},
        {ctCentralHidroelectrica, {NUDO}, DEMANDA, "El elemento final debe ser un nudo o embalse"},
        {ctCentralHidroelectrica, {NUDO}, NUDO, "No hay ninguna central hidroeléctrica definida en la"},
        {ctCentralHidroelectrica, {NUDO, SIMBOLO}, NUDO, DISTINTO},
        {ctCentralHidroelectrica, {NUDO, SIMBOLO}, {2, 90, 40}, "Ya ha definido el icono del elemento"},
        {ctAportacion, {NUDO}, EMBALSE, SUPERPUESTOS},
        {ctCentralHidroelectrica, {NUDO}, {2, 120, 20}, ""}};  // the right button places symbols, or nothing
    for (const auto& [tipo, clics, ultimo, aviso] : filas) {
        Empieza(tipo, clics);
        const std::string antes = EnCurso() + EnMano();
        if (!aviso.empty()) guion.Espera(aviso);
        Pulsa({ultimo});
        EXPECT_EQ(guion.Ultimo().compare(0, aviso.size(), aviso), 0) << guion.Ultimo();
        EXPECT_EQ(EnCurso() + EnMano(), antes) << aviso;
        EXPECT_EQ(documento.colElementos->Count(), 5);
        EXPECT_EQ(anfitrion.Eventos() + std::to_string(documento.UltimoCodSIG), "20");
    }
}

TEST_F(Creando, BackspaceTakesBackPointByPoint) {
    const std::tuple<TipoElemento, Clics, std::vector<const char*>> filas[] = {
        {ctConduccion1, {NUDO, VACIO, LEJOS}, {"3 20,24 20,40", "3 ", "2 "}},
        {ctAportacion, {NUDO, VACIO}, {"3 ", "2 "}},
        {ctCentralHidroelectrica,
         {NUDO, SIMBOLO, LEJOS, {1, 150, 40}},
         {"3 22.13,23.39 67.88,38.31 | 74,40 120,40", "3 22.13,23.39 67.88,38.31 | ",
          "3 22.13,23.39 67.88,38.31", "3 ", "2 "}}};
    for (const auto& [tipo, clics, pasos] : filas) {
        for (const bool tecla : {true, false}) {
            if (!tecla && tipo >= ctCentralHidroelectrica) continue;
            Empieza(tipo, clics);
            for (const char* paso : pasos) {
                if (tecla)
                    creacion.Retrocede();
                else
                    Pulsa({{2, 90, 90}});
                EXPECT_EQ(EnCurso(), paso) << tipo;
            }
        }
    }
}

TEST_F(Creando, TheNextSegmentFollowsTheMouse) {
    Empieza(ctCentralHidroelectrica, {NUDO});
    panel.trazos.clear();
    creacion.Mueve(20, 90);
    creacion.Mueve(90, 20);
    EXPECT_EQ(Relato(panel.trazos), "linea 20,24 20,90; linea 20,24 20,90; linea 24,20 90,20");
    EXPECT_EQ(panel.trazos.back().pluma.DrawMode, Superficie::MODO_INVERTIR);
    for (const auto& [clic, tramo] :
         {std::pair(VACIO, "linea 20,40 70,90"), {SIMBOLO, "linea 70,44 70,90"}}) {
        Pulsa({clic});  // which repaints
        panel.trazos.clear();
        creacion.Mueve(70, 90);
        EXPECT_EQ(Relato(panel.trazos), tramo);
    }
}

TEST_F(Creando, WhatFailsCreatesNothingAndKeepsTheTrace) {
    const auto creado = [&] { return documento.colElementos->Count() - 5; };
    Empieza(ctEmbalse);
    documento.UltimoKeyPant[ctNudo] = 32767;
    EXPECT_THROW(Pulsa({VACIO}), Fallo);
    EXPECT_EQ(documento.UltimoCodSIG, 20);
    Empieza(ctToma, {EMBALSE});
    documento.UltimoCodSIG = 2147483647;
    EXPECT_THROW(Pulsa({DEMANDA}), Fallo);
    EXPECT_EQ(EnCurso() + std::to_string(documento.UltimoKeyPant[ctToma]), "3 5");
    Empieza(ctConduccion1, {NUDO});
    Elem(2)->XPos(28);  // their outlines touch: there is no way between them
    EXPECT_THROW(Pulsa({{1, 31, 20}}), Error);
    EXPECT_EQ(EnCurso() + std::to_string(documento.UltimoCodSIG), "3 20");
    Empieza(ctConduccion1, {NUDO, VACIO});
    documento.UltimoCodSIG = 2;
    guion.Espera("La colección de elementos ya contiene un elemento con codigo gfCodSIG 3");
    Pulsa({EMBALSE});
    EXPECT_EQ(EnCurso() + " " + std::to_string(documento.UltimoCodSIG), "3 20,24 20,40 3");
    EXPECT_EQ(anfitrion.Eventos() + std::to_string(creado()), "0");
}

TEST_F(Creando, TheRightButtonPutsTheToolDownOrOpensTheMenuOfTheSelectedElement) {
    Empieza(ctNudo, {VACIO, {2, 20, 40}});
    EXPECT_EQ(anfitrion.Eventos() + std::to_string(trabajo.iEstado), "Seleccionado 21; Creado 0 0-0; Menu2");
    Pulsa({{2, 120, 20}});
    EXPECT_EQ(std::to_string(trabajo.iEstado) + Pulsados(), "5flecha|");
}

TEST_F(Creando, TheHostMayInterfere) {
    anfitrion.alAnotar = [&](const std::string& evento) {
        if (!evento.starts_with("Seleccionado")) return;
        estados.Estado(5, 1);
        Pulsa({{1, 70, 80}});
    };
    Empieza(ctToma, {EMBALSE, DEMANDA});
    EXPECT_EQ(anfitrion.Eventos(), "Seleccionado 21; Creado 11 2-3");
    EXPECT_EQ(std::to_string(trabajo.iEstado) + Pulsados(), "2toma|");
    anfitrion.alAnotar = [&](const std::string&) { documento.colElementos->RemoveCodSIG(21); };
    Empieza(ctNudo, {VACIO});
    EXPECT_EQ(anfitrion.Eventos(), "Seleccionado 21");
    Empieza(ctToma, {EMBALSE});
    trabajo.elemSeleccionado.reset();
    creacion.Mueve(70, 70);
    Pulsa({DEMANDA});
    EXPECT_EQ(EnCurso() + anfitrion.Eventos(), "2 ");
}

TEST_F(Creando, ANewSymbolIsDrawnWithoutTheOthers) {
    Empieza(ctDemanda);
    Elem(1)->MostrarEtiqueta(true);
    Elem(1)->Nombre("otro");
    Selecciona(1);
    Repinta();
    panel.trazos.clear();
    creacion.Pulsa(1, 120, 40);
    EXPECT_EQ(panel.Textos(), (std::vector<std::string>{"6", "Demanda nº 6"}));
    EXPECT_EQ(panel.De(Que::Caja).size(), 5U)
        << "the old highlight goes, the new one comes: " << Relato(panel.trazos);
    EXPECT_EQ(panel.limpiezas, 0);
}

}  // namespace zel::pruebas
