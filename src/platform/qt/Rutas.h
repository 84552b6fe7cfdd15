#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace zel {

// The name of a file as this system has it, bytes, and as Qt has it, UTF-16. Bytes that are not UTF-8 travel
// as the lone surrogates U+DC80 to U+DCFF, so that any name comes back as it was.
QString DeRuta(std::string_view ruta);
std::string RutaDe(const QString& ruta);

}  // namespace zel
