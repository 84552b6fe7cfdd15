#include "platform/qt/LienzoSvg.h"

#include <QBuffer>
#include <array>
#include <charconv>
#include <cmath>
#include <numbers>

#include "platform/Fallo.h"
#include "platform/Texto.h"

namespace zel {

namespace {

// A hundredth of a pixel: no eye sees less at the nominal size, and a zoom of ten shows a tenth.
std::string Cifras(double valor) {
    std::array<char, 400> cifras{};
    const auto fin =
        std::to_chars(cifras.data(), cifras.data() + cifras.size(), valor, std::chars_format::fixed, 2);
    std::string texto(cifras.data(), fin.ptr);
    texto.erase(texto.find_last_not_of('0') + 1);
    if (texto.back() == '.') texto.pop_back();
    return texto == "-0" ? "0" : texto;
}

// As character data or inside double quotes. What XML cannot hold is left out.
std::string Escapado(std::string_view texto) {
    std::string escapado;
    for (std::size_t i = 0; i < texto.size();) {
        const char32_t c = SiguienteCaracter(texto, i);
        if (c == '&')
            escapado += "&amp;";
        else if (c == '<')
            escapado += "&lt;";
        else if (c == '>')
            escapado += "&gt;";
        else if (c == '"')
            escapado += "&quot;";
        else if (c == '\t' || (c >= 0x20 && (c < 0xD800 || c > 0xDFFF) && c != 0xFFFE && c != 0xFFFF))
            AgregaCaracter(escapado, c);
    }
    return escapado;
}

std::string AtributosDeLetra(const QFont& fuente) {
    std::string atributos = " font-family=\"" + Escapado(fuente.family().toStdString());
    // Where there is no Arial, the faces of the same widths.
    if (fuente.family() == QLatin1String("Arial")) atributos += ", Liberation Sans, Helvetica, sans-serif";
    atributos += '"';
    if (fuente.weight() != QFont::Normal) {
        atributos += " font-weight=\"" + std::to_string(int{fuente.weight()}) + '"';
    }
    if (fuente.italic()) atributos += " font-style=\"italic\"";
    if (fuente.underline() || fuente.strikeOut()) {
        atributos += " text-decoration=\"";
        atributos += !fuente.strikeOut()   ? "underline"
                     : !fuente.underline() ? "line-through"
                                           : "underline line-through";
        atributos += '"';
    }
    return atributos;
}

}  // namespace

LienzoSvg::LienzoSvg(QSizeF pixeles) {
    Mide(pixeles, PPP_NORMAL / 72, 1);
}

std::string LienzoSvg::Documento(std::string_view titulo, std::string_view descripcion, double ancho,
                                 std::string_view unidad) {
    AsientaPuntos();
    CierraLetra();
    const QSizeF lados = Pixeles();
    std::string documento = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<svg";
    documento.append(" width=\"").append(Cifras(ancho)).append(unidad);
    documento.append("\" height=\"").append(Cifras(ancho * lados.height() / lados.width())).append(unidad);
    documento += "\" viewBox=\"0 0 " + Cifras(lados.width()) + ' ' + Cifras(lados.height());
    documento +=
        "\" version=\"1.1\" xmlns=\"http://www.w3.org/2000/svg\" "
        "xmlns:xlink=\"http://www.w3.org/1999/xlink\">\n";
    documento += "<title>" + Escapado(titulo) + "</title>\n<desc>" + Escapado(descripcion) + "</desc>\n";
    documento +=
        "<g fill=\"none\" stroke-linecap=\"round\" stroke-linejoin=\"round\" xml:space=\"preserve\" "
        "style=\"font-kerning:none\">\n";
    return documento + cuerpo_ + "</g>\n</svg>\n";
}

void LienzoSvg::Pon(std::string_view nombre, double valor) {
    cuerpo_.append(1, ' ').append(nombre).append("=\"").append(Cifras(valor)).append(1, '"');
}

void LienzoSvg::PonColor(std::string_view nombre, const QColor& color) {
    cuerpo_.append(1, ' ').append(nombre).append("=\"").append(color.name().toStdString()).append(1, '"');
}

void LienzoSvg::PonPunto(QPointF punto) {
    cuerpo_.append(Cifras(punto.x())).append(1, ',').append(Cifras(punto.y()));
}

void LienzoSvg::PonCaja(const QRectF& caja) {
    Pon("x", caja.x());
    Pon("y", caja.y());
    Pon("width", caja.width());
    Pon("height", caja.height());
}

void LienzoSvg::PonTrazo() {
    PonColor("stroke", ColorDe(pluma().ForeColor));
    if (pluma().DrawWidth != 1) Pon("stroke-width", pluma().DrawWidth);
    if (EsSolida()) return;
    cuerpo_ += " stroke-linecap=\"butt\" stroke-dasharray=\"";
    for (const double trazo : Trazos(pluma().DrawStyle))
        cuerpo_.append(Cifras(trazo)).append(1, ' ');
    cuerpo_.back() = '"';
}

void LienzoSvg::PonRelleno() {
    if (pluma().FillStyle == RELLENO_SOLIDO) PonColor("fill", ColorDe(pluma().FillColor));
}

void LienzoSvg::Cls() {
    cuerpo_.clear();
    letra_.clear();
    puntos_.clear();
    cuerpo_ += "<rect";
    PonCaja({{0, 0}, Pixeles()});
    PonColor("fill", ColorQt(BackColor()));
    cuerpo_ += "/>\n";
}

void LienzoSvg::Line(std::span<const PuntoXY> cadena) {
    if (Invierte() || cadena.size() < 2) return;
    AsientaPuntos();
    const PuntoXY fin = cadena.back();
    const bool cerrada = cadena.size() > 3 && cadena.front().X == fin.X && cadena.front().Y == fin.Y;
    if (cerrada) cadena = cadena.first(cadena.size() - 1);
    cuerpo_ += cerrada ? "<polygon points=\"" : "<polyline points=\"";
    for (const PuntoXY punto : cadena) {
        PonPunto(EnPixeles(punto));
        cuerpo_ += ' ';
    }
    cuerpo_.back() = '"';
    PonTrazo();
    cuerpo_ += "/>\n";
}

void LienzoSvg::Caja(PuntoXY esquina, PuntoXY opuesta) {
    if (Invierte()) return;
    AsientaPuntos();
    const QRectF caja = QRectF(EnPixeles(esquina), EnPixeles(opuesta)).normalized();
    // A rectangle without area is not drawn in SVG, not even its outline.
    const bool plana = caja.width() < 0.01 || caja.height() < 0.01;
    cuerpo_ += plana ? "<polyline points=\"" : "<rect";
    if (plana) {
        PonPunto(caja.topLeft());
        cuerpo_ += ' ';
        PonPunto(caja.bottomRight());
        cuerpo_ += '"';
    } else {
        PonCaja(caja);
        PonRelleno();
    }
    PonTrazo();
    cuerpo_ += "/>\n";
}

void LienzoSvg::Circle(PuntoXY centro, float radio) {
    if (Invierte()) return;
    AsientaPuntos();
    const QPointF c = EnPixeles(centro);
    cuerpo_ += "<circle";
    Pon("cx", c.x());
    Pon("cy", c.y());
    Pon("r", radio * PixelesPorUnidadX());
    PonRelleno();
    PonTrazo();
    cuerpo_ += "/>\n";
}

void LienzoSvg::Circle(PuntoXY centro, float radio, double inicio, double fin) {
    if (fin < inicio) fin += 2 * std::numbers::pi;
    if (fin - inicio >= 2 * std::numbers::pi) {
        Circle(centro, radio);
        return;
    }
    if (Invierte()) return;
    AsientaPuntos();
    const QPointF c = EnPixeles(centro);
    const double r = radio * PixelesPorUnidadX();
    const auto enArco = [&](double angulo) {
        return c + QPointF(r * std::cos(angulo), -r * std::sin(angulo));
    };
    cuerpo_ += "<path d=\"M";
    PonPunto(enArco(inicio));
    cuerpo_ += 'A' + Cifras(r) + ',' + Cifras(r) + " 0 ";
    // Long or short way; 0 is counter-clockwise, with Y downwards.
    cuerpo_ += fin - inicio > std::numbers::pi ? "1 0 " : "0 0 ";
    PonPunto(enArco(fin));
    cuerpo_ += '"';
    PonTrazo();
    cuerpo_ += "/>\n";
}

void LienzoSvg::PSet(PuntoXY punto, std::int32_t color) {
    if (Invierte()) return;
    const std::int32_t negroOColor = pluma().DrawMode == MODO_NEGRO ? 0 : color;
    if (negroOColor != colorDePuntos_) AsientaPuntos();
    colorDePuntos_ = negroOColor;
    const QPointF esquina = EnPixeles(punto) - QPointF(0.5, 0.5);
    puntos_ += 'M' + Cifras(esquina.x()) + ',' + Cifras(esquina.y()) + "h1v1h-1z";
}

// Writes the dots that are waiting.
void LienzoSvg::AsientaPuntos() {
    if (puntos_.empty()) return;
    cuerpo_.append("<path d=\"").append(puntos_).append(1, '"');
    PonColor("fill", ColorQt(colorDePuntos_));
    cuerpo_ += "/>\n";
    puntos_.clear();
}

void LienzoSvg::PaintPicture(const zel::Imagen& imagen, PuntoXY esquina, float ancho, float alto) {
    const ImagenColocada colocada = Coloca(imagen, esquina, ancho, alto);
    if (colocada.destino.isEmpty()) return;
    QBuffer png;
    if (!png.open(QIODevice::WriteOnly) || !colocada.imagen.save(&png, "png")) throw Fallo(7);
    AsientaPuntos();
    cuerpo_ += "<image";
    PonCaja(colocada.destino);
    cuerpo_ += " preserveAspectRatio=\"none\" xlink:href=\"data:image/png;base64,";
    cuerpo_ += png.data().toBase64().toStdString();
    cuerpo_ += "\"/>\n";
}

void LienzoSvg::CierraLetra() {
    if (!letra_.empty()) cuerpo_ += "</g>\n";
    letra_.clear();
}

// One group for all the texts, and the strokes between them, that are in the same font.
void LienzoSvg::AbreLetra() {
    std::string letra = AtributosDeLetra(Font());
    if (letra == letra_) return;
    CierraLetra();
    letra_ = std::move(letra);
    cuerpo_.append("<g").append(letra_).append(">\n");
}

void LienzoSvg::PonLinea(QPointF donde, std::string_view linea) {
    cuerpo_ += "<text";
    Pon("x", donde.x());
    Pon("y", donde.y());
    Pon("font-size", FontSize() * PPP_NORMAL / 72);
    PonColor("fill", ColorQt(pluma().ForeColor));
    cuerpo_.append(1, '>').append(Escapado(linea)).append("</text>\n");
}

void LienzoSvg::Print(std::string_view texto) {
    AsientaPuntos();
    AbreLetra();
    const FuenteDeTexto& fuente = Fuente();
    const QRectF caja = CajaDeTexto(texto);
    if (!FontTransparent()) {
        cuerpo_ += "<rect";
        PonCaja(caja);
        PonColor("fill", ColorQt(BackColor()));
        cuerpo_ += "/>\n";
    }
    QPointF donde = caja.topLeft() + QPointF(0, fuente.Ascenso() * Reduccion());
    PorLineas(texto, [&](std::string_view linea) {
        if (!linea.empty()) PonLinea(donde, linea);
        donde.ry() += fuente.AltoDeLinea() * Reduccion();
    });
}

}  // namespace zel
