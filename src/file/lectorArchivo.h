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

#include "file/Hallazgos.h"
#include "model/Elementos.h"
#include "platform/EscritorXml.h"

namespace zel {

// Reads a schematic file into an element collection, and writes one. Reading is tolerant with what one
// element lacks or repeats: it keeps the initial value, the problem goes to the load log, and a trace that
// cannot be read is rebuilt as a straight one between the elements that it joins.
class lectorArchivo {
  public:
    void NombreArchivo(std::string ruta) { nombreArchivo_ = std::move(ruta); }
    const std::string& NombreArchivo() const noexcept { return nombreArchivo_; }

    // The collection that Carga fills; it is not emptied first.
    void Coleccion(std::shared_ptr<Elementos> destino) noexcept { coleccion_ = std::move(destino); }

    // Called once per element read, so that a long load can let pending events through; without it the load
    // runs in one go.
    void AlCederTurno(std::function<void()> accion) { cedeTurno_ = std::move(accion); }

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
    // raises and there is a log text, all was read and only the log could not be written.
    const std::string& MotivoSinLeer() const noexcept { return motivo_; }
    bool EsEsquema() const noexcept { return esEsquema_; }
    const std::string& Registro() const noexcept { return registro_; }

    // The texts of the background picture's section, by the names of its children; Archivo comes with the
    // document's folder in front. Nothing when the file cannot be read or has no such section; where a child
    // is missing, what stands before it.
    std::optional<zel::Coleccion<std::string>> LeeImagenFondo();
    // The same for the settings: the text of "VerLineasSecundarias".
    std::optional<zel::Coleccion<std::string>> LeeConfiguracion();

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
    void EscribeConfiguracion(bool bVerLineasSecundarias) noexcept;
    // Writes NombreArchivo and lets go of the document; true. Fails with the platform's failure.
    bool GuardaDocumento();

  private:
    struct Lectura;

    const Hallazgos::Lista* AsignaPropiedad(const Hallazgos& hallazgos, Hijo hijo, std::int16_t esperados,
                                            std::int16_t posicion, bool bSinAviso);
    template <typename Tabla>
    void LeeHijos(Lectura& lectura, Elemento& e, const Tabla& tabla);
    void LeeElemento(Lectura& lectura, xmlNode* nodo);
    void LeeTrazados(Lectura& lectura, Elemento& e);
    void LeeTrazadosCentral(Lectura& lectura, Elemento& e);
    std::shared_ptr<Puntos> LeeTrazado(Lectura& lectura, xmlNode* linea, const std::string& cual);
    void RehaceTrazados(const std::vector<std::int32_t>& codigos);
    void RehaceTrazados2(const std::vector<std::int32_t>& codigos);
    std::shared_ptr<Elemento> ElementoDe(std::int32_t codigo) const;
    std::string TextoDelRegistro() const;

    // The sections beside the elements, as the last Carga found them, and the file that it read: who asks for
    // them next, of the same file, is spared another parse of it.
    struct Secciones {
        std::string archivo;
        std::uintmax_t bytes = 0;
        std::filesystem::file_time_type cambiado;
        std::optional<std::vector<std::string>> imagen;
        std::optional<std::vector<std::string>> configuracion;
    };
    static void LeeSecciones(const DocumentoXml& documento, std::optional<std::vector<std::string>>& imagen,
                             std::optional<std::vector<std::string>>& configuracion);
    static std::optional<Secciones> HuellaDe(const std::string& archivo);
    std::optional<std::vector<std::string>> LeeSeccion(
        std::optional<std::vector<std::string>> Secciones::*seccion);
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
    std::string registro_;
    std::optional<Secciones> secciones_;

    std::optional<EscritorXml> documento_;  // the one being written
    std::int32_t posicionSinGuardar_ = 0;
};

}  // namespace zel
