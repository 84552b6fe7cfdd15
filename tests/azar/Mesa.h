#pragma once

#include <QEvent>
#include <QLineEdit>
#include <QVBoxLayout>
#include <QWidget>

#include "azar/Gesto.h"
#include "control/Esquema.h"
#include "control/PanelDibujo.h"
#include "platform/Dialogos.h"
#include "support/CarpetaTemporal.h"

namespace zel::azar {

// Boxes that are answered by the numbers of the gesture in hand: cancelled, with garbage, with what is huge
// and with what makes sense. A notice that tells a failure is one.
class Respuestas : public Dialogos {
  public:
    void Prepara(const Gesto& g, std::string carpeta) {
        numero_ = g.n[3] * 1000 + g.n[2];
        carpeta_ = std::move(carpeta);
    }
    std::string fallo;

    void MsgBox(const std::string& texto, const std::string&) override;
    std::optional<std::string> InputBox(const std::string&, const std::string&, const std::string&) override;
    std::optional<std::string> ArchivoAbrir(const std::string&, const std::string&) override;
    std::optional<std::string> ArchivoGuardar(const std::string&, const std::string&,
                                              const std::string&) override;
    std::optional<std::int32_t> Color(std::int32_t) override;

  private:
    unsigned Siguiente(unsigned n) {
        numero_ = numero_ * 7919 + 13;
        return (numero_ >> 8) % n;
    }
    unsigned numero_ = 0;
    std::string carpeta_;
};

// A window with the control and another field, in a folder of its own, and a host that edits and deletes what
// it is asked to.
class Mesa {
  public:
    enum class Principio : std::uint8_t { Vacio, Sencillo, Trabajado };
    explicit Mesa(Principio principio);
    Mesa(const Mesa&) = delete;
    Mesa& operator=(const Mesa&) = delete;
    ~Mesa();

    void Haz(const Gesto& g);
    // The mouse where it was last: brings back what goes with it, such as an underline.
    void MueveEnElSitio();
    bool Pulsado() const { return botones_ != Qt::NoButton; }
    int Pulsaciones() const { return pulsaciones_; }
    // What went wrong since the beginning; empty when nothing.
    std::string Fallo() const { return !fallo_.empty() ? fallo_ : respuestas_->fallo; }
    void Falla(const std::string& que) {
        if (fallo_.empty()) fallo_ = que;
    }

    pruebas::CarpetaTemporal carpeta;
    Esquema& esquema() const { return *esquema_; }
    PanelDibujo& panel() const { return *panel_; }
    // Takes the mark away: the next change has to set it again.
    void TomaLaMarca() {
        marcado_ = true;
        esquema_->bHabidoCambios(false);
    }
    // The schematic was replaced, and the mark set back, by what was done last.
    bool Renovado() const { return renovado_; }

  private:
    QPoint Sitio(const Gesto& g) const;
    void Raton(QEvent::Type tipo, Qt::MouseButton boton, QPoint donde, unsigned mayus);
    void PulsaBoton(QWidget* boton);
    void Tecla(const Gesto& g, bool abajo, bool arriba);
    void Menu(const Gesto& g);
    void Boton(const Gesto& g);
    void Barra(const Gesto& g);
    void CuadroDeImagen(const Gesto& g);
    void Edita(const Gesto& g);
    void Guarda();
    void Abre();
    void LlamaElAnfitrion(const Gesto& g);
    void Borra(qint32 codigo);
    template <typename Accion>
    void Llama(Accion accion);

    QWidget ventana_;
    QLineEdit* otro_;
    Esquema* esquema_;
    PanelDibujo* panel_;
    std::shared_ptr<Respuestas> respuestas_ = std::make_shared<Respuestas>();
    std::shared_ptr<Dialogos> anteriores_;
    QPoint raton_{5, 5};
    Qt::MouseButtons botones_;
    int pulsaciones_ = 0;
    std::vector<std::pair<int, Qt::KeyboardModifiers>> teclas_;  // held
    std::string fallo_;
    std::string guardado_;  // the file last opened or saved, as it is
    bool marcado_ = false;  // the mark has been set since
    bool renovado_ = false;
};

}  // namespace zel::azar
