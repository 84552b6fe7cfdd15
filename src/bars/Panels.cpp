#include "bars/Panels.h"

namespace zel {

std::shared_ptr<Panel> Panels::Add(const std::string& Key, const std::shared_ptr<ControlDePanel>& Control,
                                   std::string& sKey) {
    auto panel = std::make_shared<Panel>();
    panel->Key(Key);
    panel->Control(Control);
    sKey = panel->Key();
    Guarda(panel, panel->Key());
    return panel;
}

}  // namespace zel
