#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "file/LecturaDeEsquema.h"
#include "file/SeccionImagen.h"
#include "model/Elementos.h"
#include "platform/EscritorXml.h"

namespace zel {

// What the problems of a load begin with where they are told without the log, which could not be written.
constexpr const char* SIN_REGISTRO = "No se ha podido escribir ErroresCarga.log";

// Reads a schematic file into an element collection, and writes one. Reading is tolerant with what one
// element lacks or repeats: it keeps the initial value, the problem goes to the load log, and a trace that
// cannot be read is rebuilt as a straight one between the elements that it joins.
class lectorArchivo {
  public:
    void NombreArchivo(std::string ruta) { nombreArchivo_ = std::move(ruta); }
    const std::string& NombreArchivo() const noexcept { return nombreArchivo_; }

    // The collection that Carga fills; it is not emptied first.
    void Coleccion(std::shared_ptr<Elementos> destino) noexcept { coleccion_ = std::move(destino); }

    // Called once per element of the file while it is read, so that a long load can let pending events
    // through; without it the load runs in one go. What it raises ends the load.
    void AlCederTurno(std::function<void()> accion) { cedeTurno_ = std::move(accion); }

    // Of elements with one code, Carga keeps the later ones without a key instead of raising: for who means
    // to mend them.
    void AdmiteCodigosRepetidos(bool valor) noexcept { admiteRepetidos_ = valor; }

    // Adds the elements of NombreArchivo to the collection. A file that cannot be read, that is not
    // well-formed or that has no element adds nothing and raises nothing. Missing, incomplete and repeated
    // children are written to "ErroresCarga.log" in the current directory. Anything else (a repeated code,
    // a flag other than 0 and 1, a number out of range, more than 32767 elements) raises "Lector:Carga ";
    // the elements read before it stay in the collection.
    void Carga();

    // Why NombreArchivo cannot be opened as a schematic: it cannot be read, or it is a document of another
    // kind; empty when it can. Loads nothing.
    std::string MotivoParaNoAbrir() const;

    // Of the last Carga: why the file could not be read at all (empty when it could), whether its root is
    // that of a schematic, and the text of its load log (empty when there was nothing to report). When Carga
    // raises for a code that two elements have, MotivoSinCargar tells which (empty otherwise); when it raises
    // because only the log could not be written, all has been read and FalloDelRegistro tells why (empty
    // otherwise).
    const std::string& MotivoSinLeer() const noexcept { return motivo_; }
    bool EsEsquema() const noexcept { return esEsquema_; }
    const std::string& Registro() const noexcept { return registro_; }
    const std::string& MotivoSinCargar() const noexcept { return sinCargar_; }
    const std::string& FalloDelRegistro() const noexcept { return falloDelRegistro_; }

    // The texts of the background picture's section, by the names of its children; Archivo comes with the
    // document's folder in front. Nothing when the file cannot be read or has no such section; where a child
    // is missing, what stands before it.
    std::optional<zel::Coleccion<std::string>> LeeImagenFondo();
    // The same for the settings: the text of "VerLineasSecundarias".
    std::optional<zel::Coleccion<std::string>> LeeConfiguracion();
    // The picture's section with what it says, and all of its texts; nothing when there is none.
    std::optional<SeccionImagen> LeeSeccionImagen();

    // Writing, in this order: the elements, the picture's section when there is one, the settings, the file.
    // NombreArchivo is overwritten with an empty schematic by the first step: whoever wants to keep what it
    // holds until all is done saves through GuardaConSeguridad.

    // Begins a document with every element of the collection. False when an element cannot be written (a
    // kind without container, a missing trace, a value that is no number); those before it are in the
    // document, and PosicionSinGuardar() tells which it was. A file that cannot be written is the platform's
    // failure.
    bool GuardaEsquema();
    std::int32_t PosicionSinGuardar() const noexcept { return posicionSinGuardar_; }
    // The picture's path, its place and size, and whether it is hidden. A picture of another folder is
    // copied beside the document. Never raises: what fails ends it.
    void EscribeImagenFondo(const std::string& archivo, double X0, double Y0, double LX, double LY,
                            bool oculta) noexcept;
    // A section that could not be used, as it was.
    void EscribeImagenFondo(const std::vector<std::pair<std::string, std::string>>& textos) noexcept;
    void EscribeConfiguracion(bool bVerLineasSecundarias) noexcept;
    // Writes NombreArchivo and lets go of the document; true. Fails with the platform's failure.
    bool GuardaDocumento();

  private:
    struct Lectura;

    bool AsignaPropiedad(std::int32_t cuantos, Hijo hijo, std::int16_t esperados, std::int16_t posicion,
                         bool bSinAviso);
    template <typename Tabla>
    void LeeHijos(const ElementoLeido& leido, std::int16_t posicion, Elemento& e, const Tabla& tabla);
    void LeeElemento(Lectura& lectura, std::int16_t posicion, const ElementoLeido& leido);
    void LeeTrazados(std::int16_t posicion, const ElementoLeido& leido, Elemento& e);
    std::shared_ptr<Puntos> LeeTrazado(const std::vector<PuntoLeido>& linea, std::int16_t posicion,
                                       const std::string& cual);
    void Agrega(Lectura& lectura);
    void RehaceTrazados(const Lectura& lectura);
    void EscribeElRegistro();
    std::shared_ptr<Elemento> ElementoDe(std::int32_t codigo) const;
    std::string TextoDelRegistro() const;

    // The sections beside the elements, as the last Carga found them, and the file that it read: who asks for
    // them next, of the same file, is spared another reading of it.
    struct Secciones {
        std::string archivo;
        std::uintmax_t bytes = 0;
        std::filesystem::file_time_type cambiado;
        std::optional<SeccionLeida> imagen;
        std::optional<SeccionLeida> configuracion;
    };
    static std::optional<Secciones> HuellaDe(const std::string& archivo);
    std::optional<SeccionLeida> LeeSeccion(std::optional<SeccionLeida> Secciones::*seccion);
    std::string Carpeta() const;
    bool NuevoDocumento();
    bool GuardaElemento(const Elemento& e) noexcept;
    void GuardaLinea(const Puntos& trazado);
    void AgregaNodo(const char* nombre, std::string_view texto);
    template <typename Escribe>
    void EscribeSeccion(const char* nombre, Escribe escribe) noexcept;

    std::string nombreArchivo_;
    std::shared_ptr<Elementos> coleccion_;
    std::function<void()> cedeTurno_;
    std::string textoErrores_;
    std::string textoAvisos_;
    std::string motivo_;
    bool esEsquema_ = false;
    bool admiteRepetidos_ = false;
    std::string registro_;
    std::string sinCargar_;
    std::string falloDelRegistro_;
    std::optional<Secciones> secciones_;

    std::optional<EscritorXml> documento_;  // the one being written
    std::int32_t posicionSinGuardar_ = 0;
};

}  // namespace zel
