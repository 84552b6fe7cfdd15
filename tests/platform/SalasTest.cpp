#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <string>

namespace zel::pruebas {
namespace {

namespace fs = std::filesystem;

// What each room may include besides itself.
const std::map<std::string, std::set<std::string>> PUEDE = {
    {"platform", {}},
    {"model", {"platform"}},
    {"file", {"platform", "model"}},
    {"drawing", {"platform", "model"}},
    {"bars", {"platform"}},
    {"session", {"platform", "model", "file", "drawing"}},
    {"editing", {"platform", "model", "file", "drawing", "session"}},
    {"control", {"platform", "model", "file", "drawing", "session", "editing", "bars"}},
};

TEST(Salas, NothingIncludesAgainstTheArrowsAndQtStaysInItsPlaces) {
    const std::regex inclusion(R"re(^\s*#include\s+[<"]([A-Za-z0-9_]+)(/[^">]*)?[">])re");
    int archivos = 0;
    for (const auto& entrada : fs::recursive_directory_iterator(ZEL_RAIZ "/src")) {
        if (!entrada.is_regular_file()) continue;
        ++archivos;
        const std::string relativa = fs::relative(entrada.path(), ZEL_RAIZ "/src").generic_string();
        const std::string sala = relativa.substr(0, relativa.find('/'));
        ASSERT_TRUE(PUEDE.contains(sala)) << "unknown room: " << relativa;
        const bool conQt = sala == "control" || relativa.find("/qt/") != std::string::npos;
        std::ifstream texto(entrada.path());
        std::smatch partes;
        for (std::string linea; std::getline(texto, linea);) {
            if (!std::regex_search(linea, partes, inclusion)) continue;
            const std::string otra = partes[1];
            if (PUEDE.contains(otra) && otra != sala) {
                EXPECT_TRUE(PUEDE.at(sala).contains(otra)) << relativa << ": " << linea;
            }
            if (!conQt) {
                EXPECT_FALSE(otra.size() > 1 && otra[0] == 'Q') << relativa << ": " << linea;
                EXPECT_EQ(partes[2].str().find("/qt/"), std::string::npos) << relativa << ": " << linea;
            }
        }
    }
    EXPECT_GT(archivos, 40);
}

}  // namespace
}  // namespace zel::pruebas
