#include "editing/Apariencia.h"

#include "drawing/Colores.h"
#include "editing/ComandosDeMenu.h"
#include "model/TamanyoUnidad.h"
#include "support/CarpetaTemporal.h"
#include "support/MesaDeEdicion.h"

namespace zel::pruebas {

// Two nodes, the conduit between them and an inflow, with the codes 1 to 4.
class Aspecto : public MesaDeEdicion {
  protected:
    Aspecto() {
        Pon({ConNombre(Simbolo(ctNudo, {20, 20}), "Uno"), ConNombre(Simbolo(ctNudo, {80, 20}), "Dos"),
             ConNombre(Lineal(ctConduccion1, {50, 20}, {{24, 20}, {76, 20}}), "Río"),
             ConNombre(Lineal(ctAportacion, {80, 60}, {{80, 56}, {80, 24}}), "Entra")});
        anfitrion.alAnotar = [this](const std::string&) { enSuceso = Situacion(); };
    }
    std::string Situacion() const {
        return std::to_string(trabajo.iEstado) + (documento.bHabidoCambios ? " c" : " -");
    }
    // Runs a command from a changeless state 9; "9 -" is what the host's event has found.
    template <typename T>
    std::string Tras(T& ordenes, void (T::*orden)(), std::int32_t codigo) {
        trabajo.iEstado = 9;
        documento.bHabidoCambios = false;
        Selecciona(codigo);
        (ordenes.*orden)();
        EXPECT_FALSE(refresco.bRefrescoPendiente());
        return Situacion() + (trabajo.elemSeleccionado ? " e " : " ") + anfitrion.Eventos();
    }

    std::string recortados, enSuceso, exportado;
    DialogoComun dialogo;
    const Apariencia::Recorta recorta = [this](const auto& e) {
        recortados += std::to_string(e->gfCodSIG()) + " ";
    };
    const ComandosDeMenu::Exporta exporta = [this](const auto& ruta, const auto& e) {
        exportado += ruta + " " + std::to_string(e->Count());
    };
    Apariencia apariencia{panel, documento, trabajo, refresco, vista, avisos, estados, anfitrion, recorta};
    ComandosDeMenu comandos{panel, documento, trabajo, refresco, vista, estados, anfitrion, dialogo, exporta};
    const char* const SIMBOLO = "Escriba el tamaño deseado para el elemento (mín 50%, máx 3300%):";
    const char* const LINEA = "Escriba el grosor deseado para la conducción (entre 1 y 20):";
    const char* const NO_NUMERO = "Introduzca una expresión numérica";
    const char* const INCORRECTO = "Valor numérico incorrecto";
};

TEST_F(Aspecto, ASizeIsAskedForUntilItIsOne) {
    const std::string hecho = "5 c e Modificado ", nada = "9 - e ";
    // The answers, each with the notice that it gets.
    using Respuestas = std::vector<std::pair<std::optional<std::string>, const char*>>;
    const std::tuple<std::int32_t, Respuestas, std::string, float> filas[] = {
        {1, {{"49", INCORRECTO}, {"3300", ""}}, hecho + "1", 33},
        {1, {{"1e999", INCORRECTO}, {"cien", NO_NUMERO}, {" 50 ", ""}}, hecho + "1", 0.5F},
        {4, {{"120,5", ""}}, hecho + "4", 1.205F},
        {1, {{"", ""}}, nada, 1.2F},
        {3, {{std::nullopt, ""}}, nada, 1.2F},
        {3, {{"0.9", INCORRECTO}, {"ancho", NO_NUMERO}, {"21", INCORRECTO}, {"20", ""}}, hecho + "3", 20}};
    for (const auto& [codigo, respuestas, queda, tamanyo] : filas) {
        Elem(codigo)->Tamanyo(1.2F);
        recortados.clear();
        for (const auto& [respuesta, aviso] : respuestas) {
            guion.Responde(respuesta);
            if (*aviso) guion.Espera(aviso);
        }
        EXPECT_EQ(Tras(apariencia, &Apariencia::menuContextualTamanyo_Click, codigo), queda);
        EXPECT_EQ(guion.Propuesta(), codigo == 3 ? "1.2" : "120");
        EXPECT_EQ(guion.Pregunta(), codigo == 3 ? LINEA : SIMBOLO);
        EXPECT_EQ(Elem(codigo)->Tamanyo(), tamanyo);
        EXPECT_EQ(recortados, codigo != 3 && queda != nada ? std::to_string(codigo) + " " : "");
    }
    EXPECT_EQ(enSuceso, "9 -") << "the host is told first";
    guion.Espera("No hay ningún elemento seleccionado en el panel");
    EXPECT_EQ(Tras(apariencia, &Apariencia::menuContextualTamanyo_Click, 0), "9 - ");
}

TEST_F(Aspecto, ALabelsSizeHasNoUpperLimit) {
    for (const char* respuesta : {"49", "grande", "12000"})
        guion.Responde(respuesta);
    guion.Espera("El tamaño mínimo permitido para un elemento es del 50%");
    guion.Espera(INCORRECTO);
    EXPECT_EQ(Tras(apariencia, &Apariencia::menuContextualTamanyoEtiqueta_Click, 3), "5 c e Modificado 3");
    EXPECT_EQ(Elem(3)->EtiquetaTamanyo(), 120);
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
    EXPECT_EQ(enSuceso, "9 -");
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
        EXPECT_EQ(Tras(apariencia, orden, 1), "9 - e ");
        EXPECT_EQ(Elem(1)->Tamanyo() * Elem(1)->EtiquetaTamanyo(), 1);
    }
}

TEST_F(Aspecto, LabelsAreShownStuckAndMadeRelative) {
    EXPECT_EQ(Tras(apariencia, &Apariencia::menuContextualMostrarEtiqueta_Click, 1), "5 c e Modificado 1");
    EXPECT_EQ(enSuceso, "5 c");
    EXPECT_FALSE(Elem(1)->MostrarEtiqueta());
    panel.limpiezas = 0;
    EXPECT_EQ(Tras(apariencia, &Apariencia::menuContextualEtiquetaTamanyoRelativo_Click, 1),
              "9 c e Modificado 1");
    EXPECT_FALSE(Elem(1)->EtiquetaTamanyoRelativo());
    EXPECT_EQ(panel.limpiezas, 1);
    const auto pega = [&](std::int32_t codigo, bool movida) {
        const auto e = Elem(codigo);
        e->EtiquetaMovida(movida);
        e->XPos(33);
        e->EtiquetaPosX(9 * TamanyoUnidad());
        const std::string hecho = Tras(apariencia, &Apariencia::menuContextualEtiquetaPegajosa_Click, codigo);
        return hecho + (e->EtiquetaMovida() ? " suelta " : " pegada ") + Cifra(e->XPos()) + " " +
               Cifra(e->EtiquetaPosX() / TamanyoUnidad());
    };
    EXPECT_EQ(pega(1, true), "5 c e Modificado 1 pegada 33 1.3");
    EXPECT_EQ(pega(3, true), "5 c e Modificado 3 pegada 50 0");
    EXPECT_EQ(pega(3, false), "5 c e Modificado 3 pegada 33 9") << "it sticks already";
    Elem(3)->Trazado(Traza({{5, 5}, {5, 5}}));
    Elem(3)->EtiquetaMovida(true);
    EXPECT_TRUE(Falla([&] { Tras(apariencia, &Apariencia::menuContextualEtiquetaPegajosa_Click, 3); },
                      {"Estado de visor 9. ErrmenuContextualEtiquetaPegajosa_Click (Esquema)"}));
    EXPECT_TRUE(Elem(3)->EtiquetaMovida());
}

TEST_F(Aspecto, AllSizesChangeAtOnceWithoutAWordToTheHost) {
    const auto elementos = &Apariencia::menuVisorModifElems_Click,
               letras = &Apariencia::menuVisorModifFtes_Click;
    const std::tuple<void (Apariencia::*)(), const char*, std::string> filas[] = {
        {elementos, "10", "5 c e 1 2 4 | 0.5x1 0.5x2 2x3 0.5x4"},
        {elementos, "1e999", "5 c e 1 2 4 | 33x1 33x2 2x3 33x4"},
        {elementos, "151", "5 c e 1 2 4 | 1.51x1 1.51x2 2x3 1.51x4"},
        {elementos, "mucho", "9 - e | 2x1 2x2 2x3 2x4"},
        {letras, "1000", "5 c e | 2x5 2x10 2x15 2x20"},
        {letras, "1", "5 c e | 2x0.1 2x0.2 2x0.3 2x0.4"},
        {letras, "", "9 - e | 2x1 2x2 2x3 2x4"}};
    for (const auto& [orden, respuesta, queda] : filas) {
        for (const auto& e : *documento.colElementos) {
            e->Tamanyo(2);
            e->EtiquetaTamanyo(static_cast<float>(e->gfCodSIG()));
        }
        recortados.clear();
        guion.Responde(respuesta);
        std::string texto = Tras(apariencia, orden, 2) + recortados + "|";
        for (const auto& e : *documento.colElementos)
            texto += " " + Cifra(e->Tamanyo()) + "x" + Cifra(e->EtiquetaTamanyo());
        EXPECT_EQ(texto, queda);
    }
}

TEST_F(Aspecto, CommandsForTheHostAndThoseThatBeginAGesture) {
    using C = ComandosDeMenu;
    const std::tuple<void (C::*)(), const char*, const char*> filas[] = {
        {&C::menuAdjuntar_Click, "9 - e Adjuntar 2", "9 - "},
        {&C::menuAdjuntarVer_Click, "9 - e Ver 2", "9 - "},
        {&C::menuContextualEditarElemento_Click, "5 - e Editar 2", "9 - "},
        {&C::menuContextualNodosConduccion_Click, "8 - e ", "9 - "},
        {&C::menuContextualMoverElemento_Click, "6 c e ", "9 - "},
        {&C::menuContextualMoverEtiqueta_Click, "7 c e ", "9 - "},
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
    // Without an ending the dialog asks about the name that counts, as often as it is taken.
    const CarpetaTemporal carpeta;
    carpeta.Escribe("una.xml", "");
    carpeta.Escribe("otra.xml", "");
    ASSERT_EQ(std::exchange(exportado, ""), "parte.xml 1");
    for (const char* nombre : {"una", "otra", "libre"})
        guion.ResponderArchivo((carpeta / nombre).string());
    comandos.menuContextualSeleccionExportar_Click();
    EXPECT_EQ(std::exchange(exportado, "parte.xml 1"), (carpeta / "libre.xml").string() + " 1");
    guion.MientrasAvisa([this] { estados.Estado(5, 1); });
    guion.ResponderArchivo("tarde.xml");
    comandos.menuContextualSeleccionExportar_Click();
    EXPECT_EQ(exportado, "parte.xml 1");
}

}  // namespace zel::pruebas
