#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string>

#include "control/ImagenFondo.h"
#include "editing/MaquinaEstados.h"
#include "file/lectorArchivo.h"
#include "session/Desplazamiento.h"

namespace zel {

// Whole schematics in and out, and changes of many elements at once.
class Comandos {
  public:
    // `cedeTurno` lets the platform process what is pending; the control may be gone when it comes back.
    Comandos(Superficie& panel, Documento& documento, Trabajo& trabajo, Refresco& refresco, Vista& vista,
             Desplazamiento& desplazamiento, MaquinaEstados& estados, Anfitrion& anfitrion,
             ImagenFondo& imagen, std::function<void()> cedeTurno);
    Comandos(const Comandos&) = delete;
    Comandos& operator=(const Comandos&) = delete;
    ~Comandos() { Termina(); }

    void ArchivoAbrir(const std::string& archNombre);
    // An empty schematic, with codes and numbers, switches and picture as in the beginning.
    void ArchivoNuevo();
    void ArchivoGuardar(const std::string& archNombre);
    // Some elements as a schematic of their own, without the picture; the document stays as it is.
    void Exporta(const std::string& archNombre, const std::shared_ptr<Elementos>& elementos);
    void AddElemento(const Elemento& elem);
    bool ModificaVarios_NumUser(std::span<const std::int32_t> aiCodSig, std::span<const std::int32_t> aiNums);
    bool ModificaVarios_Nombres(std::span<const std::int32_t> aiCodGIS, std::span<const std::string> asNoms);
    void ModificaVarios_ConecSec(std::span<const std::int32_t> aivOrigen,
                                 std::span<const std::int32_t> aivDestino, bool aBorraAnteriores);

    // Replaces the schematic: what was in hand belonged to the earlier one. Raises without one, and while
    // one is being loaded.
    void PonColeccion(std::shared_ptr<Elementos> elementos);

    // The control goes: a load under way ends at its next turn.
    void Termina() noexcept { vida_->viva = false; }

    bool Cargando() const noexcept { return vida_->cargando; }
    // Of the last schematic opened: why its file could not be read (empty when it could), and what was
    // missing or repeated in it (empty when nothing was).
    const std::string& MotivoSinLeer() const noexcept { return motivo_; }
    const std::string& ProblemasDeCarga() const noexcept { return problemas_; }
    // Of the last schematic opened or saved: what has to be told of its picture; empty when nothing.
    const std::string& AvisoDeImagen() const noexcept { return avisoDeImagen_; }

  private:
    // Outlives the control while a load that it began has not come back.
    struct Vida {
        bool viva = true;
        bool cargando = false;
    };

    void ExigeLibre() const;
    void Carga(const std::string& archNombre, const std::shared_ptr<Elementos>& nueva);
    void LeeSecciones();
    void AceptaColeccion(std::shared_ptr<Elementos> nueva);
    void RecalculaNumeracion();
    void ApartaSinLeer(const std::string& archNombre);
    template <typename Aplica>
    bool ModificaVarios(std::size_t cuantos, Aplica aplica);
    void BorraConexiones(std::span<const std::int32_t> aivOrigen, bool todas);
    void ConectaSecundarias(std::span<const std::int32_t> aivOrigen,
                            std::span<const std::int32_t> aivDestino);

    Superficie& panel_;
    Documento& documento_;
    Trabajo& trabajo_;
    Refresco& refresco_;
    Vista& vista_;
    Desplazamiento& desplazamiento_;
    MaquinaEstados& estados_;
    Anfitrion& anfitrion_;
    ImagenFondo& imagen_;
    std::function<void()> cedeTurno_;

    std::shared_ptr<lectorArchivo> lector_;
    std::string motivo_;
    std::string problemas_;
    std::string avisoDeImagen_;
    std::string sinLeer_;  // the file that could not be read when it was last opened
    std::shared_ptr<Vida> vida_ = std::make_shared<Vida>();
};

}  // namespace zel
