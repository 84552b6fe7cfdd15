#include "platform/Dialogos.h"

#include <iostream>
#include <utility>

namespace zel {

namespace {

class DialogosConsola : public Dialogos {
  public:
    void MsgBox(const std::string& texto, const std::string&) override { std::cerr << texto << '\n'; }
    std::optional<std::string> InputBox(const std::string&, const std::string&, const std::string&) override {
        return std::nullopt;
    }
    std::optional<std::string> ArchivoAbrir(const std::string&, const std::string&) override {
        return std::nullopt;
    }
    std::optional<std::string> ArchivoGuardar(const std::string&, const std::string&,
                                              const std::string&) override {
        return std::nullopt;
    }
    std::optional<std::int32_t> Color(std::int32_t) override { return std::nullopt; }
};

std::shared_ptr<Dialogos>& EnUso() {
    static std::shared_ptr<Dialogos> enUso = std::make_shared<DialogosConsola>();
    return enUso;
}

}  // namespace

Dialogos& dialogos() {
    return *EnUso();
}

std::shared_ptr<Dialogos> instalaDialogos(std::shared_ptr<Dialogos> nuevos) {
    if (!nuevos) nuevos = std::make_shared<DialogosConsola>();
    return std::exchange(EnUso(), std::move(nuevos));
}

void instalaDialogosSiFaltan(std::shared_ptr<Dialogos> nuevos) {
    if (dynamic_cast<DialogosConsola*>(EnUso().get())) instalaDialogos(std::move(nuevos));
}

}  // namespace zel
