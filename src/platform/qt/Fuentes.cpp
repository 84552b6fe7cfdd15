#include "platform/qt/Fuentes.h"

#include <QFontMetricsF>
#include <algorithm>
#include <optional>

namespace zel {

namespace {

constexpr double PUNTOS_POR_PIXEL = 72.0 / 96.0;  // the surfaces' images have 96 pixels per inch
constexpr std::size_t TAMANYOS_GUARDADOS = 64;

QString DeUtf8(std::string_view texto) {
    return QString::fromUtf8(texto.data(), static_cast<qsizetype>(texto.size()));
}

// The next Latin-1 character of a UTF-8 text, or nothing when it is another one; i moves behind it.
std::optional<unsigned char> SiguienteLatino(std::string_view texto, std::size_t& i) noexcept {
    const auto c = static_cast<unsigned char>(texto[i++]);
    if (c < 0x80) return c;
    if ((c != 0xC2 && c != 0xC3) || i >= texto.size()) return std::nullopt;
    return static_cast<unsigned char>(((c & 0x03U) << 6U) | (static_cast<unsigned char>(texto[i++]) & 0x3FU));
}

// Calls `accion` with each line of the text.
template <typename Accion>
void PorLineas(std::string_view texto, Accion accion) {
    for (;;) {
        const std::size_t salto = texto.find('\n');
        std::string_view linea = texto.substr(0, salto);
        if (!linea.empty() && linea.back() == '\r') linea.remove_suffix(1);
        accion(linea);
        if (salto == std::string_view::npos) return;
        texto.remove_prefix(salto + 1);
    }
}

}  // namespace

FuenteDeTexto::FuenteDeTexto(const QString& familia, double alto) : fuente_(familia) {
    fuente_.setPointSizeF(alto * PUNTOS_POR_PIXEL);
    fuente_.setKerning(false);
    fuente_.setHintingPreference(QFont::PreferNoHinting);
    fuente_.setStyleStrategy(
        static_cast<QFont::StyleStrategy>(QFont::PreferAntialias | QFont::NoSubpixelAntialias));
    cruda_ = QRawFont::fromFont(fuente_);
    cruda_.setPixelSize(alto);
    ascenso_ = cruda_.ascent();
    altoDeLinea_ = cruda_.ascent() + cruda_.descent();
    QString todos;
    for (char16_t c = 0x20; c < 0x100; ++c)
        todos.append(QChar(c));
    const QList<quint32> indices = cruda_.glyphIndexesForString(todos);
    const QList<QPointF> avances = cruda_.advancesForGlyphIndexes(indices);
    for (qsizetype i = 0; i < indices.size() && i < avances.size(); ++i) {
        const auto c = static_cast<std::size_t>(i) + 0x20;
        if (c < 0x7F || c >= 0xA0) latinos_[c] = {indices[i], avances[i].x()};
    }
    tirada_.setRawFont(cruda_);
}

double FuenteDeTexto::AnchoDeLinea(std::string_view linea) const {
    double ancho = 0;
    for (std::size_t i = 0; i < linea.size();) {
        const auto c = SiguienteLatino(linea, i);
        if (!c || latinos_[*c].indice == 0) return QFontMetricsF(fuente_).horizontalAdvance(DeUtf8(linea));
        ancho += latinos_[*c].avance;
    }
    return ancho;
}

double FuenteDeTexto::Ancho(std::string_view texto) const {
    double ancho = 0;
    PorLineas(texto, [&](std::string_view linea) { ancho = std::max(ancho, AnchoDeLinea(linea)); });
    return ancho;
}

double FuenteDeTexto::Alto(std::string_view texto) const {
    return altoDeLinea_ * static_cast<double>(1 + std::count(texto.begin(), texto.end(), '\n'));
}

bool FuenteDeTexto::Compone(std::string_view linea) {
    indices_.clear();
    lugares_.clear();
    double x = 0;
    for (std::size_t i = 0; i < linea.size();) {
        const auto c = SiguienteLatino(linea, i);
        if (!c || latinos_[*c].indice == 0) return false;
        indices_.push_back(latinos_[*c].indice);
        lugares_.emplace_back(x, 0);
        x += latinos_[*c].avance;
    }
    return true;
}

void FuenteDeTexto::Pinta(QPainter& pintor, QPointF esquina, const QColor& color, std::string_view texto) {
    if (pintor.pen().color() != color || pintor.pen().style() != Qt::SolidLine) pintor.setPen(color);
    double y = esquina.y() + ascenso_;
    PorLineas(texto, [&](std::string_view linea) {
        if (!Compone(linea)) {
            pintor.setFont(fuente_);
            pintor.drawText(QPointF(esquina.x(), y), DeUtf8(linea));
        } else if (!indices_.empty()) {
            tirada_.setRawData(indices_.data(), lugares_.data(), static_cast<int>(indices_.size()));
            pintor.drawGlyphRun(QPointF(esquina.x(), y), tirada_);
        }
        y += altoDeLinea_;
    });
}

FuenteDeTexto& Fuentes::De(double alto) {
    auto& fuente = porAlto_[alto];
    if (!fuente) {
        if (porAlto_.size() > TAMANYOS_GUARDADOS) {
            porAlto_.clear();
            return De(alto);
        }
        fuente = std::make_unique<FuenteDeTexto>(familia_, alto);
    }
    return *fuente;
}

}  // namespace zel
