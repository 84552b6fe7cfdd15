#pragma once

#include <QMainWindow>

#include "Adjuntos.h"
#include "AvisosDeFallo.h"
#include "Documentos.h"

class QMenu;

namespace zel {

class Esquema;

// The program's window: the control, the menus, and the answers to what the control tells.
class VentanaPrincipal : public QMainWindow {
    Q_OBJECT
  public:
    VentanaPrincipal();

    // Opens a file and shows the whole schematic. When it cannot be read a box says why and what was open
    // stays.
    bool Abre(const QString& ruta) { return documentos_.Abre(ruta); }

  protected:
    void wheelEvent(QWheelEvent* evento) override;
    void showEvent(QShowEvent* evento) override;
    void closeEvent(QCloseEvent* evento) override;
    void dragEnterEvent(QDragEnterEvent* evento) override;
    void dropEvent(QDropEvent* evento) override;

  private:
    void AtiendeAlControl();
    void CreaMenuArchivo();
    void CreaMenuVer();
    void CreaMenuAyuda();
    template <typename Orden>
    QAction* PonOrden(QMenu* menu, const QString& texto, const QKeySequence& tecla, Orden orden);
    void LlenaRecientes(QMenu* menu);
    void AbreReciente(const QString& ruta);
    void MuestraAyuda();
    void PonTitulo();
    void CambiaZoomConRueda(double muescas);

    // The direction in which the last turn of the wheel reached the end of the zoom.
    enum class Sentido { Ninguno, Cerca, Lejos };

    Esquema* esquema_;
    Adjuntos adjuntos_;
    Documentos documentos_;
    AvisosDeFallo fallos_;
    Sentido negado_ = Sentido::Ninguno;
};

}  // namespace zel
