// The events that the editor raises, given to the host as signals.

#include <QAbstractButton>
#include <QCursor>

#include "control/PartesDelEsquema.h"

namespace zel {

void Esquema::Partes::MouseDown(std::int16_t& Button, std::int16_t& Shift, float& X, float& Y) {
    Emitido([&] { emit esquema.MouseDown(Button, Shift, X, Y); });
}

void Esquema::Partes::Click() {
    Emitido([&] { emit esquema.Click(); });
}

void Esquema::Partes::DblClick() {
    Emitido([&] { emit esquema.DblClick(); });
}

void Esquema::Partes::ElementoSeleccionado(std::int32_t gfCodSIG) {
    Emitido([&] { emit esquema.ElementoSeleccionado(gfCodSIG); });
}

void Esquema::Partes::CreacionNuevoElemento(const std::string& Tipo, std::int32_t ElemIni,
                                            std::int32_t ElemFin) {
    QString tipo = QString::fromStdString(Tipo);
    Emitido([&] { emit esquema.CreacionNuevoElemento(tipo, ElemIni, ElemFin); });
}

void Esquema::Partes::ElementoMovido(const std::shared_ptr<Elemento>& elem) {
    qint32 codigo = elem->gfCodSIG();
    std::shared_ptr<Elemento> movido = elem;
    Emitido([&] { emit esquema.ElementoMovido(codigo, movido); });
}

void Esquema::Partes::ElementoModificado(const std::shared_ptr<Elemento>& elem) {
    qint32 codigo = elem->gfCodSIG();
    std::shared_ptr<Elemento> modificado = elem;
    Emitido([&] { emit esquema.ElementoModificado(codigo, modificado); });
}

void Esquema::Partes::EditarElemento(std::int32_t gfCodSIG) {
    Emitido([&] { emit esquema.EditarElemento(gfCodSIG); });
}

void Esquema::Partes::AdjuntarArchivo(std::int32_t gfCodSIG) {
    Emitido([&] { emit esquema.AdjuntarArchivo(gfCodSIG); });
}

void Esquema::Partes::AdjuntarVer(std::int32_t gfCodSIG) {
    Emitido([&] { emit esquema.AdjuntarVer(gfCodSIG); });
}

void Esquema::Partes::PeticionBorrado(std::int32_t gfCodSIG) {
    Emitido([&] { emit esquema.PeticionBorrado(gfCodSIG); });
}

void Esquema::Partes::HazClic(Barra barra, std::string_view clave) {
    const QWidget* bar = barra == Barra::Elementos ? static_cast<QWidget*>(toolBar1) : toolBar2;
    const auto nombre = QString::fromUtf8(clave.data(), static_cast<qsizetype>(clave.size()));
    auto* boton = bar->findChild<QAbstractButton*>(nombre);
    if (boton) Emitido([&] { boton->click(); });
}

// --- The menu ---------------------------------------------------------------------------------------------

void Esquema::Partes::LanzaMenu() {
    AbreMenu(QCursor::pos());
}

void Esquema::Partes::LanzaMenuConTeclado() {
    if (trabajo.iEstado != E_PREPARADO && trabajo.iEstado != E_SUBSISTEMA) return;
    QPointF lugar = panel->rect().center();
    if (const auto& e = trabajo.elemSeleccionado) {
        const QPointF suyo = panel->EnElPanel({e->XPos(), e->YPos()});
        if (QRectF(panel->rect()).contains(suyo)) lugar = suyo;
    }
    AbreMenu(panel->mapToGlobal(lugar.toPoint()));
}

void Esquema::Partes::AbreMenu(QPoint enLaPantalla) try {
    refresco.PedirRefresco();
    menu.Abre(enLaPantalla);
} catch (...) {
    LanzaErrorVisor(trabajo.iEstado, ". ErrLanzaMenu (Esquema)");
}

AspectoDelMenu Esquema::Partes::AspectoDelMenuAhora() const {
    SituacionDelMenu situacion;
    const auto& e = trabajo.elemSeleccionado;
    if (e && documento.colElementos->Contiene(e.get())) situacion.elemSeleccionado = e.get();
    situacion.bSubsistema = trabajo.iEstado == E_SUBSISTEMA;
    situacion.bHayImagenFondo = imagen.bHayImagenFondo();
    situacion.bImagenSinMostrar = imagen.bImagenSinMostrar();
    situacion.bMostrarEtiquetas = documento.bMostrarEtiquetas;
    situacion.bMostrarLineasOcultas = documento.bMostrarLineasOcultas;
    return AspectoDelMenuEn(situacion);
}

// A host's own menu offers its items at any time, the control's only in these two states.
void Esquema::Partes::TerminaGesto() {
    if (trabajo.iEstado != E_PREPARADO && trabajo.iEstado != E_SUBSISTEMA) estados.Estado(E_PREPARADO, 1);
}

// The platform has turned a mark over by itself: it follows what the command has made of it, and stays where
// the command did nothing.
void Esquema::Partes::AlElegirEnElMenu(ItemDeMenu item) {
    const std::shared_ptr<Partes> vivas = esquema.partes_;
    EnEntrada([&] {
        TerminaGesto();
        EjecutaDelMenu(item);
    });
    if (!trabajo.bTerminado) menu.PonMarcas();
}

void Esquema::Partes::EjecutaDelMenu(ItemDeMenu item) {
    using enum ItemDeMenu;
    switch (item) {
        case menuContextualSalirSeleccion:
            return comandosDeMenu.menuContextualSalirSeleccion_Click();
        case menuContextualSeleccionExportar:
            return comandosDeMenu.menuContextualSeleccionExportar_Click();
        case menuContextualEditarElemento:
            return comandosDeMenu.menuContextualEditarElemento_Click();
        case menuAdjuntar:
            return comandosDeMenu.menuAdjuntar_Click();
        case menuAdjuntarVer:
            return comandosDeMenu.menuAdjuntarVer_Click();
        case menuContextualColorIcono:
            return apariencia.menuContextualColorIcono_Click();
        case menuContextualColorLinea:
            return apariencia.menuContextualColorLinea_Click();
        case menuContextualTamanyo:
            return apariencia.menuContextualTamanyo_Click();
        case menuContextualNodosConduccion:
            return comandosDeMenu.menuContextualNodosConduccion_Click();
        case menuContextualMoverElemento:
            return comandosDeMenu.menuContextualMoverElemento_Click();
        case menuContextualMostrarEtiqueta:
            return apariencia.menuContextualMostrarEtiqueta_Click();
        case menuContextualMoverEtiqueta:
            return comandosDeMenu.menuContextualMoverEtiqueta_Click();
        case menuContextualTamanyoEtiqueta:
            return apariencia.menuContextualTamanyoEtiqueta_Click();
        case menuContextualEtiquetaPegajosa:
            return apariencia.menuContextualEtiquetaPegajosa_Click();
        case menuContextualEtiquetaTamanyoRelativo:
            return apariencia.menuContextualEtiquetaTamanyoRelativo_Click();
        case menuVisorSubSistema:
            return comandosDeMenu.menuVisorSubSistema_Click();
        case menuVisorImagen:
            return imagen.Edita();
        case menuVisorQuitarImagen:
            return imagen.Quita();
        case menuVisorNoEtiquetas:
            return comandosDeMenu.menuVisorNoEtiquetas_Click();
        case menuVisorMostrarLineasOcultas:
            return comandosDeMenu.menuVisorMostrarLineasOcultas_Click();
        case menuVisorModifFtes:
            return apariencia.menuVisorModifFtes_Click();
        case menuVisorModifElems:
            return apariencia.menuVisorModifElems_Click();
        case menuContextual:
        case menuAdjuntarArchivo:
        case menuContextualColores:
        case menuColoresSeparador:
        case menuContextualEtiqueta:
        case menuContextualEtiquetaSeparador:
        case menuContextualSeparador:
        case menuVisor:
        case menuVisorModif:
            return;
    }
}

}  // namespace zel
