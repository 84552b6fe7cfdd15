#pragma once

#include <QFont>
#include <QFrame>
#include <QImage>
#include <QList>
#include <QString>
#include <QStringList>
#include <memory>
#include <optional>

#include "model/Elementos.h"

namespace zel {

// The schematic editor's control: shows and edits the topology of a water-resources system. The host owns
// the hydrological data; the control owns the drawing.
//
// Codes are gfCodSIG. World units: X in (-4000, 5000000), Y in (-5000, 2500000), Y upwards. Colours are
// red + 256 green + 65536 blue. Every call that fails raises zel::Error, whose Description() is the chain of
// failures, unless told otherwise; one in answer to an event of the platform comes as ErrorEnEvento.
// The calls on elements and documents, Refresh and Cls end any interaction under way (state 5, "Preparado");
// all repaint at most once. A call or an event whose host destroys the control meanwhile (in a slot, or while
// one of its boxes is open) ends there; a call raises.
//
// The wheel scrolls (with Shift sideways) and, with Ctrl, zooms around the mouse, as a pinch does; the middle
// button drags the view from where there is no element. A move of the view raises no event.
//
// Parts, found by their object name: Panel, HScroll, VScroll, ToolBar1, ToolBar2, StatusBar1, Line1, Line2,
// FrameImagenFondo with its boxes. Menu commands are QActions named after their item.
//
// While a schematic is being loaded, events go on but what the user does to the control is dropped;
// ArchivoAbrir, ArchivoGuardar and the change of collection raise. The control may be destroyed then:
// ArchivoAbrir raises when it comes back.
class Esquema : public QFrame {
    Q_OBJECT
    // The panel's properties, for a form designer; none of them is ever stored.
    Q_PROPERTY(qint16 BorderStyle READ BorderStyle WRITE BorderStyle STORED false)
    Q_PROPERTY(qint32 BackColor READ BackColor WRITE BackColor STORED false)
    Q_PROPERTY(qint32 ForeColor READ ForeColor WRITE ForeColor STORED false)
    Q_PROPERTY(float ScaleLeft READ ScaleLeft WRITE ScaleLeft STORED false)
    Q_PROPERTY(float ScaleTop READ ScaleTop WRITE ScaleTop STORED false)
    Q_PROPERTY(float ScaleWidth READ ScaleWidth WRITE ScaleWidth STORED false)
    Q_PROPERTY(float ScaleHeight READ ScaleHeight WRITE ScaleHeight STORED false)
    Q_PROPERTY(qint16 ScaleMode READ ScaleMode WRITE ScaleMode STORED false)
    Q_PROPERTY(bool FontBold READ FontBold WRITE FontBold STORED false)
    Q_PROPERTY(bool FontItalic READ FontItalic WRITE FontItalic STORED false)
    Q_PROPERTY(bool FontStrikethru READ FontStrikethru WRITE FontStrikethru STORED false)
    Q_PROPERTY(bool FontTransparent READ FontTransparent WRITE FontTransparent STORED false)
    Q_PROPERTY(bool FontUnderline READ FontUnderline WRITE FontUnderline STORED false)
    Q_PROPERTY(QString FontName READ FontName WRITE FontName STORED false)
    Q_PROPERTY(float FontSize READ FontSize WRITE FontSize STORED false)
    Q_PROPERTY(QFont Font READ Font STORED false)
    // For who knows the control by its names only, and not for a form designer.
    Q_PROPERTY(qint32 hdc READ hdc DESIGNABLE false STORED false)
    Q_PROPERTY(QImage Picture READ Picture DESIGNABLE false STORED false)
    Q_PROPERTY(QString NombreElemento READ NombreElemento WRITE NombreElemento DESIGNABLE false STORED false)
    Q_PROPERTY(qint32 CodigoElemento READ CodigoElemento WRITE CodigoElemento DESIGNABLE false STORED false)
    Q_PROPERTY(qint16 NumeroPantallaElemento READ NumeroPantallaElemento WRITE NumeroPantallaElemento
                   DESIGNABLE false STORED false)
    Q_PROPERTY(float TamanyoElemento READ TamanyoElemento WRITE TamanyoElemento DESIGNABLE false STORED false)
    Q_PROPERTY(qint16 TipoElemento READ TipoElemento DESIGNABLE false STORED false)
    Q_PROPERTY(bool bHabidoCambios READ bHabidoCambios WRITE bHabidoCambios DESIGNABLE false STORED false)
    Q_PROPERTY(bool bMostrarLineasOcultas READ bMostrarLineasOcultas WRITE bMostrarLineasOcultas
                   DESIGNABLE false STORED false)
    Q_PROPERTY(QString MotivoSinLeer READ MotivoSinLeer DESIGNABLE false STORED false)
    Q_PROPERTY(QString AvisoDeImagen READ AvisoDeImagen DESIGNABLE false STORED false)
    Q_PROPERTY(QString ProblemasDeCarga READ ProblemasDeCarga DESIGNABLE false STORED false)

  public:
    explicit Esquema(QWidget* padre = nullptr);
    ~Esquema() override;

    // --- Elements -------------------------------------------------------------------------------------

    // Selects the element with that code; the code, or -1 when there is none, and then the selection stays.
    // The second one centres the view on it too. No event is raised.
    Q_INVOKABLE qint32 Seleccionar(qint32 agfCodSig);
    Q_INVOKABLE qint32 SeleccionarCentrarElemento(qint32 agfCodSig);
    // Removes the selected element; 0, or -1 when nothing is selected. Codes and numbers go on counting.
    Q_INVOKABLE qint16 BorrarElemento();

    // Of the selected element. With nothing selected reading gives "" or -1, and writing raises. A new code
    // changes the element alone: the collection still knows it under the old one.
    QString NombreElemento() const;
    void NombreElemento(const QString& valor);
    qint32 CodigoElemento() const;
    void CodigoElemento(qint32 valor);
    qint16 NumeroPantallaElemento() const;
    void NumeroPantallaElemento(qint16 valor);
    // The size of a symbol, 0.5 to 33 times the usual, or the width of a line, 1 to 20 pixels; others raise.
    // Writing cuts the traces attached to a symbol to its new outline, and marks the schematic as changed.
    float TamanyoElemento() const;
    void TamanyoElemento(float valor);
    // The host's code for the kind: 10 node, 12 reservoir, 30 demand, 110 aquifer, 50 to 54 conduits,
    // 70 recharge, 60 pumping, 40 intake, 80 hydro plant, 20 inflow, 90 return, 25 sub-basin.
    qint16 TipoElemento() const;

    // Ends the creation of elements and disables the bar that begins it.
    Q_INVOKABLE void AnulaAgregarElementos();

    // The schematic itself, not a copy. Setting replaces it and repaints; the second form does not repaint.
    // Whoever sets one keeps the highest codes and numbers consistent: they are computed on opening a file.
    std::shared_ptr<Elementos> GetElementos() const;
    void GetElementos(std::shared_ptr<Elementos> elementos);
    void SetElementos(std::shared_ptr<Elementos> elementos);

    // --- Documents ------------------------------------------------------------------------------------

    // Opens a schematic file and shows all of it. A file that cannot be read, or that holds no element, opens
    // as an empty schematic: MotivoSinLeer tells why. Data out of order (a repeated code, a flag that is
    // none) raise, and the earlier schematic stays.
    Q_INVOKABLE void ArchivoAbrir(const QString& archNombre);
    // Saves in one step: the file is all of the old or all of the new. What would not open again (codes that
    // are repeated, traces of less than two points, more than 32767 elements...) raises, and names the
    // elements. A background picture from another folder is copied beside the file, under a name that is free
    // or its own. A file that could not be read when it was last opened is kept beside it, as NAME.bak.
    Q_INVOKABLE void ArchivoGuardar(const QString& archNombre);
    // An empty schematic in the view, and with the switches, of a new control.
    Q_INVOKABLE void ArchivoNuevo();
    // Of the last ArchivoAbrir: why its file could not be read, or which code two of its elements have, empty
    // when it could; and what was missing or repeated in it, also written to "ErroresCarga.log" in the
    // current directory (where that cannot be written, the text begins by saying so).
    QString MotivoSinLeer() const;
    QString ProblemasDeCarga() const;
    // Of the last ArchivoAbrir, why the background picture is not shown; of the last ArchivoGuardar, why it
    // could not be copied. Empty when there is nothing to tell. What the file says of a picture that is not
    // shown is kept when it is saved.
    QString AvisoDeImagen() const;

    // Stores a copy of an element of the host, under its code, and counts it as the newest. With the
    // collection unchanged it raises what the failing step does, without a text of its own: the collection's
    // error for a code that is taken; the platform's failure (zel::Fallo) 91 for no element, 9 for a kind
    // outside 0 to 15, 6 when no number is left.
    Q_INVOKABLE void AddElemento(const std::shared_ptr<Elemento>& elem);
    // Numbers on the screen, or names, for many elements at once: entry i of the second list for the code in
    // entry i of the first. The last entry is not applied. False when one could not be: those before it are.
    // They never raise, and the repaint comes when the events in waiting are through; more than 32768 entries
    // are refused whole.
    Q_INVOKABLE bool ModificaVarios_NumUser(const QList<qint32>& aiCodSig, const QList<qint32>& aiNums);
    Q_INVOKABLE bool ModificaVarios_Nombres(const QList<qint32>& aiCodGIS, const QStringList& asNoms);
    // Secondary connections: the first and the second entry of an origin give its two. Before, those of the
    // listed origins, or of all elements, are cleared. Always an empty text; never raises.
    Q_INVOKABLE QString ModificaVarios_ConecSec(const QList<qint32>& aivOrigen,
                                                const QList<qint32>& aivDestino,
                                                bool aBorraAnteriores = false);

    // The schematic has changed since it was last opened or saved.
    bool bHabidoCambios() const;
    void bHabidoCambios(bool valor);
    // Secondary connections are drawn; takes effect with the next repaint.
    bool bMostrarLineasOcultas() const;
    void bMostrarLineasOcultas(bool valor);

    // --- View -----------------------------------------------------------------------------------------

    // Fits the whole schematic into the panel. Before the control is first shown it has no final size: the
    // fit is then done again when it is. A view that nobody has chosen by then begins anew, at 100 %. The
    // calls of the view leave what is under way as it is, as the wheel does.
    Q_INVOKABLE void ResizeGrafo();
    // Places and sizes the control in its parent, in the parent's millimetres; what is missing is taken so
    // that the control reaches to the parent's right and bottom edges. Raises without a parent.
    Q_INVOKABLE void AjustarAVentana(const std::optional<Variante>& fLeft = std::nullopt,
                                     const std::optional<Variante>& fTop = std::nullopt,
                                     const std::optional<Variante>& fWidth = std::nullopt,
                                     const std::optional<Variante>& fHeight = std::nullopt);
    // The zoom times the factor, around the centre: below 1 a closer view. False when that would be beyond
    // the closest or the farthest view, which a notice has told.
    Q_INVOKABLE bool CambiaZoom(double factor);

    Q_INVOKABLE void textoStatBar(const QString& texto);
    // Brings the QActions of the menu up to date, for a host that shows some in a menu of its own. The
    // control's menu does it when it opens.
    Q_INVOKABLE void PonAlDiaMenu();

    // --- Drawing surface ------------------------------------------------------------------------------

    qint16 BorderStyle() const;  // of the control: 0 none, 1 a line
    void BorderStyle(qint16 valor);
    qint32 BackColor() const;
    void BackColor(qint32 valor);
    qint32 ForeColor() const;
    void ForeColor(qint32 valor);
    // The panel's window id; the panel gets a native window by it.
    qint32 hdc() const;
    // The schematic, or the subsystem while one is selected, at four times the panel's resolution. Raises
    // when there is no memory for it or an element cannot be drawn.
    QImage Picture();

    // The visible part of the world. ScaleHeight is stored negative, since Y grows upwards, and setting it
    // does not repaint. Raises for what is no number and for a width or height below 0.001 or above 1e9.
    float ScaleLeft() const;
    void ScaleLeft(float valor);
    float ScaleTop() const;
    void ScaleTop(float valor);
    float ScaleWidth() const;
    void ScaleWidth(float valor);
    float ScaleHeight() const;
    void ScaleHeight(float valor);
    // 0 the panel's own scale; 1 twips, 2 points, 3 pixels, 4 characters, 5 inches, 6 millimetres,
    // 7 centimetres. Setting one of these shows the panel from (0, 0) in that unit.
    qint16 ScaleMode() const;
    void ScaleMode(qint16 valor);
    // The scale by its corners, top left and bottom right.
    Q_INVOKABLE void Scale_(const std::optional<Variante>& x1 = std::nullopt,
                            const std::optional<Variante>& y1 = std::nullopt,
                            const std::optional<Variante>& x2 = std::nullopt,
                            const std::optional<Variante>& y2 = std::nullopt);
    // A length from one ScaleMode to another. Missing: from hundredths of a millimetre; to the panel's scale.
    Q_INVOKABLE float ScaleX(float valor, const std::optional<Variante>& FromScale = std::nullopt,
                             const std::optional<Variante>& ToScale = std::nullopt);
    Q_INVOKABLE float ScaleY(float valor, const std::optional<Variante>& FromScale = std::nullopt,
                             const std::optional<Variante>& ToScale = std::nullopt);

    // Of the panel's texts. Each repaint sets the size anew, by the zoom, and leaves ForeColor black.
    QFont Font() const;
    bool FontBold() const;
    void FontBold(bool valor);
    bool FontItalic() const;
    void FontItalic(bool valor);
    bool FontStrikethru() const;
    void FontStrikethru(bool valor);
    bool FontTransparent() const;  // texts have no background of their own
    void FontTransparent(bool valor);
    bool FontUnderline() const;
    void FontUnderline(bool valor);
    QString FontName() const;
    void FontName(const QString& valor);
    float FontSize() const;  // points
    void FontSize(float valor);

    Q_INVOKABLE void Refresh();
    // Clears the panel; the next repaint brings the drawing back.
    Q_INVOKABLE void Cls();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  signals:
    // In a direct connection the host may change the arguments; the control goes on with what it finds.
    // Keys are virtual key codes; Shift is 1 Shift + 2 Ctrl + 4 Alt; buttons 1 left, 2 right, 4 middle.
    // A press raises MouseDown, then ElementoSeleccionado when it selects an element or completes a new one,
    // and then CreacionNuevoElemento. A release raises ElementoMovido or ElementoModificado when it ends a
    // drag, then Click. Instead of the second press of a double click come DblClick and EditarElemento.
    // The state of the control is that after the change already, and so is bHabidoCambios, but where an
    // element has been given a size, a label's size or a colour, or its label has been put back: there it is
    // set next.
    void Click();
    void DblClick();
    void KeyDown(qint16& KeyCode, qint16& Shift);
    void KeyPress(qint16& KeyAscii);
    void MouseDown(qint16& Button, qint16& Shift, float& X, float& Y);
    void MouseMove(qint16& Button, qint16& Shift, float& X, float& Y);  // never raised
    void MouseUp(qint16& Button, qint16& Shift, float& X, float& Y);    // never raised
    void KeyUp(qint16& KeyCode, qint16& Shift);
    void CreacionNuevoElemento(QString& Tipo, qint32& ElemIni, qint32& ElemFin);
    void PeticionBorrado(qint32& gfCodSIG);
    void EditarElemento(qint32& gfCodSIG);
    void ElementoSeleccionado(qint32& gfCodSIG);
    void AdjuntarArchivo(qint32& gfCodSIG);
    void AdjuntarVer(qint32& gfCodSIG);
    void ElementoMovido(qint32& gfCodSIG, std::shared_ptr<zel::Elemento>& elem);
    void ElementoModificado(qint32& gfCodSIG, std::shared_ptr<zel::Elemento>& elem);

    // The changed mark (`bHabidoCambios`) has turned, whoever has turned it. It comes when the events in
    // waiting are through, once for all that was done till then.
    void HabidoCambios(bool hay);

    // A failure in answer to the platform (a click, a key, a resize) rather than to a call of the host.
    void ErrorEnEvento(qint32 Number, const QString& Source, const QString& Description);

  protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;
    void showEvent(QShowEvent* evento) override;

  private:
    struct Partes;
    // The common frame of the calls: their text when they fail, the ready state before.
    template <typename Accion>
    auto Llamada(const char* sufijo, Accion accion) const;
    template <typename Accion>
    auto Operacion(const char* sufijo, Accion accion);
    template <typename Accion>
    void PonPropiedad(const char* sufijo, Accion accion);
    std::shared_ptr<Elemento> SeleccionadoParaCambiar(const char* sinSeleccion) const;
    void PonModoDeEscala(qint16 valor);
    QSizeF Resolucion() const;
    template <typename Accion>
    void PonFuentePanel(const char* sufijo, Accion accion);
    qint32 SeleccionaElemento(qint32 codigo, bool centrar, const char* sufijo);

    std::shared_ptr<Partes> partes_;  // outlives the control while a call has not come back
};

}  // namespace zel
