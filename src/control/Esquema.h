#pragma once

#include <QWidget>
#include <memory>

#include "model/Elementos.h"

namespace zel {

// The schematic editor's control: shows the topology of a water-resources system.
class Esquema : public QWidget {
    Q_OBJECT
  public:
    explicit Esquema(QWidget* padre = nullptr);
    ~Esquema() override;

    // The schematic itself, not a copy; setting one replaces it and repaints. An empty one is refused with
    // an error.
    std::shared_ptr<Elementos> GetElementos() const;
    void GetElementos(std::shared_ptr<Elementos> elementos);

    // Fits the whole schematic into the panel.
    void ResizeGrafo();

    // The zoom times the factor, around the centre: below 1 a closer view.
    void CambiaZoom(double factor);
    // Moves the view by shares of its width and height, to the right and upwards.
    void DesplazaVista(double ancho, double alto);

  signals:
    // A panel of the status bar, counted from 1, has a new text.
    void TextoEstado(int panel, const QString& texto);
    // What could not be drawn in the last repaint, when it was something else than in the one before.
    void FallosDeDibujo(const QStringList& descripciones);

  protected:
    void resizeEvent(QResizeEvent* evento) override;

  private:
    struct Partes;
    std::unique_ptr<Partes> partes_;
};

}  // namespace zel
