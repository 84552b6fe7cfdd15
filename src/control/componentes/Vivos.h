#pragma once

#include <atomic>

namespace zel {

// Whatever a host holds of the library by name keeps one of these, so that the library knows when it may be
// unloaded.
class Vivo {
  public:
    Vivo() noexcept { ++cuantos_; }
    Vivo(const Vivo&) = delete;
    Vivo& operator=(const Vivo&) = delete;
    ~Vivo() { --cuantos_; }

    static bool HayAlguno() noexcept { return cuantos_ > 0; }

  private:
    // Not inline: two versions of the library in one program would share it.
    static std::atomic<int> cuantos_;
};

}  // namespace zel
