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

// The file that the name stands for at the end of all links, also of one that leads to no file yet.
std::string SinEnlaces(const std::string& nombre) {
    constexpr int MAXIMO_DE_ENLACES = 40;
    fs::path ruta = nombre;
    std::error_code error;
    for (int i = 0; fs::is_symlink(ruta, error); ++i) {
        if (i == MAXIMO_DE_ENLACES) throw Fallo(75);
        const fs::path siguiente = fs::read_symlink(ruta, error);
        if (error) throw Fallo(75);
        ruta = siguiente.is_absolute() ? siguiente : ruta.parent_path() / siguiente;
    }
    return ruta.string();
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
    const std::string carpeta = ParteRuta(archivo).carpeta;
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
    const RutaPartida partes = ParteRuta(destino_);
    std::error_code error;
    if (!partes.carpeta.empty() && !fs::is_directory(partes.carpeta, error)) throw Fallo(76);
    std::string plantilla = partes.carpeta + "." + partes.nombre + ".XXXXXX";
    const Descriptor fd(mkstemp(plantilla.data()));
    if (*fd < 0) FallaElSistema();
    temporal_ = plantilla;
}

ReemplazoDeArchivo::~ReemplazoDeArchivo() {
    if (!temporal_.empty()) unlink(temporal_.c_str());
}

void ReemplazoDeArchivo::Confirma() {
    {
        const Descriptor fd(open(temporal_.c_str(), O_RDWR));
        if (*fd < 0) FallaElSistema();
        struct stat antes {};
        if (stat(destino_.c_str(), &antes) == 0) {
            // The owner can be kept only by who may give files away.
            if (fchown(*fd, antes.st_uid, antes.st_gid) != 0) errno = 0;
            if (fchmod(*fd, antes.st_mode & 07777) != 0) FallaElSistema();
        } else if (fchmod(*fd, PermisosNuevos()) != 0) {
            FallaElSistema();
        }
        if (fsync(*fd) != 0) FallaElSistema();
    }
    if (rename(temporal_.c_str(), destino_.c_str()) != 0) FallaElSistema();
    temporal_.clear();
    VaciaCarpeta(destino_);
}

void CopiaArchivo(const std::string& origen, const std::string& destino) {
    std::error_code error;
    if (fs::equivalent(origen, destino, error)) return;
    ReemplazoDeArchivo reemplazo(destino);
    if (!fs::copy_file(origen, reemplazo.Temporal(), fs::copy_options::overwrite_existing, error)) {
        throw Fallo(NumeroDeErrno(error.value()));
    }
    reemplazo.Confirma();
}

}  // namespace zel
