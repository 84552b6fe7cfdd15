// The events that the editor raises, given to the host as signals.

#include <QAbstractButton>

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

void Esquema::Partes::LanzaMenu() {}

}  // namespace zel
