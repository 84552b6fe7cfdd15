#pragma once

#include "bars/ColeccionDeBarra.h"
#include "bars/Panel.h"

namespace zel {

// The fields of a status bar, from left to right.
class Panels : public ColeccionDeBarra<Panel> {
  public:
    // Appends a new field and returns it; sKey receives the key. Fails with 457 when the key is taken, and
    // then appends nothing.
    std::shared_ptr<Panel> Add(const std::string& Key, const std::shared_ptr<ControlDePanel>& Control,
                               std::string& sKey);
};

}  // namespace zel
