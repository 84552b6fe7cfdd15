#pragma once

#include <QString>
#include <QStringList>

namespace zel {

// The orders of the command line. Each returns the program's exit code: 0 done, 1 wrong use or the output
// could not be written, 2 the input could not be read.
int Exporta(const QString& entrada, const QString& salida, const QString& ancho);
int Informa(const QString& entrada);

}  // namespace zel
