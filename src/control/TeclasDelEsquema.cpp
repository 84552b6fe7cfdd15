// The keys on their way to the panel or to a button: the host sees them first, then the editor.

#include <QContextMenuEvent>

#include "control/PartesDelEsquema.h"
#include "control/Teclas.h"

namespace zel {

namespace {

constexpr qint16 F10 = 121;
constexpr qint16 CON_MAYUS = 1;

// The same when it is pressed and when it is released, whatever it types by then.
quint64 Identidad(const QKeyEvent& tecla) {
    constexpr quint64 SIN_POSICION = quint64{1} << 32;
    const quint32 posicion = tecla.nativeScanCode();
    return posicion != 0 ? posicion : SIN_POSICION + static_cast<quint64>(CodigoDeTecla(tecla));
}

bool EsDelTeclado(const QEvent& menu) {
    return static_cast<const QContextMenuEvent&>(menu).reason() == QContextMenuEvent::Keyboard;
}

}  // namespace

// Once for each key: from a button it goes on to its bar.
bool Esquema::Partes::AtiendeTeclasDe(const QObject* objeto) const {
    const bool esBoton = objeto->parent() == toolBar1 || objeto->parent() == toolBar2;
    return objeto == panel || esBoton;
}

// The menu is the panel's own, and not to be asked for again around it.
bool Esquema::Partes::SeQuedaAqui(const QObject* objeto, const QEvent& evento) const {
    return evento.type() == QEvent::ContextMenu && (objeto == panel || EsDelTeclado(evento));
}

void Esquema::Partes::AtiendeTeclado(const QEvent& evento) {
    switch (evento.type()) {
        case QEvent::ShortcutOverride:
        case QEvent::KeyPress:
            TeclaPulsada(static_cast<const QKeyEvent&>(evento));
            break;
        case QEvent::KeyRelease:
            TeclaSoltada(static_cast<const QKeyEvent&>(evento));
            break;
        case QEvent::Wheel:
            EnEntrada([this] { teclado.OtraEntrada(); });
            break;
        case QEvent::ContextMenu:
            // The mouse's has had its answer when the button was pressed.
            if (EsDelTeclado(evento)) EnEntrada([this] { LanzaMenuConTeclado(); });
            break;
        case QEvent::FocusIn:
            teclasDeFuera = true;
            break;
        case QEvent::FocusOut:
            teclasVistas.clear();
            teclasDeAtajos.clear();
            break;
        default:
            break;
    }
}

// A shortcut's override comes first, for every key; the press itself only when no shortcut has taken it.
void Esquema::Partes::TeclaPulsada(const QKeyEvent& tecla) {
    EnEntrada([&] {
        if (tecla.key() != Qt::Key_Control) teclado.OtraEntrada();
        teclasDeFuera = false;
        if (tecla.type() == QEvent::ShortcutOverride) {
            if (tecla.isAutoRepeat()) return;
            teclasVistas.remove(Identidad(tecla));
            teclasDeAtajos.insert(Identidad(tecla));
            return;
        }
        teclasDeAtajos.remove(Identidad(tecla));
        qint16 codigo = CodigoDeTecla(tecla);
        qint16 mayus = MascaraDeTeclas(tecla);
        if (!tecla.isAutoRepeat()) teclasVistas.insert(Identidad(tecla), {codigo, mayus});
        Emitido([&] { emit esquema.KeyDown(codigo, mayus); });
        // Ctrl, held, repeats itself when the wheel has ended what it had begun.
        if (!tecla.isAutoRepeat()) teclado.Panel_KeyDown(codigo, mayus);
        // X11 tells the menu key as a request for the menu, this one not.
        if (!tecla.isAutoRepeat() && codigo == F10 && mayus == CON_MAYUS) LanzaMenuConTeclado();
        qint16 ascii = CaracterDeTecla(tecla);
        if (ascii != 0) Emitido([&] { emit esquema.KeyPress(ascii); });
    });
}

// What was pressed before the focus came (in a box that Escape has closed, say) or has been a shortcut is no
// key of the editor when it is released. Ctrl is: the end of what only its press here begins. The host is
// told the release as it comes; the editor acts on what was pressed, with the keys held then, but for what
// the host has changed.
void Esquema::Partes::TeclaSoltada(const QKeyEvent& tecla) {
    if (tecla.isAutoRepeat()) return;
    EnEntrada([&] {
        const bool laVio = teclasVistas.contains(Identidad(tecla));
        const bool esDeOtro = teclasDeAtajos.remove(Identidad(tecla)) || teclasDeFuera;
        const bool esDelEditor = laVio || !esDeOtro || tecla.key() == Qt::Key_Control;
        const TeclaVista soltada{CodigoDeTecla(tecla), MascaraDeTeclas(tecla)};
        const TeclaVista pulsada = laVio ? teclasVistas.take(Identidad(tecla)) : soltada;
        qint16 codigo = soltada.codigo;
        qint16 mayus = soltada.mayus;
        esquema.Llamada(". ErrUserControl_KeyUp (Esquema)", [&] {
            Emitido([&] { emit esquema.KeyUp(codigo, mayus); });
            if (codigo == soltada.codigo) codigo = pulsada.codigo;
            if (mayus == soltada.mayus) mayus = pulsada.mayus;
            if (esDelEditor) teclado.Panel_KeyUp(codigo, mayus);
        });
    });
}

}  // namespace zel
