#pragma once

#include <utility>

namespace zel {

// Gives a variable a value for as long as the guard lives, and then the one it had, or another.
template <typename T>
class Guardia {
  public:
    template <typename U>
    Guardia(T& variable, U mientras) : variable_(variable), despues_(std::exchange(variable, T(mientras))) {}
    template <typename U, typename V>
    Guardia(T& variable, U mientras, V despues) : variable_(variable), despues_(despues) {
        variable = T(mientras);
    }
    Guardia(const Guardia&) = delete;
    Guardia& operator=(const Guardia&) = delete;
    ~Guardia() { variable_ = std::move(despues_); }

  private:
    T& variable_;
    T despues_;
};

}  // namespace zel
