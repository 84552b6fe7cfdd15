#pragma once

namespace zel {

// The library's record, by which programs that know it by name find it: the user's, or the system's. They say
// what was done and give the exit code: 0, or 3 when it could not be done.
int Registra(bool sistema);
int AnulaRegistro(bool sistema);

}  // namespace zel
