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
