#pragma once

#include <optional>

namespace zel {

// Where the control's parts stand, in millimetres from its inner top left corner.
struct CajaMm {
    float Left = 0;
    float Top = 0;
    float Width = 0;
    float Height = 0;
};

struct Disposicion {
    CajaMm ToolBar1, ToolBar2;
    CajaMm Lineas;  // across, between the bars and the panel
    CajaMm Panel, HScroll, VScroll, StatusBar1;
};

struct MedidasDeBarras {
    float ButtonWidth = 7;
    float ButtonHeight = 7;
    int botonesDeElementos = 0;
    int botonesDeVista = 0;
};

constexpr float ANCHO_MINIMO = 50;
constexpr float ALTO_MINIMO = 30;

// The length to which a side is to grow: 1.3 times the minimum where it is not above it, else itself.
float CreceAlMinimo(float lado, float minimo) noexcept;

// Both bars on one row, or the second under the first where they do not fit; nothing when the inside is not
// larger than the minimum.
std::optional<Disposicion> DisposicionDe(float ancho, float alto, const MedidasDeBarras& barras) noexcept;

}  // namespace zel
