#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <memory>
#include <string>

#include "platform/Dialogos.h"

namespace zel::pruebas {

// Dialogs that follow a script: the notices announced with Espera, in that order. A box that nobody
// announced, and an announced one that never came, fail the test. Installed while it lives.
class DialogosGuion {
  public:
    DialogosGuion() : guion_(std::make_shared<Guion>()), anteriores_(instalaDialogos(guion_)) {}
    DialogosGuion(const DialogosGuion&) = delete;
    DialogosGuion& operator=(const DialogosGuion&) = delete;
    ~DialogosGuion() {
        instalaDialogos(anteriores_);
        for (const auto& texto : guion_->esperados)
            ADD_FAILURE() << "No box came with the text: " << texto;
    }

    // A notice that contains this text is to come.
    void Espera(const std::string& texto) { guion_->esperados.push_back(texto); }
    // The whole text of the last notice.
    const std::string& Ultimo() const { return guion_->ultimo; }

  private:
    struct Guion : public Dialogos {
        void MsgBox(const std::string& texto, const std::string&) override {
            ultimo = texto;
            if (esperados.empty()) {
                ADD_FAILURE() << "Unannounced box: " << texto;
                return;
            }
            EXPECT_NE(texto.find(esperados.front()), std::string::npos) << texto;
            esperados.pop_front();
        }
        std::optional<std::string> InputBox(const std::string& texto, const std::string&,
                                            const std::string&) override {
            ADD_FAILURE() << "Unannounced question: " << texto;
            return std::nullopt;
        }
        std::optional<std::string> ArchivoAbrir(const std::string&, const std::string&) override {
            ADD_FAILURE() << "Unannounced file dialog";
            return std::nullopt;
        }
        std::optional<std::string> ArchivoGuardar(const std::string&, const std::string&,
                                                  const std::string&) override {
            ADD_FAILURE() << "Unannounced file dialog";
            return std::nullopt;
        }
        std::optional<std::int32_t> Color(std::int32_t) override {
            ADD_FAILURE() << "Unannounced colour dialog";
            return std::nullopt;
        }
        std::deque<std::string> esperados;
        std::string ultimo;
    };

    std::shared_ptr<Guion> guion_;
    std::shared_ptr<Dialogos> anteriores_;
};

}  // namespace zel::pruebas
