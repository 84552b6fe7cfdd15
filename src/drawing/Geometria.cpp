#include "drawing/Geometria.h"

#include <cmath>

#include "model/TamanyoUnidad.h"
#include "model/modErrorHandling.h"

namespace zel {

namespace {

constexpr float PI_32 = 3.1415927410125732F;
constexpr float DOS_PI_32 = 6.2831855F;

double Longitud(const Punto& a, const Punto& b) noexcept {
    return std::hypot(double{b.XPos()} - a.XPos(), double{b.YPos()} - a.YPos());
}

struct Mitad {
    std::int32_t tramo;  // position of the segment's second point
    double x, y;
};

Mitad BuscaMitad(const Puntos& trazado, std::int32_t iEstado) {
    double total = 0;
    for (std::int32_t i = 2; i <= trazado.Count(); ++i)
        total += Longitud(*trazado.Item(i - 1), *trazado.Item(i));
    double acumulado = 0;
    for (std::int32_t i = 2; i <= trazado.Count(); ++i) {
        const Punto a = *trazado.Item(i - 1);
        const Punto b = *trazado.Item(i);
        const double s = Longitud(a, b);
        if (acumulado + s > total / 2) {
            const double parte = (total / 2 - acumulado) / s;
            return {i, a.XPos() + parte * (double{b.XPos()} - a.XPos()),
                    a.YPos() + parte * (double{b.YPos()} - a.YPos())};
        }
        acumulado += s;
    }
    LanzaErrorVisor(iEstado,
                    ". BuscaMitadConduccion: se acabó el bucle sin encontrar el punto medio (Esquema)");
}

}  // namespace

double Arcotangente(float dx, float dy) noexcept {
    if (dx == 0 && dy == 0) return -1;
    double a = 0;
    if (dx != 0) {
        a = std::atan(double{dy} / dx);
        if (dx < 0) a += PI_32;
    } else {
        a = dy > 0 ? PI_32 / 2 : -PI_32 / 2;
    }
    return a < 0 ? a + DOS_PI_32 : a;
}

std::int16_t Signo(const Variante& valor, std::int32_t iEstado) try {
    double numero = 0;
    try {
        numero = valor.Numero();
    } catch (...) {
        LanzaErrorVisor(iEstado, ". Función Signo: argumento no numérico (Esquema)");
    }
    return static_cast<std::int16_t>((numero > 0) - (numero < 0));
} catch (...) {
    LanzaErrorVisor(iEstado, ". ErrSigno (Esquema)");
}

std::shared_ptr<Puntos> BuscaMitadConduccion(Superficie& panel, const Puntos& trazado,
                                             std::int32_t iEstado) try {
    if (trazado.Count() < 2) {
        LanzaErrorVisor(iEstado,
                        ". BuscaMitadConduccion: llamada incorrecta, la coleccion Trazado contiene 1 punto o "
                        "ninguno (Esquema)");
    }
    const Mitad mitad = BuscaMitad(trazado, iEstado);
    const Punto a = *trazado.Item(mitad.tramo - 1);
    const Punto b = *trazado.Item(mitad.tramo);
    const double d = TamanyoUnidad() / 4;
    const double grados = Arcotangente(b.XPos() - a.XPos(), b.YPos() - a.YPos()) * 180 / PI;
    // Second and fourth quadrant: the label hangs above the middle, its whole height higher.
    const bool encima = (grados >= 90 && grados < 180) || grados >= 270;
    const double signo = encima ? 1 : -1;
    const double subida = encima ? -panel.TextHeight("ABC") : 0;
    const double normal = (grados + 90) / 180 * PI;
    auto resultado = std::make_shared<Puntos>();
    resultado->Add(static_cast<float>(mitad.x), static_cast<float>(mitad.y));
    resultado->Add(static_cast<float>(std::abs(std::cos(normal)) * d),
                   static_cast<float>(std::abs(std::sin(normal)) * d * signo + subida));
    return resultado;
} catch (...) {
    LanzaErrorVisor(iEstado, ". ErrBuscaMitadConduccion (Esquema)");
}

}  // namespace zel
