#include "control/Exportacion.h"

#include <algorithm>
#include <cmath>

#include "drawing/Etiquetas.h"
#include "drawing/Pintor.h"
#include "platform/qt/Lienzo.h"
#include "session/Vista.h"

namespace zel {

namespace {

constexpr double MM_POR_PIXEL = 25.4 / 96;
constexpr double ALTO_MAXIMO = 4;  // heights per width
constexpr double ALTO_MINIMO = 0.1;
constexpr float MARGEN = 2;  // world units around everything

class SinAnfitrion : public Anfitrion {
  public:
    void TextoEstado(int, const std::string&) override {}
};

// A surface with a view of the whole schematic on it.
class Lamina {
  public:
    Lamina(const std::shared_ptr<Elementos>& elementos, QSize tamanyo, double relacion)
        : lienzo_(tamanyo, relacion),
          refresco_(lienzo_),
          avisos_(trabajo_, refresco_),
          vista_(lienzo_, documento_, trabajo_, refresco_, avisos_, anfitrion_) {
        documento_.colElementos = elementos;
        vista_.Dispone(static_cast<float>(tamanyo.width() * MM_POR_PIXEL),
                       static_cast<float>(tamanyo.height() * MM_POR_PIXEL));
        vista_.AjustarImagen(lienzo_, 2);
    }

    AjustesDibujo Ajustes() const {
        AjustesDibujo ajustes;
        ajustes.EscalaDibujo = vista_.EscalaDibujo();
        return ajustes;
    }

    // What there is to see: the elements' region and the labels.
    Marco Contenido() {
        Marco marco = vista_.RegionElementos();
        const AjustesDibujo ajustes = Ajustes();
        for (const auto& e : *documento_.colElementos) {
            if (!e->MostrarEtiqueta()) continue;
            const CajaEtiqueta caja = MideEtiqueta(lienzo_, ajustes, *e, e->XPos(), e->YPos());
            marco.Crece(caja.X, caja.Y, MARGEN);
            marco.Crece(caja.X + caja.Ancho, caja.Y + caja.Alto, MARGEN);
        }
        return marco;
    }

    // Shows all of it. Text sizes go in steps and follow the view, so that one turn may not be enough.
    void EncuadraTodo() {
        constexpr int VUELTAS = 5;
        Encuadra(Contenido());
        for (int vuelta = 1; vuelta < VUELTAS; ++vuelta) {
            const Marco contenido = Contenido();
            if (Marco::Visible(lienzo_).Contiene(contenido)) return;
            Encuadra(contenido);
        }
    }

    QImage Pinta(bool bMostrarLineasOcultas, QStringList& fallos) {
        AjustesDibujo ajustes = Ajustes();
        ajustes.bMostrarLineasOcultas = bMostrarLineasOcultas;
        for (const auto& fallo :
             PintaEsquema(lienzo_, ajustes, *documento_.colElementos, *documento_.colElementos)) {
            fallos << QString::fromStdString(fallo);
        }
        return lienzo_.Imagen().copy();
    }

  private:
    void Encuadra(const Marco& marco) {
        const float ancho = std::max(marco.Xmax - marco.Xmin, (marco.Ymax - marco.Ymin) * vista_.RelacionAspecto());
        lienzo_.ScaleWidth(ancho);
        lienzo_.ScaleHeight(-ancho / vista_.RelacionAspecto());
        lienzo_.ScaleLeft((marco.Xmin + marco.Xmax) / 2 - ancho / 2);
        lienzo_.ScaleTop((marco.Ymin + marco.Ymax) / 2 - lienzo_.ScaleHeight() / 2);
    }

    Lienzo lienzo_;
    SinAnfitrion anfitrion_;
    Documento documento_;
    Trabajo trabajo_;
    Refresco refresco_;
    Avisos avisos_;
    Vista vista_;
};

int AltoPara(const Marco& marco) {
    const double proporcion = (double{marco.Ymax} - marco.Ymin) / (double{marco.Xmax} - marco.Xmin);
    return static_cast<int>(
        std::ceil(ANCHO_NORMAL_DE_IMAGEN * std::clamp(proporcion, ALTO_MINIMO, ALTO_MAXIMO)));
}

}  // namespace

QImage ImagenDeEsquema(const std::shared_ptr<Elementos>& elementos, bool bMostrarLineasOcultas, int ancho,
                       QStringList& fallos) {
    // A first surface tells how much room the elements and their labels take; the second has its shape.
    Lamina prueba(elementos, {ANCHO_NORMAL_DE_IMAGEN, ANCHO_NORMAL_DE_IMAGEN}, 1);
    prueba.EncuadraTodo();
    const QSize tamanyo(ANCHO_NORMAL_DE_IMAGEN, AltoPara(prueba.Contenido()));
    Lamina lamina(elementos, tamanyo, double(ancho) / ANCHO_NORMAL_DE_IMAGEN);
    lamina.EncuadraTodo();
    return lamina.Pinta(bMostrarLineasOcultas, fallos);
}

}  // namespace zel
