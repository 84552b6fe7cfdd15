#pragma once

#include <QWidget>
#include <memory>

#include "model/Elementos.h"

namespace zel {

// The schematic editor's control: shows the topology of a water-resources system. Calls that fail raise
// zel::Error.
class Esquema : public QWidget {
    Q_OBJECT
  public:
    explicit Esquema(QWidget* padre = nullptr);
    ~Esquema() override;

    // The schematic itself, not a copy; setting one replaces it and repaints. An empty one is refused.
    std::shared_ptr<Elementos> GetElementos() const;
    void GetElementos(std::shared_ptr<Elementos> elementos);

    // Fits the whole schematic into the panel. Before the control is first shown it has no final size: the
    // fit is then done again when it is.
    void ResizeGrafo();

    // The zoom times the factor, around the centre: below 1 a closer view. False when that would be beyond
    // the closest or the farthest view, which a notice has told.
    bool CambiaZoom(double factor);
    // Moves the view by shares of its width and height, to the right and upwards.
    void DesplazaVista(double ancho, double alto);

  signals:
    // A panel of the status bar, counted from 1, has a new text.
    void TextoEstado(int panel, const QString& texto);
    // What could not be drawn in the last repaint, when it was something else than in the one before.
    void FallosDeDibujo(const QStringList& descripciones);
    // A failure in answer to the platform (a resize, a first show) rather than to a call of the host.
    void ErrorEnEvento(qint32 Number, const QString& Source, const QString& Description);

  protected:
    void resizeEvent(QResizeEvent* evento) override;
    void showEvent(QShowEvent* evento) override;

  private:
    struct Partes;
    std::unique_ptr<Partes> partes_;
};

}  // namespace zel
