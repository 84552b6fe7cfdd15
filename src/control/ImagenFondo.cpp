#include "control/ImagenFondo.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <cmath>
#include <tuple>

#include "model/modErrorHandling.h"
#include "platform/Numeros.h"
#include "platform/qt/LectorDeImagen.h"

namespace zel {

namespace {

constexpr std::size_t CAJA_X0 = 0;
constexpr std::size_t CAJA_Y0 = 1;
constexpr std::size_t CAJA_LX = 2;
constexpr std::size_t CAJA_PROPORCION = 3;

constexpr double PROPORCION_MINIMA = 0.01;
constexpr double PROPORCION_MAXIMA = 10.01;
constexpr double ANCHO_MINIMO_DE_FONDO = 1;

// Nothing for a number beyond all measure.
std::optional<double> NumeroDe(std::string texto) try {
    const std::size_t coma = texto.find(',');
    if (coma != std::string::npos) texto[coma] = '.';
    return NumeroInicial(texto);
} catch (const Fallo&) {
    return std::nullopt;
}

// What the boxes say before anybody writes in them.
struct Rotulo {
    const char* texto;
    const char* inicial;
};
constexpr Rotulo ROTULOS[] = {
    {"Posición X", "0"}, {"Posición Y", "0"}, {"Logitud  X", "300"}, {"Prop. Y/X", "1"}};

}  // namespace

ImagenFondo::ImagenFondo(QWidget* visor, Documento& documento, const Trabajo& trabajo, Refresco& refresco,
                         MaquinaEstados& estados, Anfitrion& anfitrion, DialogoComun& dialogo,
                         std::function<void()> ver)
    : documento_(documento),
      trabajo_(trabajo),
      refresco_(refresco),
      estados_(estados),
      anfitrion_(anfitrion),
      dialogo_(dialogo),
      ver_(std::move(ver)) {
    ConstruyeFrame(visor);
}

void ImagenFondo::ConstruyeFrame(QWidget* visor) {
    frame_ = new QGroupBox(QStringLiteral("Imagen de fondo"), visor);
    frame_->setObjectName(QStringLiteral("FrameImagenFondo"));
    frame_->setAutoFillBackground(true);
    frame_->setEnabled(false);
    frame_->hide();
    auto* filas = new QFormLayout(frame_);
    for (std::size_t i = 0; i < otbImagenFondo_.size(); ++i) {
        const QString indice = QStringLiteral("(%1)").arg(i);
        auto* caja = new QLineEdit(QString::fromLatin1(ROTULOS[i].inicial), frame_);
        caja->setObjectName(QStringLiteral("otbImagenFondo") + indice);
        caja->setMinimumWidth(caja->fontMetrics().averageCharWidth() * 12);
        auto* rotulo = new QLabel(QString::fromUtf8(ROTULOS[i].texto), frame_);
        rotulo->setObjectName(QStringLiteral("LabelImagenFondo") + indice);
        caja->setAccessibleName(rotulo->text().simplified());
        rotulo->setBuddy(caja);
        filas->addRow(rotulo, caja);
        otbImagenFondo_[i] = caja;
    }
    Check1OcultarImagenFondo_ = new QCheckBox(QStringLiteral("Ocultar"), frame_);
    Check1OcultarImagenFondo_->setObjectName(QStringLiteral("Check1OcultarImagenFondo"));
    filas->addRow(Check1OcultarImagenFondo_);
    auto* botones = new QHBoxLayout;
    for (const char* texto : {"Ver", "Aceptar"}) {
        auto* boton = new QPushButton(QString::fromLatin1(texto), frame_);
        boton->setObjectName(QStringLiteral("cmdImagenFondo") + QString::fromLatin1(texto));
        botones->addWidget(boton);
    }
    filas->addRow(botones);
    frame_->adjustSize();
}

std::optional<double> ImagenFondo::Caja(std::size_t i) const {
    return NumeroDe(otbImagenFondo_[i]->text().toStdString());
}

void ImagenFondo::Caja(std::size_t i, double valor) {
    otbImagenFondo_[i]->setText(QString::fromStdString(TextoDeNumero(valor)));
}

void ImagenFondo::EscribeCajas() {
    Caja(CAJA_X0, ImagenX0_);
    Caja(CAJA_Y0, ImagenY0_);
    Caja(CAJA_LX, ImagenLX_);
    Caja(CAJA_PROPORCION, ImagenPropYX_);
}

std::string ImagenFondo::Carga(const std::string& ruta) {
    ImagenLeida leida = LeeImagen(ruta);
    if (!leida.imagen) {
        Pintar_LinkError();
        return "\"" + ruta + "\": " + leida.motivo;
    }
    Pintar_ = std::move(leida.imagen);
    bHayImagenFondo_ = true;
    return {};
}

void ImagenFondo::Pintar_LinkError() noexcept {
    bHayImagenFondo_ = false;
}

void ImagenFondo::OlvidaLaDelArchivo() noexcept {
    delArchivo_.reset();
    motivo_.clear();
}

// The picture as wide in the world as it is on the screen, and its own proportion.
void ImagenFondo::PonTamanyoInicial() {
    ImagenPropYX_ = double(Pintar_->Alto()) / Pintar_->Ancho();
    Caja(CAJA_PROPORCION, ImagenPropYX_);
    Caja(CAJA_LX, Pintar_->Ancho());
}

// False when the command ends here: nothing was chosen, or what was chosen is no picture.
bool ImagenFondo::Elige() {
    dialogo_.Titulo("IMAGEN DE FONDO DEL ESQUEMA");
    dialogo_.Filtro(
        "Archivos de imagen(*.bmp)|*.bmp|Archivos de imagen(*.jpg)|*.jpg|Todos los archivos(*.*)|*.*");
    const std::string ruta = dialogo_.ShowOpen();
    trabajo_.ExigeVisor();
    if (ruta.empty()) return false;
    const std::string motivo = Carga(ruta);
    if (motivo.empty()) {
        sArchivoImagenFondo_ = ruta;
        copia_.clear();
        OlvidaLaDelArchivo();
        documento_.bHabidoCambios = true;
        PonTamanyoInicial();
        return true;
    }
    dialogos().MsgBox("No se puede leer la imagen " + motivo +
                      ". Escoja un archivo de imagen BMP, JPEG o PNG.");
    trabajo_.ExigeVisor();
    return false;
}

void ImagenFondo::Edita() {
    refresco_.AnularRefresco();
    if (!bHayImagenFondo_ && !Elige()) return;
    frame_->show();
    frame_->setEnabled(true);
    frame_->raise();
    estados_.Estado(E_IMAGEN_FONDO, 1);
    refresco_.PedirRefresco();  // a subsystem that was shown is not any more
    cmdImagenFondoVer_Click();
    refresco_.RefrescarSiPendiente();
}

void ImagenFondo::Quita() try {
    refresco_.AnularRefresco();
    bHayImagenFondo_ = false;
    OlvidaLaDelArchivo();
    CierraFrame();
    estados_.Estado(E_PREPARADO, 1);
    documento_.bHabidoCambios = true;
    refresco_.RefrescarSiPendiente();
} catch (...) {
    LanzaErrorVisor(trabajo_.iEstado, ". menuVisorQuitarImagen_Click (Esquema)");
}

bool ImagenFondo::CajasValidas() {
    bool validas = Caja(CAJA_X0) && Caja(CAJA_Y0);
    const double proporcion = std::abs(Caja(CAJA_PROPORCION).value_or(0));
    validas = validas && proporcion >= PROPORCION_MINIMA && proporcion <= PROPORCION_MAXIMA &&
              Caja(CAJA_LX).value_or(0) >= ANCHO_MINIMO_DE_FONDO;
    if (!validas) EscribeCajas();
    return validas;
}

void ImagenFondo::cmdImagenFondoVer_Click() {
    if (!CajasValidas()) return;
    const auto situacion = [this] {
        return std::tuple(ImagenX0_, ImagenY0_, ImagenLX_, ImagenPropYX_, bOcultarImagenFondo_);
    };
    const auto antes = situacion();
    ImagenX0_ = *Caja(CAJA_X0);
    ImagenY0_ = *Caja(CAJA_Y0);
    ImagenLX_ = *Caja(CAJA_LX);
    ImagenPropYX_ = *Caja(CAJA_PROPORCION);
    EscribeCajas();
    ImagenLY_ = -ImagenPropYX_ * ImagenLX_;
    bOcultarImagenFondo_ = Check1OcultarImagenFondo_->isChecked();
    if (situacion() != antes) documento_.bHabidoCambios = true;
    ver_();
}

void ImagenFondo::cmdImagenFondoAceptar_Click() {
    cmdImagenFondoVer_Click();
    frame_->hide();
    frame_->setEnabled(false);
    estados_.Estado(E_PREPARADO, 1);
    anfitrion_.BarraElementosActiva(true);
    refresco_.RefrescarSiPendiente();
}

void ImagenFondo::CierraFrame() {
    if (frame_->isHidden()) return;
    frame_->hide();
    frame_->setEnabled(false);
    anfitrion_.BarraElementosActiva(true);
    // Without its frame the state would have no way out.
    if (trabajo_.iEstado == E_IMAGEN_FONDO) estados_.Estado(E_PREPARADO, 1);
}

void ImagenFondo::Reinicia() {
    ImagenX0_ = ImagenY0_ = ImagenLX_ = ImagenPropYX_ = ImagenLY_ = 0;
    for (std::size_t i = 0; i < otbImagenFondo_.size(); ++i)
        otbImagenFondo_[i]->setText(QString::fromLatin1(ROTULOS[i].inicial));
    bOcultarImagenFondo_ = false;
    Check1OcultarImagenFondo_->setChecked(false);
}

void ImagenFondo::AplicaSeccion(const std::optional<SeccionImagen>& seccion) {
    bHayImagenFondo_ = false;
    OlvidaLaDelArchivo();
    Reinicia();
    if (!seccion) return;
    if (const auto& imagen = seccion->imagen) {
        sArchivoImagenFondo_ = imagen->Archivo;
        copia_.clear();
        ImagenX0_ = imagen->X0;
        ImagenY0_ = imagen->Y0;
        ImagenLX_ = imagen->LX;
        ImagenPropYX_ = imagen->LY;
        ImagenLY_ = -ImagenPropYX_ * ImagenLX_;
        EscribeCajas();
        bOcultarImagenFondo_ = imagen->Oculta;
        Check1OcultarImagenFondo_->setChecked(bOcultarImagenFondo_);
        const std::string motivo = Carga(sArchivoImagenFondo_);
        if (motivo.empty()) return;
        motivo_ = "No se muestra la imagen de fondo " + motivo;
    } else {
        motivo_ = seccion->motivo;
    }
    delArchivo_ = seccion;
    delArchivo_->imagen.reset();
}

ImagenQueGuardar ImagenFondo::Guardada() const {
    if (delArchivo_) return *delArchivo_;
    if (!bHayImagenFondo_) return std::nullopt;
    return ImagenGuardada{sArchivoImagenFondo_, ImagenX0_, ImagenY0_, ImagenLX_, ImagenPropYX_,
                          bOcultarImagenFondo_, copia_};
}

void ImagenFondo::Guardada(std::string copia) {
    if (!copia.empty()) copia_ = std::move(copia);
}

Fondo ImagenFondo::FondoDelPanel() const {
    if (!bHayImagenFondo_ || bOcultarImagenFondo_) return {};
    return {Pintar_.get(),
            {static_cast<float>(ImagenX0_), static_cast<float>(ImagenY0_)},
            static_cast<float>(ImagenLX_),
            static_cast<float>(ImagenLY_)};
}

}  // namespace zel
