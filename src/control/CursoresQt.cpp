#include "control/CursoresQt.h"

#include <algorithm>
#include <iterator>

#include "platform/Superficie.h"
#include "platform/qt/Dibujos.h"

namespace zel {

namespace {

constexpr int LADO = 32;

// Logical pixels.
struct PuntoActivo {
    std::int32_t numero;
    int x;
    int y;
};
constexpr PuntoActivo PUNTOS_ACTIVOS[] = {
    {100, 10, 10}, {101, 10, 10}, {102, 10, 10}, {103, 10, 10},                // the crossing of the hairs
    {112, 10, 10}, {113, 10, 10}, {114, 10, 10}, {115, 10, 10}, {201, 3, 28},  // the pencil's tip
    {202, 16, 16},                 // the middle of the four arrows
    {203, 12, 12}, {204, 12, 12},  // the middle of the lens
};

QCursor CursorPropio(std::int32_t numero, double relacion) {
    const auto* punto =
        std::find_if(std::begin(PUNTOS_ACTIVOS), std::end(PUNTOS_ACTIVOS),
                     [numero](const PuntoActivo& candidato) { return candidato.numero == numero; });
    if (punto == std::end(PUNTOS_ACTIVOS)) return QCursor(Qt::ArrowCursor);
    const QPixmap dibujo = DibujoPropio(QStringLiteral("cursores/%1").arg(numero), LADO, relacion);
    if (dibujo.isNull()) return QCursor(Qt::ArrowCursor);
    return QCursor(dibujo, punto->x, punto->y);
}

}  // namespace

QCursor CursorDe(std::int16_t puntero, std::int32_t numero, double relacion) {
    switch (puntero) {
        case Superficie::PUNTERO_CRUZ:
            return QCursor(Qt::CrossCursor);
        case Superficie::PUNTERO_PROPIO:
            return CursorPropio(numero, relacion);
        default:
            return QCursor(Qt::ArrowCursor);
    }
}

}  // namespace zel
