#include "session/Vista.h"

#include <algorithm>
#include <cmath>

#include "model/TamanyoUnidad.h"
#include "model/modErrorHandling.h"
#include "platform/Numeros.h"
#include "session/Extension.h"

namespace zel {

namespace {

constexpr float AREA_MUNDO = 5004000.0F * 2505000.0F;

constexpr std::int16_t MAXIMO_ZOOM = 111;
constexpr std::int16_t MINIMO_ZOOM = 112;
constexpr double AREA_MAS_LEJANA = 1.45 * AREA_MUNDO;
constexpr double VISTA_MAS_CERCANA = 10;  // units of TamanyoUnidad across the view
constexpr double TOLERANCIA = 1e-5;

float AnchoMasCercano() noexcept {
    return static_cast<float>((VISTA_MAS_CERCANA + 0.01) * TamanyoUnidad());
}

float Area(const Marco& marco) noexcept {
    return (marco.Xmax - marco.Xmin) * (marco.Ymax - marco.Ymin);
}

// Widened around its middle to that width over height.
Marco ConAspecto(const Marco& marco, double aspecto) noexcept {
    const double ancho = double{marco.Xmax} - marco.Xmin;
    const double alto = double{marco.Ymax} - marco.Ymin;
    Marco ancheado = marco;
    if (ancho / alto >= aspecto) {
        const double medio = (double{marco.Ymin} + marco.Ymax) / 2;
        ancheado.Ymin = static_cast<float>(medio - ancho / aspecto / 2);
        ancheado.Ymax = static_cast<float>(medio + ancho / aspecto / 2);
    } else {
        const double medio = (double{marco.Xmin} + marco.Xmax) / 2;
        ancheado.Xmin = static_cast<float>(medio - alto * aspecto / 2);
        ancheado.Xmax = static_cast<float>(medio + alto * aspecto / 2);
    }
    return ancheado;
}

}  // namespace

void Vista::PrimeraDisposicion() {
    escalaDibujo_ = 8 * panel_.ScaleWidth();
    regionElementos_ = {0, 0, 2 * panel_.ScaleWidth(), 2 * std::abs(panel_.ScaleHeight())};
    panel_.ScaleLeft(0);
    panel_.ScaleTop(regionElementos_.Ymax / 2);
    TamanyoUnidad(escalaDibujo_ / panel_.ScaleWidth() / 2);
    regionActiva_ = Marco::Visible(panel_);
    areaActiva_ = Area(regionActiva_);
    zoom_ = 1;
}

void Vista::Dispone(float ancho, float alto) try {
    refresco_.AnularRefresco();
    bVistaActualizada_ = false;
    refresco_.PedirRefresco();
    trabajo_.trazadoTemporal.reset();
    if (!(ancho > 0) || !(alto > 0)) return;
    if (anchoPanel_ == 0) {
        panel_.ScaleWidth(ancho);
        panel_.ScaleHeight(-alto);
        PrimeraDisposicion();
    } else {
        const float anterior = panel_.ScaleWidth();
        panel_.ScaleWidth(panel_.ScaleWidth() / anchoPanel_ * ancho);
        panel_.ScaleHeight(-std::abs(panel_.ScaleHeight()) / altoPanel_ * alto);
        escalaDibujo_ = escalaDibujo_ / anterior * panel_.ScaleWidth();
        MuestraZoom(false);
    }
    anchoPanel_ = ancho;
    altoPanel_ = alto;
    relacionAspecto_ = std::abs(panel_.ScaleWidth() / panel_.ScaleHeight());
} catch (...) {
    LanzaErrorVisor(trabajo_.iEstado, ". ErrUserControl_Resize (Esquema)");
}

void Vista::MueveScroll(float x, float y, std::int16_t modo) try {
    refresco_.AnularRefresco();
    refresco_.PedirRefresco();
    LimitaAlMundo(x, y);
    panel_.ScaleLeft(x - panel_.ScaleWidth() / 2);
    panel_.ScaleTop(y - panel_.ScaleHeight() / 2);
    if (modo == 1) refresco_.RefrescarSiPendiente();
} catch (...) {
    LanzaErrorVisor(trabajo_.iEstado, ". ErrMueveScroll (Esquema)");
}

// Zoom is the visible area over AreaActiva, also right after either has changed.
void Vista::PonAreaActiva(float area) noexcept {
    areaActiva_ = area;
    zoom_ = std::abs(panel_.ScaleWidth() * panel_.ScaleHeight()) / areaActiva_;
}

void Vista::EscribeZoom(bool limitado) {
    anfitrion_.TextoEstado(4, "Región mostrada: " + TextoDeNumero(RedondeaPar(double{zoom_} * 100)) + " %" +
                                  (limitado ? " Máxima región de dibujo" : ""));
}

void Vista::MuestraZoom(bool limitado) {
    PonAreaActiva(areaActiva_);
    EscribeZoom(limitado);
}

bool Vista::IncluyeLaVista() noexcept {
    return CreceEnElMundo(regionElementos_, Marco::Visible(panel_));
}

bool Vista::RegionFueraDelMundo() const noexcept {
    Marco dentro = regionElementos_;
    return LimitaAlMundo(dentro);
}

void Vista::MuestraElMundo() {
    regionElementos_ = MarcoDelMundo();
    MueveScroll((MUNDO_XMIN + MUNDO_XMAX) / 2, (MUNDO_YMIN + MUNDO_YMAX) / 2, 1);
}

// The current centre, pulled inside the elements' region.
PuntoXY Vista::CentroDentro() const noexcept {
    const float hw = panel_.ScaleWidth() / 2;
    const float hh = std::abs(panel_.ScaleHeight()) / 2;
    float cx = panel_.ScaleLeft() + panel_.ScaleWidth() / 2;
    float cy = panel_.ScaleTop() + panel_.ScaleHeight() / 2;
    if (hw > regionElementos_.Xmax - cx)
        cx = regionElementos_.Xmax - hw;
    else if (hw > cx - regionElementos_.Xmin)
        cx = regionElementos_.Xmin + hw;
    if (hh > regionElementos_.Ymax - cy)
        cy = regionElementos_.Ymax - hh;
    else if (hh > cy - regionElementos_.Ymin)
        cy = regionElementos_.Ymin + hh;
    return {cx, cy};
}

bool Vista::AjustarZoomUsuario(Superficie& picture, float z, bool bMantenerCentro, bool bPermitirMayor,
                               std::int16_t modo) try {
    std::int32_t iRefrescar = 1;
    const auto anchoVisible = [&] {
        return static_cast<float>(std::sqrt(double{z} * relacionAspecto_ * areaActiva_));
    };
    float s = anchoVisible();
    if (VISTA_MAS_CERCANA * TamanyoUnidad() > s) {
        s = AnchoMasCercano();
        z = static_cast<float>(double{s} * s / relacionAspecto_ / areaActiva_);
        if (zoom_ <= z * (1 + TOLERANCIA)) {
            avisos_.LanzaMensaje(MAXIMO_ZOOM, 0, iRefrescar);
            refresco_.RefrescarSiPendiente();
            return false;
        }
    }
    if (double{z} * areaActiva_ > AREA_MAS_LEJANA) {
        avisos_.LanzaMensaje(MINIMO_ZOOM, 0, iRefrescar);
        refresco_.RefrescarSiPendiente();
        return false;
    }
    s = anchoVisible();
    if (!(s > 0) || !std::isfinite(s)) throw Fallo(6);
    refresco_.AnularRefresco();
    refresco_.PedirRefresco();
    PuntoXY centro{picture.ScaleLeft() + picture.ScaleWidth() / 2,
                   picture.ScaleTop() + picture.ScaleHeight() / 2};
    if (!bMantenerCentro) {
        if (!bPermitirMayor && z > 1) z = 1;
        if (z >= 1) {
            centro = {(regionElementos_.Xmin + regionElementos_.Xmax) / 2,
                      (regionElementos_.Ymin + regionElementos_.Ymax) / 2};
        } else {
            centro = CentroDentro();
        }
    }
    PonZoom(picture, s, z);
    MueveScroll(centro.X, centro.Y, modo);
    return true;
} catch (...) {
    LanzaErrorVisor(trabajo_.iEstado, ". ErrAjustarZoomUsuario (Esquema)");
}

void Vista::PonZoom(Superficie& picture, float ancho, float z) {
    picture.ScaleWidth(ancho);
    picture.ScaleHeight(-std::abs(ancho / relacionAspecto_));
    zoom_ = z;
    EscribeZoom(false);
}

// A view beyond the limits, which a click or the host may have chosen, can go back towards them.
bool Vista::AmpliaEn(double veces, PuntoXY en) {
    const Superficie::Escala e = panel_.escala();
    const double actual = std::sqrt(std::abs(double{e.Width} * e.Height) * relacionAspecto_);
    const double cercano = std::min<double>(AnchoMasCercano(), actual);
    const double lejano = std::max(std::sqrt(AREA_MAS_LEJANA * relacionAspecto_), actual);
    const double ancho = std::clamp(actual / veces, cercano, lejano);
    if (!(ancho > 0) || std::abs(ancho / actual - 1) < TOLERANCIA) return false;
    PonZoom(panel_, static_cast<float>(ancho),
            static_cast<float>(ancho * ancho / relacionAspecto_ / areaActiva_));
    const double x = double{e.Left} + double{en.X} * e.Width + (0.5 - en.X) * panel_.ScaleWidth();
    const double y = double{e.Top} + double{en.Y} * e.Height + (0.5 - en.Y) * panel_.ScaleHeight();
    MueveScroll(static_cast<float>(x), static_cast<float>(y), 2);
    return true;
}

void Vista::AjustarImagen(Superficie& picture, std::int16_t modo) try {
    refresco_.AnularRefresco();
    bVistaActualizada_ = true;
    CalculaRegionActiva(picture, true);
    if (AjustarZoomUsuario(picture, 1.0F, false, true, modo)) return;
    MueveScroll((regionElementos_.Xmin + regionElementos_.Xmax) / 2,
                (regionElementos_.Ymin + regionElementos_.Ymax) / 2, modo);
} catch (...) {
    LanzaErrorVisor(trabajo_.iEstado, ". ErrAjustarImagen (Esquema)");
}

std::int16_t Vista::CalculaRegionActiva(Superficie& picture, bool bRegionActiva, const Elementos* elementos,
                                        bool bForzar) try {
    const bool recalcula = bRegionActiva || bForzar;
    const float margen = 0.5F * TamanyoUnidad();
    const auto extension =
        elementos ? ExtensionDe(*elementos, margen) : extension_.De(documento_.colElementos, margen);
    if (!extension) {
        if (recalcula) {
            regionElementos_ = regionActiva_ = Marco::Visible(picture);
            PonAreaActiva(Area(regionActiva_));
        }
        return -1;
    }
    regionElementos_ = *extension;
    Marco activa = ConAspecto(*extension, relacionAspecto_);
    bool limitado = LimitaAlMundo(regionElementos_);
    limitado = LimitaAlMundo(activa) || limitado;
    if (recalcula) {
        regionActiva_ = activa;
        PonAreaActiva(Area(regionActiva_));
    }
    return limitado ? std::int16_t{-2} : std::int16_t{1};
} catch (...) {
    LanzaErrorVisor(trabajo_.iEstado, ". ErrCalculaRegionActiva (Esquema)");
}

}  // namespace zel
