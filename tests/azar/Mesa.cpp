#include "azar/Mesa.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QImage>
#include <QMenu>
#include <QMouseEvent>
#include <QScrollBar>

#include "Borrado.h"
#include "azar/Cuenca.h"
#include "editing/Menus.h"
#include "file/GuardadoSeguro.h"
#include "model/modErrorHandling.h"

namespace zel::azar {

namespace {

using namespace Qt::StringLiterals;

const char* const ESQUEMA = "esquema.xml";

template <typename T>
T* Uno(const QList<T*>& lista, unsigned n) {
    return lista.isEmpty() ? nullptr : lista[static_cast<qsizetype>(n) % lista.size()];
}

Qt::KeyboardModifiers Mayus(unsigned n) {
    constexpr Qt::KeyboardModifier TODAS[] = {Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier};
    return n % 4 == 3 ? TODAS[n / 4 % 3] : Qt::KeyboardModifiers{};
}

}  // namespace

void Respuestas::MsgBox(const std::string& texto, const std::string&) {
    // What the control tells a user has no trail of failures; a schematic in order is drawn whole.
    if (fallo.empty() &&
        (texto.find("Estado de visor") != std::string::npos || texto.find("(elemento ") != std::string::npos))
        fallo = "box: " + texto;
    QApplication::processEvents();
}

std::optional<std::string> Respuestas::InputBox(const std::string&, const std::string&, const std::string&) {
    QApplication::processEvents();
    constexpr const char* TEXTOS[] = {"",    "abc", "1e400", "-5", "99999999999999999999",
                                      "0",   "nan", "1,5",   "2",  "3",
                                      "0.7", "12",  "1e3",   "7",  " 4 ",
                                      "1.2", "0,5", "20"};
    const unsigned cual = Siguiente(std::size(TEXTOS) + 3);
    if (cual >= std::size(TEXTOS)) return std::nullopt;
    return TEXTOS[cual];
}

std::optional<std::string> Respuestas::ArchivoAbrir(const std::string&, const std::string&) {
    constexpr const char* NOMBRES_DE_ARCHIVO[] = {"plano.png", "plano.png", "foto.bmp", "texto.png",
                                                  "falta.png"};
    const unsigned cual = Siguiente(6);
    if (cual == 5) return std::nullopt;
    return carpeta_ + "/" + NOMBRES_DE_ARCHIVO[cual];
}

std::optional<std::string> Respuestas::ArchivoGuardar(const std::string&, const std::string&,
                                                      const std::string&) {
    constexpr const char* NOMBRES_DE_ARCHIVO[] = {"parte.xml", "parte.xml", "falta/parte.xml"};
    const unsigned cual = Siguiente(4);
    if (cual == 3) return std::nullopt;
    return carpeta_ + "/" + NOMBRES_DE_ARCHIVO[cual];
}

std::optional<std::int32_t> Respuestas::Color(std::int32_t) {
    const unsigned cual = Siguiente(4);
    if (cual == 3) return std::nullopt;
    return static_cast<std::int32_t>(cual * 0x3377BB);
}

Mesa::Mesa(Principio principio) : otro_(new QLineEdit), esquema_(new Esquema) {
    anteriores_ = instalaDialogos(respuestas_);
    auto* filas = new QVBoxLayout(&ventana_);
    filas->addWidget(otro_);
    filas->addWidget(esquema_, 1);
    panel_ = esquema_->findChild<PanelDibujo*>(u"Panel"_s);
    ventana_.resize(620, 480);
    ventana_.show();
    ventana_.activateWindow();
    QApplication::processEvents();
    panel_->setFocus();

    const std::pair<const char*, QSize> imagenes[] = {{"plano.png", {60, 40}}, {"foto.bmp", {30, 90}}};
    for (const auto& [nombre, tamanyo] : imagenes) {
        QImage imagen(tamanyo, QImage::Format_RGB32);
        imagen.fill(Qt::cyan);
        imagen.save(QString::fromStdString((carpeta / nombre).string()));
    }
    carpeta.Escribe("texto.png", "no es una imagen");
    QObject::connect(esquema_, &Esquema::ErrorEnEvento, [this](qint32, const QString&, const QString& texto) {
        Falla("ErrorEnEvento: " + texto.toStdString());
    });
    QObject::connect(esquema_, &Esquema::PeticionBorrado, [this](qint32 codigo) { Borra(codigo); });

    if (principio == Principio::Vacio) return;
    GuardaConSeguridad((carpeta / ESQUEMA).string(), Cuenca(principio == Principio::Trabajado), {}, true);
    Abre();
}

Mesa::~Mesa() {
    delete esquema_;
    instalaDialogos(anteriores_);
}

// A call of the host on what is there does not fail.
template <typename Accion>
void Mesa::Llama(Accion accion) try {
    accion();
} catch (const Error& error) {
    Falla("call: " + error.Description());
}

void Mesa::Haz(const Gesto& g) {
    renovado_ = false;
    QApplication::processEvents();
    respuestas_->Prepara(g, (carpeta / "").string());
    const Qt::MouseButton boton = g.n[0] % 8 == 0   ? Qt::RightButton
                                  : g.n[0] % 8 == 1 ? Qt::MiddleButton
                                  : g.n[0] == 2     ? Qt::BackButton
                                                    : Qt::LeftButton;
    switch (g.que) {
        case Que::Pulsa:
            return Raton(QEvent::MouseButtonPress, boton, Sitio(g), g.n[0] / 8);
        case Que::Mueve:
            return Raton(QEvent::MouseMove, Qt::NoButton, Sitio(g), 1);
        case Que::Suelta: {
            const QPoint donde = Sitio(g);
            for (const auto b : {Qt::LeftButton, Qt::MiddleButton, Qt::RightButton, Qt::BackButton}) {
                if (botones_.testFlag(b)) Raton(QEvent::MouseButtonRelease, b, donde, 1);
            }
            return;
        }
        case Que::Clic:
        case Que::DobleClic: {
            const QPoint donde = Sitio(g);
            Raton(QEvent::MouseMove, Qt::NoButton, donde, 1);
            Raton(QEvent::MouseButtonPress, boton, donde, g.n[0] / 8);
            Raton(QEvent::MouseButtonRelease, boton, donde, g.n[0] / 8);
            if (g.que == Que::Clic) return;
            Raton(QEvent::MouseButtonDblClick, boton, donde, g.n[0] / 8);
            return Raton(QEvent::MouseButtonRelease, boton, donde, g.n[0] / 8);
        }
        case Que::Rueda: {
            const QPoint donde = Sitio(g);
            QWheelEvent rueda(donde, panel_->mapToGlobal(donde), {}, {0, g.n[0] % 2 ? 120 : -120}, botones_,
                              g.n[1] % 2 ? Qt::ControlModifier : Mayus(g.n[0] / 2), Qt::NoScrollPhase, false);
            QApplication::sendEvent(panel_, &rueda);
            return;
        }
        case Que::Tecla:
            return Tecla(g, true, true);
        case Que::TeclaAbajo:
            return Tecla(g, true, false);
        case Que::TeclaArriba:
            return Tecla(g, false, true);
        case Que::Menu:
            return Menu(g);
        case Que::Boton:
            return Boton(g);
        case Que::Barra:
            return Barra(g);
        case Que::Ventana:
            ventana_.resize(200 + static_cast<int>(g.n[0] % 600), 150 + static_cast<int>(g.n[1] % 500));
            return QApplication::processEvents();
        case Que::Foco:
            (g.n[0] % 2 ? static_cast<QWidget*>(otro_) : panel_)->setFocus();
            return QApplication::processEvents();
        case Que::CuadroDeImagen:
            return CuadroDeImagen(g);
        case Que::Edita:
            return Edita(g);
        case Que::Guarda:
            return Guarda();
        case Que::Abre:
            return Abre();
        case Que::Nuevo:
            guardado_.clear();
            renovado_ = true;
            return Llama([&] { esquema_->ArchivoNuevo(); });
        case Que::Anfitrion:
            return LlamaElAnfitrion(g);
    }
}

// Where an element is, or its label or a point of its trace, or some pixels beside; else anywhere.
QPoint Mesa::Sitio(const Gesto& g) const {
    const QPoint suelto(static_cast<int>(g.n[1]) * panel_->width() / 1000,
                        static_cast<int>(g.n[2]) * panel_->height() / 1000);
    const auto elementos = esquema_->GetElementos();
    if (g.n[3] % 4 == 0 || elementos->Count() == 0) return suelto;
    const auto elegido = elementos->ItemCodSIG(esquema_->CodigoElemento());
    const auto uno = elementos->Item(1 + static_cast<std::int32_t>(g.n[1]) % elementos->Count());
    const auto e = elegido && g.n[1] % 3 == 0 ? elegido : uno;
    PuntoXY donde{e->XPos(), e->YPos()};
    const auto traza = g.n[2] % 2 && e->Trazado2() ? e->Trazado2() : e->Trazado();
    if (g.n[2] % 5 == 0) {
        donde = {donde.X + e->EtiquetaPosX(), donde.Y + e->EtiquetaPosY()};
    } else if (g.n[2] % 5 < 3 && traza && traza->Count() >= 2) {
        const std::int32_t cual = 1 + static_cast<std::int32_t>(g.n[2] / 5) % traza->Count();
        const auto a = traza->Item(cual), b = traza->Item(g.n[2] % 5 == 1 && cual > 1 ? cual - 1 : cual);
        donde = {(a->XPos() + b->XPos()) / 2, (a->YPos() + b->YPos()) / 2};
    }
    const QPointF p = panel_->EnElPanel(donde);
    if (!panel_->rect().contains(p.toPoint())) return suelto;
    const int al_lado = g.n[3] % 3 == 0 ? static_cast<int>(g.n[3] % 17) - 8 : 0;
    const QPoint sitio = p.toPoint() + QPoint(al_lado, al_lado / 2);
    return {std::clamp(sitio.x(), 0, panel_->width() - 1), std::clamp(sitio.y(), 0, panel_->height() - 1)};
}

void Mesa::Raton(QEvent::Type tipo, Qt::MouseButton boton, QPoint donde, unsigned mayus) {
    QWidget* menu = QApplication::activePopupWidget();
    if (menu && tipo == QEvent::MouseButtonPress) menu->close();
    if (tipo == QEvent::MouseButtonPress || tipo == QEvent::MouseButtonDblClick) {
        panel_->setFocus(Qt::MouseFocusReason);
        botones_ |= boton;
        ++pulsaciones_;
    }
    if (tipo == QEvent::MouseButtonRelease) botones_ &= ~Qt::MouseButtons(boton);
    raton_ = donde;
    QMouseEvent evento(tipo, donde, panel_->mapToGlobal(donde), boton, botones_, Mayus(mayus));
    QApplication::sendEvent(panel_, &evento);
}

void Mesa::MueveEnElSitio() {
    if (panel_->rect().contains(raton_)) Raton(QEvent::MouseMove, Qt::NoButton, raton_, 1);
}

void Mesa::Tecla(const Gesto& g, bool abajo, bool arriba) {
    constexpr int TECLAS[] = {
        Qt::Key_Escape, Qt::Key_Escape,   Qt::Key_Backspace, Qt::Key_Backspace, Qt::Key_Delete,
        Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Left,      Qt::Key_Right,     Qt::Key_Up,
        Qt::Key_Down,   Qt::Key_Plus,     Qt::Key_Minus,     Qt::Key_Z,         Qt::Key_M,
        Qt::Key_C,      Qt::Key_N,        Qt::Key_E,         Qt::Key_T,         Qt::Key_1,
        Qt::Key_F10,    Qt::Key_F11,      Qt::Key_Control,   Qt::Key_Control,   Qt::Key_Shift,
        Qt::Key_Return, Qt::Key_Space,    Qt::Key_Tab,       Qt::Key_Home,      Qt::Key_F12};
    QWidget* destino = QApplication::focusWidget() ? QApplication::focusWidget() : panel_;
    const auto manda = [&](QEvent::Type tipo, int tecla, Qt::KeyboardModifiers con) {
        const bool suma = tecla == Qt::Key_Plus || tecla == Qt::Key_Minus;
        QKeyEvent evento(tipo, tecla, con | (suma ? Qt::KeypadModifier : Qt::NoModifier));
        QApplication::sendEvent(destino, &evento);
    };
    if (!abajo) {
        if (teclas_.empty()) return;
        const auto [tecla, con] = teclas_.back();
        teclas_.pop_back();
        return manda(QEvent::KeyRelease, tecla, g.n[2] % 3 ? con : Qt::NoModifier);
    }
    const int tecla = TECLAS[g.n[0] % std::size(TECLAS)];
    const auto con = tecla == Qt::Key_Control ? Qt::KeyboardModifiers(Qt::ControlModifier) : Mayus(g.n[1]);
    manda(QEvent::KeyPress, tecla, con);
    if (arriba)
        manda(QEvent::KeyRelease, tecla, tecla == Qt::Key_Control ? Qt::NoModifier : con);
    else
        teclas_.emplace_back(tecla, tecla == Qt::Key_Control ? Qt::NoModifier : con);
}

void Mesa::Menu(const Gesto& g) {
    if (g.n[0] % 2) Raton(QEvent::MouseButtonPress, Qt::RightButton, raton_, 1);
    if (g.n[0] % 2) Raton(QEvent::MouseButtonRelease, Qt::RightButton, raton_, 1);
    Llama([&] { esquema_->PonAlDiaMenu(); });
    // The item of that number, or the next one that is offered.
    const auto& filas = FilasDeMenu();
    for (std::size_t i = 0; i < filas.size(); ++i) {
        const std::string_view nombre = filas[(g.n[1] + i) % filas.size()].nombre;
        auto* accion = esquema_->findChild<QAction*>(QLatin1String(nombre.data(), nombre.size()));
        if (!accion || !accion->isVisible() || accion->isSeparator()) continue;
        accion->trigger();
        break;
    }
    if (QWidget* menu = QApplication::activePopupWidget()) menu->close();
    QApplication::processEvents();
}

void Mesa::PulsaBoton(QWidget* boton) {
    const QPoint centro = boton->rect().center();
    QMouseEvent abajo(QEvent::MouseButtonPress, centro, boton->mapToGlobal(centro), Qt::LeftButton,
                      Qt::LeftButton, {});
    QApplication::sendEvent(boton, &abajo);
    QMouseEvent arriba(QEvent::MouseButtonRelease, centro, boton->mapToGlobal(centro), Qt::LeftButton, {},
                       {});
    QApplication::sendEvent(boton, &arriba);
}

void Mesa::Boton(const Gesto& g) {
    // Who has the mouse on the panel does not press buttons.
    if (botones_) return;
    QList<QAbstractButton*> botones =
        esquema_->findChild<QWidget*>(g.n[0] % 3 ? u"ToolBar1"_s : u"ToolBar2"_s)
            ->findChildren<QAbstractButton*>();
    botones.removeIf([](const QAbstractButton* b) { return !b->isVisible() || !b->isEnabled(); });
    if (QAbstractButton* boton = Uno(botones, g.n[1])) PulsaBoton(boton);
}

void Mesa::Barra(const Gesto& g) {
    auto* barra = esquema_->findChild<QScrollBar*>(g.n[0] % 2 ? u"HScroll"_s : u"VScroll"_s);
    if (!barra->isEnabled()) return;
    constexpr QAbstractSlider::SliderAction ACCIONES[] = {
        QAbstractSlider::SliderSingleStepAdd, QAbstractSlider::SliderSingleStepSub,
        QAbstractSlider::SliderPageStepAdd, QAbstractSlider::SliderPageStepSub};
    if (g.n[1] % 3 == 0)
        barra->setValue(barra->minimum() +
                        static_cast<int>(g.n[2]) * (barra->maximum() - barra->minimum()) / 1000);
    else
        barra->triggerAction(ACCIONES[g.n[2] % 4]);
}

void Mesa::CuadroDeImagen(const Gesto& g) {
    auto* marco = esquema_->findChild<QWidget*>(u"FrameImagenFondo"_s);
    if (!marco->isVisible()) {
        // The rest of the time it is the menu that brings it.
        if (g.n[3] % 3 == 0) {
            auto* accion = esquema_->findChild<QAction*>(u"menuVisorImagen"_s);
            accion->trigger();
        }
        return;
    }
    if (g.n[0] % 2) {
        constexpr const char* TEXTOS[] = {"", "1e400", "abc", "10", "-30", "120,5", "0", "3000000", "55"};
        if (auto* caja = Uno(marco->findChildren<QLineEdit*>(), g.n[1])) {
            caja->setFocus();
            caja->setText(QString::fromLatin1(TEXTOS[g.n[2] % std::size(TEXTOS)]));
        }
    } else if (auto* boton = Uno(marco->findChildren<QAbstractButton*>(), g.n[1])) {
        PulsaBoton(boton);
    }
}

// The host's form.
void Mesa::Edita(const Gesto& g) {
    if (esquema_->TipoElemento() < 0) return;
    constexpr const char* DE_NOMBRE[] = {"Azud", "Presa\nnueva", "", "Canal de la margen derecha, tramo 3",
                                         "<&>\"ñ€"};
    Llama([&] {
        // The mark of a new name is the host's affair.
        if (g.n[0] % 2) {
            esquema_->NombreElemento(QString::fromUtf8(DE_NOMBRE[g.n[1] % std::size(DE_NOMBRE)]));
            esquema_->bHabidoCambios(true);
            return;
        }
        esquema_->TamanyoElemento(1 + static_cast<float>(g.n[1] % 5));
    });
}

// The old mark has to tell whether the file changes by it.
void Mesa::Guarda() {
    const bool marca = marcado_ || esquema_->bHabidoCambios();
    Llama([&] { esquema_->ArchivoGuardar(QString::fromStdString((carpeta / ESQUEMA).string())); });
    const std::string ahora = pruebas::LeeArchivo(carpeta / ESQUEMA);
    if (!marca && !guardado_.empty() && ahora != guardado_) {
        carpeta.Escribe("antes.xml", guardado_);
        Falla("the file changes, and bHabidoCambios was not set");
    }
    if (esquema_->bHabidoCambios()) Falla("bHabidoCambios is set once saved");
    guardado_ = ahora;
    marcado_ = false;
    renovado_ = true;
}

void Mesa::Abre() {
    if (!std::filesystem::exists(carpeta / ESQUEMA)) return;
    Llama([&] { esquema_->ArchivoAbrir(QString::fromStdString((carpeta / ESQUEMA).string())); });
    if (!esquema_->MotivoSinLeer().isEmpty()) Falla("not read: " + esquema_->MotivoSinLeer().toStdString());
    if (!esquema_->ProblemasDeCarga().isEmpty())
        Falla("read with problems: " + esquema_->ProblemasDeCarga().toStdString());
    guardado_ = pruebas::LeeArchivo(carpeta / ESQUEMA);
    marcado_ = false;
    renovado_ = true;
}

void Mesa::LlamaElAnfitrion(const Gesto& g) {
    const auto elementos = esquema_->GetElementos();
    const qint32 codigo =
        elementos->Count() == 0
            ? 1
            : elementos->Item(1 + static_cast<std::int32_t>(g.n[1]) % elementos->Count())->gfCodSIG();
    Llama([&] {
        switch (g.n[0] % 9) {
            case 0:
                return void(esquema_->Seleccionar(codigo));
            case 1:
                return void(esquema_->SeleccionarCentrarElemento(codigo));
            case 2:
                return esquema_->ResizeGrafo();
            case 3:
                return void(esquema_->CambiaZoom(g.n[2] % 2 ? 0.7 : 1.6));
            case 4:
                return esquema_->Refresh();
            case 5:
                // The mark of these is the host's affair too.
                esquema_->bHabidoCambios(true);
                return void(esquema_->ModificaVarios_Nombres({codigo, codigo},
                                                             {u"Río"_s + QString::number(g.n[2]), {}}));
            case 6:
                // Takes effect with the next repaint.
                esquema_->bHabidoCambios(true);
                esquema_->bMostrarLineasOcultas(g.n[2] % 2);
                return esquema_->Refresh();
            case 7:
                return esquema_->GetElementos(elementos);
            case 8:
                return void(esquema_->Picture());
        }
    });
}

void Mesa::Borra(qint32 codigo) {
    Llama([&] { BorraConDependientes(*esquema_, codigo); });
}

}  // namespace zel::azar
