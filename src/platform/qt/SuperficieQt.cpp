#include "platform/qt/SuperficieQt.h"

#include <algorithm>
#include <cmath>
#include <numeric>

#include "platform/Fallo.h"
#include "platform/qt/ImagenQt.h"

namespace zel {

namespace {
constexpr double LETRA_MINIMA = 1;  // pixels
constexpr double LETRA_DE_MEDIDA = 16;
}  // namespace

void SuperficieQt::Mide(QSizeF pixeles, double pixelesPorPunto, double relacion) noexcept {
    pixeles_ = pixeles;
    pixelesPorPunto_ = pixelesPorPunto;
    relacion_ = relacion;
    fuente_ = nullptr;
}

void SuperficieQt::Font(const QFont& fuente) {
    if (fuentes_.Letra(fuente)) fuente_ = nullptr;
}

float SuperficieQt::AnchoDePixel() const {
    return static_cast<float>(relacion_ / PixelesPorUnidadX());
}

QColor SuperficieQt::ColorDe(std::int32_t color) const {
    return pluma().DrawMode == MODO_NEGRO ? QColor(Qt::black) : ColorQt(color);
}

QList<qreal> SuperficieQt::Trazos(std::int16_t estilo) {
    switch (estilo) {
        case ESTILO_TRAZOS:
            return {7, 4};
        case ESTILO_TRAZO_PUNTO:
            return {8, 3, 2, 3};
        case ESTILO_TRAZO_PUNTO_PUNTO:
            return {8, 3, 2, 3, 2, 3};
        default:
            return {};
    }
}

QList<qreal> SuperficieQt::TrazosPara(std::int16_t estilo, double largo) {
    QList<qreal> trazos = Trazos(estilo);
    const double ronda = std::accumulate(trazos.begin(), trazos.end(), 0.0);
    if (ronda == 0 || largo < ronda / 2) return {};
    const double escala = largo / (ronda * std::max(1.0, std::round(largo / ronda)));
    for (qreal& trazo : trazos)
        trazo *= escala;
    return trazos;
}

QPen SuperficieQt::PlumaQt(double ancho) const {
    QPen qt(ColorDe(pluma().ForeColor), ancho);
    qt.setCapStyle(EsSolida() ? Qt::RoundCap : Qt::FlatCap);
    qt.setJoinStyle(Qt::RoundJoin);
    if (!EsSolida()) qt.setDashPattern(Trazos(pluma().DrawStyle));
    return qt;
}

// Widths are proportional to the size, so that a text too small to be seen can be measured in a larger font.
FuenteDeTexto& SuperficieQt::Fuente() {
    if (!fuente_ || puntosDeFuente_ != FontSize()) {
        puntosDeFuente_ = FontSize();
        const double alto = puntosDeFuente_ * pixelesPorPunto_;
        const bool seVe = alto >= LETRA_MINIMA;
        fuente_ = &fuentes_.De(seVe ? alto : LETRA_DE_MEDIDA);
        reduccion_ = seVe ? 1 : alto / LETRA_DE_MEDIDA;
    }
    return *fuente_;
}

float SuperficieQt::TextWidth(std::string_view texto) {
    const double ancho = Fuente().Ancho(texto);
    return static_cast<float>(ancho * reduccion_ / PixelesPorUnidadX());
}

float SuperficieQt::TextHeight(std::string_view texto) {
    const double alto = Fuente().Alto(texto);
    return static_cast<float>(alto * reduccion_ / PixelesPorUnidadY());
}

QRectF SuperficieQt::CajaDeTexto(std::string_view texto) {
    const FuenteDeTexto& fuente = Fuente();
    return {EnPixeles({CurrentX(), CurrentY()}),
            QSizeF(fuente.Ancho(texto), fuente.Alto(texto)) * reduccion_};
}

SuperficieQt::ImagenColocada SuperficieQt::Coloca(const zel::Imagen& imagen, PuntoXY esquina, float ancho,
                                                  float alto) const {
    const auto* datos = dynamic_cast<const ImagenQt*>(&imagen);
    if (!datos) throw Fallo(13);
    const QPointF desde = EnPixeles(esquina);
    // Added up as double: far from the origin a float would lose the picture's size.
    const QSizeF lados(ancho * PixelesPorUnidadX(), alto * PixelesPorUnidadY());
    // Beyond this Qt's arithmetic of places and parts of a picture is lost.
    constexpr double LEJISIMOS = 1e12;
    for (const double medida : {desde.x(), desde.y(), lados.width(), lados.height()}) {
        if (!(std::abs(medida) < LEJISIMOS)) throw Fallo(6);
    }
    const bool haciaLaIzquierda = lados.width() < 0;
    const bool haciaArriba = lados.height() < 0;
    return {QRectF(desde, lados).normalized(), haciaLaIzquierda || haciaArriba
                                                   ? datos->Datos().mirrored(haciaLaIzquierda, haciaArriba)
                                                   : datos->Datos()};
}

}  // namespace zel
