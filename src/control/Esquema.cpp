#include "control/Esquema.h"

#include <QEvent>
#include <QPointer>
#include <QResizeEvent>
#include <QShowEvent>
#include <cmath>
#include <vector>

#include "control/PartesDelEsquema.h"
#include "file/Formato.h"
#include "platform/Guardia.h"
#include "platform/qt/Rutas.h"

namespace zel {

namespace {

constexpr std::int16_t VERDADERO = -1;
constexpr std::int32_t NINGUNO = -1;
constexpr float LADO_MAXIMO = 1e6F;  // millimetres

bool EsEntrada(const QEvent& evento) {
    switch (evento.type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
        case QEvent::MouseMove:
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
        case QEvent::ShortcutOverride:
        case QEvent::Wheel:
        case QEvent::NativeGesture:
        case QEvent::ContextMenu:
        case QEvent::InputMethod:
        case QEvent::TouchBegin:
        case QEvent::TouchUpdate:
        case QEvent::TouchEnd:
            return true;
        default:
            return false;
    }
}

std::span<const std::int32_t> Lista(const QList<qint32>& valores) {
    return {valores.data(), static_cast<std::size_t>(valores.size())};
}

}  // namespace

Esquema::Esquema(QWidget* padre) : QFrame(padre) {
    try {
        partes_ = std::make_shared<Partes>(*this);
        Partes& p = *partes_;
        p.UserControl_Resize();
        p.estados.Estado(E_PREPARADO, 1);
        p.refresco.RefrescarSiPendiente();
    } catch (...) {
        LanzaErrorVisor(E_PREPARADO, ". ErrUserControl_Initialize (Esquema)");
    }
}

// The parts go first: what they tell while they go is for nobody.
Esquema::~Esquema() {
    partes_->panel->lienzo().AlRefrescar({});
    partes_->panel->lienzo().AlDibujar({});
    partes_->panel->lienzo().AlCambiarPuntero({});
    partes_->comandos.Termina();
    partes_->trabajo = {};
    partes_->trabajo.bTerminado = true;
    partes_->documento.colElementos.reset();
    partes_->menu.Suelta();
    const QWidgetList partes = findChildren<QWidget*>(Qt::FindDirectChildrenOnly);
    for (auto* parte : partes)
        parte->disconnect(this);
    partes_->imagen.SueltaFrame();
    qDeleteAll(partes);
    partes_.reset();
}

// --- Elements ---------------------------------------------------------------------------------------------

qint32 Esquema::SeleccionaElemento(qint32 codigo, bool centrar, const char* sufijo) {
    return Operacion(sufijo, [&](Partes& p) -> qint32 {
        const auto e = p.documento.colElementos->ItemCodSIG(codigo);
        if (e) {
            p.trabajo.elemSeleccionado = e;
            p.estados.RevisaPrompt();
            if (centrar) {
                p.centroAlMostrar = PuntoXY{e->XPos(), e->YPos()};
                p.vista.MueveScroll(e->XPos(), e->YPos(), 2);
            }
        }
        p.refresco.RefrescarSiPendiente();
        return e ? codigo : NINGUNO;
    });
}

qint32 Esquema::Seleccionar(qint32 agfCodSig) {
    return SeleccionaElemento(agfCodSig, false, ". Error en método público Seleccionar (Esquema)");
}

qint32 Esquema::SeleccionarCentrarElemento(qint32 agfCodSig) {
    return SeleccionaElemento(agfCodSig, true,
                              ". Error en método público SeleccionarCentrarElemento (Esquema)");
}

qint16 Esquema::BorrarElemento() {
    return Operacion(". Error en método público BorrarElemento (Esquema)", [](Partes& p) {
        std::int16_t resultado = VERDADERO;
        if (p.trabajo.elemSeleccionado) {
            p.documento.colElementos->RemoveCodSIG(p.trabajo.elemSeleccionado->gfCodSIG());
            p.trabajo.elemSeleccionado.reset();
            p.estados.Estado(E_PREPARADO, 1);
            resultado = 0;
        }
        p.refresco.PedirRefresco();
        p.refresco.RefrescarSiPendiente();
        return resultado;
    });
}

// The selected element as the collection knows it: by the key of its present code.
std::shared_ptr<Elemento> Esquema::SeleccionadoParaCambiar(const char* sinSeleccion) const {
    const Partes& p = *partes_;
    const auto& e = p.trabajo.elemSeleccionado;
    if (!e) LanzaErrorVisor(p.trabajo.iEstado, sinSeleccion);
    auto encontrado = p.documento.colElementos->Item(std::to_string(e->gfCodSIG()));
    if (!encontrado) throw Fallo(91);
    return encontrado;
}

QString Esquema::NombreElemento() const {
    return Llamada(". Error en Property Get NombreElemento (Esquema)", [&] {
        const auto& e = partes_->Seleccionado();
        return e ? QString::fromStdString(e->Nombre()) : QString();
    });
}

void Esquema::NombreElemento(const QString& valor) {
    Operacion(". Error en Property Let NombreElemento (Esquema)", [&](Partes& p) {
        SeleccionadoParaCambiar(". Esquema: NombreElemento Property Let. No hay elemento seleccionado")
            ->Nombre(valor.toStdString());
        p.estados.RevisaPrompt();
        p.refresco.RefrescarSiPendiente();
    });
}

qint32 Esquema::CodigoElemento() const {
    return Llamada(". Error en Property Get CodigoElemento (Esquema)", [&] {
        const auto& e = partes_->Seleccionado();
        return e ? e->gfCodSIG() : NINGUNO;
    });
}

void Esquema::CodigoElemento(qint32 valor) {
    Operacion(". Error en Property Let CodigoElemento (Esquema)", [&](Partes& p) {
        SeleccionadoParaCambiar(". Esquema: CodigoElemento Property Let. No hay elemento seleccionado")
            ->gfCodSIG(valor);
        p.refresco.RefrescarSiPendiente();
    });
}

qint16 Esquema::NumeroPantallaElemento() const {
    return Llamada(". Error en Property Get NumeroPantallaElemento (Esquema)", [&]() -> qint16 {
        const auto& e = partes_->Seleccionado();
        return e ? e->KeyPant() : VERDADERO;
    });
}

void Esquema::NumeroPantallaElemento(qint16 valor) {
    Operacion(". Error en Property Let NumeroPantallaElemento (Esquema)", [&](Partes& p) {
        const auto e = SeleccionadoParaCambiar(
            ". Esquema: NumeroPantallaElemento Property Let. No hay elemento seleccionado");
        e->KeyPant(valor);
        std::int16_t& ultimo = p.documento.KeyPantDe(e->Tipo());
        ultimo = std::max(ultimo, valor);
        p.refresco.RefrescarSiPendiente();
    });
}

float Esquema::TamanyoElemento() const {
    return Llamada(". Error en Property Get TamanyoElemento (Esquema)", [&] {
        const auto& e = partes_->Seleccionado();
        return e ? e->Tamanyo() : static_cast<float>(NINGUNO);
    });
}

void Esquema::TamanyoElemento(float valor) {
    Operacion(". Error en Property Let TamanyoElemento (Esquema)", [&](Partes& p) {
        p.apariencia.CambiaTamanyo(
            SeleccionadoParaCambiar(". Esquema: TamanyoElemento Property Let. No hay elemento seleccionado"),
            valor);
        p.refresco.RefrescarSiPendiente();
    });
}

qint16 Esquema::TipoElemento() const {
    return Llamada(". Error en Property Get TipoElemento (Esquema)", [&]() -> qint16 {
        const auto& e = partes_->Seleccionado();
        if (!e) return VERDADERO;
        if (!TipoConocido(e->Tipo())) throw Fallo(9);
        return CODIGOS_DE_TIPO[static_cast<std::size_t>(e->Tipo())];
    });
}

void Esquema::AnulaAgregarElementos() {
    Operacion(". Error en método AnulaAgregarElementos (Esquema)", [](Partes& p) {
        p.refresco.RefrescarSiPendiente();
        p.toolBar1->Enabled(false);
    });
}

std::shared_ptr<Elementos> Esquema::GetElementos() const {
    return partes_->documento.colElementos;
}

void Esquema::GetElementos(std::shared_ptr<Elementos> elementos) {
    Llamada(". Error en Property Set GetElementos (Esquema)", [&] {
        Partes& p = *partes_;
        p.comandos.PonColeccion(std::move(elementos));
        p.estados.Estado(E_PREPARADO, 1);
        p.refresco.PedirRefresco();
        p.refresco.RefrescarSiPendiente();
    });
}

void Esquema::SetElementos(std::shared_ptr<Elementos> elementos) {
    Llamada(". Error en Property Set SetElementos (Esquema)",
            [&] { partes_->comandos.PonColeccion(std::move(elementos)); });
}

// --- Documents --------------------------------------------------------------------------------------------

void Esquema::ArchivoAbrir(const QString& archNombre) {
    const std::shared_ptr<Partes> vivas = partes_;
    vivas->ExigeDisposicion();
    vivas->DisponeAlMostrar(Partes::AlMostrar::Ajusta);
    const struct Refresca {
        Partes& p;
        ~Refresca() { p.RefrescaCuandoHayaCalma(); }
    } refresca{*vivas};
    vivas->comandos.ArchivoAbrir(RutaDe(archNombre));
}

void Esquema::ArchivoNuevo() {
    Llamada(". ErrArchivoNuevo (Esquema)", [&] {
        Partes& p = *partes_;
        p.ExigeDisposicion();
        p.refresco.AnularRefresco();
        p.comandos.ArchivoNuevo();
        p.vista.DisponeDeNuevo(p.panel->AnchoMm(), p.panel->AltoMm());
        p.DisponeAlMostrar(Partes::AlMostrar::Dispone);
        p.refresco.PedirRefresco();
        p.refresco.RefrescarSiPendiente();
    });
}

void Esquema::ArchivoGuardar(const QString& archNombre) {
    const std::shared_ptr<Partes> vivas = partes_;
    vivas->pintado.SueltaAjenos();
    vivas->comandos.ArchivoGuardar(RutaDe(archNombre));
}

QString Esquema::MotivoSinLeer() const {
    return QString::fromStdString(partes_->comandos.MotivoSinLeer());
}

QString Esquema::AvisoDeImagen() const {
    return QString::fromStdString(partes_->comandos.AvisoDeImagen());
}

QString Esquema::ProblemasDeCarga() const {
    return QString::fromStdString(partes_->comandos.ProblemasDeCarga());
}

void Esquema::AddElemento(const std::shared_ptr<Elemento>& elem) {
    if (!elem) throw Fallo(91);
    partes_->comandos.AddElemento(*elem);
}

bool Esquema::ModificaVarios_NumUser(const QList<qint32>& aiCodSig, const QList<qint32>& aiNums) {
    return partes_->comandos.ModificaVarios_NumUser(Lista(aiCodSig), Lista(aiNums));
}

bool Esquema::ModificaVarios_Nombres(const QList<qint32>& aiCodGIS, const QStringList& asNoms) {
    std::vector<std::string> nombres;
    nombres.reserve(static_cast<std::size_t>(asNoms.size()));
    for (const QString& nombre : asNoms)
        nombres.push_back(nombre.toStdString());
    return partes_->comandos.ModificaVarios_Nombres(Lista(aiCodGIS), nombres);
}

QString Esquema::ModificaVarios_ConecSec(const QList<qint32>& aivOrigen, const QList<qint32>& aivDestino,
                                         bool aBorraAnteriores) {
    partes_->comandos.ModificaVarios_ConecSec(Lista(aivOrigen), Lista(aivDestino), aBorraAnteriores);
    return {};
}

bool Esquema::bHabidoCambios() const {
    return partes_->documento.bHabidoCambios;
}
void Esquema::bHabidoCambios(bool valor) {
    partes_->documento.bHabidoCambios = valor;
}
bool Esquema::bMostrarLineasOcultas() const {
    return partes_->documento.bMostrarLineasOcultas;
}
void Esquema::bMostrarLineasOcultas(bool valor) {
    partes_->documento.bMostrarLineasOcultas = valor;
}

// --- View -------------------------------------------------------------------------------------------------

void Esquema::ResizeGrafo() {
    const std::shared_ptr<Partes> vivas = partes_;
    Partes& p = *vivas;
    p.ExigeDisposicion();
    p.DisponeAlMostrar(Partes::AlMostrar::Ajusta);
    p.vista.AjustarImagen(p.panel->lienzo(), 1);
}

void Esquema::AjustarAVentana(const std::optional<Variante>& fLeft, const std::optional<Variante>& fTop,
                              const std::optional<Variante>& fWidth, const std::optional<Variante>& fHeight) {
    Llamada(". Error en método AjustarAVentana (Esquema)", [&] {
        Partes& p = *partes_;
        p.refresco.AnularRefresco();
        const QWidget* contenedor = parentWidget();
        if (!contenedor) throw Fallo(91);
        const Guardia ajustando(p.bAjustandoVentana, true);
        // The container's own scale begins at (0, 0).
        const auto lado = [](const std::optional<Variante>& dado, float faltando) {
            const float mm = dado ? dado->Real32() : faltando;
            if (!(std::abs(mm) <= LADO_MAXIMO)) throw Fallo(6);
            return mm;
        };
        const float izquierda = lado(fLeft, 0);
        const float arriba = lado(fTop, 0);
        const auto falta = [&](float desde, int hasta, Qt::Orientation eje) {
            return std::abs(std::abs(desde) - std::abs(p.Mm(hasta, eje)));
        };
        const float ancho = lado(fWidth, falta(izquierda, contenedor->width(), Qt::Horizontal));
        const float alto = lado(fHeight, falta(arriba, contenedor->height(), Qt::Vertical));
        setGeometry(p.PixelesDeMm(izquierda, Qt::Horizontal), p.PixelesDeMm(arriba, Qt::Vertical),
                    p.PixelesDeMm(ancho, Qt::Horizontal), p.PixelesDeMm(alto, Qt::Vertical));
        p.UserControl_Resize();
        if (const auto aviso = p.desplazamiento.ActualizaVista(2)) dialogos().MsgBox(*aviso);
        p.trabajo.ExigeVisor();
        p.bAjustandoVentana = false;
        p.refresco.PedirRefresco();
        p.refresco.RefrescarSiPendiente();
    });
}

bool Esquema::CambiaZoom(double factor) {
    const std::shared_ptr<Partes> vivas = partes_;
    Partes& p = *vivas;
    p.ExigeDisposicion();
    const bool hecho = p.vista.AjustarZoomUsuario(p.panel->lienzo(),
                                                  static_cast<float>(p.vista.Zoom() * factor), true, true, 1);
    // The zoom is of areas.
    if (hecho) p.vecesAlMostrar /= std::sqrt(factor);
    return hecho;
}

void Esquema::textoStatBar(const QString& texto) {
    partes_->TextoEstado(1, texto.toStdString());
}

void Esquema::PonAlDiaMenu() {
    partes_->pintado.SueltaAjenos();
    partes_->menu.PonAlDia();
}

// --- Events of the platform -------------------------------------------------------------------------------

bool Esquema::eventFilter(QObject* objeto, QEvent* evento) {
    if (!partes_ || partes_->trabajo.bTerminado) return false;
    if (partes_->comandos.Cargando() && EsEntrada(*evento)) return true;
    if (partes_->AtiendeTeclasDe(objeto)) {
        const QPointer<Esquema> vivo(this);
        partes_->AtiendeTeclado(*evento);
        if (!vivo || partes_->SeQuedaAqui(objeto, *evento)) return true;
    }
    return QFrame::eventFilter(objeto, evento);
}

void Esquema::resizeEvent(QResizeEvent* evento) {
    QFrame::resizeEvent(evento);
    partes_->EnEventoSinCajas([this] { partes_->UserControl_Resize(); });
}

void Esquema::showEvent(QShowEvent* evento) {
    QFrame::showEvent(evento);
    partes_->AjustaAlMostrarSiHaceFalta();
}

QSize Esquema::sizeHint() const {
    return {partes_->PixelesDeMm(200, Qt::Horizontal), partes_->PixelesDeMm(140, Qt::Vertical)};
}

QSize Esquema::minimumSizeHint() const {
    return {partes_->PixelesDeMm(ANCHO_MINIMO, Qt::Horizontal) + 2 * frameWidth() + 1,
            partes_->PixelesDeMm(ALTO_MINIMO, Qt::Vertical) + 2 * frameWidth() + 1};
}

}  // namespace zel
