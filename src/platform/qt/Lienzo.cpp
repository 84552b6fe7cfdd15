#include "platform/qt/Lienzo.h"

#include <QPainterPath>
#include <QPen>
#include <algorithm>
#include <cmath>
#include <numbers>

#include "platform/Fallo.h"
#include "platform/qt/ImagenQt.h"

namespace zel {

namespace {

// Beyond this the rasterizer is not exact any more; strokes are cut there.
constexpr double LEJOS = 30000;
constexpr double LETRA_MINIMA = 1;  // pixels
constexpr double LETRA_DE_MEDIDA = 16;

QColor ColorQt(std::int32_t color) {
    return {color & 0xFF, (color >> 8) & 0xFF, (color >> 16) & 0xFF};
}

// In units of the pen's width.
QList<qreal> Trazos(std::int16_t estilo) {
    switch (estilo) {
        case Superficie::ESTILO_TRAZOS:
            return {7, 4};
        case Superficie::ESTILO_TRAZO_PUNTO:
            return {8, 3, 2, 3};
        case Superficie::ESTILO_TRAZO_PUNTO_PUNTO:
            return {8, 3, 2, 3, 2, 3};
        default:
            return {};
    }
}

QPainter::CompositionMode ModoDeComposicion(bool invierte) noexcept {
    return invierte ? QPainter::RasterOp_NotDestination : QPainter::CompositionMode_SourceOver;
}

bool EstaLejos(QPointF p) noexcept {
    return std::abs(p.x()) > LEJOS || std::abs(p.y()) > LEJOS;
}

// The part of a segment inside the square of half side LEJOS; false when there is none.
bool Recorta(QPointF& a, QPointF& b) noexcept {
    double desde = 0;
    double hasta = 1;
    const QPointF d = b - a;
    const auto limita = [&](double p, double q) {
        if (p == 0) return q >= 0;
        const double t = q / p;
        if (p < 0)
            desde = std::max(desde, t);
        else
            hasta = std::min(hasta, t);
        return desde <= hasta;
    };
    if (!limita(-d.x(), a.x() + LEJOS) || !limita(d.x(), LEJOS - a.x()) || !limita(-d.y(), a.y() + LEJOS) ||
        !limita(d.y(), LEJOS - a.y())) {
        return false;
    }
    b = a + d * hasta;
    a += d * desde;
    return true;
}

}  // namespace

Lienzo::Lienzo(QSize pixeles, double relacion) {
    Redimensiona(pixeles, relacion);
}

void Lienzo::Redimensiona(QSize pixeles, double relacion, double ppp) {
    QImage nueva = ImagenNormal(pixeles);
    if (nueva.isNull()) throw Fallo(7);
    nueva.fill(Qt::white);
    if (pintor_.isActive()) pintor_.end();
    imagen_ = std::move(nueva);
    pintor_.begin(&imagen_);
    relacion_ = relacion;
    pixelesPorPunto_ = relacion * ppp / 72;
    hayPlumaPuesta_ = false;
    fuente_ = nullptr;
    puntos_.clear();
}

QImage Lienzo::Entrega() {
    AsientaPuntos();
    pintor_.end();
    QImage imagen = std::move(imagen_);
    Redimensiona({1, 1}, relacion_);
    return imagen;
}

const QImage& Lienzo::Imagen() {
    AsientaPuntos();
    return imagen_;
}

float Lienzo::AnchoDePixel() const {
    return static_cast<float>(relacion_ / PixelesPorUnidadX());
}

QPointF Lienzo::EnPixeles(PuntoXY punto) const noexcept {
    return {(double{punto.X} - ScaleLeft()) * PixelesPorUnidadX(),
            (double{punto.Y} - ScaleTop()) * PixelesPorUnidadY()};
}

double Lienzo::AnchoDePluma() const noexcept {
    return std::max(1.0, std::round(pluma().DrawWidth * relacion_));
}

void Lienzo::PonPluma() {
    AsientaPuntos();
    if (hayPlumaPuesta_ && puesta_ == pluma()) return;
    puesta_ = pluma();
    hayPlumaPuesta_ = true;
    const bool negro = puesta_.DrawMode == MODO_NEGRO;
    const QColor color = negro ? QColor(Qt::black) : ColorQt(puesta_.ForeColor);
    QPen pluma(color, AnchoDePluma());
    // One device pixel is a cosmetic pen's width, which Qt draws much faster.
    pluma.setCosmetic(true);
    const bool solida = puesta_.DrawStyle == ESTILO_SOLIDO || puesta_.DrawWidth > 1;
    if (solida) {
        pluma.setCapStyle(puesta_.DrawWidth > 1 ? Qt::RoundCap : Qt::SquareCap);
    } else {
        pluma.setCapStyle(Qt::FlatCap);
        pluma.setDashPattern(Trazos(puesta_.DrawStyle));
    }
    pluma.setJoinStyle(Qt::RoundJoin);
    pintor_.setPen(pluma);
    if (puesta_.FillStyle == RELLENO_SOLIDO) {
        pintor_.setBrush(negro ? QColor(Qt::black) : ColorQt(puesta_.FillColor));
    } else {
        pintor_.setBrush(Qt::NoBrush);
    }
    pintor_.setRenderHint(QPainter::Antialiasing, !Invierte());
    pintor_.setCompositionMode(ModoDeComposicion(Invierte()));
}

// Moves horizontal and vertical segments onto whole pixels, so that they come out crisp.
void Lienzo::Ajusta(std::vector<QPointF>& puntos) const {
    const bool impar = static_cast<int>(AnchoDePluma()) % 2 == 1;
    const auto alPixel = [&](double v) { return impar ? std::floor(v) + 0.5 : std::round(v); };
    const auto ajusta = [&](QPointF& a, QPointF& b) {
        if (std::abs(a.y() - b.y()) < 1e-3) {
            const double y = alPixel(a.y());
            a.setY(y);
            b.setY(y);
        } else if (std::abs(a.x() - b.x()) < 1e-3) {
            const double x = alPixel(a.x());
            a.setX(x);
            b.setX(x);
        }
    };
    const bool cerrada = puntos.size() > 2 && puntos.front() == puntos.back();
    // The last point of a closed chain is its first one: it moves with it.
    if (cerrada) puntos.pop_back();
    for (std::size_t i = 1; i < puntos.size(); ++i)
        ajusta(puntos[i - 1], puntos[i]);
    if (cerrada) {
        ajusta(puntos.back(), puntos.front());
        puntos.push_back(puntos.front());
    }
}

// Draws the stroke in hand with the pen.
void Lienzo::Traza() {
    PonPluma();
    const auto n = static_cast<int>(cadena_.size());
    if (n < 2) return;
    if (std::any_of(cadena_.begin(), cadena_.end(), EstaLejos)) {
        TrazaLejana();
        return;
    }
    if (Invierte()) {
        TrazaUnaVez();
        return;
    }
    if (n == 2) {
        pintor_.drawLine(cadena_[0], cadena_[1]);
    } else if (n > 3 && cadena_.front() == cadena_.back()) {
        const QBrush relleno = pintor_.brush();
        if (relleno.style() != Qt::NoBrush) pintor_.setBrush(Qt::NoBrush);
        pintor_.drawPolygon(cadena_.data(), n - 1);
        if (relleno.style() != Qt::NoBrush) pintor_.setBrush(relleno);
    } else {
        pintor_.drawPolyline(cadena_.data(), n);
    }
}

// The stroke as one area, so that no pixel is inverted twice where it crosses or covers itself.
void Lienzo::TrazaUnaVez() {
    QPainterPath camino(cadena_.front());
    for (std::size_t i = 1; i < cadena_.size(); ++i)
        camino.lineTo(cadena_[i]);
    if (cadena_.size() > 3 && cadena_.front() == cadena_.back()) camino.closeSubpath();
    QPainterPathStroker trazador(pintor_.pen());
    trazador.setJoinStyle(Qt::MiterJoin);
    QPainterPath area = trazador.createStroke(camino);
    area.setFillRule(Qt::WindingFill);
    pintor_.fillPath(area, Qt::black);
}

// A stroke that goes far beyond the image: the parts of it that are near, each as one stroke.
void Lienzo::TrazaLejana() {
    std::vector<QPointF> parte;
    const auto dibuja = [&] {
        if (parte.size() > 1) pintor_.drawPolyline(parte.data(), static_cast<int>(parte.size()));
        parte.clear();
    };
    for (std::size_t i = 1; i < cadena_.size(); ++i) {
        QPointF a = cadena_[i - 1];
        QPointF b = cadena_[i];
        if (!Recorta(a, b)) continue;
        if (parte.empty() || parte.back() != a) {
            dibuja();
            parte.push_back(a);
        }
        parte.push_back(b);
    }
    dibuja();
}

void Lienzo::Line(std::span<const PuntoXY> cadena) {
    cadena_.clear();
    for (const PuntoXY punto : cadena)
        cadena_.push_back(EnPixeles(punto));
    Ajusta(cadena_);
    Traza();
}

void Lienzo::Caja(PuntoXY esquina, PuntoXY opuesta) {
    PonPluma();
    const auto cerca = [](QPointF p) {
        return QPointF(std::clamp(p.x(), -LEJOS, LEJOS), std::clamp(p.y(), -LEJOS, LEJOS));
    };
    const QRectF caja = QRectF(cerca(EnPixeles(esquina)), cerca(EnPixeles(opuesta))).normalized();
    if (pluma().FillStyle == RELLENO_SOLIDO) {
        const QRect entera(QPoint(qRound(caja.left()), qRound(caja.top())),
                           QPoint(qRound(caja.right()), qRound(caja.bottom())));
        pintor_.fillRect(entera, pintor_.brush());
        if (Invierte()) return;
    }
    cadena_ = {caja.topLeft(), caja.topRight(), caja.bottomRight(), caja.bottomLeft(), caja.topLeft()};
    Ajusta(cadena_);
    Traza();
}

void Lienzo::Circle(PuntoXY centro, float radio) {
    Circle(centro, radio, 0, 2 * std::numbers::pi);
}

void Lienzo::Circle(PuntoXY centro, float radio, double inicio, double fin) {
    if (fin < inicio) fin += 2 * std::numbers::pi;
    const QPointF c = EnPixeles(centro);
    const double r = radio * PixelesPorUnidadX();
    const bool entero = fin - inicio >= 2 * std::numbers::pi;
    // As many sides as keep the polygon within a twelfth of a pixel of the circle.
    const double paso = 2 * std::acos(1 - std::min(1.0, 1.0 / 12 / std::max(r, 1.0 / 12)));
    const int lados = std::clamp(static_cast<int>(std::ceil((fin - inicio) / paso)), 3, 720);
    cadena_.clear();
    for (int i = 0; i <= lados; ++i) {
        const double angulo = inicio + (fin - inicio) * i / lados;
        cadena_.emplace_back(c.x() + r * std::cos(angulo), c.y() - r * std::sin(angulo));
    }
    if (entero) cadena_.back() = cadena_.front();
    if (entero && pluma().FillStyle == RELLENO_SOLIDO) {
        PonPluma();
        const QPen pluma = pintor_.pen();
        pintor_.setPen(Qt::NoPen);
        pintor_.drawPolygon(cadena_.data(), lados);
        pintor_.setPen(pluma);
        if (Invierte()) return;
    }
    Traza();
}

void Lienzo::PSet(PuntoXY punto, std::int32_t color) {
    const std::int32_t negroOColor = pluma().DrawMode == MODO_NEGRO ? 0 : color;
    if (negroOColor != colorDePuntos_ || Invierte() != puntosInvierten_) AsientaPuntos();
    colorDePuntos_ = negroOColor;
    puntosInvierten_ = Invierte();
    const QPointF enPixeles = EnPixeles(punto);
    if (!EstaLejos(enPixeles)) puntos_.push_back(enPixeles);
}

// Draws the dots that are waiting.
void Lienzo::AsientaPuntos() {
    if (puntos_.empty()) return;
    pintor_.setCompositionMode(ModoDeComposicion(puntosInvierten_));
    const QColor color = ColorQt(colorDePuntos_);
    const int lado = std::max(1, qRound(relacion_));
    for (const QPointF punto : puntos_) {
        const int x = static_cast<int>(std::floor(punto.x() - (lado - 1) / 2.0));
        const int y = static_cast<int>(std::floor(punto.y() - (lado - 1) / 2.0));
        pintor_.fillRect(x, y, lado, lado, color);
    }
    puntos_.clear();
    hayPlumaPuesta_ = false;
}

void Lienzo::PaintPicture(const zel::Imagen& imagen, PuntoXY esquina, float ancho, float alto) {
    const auto* datos = dynamic_cast<const ImagenQt*>(&imagen);
    if (!datos) throw Fallo(13);
    const QRectF destino(EnPixeles(esquina), EnPixeles({esquina.X + ancho, esquina.Y + alto}));
    const QRectF visible = destino.normalized() & QRectF(imagen_.rect());
    if (visible.isEmpty()) return;
    AsientaPuntos();
    hayPlumaPuesta_ = false;
    // Only the part in sight is scaled: the whole could be larger than any image.
    const auto origen = [&](QPointF p) {
        return QPointF((p.x() - destino.left()) / destino.width() * imagen.Ancho(),
                       (p.y() - destino.top()) / destino.height() * imagen.Alto());
    };
    pintor_.setCompositionMode(QPainter::CompositionMode_SourceOver);
    pintor_.setRenderHint(QPainter::SmoothPixmapTransform);
    pintor_.drawImage(visible, datos->Datos(),
                      QRectF(origen(visible.topLeft()), origen(visible.bottomRight())).normalized());
}

void Lienzo::Cls() {
    puntos_.clear();
    hayPlumaPuesta_ = false;
    pintor_.setCompositionMode(QPainter::CompositionMode_Source);
    pintor_.fillRect(imagen_.rect(), Qt::white);
}

void Lienzo::Refresh() {
    if (alRefrescar_) alRefrescar_();
}

// The font in use. Widths are proportional to the size, so that a text too small to be seen is measured in
// a larger font and `reduccion` brings it down to its own size.
FuenteDeTexto& Lienzo::Fuente() {
    if (!fuente_ || puntosDeFuente_ != FontSize()) {
        puntosDeFuente_ = FontSize();
        const double alto = puntosDeFuente_ * pixelesPorPunto_;
        const bool seVe = alto >= LETRA_MINIMA;
        fuente_ = &fuentes_.De(seVe ? alto : LETRA_DE_MEDIDA);
        reduccion_ = seVe ? 1 : alto / LETRA_DE_MEDIDA;
    }
    return *fuente_;
}

void Lienzo::Print(std::string_view texto) {
    AsientaPuntos();
    FuenteDeTexto& fuente = Fuente();
    if (reduccion_ < 1) return;  // less than a pixel high: nothing to be seen
    pintor_.setCompositionMode(QPainter::CompositionMode_SourceOver);
    hayPlumaPuesta_ = false;
    fuente.Pinta(pintor_, EnPixeles({CurrentX(), CurrentY()}), ColorQt(pluma().ForeColor), texto);
}

float Lienzo::TextWidth(std::string_view texto) {
    const double ancho = Fuente().Ancho(texto);
    return static_cast<float>(ancho * reduccion_ / PixelesPorUnidadX());
}

float Lienzo::TextHeight(std::string_view texto) {
    const double alto = Fuente().Alto(texto);
    return static_cast<float>(alto * reduccion_ / PixelesPorUnidadY());
}

void Lienzo::MousePointer(std::int16_t puntero, std::int32_t numeroDeCursor) {
    if (alCambiarPuntero_) alCambiarPuntero_(puntero, numeroDeCursor);
}

}  // namespace zel
