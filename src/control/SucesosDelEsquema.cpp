// The events that the editor raises, given to the host as signals.

#include "control/PartesDelEsquema.h"

namespace zel {

// Raises when the host has destroyed the control meanwhile.
template <typename Emite>
void Esquema::Partes::Emitido(Emite emite) {
    emite();
    trabajo.ExigeVisor();
    pintado.SueltaAjenos();
}

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

void Esquema::Partes::LanzaMenu() {}

}  // namespace zel
