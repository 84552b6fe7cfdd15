// The integrity check at two sizes, and saving against libxml2's own serialization of the same document.
#include <benchmark/benchmark.h>
#include <libxml/parser.h>
#include <libxml/xmlsave.h>

#include <filesystem>

#include "GeneraRed.h"
#include "file/GuardadoSeguro.h"
#include "platform/Dialogos.h"

namespace {

constexpr int ELEMENTOS = 32767;

std::string Salida(const char* nombre) {
    return (std::filesystem::temp_directory_path() / nombre).string();
}

class Mudos : public zel::Dialogos {
    void MsgBox(const std::string&, const std::string&) override {}
    std::optional<std::string> InputBox(const std::string&, const std::string&, const std::string&) override {
        return std::nullopt;
    }
    std::optional<std::string> ArchivoAbrir(const std::string&, const std::string&) override {
        return std::nullopt;
    }
    std::optional<std::string> ArchivoGuardar(const std::string&, const std::string&,
                                              const std::string&) override {
        return std::nullopt;
    }
    std::optional<std::int32_t> Color(std::int32_t) override { return std::nullopt; }
};

void VerificaIntegridad(benchmark::State& estado) {
    const auto red = zel::bench::CargaRed(static_cast<int>(estado.range(0)));
    for (auto _ : estado)
        benchmark::DoNotOptimize(red->VerificaIntegridad());
}
BENCHMARK(VerificaIntegridad)->Arg(8192)->Arg(ELEMENTOS)->Unit(benchmark::kMillisecond)->MinTime(2);

void Guardado(benchmark::State& estado) {
    const auto red = zel::bench::CargaRed(ELEMENTOS);
    const std::string salida = Salida("guardado.xml");
    for (auto _ : estado)
        zel::GuardaConSeguridad(salida, red, std::nullopt, true);
}
BENCHMARK(Guardado)->Unit(benchmark::kMillisecond)->MinTime(3);

void SerieDeLibxml2(benchmark::State& estado) {
    const std::string entrada = Salida("guardado.xml");
    zel::GuardaConSeguridad(entrada, zel::bench::CargaRed(ELEMENTOS), std::nullopt, true);
    xmlDoc* documento = xmlReadFile(entrada.c_str(), nullptr, XML_PARSE_NONET);
    const std::string salida = Salida("serie.xml");
    for (auto _ : estado) {
        if (xmlSaveFileEnc(salida.c_str(), documento, "ISO-8859-1") < 0) estado.SkipWithError("not written");
    }
    xmlFreeDoc(documento);
}
BENCHMARK(SerieDeLibxml2)->Unit(benchmark::kMillisecond)->MinTime(3);

}  // namespace

int main(int argc, char** argv) {
    zel::instalaDialogos(std::make_shared<Mudos>());
    std::filesystem::current_path(std::filesystem::temp_directory_path());  // where the check leaves its log
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
