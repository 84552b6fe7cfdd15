// The names of the control: what Qt knows of it, and its collection.
#include "control/Esquema.h"
#include "control/componentes/Tabla.h"

namespace zel {

namespace {

constexpr AyudaDeNombre AYUDAS[] = {
    // The selected element.
    {"NombreElemento", "Nombre del elemento seleccionado"},
    {"CodigoElemento", "Código del elemento seleccionado; -1, ninguno"},
    {"NumeroPantallaElemento", "Número en pantalla del elemento seleccionado; -1, ninguno"},
    {"TamanyoElemento", "Tamaño del elemento seleccionado; -1, ninguno"},
    {"TipoElemento", "Código del tipo del elemento seleccionado; -1, ninguno"},
    {"Seleccionar", "Selecciona el elemento de un código, que devuelve; -1 si no lo hay"},
    {"SeleccionarCentrarElemento", "Lo mismo, y lo lleva al centro del panel"},
    {"BorrarElemento", "Quita el elemento seleccionado; -1 si no hay ninguno"},
    {"AnulaAgregarElementos", "Acaba la creación de elementos y desactiva su barra"},
    // The document.
    {"ArchivoAbrir", "Abre el esquema de un archivo"},
    {"ArchivoGuardar", "Guarda el esquema en un archivo"},
    {"ArchivoNuevo", "Empieza un esquema vacío, con la vista de un control nuevo"},
    {"MotivoSinLeer", "Por qué no se pudo leer el último archivo; vacío si se pudo"},
    {"AvisoDeImagen", "Por qué no se ve o no se copió la imagen de fondo; vacío si no hay nada que decir"},
    {"ProblemasDeCarga", "Lo que le faltaba o se repetía en el último archivo"},
    {"AddElemento", "Agrega una copia de un elemento, con su código"},
    {"ModificaVarios_NumUser", "Cambia números en pantalla: lista de códigos, lista de números"},
    {"ModificaVarios_Nombres", "Cambia nombres: lista de códigos, lista de nombres"},
    {"ModificaVarios_ConecSec", "Pone conexiones secundarias: orígenes, destinos, si borra las anteriores"},
    {"bHabidoCambios", "El esquema ha cambiado desde que se abrió o guardó"},
    {"bMostrarLineasOcultas", "Se dibujan las conexiones secundarias"},
    // The view.
    {"ResizeGrafo", "Ajusta la vista a todo el esquema"},
    {"AjustarAVentana", "Coloca el control en su ventana: izquierda, arriba, ancho, alto, en milímetros"},
    {"CambiaZoom", "Multiplica el zoom; por debajo de 1 acerca"},
    {"textoStatBar", "Escribe en la barra de estado"},
    {"PonAlDiaMenu", "Pone al día las acciones del menú contextual"},
    {"Refresh", "Vuelve a dibujar lo pendiente"},
    {"Cls", "Borra el panel hasta que se vuelva a dibujar"},
    // The panel.
    {"BorderStyle", "Borde del control: 0 ninguno, 1 una línea"},
    {"BackColor", "Color de fondo: rojo + 256 verde + 65536 azul"},
    {"ForeColor", "Color de los textos: rojo + 256 verde + 65536 azul"},
    {"hdc", "Identificador de la ventana del panel"},
    {"Picture", "El esquema como imagen"},
    {"ScaleLeft", "Abscisa del borde izquierdo de la vista"},
    {"ScaleTop", "Ordenada del borde superior de la vista"},
    {"ScaleWidth", "Ancho de la vista"},
    {"ScaleHeight", "Alto de la vista, negativo"},
    {"ScaleMode", "Unidad de la escala, de 0 (la propia) a 7"},
    {"Scale_", "Pone la vista por sus esquinas: x1, y1, x2, y2"},
    {"ScaleX", "Convierte una longitud horizontal: valor, unidad de partida, unidad de llegada"},
    {"ScaleY", "Convierte una longitud vertical: valor, unidad de partida, unidad de llegada"},
    {"Font", "Letra de los textos"},
    {"FontBold", "Letra negrita"},
    {"FontItalic", "Letra cursiva"},
    {"FontStrikethru", "Letra tachada"},
    {"FontTransparent", "Textos sin fondo"},
    {"FontUnderline", "Letra subrayada"},
    {"FontName", "Nombre de la letra"},
    {"FontSize", "Tamaño de la letra, en puntos"},
    // Events.
    {"Click", "Se ha soltado un botón del ratón"},
    {"DblClick", "Se ha pulsado dos veces"},
    {"KeyDown", "Se ha pulsado una tecla: código, Mayús 1 + Ctrl 2 + Alt 4"},
    {"KeyPress", "Se ha escrito un carácter: su código"},
    {"KeyUp", "Se ha soltado una tecla: código, Mayús 1 + Ctrl 2 + Alt 4"},
    {"MouseDown", "Se ha pulsado un botón del ratón: botón, teclas, x, y"},
    {"MouseMove", "No ocurre nunca"},
    {"MouseUp", "No ocurre nunca"},
    {"CreacionNuevoElemento", "Se ha creado un elemento: tipo, código inicial, código final"},
    {"PeticionBorrado", "Se pide borrar un elemento: código"},
    {"EditarElemento", "Se pide editar un elemento: código"},
    {"ElementoSeleccionado", "Se ha seleccionado un elemento: código"},
    {"AdjuntarArchivo", "Se pide adjuntar un documento a un elemento: código"},
    {"AdjuntarVer", "Se pide ver los documentos de un elemento: código"},
    {"ElementoMovido", "Se ha movido un elemento: código, el Elemento"},
    {"ElementoModificado", "Se ha modificado un elemento: código, el Elemento"},
    {"HabidoCambios", "El esquema tiene cambios sin guardar, o ha dejado de tenerlos"},
    {"ErrorEnEvento", "Ha fallado la respuesta al ratón o al teclado: número, origen, descripción"},
};

}  // namespace

template <>
const Tabla& TablaDe<Esquema>() {
    static const Tabla tabla =
        TablaNueva<Esquema>("Esquema", "Visor y editor de la topología de un esquema")
            .DeQt(AYUDAS)
            .Propiedad(
                "GetElementos", "Los elementos del esquema; al ponerlos, se dibujan",
                [](Esquema& e) { return ValorDe(e.GetElementos()); },
                [](Esquema& e, const QVariant& v) { e.GetElementos(ObjetoDeValor<Elementos>(v)); })
            .Propiedad("SetElementos", "Pone los elementos del esquema sin dibujarlos", nullptr,
                       [](Esquema& e, const QVariant& v) { e.SetElementos(ObjetoDeValor<Elementos>(v)); });
    return tabla;
}

}  // namespace zel
