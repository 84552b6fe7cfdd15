// A host of the control, outside the repository: it opens a window with a schematic, checks what the library
// promises its hosts, and ends with the number of promises broken.
#include <QApplication>
#include <QMainWindow>
#include <QMessageBox>
#include <QTimer>
#include <iostream>
//
#include <ZELVisorEsquemas/DialogosQt.h>
#include <ZELVisorEsquemas/Elementos.h>
#include <ZELVisorEsquemas/Esquema.h>

// Puts the control in the window, with a conduit between two nodes.
zel::Esquema* PonEsquema(QMainWindow& ventana) {
    zel::instalaDialogos(std::make_shared<zel::DialogosQt>());  // notices and questions as Qt's boxes

    auto elementos = std::make_shared<zel::Elementos>();
    elementos->Add(zel::ctNudo, "Cabecera", 1, 1, 0, 60, 0, 0, nullptr, nullptr, "1", 5, 5);
    elementos->Add(zel::ctNudo, "Desembocadura", 2, 2, 80, 0, 0, 0, nullptr, nullptr, "2", 5, 5);
    auto trazado = std::make_shared<zel::Puntos>();
    trazado->Add(0, 60);
    trazado->Add(80, 0);
    elementos->Add(zel::ctConduccion1, "Río", 3, 1, 40, 30, 1, 2, trazado, nullptr, "3", 5, 5);

    auto* esquema = new zel::Esquema(&ventana);
    ventana.setCentralWidget(esquema);
    esquema->GetElementos(elementos);
    esquema->ResizeGrafo();  // all of it in sight
    return esquema;
}

namespace {

int fallos = 0;

void Promete(bool cumplido, const char* promesa) {
    if (cumplido) return;
    ++fallos;
    std::cerr << "Broken: " << promesa << '\n';
}

// The first schematic is in sight when the control's middle, where the conduit passes, is not all of one
// colour.
bool SeVeAlgo(QWidget& esquema) {
    const QImage imagen =
        esquema.grab(QRect(esquema.rect().center() - QPoint(30, 30), QSize(60, 60))).toImage();
    for (int y = 0; y < imagen.height(); ++y) {
        for (int x = 0; x < imagen.width(); ++x) {
            if (imagen.pixel(x, y) != imagen.pixel(0, 0)) return true;
        }
    }
    return false;
}

void PruebaAvisos(zel::Elementos& elementos) {
    QString aviso;
    const QObject mientras;
    QTimer::singleShot(0, &mientras, [&aviso] {
        auto* caja = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!caja) return;
        aviso = caja->text();
        caja->accept();
    });
    const auto repetido = elementos.Add(zel::ctNudo, "Otro", 1, 9, 9, 9, 0, 0, nullptr, nullptr, "1", 5, 5);
    Promete(!repetido && !aviso.isEmpty(), "a repeated code is told in a box of the dialogs installed");
}

void PruebaErrores(zel::Esquema& esquema) {
    try {
        esquema.GetElementos(nullptr);
        Promete(false, "no collection is an error");
    } catch (const zel::Error& error) {
        Promete(error.Number() == -2147211505 && !error.Description().empty(),
                "an error has number and text");
    }
}

}  // namespace

int main(int argc, char** argv) {
    QApplication programa(argc, argv);
    QMainWindow ventana;
    zel::Esquema* esquema = PonEsquema(ventana);
    ventana.resize(640, 480);
    ventana.show();
    QTimer::singleShot(0, [esquema] {
        const auto elementos = esquema->GetElementos();
        Promete(elementos->Count() == 3, "the collection is the one given");
        Promete(SeVeAlgo(*esquema), "the schematic is drawn");
        PruebaAvisos(*elementos);
        PruebaErrores(*esquema);
        QApplication::exit(fallos);
    });
    return QApplication::exec();
}
