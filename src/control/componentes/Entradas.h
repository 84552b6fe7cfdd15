#pragma once

#include <cstddef>

// The library's entry points, for whoever knows it by its file alone. Each gives 0, or the number of what
// failed; `texto`, unless null, receives what was done or failed, in UTF-8, cut to `tamanyo` bytes with its
// closing zero.
extern "C" {

// Writes, and removes, the record of this version of the library: the user's, or the system's, for which one
// has to be root. Again is the same as once.
int zelRegistra(int paraElSistema, char* texto, std::size_t tamanyo) noexcept;
int zelAnulaRegistro(int delSistema, char* texto, std::size_t tamanyo) noexcept;

// The zel::ClasePorNombre (Componentes.h) of that name. Fails with 48 when the library is not of that
// version, unless null, or its interface has another number, and with 429 when it has no such class.
int zelObjetoDeClase(const char* clase, const char* version, int interfaz, const void** objeto, char* texto,
                     std::size_t tamanyo) noexcept;

// 1 when nothing that was made or handed out by name is alive.
int zelPuedeDescargarse() noexcept;
}
