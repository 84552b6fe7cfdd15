#include "editing/GestosDeVista.h"

#include <cmath>

#include "drawing/Cursores.h"
#include "drawing/Marcas.h"
#include "drawing/NumeroDeEstado.h"
#include "model/Mensajes.h"
#include "model/modErrorHandling.h"
#include "platform/Dialogos.h"
#include "platform/Numeros.h"
#include "session/Extension.h"
#include "session/Pintado.h"

namespace zel {

namespace {

constexpr std::int32_t PREGUNTA_ZOOM = 5127;
constexpr double PASO_DE_FLOAT = 1;  // no two neighbours in the world are that far apart

std::shared_ptr<Puntos> Cadena(std::initializer_list<PuntoXY> puntos) {
    auto cadena = std::make_shared<Puntos>();
    for (const PuntoXY p : puntos)
        cadena->Add(p.X, p.Y);
    return cadena;
}

}  // namespace

GestosDeVista::GestosDeVista(Superficie& panel, Trabajo& trabajo, Refresco& refresco, Vista& vista,
                             Desplazamiento& desplazamiento, Avisos& avisos, MaquinaEstados& estados,
                             std::function<void()> dispone)
    : panel_(panel),
      trabajo_(trabajo),
      refresco_(refresco),
      vista_(vista),
      desplazamiento_(desplazamiento),
      avisos_(avisos),
      estados_(estados),
      dispone_(std::move(dispone)) {}

void GestosDeVista::EmpiezaBanda(float x, float y) {
    if (trabajo_.trazadoTemporal) DibujaBanda();  // another button is down: its band goes
    if (trabajo_.iEstado == E_MANO)
        trabajo_.trazadoTemporal = Cadena({{x, y}, {panel_.ScaleLeft() - x, panel_.ScaleTop() - y}, {x, y}});
    else
        trabajo_.trazadoTemporal = Cadena({{x, y}, {x, y}});
    DibujaBanda();
}

void GestosDeVista::DibujaBanda() const {
    AjustesDibujo ajustes;
    ajustes.iEstado = trabajo_.iEstado;
    Marcas marcas;
    marcas.trazadoTemporal = trabajo_.trazadoTemporal.get();
    AlternaContorno(panel_, ajustes, marcas);
}

void GestosDeVista::MueveBanda(float x, float y) {
    const std::int32_t ultimo = trabajo_.iEstado == E_MANO ? 3 : 2;
    if (!trabajo_.trazadoTemporal || trabajo_.trazadoTemporal->Count() != ultimo) {
        if (trabajo_.iEstado != E_MANO) estados_.Estado(E_PREPARADO, 1);
        return;
    }
    DibujaBanda();
    const auto punto = trabajo_.trazadoTemporal->Item(ultimo);
    punto->XPos(x);
    punto->YPos(y);
    DibujaBanda();
}

void GestosDeVista::E_18_AplicaZoom() try {
    const std::shared_ptr<Puntos> recuadro = trabajo_.trazadoTemporal;
    if (!recuadro || recuadro->Count() != 2) {
        estados_.Vuelve();
        return;
    }
    if (vista_.RelacionAspecto() == 0) dispone_();
    const double aspecto = vista_.RelacionAspecto();
    const auto a = recuadro->Item(1);
    const auto b = recuadro->Item(2);
    double w = std::abs(double{b->XPos()} - a->XPos());
    double h = std::abs(double{b->YPos()} - a->YPos());
    if (w == 0 && h == 0) {
        estados_.Vuelve();
        return;
    }
    if (w == 0) w = h * aspecto;
    if (h == 0) h = w / aspecto;
    if (w / h > aspecto)
        h = w / aspecto;
    else
        w = h * aspecto;
    const auto cx = static_cast<float>((double{a->XPos()} + b->XPos()) / 2);
    const auto cy = static_cast<float>((double{a->YPos()} + b->YPos()) / 2);
    refresco_.AnularRefresco();
    const auto zoom = static_cast<float>(w * h / vista_.AreaActiva());
    if (vista_.AjustarZoomUsuario(panel_, zoom, false, true, 2)) estados_.Vuelve();
    vista_.MueveScroll(cx, cy, 1);
} catch (...) {
    LanzaErrorVisor(trabajo_.iEstado, ". E_18_AplicaZoom (Esquema)");
}

void GestosDeVista::E_19_Aplica() try {
    const std::shared_ptr<Puntos> arrastre = trabajo_.trazadoTemporal;
    if (!arrastre || arrastre->Count() != 3) return;
    trabajo_.trazadoTemporal.reset();
    const float dx = arrastre->Item(3)->XPos() - arrastre->Item(1)->XPos();
    const float dy = arrastre->Item(3)->YPos() - arrastre->Item(1)->YPos();
    vista_.MueveScroll(panel_.ScaleLeft() - dx + panel_.ScaleWidth() / 2,
                       panel_.ScaleTop() - dy - std::abs(panel_.ScaleHeight()) / 2, 1);
} catch (...) {
    LanzaErrorVisor(trabajo_.iEstado, ". ErrE_19_Aplica (Esquema)");
}

void GestosDeVista::ZoomDelUsuario() {
    std::int32_t iRefrescar = 1;
    const auto respuesta = dialogos().InputBox(std::string(TextoMensajeODesconocido(PREGUNTA_ZOOM)), {},
                                               TextoDeNumero(RedondeaPar(double{vista_.Zoom()} * 100)));
    trabajo_.ExigeVisor();
    if (!respuesta || respuesta->empty()) return;
    const auto porcentaje = NumeroDeUsuario(*respuesta);
    if (!porcentaje) {
        avisos_.LanzaMensaje(AVISO_NO_ES_NUMERO, 0, iRefrescar);
        return;
    }
    const double z = *porcentaje / 100;
    if (z < 0.01) {
        avisos_.LanzaMensaje(AVISO_VALOR_INCORRECTO, 0, iRefrescar);
        return;
    }
    vista_.AjustarZoomUsuario(panel_, static_cast<float>(z), false, true, 2);
}

bool GestosDeVista::PuedeMoverse() const noexcept {
    return !VistaAsida() && !Pintado::HayArrastre(trabajo_);
}

// At the world's edge nothing is left over.
void GestosDeVista::MueveVista(double dx, double dy) {
    const Superficie::Escala e = panel_.escala();
    vista_.MueveScroll(static_cast<float>(double{e.Left} + e.Width / 2 + dx),
                       static_cast<float>(double{e.Top} + e.Height / 2 + dy), 2);
    const auto resto = [](double pedido, double hecho) {
        return std::abs(pedido - hecho) < PASO_DE_FLOAT ? pedido - hecho : 0;
    };
    restoX_ = resto(dx, double{panel_.ScaleLeft()} - e.Left);
    restoY_ = resto(dy, double{panel_.ScaleTop()} - e.Top);
}

// The mouse, where it was on the panel, is elsewhere in the world.
void GestosDeVista::VistaMovida(PuntoXY en) {
    desplazamiento_.SigueALaVista();
    refresco_.DebeRefresco();
    const Superficie::Escala e = panel_.escala();
    PuntoXY raton{e.Left + en.X * e.Width, e.Top + en.Y * e.Height};
    LimitaAlMundo(raton.X, raton.Y);
    trabajo_.ultimoRaton = raton;
    estados_.MuestraPosicion(raton.X, raton.Y);
}

void GestosDeVista::Empuja(double anchos, double altos, PuntoXY en) {
    if (!PuedeMoverse()) return;
    MueveVista(restoX_ - anchos * panel_.ScaleWidth(), restoY_ - altos * panel_.ScaleHeight());
    VistaMovida(en);
}

void GestosDeVista::Amplia(double veces, PuntoXY en) {
    if (PuedeMoverse() && vista_.AmpliaEn(veces, en)) VistaMovida(en);
}

void GestosDeVista::Ase(PuntoXY raton) noexcept {
    asidero_ = raton;
    llevada_ = false;
}

void GestosDeVista::Lleva(PuntoXY raton) {
    const double dx = double{asidero_->X} - raton.X;
    const double dy = double{asidero_->Y} - raton.Y;
    if (dx == 0 && dy == 0) return;
    if (!std::exchange(llevada_, true)) {
        Cursor_Raton(panel_, CURSOR_ARRASTRE, trabajo_.iTipoHerramienta, trabajo_.iEstado);
    }
    const Superficie::Escala e = panel_.escala();
    MueveVista(dx, dy);
    VistaMovida({(raton.X - e.Left) / e.Width, (raton.Y - e.Top) / e.Height});
}

bool GestosDeVista::SueltaVista() {
    const bool asida = std::exchange(asidero_, std::nullopt).has_value();
    const bool llevada = std::exchange(llevada_, false);
    if (llevada && trabajo_.iEstado == E_PREPARADO) {
        Cursor_Raton(panel_, CURSOR_NORMAL, trabajo_.iTipoHerramienta, trabajo_.iEstado);
    }
    return asida && !llevada;
}

}  // namespace zel
