#include <gtest/gtest.h>

#include "editing/Nombres.h"
#include "support/MesaDeEdicion.h"

namespace zel::pruebas {

// A node, a reservoir, a demand, an aquifer and an inflow; 20 is the highest code and 5 the highest number
// of each kind, 11 of the nodes. Clicks are letters, capital ones with the right button, d and l with the
// middle one: n, e, d, a and i on those elements, v, l, s, m, f and t on empty panel.
class Creando : public MesaDeEdicion {
  protected:
    void Empieza(TipoElemento tipo, const std::string& clics = {}) {
        documento = {};
        Pon({Simbolo(ctNudo, {20, 20}), Simbolo(ctEmbalse, {120, 20}), Simbolo(ctDemanda, {120, 60}),
             Simbolo(ctAcuifero, {20, 60}), Lineal(ctAportacion, {60, 90}, {{60, 86}, {60, 80}})});
        documento.UltimoKeyPant.fill(5);
        documento.UltimoKeyPant[ctNudo] = 11;
        documento.UltimoCodSIG = 20;
        trabajo = {};
        trabajo.iTipoHerramienta = tipo;
        estados.Estado(2, 1);
        Pulsa(clics);
    }
    void Pulsa(const std::string& clics) {
        static const std::map<char, PuntoXY> LUGARES = {{'n', {20, 20}},  {'e', {120, 20}}, {'d', {120, 60}},
                                                        {'a', {20, 60}},  {'i', {60, 90}},  {'v', {20, 40}},
                                                        {'l', {120, 40}}, {'s', {70, 40}},  {'m', {70, 20}},
                                                        {'f', {90, 90}},  {'t', {60, 41}}};
        for (const char clic : clics) {
            const PuntoXY p = LUGARES.at(static_cast<char>(clic | 0x20));
            panel.FontSize(40);  // as a mark may leave it
            creacion.Pulsa(clic < 'a' ? 2 : clic == 'd' || clic == 'l' ? 4 : 1, p.X, p.Y);
            refresco.RefrescarSiPendiente();
        }
    }
    static std::string Figura(const std::shared_ptr<Puntos>& uno, const std::shared_ptr<Puntos>& otro) {
        return Relato(uno) + (otro ? " | " + Relato(otro) : "");
    }
    // "3 24,20 70,20 | 74,20 90,20": the state, the trace and what is behind the plant.
    std::string EnCurso() const {
        return std::to_string(trabajo.iEstado) + " " + Figura(trabajo.trazadoNuevo, trabajo.trazadoNuevo2);
    }
};

TEST_F(Creando, EachKindHasItsClicksItsTraceItsNameAndItsEnds) {
    const std::pair<const char*, const char*> filas[] = {
        {"v", "Nudo nº 12, 0 0-0: 20,40 +5.2,4 "},
        {"l", "Embalse nº 12, 1 0-0: 120,40 +5.2,4 "},
        {"v", "Demanda nº 6, 2 0-0: 20,40 +5.2,4 "},
        {"v", "Acuífero nº 6, 3 0-0: 20,40 +5.2,4 "},
        {"ne", "Conducción tipo1 nº 6, 4 1-2: 70,20 +0,-1 24,20 116,20"},
        {"en", "Conducción tipo2 nº 6, 5 2-1: 70,20 +0,-1 116,20 24,20"},
        {"nvle", "Conducción tipo3 nº 6, 6 1-2: 70,40 +0,-1 20,24 20,40 120,40 120,24"},
        {"ne", "Conducción tipo4 nº 6, 7 1-2: 70,20 +0,-1 24,20 116,20"},
        {"ne", "Conducción tipo5 nº 6, 8 1-2: 70,20 +0,-1 24,20 116,20"},
        {"na", "Recarga nº 6, 9 1-4: 20,40 +1,16 20,24 20,56"},
        {"an", "Bombeo nº 6, 10 4-1: 20,40 +1,16 20,56 20,24"},
        {"ed", "Toma nº 6, 11 2-3: 120,40 +1,16 120,24 120,56"},
        {"nvSle",
         "Central Hidroeléctrica nº 6, 12 1-2: 70,40 +5.2,4 20,24 20,40 66,40 | 74,40 120,40 120,24"},
        {"nV", "Aportación nº 6, 13 21-1: 20,40 +5.2,4 20,36 20,24"},
        {"elS", "Retorno nº 6, 14 21-2: 70,40 +5.2,4 74,40 120,40 120,24"},
        {"iF", "Subcuenca nº 6, 15 21-5: 90,90 +5.2,4 86,90 64,90"}};
    for (std::int32_t i = ctNudo; i <= ctSubcuenca; ++i) {
        const auto tipo = static_cast<TipoElemento>(i);
        const auto& [clics, relato] = filas[i];
        Empieza(tipo, clics);
        const auto e = Elem(21);
        ASSERT_TRUE(e) << relato;
        const std::string seleccionado = "Seleccionado 21; Creado ", eventos = anfitrion.Eventos();
        ASSERT_TRUE(eventos.starts_with(seleccionado)) << eventos;
        EXPECT_EQ(e->Nombre() + ", " + eventos.substr(seleccionado.size()) + ": " + Cifra(e->XPos()) + "," +
                      Cifra(e->YPos()) + " +" + Cifra(e->EtiquetaPosX()) + "," + Cifra(e->EtiquetaPosY()) +
                      " " + Figura(e->Trazado(), e->Trazado2()),
                  relato);
        EXPECT_EQ(e->KeyPant(), tipo <= ctEmbalse ? 12 : 6) << relato;
        EXPECT_TRUE(trabajo.elemSeleccionado == e && documento.bHabidoCambios);
        EXPECT_EQ(EnMano() + EnCurso() + Pulsados(), "e2 " + Add_Nombre(documento, tipo, true, true) + "|");
    }
}

TEST_F(Creando, WhatMayNotBeConnectedIsToldAndChangesNothing) {
    const std::string SUPERPUESTOS = "Elementos superpuestos",
                      EN_NODO = "El elemento inicial ha de ser un nodo o embalse",
                      DISTINTO = "Escoja un elemento final distinto del inicial",
                      FIN_NODO = "El elemento final debe ser un nudo o embalse",
                      NO_EN_ESE = SUPERPUESTOS + ". " + FIN_NODO;
    const std::tuple<TipoElemento, const char*, const char*, std::string> filas[] = {
        {ctConduccion1, "", "v", "Primero escoja el elemento inicial de la conducción"},
        {ctDemanda, "", "n", SUPERPUESTOS},
        {ctBombeo, "", "n", "Los bombeos parten de acuíferos"},
        {ctSubcuenca, "", "e", "El elemento inicial ha de ser una Aportación"},
        {ctRecarga, "", "a", EN_NODO},
        {ctConduccion5, "nv", "d", NO_EN_ESE},
        {ctConduccion5, "nvl", "t", NO_EN_ESE},  // its own trace
        {ctConduccion1, "nv", "n", DISTINTO},
        {ctRecarga, "n", "e", "El elemento final de la recarga debe ser un acuífero"},
        {ctToma, "n", "a", "El elemento final de una toma debe ser una demanda"},
        {ctCentralHidroelectrica, "nS", "d", FIN_NODO},
        {ctCentralHidroelectrica, "n", "n",
         "No hay ninguna central hidroeléctrica definida en la conducción. "
         "Cree una central hidroeléctrica con el botón derecho del ratón y después escoja el nodo final"},
        {ctCentralHidroelectrica, "nS", "n", DISTINTO},
        {ctCentralHidroelectrica, "nS", "F", "Ya ha definido el icono del elemento lineal"},
        {ctAportacion, "n", "e", SUPERPUESTOS},
        {ctCentralHidroelectrica, "n", "E", ""}};  // no symbol on an element
    for (const auto& [tipo, clics, ultimo, aviso] : filas) {
        Empieza(tipo, clics);
        const std::string antes = EnCurso() + EnMano();
        if (!aviso.empty()) guion.Espera(aviso);
        Pulsa(ultimo);
        EXPECT_TRUE(aviso.empty() || guion.Ultimo() == aviso) << guion.Ultimo();
        EXPECT_EQ(EnCurso() + EnMano(), antes) << aviso;
        EXPECT_EQ(anfitrion.Eventos() + std::to_string(documento.colElementos->Count()), "5");
    }
}

TEST_F(Creando, PointsAreTakenBackOneByOne) {
    // By the key, or by a press of the right button.
    const std::tuple<TipoElemento, const char*, bool, const char*> filas[] = {
        {ctConduccion1, "nvl", true, "3 20,24 20,40t; 3 t; 2 ; "},
        {ctConduccion1, "nvl", false, "3 20,24 20,40t; 3 t; 2 ; "},
        {ctAportacion, "nv", true, "3 t; 2 ; "},
        {ctCentralHidroelectrica, "nMsl", true,
         "3 24,20 66,20 | 70,24 70,40t; 3 24,20 66,20 | t; 3 24,20 66,20t; 3 t; 2 ; "}};
    for (const auto& [tipo, clics, tecla, pasos] : filas) {
        Empieza(tipo, clics);
        std::string dados;
        for (int i = 0; i < 9 && trabajo.iEstado == 3; ++i) {
            creacion.Mueve(150, 90);
            tecla ? creacion.Retrocede() : Pulsa("F");
            dados += EnCurso() + (trabajo.trazadoTemporal ? "t; " : "; ");
        }
        EXPECT_EQ(dados, pasos);
    }
}

TEST_F(Creando, TheNextSegmentFollowsTheMouse) {
    Empieza(ctCentralHidroelectrica, "n");
    panel.trazos.clear();
    creacion.Mueve(20, 90);
    creacion.Mueve(90, 20);
    EXPECT_EQ(Relato(panel.trazos), "linea 20,24 20,90; linea 20,24 20,90; linea 24,20 90,20");
    for (const auto& [clic, tramo] : {std::pair("v", "linea 20,40 70,90"), {"S", "linea 70,44 70,90"}}) {
        Pulsa(clic);  // which repaints
        panel.trazos.clear();
        creacion.Mueve(70, 90);
        EXPECT_EQ(Relato(panel.trazos), tramo);
    }
}

TEST_F(Creando, WhatFailsCreatesNothingAndKeepsTheTrace) {
    Empieza(ctEmbalse);
    documento.UltimoKeyPant[ctNudo] = 32767;
    EXPECT_THROW(Pulsa("v"), Fallo);
    EXPECT_EQ(documento.UltimoCodSIG, 20);
    Empieza(ctToma, "e");
    documento.UltimoCodSIG = 2147483647;
    EXPECT_THROW(Pulsa("d"), Fallo);
    EXPECT_EQ(EnCurso() + std::to_string(documento.UltimoKeyPant[ctToma]), "3 5");
    Empieza(ctConduccion1, "n");
    Elem(2)->XPos(28);  // their outlines touch: there is no way between them
    EXPECT_THROW(creacion.Pulsa(1, 31, 20), Error);
    EXPECT_EQ(EnCurso() + std::to_string(documento.UltimoCodSIG), "3 20");
    Empieza(ctConduccion1, "nv");
    documento.UltimoCodSIG = 2;
    guion.Espera("La colección de elementos ya contiene un elemento con codigo gfCodSIG 3");
    Pulsa("e");
    EXPECT_EQ(EnCurso() + " " + std::to_string(documento.UltimoCodSIG), "3 20,24 20,40 3");
    Elem(1)->gfCodSIG(4);  // without its key
    guion.Espera("La colección de elementos ya contiene un elemento con codigo gfCodSIG 4");
    Pulsa("e");
    EXPECT_EQ(anfitrion.Eventos() + std::to_string(documento.colElementos->Count()), "5");
}

TEST_F(Creando, TheHostMayInterfere) {
    anfitrion.alAnotar = [&](const std::string& evento) {
        if (!evento.starts_with("Seleccionado")) return;
        Pulsa("le");  // with no trace to go on with
        estados.Estado(5, 1);
    };
    Empieza(ctToma, "ed");
    EXPECT_EQ(anfitrion.Eventos(), "Seleccionado 21; Creado 11 2-3");
    EXPECT_EQ(std::to_string(trabajo.iEstado) + Pulsados(), "2toma|");
    anfitrion.alAnotar = [&](const std::string&) { documento.colElementos->RemoveCodSIG(21); };
    Empieza(ctNudo, "v");
    EXPECT_EQ(anfitrion.Eventos(), "Seleccionado 21");
    Empieza(ctToma, "e");
    EXPECT_EQ(trabajo.sTextoSeleccion(), "[2] ");
    trabajo.elemSeleccionado.reset();
    creacion.Mueve(70, 70);
    Pulsa("d");
    EXPECT_EQ(EnCurso() + anfitrion.Eventos(), "2 ");
}

TEST_F(Creando, ANewSymbolIsDrawnWithoutTheOthersAndHasItsMenu) {
    Empieza(ctDemanda);
    Elem(1)->CopiaPropiedades(Rotulado("otro", {20, 20}));
    Selecciona(1);
    Repinta();
    panel.trazos.clear();
    creacion.Pulsa(1, 120, 40);
    EXPECT_EQ(panel.Textos(), (std::vector<std::string>{"6", "Demanda nº 6"}));
    EXPECT_TRUE(Relato(panel.trazos).starts_with("caja 15,15 25,25; caja ")) << "the old highlight goes";
    Pulsa("LE");
    EXPECT_EQ(anfitrion.Eventos(), "Seleccionado 21; Creado 2 0-0; Menu");
    EXPECT_EQ(std::to_string(trabajo.iEstado) + Pulsados(), "5flecha|") << "elsewhere the tool is put down";
}

}  // namespace zel::pruebas
