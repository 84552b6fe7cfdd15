#pragma once

#include <cstdint>
#include <memory>
#include <optional>

#include "editing/Creacion.h"
#include "editing/SeleccionConTeclas.h"
#include "session/Desplazamiento.h"

namespace zel {

// The keys of the panel and of the bars. KeyCode is a virtual key code; Shift is 1 Shift + 2 Ctrl + 4 Alt.
class Teclado {
  public:
    Teclado(Superficie& panel, Documento& documento, Trabajo& trabajo, Refresco& refresco, Vista& vista,
            Desplazamiento& desplazamiento, Creacion& creacion, SeleccionConTeclas& seleccion,
            MaquinaEstados& estados, Anfitrion& anfitrion) noexcept;

    // Ctrl begins the selection one by one. All other keys act when they are released.
    void Panel_KeyDown(std::int16_t& KeyCode, std::int16_t& Shift);
    void Panel_KeyUp(std::int16_t& KeyCode, std::int16_t& Shift);

    // Another key, or the wheel: Ctrl, if it is held, is held for that. What there was in hand before it
    // comes back, unless the panel has been pressed since.
    void OtraEntrada();
    void PanelPulsado() noexcept { antesDeCtrl_.reset(); }
    // The keys go elsewhere: so does the release of Ctrl.
    void SinTeclado();

  private:
    struct Fila;
    static const Fila FILAS[];
    struct EnMano {
        std::int32_t iEstado;
        std::shared_ptr<Elemento> elemSeleccionado;
        std::shared_ptr<Elementos> elemSubsistema;
        std::shared_ptr<Puntos> curvaSeleccion;
    };

    void AlternaDepuracion(std::int16_t KeyCode);
    void PideLineaSecundaria(std::int16_t KeyCode);
    void EmpiezaRecuadroDeZoom(std::int16_t KeyCode);
    void TomaLaMano(std::int16_t KeyCode);
    void TerminaUnoAUno(std::int16_t KeyCode);
    void Retrocede(std::int16_t KeyCode);
    void Escapa(std::int16_t KeyCode);
    void Borra(std::int16_t KeyCode);
    void PasaPagina(std::int16_t KeyCode);
    void SigueElFlujo(std::int16_t KeyCode);
    void MuestraTodo(std::int16_t KeyCode);
    void Acerca(std::int16_t KeyCode);
    void Aleja(std::int16_t KeyCode);
    void Desplaza(std::int16_t KeyCode);
    void CentraElemento(std::int16_t KeyCode);
    void ArmaTipo(std::int16_t KeyCode);

    void Avisa(const char* texto);

    Superficie& panel_;
    Documento& documento_;
    Trabajo& trabajo_;
    Refresco& refresco_;
    Vista& vista_;
    Desplazamiento& desplazamiento_;
    Creacion& creacion_;
    SeleccionConTeclas& seleccion_;
    MaquinaEstados& estados_;
    Anfitrion& anfitrion_;
    std::optional<EnMano> antesDeCtrl_;
};

}  // namespace zel
