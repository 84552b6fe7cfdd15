#include "GeneraRed.h"

#include <array>
#include <filesystem>
#include <fstream>
#include <random>
#include <stdexcept>
#include <vector>

#include "file/Formato.h"
#include "file/lectorArchivo.h"
#include "model/TipoElemento.h"
#include "platform/Numeros.h"
#include "platform/Texto.h"

namespace zel::bench {

namespace {

constexpr int VERTICES = 7;
constexpr float PASO = 40;  // world units between neighbours
constexpr int COLUMNAS = 128;

// Of every 20 elements, 10 are points and 10 are linear.
constexpr std::array<TipoElemento, 20> MEZCLA = {
    ctNudo, ctConduccion1, ctNudo,        ctConduccion2, ctEmbalse, ctConduccion1, ctDemanda,
    ctToma, ctNudo,        ctConduccion3, ctAcuifero,    ctRecarga, ctNudo,        ctCentralHidroelectrica,
    ctNudo, ctAportacion,  ctNudo,        ctRetorno,     ctNudo,    ctBombeo};

// The kinds left out of the mixture take turns in the place of the first conduit.
TipoElemento TipoDe(int i) {
    if (i % 20 != 1) return MEZCLA[static_cast<std::size_t>(i % 20)];
    constexpr std::array<TipoElemento, 4> TURNOS = {ctConduccion4, ctConduccion5, ctSubcuenca, ctConduccion1};
    return TURNOS[static_cast<std::size_t>(i / 20 % 4)];
}

struct Lugar {
    float x, y;
};
Lugar LugarDe(int i) {
    return {PASO * static_cast<float>(i % COLUMNAS), PASO * static_cast<float>(i / COLUMNAS)};
}

class Documento {
  public:
    void Hijo(const char* nombre, const std::string& texto) {
        xml += '<';
        xml += nombre;
        xml += '>';
        xml += texto;
        xml += "</";
        xml += nombre;
        xml += '>';
    }
    void Linea(Lugar a, Lugar b) {
        xml += "<Linea>";
        for (int v = 0; v < VERTICES; ++v) {
            const float t = static_cast<float>(v) / (VERTICES - 1);
            const float lado = v % 2 == 0 ? 1.5F : -1.5F;
            xml += "<Punto>";
            Hijo("X", TextoDeNumero(a.x + (b.x - a.x) * t + lado * 0.37F));
            Hijo("Y", TextoDeNumero(a.y + (b.y - a.y) * t + lado));
            xml += "</Punto>";
        }
        xml += "</Linea>";
    }
    std::string xml;
};

void Elemento(Documento& d, int i, int cuantos) {
    const TipoElemento tipo = TipoDe(i);
    const Lugar lugar = LugarDe(i);
    const int destino = i + 1 < cuantos ? i + 1 : i - 1;
    d.xml += "<Elemento>";
    d.Hijo("ColorIcono", i % 7 == 0 ? "12345678" : "-1");
    d.Hijo("ConecSec1", i % 50 == 4 ? std::to_string(destino + 1) : "-1");
    d.Hijo("ConecSec2", "-1");
    d.Hijo("TextoGiro", "0");
    d.Hijo("NombrePosX", "5.2");
    d.Hijo("NombrePosY", "4");
    d.Hijo("NombreTamanyo", "1");
    d.Hijo("gfCodSig", std::to_string(i + 1));
    d.Hijo("NumUser", std::to_string(i + 1));
    d.Hijo("Nombre", Latin1(std::string(NombreDeTipo(tipo)) + " nº " + std::to_string(i + 1)));
    d.Hijo("Tamanyo", i % 11 == 0 ? "1.5" : "1");
    d.Hijo("Tipo", std::to_string(CODIGOS_DE_TIPO[static_cast<std::size_t>(tipo)]));
    d.Hijo("Valor", "0");
    d.Hijo("posX", TextoDeNumero(lugar.x));
    d.Hijo("posY", TextoDeNumero(lugar.y));
    d.Hijo("NombreMovido", "0");
    d.Hijo("NomTamRelativo", "1");
    d.Hijo("VerNombre", "1");
    if (EsLineal(tipo)) {
        d.Hijo("ColorLinea", i % 5 == 0 ? "16711680" : "-1");
        d.Hijo("NudoDestino", std::to_string(destino + 1));
        d.Hijo("NudoOrigen", std::to_string(i == 0 ? 1 : i));
        d.Linea(LugarDe(i == 0 ? 0 : i - 1), LugarDe(destino));
        if (tipo == ctCentralHidroelectrica) d.Linea(lugar, LugarDe(destino));
    }
    d.xml += "</Elemento>\r\n";
}

}  // namespace

std::string GeneraRed(int elementos) {
    Documento d;
    d.xml = "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>\r\n<Esquema><Elementos><Nudo>";
    for (int i = 0; i < elementos; ++i)
        Elemento(d, i, elementos);
    d.xml += "</Nudo></Elementos></Esquema>\r\n";
    return d.xml;
}

std::string EscribeRed(int elementos) {
    const auto ruta = std::filesystem::temp_directory_path() / ("red-" + std::to_string(elementos) + ".xml");
    // In one step: another benchmark may be reading it.
    const std::string nueva = ruta.string() + "." + std::to_string(std::random_device{}());
    std::ofstream(nueva, std::ios::binary) << GeneraRed(elementos);
    std::filesystem::rename(nueva, ruta);
    return ruta.string();
}

std::shared_ptr<Elementos> CargaRed(int elementos) {
    lectorArchivo lector;
    auto red = std::make_shared<Elementos>();
    lector.NombreArchivo(EscribeRed(elementos));
    lector.Coleccion(red);
    lector.Carga();
    if (red->Count() != elementos) throw std::runtime_error("the schematic is not what was written");
    return red;
}

}  // namespace zel::bench
