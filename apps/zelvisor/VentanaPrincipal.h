#pragma once

#include <QMainWindow>

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
    // Saves what is shown; when that fails a box says why and the file stays as it was.
    void Guarda(const QString& ruta);

  protected:
    void wheelEvent(QWheelEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;

  private:
    void CreaMenus();
    void PreguntaYAbre();
    void GuardaComo();
    void PonRuta(const QString& ruta);
    void DiProblemas();
    void CambiaZoomConRueda(double muescas);

    // The direction in which the last turn of the wheel reached the end of the zoom.
    enum class Sentido { Ninguno, Cerca, Lejos };

    Esquema* esquema_;
    QString ruta_;  // of what is shown; empty before anything is opened
    Sentido negado_ = Sentido::Ninguno;
};

}  // namespace zel
