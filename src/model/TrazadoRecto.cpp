#include "model/TrazadoRecto.h"

#include "model/Contorno.h"

namespace zel {

std::shared_ptr<Puntos> TrazadoRecto(const Elemento& desde, const Elemento& hasta) {
    const float radio = RadioSimbolo(std::nullopt);
    const Punto inicio = PuntoDelContorno(desde.XPos(), desde.YPos(), hasta.XPos(), hasta.YPos(), radio);
    const Punto fin = PuntoDelContorno(hasta.XPos(), hasta.YPos(), desde.XPos(), desde.YPos(), radio);
    auto trazado = std::make_shared<Puntos>();
    trazado->Add(inicio.XPos(), inicio.YPos());
    trazado->Add(fin.XPos(), fin.YPos());
    return trazado;
}

}  // namespace zel
