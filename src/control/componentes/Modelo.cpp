// The names of the model's classes.
#include "control/componentes/FuenteAjena.h"
#include "control/componentes/Tabla.h"
#include "model/Elementos.h"

namespace zel {

namespace {

// Gives `accion` the element, or the host's own object to be read as one.
template <typename Accion>
void ConElemento(const QVariant& valor, Accion accion) {
    const Referencia referencia = ReferenciaDeValor(valor);
    if (!referencia) throw Fallo(91);
    if (dynamic_cast<const ObjetoPorTabla*>(referencia.get())) {
        const Elemento& elemento = *ObjetoDeValor<Elemento>(valor);
        accion(elemento);
    } else {
        accion(FuenteAjena(*referencia));
    }
}

QVariant AgregaElemento(Elementos& c, const Argumentos& a) {
    return ValorDe(c.Add(static_cast<TipoElemento>(a[0].Entero32()), a[1].Texto(), a[2].Entero32(),
                         a[3].Entero16(), a[4].Real32(), a[5].Real32(), a[6].Entero32(), a[7].Entero32(),
                         a.Objeto<Puntos>(8), a.Objeto<Puntos>(9), a[10].Texto(), a[11].Real32(),
                         a[12].Real32(), a.Opcional(13), a.Opcional(14), a.Opcional(15), a.Opcional(16)));
}

// Of two points by their coordinates, or of two objects that have a position.
QVariant PuntoDeContorno(const Argumentos& a) {
    const Referencia centro =
        a.Valor(0).metaType() == QMetaType::fromType<Referencia>() ? ReferenciaDeValor(a.Valor(0)) : nullptr;
    const auto radio = [&a](qsizetype i) {
        const auto valor = a.Opcional(i);
        return valor ? std::optional(valor->Real32()) : std::nullopt;
    };
    if (!centro) {
        return ValorDe(
            Elementos::PtoContorno(a[0].Real32(), a[1].Real32(), a[2].Real32(), a[3].Real32(), radio(4)));
    }
    const Referencia hacia = ReferenciaDeValor(a.Valor(1));
    if (!hacia) throw Fallo(91);
    const auto punto = [](const ObjetoPorNombre& o) {
        const FuenteAjena fuente(o);
        return Punto(fuente.Lee("XPos").Real32(), fuente.Lee("YPos").Real32());
    };
    return ValorDe(Elementos::PtoContorno(punto(*centro), punto(*hacia), radio(2)));
}

}  // namespace

template <>
const Tabla& TablaDe<Punto>() {
    static const Tabla tabla =
        TablaNueva<Punto>("Punto", "Vértice del trazado de un elemento lineal")
            .Propiedades()
            .Metodo("CopiaPropiedades",
                    "Copia las coordenadas de otro punto y, salvo SoloCoordenadas, su Valor", 1, 2,
                    [](Punto& p, const Argumentos& a) {
                        p.CopiaPropiedades(a.Objeto<Punto>(0), a[1].Booleano());
                        return QVariant();
                    });
    return tabla;
}

template <>
const Tabla& TablaDe<Puntos>() {
    static const Tabla tabla =
        TablaNueva<Puntos>("Puntos", "Trazado de un elemento lineal: sus vértices, del inicio al final")
            .Propiedades()
            .Coleccion()
            .Metodo("Add", "Agrega un punto y lo devuelve: XPos, YPos, Valor, clave", 2, 4,
                    [](Puntos& c, const Argumentos& a) {
                        return ValorDe(c.Add(a[0].Real32(), a[1].Real32(), a[2].Real32(), a.Opcional(3)));
                    })
            .Metodo("AddObjetoPunto", "Agrega una copia de un punto: el punto, SoloCoordenadas, clave", 1, 3,
                    [](Puntos& c, const Argumentos& a) {
                        c.AddObjetoPunto(a.Objeto<Punto>(0), a[1].Booleano(), a.Opcional(2));
                        return QVariant();
                    });
    return tabla;
}

template <>
const Tabla& TablaDe<Elemento>() {
    static const Tabla tabla =
        TablaNueva<Elemento>("Elemento", "Elemento del esquema: un símbolo o una conexión con su trazado")
            .Propiedades()
            .Metodo("CopiaPropiedades", "Copia las propiedades de otro elemento", 1, 1,
                    [](Elemento& e, const Argumentos& a) {
                        ConElemento(a.Valor(0), [&](const auto& origen) { e.CopiaPropiedades(origen); });
                        return QVariant();
                    });
    return tabla;
}

template <>
const Tabla& TablaDe<Elementos>() {
    static const Tabla tabla =
        TablaNueva<Elementos>("Elementos", "Colección de los elementos de un esquema")
            .Coleccion()
            .Metodo("Add",
                    "Crea un elemento y lo devuelve: tipo, nombre, código, número en pantalla, XPos, YPos, "
                    "ElemIni, ElemFin, trazado, trazado2, identificador, EtiquetaPosX, EtiquetaPosY, tamaño, "
                    "tamaño de la etiqueta, ColorIcono, ColorLinea",
                    13, 17, AgregaElemento)
            .Metodo("AddObjetoElemento", "Agrega una copia de un elemento: el elemento, clave", 1, 2,
                    [](Elementos& c, const Argumentos& a) {
                        ConElemento(a.Valor(0),
                                    [&](const auto& e) { c.AddObjetoElemento(e, a.Opcional(1)); });
                        return QVariant();
                    })
            .Metodo("ItemCodSIG", "El elemento de un código, o nada", 1, 1,
                    [](Elementos& c, const Argumentos& a) { return ValorDe(c.ItemCodSIG(a[0].Entero32())); })
            .Metodo(
                "RemoveCodSIG", "Quita el elemento de un código y devuelve su posición, o -1", 1, 1,
                [](Elementos& c, const Argumentos& a) -> QVariant { return c.RemoveCodSIG(a[0].Entero32()); })
            .Metodo("VerificaIntegridad",
                    "Comprueba los elementos y, con Corrige, los repara: 0 si todo está en orden", 0, 1,
                    [](Elementos& c, const Argumentos& a) -> QVariant {
                        return int{c.VerificaIntegridad(a[0].Booleano())};
                    })
            .Metodo("PtoContorno",
                    "Dónde sale de un símbolo la línea hacia otro: sus coordenadas y el tamaño, o los dos "
                    "objetos y el tamaño",
                    2, 5, [](Elementos&, const Argumentos& a) { return PuntoDeContorno(a); });
    return tabla;
}

}  // namespace zel
