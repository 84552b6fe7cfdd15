// The drawing-surface members of Esquema: the panel's properties, forwarded.

#include <cmath>

#include "control/Esquema.h"
#include "control/PartesDelEsquema.h"
#include "control/UnidadesDeEscala.h"
#include "drawing/Conducciones.h"
#include "drawing/Etiquetas.h"
#include "drawing/Simbolos.h"
#include "platform/Guardia.h"
#include "session/Ajustes.h"

namespace zel {

namespace {

constexpr int AUMENTO_DE_PICTURE = 4;
constexpr float AUMENTO_DEL_TEXTO = 5;

// World units; between them the zoom and the text sizes stay numbers.
constexpr float LADO_MINIMO_DE_ESCALA = 1e-3F;
constexpr float LADO_MAXIMO_DE_ESCALA = 1e9F;

float LadoDeEscala(float valor) {
    if (!(std::abs(valor) >= LADO_MINIMO_DE_ESCALA) || !(std::abs(valor) <= LADO_MAXIMO_DE_ESCALA)) {
        throw Fallo(5);
    }
    return valor;
}

float Posicion(float valor) {
    if (!std::isfinite(valor)) throw Fallo(5);
    return valor;
}

// But for the rounding that growing with the panel leaves.
bool EsLaMisma(const Superficie::Escala& a, const Superficie::Escala& b) {
    const float margen = std::abs(b.Width) / 100'000;
    return std::abs(a.Left - b.Left) < margen && std::abs(a.Top - b.Top) < margen &&
           std::abs(a.Width - b.Width) < margen && std::abs(a.Height - b.Height) < margen;
}

}  // namespace

// Pixels per inch in each direction.
QSizeF Esquema::Resolucion() const {
    return QSizeF(logicalDpiX(), logicalDpiY());
}

qint16 Esquema::BorderStyle() const {
    return Llamada(". ErrGetBorderStyle (Esquema)",
                   [&]() -> qint16 { return frameShape() == QFrame::NoFrame ? 0 : 1; });
}

void Esquema::BorderStyle(qint16 valor) {
    PonPropiedad(". ErrLetBorderStyle (Esquema)", [&](Lienzo&) {
        if (valor != 0 && valor != 1) throw Fallo(5);
        setFrameStyle(valor == 0 ? QFrame::NoFrame : QFrame::Box | QFrame::Plain);
        partes_->UserControl_Resize();
    });
}

qint32 Esquema::BackColor() const {
    return Llamada(". ErrGetBackColor (Esquema)", [&] { return partes_->panel->lienzo().BackColor(); });
}

void Esquema::BackColor(qint32 valor) {
    PonPropiedad(". ErrLetBackColor (Esquema)", [&](Lienzo& l) { l.BackColor(valor); });
}

qint32 Esquema::ForeColor() const {
    return Llamada(". ErrGetForeColor (Esquema)", [&] { return partes_->panel->lienzo().pluma().ForeColor; });
}

void Esquema::ForeColor(qint32 valor) {
    PonPropiedad(". ErrLetForeColor (Esquema)", [&](Lienzo& l) { l.ForeColor(valor); });
}

// The panel gets a native window of its own for it: only who asks pays for that.
qint32 Esquema::hdc() const {
    return Llamada(". ErrGethdc (Esquema)", [&] { return static_cast<qint32>(partes_->panel->winId()); });
}

QImage Esquema::Picture() {
    return Llamada(". ErrGetPicture (Esquema)", [&] {
        Partes& p = *partes_;
        Lienzo& panel = p.panel->lienzo();
        Lienzo panel2;
        panel2.BackColor(panel.BackColor());
        panel2.Font(panel.Font());
        panel2.Redimensiona(panel.Imagen().size() * AUMENTO_DE_PICTURE, panel.Relacion(),
                            p.panel->logicalDpiX());
        panel2.ScaleLeft(panel.ScaleLeft());
        panel2.ScaleTop(panel.ScaleTop());
        panel2.ScaleWidth(panel.ScaleWidth());
        panel2.ScaleHeight(panel.ScaleHeight());
        const Elementos& elementos = p.pintado.ConjuntoPintado();
        AjustesDibujo ajustes = AjustesDe(p.trabajo, p.documento, p.vista);
        ajustes.EscalaDibujo *= AUMENTO_DEL_TEXTO;
        for (const auto& e : elementos)
            DibujarElemento(panel2, ajustes, e.get(), false);
        DibujaEtiquetas(panel2, ajustes, elementos, false);
        DibujaLineasSecundarias(panel2, ajustes, elementos, *p.documento.colElementos);
        return panel2.Entrega();
    });
}

float Esquema::ScaleLeft() const {
    return Llamada(". ErrGetScaleLeft (Esquema)", [&] { return partes_->panel->lienzo().ScaleLeft(); });
}
void Esquema::ScaleLeft(float valor) {
    PonPropiedad(". ErrLetScaleLeft (Esquema)", [&](Lienzo& l) {
        partes_->alMostrar = Partes::AlMostrar::Nada;
        l.ScaleLeft(Posicion(valor));
    });
}
float Esquema::ScaleTop() const {
    return Llamada(". ErrGetScaleTop (Esquema)", [&] { return partes_->panel->lienzo().ScaleTop(); });
}
void Esquema::ScaleTop(float valor) {
    PonPropiedad(". ErrLetScaleTop (Esquema)", [&](Lienzo& l) {
        partes_->alMostrar = Partes::AlMostrar::Nada;
        l.ScaleTop(Posicion(valor));
    });
}
float Esquema::ScaleWidth() const {
    return Llamada(". ErrGetScaleWidth (Esquema)", [&] { return partes_->panel->lienzo().ScaleWidth(); });
}
void Esquema::ScaleWidth(float valor) {
    PonPropiedad(". ErrLetScaleWidth (Esquema)", [&](Lienzo& l) {
        partes_->alMostrar = Partes::AlMostrar::Nada;
        l.ScaleWidth(std::abs(LadoDeEscala(valor)));
    });
}
float Esquema::ScaleHeight() const {
    return Llamada(". ErrGetScaleHeight (Esquema)", [&] { return partes_->panel->lienzo().ScaleHeight(); });
}
void Esquema::ScaleHeight(float valor) {
    Llamada(". ErrLetScaleHeight (Esquema)",
            [&] { partes_->panel->lienzo().ScaleHeight(-std::abs(LadoDeEscala(valor))); });
}

qint16 Esquema::ScaleMode() const {
    return Llamada(". ScaleMode (Esquema)", [&]() -> qint16 {
        const Superficie::Escala escala = partes_->panel->lienzo().escala();
        const QSize tamanyo = partes_->panel->size();
        const Superficie::Escala delModo = EscalaDelModo(partes_->modoDeEscala, tamanyo, Resolucion());
        return EsLaMisma(escala, delModo) ? partes_->modoDeEscala : MODO_PROPIO;
    });
}

void Esquema::PonModoDeEscala(qint16 valor) {
    if (valor < MODO_PROPIO || valor > MODO_CENTIMETROS) throw Fallo(5);
    partes_->modoDeEscala = valor;
    if (valor == MODO_PROPIO) return;
    partes_->alMostrar = Partes::AlMostrar::Nada;
    const Superficie::Escala e = EscalaDelModo(valor, partes_->panel->size(), Resolucion());
    Lienzo& l = partes_->panel->lienzo();
    l.ScaleLeft(e.Left);
    l.ScaleTop(e.Top);
    l.ScaleWidth(e.Width);
    l.ScaleHeight(e.Height);
}

void Esquema::ScaleMode(qint16 valor) {
    PonPropiedad(". ErrLetScaleMode (Esquema)", [&](Lienzo&) { PonModoDeEscala(valor); });
}

void Esquema::Scale_(const std::optional<Variante>& x1, const std::optional<Variante>& y1,
                     const std::optional<Variante>& x2, const std::optional<Variante>& y2) {
    PonPropiedad(". ErrScale_ (Esquema)", [&](Lienzo& l) {
        if (!x1 && !y1 && !x2 && !y2) {
            PonModoDeEscala(MODO_TWIPS);
            return;
        }
        if (!x1 || !y1 || !x2 || !y2) throw Fallo(5);
        const float izquierda = Posicion(x1->Real32());
        const float arriba = Posicion(y1->Real32());
        const float ancho = LadoDeEscala(x2->Real32() - izquierda);
        const float alto = LadoDeEscala(y2->Real32() - arriba);
        partes_->alMostrar = Partes::AlMostrar::Nada;
        l.ScaleLeft(izquierda);
        l.ScaleTop(arriba);
        l.ScaleWidth(std::abs(ancho));
        l.ScaleHeight(-std::abs(alto));
        partes_->modoDeEscala = MODO_PROPIO;
    });
}

float Esquema::ScaleX(float valor, const std::optional<Variante>& FromScale,
                      const std::optional<Variante>& ToScale) {
    return Llamada(". ErrScaleX (Esquema)", [&] {
        const double propia = double{partes_->panel->lienzo().ScaleWidth()} / partes_->panel->width();
        return ConvierteLongitud(valor, FromScale, ToScale, false, Resolucion(), propia, ScaleMode());
    });
}

float Esquema::ScaleY(float valor, const std::optional<Variante>& FromScale,
                      const std::optional<Variante>& ToScale) {
    return Llamada(". ErrScaleY (Esquema)", [&] {
        const double propia = double{partes_->panel->lienzo().ScaleHeight()} / partes_->panel->height();
        return ConvierteLongitud(valor, FromScale, ToScale, true, Resolucion(), propia, ScaleMode());
    });
}

QFont Esquema::Font() const {
    return Llamada(". ErrGetFont (Esquema)", [&] {
        QFont fuente = partes_->panel->lienzo().Font();
        fuente.setPointSizeF(partes_->panel->lienzo().FontSize());
        return fuente;
    });
}

bool Esquema::FontBold() const {
    return Llamada(". ErrGetFontBold (Esquema)", [&] { return Font().bold(); });
}
void Esquema::FontBold(bool valor) {
    PonFuentePanel(". ErrLetFontBold (Esquema)", [&](QFont& f) { f.setBold(valor); });
}
bool Esquema::FontItalic() const {
    return Llamada(". ErrGetFontItalic (Esquema)", [&] { return Font().italic(); });
}
void Esquema::FontItalic(bool valor) {
    PonFuentePanel(". ErrLetFontItalic (Esquema)", [&](QFont& f) { f.setItalic(valor); });
}
bool Esquema::FontStrikethru() const {
    return Llamada(".  ErrGetFontStrikethru(Esquema)", [&] { return Font().strikeOut(); });
}
void Esquema::FontStrikethru(bool valor) {
    PonFuentePanel(". ErrLetFontStrikethru (Esquema)", [&](QFont& f) { f.setStrikeOut(valor); });
}
bool Esquema::FontUnderline() const {
    return Llamada(". ErrGetFontUnderline (Esquema)", [&] { return Font().underline(); });
}
void Esquema::FontUnderline(bool valor) {
    PonFuentePanel(". ErrLetFontUnderline (Esquema)", [&](QFont& f) { f.setUnderline(valor); });
}
QString Esquema::FontName() const {
    return Llamada(". ErrGetFontName (Esquema)", [&] { return Font().family(); });
}
void Esquema::FontName(const QString& valor) {
    PonFuentePanel(". ErrLetFontName (Esquema)", [&](QFont& f) {
        if (valor.isEmpty()) throw Fallo(5);
        f.setFamily(valor);
    });
}

bool Esquema::FontTransparent() const {
    return Llamada(". ErrGetFontTransparent (Esquema)",
                   [&] { return partes_->panel->lienzo().FontTransparent(); });
}
void Esquema::FontTransparent(bool valor) {
    PonPropiedad(". ErrLetFontTransparent (Esquema)", [&](Lienzo& l) { l.FontTransparent(valor); });
}

float Esquema::FontSize() const {
    return Llamada(". FontSize (Esquema)", [&] { return partes_->panel->lienzo().FontSize(); });
}
void Esquema::FontSize(float valor) {
    PonPropiedad(". ErrLetFontSize (Esquema)", [&](Lienzo& l) {
        if (!(valor > 0) || !std::isfinite(valor)) throw Fallo(5);
        l.FontSize(valor);
    });
}

template <typename Accion>
void Esquema::PonFuentePanel(const char* sufijo, Accion accion) {
    PonPropiedad(sufijo, [&](Lienzo& l) {
        QFont fuente = l.Font();
        accion(fuente);
        l.Font(fuente);
    });
}

void Esquema::Refresh() {
    Operacion(". Refresh (Esquema)", [](Partes& p) { p.refresco.RefrescarSiPendiente(); });
}

void Esquema::Cls() {
    Operacion(". ErrCls (Esquema)", [](Partes& p) { p.pintado.Borra(); });
}

}  // namespace zel
