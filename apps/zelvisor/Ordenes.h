#pragma once

#include <QString>
#include <QStringList>

namespace zel {

// The orders of the command line. Each returns the program's exit code: 0 done, 2 the input
// could not be read, 3 wrong use or the output could not be written. Verifica returns 1 when it finds
// something.
int Exporta(const QString& entrada, const QString& salida, const QString& ancho);
int Informa(const QString& entrada);
int Verifica(const QString& entrada, const QString& salida);
int Convierte(const QString& entrada, const QString& salida);

}  // namespace zel
