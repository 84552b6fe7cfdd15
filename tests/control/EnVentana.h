#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QTest>

#include "control/Esquema.h"
#include "control/PanelDibujo.h"
#include "support/CarpetaTemporal.h"
#include "support/DialogosGuion.h"
#include "support/Relato.h"

namespace zel::pruebas {

using namespace Qt::StringLiterals;

// Two nodes, at the origin and that far to the right and upwards, with the codes 1 and 2.
inline std::shared_ptr<Elementos> DosNudos(float separacion = 500) {
    auto elementos = std::make_shared<Elementos>();
    elementos->Add(ctNudo, "Norte", 1, 1, 0, 0, 0, 0, nullptr, nullptr, "1", 5, 0);
    elementos->Add(ctNudo, "Sur", 2, 2, separacion, separacion, 0, 0, nullptr, nullptr, "2", 5, 0);
    return elementos;
}

// A control in a window, in a folder of its own, with dialogs that follow a script. A failure in answer to
// the platform fails the test.
class EnVentana : public testing::Test {
  protected:
    EnVentana() {
        QObject::connect(&esquema, &Esquema::ErrorEnEvento,
                         [](qint32, const QString&, const QString& d) { ADD_FAILURE() << d.toStdString(); });
        esquema.resize(800, 600);
        esquema.show();
        QApplication::processEvents();
    }
    void Pon(std::shared_ptr<Elementos> elementos) {
        esquema.GetElementos(std::move(elementos));
        esquema.ResizeGrafo();
    }
    template <typename Objeto = QWidget>
    Objeto* Parte(const std::string& nombre) const {
        auto* parte = esquema.findChild<Objeto*>(QString::fromStdString(nombre));
        if (!parte) throw std::logic_error(nombre);
        return parte;
    }
    PanelDibujo* Panel() const { return Parte<PanelDibujo>("Panel"); }
    Lienzo& Dibujo() const { return Panel()->lienzo(); }
    PuntoXY Centro() const {
        const Superficie::Escala e = Dibujo().escala();
        return {e.Left + e.Width / 2, e.Top + e.Height / 2};
    }
    // What a field of the status bar says, from 1 on.
    std::string Estado(int campo) const {
        return Parte<QLabel>("txtPanels(" + std::to_string(campo - 1) + ")")->text().toStdString();
    }
    QPoint EnElPanel(float x, float y) const {
        return {static_cast<int>((x - Dibujo().ScaleLeft()) / Dibujo().ScaleWidth() * Panel()->width()),
                static_cast<int>((y - Dibujo().ScaleTop()) / Dibujo().ScaleHeight() * Panel()->height())};
    }
    QColor ColorEn(float x, float y) const {
        const QPoint p = EnElPanel(x, y);
        return Dibujo().Imagen().valid(p) ? Dibujo().Imagen().pixelColor(p) : QColor();
    }
    // Something is drawn within three pixels.
    bool SeVe(float x, float y) const {
        const QRect cerca = QRect(EnElPanel(x, y) - QPoint(3, 3), QSize(7, 7)) & Dibujo().Imagen().rect();
        QImage blanco(cerca.size(), QImage::Format_RGB32);
        blanco.fill(Qt::white);
        return Dibujo().Imagen().copy(cerca) != blanco;
    }
    void Pulsa(const char* boton) { QTest::mouseClick(Parte(boton), Qt::LeftButton); }

    CarpetaTemporal carpeta;
    DialogosGuion dialogos;
    Esquema esquema;
};

}  // namespace zel::pruebas
