#include <QMenu>
#include <memory>

#include "control/EnVentana.h"

namespace zel::pruebas {
namespace {

class MenuDelEsquema : public EnVentana {
  protected:
    MenuDelEsquema() { Pon(DosNudos()); }
    void Elige(const char* item) { Parte<QAction>(item)->trigger(); }
    // What the open menu shows, submenus by their captions.
    std::string Abierto() const {
        auto* menu = Parte<QMenu>("menuContextual");
        menu->popup(esquema.mapToGlobal(QPoint(50, 50)));
        std::string textos;
        for (const QAction* item : menu->actions())
            if (item->isVisible()) textos += item->isSeparator() ? "|" : item->text().toStdString() + "|";
        menu->close();
        return textos;
    }
};

TEST_F(MenuDelEsquema, OpensForWhatIsSelectedAtThatMoment) {
    EXPECT_EQ(Abierto(), "Menu General de Visor|");
    const std::string nudo = "|Documento relacionado|Colores|Tamaño|Etiqueta||Menu General de Visor|";
    esquema.Seleccionar(2);
    EXPECT_EQ(Abierto(), "Editar Sur" + nudo);
    esquema.NombreElemento(u"P&G\tNorte"_s);
    EXPECT_EQ(Abierto(), "Editar P&&G Norte" + nudo);
    esquema.NombreElemento(QString(500, u'x'));
    EXPECT_LT(Abierto().size(), 200u);
    esquema.GetElementos()->RemoveCodSIG(2);
    EXPECT_EQ(Abierto(), "Menu General de Visor|") << "the host has removed it";
    const auto traza = [] { return Traza({{0, 0}, {300, 0}, {500, 500}}); };
    esquema.GetElementos()->Add(ctCentralHidroelectrica, "X", 4, 1, 9, 9, 1, 2, traza(), traza(), "4", 5, 0);
    for (const auto& [tipo, tamanyo] :
         {std::pair(ctConduccion2, "Grosor de línea"), std::pair(ctCentralHidroelectrica, "Tamaño")}) {
        esquema.GetElementos()->ItemCodSIG(4)->Tipo(tipo);
        esquema.Seleccionar(4);
        EXPECT_EQ(Abierto(), "Editar X|Documento relacionado|Colores|" + std::string(tamanyo) +
                                 "|Mover nodos de la conducción|Etiqueta||Menu General de Visor|");
    }
    QTest::keyPress(Panel(), Qt::Key_Control);
    QTest::mouseClick(Panel(), Qt::LeftButton, Qt::ControlModifier, EnElPanel(0, 0));
    QTest::keyRelease(Panel(), Qt::Key_Control);
    EXPECT_EQ(Abierto(), "Volver a esquema general|Exportar seleccion|Menu General de Visor|");
    esquema.bMostrarLineasOcultas(false);
    esquema.PonAlDiaMenu();
    EXPECT_FALSE(Parte<QAction>("menuVisorQuitarImagen")->isVisible());
    EXPECT_EQ(Parte<QAction>("menuVisorImagen")->text(), u"Agregar imagen de fondo"_s);
    EXPECT_FALSE(Parte<QAction>("menuVisorMostrarLineasOcultas")->isChecked());
}

TEST_F(MenuDelEsquema, EachItemDoesItsCommandAndTellsTheHost) {
    std::string oido;
    const auto anota = [&](const char* que) { return [&oido, que](qint32) { oido += que; }; };
    QObject::connect(&esquema, &Esquema::EditarElemento, anota("Editar"));
    QObject::connect(&esquema, &Esquema::AdjuntarArchivo, anota("Adjuntar"));
    QObject::connect(&esquema, &Esquema::AdjuntarVer, anota("Ver"));
    QObject::connect(&esquema, &Esquema::ElementoModificado, anota("Modificado"));
    const std::tuple<const char*, const char*, const char*, const char*> filas[] = {
        {"menuContextualEditarElemento", "", "Editar", "Norte"},
        {"menuAdjuntar", "", "Adjuntar", "Norte"},
        {"menuAdjuntarVer", "", "Ver", "Norte"},
        {"menuContextualColorIcono", "color", "Modificado", "Preparado"},
        {"menuContextualColorLinea", "color", "Modificado", "Preparado"},
        {"menuContextualTamanyo", "200", "Modificado", "Norte"},
        {"menuContextualTamanyoEtiqueta", "300", "Modificado", "Norte"},
        {"menuContextualEtiquetaTamanyoRelativo", "", "Modificado", "Norte"},
        {"menuVisorModifFtes", "1000", "", "Norte"}};
    const auto e = esquema.GetElementos()->ItemCodSIG(1);
    for (const auto& [item, respuesta, suceso, prompt] : filas) {
        esquema.Seleccionar(1);
        Pulsa("nudo");  // what is in hand ends with the command
        oido.clear();
        if (respuesta == std::string("color"))
            dialogos.ResponderColor(7);
        else if (*respuesta)
            dialogos.Responde(respuesta);
        Elige(item);
        EXPECT_EQ(oido, suceso) << item;
        EXPECT_EQ(Estado(1), prompt) << item;
    }
    EXPECT_EQ(e->ColorIcono() + e->ColorLinea(), 14);
    EXPECT_EQ(e->Tamanyo() + e->EtiquetaTamanyo(), 2 + 15);
}

TEST_F(MenuDelEsquema, AWrongAnswerIsToldAndAskedForAgain) {
    const std::tuple<const char*, const char*, const char*> filas[] = {
        {"menuContextualTamanyo", "doce", "Introduzca una expresión numérica"},
        {"menuContextualTamanyo", "49", "Valor numérico incorrecto"},
        {"menuContextualTamanyo", "3301", "Valor numérico incorrecto"},
        {"menuContextualTamanyoEtiqueta", "49,9", "El tamaño mínimo permitido para un elemento es del 50%"},
        {"menuContextualTamanyoEtiqueta", "x", "Valor numérico incorrecto"}};
    esquema.bHabidoCambios(false);
    for (const auto& [item, respuesta, aviso] : filas) {
        esquema.Seleccionar(1);
        dialogos.Responde(respuesta);
        dialogos.Espera(aviso);
        dialogos.Responde(std::nullopt);
        Elige(item);
        EXPECT_EQ(dialogos.Propuesta(), "100");
    }
    EXPECT_FALSE(esquema.bHabidoCambios());
}

TEST_F(MenuDelEsquema, MarksFollowWhatTheCommandsDo) {
    const auto marcado = [&](const char* item) { return Parte<QAction>(item)->isChecked(); };
    esquema.Seleccionar(1);
    Elige("menuContextualMostrarEtiqueta");
    EXPECT_FALSE(marcado("menuContextualMostrarEtiqueta"));
    Elige("menuContextualMostrarEtiqueta");
    EXPECT_TRUE(marcado("menuContextualMostrarEtiqueta"));
    Elige("menuContextualEtiquetaPegajosa");
    EXPECT_FALSE(marcado("menuContextualEtiquetaPegajosa")) << "a symbol's label has no mark";
    Elige("menuVisorNoEtiquetas");
    EXPECT_TRUE(marcado("menuVisorNoEtiquetas"));
    Elige("menuVisorMostrarLineasOcultas");
    EXPECT_FALSE(esquema.bMostrarLineasOcultas());
    EXPECT_FALSE(marcado("menuVisorMostrarLineasOcultas"));
    dialogos.Responde("250");
    Elige("menuVisorModifElems");
    EXPECT_EQ(esquema.GetElementos()->ItemCodSIG(2)->Tamanyo(), 2.5F);
}

TEST_F(MenuDelEsquema, AHostMayDestroyTheControlInACommand) {
    auto otro = std::make_unique<Esquema>();
    otro->GetElementos(DosNudos());
    otro->show();
    otro->Seleccionar(1);
    QObject::connect(otro.get(), &Esquema::ElementoModificado, [&] { otro.reset(); });
    auto* menu = otro->findChild<QMenu*>(u"menuContextualEtiqueta"_s);
    otro->findChild<QMenu*>(u"menuContextual"_s)->popup({60, 60});
    menu->popup({80, 80});
    QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(menu->actions().front()).center());
    EXPECT_EQ(otro, nullptr);
    QApplication::processEvents();
}

}  // namespace
}  // namespace zel::pruebas
