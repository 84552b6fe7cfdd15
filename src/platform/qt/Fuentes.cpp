#include "platform/qt/Fuentes.h"

#include <QFontMetricsF>
#include <algorithm>

#include "platform/Texto.h"

namespace zel {

namespace {

constexpr double PUNTOS_POR_PIXEL = 72.0 / PPP_NORMAL;
constexpr int PIXELES_POR_METRO = 3780;  // PPP_NORMAL to the inch
constexpr std::size_t TAMANYOS_GUARDADOS = 256;

// A device of the surfaces' resolution: without one, Qt would measure for the screen's.
QImage& Medidor() {
    static QImage medidor = ImagenNormal({1, 1});
    return medidor;
}

}  // namespace

QString DeUtf8(std::string_view texto) {
    return QString::fromUtf8(texto.data(), static_cast<qsizetype>(texto.size()));
}

QImage ImagenNormal(QSize pixeles) {
    QImage imagen(pixeles.expandedTo({1, 1}), QImage::Format_RGB32);
    imagen.setDotsPerMeterX(PIXELES_POR_METRO);
    imagen.setDotsPerMeterY(PIXELES_POR_METRO);
    return imagen;
}

FuenteDeTexto::FuenteDeTexto(const QFont& letra, double alto) : fuente_(letra) {
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
    tirada_.setUnderline(fuente_.underline());
    tirada_.setStrikeOut(fuente_.strikeOut());
}

// Null for a character that is not in the table.
const FuenteDeTexto::Glifo* FuenteDeTexto::GlifoDe(char32_t caracter) const noexcept {
    if (caracter >= latinos_.size() || latinos_[caracter].indice == 0) return nullptr;
    return &latinos_[caracter];
}

double FuenteDeTexto::AnchoDeLinea(std::string_view linea) const {
    double ancho = 0;
    for (std::size_t i = 0; i < linea.size();) {
        const Glifo* glifo = GlifoDe(SiguienteCaracter(linea, i));
        if (!glifo) return QFontMetricsF(fuente_, &Medidor()).horizontalAdvance(DeUtf8(linea));
        ancho += glifo->avance;
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
        const Glifo* glifo = GlifoDe(SiguienteCaracter(linea, i));
        if (!glifo) return false;
        indices_.push_back(glifo->indice);
        lugares_.emplace_back(x, 0);
        x += glifo->avance;
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

void FuenteDeTexto::PintaComoTexto(QPainter& pintor, QPointF esquina, const QColor& color,
                                   std::string_view texto) const {
    QFont fuente = fuente_;
    fuente.setPointSizeF(fuente_.pointSizeF() * PPP_NORMAL / pintor.device()->logicalDpiY());
    pintor.setFont(fuente);
    pintor.setPen(color);
    double y = esquina.y() + ascenso_;
    PorLineas(texto, [&](std::string_view linea) {
        pintor.drawText(QPointF(esquina.x(), y), DeUtf8(linea));
        y += altoDeLinea_;
    });
}

Fuentes::Fuentes() : letra_(QStringLiteral("Arial")) {}

bool Fuentes::Letra(const QFont& fuente) {
    QFont letra(fuente.family());
    letra.setWeight(fuente.weight());
    letra.setItalic(fuente.italic());
    letra.setUnderline(fuente.underline());
    letra.setStrikeOut(fuente.strikeOut());
    if (letra == letra_) return false;
    letra_ = letra;
    porAlto_.clear();
    return true;
}

FuenteDeTexto& Fuentes::De(double alto) {
    const auto [lugar, nueva] = porAlto_.try_emplace(alto);
    Guardada& guardada = lugar->second;
    guardada.uso = ++usos_;
    if (nueva) guardada.fuente = std::make_unique<FuenteDeTexto>(letra_, alto);
    if (porAlto_.size() > TAMANYOS_GUARDADOS) {
        porAlto_.erase(std::min_element(porAlto_.begin(), porAlto_.end(), [](const auto& a, const auto& b) {
            return a.second.uso < b.second.uso;
        }));
    }
    return *guardada.fuente;
}

}  // namespace zel
