#pragma once

#include <functional>
#include <optional>
#include <string>

#include "editing/MaquinaEstados.h"
#include "session/Avisos.h"

namespace zel {

// The menu's commands that change how elements look: colour, size or line width, label. Those on one element
// tell the host (ElementoModificado); those on all of them do not. Without a selected element the former do
// nothing, and neither when the one asked about has gone while the box was open.
class Apariencia {
  public:
    // `recorta` cuts the traces attached to an element to its outline.
    using Recorta = std::function<void(const std::shared_ptr<Elemento>&)>;

    Apariencia(Superficie& panel, Documento& documento, Trabajo& trabajo, Refresco& refresco, Vista& vista,
               Avisos& avisos, MaquinaEstados& estados, Anfitrion& anfitrion, Recorta recorta);

    // Ask for a colour; a cancelled one stores the colour proposed. Nothing is selected afterwards.
    void menuContextualColorIcono_Click();
    void menuContextualColorLinea_Click();
    // The size of a symbol in percent or the width of a line in pixels, asked for until it is one.
    void menuContextualTamanyo_Click();
    // The same for a size that is known: 0.5 to 33 for a symbol, 1 to 20 for a line; others raise. The host,
    // which knows, is not told.
    void CambiaTamanyo(const std::shared_ptr<Elemento>& e, float tamanyo);

    void menuContextualMostrarEtiqueta_Click();
    void menuContextualTamanyoEtiqueta_Click();
    // Puts a label that the user has moved back to its place.
    void menuContextualEtiquetaPegajosa_Click();
    void menuContextualEtiquetaTamanyoRelativo_Click();

    // All the symbols to a size; all the labels by a factor. Both in percent.
    void menuVisorModifElems_Click();
    void menuVisorModifFtes_Click();

  private:
    template <typename Accion>
    void Orden(const char* sufijo, Accion accion);
    void PideColor(std::int32_t (Elemento::*lee)() const noexcept,
                   void (Elemento::*pon)(std::int32_t) noexcept,
                   std::int32_t (*delTipo)(TipoElemento) noexcept);
    bool PideTamanyo();
    void PonTamanyo(const std::shared_ptr<Elemento>& e, float tamanyo);
    bool PideTamanyoEtiqueta();
    void VuelveAPreguntar(std::int16_t aviso);
    std::optional<std::string> Pregunta(std::string_view texto, double propuesta);
    std::optional<double> PreguntaParaTodos(std::int32_t mensaje, double minimo, double maximo);
    std::shared_ptr<Elemento> ElementoPreguntado(std::int32_t codigo, TipoElemento tipo) const;
    void DespegaDelUsuario(Elemento& e);
    void Preparado();

    Superficie& panel_;
    Documento& documento_;
    Trabajo& trabajo_;
    Refresco& refresco_;
    Vista& vista_;
    Avisos& avisos_;
    MaquinaEstados& estados_;
    Anfitrion& anfitrion_;
    Recorta recorta_;
};

}  // namespace zel
