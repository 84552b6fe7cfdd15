#include "control/Exportacion.h"

#include <QBuffer>
#include <QFileInfo>
#include <QPageLayout>
#include <QPdfWriter>
#include <QSvgGenerator>
#include <algorithm>
#include <cmath>

#include "drawing/Etiquetas.h"
#include "drawing/Pintor.h"
#include "model/TamanyoUnidad.h"
#include "platform/Archivos.h"
#include "platform/Fallo.h"
#include "platform/ReemplazoDeArchivo.h"
#include "platform/qt/Lienzo.h"
#include "platform/qt/LienzoVectorial.h"
#include "platform/qt/Rutas.h"
#include "session/Extension.h"

namespace zel {

namespace {

// The scale at which symbols and texts have their nominal size: a world unit is a millimetre, plain text
// has eight points.
constexpr double PIXELES_POR_UNIDAD = PPP_NORMAL / 25.4;
constexpr double PUNTOS_POR_UNIDAD = 72 / 25.4;
constexpr float PUNTOS_DEL_TEXTO = 8;
constexpr float PASO_DE_PARRILLA = 1;  // half a percent of a control's usual width

// Pixels. Qt writes six digits of a coordinate, a tenth of a pixel at the far side.
constexpr double LADO_MAXIMO_DE_SVG = 100000;
constexpr int LADO_MAXIMO_DE_PAGINA = 14400;  // points: no reader of PDF need show more
constexpr const char* AUTOR = "zelvisor";

constexpr float MARGEN = 4;        // world units around everything
constexpr float LADO_MINIMO = 10;  // of TamanyoUnidad: the picture of one node shows it, not its outline
constexpr double ALTO_POR_ANCHO_MINIMO = 0.1;
constexpr double ALTO_POR_ANCHO_MAXIMO = 4;

AjustesDibujo AjustesNominales(const Superficie& lienzo, bool bMostrarLineasOcultas) {
    AjustesDibujo ajustes;
    ajustes.EscalaDibujo = PUNTOS_DEL_TEXTO * lienzo.ScaleWidth();
    ajustes.pasoDeParrilla = PASO_DE_PARRILLA;
    ajustes.bMostrarLineasOcultas = bMostrarLineasOcultas;
    return ajustes;
}

// What there is to see: symbols, traces and labels.
Marco Contenido(const Elementos& elementos) {
    Lienzo medidas;
    medidas.ScaleWidth(static_cast<float>(1 / PIXELES_POR_UNIDAD));
    medidas.ScaleHeight(-medidas.ScaleWidth());
    const AjustesDibujo ajustes = AjustesNominales(medidas, false);
    Marco marco;
    if (const auto extension = ExtensionDe(elementos, MARGEN)) marco = *extension;
    for (const auto& e : elementos) {
        if (!e->MostrarEtiqueta() || e->Nombre().empty()) continue;
        const CajaEtiqueta caja = MideEtiqueta(medidas, ajustes, *e, e->XPos(), e->YPos());
        marco.Crece(caja.X, caja.Y, MARGEN);
        marco.Crece(caja.X + caja.Ancho, caja.Y + caja.Alto, MARGEN);
    }
    return marco;
}

// The part of the world that the picture shows: the content, grown where it is too small or too slim.
Marco Encuadre(const Elementos& elementos) {
    Marco marco = Contenido(elementos);
    if (marco.Xmin > marco.Xmax) marco.Crece(0, 0, 0);
    LimitaAlMundo(marco);
    const float x = (marco.Xmin + marco.Xmax) / 2;
    const float y = (marco.Ymin + marco.Ymax) / 2;
    const double ancho = double{marco.Xmax} - marco.Xmin;
    const double alto = double{marco.Ymax} - marco.Ymin;
    const double minimo = LADO_MINIMO * TamanyoUnidad();
    const double anchoFinal = std::max({ancho, minimo, alto / ALTO_POR_ANCHO_MAXIMO});
    const double altoFinal = std::max({alto, minimo, anchoFinal * ALTO_POR_ANCHO_MINIMO});
    Marco entero;
    entero.Crece(x - static_cast<float>(anchoFinal / 2), y - static_cast<float>(altoFinal / 2), 0);
    entero.Crece(x + static_cast<float>(anchoFinal / 2), y + static_cast<float>(altoFinal / 2), 0);
    return entero;
}

// The picture's frame as the surface's scale, Y upwards from its bottom edge.
void Encuadra(Superficie& lienzo, const Marco& encuadre) {
    lienzo.ScaleLeft(encuadre.Xmin);
    lienzo.ScaleTop(encuadre.Ymax);
    lienzo.ScaleWidth(encuadre.Xmax - encuadre.Xmin);
    lienzo.ScaleHeight(encuadre.Ymin - encuadre.Ymax);
}

void Pinta(Superficie& lienzo, const Elementos& elementos, bool bMostrarLineasOcultas, QStringList& fallos) {
    for (const auto& fallo :
         PintaEsquema(lienzo, AjustesNominales(lienzo, bMostrarLineasOcultas), elementos, elementos)) {
        fallos << QString::fromStdString(fallo);
    }
}

// The same document each time: without the date, whose place stays for the sake of those behind it.
void BorraLaFecha(QByteArray& pdf) {
    const qsizetype desde = pdf.indexOf("/CreationDate (");
    const qsizetype hasta = desde < 0 ? -1 : pdf.indexOf(')', desde);
    for (qsizetype i = desde; i >= 0 && i <= hasta; ++i)
        pdf[i] = ' ';
}

// A page of whole points, as its format wants, no smaller than the frame; and the world that fills it.
struct Pagina {
    explicit Pagina(const Marco& encuadre) : mundo(encuadre) {
        const double ancho = (double{encuadre.Xmax} - encuadre.Xmin) * PUNTOS_POR_UNIDAD;
        const double alto = (double{encuadre.Ymax} - encuadre.Ymin) * PUNTOS_POR_UNIDAD;
        reduccion = std::min(1.0, LADO_MAXIMO_DE_PAGINA / std::max(ancho, alto));
        const auto lado = [&](double puntosDeLado) {
            return std::min(LADO_MAXIMO_DE_PAGINA, static_cast<int>(std::ceil(puntosDeLado * reduccion)));
        };
        puntos = QSize(lado(ancho), lado(alto));
        mundo.Xmax = static_cast<float>(mundo.Xmin + puntos.width() / (PUNTOS_POR_UNIDAD * reduccion));
        mundo.Ymin = static_cast<float>(mundo.Ymax - puntos.height() / (PUNTOS_POR_UNIDAD * reduccion));
    }
    QSize puntos;
    double reduccion;
    Marco mundo;
};

}  // namespace

QImage ImagenDeEsquema(const Elementos& elementos, bool bMostrarLineasOcultas, int ancho,
                       QStringList& fallos) {
    const Marco encuadre = Encuadre(elementos);
    const double anchoDelMundo = double{encuadre.Xmax} - encuadre.Xmin;
    const double proporcion = (double{encuadre.Ymax} - encuadre.Ymin) / anchoDelMundo;
    const QSize tamanyo(ancho, std::max(1, static_cast<int>(std::lround(ancho * proporcion))));
    if (tamanyo.height() > LADO_MAXIMO_DE_IMAGEN) {
        throw Fallo(5, "La imagen sería demasiado alta. Pida un ancho de " +
                           std::to_string(static_cast<int>(LADO_MAXIMO_DE_IMAGEN / proporcion)) +
                           " píxeles o menos");
    }
    Lienzo lienzo;
    lienzo.Redimensiona(tamanyo, ancho / (anchoDelMundo * PIXELES_POR_UNIDAD));
    Encuadra(lienzo, encuadre);
    Pinta(lienzo, elementos, bMostrarLineasOcultas, fallos);
    return lienzo.Entrega();
}

QByteArray SvgDeEsquema(const Elementos& elementos, bool bMostrarLineasOcultas, const QString& titulo,
                        std::optional<int> ancho, QStringList& fallos) {
    const Marco encuadre = Encuadre(elementos);
    const QSizeF nominal =
        QSizeF(double{encuadre.Xmax} - encuadre.Xmin, double{encuadre.Ymax} - encuadre.Ymin) *
        PIXELES_POR_UNIDAD;
    const double escala = std::min(1.0, LADO_MAXIMO_DE_SVG / std::max(nominal.width(), nominal.height()));
    QBuffer datos;
    datos.open(QIODevice::WriteOnly);
    QSvgGenerator escritor;
    escritor.setOutputDevice(&datos);
    escritor.setTitle(titulo.toHtmlEscaped());  // goes to the file as it is
    escritor.setDescription(QLatin1String(AUTOR));
    escritor.setResolution(static_cast<int>(PPP_NORMAL));
    escritor.setViewBox(QRectF({0, 0}, nominal * escala));
    escritor.setSize((ancho ? nominal * (*ancho / nominal.width()) : nominal).toSize());
    LienzoVectorial lienzo(escritor, nominal, escala);
    Encuadra(lienzo, encuadre);
    Pinta(lienzo, elementos, bMostrarLineasOcultas, fallos);
    if (!lienzo.Termina()) throw Fallo(57);
    return std::move(datos.buffer());
}

QByteArray PdfDeEsquema(const Elementos& elementos, bool bMostrarLineasOcultas, const QString& titulo,
                        QStringList& fallos) {
    const Pagina pagina(Encuadre(elementos));
    QBuffer datos;
    datos.open(QIODevice::WriteOnly);
    QPdfWriter escritor(&datos);
    escritor.setTitle(titulo);
    escritor.setCreator(QLatin1String(AUTOR));
    escritor.setResolution(static_cast<int>(PPP_NORMAL));
    escritor.setPageLayout(
        QPageLayout(QPageSize(pagina.puntos, titulo, QPageSize::ExactMatch), QPageLayout::Portrait, {}));
    const QSizeF pixeles =
        QSizeF(pagina.puntos) / (pagina.reduccion * PUNTOS_POR_UNIDAD) * PIXELES_POR_UNIDAD;
    LienzoVectorial lienzo(escritor, pixeles, pagina.reduccion);
    Encuadra(lienzo, pagina.mundo);
    Pinta(lienzo, elementos, bMostrarLineasOcultas, fallos);
    if (!lienzo.Termina()) throw Fallo(57);
    QByteArray pdf = std::move(datos.buffer());
    BorraLaFecha(pdf);
    return pdf;
}

std::optional<FormatoDeDibujo> FormatoDeArchivo(const QString& archivo) {
    const QString extension = QFileInfo(archivo).suffix().toLower();
    if (extension == QLatin1String("png")) return FormatoDeDibujo::Png;
    if (extension == QLatin1String("svg")) return FormatoDeDibujo::Svg;
    if (extension == QLatin1String("pdf")) return FormatoDeDibujo::Pdf;
    return std::nullopt;
}

QStringList ExportaEsquema(const QString& archivo, const Elementos& elementos, bool bMostrarLineasOcultas,
                           const QString& titulo, std::optional<int> ancho) {
    const auto formato = FormatoDeArchivo(archivo);
    if (!formato) throw Fallo(5);
    // Before the drawing, which may take its time.
    ReemplazoDeArchivo reemplazo(RutaDe(archivo));
    QStringList fallos;
    QByteArray datos;
    if (*formato == FormatoDeDibujo::Png) {
        QBuffer png(&datos);
        const QImage imagen =
            ImagenDeEsquema(elementos, bMostrarLineasOcultas, ancho.value_or(ANCHO_NORMAL_DE_IMAGEN), fallos);
        if (!png.open(QIODevice::WriteOnly) || !imagen.save(&png, "png")) throw Fallo(7);
    } else if (*formato == FormatoDeDibujo::Svg) {
        datos = SvgDeEsquema(elementos, bMostrarLineasOcultas, titulo, ancho, fallos);
    } else {
        datos = PdfDeEsquema(elementos, bMostrarLineasOcultas, titulo, fallos);
    }
    EscribeArchivo(reemplazo.Temporal(), {datos.data(), static_cast<std::size_t>(datos.size())});
    reemplazo.Confirma();
    return fallos;
}

}  // namespace zel
