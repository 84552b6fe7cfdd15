#include "control/Esquema.h"

#include <QResizeEvent>
#include <QShowEvent>

#include "control/PanelDibujo.h"
#include "drawing/Pintor.h"
#include "model/modErrorHandling.h"
#include "session/Ajustes.h"
#include "session/Vista.h"

namespace zel {

struct Esquema::Partes : public Anfitrion {
    explicit Partes(Esquema& dueno)
        : esquema(dueno),
          panel(new PanelDibujo(&dueno)),
          refresco(panel->lienzo()),
          avisos(trabajo, refresco),
          vista(panel->lienzo(), documento, trabajo, refresco, avisos, *this) {
        panel->lienzo().AlRefrescar([this] { Pinta(); });
        panel->setGeometry(esquema.rect());
        Dispone();
        QObject::connect(panel, &PanelDibujo::Redimensionado, &esquema,
                         [this] { EnEvento([this] { Dispone(); }); });
    }

    // The one boundary between the control's failures and the platform's events.
    template <typename Accion>
    void EnEvento(Accion accion) {
        try {
            accion();
        } catch (...) {
            const Fallo fallo = FalloEnCurso();
            emit esquema.ErrorEnEvento(fallo.Number(), QString::fromStdString(fallo.Source()),
                                       QString::fromStdString(fallo.Description()));
        }
    }

    void TextoEstado(int panelDeEstado, const std::string& texto) override {
        emit esquema.TextoEstado(panelDeEstado, QString::fromStdString(texto));
    }

    void Dispone() {
        vista.Dispone(panel->AnchoMm(), panel->AltoMm());
        refresco.RefrescarSiPendiente();
    }

    void Pinta() {
        const AjustesDibujo ajustes = AjustesDe(trabajo, documento, vista);
        QStringList nuevos;
        for (const auto& descripcion :
             PintaEsquema(panel->lienzo(), ajustes, *documento.colElementos, *documento.colElementos)) {
            nuevos << QString::fromStdString(descripcion);
        }
        panel->update();
        if (nuevos == fallos) return;
        fallos = nuevos;
        emit esquema.FallosDeDibujo(fallos);
    }

    Esquema& esquema;
    PanelDibujo* panel;
    Documento documento;
    Trabajo trabajo;
    Refresco refresco;
    Avisos avisos;
    Vista vista;
    QStringList fallos;
    bool seHaMostrado = false;
    bool ajustaAlMostrar = false;
};

Esquema::Esquema(QWidget* padre) : QWidget(padre), partes_(std::make_unique<Partes>(*this)) {}
Esquema::~Esquema() = default;

std::shared_ptr<Elementos> Esquema::GetElementos() const {
    return partes_->documento.colElementos;
}

void Esquema::GetElementos(std::shared_ptr<Elementos> elementos) try {
    if (!elementos) throw Fallo(91);
    partes_->documento.colElementos = std::move(elementos);
    partes_->refresco.PedirRefresco();
    partes_->refresco.RefrescarSiPendiente();
} catch (...) {
    LanzaErrorVisor(partes_->trabajo.iEstado, ". Error en Property Set GetElementos (Esquema)");
}

void Esquema::ResizeGrafo() {
    partes_->ajustaAlMostrar = !partes_->seHaMostrado;
    partes_->vista.AjustarImagen(partes_->panel->lienzo(), 1);
}

bool Esquema::CambiaZoom(double factor) {
    Vista& vista = partes_->vista;
    vista.bVistaActualizada(true);
    return vista.AjustarZoomUsuario(partes_->panel->lienzo(), static_cast<float>(vista.Zoom() * factor), true,
                                    true, 1);
}

void Esquema::DesplazaVista(double ancho, double alto) {
    const Lienzo& panel = partes_->panel->lienzo();
    partes_->vista.bVistaActualizada(true);
    partes_->vista.MueveScroll(panel.ScaleLeft() + panel.ScaleWidth() * static_cast<float>(0.5 + ancho),
                               panel.ScaleTop() + panel.ScaleHeight() * static_cast<float>(0.5 - alto), 1);
}

void Esquema::resizeEvent(QResizeEvent* evento) {
    QWidget::resizeEvent(evento);
    partes_->panel->setGeometry(rect());
}

void Esquema::showEvent(QShowEvent* evento) {
    QWidget::showEvent(evento);
    partes_->seHaMostrado = true;
    if (!partes_->ajustaAlMostrar) return;
    partes_->ajustaAlMostrar = false;
    partes_->EnEvento([this] {
        partes_->vista.DisponeDeNuevo(partes_->panel->AnchoMm(), partes_->panel->AltoMm());
        ResizeGrafo();
    });
}

}  // namespace zel
