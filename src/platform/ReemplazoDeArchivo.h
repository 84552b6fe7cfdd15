#pragma once

#include <optional>
#include <string>

namespace zel {

// A file under a temporary name of its own, which goes with it. As long as it is there it is locked: what is
// left of one whose process was killed is recognised by its lock being free, and removed by the next one for
// the same file.
class ArchivoTemporal {
  public:
    // Beside `destino`, with the permissions of a new file, or for its owner only. Fails with the number of
    // the system's reason.
    ArchivoTemporal(const std::string& destino, bool soloDelDueno);
    ArchivoTemporal(const ArchivoTemporal&) = delete;
    ArchivoTemporal& operator=(const ArchivoTemporal&) = delete;
    ~ArchivoTemporal();

    const std::string& Ruta() const noexcept { return ruta_; }
    int Descriptor() const noexcept { return fd_; }
    // Flushes it to disk and gives it that name, replacing what has it.
    void Renombra(const std::string& destino);

  private:
    std::string ruta_;
    int fd_ = -1;
};

// Puts a new file in the place of an old one in a single step: it is written under a temporary name in the
// same folder, flushed to disk, and renamed. Until Confirma has renamed it the old file is untouched, and
// whatever goes wrong removes the temporary. Links are followed: the file that they lead to is replaced.
class ReemplazoDeArchivo {
  public:
    // Creates the temporary. Fails with 70 when the file or its folder cannot be written, 76 when there is no
    // such folder, 75 when the name is that of a folder or a device,
    // or else with the number of the system's reason.
    explicit ReemplazoDeArchivo(const std::string& destino);

    // Where to write.
    const std::string& Temporal() const noexcept { return temporal_->Ruta(); }
    // What is replaced, at the end of all links.
    const std::string& Destino() const noexcept { return destino_; }

    // Puts what was written in place, with the permissions of the file that it replaces. Fails with the
    // number of the system's reason.
    void Confirma();

  private:
    std::string destino_;
    std::optional<ArchivoTemporal> temporal_;
};

// Copies a file over another in a single step; nothing when both are the same file.
void CopiaArchivo(const std::string& origen, const std::string& destino);

// A copy of a file that never replaces another one.
class CopiaSinReemplazo {
  public:
    // The copy waits under a temporary name beside `destino`. Fails as a replacement does, and with 53 when
    // there is no such file.
    CopiaSinReemplazo(const std::string& origen, const std::string& destino);
    const std::string& Temporal() const noexcept { return temporal_.Ruta(); }
    // Puts it in place; false when something has that name.
    bool Confirma(const std::string& destino);

  private:
    ArchivoTemporal temporal_;
};

}  // namespace zel
