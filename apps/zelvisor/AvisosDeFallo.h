#pragma once

#include <QStringList>

namespace zel {

// Tells the failures of the control, one box at a time. One that comes again while the boxes are open is
// not told again.
class AvisosDeFallo {
  public:
    void Di(const QString& descripcion);

  private:
    QStringList enCurso_;  // told or waiting since the first box opened
};

}  // namespace zel
