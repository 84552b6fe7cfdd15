#pragma once

#include <cstdint>
#include <memory>

#include "drawing/Marco.h"
#include "session/Anfitrion.h"
#include "session/Avisos.h"
#include "session/Documento.h"
#include "session/ExtensionAlDia.h"
#include "session/Refresco.h"
#include "session/Trabajo.h"

namespace zel {

// The part of the world that the panel shows. The world is X in (-4000, 5000000), Y in (-5000, 2500000);
// the scale's unit before the first layout is a millimetre of the panel.
class Vista {
  public:
    Vista(Superficie& panel, const Documento& documento, Trabajo& trabajo, Refresco& refresco, Avisos& avisos,
          Anfitrion& anfitrion) noexcept
        : panel_(panel),
          documento_(documento),
          trabajo_(trabajo),
          refresco_(refresco),
          avisos_(avisos),
          anfitrion_(anfitrion) {}

    // The panel has been laid out in that many millimetres. The first layout shows the world from (0, 0) at
    // one unit per millimetre; later ones keep the units per pixel and the top left corner.
    void Dispone(float ancho, float alto);

    // As if that were the first layout.
    void DisponeDeNuevo(float ancho, float alto) {
        anchoPanel_ = altoPanel_ = 0;
        Dispone(ancho, alto);
    }

    // Centres the view on a point, kept inside the world; with modo 1 it repaints now.
    void MueveScroll(float x, float y, std::int16_t modo);

    // Sets the zoom, the visible area over AreaActiva. Keeps the centre, or else shows the middle of the
    // elements from 1 on and stays inside their region below. Unless bPermitirMayor, it shows no more than
    // the active region. A zoom beyond the closest or the farthest view is told in a notice and changes
    // nothing; the result is false then.
    bool AjustarZoomUsuario(Superficie& picture, float z, bool bMantenerCentro, bool bPermitirMayor,
                            std::int16_t modo);

    // Shows everything that many times larger, in length, with a point of the panel where it is (in shares of
    // the panel's width and height from its top left corner). It goes as far as the closest and the farthest
    // view; false when it is there already.
    bool AmpliaEn(double veces, PuntoXY en);

    // Fits all the elements into the view. When that would be closer than the closest view, they are
    // centred.
    void AjustarImagen(Superficie& picture, std::int16_t modo);

    // Recomputes RegionElementos and, with either flag, RegionActiva and AreaActiva, from the given elements
    // or the whole schematic. -1 there are no elements, -2 a bound was limited to the world, 1 otherwise.
    std::int16_t CalculaRegionActiva(Superficie& picture, bool bRegionActiva,
                                     const Elementos* elementos = nullptr, bool bForzar = false);

    // Grows RegionElementos to hold what is shown; true when the view reaches beyond the world.
    bool IncluyeLaVista() noexcept;
    bool RegionFueraDelMundo() const noexcept;
    // The whole world as the elements' region, seen around its middle.
    void MuestraElMundo();
    // Recomputes the zoom from what is shown and tells it; `limitado`: that this is the most there is.
    void MuestraZoom(bool limitado);

    // Text sizes follow it. Whoever changes it for a picture sets it back.
    void EscalaDibujo(float valor) noexcept { escalaDibujo_ = valor; }
    float EscalaDibujo() const noexcept { return escalaDibujo_; }
    float RelacionAspecto() const noexcept { return relacionAspecto_; }
    const Marco& RegionElementos() const noexcept { return regionElementos_; }
    const Marco& RegionActiva() const noexcept { return regionActiva_; }
    float AreaActiva() const noexcept { return areaActiva_; }
    float Zoom() const noexcept { return zoom_; }
    // Aquifers show their dots only while it is set. The fit sets it, a layout clears it.
    bool bVistaActualizada() const noexcept { return bVistaActualizada_; }
    void bVistaActualizada(bool valor) noexcept { bVistaActualizada_ = valor; }

  private:
    void PrimeraDisposicion();
    void PonAreaActiva(float area) noexcept;
    void EscribeZoom(bool limitado);
    void PonZoom(Superficie& picture, float ancho, float z);
    PuntoXY CentroDentro() const noexcept;

    Superficie& panel_;
    const Documento& documento_;
    Trabajo& trabajo_;
    Refresco& refresco_;
    Avisos& avisos_;
    Anfitrion& anfitrion_;

    ExtensionAlDia extension_;
    float escalaDibujo_ = 0;
    float relacionAspecto_ = 0;
    Marco regionElementos_;
    Marco regionActiva_;
    float areaActiva_ = 0;
    float zoom_ = 1;
    bool bVistaActualizada_ = false;
    float anchoPanel_ = 0;  // millimetres at the last layout
    float altoPanel_ = 0;
};

}  // namespace zel
