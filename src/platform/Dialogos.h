#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace zel {

// The modal boxes that the system shows. A host may bring its own look, a test its own answers.
// Every text is plain text in UTF-8.
class Dialogos {
  public:
    Dialogos() = default;
    Dialogos(const Dialogos&) = delete;
    Dialogos& operator=(const Dialogos&) = delete;
    virtual ~Dialogos() = default;

    // A notice with an OK button. An empty title shows the platform's default one.
    virtual void MsgBox(const std::string& texto, const std::string& titulo = {}) = 0;

    // The same with what it comes from, which only some will want to read: it may be shown on demand.
    virtual void AvisoConDetalle(const std::string& texto, const std::string& detalle) {
        MsgBox(texto + "\n\n" + detalle);
    }

    // The text typed by the user; nothing when the box was cancelled.
    virtual std::optional<std::string> InputBox(const std::string& texto, const std::string& titulo,
                                                const std::string& propuesta) = 0;

    // The full path chosen; nothing when cancelled. The filter is "description|pattern|description|pattern".
    virtual std::optional<std::string> ArchivoAbrir(const std::string& titulo, const std::string& filtro) = 0;
    virtual std::optional<std::string> ArchivoGuardar(const std::string& titulo, const std::string& filtro,
                                                      const std::string& propuesta) = 0;

    // The folder in which the dialogs for files begin from now on; empty for the platform's own.
    virtual void Carpeta(const std::string&) {}

    // The colour chosen as red + 256 green + 65536 blue; nothing when cancelled.
    virtual std::optional<std::int32_t> Color(std::int32_t propuesta) = 0;
};

// The dialogs in use. Until others are installed, notices go to the standard error stream and every
// question counts as cancelled.
Dialogos& dialogos();

// Installs other dialogs and returns those in use before; an empty pointer brings the initial ones back.
std::shared_ptr<Dialogos> instalaDialogos(std::shared_ptr<Dialogos> nuevos);

// The same where nobody has installed any: dialogs that are in use stay.
void instalaDialogosSiFaltan(std::shared_ptr<Dialogos> nuevos);

}  // namespace zel
