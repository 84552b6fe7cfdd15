#pragma once

#include <QDialog>

namespace zel {

// The gestures and keys, in a table.
class Ayuda : public QDialog {
    Q_OBJECT
  public:
    explicit Ayuda(QWidget* padre);
};

}  // namespace zel
