#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <memory>
#include <string>

#include "platform/Dialogos.h"

namespace zel::pruebas {

// Dialogs that follow a script: the notices announced with Espera and the answers of Responde and
// ResponderArchivo and ResponderColor, each in that order. A box that nobody announced, and an announced one
// that never came, fail the test. Installed while it lives.
class DialogosGuion {
  public:
    DialogosGuion() : guion_(std::make_shared<Guion>()), anteriores_(instalaDialogos(guion_)) {}
    DialogosGuion(const DialogosGuion&) = delete;
    DialogosGuion& operator=(const DialogosGuion&) = delete;
    ~DialogosGuion() {
        instalaDialogos(anteriores_);
        for (const auto& texto : guion_->esperados)
            ADD_FAILURE() << "No box came with the text: " << texto;
        EXPECT_TRUE(guion_->respuestas.empty() && guion_->archivos.empty() && guion_->colores.empty())
            << "An answer was not asked for";
    }

    // A notice that contains this text is to come.
    void Espera(const std::string& texto) { guion_->esperados.push_back(texto); }
    // A question is to come, or a dialog for a file; nothing cancels it.
    void Responde(std::optional<std::string> texto) { guion_->respuestas.push_back(std::move(texto)); }
    void ResponderArchivo(std::optional<std::string> ruta) { guion_->archivos.push_back(std::move(ruta)); }
    void ResponderColor(std::optional<std::int32_t> color) { guion_->colores.push_back(color); }
    // Runs while each box is open.
    void MientrasAvisa(std::function<void()> accion) { guion_->mientras = std::move(accion); }
    // The whole text of the last notice; the last question and the answer that it proposed.
    const std::string& Ultimo() const { return guion_->ultimo; }
    // What the last notice kept folded.
    const std::string& Detalle() const { return guion_->detalle; }
    const std::string& Pregunta() const { return guion_->pregunta; }
    const std::string& Propuesta() const { return guion_->propuesta; }
    std::int32_t ColorPropuesto() const { return guion_->color; }

  private:
    struct Guion : public Dialogos {
        void MsgBox(const std::string& texto, const std::string&) override {
            ultimo = texto;
            if (mientras) mientras();
            if (esperados.empty()) {
                ADD_FAILURE() << "Unannounced box: " << texto;
                return;
            }
            EXPECT_NE(texto.find(esperados.front()), std::string::npos) << texto;
            esperados.pop_front();
        }
        void AvisoConDetalle(const std::string& texto, const std::string& plegado) override {
            MsgBox(texto, {});
            detalle = plegado;
        }
        std::optional<std::string> InputBox(const std::string& texto, const std::string&,
                                            const std::string& propone) override {
            pregunta = texto;
            propuesta = propone;
            return Siguiente(respuestas, "question: " + texto);
        }
        std::optional<std::string> ArchivoAbrir(const std::string&, const std::string&) override {
            return Siguiente(archivos, "file dialog");
        }
        std::optional<std::string> ArchivoGuardar(const std::string&, const std::string&,
                                                  const std::string&) override {
            return Siguiente(archivos, "file dialog");
        }
        std::optional<std::int32_t> Color(std::int32_t propuesto) override {
            color = propuesto;
            return Siguiente(colores, "colour dialog");
        }
        template <typename T>
        std::optional<T> Siguiente(std::deque<std::optional<T>>& quedan, const std::string& que) {
            if (mientras) mientras();
            if (quedan.empty()) {
                ADD_FAILURE() << "Unannounced " << que;
                return std::nullopt;
            }
            auto siguiente = std::move(quedan.front());
            quedan.pop_front();
            return siguiente;
        }
        std::deque<std::string> esperados;
        std::deque<std::optional<std::string>> respuestas, archivos;
        std::deque<std::optional<std::int32_t>> colores;
        std::function<void()> mientras;
        std::string ultimo, detalle, pregunta, propuesta;
        std::int32_t color = 0;
    };

    std::shared_ptr<Guion> guion_;
    std::shared_ptr<Dialogos> anteriores_;
};

}  // namespace zel::pruebas
