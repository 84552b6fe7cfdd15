#pragma once

#include <QCursor>
#include <cstdint>

namespace zel {

// The mouse pointer that a surface asks for with MousePointer(puntero, numero), sharp on a screen of
// `relacion` device pixels in a logical one. The plain arrow for what is not known.
QCursor CursorDe(std::int16_t puntero, std::int32_t numero, double relacion);

}  // namespace zel
