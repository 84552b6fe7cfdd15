#include "session/Extension.h"

#include "model/TamanyoUnidad.h"

namespace zel {

namespace {

struct Limites {
    float inferior, superior;

    // True when the value was outside; it is brought one unit inside then.
    bool Limita(float& valor) const noexcept {
        if (!(valor > inferior))  // also what is no number
            valor = inferior + 1;
        else if (valor >= superior)
            valor = superior - 1;
        else
            return false;
        return true;
    }
};

constexpr Limites MUNDO_X{MUNDO_XMIN, MUNDO_XMAX};
constexpr Limites MUNDO_Y{MUNDO_YMIN, MUNDO_YMAX};

bool TieneTrazado(const Elemento& e) noexcept {
    return TipoConocido(e.Tipo()) && EsLineal(e.Tipo());
}

// A unit at least between two bounds of the world, towards its inside.
void DaUnidad(const Limites& mundo, float& minimo, float& maximo) noexcept {
    if (maximo - minimo >= 1) return;
    if (minimo + 1 < mundo.superior)
        maximo = minimo + 1;
    else
        minimo = maximo - 1;
}

}  // namespace

std::optional<Marco> ExtensionDe(const Elementos& elementos, float margen) {
    Marco marco;
    const Elemento* primero = nullptr;
    for (const auto& e : elementos) {
        const auto suyo = ExtensionDe(*e, margen);
        if (!suyo) continue;
        if (!primero) primero = e.get();
        marco.Crece(*suyo);
    }
    return ExtensionCompleta(marco, primero);
}

std::optional<Marco> ExtensionDe(const Elemento& e, float margen) {
    Marco marco;
    if (TieneTrazado(e)) {
        if (!e.Trazado()) return std::nullopt;
        marco.Crece(*e.Trazado(), margen);
        if (e.Trazado2()) marco.Crece(*e.Trazado2(), margen);
    }
    if (TieneSimbolo(e.Tipo())) marco.Crece(e.XPos(), e.YPos(), e.Tamanyo() * TamanyoUnidad() + margen);
    return marco;
}

std::optional<Marco> ExtensionCompleta(Marco marco, const Elemento* primero) {
    if (!primero) return std::nullopt;
    marco.Crece(primero->XPos(), primero->YPos(), 0);
    // Only elements of no kind, all in one place: some room around them all the same.
    if (marco.Xmin == marco.Xmax && marco.Ymin == marco.Ymax) {
        marco.Crece(marco.Xmin, marco.Ymin, TamanyoUnidad());
    }
    return marco;
}

bool LimitaAlMundo(Marco& marco) noexcept {
    bool limitado = MUNDO_X.Limita(marco.Xmin);
    limitado = MUNDO_X.Limita(marco.Xmax) || limitado;
    limitado = MUNDO_Y.Limita(marco.Ymin) || limitado;
    limitado = MUNDO_Y.Limita(marco.Ymax) || limitado;
    if (limitado) {
        DaUnidad(MUNDO_X, marco.Xmin, marco.Xmax);
        DaUnidad(MUNDO_Y, marco.Ymin, marco.Ymax);
    }
    return limitado;
}

bool CreceEnElMundo(Marco& region, const Marco& visible) noexcept {
    bool limitado = false;
    const auto crece = [&](const Limites& mundo, float& minimo, float& maximo, float desde, float hasta) {
        if (desde < minimo) minimo = desde;
        if (hasta > maximo) maximo = hasta;
        limitado = mundo.Limita(minimo) || limitado;
        limitado = mundo.Limita(maximo) || limitado;
    };
    crece(MUNDO_X, region.Xmin, region.Xmax, visible.Xmin, visible.Xmax);
    crece(MUNDO_Y, region.Ymin, region.Ymax, visible.Ymin, visible.Ymax);
    return limitado;
}

void LimitaAlMundo(float& x, float& y) noexcept {
    MUNDO_X.Limita(x);
    MUNDO_Y.Limita(y);
}

}  // namespace zel
