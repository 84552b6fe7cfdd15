#include "editing/Subsistema.h"

#include <unordered_set>

#include "model/modErrorHandling.h"

namespace zel {

namespace {

bool EsConduccion(const Elemento& e) noexcept {
    return TipoConocido(e.Tipo()) && !TieneSimbolo(e.Tipo());
}

// Even-odd rule; an edge holds its lower end and not its upper one.
bool Encierra(const Puntos& poligono, float x, float y) {
    bool dentro = false;
    const Punto* anterior = nullptr;
    for (const auto& p : poligono) {
        const Punto* const punto = p.get();
        if (anterior && (anterior->YPos() > y) != (punto->YPos() > y)) {
            const double cruce = anterior->XPos() + (double{y} - anterior->YPos()) *
                                                        (double{punto->XPos()} - anterior->XPos()) /
                                                        (double{punto->YPos()} - anterior->YPos());
            if (x < cruce) dentro = !dentro;
        }
        anterior = punto;
    }
    return dentro;
}

}  // namespace

void E_12_SeleccionarElementos(const Documento& documento, Trabajo& trabajo) try {
    trabajo.elemSubsistema = std::make_shared<Elementos>();
    if (!trabajo.curvaSeleccion) return;
    for (const auto& e : *documento.colElementos) {
        if (TieneSimbolo(e->Tipo()) && Encierra(*trabajo.curvaSeleccion, e->XPos(), e->YPos())) {
            trabajo.elemSubsistema->AddObjetoElemento(*e);
        }
    }
    E_15_AgregarConducciones(documento, trabajo);
} catch (...) {
    LanzaErrorVisor(trabajo.iEstado, ". ErrE_12_SeleccionarElementos (Esquema)");
}

void E_15_AgregarConducciones(const Documento& documento, Trabajo& trabajo) try {
    if (!trabajo.elemSubsistema || trabajo.elemSubsistema->Count() == 0) return;
    std::unordered_set<std::int32_t> codigos;
    for (const auto& e : *trabajo.elemSubsistema)
        codigos.insert(e->gfCodSIG());
    for (const auto& e : *documento.colElementos) {
        if (EsConduccion(*e) && codigos.contains(e->ElemIni()) && codigos.contains(e->ElemFin())) {
            trabajo.elemSubsistema->AddObjetoElemento(*e);
        }
    }
} catch (...) {
    LanzaErrorVisor(trabajo.iEstado, ". ErrE_15_AgregarConducciones (Esquema)");
}

void E_12_QuitarConducciones(Trabajo& trabajo) try {
    if (!trabajo.elemSubsistema || trabajo.elemSubsistema->Count() == 0) return;
    auto quedan = std::make_shared<Elementos>();
    for (const auto& e : *trabajo.elemSubsistema) {
        if (!EsConduccion(*e)) quedan->AddObjetoElemento(*e);
    }
    trabajo.elemSubsistema = std::move(quedan);
} catch (...) {
    LanzaErrorVisor(trabajo.iEstado, ". ErrE_12_QuitarConducciones (Esquema)");
}

}  // namespace zel
