#include "control/Teclas.h"

#include <algorithm>
#include <utility>

namespace zel {

namespace {

constexpr std::pair<int, qint16> TECLAS[] = {
    {Qt::Key_Backspace, 8}, {Qt::Key_Tab, 9},       {Qt::Key_Backtab, 9},  {Qt::Key_Return, 13},
    {Qt::Key_Enter, 13},    {Qt::Key_Shift, 16},    {Qt::Key_Control, 17}, {Qt::Key_Alt, 18},
    {Qt::Key_Pause, 19},    {Qt::Key_CapsLock, 20}, {Qt::Key_Escape, 27},  {Qt::Key_Space, 32},
    {Qt::Key_PageUp, 33},   {Qt::Key_PageDown, 34}, {Qt::Key_End, 35},     {Qt::Key_Home, 36},
    {Qt::Key_Left, 37},     {Qt::Key_Up, 38},       {Qt::Key_Right, 39},   {Qt::Key_Down, 40},
    {Qt::Key_Insert, 45},   {Qt::Key_Delete, 46},   {Qt::Key_Menu, 93},    {Qt::Key_NumLock, 144},
};
constexpr std::pair<int, qint16> TECLADO_NUMERICO[] = {
    {Qt::Key_Asterisk, 106}, {Qt::Key_Plus, 107},  {Qt::Key_Minus, 109},
    {Qt::Key_Period, 110},   {Qt::Key_Comma, 110}, {Qt::Key_Slash, 111},
};
// Shift turns the digits of the keypad into what else is on their keys.
constexpr std::pair<int, qint16> CIFRAS_CON_MAYUS[] = {
    {Qt::Key_Insert, 96}, {Qt::Key_End, 97},     {Qt::Key_Down, 98},   {Qt::Key_PageDown, 99},
    {Qt::Key_Left, 100},  {Qt::Key_Clear, 101},  {Qt::Key_Right, 102}, {Qt::Key_Home, 103},
    {Qt::Key_Up, 104},    {Qt::Key_PageUp, 105},
};
// Shift and a digit of the main row arrive as the sign above it.
constexpr qint16 CIFRA_CERO = 48;

template <std::size_t N>
qint16 Busca(const std::pair<int, qint16> (&tabla)[N], int tecla) noexcept {
    const auto* fila =
        std::find_if(std::begin(tabla), std::end(tabla), [=](const auto& f) { return f.first == tecla; });
    return fila == std::end(tabla) ? qint16{0} : fila->second;
}

// On the hardware's key, whatever sign it types: X11 and Wayland number the row 1 to 0 from 10 on.
qint16 CifraDelTeclado(const QKeyEvent& tecla) noexcept {
    const quint32 fila = tecla.nativeScanCode();
    if (fila < 10 || fila > 19) return 0;
    return static_cast<qint16>(CIFRA_CERO + (fila - 9) % 10);
}

}  // namespace

qint16 CodigoDeTecla(const QKeyEvent& tecla) {
    const int k = tecla.key();
    const bool numerico = tecla.modifiers() & Qt::KeypadModifier;
    if (numerico) {
        if (k >= Qt::Key_0 && k <= Qt::Key_9) return static_cast<qint16>(96 + k - Qt::Key_0);
        if (const qint16 codigo = Busca(TECLADO_NUMERICO, k)) return codigo;
        const bool conMayus = tecla.modifiers() & Qt::ShiftModifier;
        if (const qint16 codigo = conMayus ? Busca(CIFRAS_CON_MAYUS, k) : qint16{0}) return codigo;
    }
    if ((k >= Qt::Key_A && k <= Qt::Key_Z) || (k >= Qt::Key_0 && k <= Qt::Key_9)) {
        return static_cast<qint16>(k);
    }
    if (k >= Qt::Key_F1 && k <= Qt::Key_F24) return static_cast<qint16>(112 + k - Qt::Key_F1);
    if (const qint16 codigo = Busca(TECLAS, k)) return codigo;
    return CifraDelTeclado(tecla);
}

qint16 MascaraDeTeclas(const QKeyEvent& tecla) {
    const Qt::KeyboardModifiers m = tecla.modifiers();
    const bool pulsada = tecla.type() == QEvent::KeyPress;
    const auto lleva = [&](Qt::KeyboardModifier modificador, int propia) {
        return m.testFlag(modificador) ? !(tecla.key() == propia && !pulsada)
                                       : tecla.key() == propia && pulsada;
    };
    int mascara = 0;
    if (lleva(Qt::ShiftModifier, Qt::Key_Shift)) mascara |= 1;
    if (lleva(Qt::ControlModifier, Qt::Key_Control)) mascara |= 2;
    if (lleva(Qt::AltModifier, Qt::Key_Alt)) mascara |= 4;
    return static_cast<qint16>(mascara);
}

qint16 CaracterDeTecla(const QKeyEvent& tecla) {
    const QString texto = tecla.text();
    if (texto.size() != 1 || texto[0].unicode() > 0xFF) return 0;
    return static_cast<qint16>(texto[0].unicode());
}

}  // namespace zel
