#pragma once

#include "platform/Dialogos.h"

namespace zel {

// The dialogs on Qt, over the active window. Notices are plain text; one without a title shows the
// program's name.
class DialogosQt : public Dialogos {
  public:
    void MsgBox(const std::string& texto, const std::string& titulo) override;
    void AvisoConDetalle(const std::string& texto, const std::string& detalle) override;
    std::optional<std::string> InputBox(const std::string& texto, const std::string& titulo,
                                        const std::string& propuesta) override;
    std::optional<std::string> ArchivoAbrir(const std::string& titulo, const std::string& filtro) override;
    std::optional<std::string> ArchivoGuardar(const std::string& titulo, const std::string& filtro,
                                              const std::string& propuesta) override;
    void Carpeta(const std::string& carpeta) override { carpeta_ = carpeta; }
    std::optional<std::int32_t> Color(std::int32_t propuesta) override;

  private:
    std::string EnLaCarpeta(const std::string& nombre) const;

    std::string carpeta_;
};

}  // namespace zel
