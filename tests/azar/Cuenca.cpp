#include "azar/Cuenca.h"

#include "drawing/AjustesDibujo.h"
#include "model/Contorno.h"

namespace zel::azar {

namespace {

class Obra {
  public:
    std::shared_ptr<Elementos> elementos = std::make_shared<Elementos>();

    void Simbolo(TipoElemento tipo, PuntoXY donde) { Agrega(tipo, donde, 0, 0, nullptr, nullptr); }
    void Linea(TipoElemento tipo, std::int32_t ini, std::int32_t fin, std::initializer_list<PuntoXY> medio) {
        const auto traza = Traza(Centro(ini), medio, Centro(fin));
        Agrega(tipo, Mitad(*traza), ini, fin, traza, nullptr);
    }
    void Central(std::int32_t ini, std::int32_t fin, PuntoXY donde) {
        Agrega(ctCentralHidroelectrica, donde, ini, fin, Traza(Centro(ini), {}, donde),
               Traza(donde, {}, Centro(fin)));
    }
    // Starts at itself; a return and an inflow end at a symbol, a sub-basin at an inflow.
    void Propio(TipoElemento tipo, PuntoXY donde, std::int32_t fin) {
        Agrega(tipo, donde, elementos->Count() + 1, fin, Traza(donde, {}, Centro(fin)), nullptr);
    }
    Elemento& operator[](std::int32_t codigo) { return *elementos->ItemCodSIG(codigo); }

  private:
    PuntoXY Centro(std::int32_t codigo) {
        const Elemento& e = (*this)[codigo];
        return {e.XPos(), e.YPos()};
    }
    static PuntoXY Mitad(const Puntos& traza) {
        const auto a = traza.Item(1), b = traza.Item(2);
        return {(a->XPos() + b->XPos()) / 2, (a->YPos() + b->YPos()) / 2};
    }
    static std::shared_ptr<Puntos> Traza(PuntoXY desde, std::initializer_list<PuntoXY> medio, PuntoXY hasta) {
        auto traza = std::make_shared<Puntos>();
        const PuntoXY segundo = medio.size() ? *medio.begin() : hasta;
        const PuntoXY penultimo = medio.size() ? *(medio.end() - 1) : desde;
        const float radio = RadioSimbolo(1.0F);
        const Punto a = PuntoDelContorno(desde.X, desde.Y, segundo.X, segundo.Y, radio);
        const Punto b = PuntoDelContorno(hasta.X, hasta.Y, penultimo.X, penultimo.Y, radio);
        traza->Add(a.XPos(), a.YPos());
        for (const PuntoXY& p : medio)
            traza->Add(p.X, p.Y);
        traza->Add(b.XPos(), b.YPos());
        return traza;
    }
    void Agrega(TipoElemento tipo, PuntoXY donde, std::int32_t ini, std::int32_t fin,
                std::shared_ptr<Puntos> traza, std::shared_ptr<Puntos> traza2) {
        const std::int32_t codigo = elementos->Count() + 1;
        elementos->Add(tipo, "Elemento " + std::to_string(codigo), codigo, ++numeros_[tipo], donde.X, donde.Y,
                       ini, fin, std::move(traza), std::move(traza2), std::to_string(codigo), 4, 4, 1.0F);
    }

    std::int16_t numeros_[NUMERO_DE_TIPOS] = {};
};

}  // namespace

std::shared_ptr<Elementos> Cuenca(bool trabajada) {
    Obra obra;
    obra.Simbolo(ctNudo, {20, 120});
    obra.Simbolo(ctEmbalse, {60, 110});
    obra.Simbolo(ctNudo, {100, 110});
    obra.Simbolo(ctDemanda, {100, 70});
    obra.Simbolo(ctAcuifero, {40, 50});
    obra.Simbolo(ctNudo, {150, 100});
    obra.Simbolo(ctDemanda, {150, 60});
    obra.Simbolo(ctNudo, {180, 120});
    const auto linea = [&](TipoElemento tipo, std::int32_t ini, std::int32_t fin, PuntoXY codo) {
        if (trabajada)
            obra.Linea(tipo, ini, fin, {codo, {codo.X + 6, codo.Y + 5}});
        else
            obra.Linea(tipo, ini, fin, {});
    };
    linea(ctConduccion1, 1, 2, {35, 100});
    linea(ctConduccion2, 2, 3, {75, 120});
    linea(ctConduccion3, 3, 6, {125, 90});
    linea(ctConduccion4, 6, 8, {170, 100});
    linea(ctConduccion5, 1, 3, {60, 135});
    linea(ctRecarga, 2, 5, {70, 80});
    linea(ctBombeo, 5, 6, {90, 45});
    linea(ctToma, 3, 4, {115, 85});
    linea(ctToma, 6, 7, {165, 80});
    obra.Central(2, 6, {100, 135});
    obra.Propio(ctAportacion, {20, 20}, 1);
    obra.Propio(ctRetorno, {120, 50}, 6);
    obra.Propio(ctSubcuenca, {60, 15}, 19);
    if (!trabajada) return obra.elementos;

    obra[3].EtiquetaPosX(-12);
    obra[9].EtiquetaMovida(true);
    obra[10].Tamanyo(9);
    obra[11].ColorLinea(255);
    obra[4].ConecSec1(7);
    obra[2].Nombre("Presa de la\nSierra");
    obra[2].EtiquetaTamanyo(2);
    obra[7].MostrarEtiqueta(false);
    return obra.elementos;
}

}  // namespace zel::azar
