#include "platform/ReemplazoDeArchivo.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>

#include "platform/Archivos.h"
#include "platform/Fallo.h"

namespace zel {

namespace {

namespace fs = std::filesystem;

[[noreturn]] void FallaElSistema() {
    throw Fallo(NumeroDeErrno(errno));
}

class Descriptor {
  public:
    explicit Descriptor(int fd) noexcept : fd_(fd) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() {
        if (fd_ >= 0) close(fd_);
    }
    int operator*() const noexcept { return fd_; }

  private:
    int fd_;
};

// The permissions that a new file gets here.
mode_t PermisosNuevos() {
    const mode_t mascara = umask(0);
    umask(mascara);
    return 0666 & ~mascara;
}

void VaciaCarpeta(const std::string& archivo) noexcept {
    const std::string carpeta = fs::path(archivo).parent_path().string();
    const Descriptor fd(open(carpeta.empty() ? "." : carpeta.c_str(), O_RDONLY | O_DIRECTORY));
    if (*fd >= 0) fsync(*fd);  // some file systems cannot: the rename stands all the same
}

}  // namespace

ReemplazoDeArchivo::ReemplazoDeArchivo(const std::string& destino) : destino_(SinEnlaces(destino)) {
    struct stat antes {};
    if (stat(destino_.c_str(), &antes) == 0) {
        if (!S_ISREG(antes.st_mode)) throw Fallo(75);
        if (access(destino_.c_str(), W_OK) != 0) FallaElSistema();
    }
    const fs::path carpeta = fs::path(destino_).parent_path();
    std::error_code error;
    if (!carpeta.empty() && !fs::is_directory(carpeta, error)) throw Fallo(76);
    std::string plantilla = (carpeta / ".zel-XXXXXX").string();
    const Descriptor fd(mkstemp(plantilla.data()));
    if (*fd < 0) FallaElSistema();
    temporal_ = plantilla;
}

ReemplazoDeArchivo::~ReemplazoDeArchivo() {
    if (!temporal_.empty()) unlink(temporal_.c_str());
}

void ReemplazoDeArchivo::Confirma() {
    {
        const Descriptor fd(open(temporal_.c_str(), O_RDONLY));
        if (*fd < 0) FallaElSistema();
        struct stat antes {};
        if (stat(destino_.c_str(), &antes) == 0) {
            mode_t permisos = antes.st_mode & 07777;
            // The owner can be kept only by who may give files away; without the group, what the group
            // could do would go to another one.
            if (fchown(*fd, antes.st_uid, antes.st_gid) != 0 &&
                fchown(*fd, static_cast<uid_t>(-1), antes.st_gid) != 0) {
                permisos &= ~static_cast<mode_t>(S_IRWXG);
            }
            if (fchmod(*fd, permisos) != 0) FallaElSistema();
        } else if (fchmod(*fd, PermisosNuevos()) != 0) {
            FallaElSistema();
        }
        if (fsync(*fd) != 0) FallaElSistema();
    }
    if (rename(temporal_.c_str(), destino_.c_str()) != 0) FallaElSistema();
    temporal_.clear();
    VaciaCarpeta(destino_);
}

CopiaDeArchivo::CopiaDeArchivo(const std::string& destino, const std::string& origen) {
    std::error_code error;
    if (fs::equivalent(origen, destino, error)) return;
    reemplazo_.emplace(destino);
    if (!fs::copy_file(origen, reemplazo_->Temporal(), fs::copy_options::overwrite_existing, error)) {
        throw Fallo(NumeroDeErrno(error.value()));
    }
}

void CopiaDeArchivo::Confirma() {
    if (reemplazo_) reemplazo_->Confirma();
}

void CopiaArchivo(const std::string& origen, const std::string& destino) {
    CopiaDeArchivo(destino, origen).Confirma();
}

}  // namespace zel
