#include "VistaQt.h"

#include "EscenaQt.h"
#include "drawing/Etiquetas.h"
#include "drawing/Fuente.h"
#include "drawing/Simbolos.h"

namespace zel::bench {

VistaQt::VistaQt(const Elementos& red, const Encuadre& encuadre) {
    const double p = encuadre.PixelesPorUnidad();
    EscenaQt superficie(escena_, p);
    encuadre.En(superficie);
    const AjustesDibujo& ajustes = encuadre.ajustes;
    for (const auto& e : red) {
        DibujarElemento(superficie, ajustes, e.get(), false);
        superficie.AsientaPuntos();
    }
    for (const auto& e : red) {
        PonFuente(superficie, FactorEtiqueta(superficie, ajustes, *e), 5);
        superficie.CurrentX(e->XPos() + e->EtiquetaPosX());
        superficie.CurrentY(e->YPos() + e->EtiquetaPosY());
        superficie.Print(e->Nombre());
    }
    vista_.setScene(&escena_);
    vista_.setRenderHint(QPainter::Antialiasing);
    vista_.setViewportUpdateMode(QGraphicsView::FullViewportUpdate);
    vista_.setOptimizationFlags(QGraphicsView::DontAdjustForAntialiasing |
                                QGraphicsView::DontSavePainterState);
    vista_.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    vista_.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    vista_.setFrameShape(QFrame::NoFrame);
    vista_.resize(PANEL);
    vista_.setSceneRect(encuadre.escala.Left * p, -encuadre.escala.Top * p, PANEL.width(), PANEL.height());
    vista_.show();
}

}  // namespace zel::bench
