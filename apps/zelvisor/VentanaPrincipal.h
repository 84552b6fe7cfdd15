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

    Esquema* esquema_;
    Adjuntos adjuntos_;
    Documentos documentos_;
    AvisosDeFallo fallos_;
};

}  // namespace zel
