#pragma once

#include <string>

#include "platform/Dialogos.h"

namespace zel {

// The file dialog that several commands share. Title and filter stay from one use to the next, the file name
// does not; an empty name is a cancelled dialog.
class DialogoComun {
  public:
    void Titulo(std::string valor) { titulo_ = std::move(valor); }
    // "description|pattern|description|pattern"; the first one is selected.
    void Filtro(std::string valor) { filtro_ = std::move(valor); }

    std::string ShowOpen() const { return dialogos().ArchivoAbrir(titulo_, filtro_).value_or(""); }
    std::string ShowSave(const std::string& propuesta = {}) const {
        return dialogos().ArchivoGuardar(titulo_, filtro_, propuesta).value_or("");
    }

  private:
    std::string titulo_;
    std::string filtro_;
};

}  // namespace zel
