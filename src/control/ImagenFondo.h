#pragma once

#include <QGroupBox>
#include <array>
#include <functional>
#include <memory>
#include <optional>

#include "drawing/Pintor.h"
#include "editing/MaquinaEstados.h"
#include "file/GuardadoSeguro.h"
#include "platform/DialogoComun.h"

class QCheckBox;
class QLineEdit;

namespace zel {

// The picture under the schematic, and the frame in which the user places it.
class ImagenFondo {
  public:
    // `ver` repaints the panel, picture included.
    ImagenFondo(QWidget* visor, Documento& documento, const Trabajo& trabajo, Refresco& refresco,
                MaquinaEstados& estados, Anfitrion& anfitrion, DialogoComun& dialogo,
                std::function<void()> ver);

    // Asks for a picture when there is none, and opens the frame.
    void Edita();
    void Quita();
    // The frame's buttons: put what the boxes say into effect; the same and close the frame.
    void cmdImagenFondoVer_Click();
    void cmdImagenFondoAceptar_Click();

    // Another schematic: the picture that was being placed was the earlier one's.
    void CierraFrame();

    // From a file's section; nothing, or one whose picture cannot be shown, leaves no picture. Such a section
    // is kept as it was until another picture takes its place.
    void AplicaSeccion(const std::optional<SeccionImagen>& seccion);
    // Why the picture of the file that was opened last is not shown; empty when it is, or there is none.
    const std::string& Motivo() const noexcept { return motivo_; }
    // For the file, and where that has left the picture, or nothing: it stands in for the one that was
    // chosen.
    ImagenQueGuardar Guardada() const;
    void Guardada(std::string copia);
    // For the paint; no picture when there is none or it is hidden.
    Fondo FondoDelPanel() const;

    bool bHayImagenFondo() const noexcept { return bHayImagenFondo_; }
    // The file tells of a picture that cannot be shown, and that is still kept.
    bool bImagenSinMostrar() const noexcept { return delArchivo_.has_value(); }
    // The frame is the control's child: it goes with it.
    void SueltaFrame() noexcept { frame_ = nullptr; }
    QWidget* Frame() const noexcept { return frame_; }

  private:
    void ConstruyeFrame(QWidget* visor);
    bool Elige();
    // Empty when the picture is there now, else why it is not.
    std::string Carga(const std::string& ruta);
    void Pintar_LinkError() noexcept;
    void OlvidaLaDelArchivo() noexcept;
    // The frame as it is before any picture has been placed.
    void Reinicia();
    void PonTamanyoInicial();
    bool CajasValidas();
    void EscribeCajas();
    // Nothing for a number beyond all measure.
    std::optional<double> Caja(std::size_t i) const;
    void Caja(std::size_t i, double valor);

    Documento& documento_;
    const Trabajo& trabajo_;
    Refresco& refresco_;
    MaquinaEstados& estados_;
    Anfitrion& anfitrion_;
    DialogoComun& dialogo_;
    std::function<void()> ver_;

    bool bHayImagenFondo_ = false;
    bool bOcultarImagenFondo_ = false;
    std::string sArchivoImagenFondo_;
    std::string copia_;  // beside the schematic, since the last save
    double ImagenX0_ = 0;
    double ImagenY0_ = 0;
    double ImagenLX_ = 0;
    double ImagenPropYX_ = 0;
    double ImagenLY_ = 0;
    std::shared_ptr<const Imagen> Pintar_;
    std::optional<SeccionImagen> delArchivo_;  // what the file says of a picture that is not shown
    std::string motivo_;

    QGroupBox* frame_ = nullptr;
    std::array<QLineEdit*, 4> otbImagenFondo_{};
    QCheckBox* Check1OcultarImagenFondo_ = nullptr;
};

}  // namespace zel
