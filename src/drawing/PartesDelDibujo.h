#pragma once

#include <exception>

namespace zel {

// Runs every part, also after one that fails, and then raises the first failure.
class PartesDelDibujo {
  public:
    template <typename Parte>
    void Dibuja(Parte parte) {
        try {
            parte();
        } catch (...) {
            if (!fallo_) fallo_ = std::current_exception();
        }
    }
    void Termina() const {
        if (fallo_) std::rethrow_exception(fallo_);
    }

  private:
    std::exception_ptr fallo_;
};

}  // namespace zel
