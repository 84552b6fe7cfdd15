#pragma once

#include <string>

namespace zel {

inline constexpr const char* VERSION_PROPIA = ZEL_VERSION;

// The library's record of itself, one to a version. Both give what they have done, and fail with 70 where the
// system's record is asked for by who is not root and with 75 where it cannot be written or removed.
std::string EscribeRegistroPropio(bool paraElSistema);
std::string BorraRegistroPropio(bool delSistema);

}  // namespace zel
