#pragma once

#include <QMainWindow>

class QLabel;

namespace zel {

class Esquema;

// The program's window: the control, a menu and a status bar.
class VentanaPrincipal : public QMainWindow {
    Q_OBJECT
  public:
    VentanaPrincipal();

    // Opens a file and shows the whole schematic. When it cannot be read a box says why and what was open
    // stays.
    void Abre(const QString& ruta);

  protected:
    void wheelEvent(QWheelEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;

  private:
    void CreaMenus();
    void PreguntaYAbre();
    void CambiaZoomConRueda(double muescas);

    // The direction in which the last turn of the wheel reached the end of the zoom.
    enum class Sentido { Ninguno, Cerca, Lejos };

    Esquema* esquema_;
    QLabel* region_;
    Sentido negado_ = Sentido::Ninguno;
};

}  // namespace zel
