#include "control/PartesDelEsquema.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <cmath>
#include <utility>

#include "control/CursoresQt.h"
#include "editing/ConduccionesMovidas.h"
#include "editing/Nombres.h"
#include "platform/Guardia.h"

namespace zel {

namespace {

constexpr double MM_POR_PULGADA = 25.4;

template <typename Widget, typename... Args>
Widget* Nueva(const char* nombre, Args... args) {
    auto* widget = new Widget(args...);
    widget->setObjectName(QString::fromLatin1(nombre));
    return widget;
}

}  // namespace

Esquema::Partes::Partes(Esquema& dueno)
    : esquema(dueno),
      panel(Nueva<PanelDibujo>("Panel", &dueno)),
      hScroll(Nueva<BarraDesplazamientoQt>("HScroll", Qt::Horizontal, &dueno)),
      vScroll(Nueva<BarraDesplazamientoQt>("VScroll", Qt::Vertical, &dueno)),
      toolBar1(Nueva<ZelToolBar>("ToolBar1", &dueno)),
      toolBar2(Nueva<ZelToolBar2>("ToolBar2", &dueno)),
      line1(Nueva<QFrame>("Line1", &dueno)),
      line2(Nueva<QFrame>("Line2", &dueno)),
      statusBar1(Nueva<StatusBar>("StatusBar1", &dueno)),
      refresco(panel->lienzo()),
      avisos(trabajo, refresco),
      vista(panel->lienzo(), documento, trabajo, refresco, avisos, *this),
      desplazamiento(panel->lienzo(), vista, trabajo, refresco, *this, *hScroll, *vScroll),
      pintado(panel->lienzo(), documento, trabajo, refresco, vista, desplazamiento,
              [this] { return imagen.FondoDelPanel(); }),
      localizador(panel->lienzo(), documento, trabajo, vista,
                  [this](std::int32_t codigo) { pintado.SubrayaElem(codigo); }),
      estados(panel->lienzo(), documento, trabajo, refresco, vista, conexiones, *this),
      gestos(panel->lienzo(), trabajo, refresco, vista, desplazamiento, avisos, estados,
             [this] { UserControl_Resize(); }),
      herramientas(panel->lienzo(), trabajo, refresco, vista, avisos, estados, gestos, *this),
      gestosDeSubsistema(panel->lienzo(), trabajo, pintado, localizador, estados),
      seleccion(panel->lienzo(), trabajo, pintado, localizador, estados, gestosDeSubsistema, *this),
      creacion(panel->lienzo(), documento, trabajo, refresco, vista, avisos, pintado, localizador, estados,
               *this),
      seleccionConTeclas(panel->lienzo(), documento, trabajo, refresco, vista, conexiones, estados, seleccion,
                         *this),
      teclado(panel->lienzo(), documento, trabajo, refresco, vista, desplazamiento, creacion,
              seleccionConTeclas, estados, *this),
      arrastreElemento(panel->lienzo(), documento, trabajo, refresco, vista, avisos, pintado, localizador,
                       conexiones, estados, *this),
      arrastreEtiqueta(panel->lienzo(), documento, trabajo, refresco, vista, avisos, pintado, localizador,
                       estados, *this),
      puntosDeConduccion(panel->lienzo(), documento, trabajo, vista, avisos, pintado, localizador, estados,
                         *this),
      entrada(panel->lienzo(), trabajo, refresco, vista, avisos, estados,
              {seleccion, gestos, creacion, arrastreElemento, arrastreEtiqueta, puntosDeConduccion,
               gestosDeSubsistema},
              *this),
      imagen(&dueno, documento, trabajo, refresco, estados, *this, commonDialog1,
             [this] {
                 refresco.PedirRefresco();
                 refresco.RefrescarSiPendiente();
             }),
      comandos(panel->lienzo(), documento, trabajo, refresco, vista, desplazamiento, estados, *this, imagen,
               [] { QCoreApplication::processEvents(); }),
      apariencia(panel->lienzo(), documento, trabajo, refresco, vista, avisos, estados, *this,
                 [this](const std::shared_ptr<Elemento>& elem) {
                     RecortaConducciones(panel->lienzo(), conexiones, documento, trabajo, vista, elem);
                 }),
      comandosDeMenu(panel->lienzo(), documento, trabajo, refresco, vista, estados, *this, commonDialog1,
                     [this](const std::string& ruta, const std::shared_ptr<Elementos>& elementos) {
                         comandos.Exporta(ruta, elementos);
                     }),
      menu(
          &dueno, [this] { return AspectoDelMenuAhora(); },
          [this](ItemDeMenu item) { AlElegirEnElMenu(item); }) {
    line1->setFrameStyle(QFrame::HLine | QFrame::Plain);
    line2->setFrameStyle(QFrame::HLine | QFrame::Plain);
    line1->setForegroundRole(QPalette::Mid);
    line2->setForegroundRole(QPalette::Light);
    panel->setFocusPolicy(Qt::StrongFocus);
    panel->setMouseTracking(true);
    panel->setAccessibleName(QStringLiteral("Esquema"));
    // Their own menu would speak the language of the host's toolkit.
    hScroll->setContextMenuPolicy(Qt::NoContextMenu);
    vScroll->setContextMenuPolicy(Qt::NoContextMenu);
    hScroll->setAccessibleName(QStringLiteral("Desplazamiento horizontal"));
    vScroll->setAccessibleName(QStringLiteral("Desplazamiento vertical"));
    esquema.setFocusProxy(panel);
    Conecta();
}

void Esquema::Partes::Conecta() {
    const auto boton = [&](const char* nombre, auto accion) {
        QObject::connect(imagen.Frame()->findChild<QAbstractButton*>(QString::fromLatin1(nombre)),
                         &QAbstractButton::clicked, &esquema, [this, accion] { EnEntrada(accion); });
    };
    boton("cmdImagenFondoVer", [this] { imagen.cmdImagenFondoVer_Click(); });
    boton("cmdImagenFondoAceptar", [this] { imagen.cmdImagenFondoAceptar_Click(); });

    // Whatever selects ends in an event or in a repaint.
    panel->lienzo().AlRefrescar([this] {
        DiSeleccion();
        pintado.Panel_Paint();
    });
    panel->lienzo().AlCambiarPuntero([this](std::int16_t puntero, std::int32_t numero) {
        panel->setCursor(CursorDe(puntero, numero, panel->devicePixelRatioF()));
    });
    QObject::connect(panel, &PanelDibujo::Redimensionado, &esquema,
                     [this] { EnEventoSinCajas([this] { UserControl_Resize(); }); });
    refresco.AlAtrasarse([this] { RefrescaCuandoHayaCalma(); });
    documento.bHabidoCambios.AlCambiar([this] { DiCambiosCuandoHayaCalma(); });
    QObject::connect(panel, &PanelDibujo::GanaFoco, &esquema,
                     [this] { EnEntradaSinCajas([this] { herramientas.Panel_GotFocus(); }); });
    QObject::connect(panel, &PanelDibujo::PierdeFoco, &esquema,
                     [this] { EnEntradaSinCajas([this] { herramientas.Panel_LostFocus(); }); });
    QObject::connect(panel, &PanelDibujo::PierdeTeclado, &esquema,
                     [this] { EnEntradaSinCajas([this] { teclado.SinTeclado(); }); });
    ConectaRaton();
    ConectaBarras();
    for (auto* parte : esquema.findChildren<QWidget*>())
        if (!parte->isWindow()) parte->installEventFilter(&esquema);  // not the menu, which has to close
}

void Esquema::Partes::ConectaRaton() {
    using Atiende = void (EntradaPanel::*)(std::int16_t&, std::int16_t&, float&, float&);
    // What is pressed is what is seen.
    QObject::connect(panel, &PanelDibujo::Pulsado, &esquema, [this] {
        teclado.PanelPulsado();
        EnEntrada([this] { refresco.RefrescarSiSeDebe(); });
    });
    const auto raton = [&](auto senal, Atiende atiende) {
        QObject::connect(panel, senal, &esquema,
                         [this, atiende](qint16 boton, qint16 mayus, float x, float y) {
                             EnEntrada([&] { (entrada.*atiende)(boton, mayus, x, y); });
                         });
    };
    raton(&PanelDibujo::Pulsado, &EntradaPanel::Panel_MouseDown);
    raton(&PanelDibujo::Movido, &EntradaPanel::Panel_MouseMove);
    raton(&PanelDibujo::Soltado, &EntradaPanel::Panel_MouseUp);
    QObject::connect(
        panel, &PanelDibujo::Empujado, &esquema, [this](double anchos, double altos, QPointF en) {
            EnEntrada([&] { gestos.Empuja(anchos, altos, PuntoXY{float(en.x()), float(en.y())}); });
        });
    QObject::connect(panel, &PanelDibujo::Ampliado, &esquema, [this](double veces, QPointF en) {
        EnEntrada([&] { gestos.Amplia(veces, PuntoXY{float(en.x()), float(en.y())}); });
    });
    QObject::connect(panel, &PanelDibujo::Clic, &esquema,
                     [this] { EnEntrada([this] { entrada.Panel_Click(); }); });
    QObject::connect(panel, &PanelDibujo::DobleClic, &esquema,
                     [this] { EnEntrada([this] { entrada.Panel_DblClick(); }); });
}

void Esquema::Partes::ConectaBarras() {
    const auto barra = [&](BarraDesplazamientoQt* cual, void (Desplazamiento::*cambia)(),
                           void (Desplazamiento::*arrastra)()) {
        QObject::connect(cual, &BarraDesplazamientoQt::Change, &esquema,
                         [this, cambia] { EnEntradaSinCajas([&] { (desplazamiento.*cambia)(); }); });
        QObject::connect(cual, &BarraDesplazamientoQt::Scroll, &esquema,
                         [this, arrastra] { EnEntradaSinCajas([&] { (desplazamiento.*arrastra)(); }); });
    };
    barra(hScroll, &Desplazamiento::HScroll_Change, &Desplazamiento::HScroll_Scroll);
    barra(vScroll, &Desplazamiento::VScroll_Change, &Desplazamiento::VScroll_Scroll);
    QObject::connect(toolBar1, &BarraDeBotones::ButtonClick, &esquema,
                     [this](const std::shared_ptr<Boton>& boton) {
                         EnEntrada([&] { herramientas.Toolbar1_ButtonClick(boton->Key()); });
                     });
    QObject::connect(toolBar2, &BarraDeBotones::ButtonClick, &esquema,
                     [this](const std::shared_ptr<Boton>& boton) {
                         EnEntrada([&] { herramientas.Toolbar2_ButtonClick(boton->Key()); });
                     });
}

// --- What the editor asks ---------------------------------------------------------------------------------

std::shared_ptr<Buttons> Esquema::Partes::BotonesDe(Barra barra) const {
    return barra == Barra::Elementos ? toolBar1->Buttons() : toolBar2->Buttons();
}

void Esquema::Partes::TextoEstado(int panelDeEstado, const std::string& texto) {
    statusBar1->Panels()->Item(panelDeEstado)->Texto(Variante(texto));
}

void Esquema::Partes::SueltaBotones(Barra barra) {
    for (const auto& boton : *BotonesDe(barra))
        boton->Value(0);
}

void Esquema::Partes::PulsaBoton(Barra barra, std::string_view clave) {
    if (const auto boton = BotonesDe(barra)->Busca(clave)) boton->Value(1);
}

bool Esquema::Partes::BotonPulsado(Barra barra, std::string_view clave) const {
    const auto boton = BotonesDe(barra)->Busca(clave);
    return boton && boton->Value() == 1;
}

void Esquema::Partes::BarraElementosActiva(bool activa) {
    toolBar1->Enabled(activa);
}

void Esquema::Partes::DiSeleccion() noexcept try {
    if (trabajo.bTerminado) return;
    const auto& e = trabajo.elemSeleccionado;
    const bool hay = e && documento.colElementos->Contiene(e.get());
    std::string ahora = hay ? EnPalabras(*documento.colElementos, *e) : "Ningún elemento seleccionado";
    if (ahora == dicho) return;
    dicho = std::move(ahora);
    panel->setAccessibleDescription(QString::fromStdString(dicho));
} catch (...) {
    dicho.clear();
}

void Esquema::Partes::DiFallo(const Fallo& fallo) {
    emit esquema.ErrorEnEvento(fallo.Number(), QString::fromStdString(fallo.Source()),
                               QString::fromStdString(fallo.Description()));
}

void Esquema::Partes::DiPendientesCuandoHayaCalma() {
    if (trabajo.bTerminado || (!pintado.HayPendientes() && fallosPendientes.empty())) return;
    QTimer::singleShot(0, &esquema, [this] {
        const std::shared_ptr<Partes> vivas = esquema.partes_;
        for (const Fallo& fallo : std::exchange(fallosPendientes, {})) {
            DiFallo(fallo);
            if (trabajo.bTerminado) return;
        }
        EnEvento([this] { pintado.DiPendientes(); });
    });
}

bool Esquema::Partes::PuedeRefrescarse() const noexcept {
    return !trabajo.bTerminado && !comandos.Cargando() && !Pintado::HayArrastre(trabajo);
}

void Esquema::Partes::RefrescaCuandoHayaCalma() {
    if (refrescoPrevisto || !PuedeRefrescarse() || !refresco.Atrasado()) return;
    refrescoPrevisto = true;
    QTimer::singleShot(0, &esquema, [this] {
        refrescoPrevisto = false;
        if (PuedeRefrescarse() && refresco.Atrasado()) EnEvento([this] { RefrescaEnCalma(); });
    });
}

void Esquema::Partes::DiCambiosCuandoHayaCalma() {
    if (cambiosPrevistos || trabajo.bTerminado) return;
    cambiosPrevistos = true;
    QTimer::singleShot(0, &esquema, [this] {
        cambiosPrevistos = false;
        const bool hay = documento.bHabidoCambios;
        if (std::exchange(cambiosDichos, hay) != hay) emit esquema.HabidoCambios(hay);
    });
}

// The segment that a click would add is not painted: it begins anew from where the mouse is.
void Esquema::Partes::RefrescaEnCalma() {
    const bool sigueAlRaton = refresco.bRefrescoDebido() || trabajo.trazadoTemporal;
    refresco.PedirRefresco();
    refresco.RefrescarSiPendiente();
    if (sigueAlRaton && trabajo.iEstado == E_DIBUJANDO_CONDUCCION) {
        creacion.Mueve(trabajo.ultimoRaton.X, trabajo.ultimoRaton.Y);
    }
}

// --- Layout -----------------------------------------------------------------------------------------------

double Esquema::Partes::PorMm(Qt::Orientation eje) const {
    return (eje == Qt::Horizontal ? esquema.logicalDpiX() : esquema.logicalDpiY()) / MM_POR_PULGADA;
}

float Esquema::Partes::Mm(int pixeles, Qt::Orientation eje) const {
    return static_cast<float>(pixeles / PorMm(eje));
}

int Esquema::Partes::PixelesDeMm(float mm, Qt::Orientation eje) const {
    return qRound(mm * PorMm(eje));
}

// By its edges, so that neighbours touch.
QRect Esquema::Partes::Pixeles(const CajaMm& caja) const {
    const QPoint origen = esquema.contentsRect().topLeft();
    const auto punto = [this](float x, float y) {
        return QPoint(PixelesDeMm(x, Qt::Horizontal), PixelesDeMm(y, Qt::Vertical));
    };
    const QPoint desde = punto(caja.Left, caja.Top);
    const QPoint hasta = punto(caja.Left + caja.Width, caja.Top + caja.Height);
    return {origen + desde, QSize(hasta.x() - desde.x(), hasta.y() - desde.y())};
}

void Esquema::Partes::CreceAlMinimoSiHaceFalta() {
    const QSize interior = esquema.contentsRect().size();
    const auto crecido = [&](int lado, int dentro, float minimo, Qt::Orientation eje) {
        const float mm = Mm(dentro, eje);
        if (!(mm > 0) || lado <= 0) return lado;
        return static_cast<int>(std::ceil(lado * CreceAlMinimo(mm, minimo) / mm));
    };
    const QSize tamanyo(crecido(esquema.width(), interior.width(), ANCHO_MINIMO, Qt::Horizontal),
                        crecido(esquema.height(), interior.height(), ALTO_MINIMO, Qt::Vertical));
    if (tamanyo != esquema.size()) esquema.resize(tamanyo);
}

void Esquema::Partes::ColocaPartes(const Disposicion& d) {
    toolBar1->setGeometry(Pixeles(d.ToolBar1));
    toolBar2->setGeometry(Pixeles(d.ToolBar2));
    const QRect lineas = Pixeles(d.Lineas);
    line1->setGeometry(lineas.left(), lineas.top(), lineas.width(), 1);
    line2->setGeometry(lineas.left(), lineas.top() + 1, lineas.width(), 1);
    panel->setGeometry(Pixeles(d.Panel));
    hScroll->setGeometry(Pixeles(d.HScroll));
    vScroll->setGeometry(Pixeles(d.VScroll));
    statusBar1->setGeometry(Pixeles(d.StatusBar1));
    const QWidget* frame = imagen.Frame();
    imagen.Frame()->move(panel->geometry().right() - frame->width() - 8, panel->geometry().top() + 8);
}

void Esquema::Partes::UserControl_Resize() {
    if (disponiendo) return;
    const Guardia enCurso(disponiendo, true);
    CreceAlMinimoSiHaceFalta();
    const QSize interior = esquema.contentsRect().size();
    const auto d = DisposicionDe(
        Mm(interior.width(), Qt::Horizontal), Mm(interior.height(), Qt::Vertical),
        {static_cast<float>(toolBar1->ButtonWidth()), static_cast<float>(toolBar1->ButtonHeight()),
         toolBar1->ButtonCount(), toolBar2->ButtonCount()});
    if (!d) return;
    ColocaPartes(*d);
    panel->PreparaLienzo();
    vista.Dispone(panel->AnchoMm(), panel->AltoMm());
    if (!bAjustandoVentana) refresco.RefrescarSiPendiente();
}

void Esquema::Partes::ExigeDisposicion() {
    if (vista.RelacionAspecto() == 0) UserControl_Resize();
}

void Esquema::Partes::DisponeAlMostrar(AlMostrar que) {
    if (seHaMostrado) return;
    alMostrar = que;
    vecesAlMostrar = 1;
    centroAlMostrar.reset();
}

void Esquema::Partes::AjustaAlMostrarSiHaceFalta() {
    seHaMostrado = true;
    // Keys are for the panel unless the user, or the host, has chosen another place for them.
    if (!esquema.window()->focusWidget()) panel->setFocus();
    const AlMostrar que = std::exchange(alMostrar, AlMostrar::Nada);
    if (que == AlMostrar::Nada) return;
    EnEventoSinCajas([this, que] {
        UserControl_Resize();
        vista.DisponeDeNuevo(panel->AnchoMm(), panel->AltoMm());
        if (que == AlMostrar::Ajusta) vista.AjustarImagen(panel->lienzo(), 2);
        vista.AmpliaEn(vecesAlMostrar, {0.5F, 0.5F});
        if (centroAlMostrar) vista.MueveScroll(centroAlMostrar->X, centroAlMostrar->Y, 2);
        refresco.RefrescarSiPendiente();
    });
}

}  // namespace zel
