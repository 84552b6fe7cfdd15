#pragma once

#include <QHash>
#include <QKeyEvent>
#include <QSet>
#include <QTimer>
#include <vector>

#include "bars/qt/StatusBar.h"
#include "bars/qt/ZelToolBar.h"
#include "bars/qt/ZelToolBar2.h"
#include "control/Comandos.h"
#include "control/Disposicion.h"
#include "control/Esquema.h"
#include "control/ImagenFondo.h"
#include "control/MenuDelEsquema.h"
#include "control/PanelDibujo.h"
#include "control/UnidadesDeEscala.h"
#include "editing/Apariencia.h"
#include "editing/ComandosDeMenu.h"
#include "editing/EntradaPanel.h"
#include "editing/Herramientas.h"
#include "editing/Teclado.h"
#include "model/Conexiones.h"
#include "model/modErrorHandling.h"
#include "platform/DialogoComun.h"
#include "platform/Dialogos.h"
#include "platform/qt/BarraDesplazamientoQt.h"
#include "session/Localizador.h"
#include "session/Pintado.h"

namespace zel {

// What the control is made of, and how it is wired.
struct Esquema::Partes : public Anfitrion {
    explicit Partes(Esquema& dueno);

    // Anfitrion
    void TextoEstado(int panelDeEstado, const std::string& texto) override;
    void SueltaBotones(Barra barra) override;
    void PulsaBoton(Barra barra, std::string_view clave) override;
    bool BotonPulsado(Barra barra, std::string_view clave) const override;
    void HazClic(Barra barra, std::string_view clave) override;
    void BarraElementosActiva(bool activa) override;
    void MouseDown(std::int16_t& Button, std::int16_t& Shift, float& X, float& Y) override;
    void Click() override;
    void DblClick() override;
    void ElementoSeleccionado(std::int32_t gfCodSIG) override;
    void CreacionNuevoElemento(const std::string& Tipo, std::int32_t ElemIni, std::int32_t ElemFin) override;
    void ElementoMovido(const std::shared_ptr<Elemento>& elem) override;
    void ElementoModificado(const std::shared_ptr<Elemento>& elem) override;
    void EditarElemento(std::int32_t gfCodSIG) override;
    void AdjuntarArchivo(std::int32_t gfCodSIG) override;
    void AdjuntarVer(std::int32_t gfCodSIG) override;
    void PeticionBorrado(std::int32_t gfCodSIG) override;
    void LanzaMenu() override;

    // The one boundary between the control's failures and the platform's events.
    template <typename Accion>
    void EnEvento(Accion accion) {
        if (trabajo.bTerminado) return;
        // The parts stay for as long as what has begun here goes on.
        const std::shared_ptr<Partes> vivas = esquema.partes_;
        try {
            pintado.SueltaAjenos();
            accion();
            RefrescaCuandoHayaCalma();
        } catch (...) {
            if (trabajo.bTerminado) return;
            if (pintado.AvisosAplazados())
                fallosPendientes.push_back(FalloEnCurso());
            else
                DiFallo(FalloEnCurso());
        }
        DiSeleccion();
    }
    // The same for what the platform is in the middle of, a change of its own: what the host can answer to,
    // boxes and failures, comes when it is through.
    template <typename Accion>
    void EnEventoSinCajas(Accion accion) {
        if (trabajo.bTerminado) return;
        const std::shared_ptr<Partes> vivas = esquema.partes_;
        const bool yaAplazados = pintado.AplazaAvisos(true);
        EnEvento(accion);
        pintado.AplazaAvisos(yaAplazados);
        if (!yaAplazados) DiPendientesCuandoHayaCalma();
    }
    // The same for what the user does: dropped while a schematic is being loaded.
    template <typename Accion>
    void EnEntrada(Accion accion) {
        if (!trabajo.bTerminado && !comandos.Cargando()) EnEvento(accion);
    }

    // The selected element, if the host has left it in the schematic.
    const std::shared_ptr<Elemento>& Seleccionado() noexcept {
        pintado.SueltaAjenos();
        return trabajo.elemSeleccionado;
    }

    template <typename Accion>
    void EnEntradaSinCajas(Accion accion) {
        if (!trabajo.bTerminado && !comandos.Cargando()) EnEventoSinCajas(accion);
    }
    void DiFallo(const Fallo& fallo);
    void DiPendientesCuandoHayaCalma();

    // A repaint that was asked for, by an event or a call, and that nobody performs, is performed once the
    // events in waiting are through, unless a drag or a load is under way then.
    void RefrescaCuandoHayaCalma();
    // Likewise the changed mark, if it has turned since it was last told.
    void DiCambiosCuandoHayaCalma();
    bool PuedeRefrescarse() const noexcept;
    void RefrescaEnCalma();
    // Raises when the host has destroyed the control meanwhile.
    template <typename Emite>
    void Emitido(Emite emite) {
        emite();
        trabajo.ExigeVisor();
        pintado.SueltaAjenos();
    }

    void Conecta();
    void ConectaBarras();
    void ConectaRaton();
    // Tells screen readers which element is selected, if that is not what they know already.
    void DiSeleccion() noexcept;
    AspectoDelMenu AspectoDelMenuAhora() const;
    void AbreMenu(QPoint enLaPantalla);
    // For the selected element, beside it if it is in sight.
    void LanzaMenuConTeclado();
    void AlElegirEnElMenu(ItemDeMenu item);
    void TerminaGesto();
    void EjecutaDelMenu(ItemDeMenu item);

    // The layout: the parts where they belong, the view to the panel's new size.
    void UserControl_Resize();
    void CreceAlMinimoSiHaceFalta();
    void ColocaPartes(const Disposicion& d);
    // A view call before any layout: it runs now.
    void ExigeDisposicion();
    void AjustaAlMostrarSiHaceFalta();
    // What the first show does to the view, whose size is final then: lays it out as the first time, fits the
    // schematic into it, or leaves it as it has been chosen.
    enum class AlMostrar { Dispone, Ajusta, Nada };
    // Before the first show: what it does to the view. What is chosen after that is done again then.
    void DisponeAlMostrar(AlMostrar que);
    // What is typed at the panel or a button, and what tells that typing is over; see TeclasDelEsquema.cpp.
    bool AtiendeTeclasDe(const QObject* objeto) const;
    void AtiendeTeclado(const QEvent& evento);
    bool SeQuedaAqui(const QObject* objeto, const QEvent& evento) const;
    void TeclaPulsada(const QKeyEvent& tecla);
    void TeclaSoltada(const QKeyEvent& tecla);

    double PorMm(Qt::Orientation eje) const;  // pixels
    float Mm(int pixeles, Qt::Orientation eje) const;
    int PixelesDeMm(float mm, Qt::Orientation eje) const;
    QRect Pixeles(const CajaMm& caja) const;
    std::shared_ptr<Buttons> BotonesDe(Barra barra) const;

    Esquema& esquema;
    PanelDibujo* panel;
    BarraDesplazamientoQt* hScroll;
    BarraDesplazamientoQt* vScroll;
    ZelToolBar* toolBar1;
    ZelToolBar2* toolBar2;
    QFrame* line1;
    QFrame* line2;
    StatusBar* statusBar1;

    Documento documento;
    Trabajo trabajo;
    Conexiones conexiones;
    DialogoComun commonDialog1;
    Refresco refresco;
    Avisos avisos;
    Vista vista;
    Desplazamiento desplazamiento;
    Pintado pintado;
    Localizador localizador;
    MaquinaEstados estados;
    GestosDeVista gestos;
    Herramientas herramientas;
    GestosDeSubsistema gestosDeSubsistema;
    Seleccion seleccion;
    Creacion creacion;
    SeleccionConTeclas seleccionConTeclas;
    Teclado teclado;
    ArrastreElemento arrastreElemento;
    ArrastreEtiqueta arrastreEtiqueta;
    PuntosDeConduccion puntosDeConduccion;
    EntradaPanel entrada;
    ImagenFondo imagen;
    Comandos comandos;
    Apariencia apariencia;
    ComandosDeMenu comandosDeMenu;
    MenuDelEsquema menu;

    std::int16_t modoDeEscala = MODO_MILIMETROS;
    bool bAjustandoVentana = false;
    bool disponiendo = false;
    bool refrescoPrevisto = false;
    bool cambiosPrevistos = false;
    bool cambiosDichos = false;  // the mark, as the host knows it
    AlMostrar alMostrar = AlMostrar::Dispone;
    // What the host has done to the view since then: the zoom, in lengths, and what was centred last.
    double vecesAlMostrar = 1;
    std::optional<PuntoXY> centroAlMostrar;
    bool seHaMostrado = false;
    // A key that is held, and was pressed here: its code and mask then.
    struct TeclaVista {
        qint16 codigo;
        qint16 mayus;
    };
    QHash<quint64, TeclaVista> teclasVistas;
    QSet<quint64> teclasDeAtajos;  // announced here, and not pressed here as far as is known
    bool teclasDeFuera = true;     // none has been pressed since the focus came
    std::vector<Fallo> fallosPendientes;
    std::string dicho;  // to screen readers
};

template <typename Accion>
auto Esquema::Llamada(const char* sufijo, Accion accion) const {
    const std::shared_ptr<Partes> vivas = partes_;
    try {
        return accion();
    } catch (...) {
        LanzaErrorVisor(vivas->trabajo.iEstado, sufijo);
    }
}

template <typename Accion>
auto Esquema::Operacion(const char* sufijo, Accion accion) {
    return Llamada(sufijo, [&] {
        Partes& p = *partes_;
        p.pintado.SueltaAjenos();
        p.refresco.AnularRefresco();
        p.estados.Estado(E_PREPARADO, 1);
        return accion(p);
    });
}

template <typename Accion>
void Esquema::PonPropiedad(const char* sufijo, Accion accion) {
    Llamada(sufijo, [&] {
        Partes& p = *partes_;
        accion(p.panel->lienzo());
        p.refresco.PedirRefresco();
        p.refresco.RefrescarSiPendiente();
    });
}

}  // namespace zel
