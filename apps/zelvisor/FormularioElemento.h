#pragma once

#include <QDialog>
#include <cstdint>
#include <optional>
#include <string>

#include "model/Elementos.h"

class QFormLayout;
class QLabel;
class QLineEdit;

namespace zel {

class Esquema;

// The data of an element that the user may change: name, number on the screen, and size in % or line width
// in pixels. It closes with valid data only, and says what is wrong until then.
class FormularioElemento : public QDialog {
    Q_OBJECT
  public:
    // Collection and element stay while it is open.
    FormularioElemento(const Elementos& elementos, const Elemento& e, QWidget* padre);

    // What the user has changed; nothing for what stays.
    const std::optional<std::string>& Nombre() const noexcept { return nombre_; }
    const std::optional<std::int16_t>& Numero() const noexcept { return numero_; }
    const std::optional<float>& Tamanyo() const noexcept { return tamanyo_; }

    void accept() override;

  private:
    QLineEdit* CreaCampo(QFormLayout& filas, const QString& rotulo, const QString& objeto,
                         const QString& texto);
    void CreaFijos(QFormLayout& filas);
    QString DescribeExtremo(std::int32_t codigo) const;
    // Each false after having said what is wrong.
    bool LeeNumero();
    bool LeeTamanyo();
    bool Rechaza(QLineEdit& campo, const QString& motivo);

    const Elementos& elementos_;
    const Elemento& e_;
    QLineEdit* campoNombre_;
    QLineEdit* campoNumero_;
    QLineEdit* campoTamanyo_;
    QLabel* aviso_;
    std::optional<std::string> nombre_;
    std::optional<std::int16_t> numero_;
    std::optional<float> tamanyo_;
};

// Opens the form for an element and puts what the user changes into effect.
void EditaElemento(Esquema& esquema, QWidget* ventana, std::int32_t codigo);

}  // namespace zel
