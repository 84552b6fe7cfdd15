#include "platform/qt/Lienzo.h"

#include <QPainterPath>
#include <QPen>
#include <algorithm>
#include <cmath>
#include <numbers>

#include "platform/Fallo.h"
#include "platform/qt/TrazoFino.h"

namespace zel {

namespace {

// Beyond this the rasterizer is not exact any more; strokes are cut there.
constexpr double LEJOS = 30000;
constexpr double ANCHO_FINO = 2;  // of pens whose strokes are drawn pixel by pixel

QPainter::CompositionMode ModoDeComposicion(bool invierte) noexcept {
    return invierte ? QPainter::RasterOp_NotDestination : QPainter::CompositionMode_SourceOver;
}

// Also what is nowhere, since a coordinate is no number.
bool EstaLejos(QPointF p) noexcept {
    return !(std::abs(p.x()) <= LEJOS && std::abs(p.y()) <= LEJOS);
}

// The part of a segment inside the square of half side LEJOS; false when there is none.
bool Recorta(QPointF& a, QPointF& b) noexcept {
    if (!std::isfinite(a.x() + a.y()) || !std::isfinite(b.x() + b.y())) return false;
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
    Toca();
    QImage nueva = ImagenNormal(pixeles);
    if (nueva.isNull()) throw Fallo(7);
    nueva.fill(ColorQt(BackColor()));
    if (pintor_.isActive()) pintor_.end();
    imagen_ = std::move(nueva);
    pintor_.begin(&imagen_);
    Mide(imagen_.size(), relacion * ppp / 72, relacion);
    hayPlumaPuesta_ = false;
    puntos_.clear();
}

QImage Lienzo::Entrega() {
    AsientaPuntos();
    pintor_.end();
    QImage imagen = std::move(imagen_);
    Redimensiona({1, 1}, Relacion());
    return imagen;
}

void Lienzo::Toca() {
    if (tocado_) return;
    tocado_ = true;
    if (alDibujar_) alDibujar_();
}

const QImage& Lienzo::Imagen() {
    AsientaPuntos();
    return imagen_;
}

const QImage& Lienzo::ImagenQueSeMuestra() {
    AsientaPuntos();
    tocado_ = false;
    return imagen_;
}

double Lienzo::AnchoDePluma() const noexcept {
    return std::max(1.0, std::round(pluma().DrawWidth * Relacion()));
}

void Lienzo::PonPluma() {
    Toca();
    AsientaPuntos();
    if (hayPlumaPuesta_ && puesta_ == pluma()) return;
    puesta_ = pluma();
    hayPlumaPuesta_ = true;
    QPen pluma = PlumaQt(AnchoDePluma());
    // One device pixel is a cosmetic pen's width, which Qt draws much faster.
    pluma.setCosmetic(true);
    if (puesta_.DrawStyle == ESTILO_SOLIDO && puesta_.DrawWidth == 1) pluma.setCapStyle(Qt::SquareCap);
    pintor_.setPen(pluma);
    if (puesta_.FillStyle == RELLENO_SOLIDO) {
        pintor_.setBrush(ColorDe(puesta_.FillColor));
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
        if (n == 2 && pluma().DrawStyle == ESTILO_SOLIDO)
            InvierteTramo(cadena_[0], cadena_[1]);
        else
            TrazaUnaVez();
        return;
    }
    if (!EsSolida()) {
        TrazaARayas();
    } else if (AnchoDePluma() <= ANCHO_FINO) {
        TrazaFina(cadena_, true);
    } else if (n == 2) {
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

void Lienzo::TrazaFina(std::span<const QPointF> cadena, bool conRemates) {
    TrazoFino(imagen_, AnchoDePluma(), ColorDe(pluma().ForeColor).rgb()).Traza(cadena, conRemates);
}

// Dash by dash, segment by segment.
void Lienzo::TrazaARayas() {
    const double ancho = AnchoDePluma();
    const QRectF cerca = QRectF(imagen_.rect()).adjusted(-ancho, -ancho, ancho, ancho);
    for (std::size_t i = 1; i < cadena_.size(); ++i) {
        const QPointF a = cadena_[i - 1];
        const QPointF v = cadena_[i] - a;
        const double largo = std::hypot(v.x(), v.y());
        const QList<qreal> trazos = TrazosPara(pluma().DrawStyle, largo / ancho);
        const auto raya = [&](double desde, double hasta) {
            const QPointF tramo[] = {a + v * (desde / largo), a + v * (std::min(hasta, largo) / largo)};
            const QRectF caja = QRectF(tramo[0], tramo[1]).normalized().adjusted(-1, -1, 1, 1);
            if (caja.intersects(cerca)) TrazaFina(tramo, false);
        };
        if (trazos.isEmpty()) {
            if (largo > 0) raya(0, largo);
            continue;
        }
        // The first dash has lost its first half, which ends the segment.
        double donde = -trazos[0] * ancho / 2;
        for (qsizetype t = 0; donde < largo; t = (t + 2) % trazos.size()) {
            raya(std::max(donde, 0.0), donde + trazos[t] * ancho);
            donde += (trazos[t] + trazos[t + 1]) * ancho;
        }
    }
}

// By hand: where an area has many rows Qt hands it out to other threads, which takes longer than inverting
// it, and the outlines of a drag are drawn at every movement of the mouse.
void Lienzo::InviertePixeles(const QRect& zona) {
    const QRect dentro = zona & imagen_.rect();
    for (int y = dentro.top(); y <= dentro.bottom(); ++y) {
        // The painter holds the image: it must not be given other memory.
        auto* fila = const_cast<QRgb*>(reinterpret_cast<const QRgb*>(imagen_.constScanLine(y)));
        for (int x = dentro.left(); x <= dentro.right(); ++x)
            fila[x] ^= 0x00FFFFFF;
    }
}

// A straight stroke: for each pixel of its longer side as many as the pen is wide, the same from either end.
void Lienzo::InvierteTramo(QPointF a, QPointF b) {
    const int ancho = static_cast<int>(AnchoDePluma());
    const bool tendido = std::abs(b.x() - a.x()) >= std::abs(b.y() - a.y());
    if (!tendido) {
        a = a.transposed();
        b = b.transposed();
    }
    if (a.x() > b.x()) std::swap(a, b);
    const double pendiente = b.x() > a.x() ? (b.y() - a.y()) / (b.x() - a.x()) : 0;
    const int largo = tendido ? imagen_.width() : imagen_.height();
    const int desde = std::max(0, static_cast<int>(std::floor(a.x())));
    const int hasta = std::min(largo - 1, static_cast<int>(std::floor(b.x())));
    for (int i = desde; i <= hasta; ++i) {
        const double medio = a.y() + std::clamp(i + 0.5 - a.x(), 0.0, b.x() - a.x()) * pendiente;
        const int j = static_cast<int>(std::floor(medio - (ancho - 1) / 2.0));
        InviertePixeles(tendido ? QRect(i, j, 1, ancho) : QRect(j, i, ancho, 1));
    }
}

// The outline of a box, whose sides do not overlap.
void Lienzo::InvierteCaja(QPointF a, QPointF b) {
    const int ancho = static_cast<int>(AnchoDePluma());
    const auto borde = [&](double v) { return static_cast<int>(std::floor(v - (ancho - 1) / 2.0)); };
    const QRect fuera(QPoint(borde(a.x()), borde(a.y())),
                      QPoint(borde(b.x()) + ancho - 1, borde(b.y()) + ancho - 1));
    if (fuera.width() <= 2 * ancho || fuera.height() <= 2 * ancho) {
        InviertePixeles(fuera);
        return;
    }
    const int lado = fuera.height() - 2 * ancho;
    InviertePixeles({fuera.left(), fuera.top(), fuera.width(), ancho});
    InviertePixeles({fuera.left(), fuera.bottom() - ancho + 1, fuera.width(), ancho});
    InviertePixeles({fuera.left(), fuera.top() + ancho, ancho, lado});
    InviertePixeles({fuera.right() - ancho + 1, fuera.top() + ancho, ancho, lado});
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
    const std::vector<QPointF> entera = std::move(cadena_);
    cadena_.clear();
    const auto dibuja = [&] {
        if (cadena_.size() > 1) Traza();
        cadena_.clear();
    };
    for (std::size_t i = 1; i < entera.size(); ++i) {
        QPointF a = entera[i - 1];
        QPointF b = entera[i];
        if (!Recorta(a, b)) continue;
        if (cadena_.empty() || cadena_.back() != a) {
            dibuja();
            cadena_.push_back(a);
        }
        cadena_.push_back(b);
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
    if (!EsPunto(EnPixeles(esquina)) || !EsPunto(EnPixeles(opuesta))) return;
    const QRectF caja = QRectF(cerca(EnPixeles(esquina)), cerca(EnPixeles(opuesta))).normalized();
    if (pluma().FillStyle == RELLENO_SOLIDO) {
        const QRect entera(QPoint(qRound(caja.left()), qRound(caja.top())),
                           QPoint(qRound(caja.right()), qRound(caja.bottom())));
        pintor_.fillRect(entera, pintor_.brush());
        if (Invierte()) return;
    }
    cadena_ = {caja.topLeft(), caja.topRight(), caja.bottomRight(), caja.bottomLeft(), caja.topLeft()};
    Ajusta(cadena_);
    if (Invierte() && pluma().DrawStyle == ESTILO_SOLIDO)
        InvierteCaja(cadena_[0], cadena_[2]);
    else
        Traza();
}

void Lienzo::Circle(PuntoXY centro, float radio) {
    Circle(centro, radio, 0, 2 * std::numbers::pi);
}

void Lienzo::Circle(PuntoXY centro, float radio, double inicio, double fin) {
    if (fin < inicio) fin += 2 * std::numbers::pi;
    const QPointF c = EnPixeles(centro);
    const double r = radio * PixelesPorUnidadX();
    if (!EsPunto(c) || !std::isfinite(r)) return;
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
    Toca();
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
    Toca();
    pintor_.setCompositionMode(ModoDeComposicion(puntosInvierten_));
    const QColor color = ColorQt(colorDePuntos_);
    const int lado = std::max(1, qRound(Relacion()));
    for (const QPointF punto : puntos_) {
        const int x = static_cast<int>(std::floor(punto.x() - (lado - 1) / 2.0));
        const int y = static_cast<int>(std::floor(punto.y() - (lado - 1) / 2.0));
        pintor_.fillRect(x, y, lado, lado, color);
    }
    puntos_.clear();
    hayPlumaPuesta_ = false;
}

void Lienzo::PaintPicture(const zel::Imagen& imagen, PuntoXY esquina, float ancho, float alto) {
    Toca();
    const ImagenColocada colocada = Coloca(imagen, esquina, ancho, alto);
    const QRectF destino = colocada.destino;
    const QRectF visible = destino & QRectF(imagen_.rect());
    if (visible.isEmpty()) return;
    AsientaPuntos();
    hayPlumaPuesta_ = false;
    // Only the part in sight is scaled: the whole could be larger than any image.
    const double columnas = imagen.Ancho() / destino.width();
    const double filas = imagen.Alto() / destino.height();
    const QRectF origen((visible.left() - destino.left()) * columnas, (visible.top() - destino.top()) * filas,
                        visible.width() * columnas, visible.height() * filas);
    pintor_.setCompositionMode(QPainter::CompositionMode_SourceOver);
    pintor_.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    pintor_.drawImage(visible, colocada.imagen, origen);
}

void Lienzo::Cls() {
    Toca();
    puntos_.clear();
    hayPlumaPuesta_ = false;
    pintor_.setCompositionMode(QPainter::CompositionMode_Source);
    pintor_.fillRect(imagen_.rect(), ColorQt(BackColor()));
}

void Lienzo::Refresh() {
    if (alRefrescar_) alRefrescar_();
}

void Lienzo::Print(std::string_view texto) {
    Toca();
    AsientaPuntos();
    FuenteDeTexto& fuente = Fuente();
    const QPointF esquina = EnPixeles({CurrentX(), CurrentY()});
    if (Reduccion() < 1 || !EsPunto(esquina))
        return;  // less than a pixel high, or nowhere: nothing to be seen
    pintor_.setCompositionMode(QPainter::CompositionMode_SourceOver);
    pintor_.setRenderHint(QPainter::Antialiasing);
    hayPlumaPuesta_ = false;
    if (!FontTransparent()) {
        const QRectF visible = CajaDeTexto(texto) & QRectF(imagen_.rect());
        pintor_.fillRect(visible.toAlignedRect(), ColorQt(BackColor()));
    }
    fuente.Pinta(pintor_, esquina, ColorQt(pluma().ForeColor), texto);
}

void Lienzo::MousePointer(std::int16_t puntero, std::int32_t numeroDeCursor) {
    if (alCambiarPuntero_) alCambiarPuntero_(puntero, numeroDeCursor);
}

}  // namespace zel
