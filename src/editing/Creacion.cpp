#include "editing/Creacion.h"

namespace zel {

Creacion::Creacion(Superficie& panel, Documento& documento, Trabajo& trabajo, Refresco& refresco,
                   Vista& vista, Avisos& avisos, Pintado& pintado, Localizador& localizador,
                   MaquinaEstados& estados, Anfitrion& anfitrion) noexcept
    : panel_(panel),
      documento_(documento),
      trabajo_(trabajo),
      refresco_(refresco),
      vista_(vista),
      avisos_(avisos),
      pintado_(pintado),
      localizador_(localizador),
      estados_(estados),
      anfitrion_(anfitrion) {}

void Creacion::Pulsa(std::int16_t, float, float) {}
void Creacion::Mueve(float, float) {}
void Creacion::Retrocede() {}

}  // namespace zel
