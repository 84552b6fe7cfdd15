// The window as its user meets it: menus, keys, boxes and what is dropped on it.
#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QDropEvent>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QScreen>
#include <QSettings>
#include <QTest>
#include <QTimer>
#include <algorithm>
#include <filesystem>

#include "VentanaPrincipal.h"
#include "control/Esquema.h"
#include "platform/qt/DialogosQt.h"
#include "support/CarpetaTemporal.h"
#include "support/DialogosGuion.h"

namespace zel::pruebas {
namespace {

using namespace Qt::StringLiterals;

const std::string CUENCA = ZEL_RAIZ "/examples/cuenca.xml";
const std::string UN_NUDO =
    "<Esquema><Elementos><Elemento><gfCodSig>1</gfCodSig><Tipo>10</Tipo></Elemento></Elementos></Esquema>";

class Ventana : public testing::Test {
  protected:
    Ventana() : ruta(QString::fromStdString((carpeta / "obra.xml").string())) {
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope,
                           QString::fromStdString((carpeta / "ajustes").string()));
        std::filesystem::copy_file(CUENCA, carpeta / "obra.xml");
        Reabre();
    }
    ~Ventana() override {
        QApplication::processEvents();
        EXPECT_EQ(porAbrirse, 0) << "A box was expected and never came";
    }
    void Reabre() {
        ventana = std::make_unique<VentanaPrincipal>();
        esquema = ventana->findChild<Esquema*>();
        ventana->show();
    }
    // Looks at the next box, and answers it with one of its buttons.
    void Contesta(const QString& boton, std::function<void(QDialog&)> mira = {}) {
        ++porAbrirse;
        auto* reloj = new QTimer(ventana.get());
        reloj->start(1);
        QObject::connect(reloj, &QTimer::timeout, [=, this] {
            auto* caja = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (!caja) return;
            reloj->stop();
            --porAbrirse;
            if (mira) mira(*caja);
            for (auto* candidato : caja->findChildren<QPushButton*>()) {
                if (candidato->text().remove(u'&') == boton) return candidato->click();
            }
            ADD_FAILURE() << "No button " << boton.toStdString();
            caja->close();
        });
    }
    void Teclea(Qt::Key tecla, Qt::KeyboardModifiers con = Qt::ControlModifier) {
        ventana->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(ventana.get()));
        QTest::keyClick(ventana.get(), tecla, con);
    }
    QMenu* Recientes() {
        auto* menu = ventana->findChild<QMenu*>(u"recientes"_s);
        emit menu->aboutToShow();
        return menu;
    }
    void SueltaEncima(const QList<QUrl>& urls) {
        QMimeData datos;
        datos.setUrls(urls);
        QDragEnterEvent entra({9, 9}, Qt::CopyAction, &datos, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(ventana.get(), &entra);
        if (!entra.isAccepted()) return;
        QDropEvent cae({9, 9}, Qt::CopyAction, &datos, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(ventana.get(), &cae);
        QApplication::processEvents();
    }
    // A conduit between two nodes, an inflow and its sub-basin at the first, and an intake of the second
    // with a secondary connection to the first.
    std::shared_ptr<Elementos> Red() const {
        const auto trazo = [](float x1, float y1, float x2, float y2) {
            auto puntos = std::make_shared<Puntos>();
            puntos->Add(x1, y1);
            puntos->Add(x2, y2);
            return puntos;
        };
        auto red = std::make_shared<Elementos>();
        red->Add(ctNudo, "Norte", 1, 1, 0, 0, 0, 0, nullptr, nullptr, "1", 5, 0);
        red->Add(ctEmbalse, "Sur", 2, 2, 100, 0, 0, 0, nullptr, nullptr, "2", 5, 0);
        red->Add(ctConduccion1, "Río", 3, 1, 50, 0, 1, 2, trazo(4, 0, 96, 0), nullptr, "3", 5, 0);
        red->Add(ctAportacion, "Lluvia", 4, 1, 0, 60, 0, 1, trazo(0, 56, 0, 4), nullptr, "4", 5, 0);
        red->Add(ctSubcuenca, "Monte", 5, 1, 0, 90, 0, 4, trazo(0, 86, 0, 64), nullptr, "5", 5, 0);
        red->Add(ctDemanda, "Riego", 6, 1, 100, 60, 0, 0, nullptr, nullptr, "6", 5, 0);
        red->Add(ctToma, "Toma", 7, 1, 100, 30, 2, 6, trazo(100, 4, 100, 56), nullptr, "7", 5, 0)
            ->ConecSec1(1);
        return red;
    }

    CarpetaTemporal carpeta;
    DialogosGuion dialogos;
    QString ruta;
    std::unique_ptr<VentanaPrincipal> ventana;
    Esquema* esquema = nullptr;
    int porAbrirse = 0;
};

TEST_F(Ventana, AFileThatCannotBeOpenedLeavesTheOneThatWas) {
    ventana->Abre(ruta);
    const auto cuenca = esquema->GetElementos();
    EXPECT_EQ(cuenca->Count(), 114);
    EXPECT_TRUE(ventana->windowTitle().startsWith(u"obra.xml[*]"_s));
    esquema->bHabidoCambios(true);  // nothing is lost, so nothing is asked
    dialogos.Espera("No se puede abrir \"nada.xml\"");
    EXPECT_FALSE(ventana->Abre(u"nada.xml"_s));
    dialogos.Espera("no es un esquema");
    EXPECT_FALSE(ventana->Abre(QString::fromStdString(carpeta.Escribe("otro.xml", "<Otro/>"))));
    esquema->bHabidoCambios(false);
    const std::string bandera = "<Esquema><Elemento><VerNombre>2</VerNombre></Elemento></Esquema>";
    dialogos.Espera(
        "contiene datos que no se pueden cargar: Error en funcion I2B (lectorArchivo), argumento "
        "recibido: 2.\n\nCompruebe los datos");
    EXPECT_FALSE(ventana->Abre(QString::fromStdString(carpeta.Escribe("bandera.xml", bandera))));
    EXPECT_EQ(esquema->GetElementos(), cuenca);
    dialogos.Espera("ErroresCarga.log");
    EXPECT_TRUE(ventana->Abre(QString::fromStdString(carpeta.Escribe("incompleto.xml", UN_NUDO))));
    EXPECT_EQ(esquema->GetElementos()->Count(), 1);
    // Where the log cannot be written, it opens all the same.
    std::filesystem::remove("ErroresCarga.log");
    std::filesystem::create_directory("ErroresCarga.log");
    ventana->Abre(ruta);
    dialogos.Espera("El esquema se ha abierto");
    EXPECT_TRUE(ventana->Abre(QString::fromStdString((carpeta / "incompleto.xml").string())));
    EXPECT_EQ(esquema->GetElementos()->Count(), 1);
    EXPECT_EQ(dialogos.Ultimo().find("ErroresCarga.log"), std::string::npos) << dialogos.Ultimo();
    EXPECT_TRUE(dialogos.Detalle().starts_with("No se ha podido escribir ErroresCarga.log: "));
    EXPECT_NE(dialogos.Detalle().find("no almacenó la propiedad Nombre"), std::string::npos);
}

TEST_F(Ventana, ClosingWithChangesAsksWhatIsToBecomeOfThem) {
    const struct {
        QString boton;
        bool seCierra, seGuarda;
    } casos[] = {{u"Cancelar"_s, false, false}, {u"Descartar"_s, true, false}, {u"Guardar"_s, true, true}};
    for (const auto& caso : casos) {
        Reabre();
        ventana->Abre(ruta);
        esquema->GetElementos()->ItemCodSIG(1)->Nombre("Cambiado");
        esquema->bHabidoCambios(true);
        EXPECT_TRUE(QTest::qWaitFor([&] { return ventana->isWindowModified(); }));
        Contesta(caso.boton);
        Teclea(Qt::Key_Q);
        EXPECT_EQ(ventana->isVisible(), !caso.seCierra) << caso.boton.toStdString();
        EXPECT_EQ(LeeArchivo("obra.xml").find("Cambiado") != std::string::npos, caso.seGuarda);
    }
}

TEST_F(Ventana, OpensInsideTheScreenWithAllOfTheEmptySchematic) {
    EXPECT_EQ(ventana->size().boundedTo(ventana->screen()->availableSize()), ventana->size());
    const auto textos = esquema->findChildren<QLabel*>();
    EXPECT_TRUE(std::any_of(textos.begin(), textos.end(),
                            [](QLabel* t) { return t->text() == u"Región mostrada: 100 %"_s; }));
}

TEST_F(Ventana, NewBeginsAsAFreshStartDoes) {
    const auto nuevo = esquema->ScaleWidth();
    ventana->Abre(ruta);
    esquema->findChild<QAction*>(u"menuVisorNoEtiquetas"_s)->trigger();
    esquema->CambiaZoom(0.3);
    esquema->bHabidoCambios(false);
    Teclea(Qt::Key_N);
    EXPECT_EQ(esquema->ScaleWidth(), nuevo);
    esquema->PonAlDiaMenu();
    EXPECT_FALSE(esquema->findChild<QAction*>(u"menuVisorNoEtiquetas"_s)->isChecked());
}

TEST_F(Ventana, DialogsBeginInTheDocumentsFolder) {
    std::filesystem::create_directory("lejos");
    std::filesystem::copy_file(CUENCA, "lejos/obra.xml");
    const auto antes = instalaDialogos(std::make_shared<DialogosQt>());
    ventana->Abre(QString::fromStdString((carpeta / "lejos/obra.xml").string()));
    Contesta(u"Cancel"_s, [&](QDialog& caja) {
        EXPECT_EQ(dynamic_cast<QFileDialog&>(caja).directory(),
                  QDir(QString::fromStdString((carpeta / "lejos").string())));
    });
    Teclea(Qt::Key_O);
    instalaDialogos(antes);
}

TEST_F(Ventana, APictureThatIsMissingIsToldAndItsSectionKept) {
    const std::string seccion =
        "<ImagenFondo><Archivo>plano.png</Archivo><X0>1</X0><Y0>2</Y0><LX>3</LX>"
        "<LY>4</LY><Oculta>False</Oculta></ImagenFondo>";
    carpeta.Escribe("obra.xml", "<Esquema><Elementos/>" + seccion + "</Esquema>");
    dialogos.Espera("plano.png\": no se encuentra el archivo");
    EXPECT_TRUE(ventana->Abre(ruta));
    Teclea(Qt::Key_S);
    EXPECT_NE(LeeArchivo("obra.xml").find(seccion), std::string::npos) << LeeArchivo("obra.xml");
}

TEST_F(Ventana, ANewSchematicHasNoFileUntilItIsSaved) {
    ventana->Abre(ruta);
    esquema->bHabidoCambios(true);
    Contesta(u"Cancelar"_s);
    Teclea(Qt::Key_N);
    EXPECT_EQ(esquema->GetElementos()->Count(), 114);
    Contesta(u"Descartar"_s);
    Teclea(Qt::Key_N);
    EXPECT_EQ(esquema->GetElementos()->Count(), 0);
    EXPECT_FALSE(esquema->bHabidoCambios());
    EXPECT_TRUE(ventana->windowTitle().startsWith(u"Sin título"_s));

    esquema->GetElementos(Red());
    esquema->bHabidoCambios(true);
    Contesta(u"Guardar"_s);
    dialogos.ResponderArchivo(std::nullopt);
    Teclea(Qt::Key_Q);
    EXPECT_TRUE(ventana->isVisible());
    dialogos.ResponderArchivo("no/hay/sitio.xml");
    dialogos.Espera("No se puede guardar");
    Teclea(Qt::Key_S);
    EXPECT_TRUE(esquema->bHabidoCambios());
    EXPECT_EQ(dialogos.Ultimo().find("Estado de visor"), std::string::npos) << dialogos.Ultimo();
    EXPECT_NE(dialogos.Detalle().find("ErrArchivoGuardar"), std::string::npos) << dialogos.Detalle();
    // A name without an extension becomes that of a schematic, and an earlier one is not replaced unasked.
    Contesta(u"Cancelar"_s);
    dialogos.ResponderArchivo((carpeta / "obra").string());
    Teclea(Qt::Key_S);
    EXPECT_EQ(LeeArchivo("obra.xml"), LeeArchivo(CUENCA));
    dialogos.ResponderArchivo((carpeta / "nueva").string());
    Teclea(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_TRUE(std::filesystem::exists("nueva.xml"));
    EXPECT_TRUE(ventana->windowTitle().startsWith(u"nueva.xml"_s));
    EXPECT_FALSE(ventana->isWindowModified());
}

TEST_F(Ventana, WhatHappensToTheFileMeanwhileIsNotOverlooked) {
    ventana->Abre(ruta);
    carpeta.Escribe("obra.xml", UN_NUDO);
    std::filesystem::last_write_time("obra.xml",
                                     std::filesystem::file_time_type::clock::now() + std::chrono::seconds(9));
    Contesta(u"Cancelar"_s);
    Teclea(Qt::Key_S);
    EXPECT_EQ(LeeArchivo("obra.xml"), UN_NUDO);
    Contesta(u"Reemplazar"_s);
    Teclea(Qt::Key_S);
    EXPECT_NE(LeeArchivo("obra.xml"), UN_NUDO);
    // It goes while the question about the earlier one is open.
    esquema->bHabidoCambios(true);
    Contesta(u"Descartar"_s, [](QDialog&) { std::filesystem::remove("obra.xml"); });
    dialogos.Espera("No se puede abrir");
    EXPECT_FALSE(ventana->Abre(ruta));
    EXPECT_TRUE(ventana->windowTitle().startsWith(u"Sin título"_s));
}

TEST_F(Ventana, RemembersTheLastEightAndForgetsThoseThatAreGone) {
    for (int i = 1; i <= 9; ++i) {
        const auto nombre =
            carpeta.Escribe("e" + std::to_string(i) + ".xml", "<Esquema><Elementos/></Esquema>");
        EXPECT_TRUE(ventana->Abre(QString::fromStdString(nombre)));
    }
    Reabre();
    EXPECT_EQ(Recientes()->actions().size(), 8 + 2);  // a line and "Vaciar"
    EXPECT_TRUE(Recientes()->actions()[7]->text().contains(u"e2.xml"_s));
    std::filesystem::remove("e9.xml");
    dialogos.Espera("e9.xml\". Se ha quitado de la lista");
    Recientes()->actions()[0]->trigger();
    Recientes()->actions()[0]->trigger();
    EXPECT_TRUE(ventana->windowTitle().startsWith(u"e8.xml"_s));
    EXPECT_EQ(Recientes()->actions().size(), 7 + 2);
}

TEST_F(Ventana, DeletingTakesWhatCannotStayWithoutTheElement) {
    const auto red = Red();
    esquema->GetElementos(red);
    esquema->Seleccionar(1);
    auto* borrar = esquema->findChild<QWidget*>(u"borrar"_s);
    Contesta(u"Cancelar"_s);
    QTest::mouseClick(borrar, Qt::LeftButton);
    EXPECT_EQ(red->Count(), 7);
    Contesta(u"Borrar"_s, [](QDialog& caja) {
        const QString detalle = dynamic_cast<QMessageBox&>(caja).informativeText();
        EXPECT_TRUE(detalle.contains(u"3 elementos conectados"_s) &&
                    detalle.contains(u"Subcuenca \"Monte\""_s));
    });
    QTest::mouseClick(borrar, Qt::LeftButton);
    EXPECT_EQ(red->Count(), 3);
    EXPECT_EQ(red->ItemCodSIG(7)->ConecSec1(), -1);
    EXPECT_TRUE(esquema->bHabidoCambios());
    EXPECT_EQ(red->VerificaIntegridad(), 0);
    EXPECT_NO_THROW(esquema->Refresh());
}

TEST_F(Ventana, TheFormTakesValidDataOnly) {
    const auto red = Red();
    esquema->GetElementos(red);
    const struct {
        qint32 codigo;
        const char* campo;
        const char* texto;
        const char* aviso;
    } casos[] = {
        {1, "numero", "0", "entre 1 y 32767"},     {1, "numero", "1,5", "entre 1 y 32767"},
        {1, "numero", "99999", "entre 1 y 32767"}, {1, "numero", "2", "ya es de Embalse \"Sur\""},
        {1, "tamanyo", "3301", "entre 50 y 3300"}, {3, "tamanyo", "", "entre 1 y 20"},
    };
    const auto escribe = [](QDialog& caja, const char* campo, const char* texto) {
        auto* linea = caja.findChild<QLineEdit*>(QString::fromLatin1(campo));
        linea->selectAll();
        QTest::keyClick(linea, Qt::Key_Delete);
        QTest::keyClicks(linea, QString::fromUtf8(texto));
    };
    for (const auto& caso : casos) {
        qint32 codigo = caso.codigo;
        Contesta(u"Cancelar"_s, [&](QDialog& caja) {
            escribe(caja, caso.campo, caso.texto);
            QTest::keyClick(&caja, Qt::Key_Return);
            const std::string aviso = caja.findChild<QLabel*>(u"aviso"_s)->text().toStdString();
            EXPECT_NE(aviso.find(caso.aviso), std::string::npos) << caso.texto << ": " << aviso;
            const auto* letrero = caja.findChild<QLabel*>(u"aviso"_s);
            EXPECT_GE(letrero->height(), letrero->heightForWidth(letrero->width())) << "cut";
        });
        emit esquema->EditarElemento(codigo);
    }
    EXPECT_FALSE(esquema->bHabidoCambios());
    qint32 codigo = 1;
    Contesta(u"Aceptar"_s, [&](QDialog& caja) {
        escribe(caja, "nombre", "Ñorte & 1");
        escribe(caja, "numero", "7");
        escribe(caja, "tamanyo", "250,5");
    });
    emit esquema->EditarElemento(codigo);
    const auto nudo = red->ItemCodSIG(1);
    EXPECT_EQ(nudo->Nombre(), "Ñorte & 1");
    EXPECT_EQ(nudo->KeyPant(), 7);
    EXPECT_FLOAT_EQ(nudo->Tamanyo(), 2.505F);
    EXPECT_NEAR(red->ItemCodSIG(3)->Trazado()->Item(1)->XPos(), 10.02, 0.001);  // its outline
    EXPECT_NEAR(red->ItemCodSIG(4)->Trazado()->Item(2)->YPos(), 10.02, 0.001);
    EXPECT_TRUE(esquema->bHabidoCambios());
}

// Stands for the desktop's programs.
class Escritorio : public QObject {
    Q_OBJECT
  public:
    Q_INVOKABLE void abre(const QUrl& url) { abiertos << url.toLocalFile(); }
    QStringList abiertos;
};

TEST_F(Ventana, AttachedDocumentsAreKeptWithTheSchematic) {
    Escritorio escritorio;
    QDesktopServices::setUrlHandler(u"file"_s, &escritorio, "abre");
    const std::string informe = carpeta.Escribe("informe.pdf", "x");
    qint32 codigo = 1;
    ventana->Abre(ruta);
    dialogos.Espera("no tiene ningún documento");
    emit esquema->AdjuntarVer(codigo);
    dialogos.ResponderArchivo(informe);
    emit esquema->AdjuntarArchivo(codigo);
    Reabre();  // without saving
    ventana->Abre(ruta);
    dialogos.Espera("no tiene ningún documento");
    emit esquema->AdjuntarVer(codigo);
    dialogos.ResponderArchivo(informe);
    emit esquema->AdjuntarArchivo(codigo);
    Teclea(Qt::Key_S);
    Reabre();
    ventana->Abre(ruta);
    emit esquema->AdjuntarVer(codigo);
    EXPECT_EQ(escritorio.abiertos, QStringList(QString::fromStdString(informe)));
    std::filesystem::remove_all("ajustes");
    carpeta.Escribe("ajustes", "not a folder");
    dialogos.Espera("no se pueden escribir los ajustes");
    Teclea(Qt::Key_S);
    EXPECT_TRUE(esquema->bHabidoCambios());
    std::filesystem::remove(informe);
    dialogos.Espera("No se encuentra el documento");
    emit esquema->AdjuntarVer(codigo);
    QDesktopServices::unsetUrlHandler(u"file"_s);
}

TEST_F(Ventana, OpensTheOneFileThatIsDroppedOnIt) {
    const QUrl otra = QUrl::fromLocalFile(QString::fromStdString(CUENCA));
    SueltaEncima({otra, otra});
    EXPECT_EQ(esquema->GetElementos()->Count(), 0);
    esquema->bHabidoCambios(true);
    Contesta(u"Descartar"_s);
    SueltaEncima({otra});
    EXPECT_EQ(esquema->GetElementos()->Count(), 114);
}

TEST_F(Ventana, AFailureThatComesAgainWhileItsBoxIsOpenIsToldOnce) {
    const auto falla = [&](const QString& que) { emit esquema->ErrorEnEvento(5, u"origen"_s, que); };
    dialogos.MientrasAvisa([&] {
        falla(u"primero"_s);
        falla(u"segundo"_s);
    });
    for (int vez = 0; vez < 2; ++vez) {
        dialogos.Espera("primero");
        dialogos.Espera("segundo");
        falla(u"primero"_s);
    }
}

}  // namespace
}  // namespace zel::pruebas

#include "VentanaTest.moc"
