#pragma once

#include "editing/EntradaPanel.h"
#include "editing/Herramientas.h"
#include "editing/Teclado.h"
#include "support/Mesa.h"

namespace zel::pruebas {

// The same with what edits: state machine, tools, keys and mouse.
class MesaDeEdicion : public Mesa {
  protected:
    // What there is in hand, a letter each: the trace being drawn (N: empty) and its second part, the
    // reference point, the lasso (C: empty), the subsystem with its codes, the temporary outline, the moved
    // traces, the selected element.
    std::string EnMano() const {
        const Trabajo& t = trabajo;
        std::string texto;
        if (t.trazadoNuevo) texto += t.trazadoNuevo->Count() ? 'n' : 'N';
        if (t.trazadoNuevo2) texto += 'm';
        if (t.puntoReferencia) texto += 'r';
        if (t.curvaSeleccion) texto += t.curvaSeleccion->Count() ? 'c' : 'C';
        if (t.elemSubsistema) texto += 's' + Codigos();
        if (t.trazadoTemporal) texto += 't';
        if (!t.colConduccionesMovidas.empty()) texto += 'v';
        if (t.elemSeleccionado) texto += 'e';
        return texto;
    }
    void LlenaLaMano(std::int32_t enSubsistema) {
        trabajo.trazadoNuevo = trabajo.trazadoNuevo2 = trabajo.curvaSeleccion = trabajo.trazadoTemporal =
            Traza({{1, 1}});
        trabajo.puntoReferencia = std::make_shared<Punto>(3.0F, 4.0F);
        trabajo.elemSubsistema = std::make_shared<Elementos>();
        trabajo.elemSubsistema->AddObjetoElemento(*Elem(enSubsistema));
        trabajo.colConduccionesMovidas = {{Traza({}), nullptr}};
    }
    // "1 2 4"
    std::string Codigos() const {
        std::string texto;
        for (const auto& e : *trabajo.elemSubsistema)
            texto += (texto.empty() ? "" : " ") + std::to_string(e->gfCodSIG());
        return texto;
    }
    // The pressed buttons of both bars: "nudo|zoommas".
    std::string Pulsados() {
        std::string texto;
        for (const auto& clave : anfitrion.pulsados[Barra::Elementos])
            texto += clave;
        texto += '|';
        for (const auto& clave : anfitrion.pulsados[Barra::Vista])
            texto += clave;
        return texto;
    }
    // "" unchanged, "normal", "cruz" or the number of the picture.
    std::string Puntero() const {
        if (panel.puntero == Superficie::PUNTERO_PROPIO) return std::to_string(panel.cursor);
        return panel.puntero < 0 ? "" : panel.puntero == Superficie::PUNTERO_CRUZ ? "cruz" : "normal";
    }

    // The mouse as the panel tells it.
    void Pulsa(float x, float y, std::int16_t boton = 1) {
        std::int16_t mayus = 0;
        raton.Panel_MouseDown(boton, mayus, x, y);
    }
    void Mueve(float x, float y, std::int16_t botones = 1) {
        std::int16_t mayus = 0;
        raton.Panel_MouseMove(botones, mayus, x, y);
    }
    void Suelta(float x, float y, std::int16_t boton = 1) {
        std::int16_t mayus = 0;
        raton.Panel_MouseUp(boton, mayus, x, y);
    }

    Conexiones conexiones;
    MaquinaEstados estados{panel, documento, trabajo, refresco, vista, conexiones, anfitrion};
    GestosDeVista gestos{panel,          trabajo, refresco, vista,
                         desplazamiento, avisos,  estados,  [this] { vista.Dispone(200, 100); }};
    Herramientas herramientas{panel, trabajo, refresco, vista, avisos, estados, gestos, anfitrion};
    Localizador localizador{panel, documento, trabajo, vista,
                            [this](std::int32_t codigo) { pintado.SubrayaElem(codigo); }};
    GestosDeSubsistema gestosDeSubsistema{panel, trabajo, pintado, localizador, estados};
    Seleccion seleccion{panel, trabajo, pintado, localizador, estados, gestosDeSubsistema, anfitrion};
    Creacion creacion{panel,  documento, trabajo,     refresco, vista,
                      avisos, pintado,   localizador, estados,  anfitrion};
    Teclado teclado{panel, documento, trabajo, refresco, vista, desplazamiento, creacion, estados, anfitrion};
    ArrastreElemento arrastreElemento{panel,   documento,   trabajo,    refresco, vista,    avisos,
                                      pintado, localizador, conexiones, estados,  anfitrion};
    ArrastreEtiqueta arrastreEtiqueta{panel,  documento, trabajo,     refresco, vista,
                                      avisos, pintado,   localizador, estados,  anfitrion};
    PuntosDeConduccion puntosDeConduccion{panel,   documento,   trabajo, vista,    avisos,
                                          pintado, localizador, estados, anfitrion};
    EntradaPanel raton{panel,
                       trabajo,
                       refresco,
                       vista,
                       avisos,
                       estados,
                       {seleccion, gestos, creacion, arrastreElemento, arrastreEtiqueta, puntosDeConduccion,
                        gestosDeSubsistema},
                       anfitrion};
};

}  // namespace zel::pruebas
