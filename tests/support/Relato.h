#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "drawing/AjustesDibujo.h"
#include "model/Elementos.h"
#include "model/modErrorHandling.h"
#include "platform/Numeros.h"
#include "support/SuperficieGrabadora.h"

namespace zel::pruebas {

using Trazo = SuperficieGrabadora::Trazo;
using Que = SuperficieGrabadora::Que;
using Vertices = std::vector<PuntoXY>;

// In state 9. On the recording surface the plain text has 8 points: 8 units per character, 16 high.
inline AjustesDibujo Ajustes(float escalaDibujo = 1600, bool conParrilla = false) {
    AjustesDibujo ajustes;
    ajustes.iEstado = 9;
    ajustes.EscalaDibujo = escalaDibujo;
    ajustes.bVistaActualizada = conParrilla;
    return ajustes;
}

inline std::shared_ptr<Puntos> Traza(const Vertices& vertices) {
    auto traza = std::make_shared<Puntos>();
    for (const PuntoXY& v : vertices)
        traza->Add(v.X, v.Y);
    return traza;
}

// An element with the number 7 and no label.
inline Elemento Simbolo(TipoElemento tipo, PuntoXY donde, float tamanyo = 1) {
    Elemento e;
    e.Tipo(tipo);
    e.XPos(donde.X);
    e.YPos(donde.Y);
    e.Tamanyo(tamanyo);
    e.KeyPant(7);
    e.MostrarEtiqueta(false);
    return e;
}

inline Elemento Rotulado(const std::string& nombre, PuntoXY donde, float tamanyo = 1, float factor = 1,
                         bool relativo = true) {
    Elemento e = Simbolo(ctNudo, donde, tamanyo);
    e.Nombre(nombre);
    e.MostrarEtiqueta(true);
    e.EtiquetaTamanyo(factor);
    e.EtiquetaTamanyoRelativo(relativo);
    return e;
}

inline Elemento ConNombre(Elemento e, const std::string& nombre) {
    e.Nombre(nombre);
    e.MostrarEtiqueta(true);
    return e;
}

// The second trace of a hydro plant is its first one too, unless another is given.
inline Elemento Lineal(TipoElemento tipo, PuntoXY donde, const Vertices& traza, float tamanyo = 1,
                       const Vertices& traza2 = {}) {
    Elemento e = Simbolo(tipo, donde, tamanyo);
    e.Trazado(Traza(traza));
    if (tipo == ctCentralHidroelectrica) e.Trazado2(Traza(traza2.empty() ? traza : traza2));
    return e;
}

inline Elemento SinTraza(TipoElemento tipo, PuntoXY donde) {
    Elemento e = Lineal(tipo, donde, {});
    e.Trazado(nullptr);
    return e;
}

// Adds them numbered from 1, in code and on the screen.
inline void Numera(Elementos& elementos, std::vector<Elemento> nuevos) {
    for (Elemento& e : nuevos) {
        e.gfCodSIG(elementos.Count() + 1);
        e.KeyPant(static_cast<std::int16_t>(elementos.Count() + 1));
        elementos.AddObjetoElemento(e);
    }
}

inline std::string Cifra(double valor, double decimales = 100) {
    return TextoDeNumero(std::round(valor * decimales) / decimales);
}

// What was drawn, in words: "linea 1,2 3,4; circulo 1,2 r4; arco 1,2 r4 0..3.1416; texto 1,2 7".
inline std::string Relato(const std::vector<Trazo>& trazos) {
    static const char* const NOMBRES[] = {"linea", "caja", "circulo", "arco", "punto", "texto", "imagen"};
    std::string relato;
    for (const Trazo& t : trazos) {
        relato += (relato.empty() ? "" : "; ") + std::string(NOMBRES[static_cast<int>(t.que)]);
        for (const PuntoXY& p : t.puntos)
            relato += " " + Cifra(p.X) + "," + Cifra(p.Y);
        if (t.radio != 0) relato += " r" + Cifra(t.radio);
        if (t.que == Que::Arco) relato += " " + Cifra(t.inicio, 1e4) + ".." + Cifra(t.fin, 1e4);
        if (t.que == Que::Texto) relato += " " + t.texto;
    }
    return relato;
}

// The points of a trace; empty without one.
inline std::string Relato(const std::shared_ptr<Puntos>& traza) {
    std::string relato;
    for (std::int32_t i = 1; traza && i <= traza->Count(); ++i)
        relato += (i > 1 ? " " : "") + Cifra(traza->Item(i)->XPos()) + "," + Cifra(traza->Item(i)->YPos());
    return relato;
}

// A pen in words: "modo 13 estilo 0 ancho 1 color 255".
inline std::string Pincel(const Superficie::Pluma& p) {
    return "modo " + std::to_string(p.DrawMode) + " estilo " + std::to_string(p.DrawStyle) + " ancho " +
           std::to_string(p.DrawWidth) + " color " + std::to_string(p.ForeColor);
}

// That the call raises an error whose description has all of these parts.
template <typename Llamada>
testing::AssertionResult Falla(Llamada llamada, const std::vector<std::string>& partes) {
    try {
        llamada();
    } catch (const Error& error) {
        if (error.Number() != BASE_ERRORES + TEXTO_LIBRE)
            return testing::AssertionFailure() << error.Number();
        for (const std::string& parte : partes) {
            if (error.Description().find(parte) == std::string::npos)
                return testing::AssertionFailure() << parte << " is not in: " << error.Description();
        }
        return testing::AssertionSuccess();
    }
    return testing::AssertionFailure() << "no error";
}

}  // namespace zel::pruebas
