// Loading a schematic against libxml2's own parse of the same file.
#include <benchmark/benchmark.h>
#include <libxml/parser.h>

#include "GeneraRed.h"
#include "file/lectorArchivo.h"

namespace {

constexpr int ELEMENTOS = 32767;

const std::string& Archivo() {
    static const std::string ruta = zel::bench::EscribeRed(ELEMENTOS);
    return ruta;
}

void AnalisisDeLibxml2(benchmark::State& estado) {
    for (auto _ : estado) {
        xmlDoc* documento = xmlReadFile(Archivo().c_str(), nullptr, XML_PARSE_NONET | XML_PARSE_COMPACT);
        if (!documento) estado.SkipWithError("the file does not parse");
        xmlFreeDoc(documento);
    }
}
BENCHMARK(AnalisisDeLibxml2)->Unit(benchmark::kMillisecond)->MinTime(3);

void Carga(benchmark::State& estado) {
    for (auto _ : estado) {
        zel::lectorArchivo lector;
        auto elementos = std::make_shared<zel::Elementos>();
        lector.NombreArchivo(Archivo());
        lector.Coleccion(elementos);
        lector.Carga();
        if (elementos->Count() != ELEMENTOS || !lector.Registro().empty()) estado.SkipWithError("wrong load");
    }
}
BENCHMARK(Carga)->Unit(benchmark::kMillisecond)->MinTime(3);

}  // namespace

BENCHMARK_MAIN();
