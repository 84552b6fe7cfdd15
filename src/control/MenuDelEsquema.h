#pragma once

#include <QPoint>
#include <array>
#include <functional>
#include <memory>

#include "editing/Menus.h"

class QAction;
class QMenu;
class QWidget;

namespace zel {

// The context menu as the platform shows it: a QMenu or QAction for each item, named after it.
class MenuDelEsquema {
  public:
    // `aspecto` tells what the items show at this moment; it is asked whenever the menu opens. `alElegir`
    // may destroy the visor.
    MenuDelEsquema(QWidget* visor, std::function<AspectoDelMenu()> aspecto,
                   std::function<void(ItemDeMenu)> alElegir);
    MenuDelEsquema(const MenuDelEsquema&) = delete;
    MenuDelEsquema& operator=(const MenuDelEsquema&) = delete;
    ~MenuDelEsquema() = default;

    // Returns at once; the menu closes by itself.
    void Abre(QPoint enLaPantalla);
    // Visibility, captions and marks; the marks alone.
    void PonAlDia();
    void PonMarcas();
    // The visor goes, and the menu with it: at once, or when the platform is through with the item chosen.
    void Suelta();

  private:
    void Crea(const FilaDeMenu& fila);
    void Elige(ItemDeMenu item);
    QString Rotulo(const std::string& texto) const;

    QWidget* visor_;
    std::function<AspectoDelMenu()> aspecto_;
    std::function<void(ItemDeMenu)> alElegir_;
    QMenu* menu_ = nullptr;
    std::array<QAction*, NUMERO_DE_ITEMS> acciones_{};
    std::shared_ptr<bool> eligiendo_ = std::make_shared<bool>(false);
};

}  // namespace zel
