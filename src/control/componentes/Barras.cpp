// The names of the bars' classes.
#include <QImage>

#include "bars/qt/StatusBar.h"
#include "bars/qt/ZelToolBar.h"
#include "bars/qt/ZelToolBar2.h"
#include "control/componentes/FuenteAjena.h"
#include "control/componentes/Tabla.h"
#include "platform/qt/ImagenQt.h"

namespace zel {

namespace {

// What a host brings to show a button or a field: an object with these names.
class BotonAjeno : public ControlDeBoton {
  public:
    explicit BotonAjeno(Referencia ajeno) : ajeno_(std::move(ajeno)) {}

    std::int16_t BorderStyle() const noexcept override { return Numero("BorderStyle"); }
    void BorderStyle(std::int16_t valor) override {
        EnLoAjeno([&] { ajeno_->Escribe(QStringLiteral("BorderStyle"), int{valor}); });
    }
    std::int16_t Heigt() const noexcept override { return Numero("Heigt"); }

  private:
    std::int16_t Numero(std::string_view nombre) const noexcept {
        try {
            return FuenteAjena(*ajeno_).Lee(nombre).Entero16();
        } catch (...) {
            return 0;
        }
    }
    Referencia ajeno_;
};

class CampoAjeno : public ControlDePanel {
  public:
    explicit CampoAjeno(Referencia ajeno) : ajeno_(std::move(ajeno)) {}

    std::string Caption() const override { return FuenteAjena(*ajeno_).Lee("Caption").Texto(); }
    void Caption(const std::string& texto) override {
        EnLoAjeno([&] { ajeno_->Escribe(QStringLiteral("Caption"), QString::fromStdString(texto)); });
    }

  private:
    Referencia ajeno_;
};

template <typename Control, typename Ajeno>
std::shared_ptr<Control> ControlDeValor(const QVariant& valor) {
    const Referencia referencia = ReferenciaDeValor(valor);
    if (!referencia) return nullptr;
    if (dynamic_cast<const ObjetoPorTabla*>(referencia.get())) return ObjetoDeValor<Control>(valor);
    return std::make_shared<Ajeno>(referencia);
}

std::shared_ptr<const Imagen> ImagenDeValor(const QVariant& valor) {
    if (!valor.isValid()) return nullptr;
    if (!valor.canConvert<QImage>()) throw Fallo(13);
    return std::make_shared<ImagenQt>(valor.value<QImage>());
}

template <typename Pieza>
void PonClave(Pieza& pieza, const QVariant& valor) {
    pieza.Key(AVariante(valor).Texto());
}

constexpr AyudaDeNombre AYUDAS[] = {
    {"Enabled", "Los botones responden"},
    {"ButtonCount", "Cuántos botones hay"},
    {"ButtonHeight", "Alto de los botones, en milímetros"},
    {"ButtonWidth", "Ancho de los botones, en milímetros"},
    {"ButtonClick", "Se ha pulsado un botón: el Boton"},
};

template <typename Barra>
Tabla TablaDeBarra(const char* clase, const char* ayuda) {
    return TablaNueva<Barra>(clase, ayuda)
        .DeQt(AYUDAS)
        .Propiedad("Buttons", "Los botones, de izquierda a derecha",
                   [](Barra& b) { return ValorDe(b.Buttons()); });
}

}  // namespace

template <>
const Tabla& TablaDe<ControlDeBoton>() {
    static const Tabla tabla =
        TablaNueva<ControlDeBoton>("ControlDeBoton", "Lo que muestra un botón")
            .Propiedad(
                "BorderStyle", "1 con marco, como pulsado; 0 sin él",
                [](ControlDeBoton& c) -> QVariant { return int{c.BorderStyle()}; },
                [](ControlDeBoton& c, const QVariant& v) { c.BorderStyle(AVariante(v).Entero16()); })
            .Propiedad("Heigt", "Alto, en milímetros",
                       [](ControlDeBoton& c) -> QVariant { return int{c.Heigt()}; });
    return tabla;
}

template <>
const Tabla& TablaDe<ControlDePanel>() {
    static const Tabla tabla =
        TablaNueva<ControlDePanel>("ControlDePanel", "Lo que muestra un campo de la barra de estado")
            .Propiedad(
                "Caption", "El texto que se ve",
                [](ControlDePanel& c) -> QVariant { return QString::fromStdString(c.Caption()); },
                [](ControlDePanel& c, const QVariant& v) { c.Caption(AVariante(v).Texto()); });
    return tabla;
}

template <>
const Tabla& TablaDe<Boton>() {
    static const Tabla tabla =
        TablaNueva<Boton>("Boton", "Botón de una barra")
            .Propiedad(
                "Key", "Clave, el nombre de la herramienta",
                [](Boton& b) -> QVariant { return QString::fromStdString(b.Key()); }, PonClave)
            .Propiedad(
                "Control", "Lo que muestra el botón: un objeto con BorderStyle y Heigt",
                [](Boton& b) { return ValorDe(b.Control()); },
                [](Boton& b, const QVariant& v) { b.Control(ControlDeValor<ControlDeBoton, BotonAjeno>(v)); })
            .Propiedad(
                "Value", "1 pulsado, 0 suelto", [](Boton& b) -> QVariant { return int{b.Value()}; },
                [](Boton& b, const QVariant& v) { b.Value(AVariante(v).Entero16()); })
            .Propiedad(
                "Image", "Su imagen",
                [](Boton& b) {
                    const auto* imagen = dynamic_cast<const ImagenQt*>(b.Image().get());
                    return imagen ? QVariant(imagen->Datos()) : QVariant();
                },
                [](Boton& b, const QVariant& v) { b.Image(ImagenDeValor(v)); })
            .Propiedad(
                "Heigt", "Alto de su control, en milímetros",
                [](Boton& b) -> QVariant { return int{b.Heigt()}; },
                [](Boton& b, const QVariant& v) { b.Heigt(AVariante(v).Entero16()); });
    return tabla;
}

template <>
const Tabla& TablaDe<Buttons>() {
    static const Tabla tabla =
        TablaNueva<Buttons>("Buttons", "Los botones de una barra")
            .Coleccion()
            .Metodo("Add", "Agrega un botón y lo devuelve: clave, alto, imagen, valor, control", 1, 5,
                    [](Buttons& c, const Argumentos& a) {
                        std::string clave;
                        return ValorDe(c.Add(a[0].Texto(), a[1].Entero16(), ImagenDeValor(a.Valor(2)),
                                             a[3].Entero16(),
                                             ControlDeValor<ControlDeBoton, BotonAjeno>(a.Valor(4)), clave));
                    });
    return tabla;
}

template <>
const Tabla& TablaDe<Panel>() {
    static const Tabla tabla =
        TablaNueva<Panel>("Panel", "Campo de la barra de estado")
            .Propiedad(
                "Key", "Clave del campo",
                [](Panel& p) -> QVariant { return QString::fromStdString(p.Key()); }, PonClave)
            .Propiedad(
                "Texto", "Lo que dice; se ve al momento", [](Panel& p) { return AQVariant(p.Texto()); },
                [](Panel& p, const QVariant& v) {
                    const bool esObjeto = v.metaType() == QMetaType::fromType<Referencia>();
                    esObjeto ? p.Texto(AVariante(v).Referencia<Objeto>()) : p.Texto(AVariante(v));
                })
            .Propiedad(
                "Control", "Lo que muestra el campo: un objeto con Caption",
                [](Panel& p) { return ValorDe(p.Control()); },
                [](Panel& p, const QVariant& v) {
                    p.Control(ControlDeValor<ControlDePanel, CampoAjeno>(v));
                });
    return tabla;
}

template <>
const Tabla& TablaDe<Panels>() {
    static const Tabla tabla =
        TablaNueva<Panels>("Panels", "Los campos de una barra de estado")
            .Coleccion()
            .Metodo("Add", "Agrega un campo y lo devuelve: clave, control", 1, 2,
                    [](Panels& c, const Argumentos& a) {
                        std::string clave;
                        return ValorDe(c.Add(a[0].Texto(),
                                             ControlDeValor<ControlDePanel, CampoAjeno>(a.Valor(1)), clave));
                    });
    return tabla;
}

template <>
const Tabla& TablaDe<ZelToolBar>() {
    static const Tabla tabla = TablaDeBarra<ZelToolBar>("ZelToolBar", "Barra de los tipos de elemento");
    return tabla;
}

template <>
const Tabla& TablaDe<ZelToolBar2>() {
    static const Tabla tabla = TablaDeBarra<ZelToolBar2>("ZelToolBar2", "Barra de las herramientas de vista");
    return tabla;
}

template <>
const Tabla& TablaDe<StatusBar>() {
    static const Tabla tabla = TablaNueva<StatusBar>("StatusBar", "Barra de estado")
                                   .Propiedad("Panels", "Los campos, de izquierda a derecha",
                                              [](StatusBar& b) { return ValorDe(b.Panels()); });
    return tabla;
}

}  // namespace zel
