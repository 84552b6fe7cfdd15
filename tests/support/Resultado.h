#pragma once

#include <gtest/gtest.h>

#include <string>

#include "platform/Fallo.h"

namespace zel::pruebas {

// What a conversion gives, as text: its result, or "!" and the number of its failure.
template <typename Accion>
std::string Resultado(Accion accion) {
    try {
        return ::testing::PrintToString(accion());
    } catch (const Fallo& fallo) {
        return "!" + std::to_string(fallo.Number());
    }
}

}  // namespace zel::pruebas
