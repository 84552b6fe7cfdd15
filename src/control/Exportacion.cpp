#include "control/Exportacion.h"

#include <algorithm>
#include <cmath>

#include "drawing/Etiquetas.h"
#include "drawing/Pintor.h"
#include "model/TamanyoUnidad.h"
#include "platform/Fallo.h"
#include "platform/qt/Lienzo.h"
#include "session/Extension.h"

namespace zel {

namespace {

// The scale at which symbols and texts have their nominal size: a world unit is a millimetre, plain text
// has eight points.
constexpr double PIXELES_POR_UNIDAD = PPP_NORMAL / 25.4;
constexpr float PUNTOS_DEL_TEXTO = 8;

constexpr float MARGEN = 4;        // world units around everything
constexpr float LADO_MINIMO = 10;  // of TamanyoUnidad: the picture of one node shows it, not its outline
constexpr double ALTO_POR_ANCHO_MINIMO = 0.1;
constexpr double ALTO_POR_ANCHO_MAXIMO = 4;

AjustesDibujo AjustesNominales(const Superficie& lienzo, bool bMostrarLineasOcultas) {
    AjustesDibujo ajustes;
    ajustes.EscalaDibujo = PUNTOS_DEL_TEXTO * lienzo.ScaleWidth();
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
    lienzo.ScaleLeft(encuadre.Xmin);
    lienzo.ScaleTop(encuadre.Ymax);
    lienzo.ScaleWidth(static_cast<float>(anchoDelMundo));
    lienzo.ScaleHeight(encuadre.Ymin - encuadre.Ymax);
    for (const auto& fallo :
         PintaEsquema(lienzo, AjustesNominales(lienzo, bMostrarLineasOcultas), elementos, elementos)) {
        fallos << QString::fromStdString(fallo);
    }
    return lienzo.Entrega();
}

}  // namespace zel
