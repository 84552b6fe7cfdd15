#pragma once

#include <QKeyEvent>

namespace zel {

// A key as the host's events tell it: the virtual key code (letters and digits are their capital ASCII codes,
// the numeric keypad has its own), 0 for a key that has none.
qint16 CodigoDeTecla(const QKeyEvent& tecla);
// 1 Shift + 2 Ctrl + 4 Alt. The press of one of these carries its own bit already.
qint16 MascaraDeTeclas(const QKeyEvent& tecla);
// The Latin-1 character that the key types, 0 for none.
qint16 CaracterDeTecla(const QKeyEvent& tecla);

}  // namespace zel
