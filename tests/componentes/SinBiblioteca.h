#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <array>
//
#include <ZELVisorEsquemas/Componentes.h>

#include "support/CarpetaTemporal.h"

namespace zel::pruebas {

inline const QString ESQUEMA = QStringLiteral("ZELVisorEsquemas.Esquema");
inline const QString ELEMENTOS = QStringLiteral("ZELVisorEsquemas.Elementos");
inline const QStringList CLASES = {"Esquema",     "Elementos", "Elemento", "Puntos", "Punto",  "ZelToolBar",
                                   "ZelToolBar2", "StatusBar", "Buttons",  "Boton",  "Panels", "Panel"};
inline const QStringList VISIBLES = {"Esquema", "ZelToolBar", "ZelToolBar2", "StatusBar"};

struct Respuesta {
    int numero = -1;
    std::string texto;
};

// Calls an entry point of the library in that file, as an installer would.
inline Respuesta Entrada(const char* nombre, bool sistema = false, const QString& ruta = ZEL_BIBLIOTECA) {
    QLibrary biblioteca(ruta);
    const auto entrada = reinterpret_cast<int (*)(int, char*, std::size_t)>(biblioteca.resolve(nombre));
    if (!entrada) return {-1, biblioteca.errorString().toStdString()};
    std::array<char, 1024> texto{};
    const int numero = entrada(sistema ? 1 : 0, texto.data(), texto.size());
    return {numero, texto.data()};
}

// A host that has nothing but names, in a folder where the user's and the system's records are its own.
class SinBiblioteca : public testing::Test {
  protected:
    SinBiblioteca() {
        qputenv("XDG_DATA_HOME", (carpeta / "usuario").c_str());
        qputenv("XDG_DATA_DIRS", (carpeta / "sistema").c_str());
    }
    QString DelUsuario(const QString& archivo = {}) const {
        return QString::fromStdString(carpeta / "usuario/zel/componentes/") + archivo;
    }
    QString DelSistema(const QString& archivo = {}) const {
        return QString::fromStdString(carpeta / "sistema/zel/componentes/") + archivo;
    }

    // What an action fails with.
    template <typename Accion>
    static Respuesta Falla(Accion accion) {
        try {
            accion();
        } catch (const FalloDeComponente& fallo) {
            return {fallo.Numero(), fallo.what()};
        }
        return {0, {}};
    }

    CarpetaTemporal carpeta;
};

}  // namespace zel::pruebas
