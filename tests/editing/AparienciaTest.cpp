#include "editing/Apariencia.h"

#include "drawing/Colores.h"
#include "editing/ComandosDeMenu.h"
#include "model/TamanyoUnidad.h"
#include "support/MesaDeEdicion.h"

namespace zel::pruebas {

// Two nodes, the conduit between them and an inflow, with the codes 1 to 4.
class Aspecto : public MesaDeEdicion {
  protected:
    Aspecto() {
        Pon({ConNombre(Simbolo(ctNudo, {20, 20}), "Uno"), ConNombre(Simbolo(ctNudo, {80, 20}), "Dos"),
             ConNombre(Lineal(ctConduccion1, {50, 20}, {{24, 20}, {76, 20}}), "Río"),
             ConNombre(Lineal(ctAportacion, {80, 60}, {{80, 56}, {80, 24}}), "Entra")});
        Elem(3)->ElemIni(1);
        Elem(3)->ElemFin(2);
        anfitrion.alAnotar = [this](const std::string&) {
            enSuceso = std::to_string(trabajo.iEstado) + (documento.bHabidoCambios ? " c" : " -");
        };
    }
    // Runs a command from a changeless state 8; "8 -" is what the host's event has found.
    template <typename T>
    std::string Tras(T& ordenes, void (T::*orden)(), std::int32_t codigo) {
        trabajo.iEstado = 8;
        documento.bHabidoCambios = false;
        Selecciona(codigo);
        (ordenes.*orden)();
        EXPECT_FALSE(refresco.bRefrescoPendiente());
        return std::to_string(trabajo.iEstado) + (documento.bHabidoCambios ? " c" : " -") +
               (trabajo.elemSeleccionado ? " e " : " ") + anfitrion.Eventos();
    }

    std::string recortados, enSuceso;
    Apariencia apariencia{
        panel,    documento, trabajo,
        refresco, vista,     avisos,
        estados,  anfitrion, [this](const auto& e) { recortados += std::to_string(e->gfCodSIG()) + " "; }};
    DialogoComun dialogo;
    std::vector<std::pair<std::string, std::int32_t>> exportado;
    ComandosDeMenu comandos{panel,
                            documento,
                            trabajo,
                            refresco,
                            vista,
                            estados,
                            anfitrion,
                            dialogo,
                            [this](const std::string& ruta, const auto& elementos) {
                                exportado.emplace_back(ruta, elementos->Count());
                            }};
    const char* const NO_NUMERO = "Introduzca una expresión numérica";
    const char* const INCORRECTO = "Valor numérico incorrecto";
};

TEST_F(Aspecto, ASizeIsAskedForUntilItIsOne) {
    using Respuestas = std::vector<std::optional<std::string>>;
    const std::string hecho = "5 c e Modificado ", nada = "8 - e ";
    const std::tuple<std::int32_t, Respuestas, std::vector<const char*>, std::string, float, const char*>
        filas[] = {
            {1, {"49", "3300"}, {INCORRECTO}, hecho + "1", 33, "1 "},
            {1,
             {"3300.5", "1e999", "cien", " 50 "},
             {INCORRECTO, INCORRECTO, NO_NUMERO},
             hecho + "1",
             0.5F,
             "1 "},
            {4, {"120,5"}, {}, hecho + "4", 1.205F, "4 "},
            {1, {""}, {}, nada, 1.2F, ""},
            {3, {std::nullopt}, {}, nada, 1.2F, ""},
            {3, {"0.9", "ancho", "21", "20"}, {INCORRECTO, NO_NUMERO, INCORRECTO}, hecho + "3", 20, ""}};
    for (const auto& [codigo, respuestas, avisosEsperados, queda, tamanyo, recortado] : filas) {
        Elem(codigo)->Tamanyo(1.2F);
        recortados.clear();
        for (const auto& r : respuestas)
            guion.Responde(r);
        for (const char* aviso : avisosEsperados)
            guion.Espera(aviso);
        EXPECT_EQ(Tras(apariencia, &Apariencia::menuContextualTamanyo_Click, codigo), queda);
        EXPECT_EQ(guion.Propuesta(), codigo == 3 ? "1.2" : "120");
        EXPECT_EQ(guion.Pregunta(), codigo == 3
                                        ? "Escriba el grosor deseado para la conducción (entre 1 y 20):"
                                        : "Escriba el tamaño deseado para el elemento (mín 50%, máx 3300%):");
        EXPECT_EQ(Elem(codigo)->Tamanyo(), tamanyo);
        EXPECT_EQ(recortados, recortado);
    }
    EXPECT_EQ(enSuceso, "8 -") << "the host is told first";
    guion.Espera("No hay ningún elemento seleccionado en el panel");
    EXPECT_EQ(Tras(apariencia, &Apariencia::menuContextualTamanyo_Click, 0), "8 - ");
}

TEST_F(Aspecto, ALabelsSizeHasNoUpperLimit) {
    for (const char* respuesta : {"49", "grande", "12000"})
        guion.Responde(respuesta);
    guion.Espera("El tamaño mínimo permitido para un elemento es del 50%");
    guion.Espera(INCORRECTO);
    EXPECT_EQ(Tras(apariencia, &Apariencia::menuContextualTamanyoEtiqueta_Click, 3), "5 c e Modificado 3");
    EXPECT_EQ(Elem(3)->EtiquetaTamanyo(), 120);
    guion.Responde(std::nullopt);
    EXPECT_EQ(Tras(apariencia, &Apariencia::menuContextualTamanyoEtiqueta_Click, 3), "8 - e ");
    EXPECT_EQ(guion.Propuesta(), "12000");
}

TEST_F(Aspecto, AColourIsStoredEvenWhenCancelled) {
    guion.ResponderColor(RGB(1, 2, 3));
    EXPECT_EQ(Tras(apariencia, &Apariencia::menuContextualColorIcono_Click, 1), "5 c Modificado 1");
    EXPECT_EQ(guion.ColorPropuesto(), ColorDeIcono(ctNudo));
    guion.ResponderColor(std::nullopt);
    Tras(apariencia, &Apariencia::menuContextualColorIcono_Click, 1);
    EXPECT_EQ(Elem(1)->ColorIcono(), RGB(1, 2, 3));
    guion.ResponderColor(std::nullopt);
    EXPECT_EQ(Tras(apariencia, &Apariencia::menuContextualColorLinea_Click, 3), "5 c Modificado 3");
    EXPECT_EQ(Elem(3)->ColorLinea(), ColorDeLinea(ctConduccion1));
    EXPECT_EQ(enSuceso, "8 -");
}

TEST_F(Aspecto, AnElementThatGoesWhileItsBoxIsOpenEndsTheCommand) {
    guion.MientrasAvisa([this] {
        documento.colElementos = std::make_shared<Elementos>();
        Numera(*documento.colElementos, {Lineal(ctConduccion1, {50, 20}, {{24, 20}, {76, 20}})});
    });
    guion.Responde("3300");
    guion.Responde("200");
    guion.ResponderColor(7);
    for (const auto orden :
         {&Apariencia::menuContextualTamanyo_Click, &Apariencia::menuContextualTamanyoEtiqueta_Click,
          &Apariencia::menuContextualColorIcono_Click}) {
        Pon({Simbolo(ctNudo, {20, 20})});
        EXPECT_EQ(Tras(apariencia, orden, 1), "8 - e ");
        EXPECT_EQ(Elem(1)->Tamanyo() * Elem(1)->EtiquetaTamanyo(), 1);
    }
}

TEST_F(Aspecto, LabelsAreShownStuckAndMadeRelative) {
    EXPECT_EQ(Tras(apariencia, &Apariencia::menuContextualMostrarEtiqueta_Click, 1), "5 c e Modificado 1");
    EXPECT_EQ(enSuceso, "5 c");
    EXPECT_FALSE(Elem(1)->MostrarEtiqueta());
    panel.limpiezas = 0;
    EXPECT_EQ(Tras(apariencia, &Apariencia::menuContextualEtiquetaTamanyoRelativo_Click, 1),
              "8 c e Modificado 1");
    EXPECT_FALSE(Elem(1)->EtiquetaTamanyoRelativo());
    EXPECT_EQ(panel.limpiezas, 1);
    const auto pega = [&](std::int32_t codigo, bool movida) {
        Elem(codigo)->EtiquetaMovida(movida);
        Elem(codigo)->XPos(33);
        Elem(codigo)->EtiquetaPosX(99);
        EXPECT_EQ(Tras(apariencia, &Apariencia::menuContextualEtiquetaPegajosa_Click, codigo),
                  "5 c e Modificado " + std::to_string(codigo));
        EXPECT_FALSE(Elem(codigo)->EtiquetaMovida());
        return Cifra(Elem(codigo)->XPos()) + " " + Cifra(Elem(codigo)->EtiquetaPosX() / TamanyoUnidad());
    };
    EXPECT_EQ(pega(1, true), "33 1.3");
    EXPECT_EQ(pega(3, true), "50 0");
    EXPECT_EQ(pega(3, false), "33 " + Cifra(99 / TamanyoUnidad())) << "it sticks already";
    Elem(3)->Trazado(Traza({{5, 5}, {5, 5}}));
    Elem(3)->EtiquetaMovida(true);
    EXPECT_TRUE(Falla([&] { Tras(apariencia, &Apariencia::menuContextualEtiquetaPegajosa_Click, 3); },
                      {"Estado de visor 8. ErrmenuContextualEtiquetaPegajosa_Click (Esquema)"}));
    EXPECT_TRUE(Elem(3)->EtiquetaMovida());
}

TEST_F(Aspecto, AllSizesChangeAtOnceWithoutAWordToTheHost) {
    const auto pide = [&](void (Apariencia::*orden)(), std::optional<std::string> respuesta) {
        for (const auto& e : *documento.colElementos) {
            e->Tamanyo(2);
            e->EtiquetaTamanyo(static_cast<float>(e->gfCodSIG()));
        }
        recortados.clear();
        guion.Responde(respuesta);
        std::string texto = Tras(apariencia, orden, 2) + recortados + "|";
        for (const auto& e : *documento.colElementos)
            texto += " " + Cifra(orden == &Apariencia::menuVisorModifElems_Click ? e->Tamanyo()
                                                                                 : e->EtiquetaTamanyo());
        return texto;
    };
    for (const auto& [respuesta, queda] : {std::pair("10", "5 c e 1 2 4 | 0.5 0.5 2 0.5"),
                                           {"1e999", "5 c e 1 2 4 | 33 33 2 33"},
                                           {"151", "5 c e 1 2 4 | 1.51 1.51 2 1.51"},
                                           {"mucho", "8 - e | 2 2 2 2"}})
        EXPECT_EQ(pide(&Apariencia::menuVisorModifElems_Click, respuesta), queda);
    for (const auto& [respuesta, queda] :
         {std::pair("1000", "5 c e | 5 10 15 20"), {"1", "5 c e | 0.1 0.2 0.3 0.4"}, {"", "8 - e | 1 2 3 4"}})
        EXPECT_EQ(pide(&Apariencia::menuVisorModifFtes_Click, respuesta), queda);
}

TEST_F(Aspecto, CommandsForTheHostAndThoseThatBeginAGesture) {
    using C = ComandosDeMenu;
    const std::tuple<void (C::*)(), const char*, const char*> filas[] = {
        {&C::menuAdjuntar_Click, "8 - e Adjuntar 2", "8 - "},
        {&C::menuAdjuntarVer_Click, "8 - e Ver 2", "8 - "},
        {&C::menuContextualEditarElemento_Click, "5 - e Editar 2", "8 - "},
        {&C::menuContextualNodosConduccion_Click, "8 - e ", "8 - "},
        {&C::menuContextualMoverElemento_Click, "6 c e ", "8 - "},
        {&C::menuContextualMoverEtiqueta_Click, "7 c e ", "8 - "},
        {&C::menuVisorSubSistema_Click, "10 - e ", "10 - "},
        {&C::menuContextualSalirSeleccion_Click, "5 - e ", "5 - "},
        {&C::menuVisorNoEtiquetas_Click, "5 - e ", "5 - "},
        {&C::menuVisorMostrarLineasOcultas_Click, "5 c e ", "5 c "}};
    for (const auto& [orden, conElemento, sinElemento] : filas) {
        EXPECT_EQ(Tras(comandos, orden, 2), conElemento);
        EXPECT_EQ(documento.bMostrarEtiquetas, orden != &C::menuVisorNoEtiquetas_Click);
        EXPECT_EQ(documento.bMostrarLineasOcultas, orden != &C::menuVisorMostrarLineasOcultas_Click);
        EXPECT_EQ(Tras(comandos, orden, 0), sinElemento);
    }
}

TEST_F(Aspecto, OnlyASelectedSubsystemIsExportedAndItStaysSelected) {
    comandos.menuContextualSeleccionExportar_Click();
    LlenaLaMano(2);
    for (const auto& ruta : {std::optional<std::string>("parte.xml"), {}}) {
        trabajo.iEstado = 12;
        guion.ResponderArchivo(ruta);
        comandos.menuContextualSeleccionExportar_Click();
        EXPECT_EQ(trabajo.iEstado, 12);
    }
    guion.MientrasAvisa([this] { estados.Estado(5, 1); });
    guion.ResponderArchivo("tarde.xml");
    comandos.menuContextualSeleccionExportar_Click();
    EXPECT_EQ(exportado, (decltype(exportado){{"parte.xml", 1}}));
}

}  // namespace zel::pruebas
