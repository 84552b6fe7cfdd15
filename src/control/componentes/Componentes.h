#pragma once

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLibrary>
#include <QMetaObject>
#include <QStandardPaths>
#include <QStringList>
#include <QVariant>
#include <QVersionNumber>
#include <algorithm>
#include <array>
#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <stdexcept>
#include <utility>
#include <vector>

class QWidget;

namespace zel {

// The component model's side of a host: objects made and used by their names alone. This header needs nothing
// but Qt, and a program that uses it links nothing of the library, which it finds by the record that
// `zelvisor --registra` leaves. Names are found without regard to case. Texts for the user are Spanish.

// What has to be equal in the host and in the library for them to understand each other: this header's
// classes.
inline constexpr int INTERFAZ_POR_NOMBRE = 1;

// What cannot be done. Numbers of the component model: 48 the library cannot be loaded or is not the one
// registered, 53 it is gone, 321 a damaged record, 429 a class that nobody registered; all others are the
// system's (438: no such name; 91: the object is gone; 13, 6: a value that is none of the wanted type).
class FalloDeComponente : public std::runtime_error {
  public:
    FalloDeComponente(int numero, const QString& texto)
        : std::runtime_error(texto.toStdString()), numero_(numero) {}
    int Numero() const noexcept { return numero_; }
    QString Texto() const { return QString::fromUtf8(what()); }

  private:
    int numero_;
};

// An object whose properties, methods and events are found by name. All raise FalloDeComponente.
//
// Objects travel in a QVariant as Referencia, below; one that is not valid is no object, or an argument left
// out. A host may derive from this class what it hands over to be read, a row of its own data for instance:
// AddObjetoElemento, AddElemento and CopiaPropiedades ask it for the properties of an element.
class ObjetoPorNombre {
  public:
    enum Genero { PROPIEDAD = 1, METODO = 2, SUCESO = 4, TODO = 7 };
    // The arguments of an event; those that the event passes by reference can be changed.
    using Reaccion = std::function<void(QVariantList& argumentos)>;

    ObjetoPorNombre() = default;
    ObjetoPorNombre(const ObjetoPorNombre&) = delete;
    ObjetoPorNombre& operator=(const ObjetoPorNombre&) = delete;
    virtual ~ObjetoPorNombre() = default;

    virtual QVariant Lee(const QString& nombre) const = 0;
    virtual void Escribe(const QString& nombre, const QVariant&) { NoHay(nombre); }
    // A method. A property is read when called without an argument and written when called with one.
    virtual QVariant Llama(const QString& nombre, const QVariantList& = {}) { NoHay(nombre); }
    // Calls `reaccion`, which may not throw, whenever the event happens, until the connection is undone or
    // the object is gone. Elements come as Referencia.
    virtual QMetaObject::Connection AlOcurrir(const QString& suceso, Reaccion) { NoHay(suceso); }

    virtual QString Clase() const { return {}; }
    // The names of those kinds, and what each is; without a name, what the class is.
    virtual QStringList Nombres(int /*generos*/ = TODO) const { return {}; }
    virtual QString Ayuda(const QString& = {}) const { return {}; }
    // Equal for two references to one object.
    virtual const void* Identidad() const noexcept { return this; }

  protected:
    [[noreturn]] static void NoHay(const QString& nombre) {
        throw FalloDeComponente(438, QStringLiteral("El objeto no tiene esa propiedad: ") + nombre);
    }
};
using Referencia = std::shared_ptr<ObjetoPorNombre>;

// A class of the library, which makes its objects. It lasts as long as the library stays loaded.
class ClasePorNombre {
  public:
    ClasePorNombre() = default;
    ClasePorNombre(const ClasePorNombre&) = delete;
    ClasePorNombre& operator=(const ClasePorNombre&) = delete;
    virtual ~ClasePorNombre() = default;

    virtual QString Nombre() const = 0;
    virtual QStringList Nombres(int generos = ObjetoPorNombre::TODO) const = 0;
    virtual QString Ayuda(const QString& nombre = {}) const = 0;

    // A new object: of a visible class, a widget, which belongs to its parent or, without one, to the host.
    // Each raises where the other one is meant.
    virtual Referencia Crea() const = 0;
    virtual QWidget* CreaWidget(QWidget* padre) const = 0;
    // A widget of this class by name, whoever made it; nothing when it is of another.
    virtual Referencia PorNombre(QWidget* widget) const = 0;
};

// What a library tells of itself when it is registered.
struct RegistroDeComponente {
    struct Clase {
        QString nombre;
        QString ayuda;
    };
    QString archivo;  // the record itself
    QString biblioteca;
    QString ruta;
    QString ayuda;
    QVersionNumber version;
    int interfaz = 0;
    QList<Clase> clases;

    // The folders in which records are looked for: the user's, then the system's.
    static QStringList Carpetas() {
        QStringList carpetas = QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation);
        for (QString& carpeta : carpetas)
            carpeta += QStringLiteral("/zel/componentes");
        return carpetas;
    }

    // Nothing when the record is damaged.
    static std::optional<RegistroDeComponente> Lee(const QString& archivo) {
        QFile lectura(archivo);
        if (!lectura.open(QIODevice::ReadOnly)) return std::nullopt;
        const QJsonObject raiz = QJsonDocument::fromJson(lectura.readAll()).object();
        const auto texto = [&raiz](const char* clave) { return raiz[QLatin1String(clave)].toString(); };
        RegistroDeComponente r{archivo,
                               texto("biblioteca"),
                               texto("ruta"),
                               texto("ayuda"),
                               QVersionNumber::fromString(texto("version")),
                               raiz[QStringLiteral("interfaz")].toInt(),
                               {}};
        for (const auto& clase : raiz[QStringLiteral("clases")].toArray()) {
            r.clases.push_back({clase.toObject()[QStringLiteral("nombre")].toString(),
                                clase.toObject()[QStringLiteral("ayuda")].toString()});
            if (r.clases.back().nombre.isEmpty()) return std::nullopt;
        }
        const bool completo = !r.biblioteca.isEmpty() && QDir::isAbsolutePath(r.ruta) &&
                              !r.version.isNull() && r.interfaz > 0 && !r.clases.isEmpty();
        return completo ? std::optional(r) : std::nullopt;
    }

    bool Ofrece(const QString& clase) const {
        return std::any_of(clases.begin(), clases.end(), [&clase](const Clase& c) {
            return c.nombre.compare(clase, Qt::CaseInsensitive) == 0;
        });
    }
};

// The libraries that a host has found by name. Each of its calls may load one and raises FalloDeComponente.
// The newest version that understands this header is taken, the user's before the system's, unless a version
// is asked for.
class Componentes {
  public:
    Componentes() = default;
    Componentes(const Componentes&) = delete;
    Componentes& operator=(const Componentes&) = delete;
    ~Componentes() { Suelta(); }

    // The object of a class that is not seen, and the widget of one that is; see ClasePorNombre.
    Referencia Crea(const QString& clase, const QVersionNumber& version = {}) {
        return Clase(clase, version).Crea();
    }
    QWidget* CreaWidget(const QString& clase, QWidget* padre = nullptr, const QVersionNumber& version = {}) {
        return Clase(clase, version).CreaWidget(padre);
    }
    const ClasePorNombre& Clase(const QString& clase, const QVersionNumber& version = {}) {
        const RegistroDeComponente registro = Busca(clase, version);
        for (const Cargada& c : cargadas_) {
            if (c.registro.ruta == registro.ruta) return ClaseDe(c, clase, registro);
        }
        cargadas_.push_back(Carga(registro));
        try {
            return ClaseDe(cargadas_.back(), clase, registro);
        } catch (...) {
            cargadas_.back().biblioteca->unload();
            cargadas_.pop_back();
            throw;
        }
    }

    // A widget of a library loaded here by name: one that CreaWidget gave, or a part of it.
    Referencia PorNombre(QWidget* widget) const {
        for (const Cargada& cargada : cargadas_) {
            for (const auto& clase : cargada.registro.clases) {
                if (auto r = ClaseDe(cargada, clase.nombre, cargada.registro).PorNombre(widget)) return r;
            }
        }
        throw FalloDeComponente(13, QStringLiteral("El control no es de ninguna clase registrada"));
    }

    // Whether none of the objects that the libraries made or handed out by name is alive.
    bool PuedenDescargarse() const {
        return std::all_of(cargadas_.begin(), cargadas_.end(), [](const Cargada& c) { return c.puede(); });
    }
    // Lets go of the libraries that can be unloaded; true when all went.
    bool Suelta() {
        std::erase_if(cargadas_, [](const Cargada& c) {
            if (!c.puede()) return false;
            c.biblioteca->unload();  // another part of the program may go on with it
            return true;
        });
        return cargadas_.empty();
    }

  private:
    using FuncionClase = int (*)(const char*, const char*, int, const void**, char*, std::size_t);
    using FuncionPuede = int (*)();
    struct Cargada {
        RegistroDeComponente registro;
        std::unique_ptr<QLibrary> biblioteca;
        FuncionClase clase;
        FuncionPuede puede;
    };

    static RegistroDeComponente Busca(const QString& clase, const QVersionNumber& version) {
        const QVersionNumber pedida = version.normalized();
        const QString comienzo = clase.section(u'.', 0, 0) + u'-';
        QStringList otras;
        for (const QString& carpeta : RegistroDeComponente::Carpetas()) {
            std::optional<RegistroDeComponente> mejor;
            QString danado;
            for (const auto& entrada : QDir(carpeta).entryInfoList({QStringLiteral("*.json")}, QDir::Files)) {
                const auto registro = RegistroDeComponente::Lee(entrada.filePath());
                if (!registro) {
                    if (entrada.fileName().startsWith(comienzo, Qt::CaseInsensitive))
                        danado = entrada.filePath();
                    continue;
                }
                if (!registro->Ofrece(clase)) continue;
                if (registro->interfaz != INTERFAZ_POR_NOMBRE ||
                    (!version.isNull() && registro->version.normalized() != pedida)) {
                    otras.push_back(registro->version.toString());
                } else if (!mejor || mejor->version < registro->version) {
                    mejor = registro;
                }
            }
            if (mejor) return *mejor;
            if (!danado.isEmpty()) {
                throw FalloDeComponente(321, QStringLiteral("El registro %1 está dañado. Bórrelo y vuelva a "
                                                            "registrar la biblioteca: zelvisor --registra")
                                                 .arg(QDir::toNativeSeparators(danado)));
            }
        }
        if (otras.isEmpty()) {
            throw FalloDeComponente(429, QStringLiteral("Nadie ha registrado la clase \"%1\". Registre la "
                                                        "biblioteca que la tiene: zelvisor --registra")
                                             .arg(clase));
        }
        throw FalloDeComponente(
            429, QStringLiteral("De la clase \"%1\" no está registrada %2. Versiones "
                                "registradas: %3")
                     .arg(clase,
                          version.isNull() ? QStringLiteral("ninguna versión que este programa entienda")
                                           : QStringLiteral("la versión ") + version.toString(),
                          otras.join(QStringLiteral(", "))));
    }

    static Cargada Carga(const RegistroDeComponente& registro) {
        if (!QFile::exists(registro.ruta)) {
            throw FalloDeComponente(53, QStringLiteral("La biblioteca %1 ya no está. Vuelva a instalarla y a "
                                                       "registrarla (zelvisor --registra), o borre %2")
                                            .arg(registro.ruta, registro.archivo));
        }
        auto biblioteca = std::make_unique<QLibrary>(registro.ruta);
        if (!biblioteca->load()) {
            throw FalloDeComponente(48, QStringLiteral("La biblioteca %1 no se puede cargar: %2")
                                            .arg(registro.ruta, biblioteca->errorString()));
        }
        // The entry points are the C functions of these names.
        const auto clase = reinterpret_cast<FuncionClase>(biblioteca->resolve("zelObjetoDeClase"));
        const auto puede = reinterpret_cast<FuncionPuede>(biblioteca->resolve("zelPuedeDescargarse"));
        if (!clase || !puede) {
            biblioteca->unload();
            throw FalloDeComponente(48, QStringLiteral("La biblioteca %1 no tiene componentes. Borre %2")
                                            .arg(registro.ruta, registro.archivo));
        }
        return {registro, std::move(biblioteca), clase, puede};
    }

    static const ClasePorNombre& ClaseDe(const Cargada& cargada, const QString& clase,
                                         const RegistroDeComponente& registro) {
        const void* encontrada = nullptr;
        std::array<char, 1024> texto{};
        const int numero =
            cargada.clase(clase.toUtf8().constData(), registro.version.toString().toUtf8().constData(),
                          INTERFAZ_POR_NOMBRE, &encontrada, texto.data(), texto.size());
        if (numero != 0) {
            throw FalloDeComponente(
                numero, QStringLiteral("La biblioteca %1 no es la que dice %2: %3. Vuelva a "
                                       "registrarla: zelvisor --registra")
                            .arg(registro.ruta, registro.archivo, QString::fromUtf8(texto.data())));
        }
        return *static_cast<const ClasePorNombre*>(encontrada);
    }

    std::vector<Cargada> cargadas_;
};

}  // namespace zel
