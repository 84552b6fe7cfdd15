#include "platform/ReemplazoDeArchivo.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <random>

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

constexpr std::size_t LARGO_DE_NOMBRE = 200;  // of 255 bytes: there is room for what is added
constexpr int INTENTOS = 100;

// What the temporaries of a file are called: ".red.xml.zel-" and six letters.
std::string PrefijoDe(const std::string& destino) {
    return "." + fs::path(destino).filename().string().substr(0, LARGO_DE_NOMBRE) + ".zel-";
}

std::string SeisLetras() {
    constexpr std::string_view LETRAS = "abcdefghijklmnopqrstuvwxyz0123456789";
    static thread_local std::random_device azar;
    std::string letras;
    for (int i = 0; i < 6; ++i)
        letras += LETRAS[azar() % LETRAS.size()];
    return letras;
}

bool Bloquea(int fd) noexcept {
    return flock(fd, LOCK_EX | LOCK_NB) == 0;
}

// Those of this file that nobody has: of a process that was killed while it saved. What cannot be looked at
// or removed stays, and is no reason not to save.
void QuitaRestos(const fs::path& carpeta, const std::string& prefijo) noexcept try {
    std::error_code error;
    for (fs::directory_iterator entrada(carpeta.empty() ? "." : carpeta, error), fin;
         !error && entrada != fin; entrada.increment(error)) {
        const std::string nombre = entrada->path().filename().string();
        if (nombre.size() != prefijo.size() + 6 || !nombre.starts_with(prefijo)) continue;
        const std::string ruta = (carpeta / nombre).string();
        const Descriptor fd(open(ruta.c_str(), O_RDWR | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK));
        if (*fd >= 0 && Bloquea(*fd)) unlink(ruta.c_str());
    }
} catch (...) {
    return;
}

// Also whoever removes leftovers may have come upon a new one before it was locked.
bool EsMio(int fd) noexcept {
    struct stat estado {};
    const bool bloqueado = Bloquea(fd) || errno != EWOULDBLOCK;  // some file systems have no locks
    return bloqueado && fstat(fd, &estado) == 0 && estado.st_nlink > 0;
}

void VaciaCarpeta(const std::string& archivo) noexcept {
    const std::string carpeta = fs::path(archivo).parent_path().string();
    const Descriptor fd(open(carpeta.empty() ? "." : carpeta.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (*fd >= 0) fsync(*fd);  // some file systems cannot: the rename stands all the same
}

struct CierraArchivo {
    void operator()(std::FILE* archivo) const noexcept { std::fclose(archivo); }
};

void CopiaBytes(const std::string& origen, const std::string& destino) {
    using Archivo = std::unique_ptr<std::FILE, CierraArchivo>;
    std::error_code error;
    if (!fs::is_regular_file(origen, error)) throw Fallo(fs::exists(origen, error) ? 75 : 53);
    const Archivo de(std::fopen(origen.c_str(), "rbe"));
    Archivo a(de ? std::fopen(destino.c_str(), "wbe") : nullptr);
    if (!a) FallaElSistema();
    std::array<char, 65536> trozo{};
    while (const std::size_t leido = std::fread(trozo.data(), 1, trozo.size(), de.get())) {
        if (std::fwrite(trozo.data(), 1, leido, a.get()) != leido) FallaElSistema();
    }
    if (std::ferror(de.get()) != 0) FallaElSistema();
    if (std::fclose(a.release()) != 0) FallaElSistema();
}

// The same path, whose folder has to be there.
const std::string& ConCarpeta(const std::string& destino) {
    const fs::path carpeta = fs::path(destino).parent_path();
    std::error_code error;
    if (!carpeta.empty() && !fs::is_directory(carpeta, error)) throw Fallo(76);
    return destino;
}

}  // namespace

ArchivoTemporal::ArchivoTemporal(const std::string& destino, bool soloDelDueno) {
    const fs::path carpeta = fs::path(destino).parent_path();
    const std::string prefijo = PrefijoDe(destino);
    QuitaRestos(carpeta, prefijo);
    for (int i = 0; i < INTENTOS; ++i) {
        ruta_ = (carpeta / (prefijo + SeisLetras())).string();
        fd_ = open(ruta_.c_str(), O_CREAT | O_EXCL | O_RDWR | O_CLOEXEC, soloDelDueno ? 0600 : 0666);
        if (fd_ >= 0 && EsMio(fd_)) return;
        if (fd_ < 0 && errno != EEXIST) FallaElSistema();
        if (fd_ >= 0) close(fd_);
    }
    throw Fallo(75);
}

ArchivoTemporal::~ArchivoTemporal() {
    if (!ruta_.empty()) unlink(ruta_.c_str());
    close(fd_);
}

void ArchivoTemporal::Renombra(const std::string& destino) {
    if (fsync(fd_) != 0) FallaElSistema();
    if (rename(ruta_.c_str(), destino.c_str()) != 0) FallaElSistema();
    ruta_.clear();
    VaciaCarpeta(destino);
}

ReemplazoDeArchivo::ReemplazoDeArchivo(const std::string& destino) : destino_(SinEnlaces(destino)) {
    struct stat antes {};
    const bool habia = stat(destino_.c_str(), &antes) == 0;
    if (habia) {
        if (!S_ISREG(antes.st_mode)) throw Fallo(75);
        if (access(destino_.c_str(), W_OK) != 0) FallaElSistema();
    }
    temporal_.emplace(ConCarpeta(destino_), habia);
}

void ReemplazoDeArchivo::Confirma() {
    struct stat antes {};
    if (stat(destino_.c_str(), &antes) == 0) {
        mode_t permisos = antes.st_mode & 07777;
        const int fd = temporal_->Descriptor();
        // The owner can be kept only by who may give files away; without the group, what the group
        // could do would go to another one.
        if (fchown(fd, antes.st_uid, antes.st_gid) != 0 &&
            fchown(fd, static_cast<uid_t>(-1), antes.st_gid) != 0) {
            permisos &= ~static_cast<mode_t>(S_IRWXG);
        }
        if (fchmod(fd, permisos) != 0) FallaElSistema();
    }
    temporal_->Renombra(destino_);
}

void CopiaArchivo(const std::string& origen, const std::string& destino) {
    std::error_code error;
    if (fs::equivalent(origen, destino, error)) return;
    ReemplazoDeArchivo reemplazo(destino);
    CopiaBytes(origen, reemplazo.Temporal());
    reemplazo.Confirma();
}

CopiaSinReemplazo::CopiaSinReemplazo(const std::string& origen, const std::string& destino)
    : temporal_(ConCarpeta(destino), false) {
    CopiaBytes(origen, temporal_.Ruta());
}

// The name is taken by an empty file first, which is then the one that is replaced.
bool CopiaSinReemplazo::Confirma(const std::string& destino) {
    {
        const Descriptor sitio(open(destino.c_str(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, 0600));
        if (*sitio < 0 && errno == EEXIST) return false;
        if (*sitio < 0) FallaElSistema();
    }
    try {
        temporal_.Renombra(destino);
    } catch (...) {
        unlink(destino.c_str());
        throw;
    }
    return true;
}

}  // namespace zel
