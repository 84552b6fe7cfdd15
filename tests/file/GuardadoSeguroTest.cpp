#include "file/GuardadoSeguro.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cmath>
#include <csignal>
#include <functional>
#include <random>
#include <set>
#include <thread>

#include "file/lectorArchivo.h"
#include "support/CarpetaTemporal.h"
#include "support/Resultado.h"

namespace zel::pruebas {
namespace {

namespace fs = std::filesystem;
using Esquema = std::shared_ptr<Elementos>;

bool EsPng(const std::string& archivo) {
    return LeeArchivo(archivo).starts_with("png");
}

Esquema Muestra(const std::string& nombre, int cuantos) {
    auto esquema = std::make_shared<Elementos>();
    for (int i = 1; i <= cuantos; ++i)
        esquema->Add(ctNudo, nombre, i, 1, 0, 0, 0, 0, nullptr, nullptr, "k", 0, 0);
    return esquema;
}

class Guardado : public ::testing::Test {
  protected:
    static void Guarda(const fs::path& ruta, const Esquema& esquema) {
        GuardaConSeguridad(ruta.string(), esquema, std::nullopt, true);
    }
    // 0, or the number of the failure.
    static std::string Intenta(const fs::path& ruta, const Esquema& esquema) {
        return Resultado([&] {
            Guarda(ruta, esquema);
            return 0;
        });
    }
    // The bytes of the schematic in a file of its own, which does not stay.
    std::string Bytes(const Esquema& esquema) const {
        Guarda(carpeta_ / "bytes", esquema);
        const std::string bytes = LeeArchivo(carpeta_ / "bytes");
        fs::remove(carpeta_ / "bytes");
        return bytes;
    }
    static std::set<std::string> Nombres(const fs::path& carpeta) {
        std::set<std::string> nombres;
        for (const auto& entrada : fs::directory_iterator(carpeta))
            nombres.insert(entrada.path().filename().string());
        return nombres;
    }
    // What the action does in a process of its own, as a plain user: 0, the failure's number, 255 for
    // anything else.
    static int EnOtroProceso(const std::function<void()>& accion, bool sinPrivilegios) {
        const pid_t hijo = fork();
        if (hijo == 0) {
            try {
                if (sinPrivilegios && geteuid() == 0 && (setgid(65534) != 0 || setuid(65534) != 0))
                    _exit(254);
                accion();
                _exit(0);
            } catch (const Fallo& fallo) {
                _exit(fallo.Number());
            } catch (...) {
                _exit(255);
            }
        }
        int estado = 0;
        EXPECT_EQ(waitpid(hijo, &estado, 0), hijo);
        return WIFEXITED(estado) ? WEXITSTATUS(estado) : 1000 + WTERMSIG(estado);
    }
    static unsigned Permisos(const fs::path& ruta) {
        return static_cast<unsigned>(fs::status(ruta).permissions());
    }

    const CarpetaTemporal carpeta_;
    const fs::path ruta_ = carpeta_ / "año.xml";
    const Esquema viejo_ = Muestra("viejo", 150);
    const Esquema nuevo_ = Muestra("nuevo y más largo", 300);
    const std::string bytesViejos_ = Bytes(viejo_);
    const std::string bytesNuevos_ = Bytes(nuevo_);
};

TEST_F(Guardado, LeavesOneWholeSchematicWhenItIsKilled) {
    ASSERT_NE(bytesViejos_, bytesNuevos_);
    // The kills come within about two savings of each, however fast these are here.
    const auto antes = std::chrono::steady_clock::now();
    Guarda(ruta_, nuevo_);
    Guarda(ruta_, viejo_);
    const auto parDeGuardados =
        std::chrono::duration_cast<std::chrono::microseconds>(std::chrono::steady_clock::now() - antes);
    std::mt19937 azar(20240607);
    std::uniform_int_distribution<std::int64_t> microsegundos(0, 2 * parDeGuardados.count() + 2000);
    int viejos = 0, nuevos = 0;
    std::size_t aMedias = 0;
    for (int vez = 0; vez < 150; ++vez) {
        const pid_t hijo = fork();
        ASSERT_GE(hijo, 0);
        if (hijo == 0) {
            try {
                for (;;) {
                    Guarda(ruta_, nuevo_);
                    Guarda(ruta_, viejo_);
                }
            } catch (...) {
                _exit(1);
            }
        }
        std::this_thread::sleep_for(std::chrono::microseconds(microsegundos(azar)));
        kill(hijo, SIGKILL);
        int estado = 0;
        ASSERT_EQ(waitpid(hijo, &estado, 0), hijo);
        ASSERT_TRUE(WIFSIGNALED(estado)) << "the saving ended by itself";
        const std::string bytes = LeeArchivo(ruta_);
        ASSERT_TRUE(bytes == bytesViejos_ || bytes == bytesNuevos_) << vez << ": " << bytes.size();
        ++(bytes == bytesViejos_ ? viejos : nuevos);
        for (const std::string& nombre : Nombres(carpeta_ / "")) {
            if (nombre != "año.xml") aMedias += fs::remove(carpeta_ / nombre);
        }
    }
    // The kills came at all sorts of moments.
    EXPECT_GT(viejos, 0);
    EXPECT_GT(nuevos, 0);
    EXPECT_GT(aMedias, 10U);
    RecordProperty("saves_cut_short", static_cast<int>(aMedias));
}

TEST_F(Guardado, KeepsTheOldFileWhenTheDiskIsFull) {
    const auto con = [&](std::size_t limite) {
        return EnOtroProceso(
            [&] {
                std::signal(SIGXFSZ, SIG_IGN);
                const rlimit tope{limite, limite};
                if (setrlimit(RLIMIT_FSIZE, &tope) != 0) _exit(253);
                Guarda(ruta_, nuevo_);
            },
            false);
    };
    for (const bool habia : {false, true}) {
        if (habia) Guarda(ruta_, viejo_);
        for (const std::size_t limite :
             {std::size_t{0}, std::size_t{100}, std::size_t{1000}, std::size_t{4096}, bytesNuevos_.size() / 2,
              bytesNuevos_.size() - 1}) {
            EXPECT_EQ(con(limite), 61) << limite;
            EXPECT_EQ(LeeArchivo(ruta_), habia ? bytesViejos_ : "") << limite;
            EXPECT_EQ(Nombres(carpeta_ / "").size(), habia ? 1U : 0U) << limite;
        }
    }
    EXPECT_EQ(con(bytesNuevos_.size()), 0);
    EXPECT_EQ(LeeArchivo(ruta_), bytesNuevos_);
}

TEST_F(Guardado, FollowsLinksAndLeavesThemInPlace) {
    fs::create_directories(carpeta_ / "real/hondo");
    fs::create_directory(carpeta_ / "enlaces");
    fs::create_directory_symlink("../real", carpeta_ / "enlaces/carpeta");
    const struct {
        const char *enlace, *apunta, *archivo;
        bool existe;
    } FILAS[] = {
        {"enlaces/absoluto.xml", nullptr, "real/a.xml", true},
        {"enlaces/relativo.xml", "../real/b.xml", "real/b.xml", true},
        {"enlaces/doble.xml", "relativo.xml", "real/b.xml", true},
        {"enlaces/colgado.xml", "carpeta/c.xml", "real/c.xml", false},
        {"enlaces/carpeta/d.xml", "hondo/d.xml", "real/hondo/d.xml", false},
        {"suelto.xml", "real/e.xml", "real/e.xml", true},
    };
    for (const auto& fila : FILAS) {
        SCOPED_TRACE(fila.enlace);
        if (fila.existe) Guarda(carpeta_ / fila.archivo, viejo_);
        const fs::path apunta = fila.apunta ? fs::path(fila.apunta) : carpeta_ / fila.archivo;
        fs::create_symlink(apunta, carpeta_ / fila.enlace);
        // A bare name, too, is taken from the current folder.
        Guarda(std::string(fila.enlace) == "suelto.xml" ? fs::path("suelto.xml") : carpeta_ / fila.enlace,
               nuevo_);
        EXPECT_EQ(fs::read_symlink(carpeta_ / fila.enlace), apunta);
        EXPECT_FALSE(fs::is_symlink(carpeta_ / fila.archivo));
        EXPECT_EQ(LeeArchivo(carpeta_ / fila.archivo), bytesNuevos_);
    }
    EXPECT_EQ(Nombres(carpeta_ / "real"),
              (std::set<std::string>{"a.xml", "b.xml", "c.xml", "d.xml", "e.xml", "hondo"}));
    EXPECT_EQ(Nombres(carpeta_ / "enlaces").size(), 5U);
    fs::create_symlink("vuelta.xml", carpeta_ / "vuelta.xml");
    EXPECT_EQ(Intenta(carpeta_ / "vuelta.xml", nuevo_), "!75");
}

TEST_F(Guardado, ReadsThePictureBackThroughALink) {
    fs::create_directory(carpeta_ / "real");
    fs::create_directory(carpeta_ / "imagenes");
    const std::string imagen = carpeta_.Escribe("imagenes/fondo.png", "png");
    Guarda(carpeta_ / "real/a.xml", viejo_);
    fs::create_symlink("real/a.xml", ruta_);
    GuardaConSeguridad(ruta_.string(), nuevo_, ImagenGuardada{imagen, 1, 2, 3, 4, false}, true, EsPng);
    lectorArchivo lector;
    lector.NombreArchivo(ruta_.string());
    const auto textos = lector.LeeImagenFondo();
    ASSERT_TRUE(textos && textos->Count() == 6);
    EXPECT_EQ(LeeArchivo(textos->Item("Archivo")), "png") << textos->Item("Archivo");
}

TEST_F(Guardado, KeepsThePermissionsAndHonoursTheMaskForANewFile) {
    for (const unsigned permisos : {0640U, 0600U, 0666U, 0755U}) {
        Guarda(ruta_, viejo_);
        ASSERT_EQ(chmod(ruta_.c_str(), permisos), 0);
        Guarda(ruta_, nuevo_);
        EXPECT_EQ(Permisos(ruta_), permisos);
        EXPECT_EQ(LeeArchivo(ruta_), bytesNuevos_);
    }
    for (const mode_t mascara : {0022U, 0077U, 0002U}) {
        fs::remove(ruta_);
        const mode_t antes = umask(mascara);
        Guarda(ruta_, nuevo_);
        EXPECT_EQ(umask(antes), mascara);
        EXPECT_EQ(Permisos(ruta_), 0666U & ~mascara);
    }
}

TEST_F(Guardado, LeavesNothingWhenItCannotSave) {
    fs::create_directory(carpeta_ / "carpeta");
    Guarda(ruta_, viejo_);
    const auto malo = Muestra("malo", 3);
    malo->Item(2)->Tipo(ctConduccion1);
    const struct {
        std::string nombre;
        Esquema esquema;
        const char* fallo;
    } FILAS[] = {
        {"carpeta", nuevo_, "!75"},       {"carpeta/", nuevo_, "!75"}, {"falta/a.xml", nuevo_, "!76"},
        {"año.xml/a.xml", nuevo_, "!76"}, {"año.xml", malo, "!5"},     {"otro.xml", malo, "!5"},
        {"año.xml", nullptr, "!91"},
    };
    for (const auto& fila : FILAS) {
        EXPECT_EQ(Intenta((carpeta_ / "").string() + fila.nombre, fila.esquema), fila.fallo) << fila.nombre;
        EXPECT_EQ(LeeArchivo(ruta_), bytesViejos_);
        EXPECT_EQ(Nombres(carpeta_ / ""), (std::set<std::string>{"año.xml", "carpeta"})) << fila.nombre;
        EXPECT_TRUE(fs::is_empty(carpeta_ / "carpeta"));
    }
    try {
        Guarda(ruta_, malo);
        FAIL() << "saved";
    } catch (const Fallo& fallo) {
        EXPECT_NE(fallo.Description().find("posición 2"), std::string::npos) << fallo.Description();
    }
}

TEST_F(Guardado, LeavesNoPictureCopyWhenTheSavingFails) {
    fs::create_directory(carpeta_ / "imagenes");
    const std::string imagen = carpeta_.Escribe("imagenes/fondo.png", "png nueva");
    carpeta_.Escribe("fondo.png", "vieja");
    Guarda(ruta_, viejo_);
    EXPECT_EQ(EnOtroProceso(
                  [&] {
                      std::signal(SIGXFSZ, SIG_IGN);
                      const rlimit tope{4096, 4096};
                      if (setrlimit(RLIMIT_FSIZE, &tope) != 0) _exit(253);
                      GuardaConSeguridad(ruta_.string(), nuevo_, ImagenGuardada{imagen, 0, 0, 1, 1, false},
                                         true, EsPng);
                  },
                  false),
              61);
    EXPECT_EQ(LeeArchivo(ruta_), bytesViejos_);
    EXPECT_EQ(LeeArchivo(carpeta_ / "fondo.png"), "vieja");
    EXPECT_EQ(Nombres(carpeta_ / ""), (std::set<std::string>{"año.xml", "fondo.png", "imagenes"}));
}

TEST_F(Guardado, RefusesWhatWouldNotOpenAgainAndNamesTheElements) {
    Guarda(ruta_, viejo_);
    const auto malo = Muestra("malo", 9);
    malo->Item(6)->gfCodSIG(7);
    malo->Item(2)->XPos(NAN);
    const auto corto =
        malo->Add(ctToma, "Acequia", 20, 1, 0, 0, 1, 2, std::make_shared<Puntos>(), nullptr, "20", 0, 0);
    corto->Trazado()->Add(1, 1);
    try {
        Guarda(ruta_, malo);
        FAIL() << "saved";
    } catch (const Fallo& fallo) {
        EXPECT_EQ(
            fallo.Description(),
            "El elemento en la posición 2, \"malo\" (código 2), tiene una posición u otro valor que no es "
            "un número. El elemento en la posición 7, \"malo\" (código 7), tiene el mismo código que el "
            "de la posición 6, \"malo\". El elemento en la posición 10, \"Acequia\" (código 20), tiene "
            "un trazado de menos de dos puntos");
    }
    malo->Item(2)->XPos(0);
    malo->Item(6)->gfCodSIG(6);
    malo->Item(10)->Nombre(std::string(59, 'x') + "ñ\n" + std::string(11'000'000, 'x'));
    try {
        Guarda(ruta_, malo);
        FAIL() << "saved";
    } catch (const Fallo& fallo) {
        EXPECT_TRUE(fallo.Description().ends_with(", \"" + std::string(59, 'x') +
                                                  "ñ...\" (código 20), tiene un nombre demasiado largo"))
            << fallo.Description().substr(0, 200);
    }
    const auto muchos = Muestra("m", 32767);
    EXPECT_EQ(Intenta(carpeta_ / "muchos.xml", muchos), "0");
    muchos->Add(ctNudo, "m", 32768, 1, 0, 0, 0, 0, nullptr, nullptr, "k", 0, 0);
    EXPECT_EQ(Intenta(ruta_, muchos), "!5");
    EXPECT_EQ(LeeArchivo(ruta_), bytesViejos_);
}

TEST_F(Guardado, RemovesWhatAKilledSaveHasLeftAndNothingElse) {
    Guarda(ruta_, viejo_);
    const auto resto = [&](const char* nombre) { return carpeta_.Escribe(nombre, "a medias"); };
    const std::string suyo = resto(".año.xml.zel-abc123"), ajeno = resto(".otro.xml.zel-abc123"),
                      largo = resto(".año.xml.zel-abc1234"), enUso = resto(".año.xml.zel-enuso1");
    const int fd = open(enUso.c_str(), O_RDWR);
    ASSERT_EQ(flock(fd, LOCK_EX | LOCK_NB), 0);
    Guarda(ruta_, nuevo_);
    close(fd);
    EXPECT_FALSE(fs::exists(suyo));
    for (const std::string& queda : {ajeno, largo, enUso})
        EXPECT_TRUE(fs::exists(queda)) << queda;
}

TEST_F(Guardado, RefusesWhatAPlainUserMayNotWrite) {
    fs::create_directory(carpeta_ / "cerrada");
    const fs::path dentro = carpeta_ / "cerrada/a.xml", solo = carpeta_ / "solo.xml";
    Guarda(dentro, viejo_);
    Guarda(solo, viejo_);
    chmod(dentro.c_str(), 0666);
    chmod(solo.c_str(), 0444);
    chmod((carpeta_ / "cerrada").c_str(), 0555);
    chmod((carpeta_ / "").c_str(), 0777);
    for (const fs::path& ruta : {dentro, carpeta_ / "cerrada/nuevo.xml", solo})
        EXPECT_EQ(EnOtroProceso([&] { Guarda(ruta, nuevo_); }, true), 70) << ruta;
    EXPECT_EQ(LeeArchivo(dentro), bytesViejos_);
    EXPECT_EQ(LeeArchivo(solo), bytesViejos_);
    EXPECT_EQ(Nombres(carpeta_ / "cerrada"), std::set<std::string>{"a.xml"});
    EXPECT_EQ(Nombres(carpeta_ / ""), (std::set<std::string>{"cerrada", "solo.xml"}));
    chmod((carpeta_ / "cerrada").c_str(), 0755);
}

TEST_F(Guardado, CopiesAPictureThatIsReadOnly) {
    fs::create_directory(carpeta_ / "imagenes");
    const std::string imagen = carpeta_.Escribe("imagenes/fondo.png", "png");
    chmod(imagen.c_str(), 0444);
    chmod((carpeta_ / "").c_str(), 0777);
    EXPECT_EQ(EnOtroProceso(
                  [&] {
                      GuardaConSeguridad(ruta_.string(), nuevo_, ImagenGuardada{imagen, 0, 0, 1, 1, false},
                                         true, EsPng);
                  },
                  true),
              0);
    EXPECT_EQ(LeeArchivo(carpeta_ / "fondo.png"), "png");
    EXPECT_NE(LeeArchivo(ruta_).find("<Archivo>fondo.png</Archivo>"), std::string::npos);
}

}  // namespace
}  // namespace zel::pruebas
