#pragma once

#include <optional>
#include <string>

namespace zel {

// Puts a new file in the place of an old one in a single step: it is written under a temporary name in the
// same folder, flushed to disk, and renamed. Until Confirma has renamed it the old file is untouched, and
// whatever goes wrong removes the temporary. Links are followed: the file that they lead to is replaced.
class ReemplazoDeArchivo {
  public:
    // Creates the temporary. Fails with 70 when the file or its folder cannot be written, 76 when there is no
    // such folder, 75 when the name is that of a folder or a device,
    // or else with the number of the system's reason.
    explicit ReemplazoDeArchivo(const std::string& destino);
    ReemplazoDeArchivo(const ReemplazoDeArchivo&) = delete;
    ReemplazoDeArchivo& operator=(const ReemplazoDeArchivo&) = delete;
    ~ReemplazoDeArchivo();

    // Where to write.
    const std::string& Temporal() const noexcept { return temporal_; }

    // Puts what was written in place, with the permissions of the file that it replaces. Fails with the
    // number of the system's reason.
    void Confirma();

  private:
    std::string destino_;
    std::string temporal_;
};

// A copy of a file that waits to be put in place; nothing when both are the same file.
class CopiaDeArchivo {
  public:
    CopiaDeArchivo(const std::string& destino, const std::string& origen);
    void Confirma();

  private:
    std::optional<ReemplazoDeArchivo> reemplazo_;
};

// Copies a file over another in a single step; nothing when both are the same file.
void CopiaArchivo(const std::string& origen, const std::string& destino);

}  // namespace zel
