#include "drawing/RejillaEspacial.h"

namespace zel {

namespace {

constexpr double LADO_MENOR = 16;  // of the smallest cells, in world units: two symbols
constexpr double BORDE = 1 << 26;  // what lies beyond counts as lying there; the world is far smaller
constexpr double LADO_MAYOR = 1 << 27;

double LadoDe(int nivel) noexcept {
    return std::ldexp(LADO_MENOR, nivel);
}

Recuadro DentroDelBorde(const Recuadro& r) noexcept {
    const auto dentro = [](double v) { return std::clamp(v, -BORDE, BORDE); };
    return {dentro(r.Xmin), dentro(r.Ymin), dentro(r.Xmax), dentro(r.Ymax)};
}

}  // namespace

RejillaEspacial::Celdas RejillaEspacial::CeldasDe(const Recuadro& recuadro, int nivel) noexcept {
    const Recuadro dentro = DentroDelBorde(recuadro);
    const double lado = LadoDe(nivel);
    const auto celda = [&](double v) { return static_cast<std::int32_t>(std::floor(v / lado)); };
    return {celda(dentro.Xmin), celda(dentro.Ymin), celda(dentro.Xmax), celda(dentro.Ymax)};
}

int RejillaEspacial::NivelDe(const Recuadro& recuadro) noexcept {
    static_assert(LADO_MAYOR == LADO_MENOR * (1 << (NIVELES - 1)));
    const Recuadro dentro = DentroDelBorde(recuadro);
    const double lado = std::max(dentro.Xmax - dentro.Xmin, dentro.Ymax - dentro.Ymin);
    int nivel = 0;
    while (LadoDe(nivel) < lado)
        ++nivel;
    return nivel;
}

void RejillaEspacial::Vacia() noexcept {
    for (Nivel& nivel : niveles_)
        nivel.clear();
    fichas_.clear();
    libres_.clear();
    lugares_.clear();
}

void RejillaEspacial::Reserva(std::size_t elementos) {
    fichas_.reserve(elementos);
    lugares_.reserve(elementos);
}

std::int32_t RejillaEspacial::FichaNueva() {
    if (!libres_.empty()) {
        const std::int32_t libre = libres_.back();
        libres_.pop_back();
        return libre;
    }
    fichas_.emplace_back();
    libres_.reserve(fichas_.size());
    return static_cast<std::int32_t>(fichas_.size()) - 1;
}

void RejillaEspacial::Coloca(std::int32_t numero) {
    Ficha& ficha = fichas_[static_cast<std::size_t>(numero)];
    Nivel& nivel = niveles_[static_cast<std::size_t>(ficha.nivel)];
    CeldasDe(ficha.recuadro, ficha.nivel).Recorre([&](std::uint64_t clave) {
        const auto propia =
            numero * static_cast<std::int32_t>(CELDAS_POR_FICHA) + static_cast<std::int32_t>(ficha.cuantas);
        std::int32_t& primera = nivel.try_emplace(clave, NINGUNA).first->second;
        ficha.entradas[ficha.cuantas++] = {clave, NINGUNA, primera};
        if (primera != NINGUNA) EntradaDe(primera).anterior = propia;
        primera = propia;
    });
}

void RejillaEspacial::Descoloca(std::int32_t numero) noexcept {
    Ficha& ficha = fichas_[static_cast<std::size_t>(numero)];
    Nivel& nivel = niveles_[static_cast<std::size_t>(ficha.nivel)];
    for (std::size_t i = 0; i < ficha.cuantas; ++i) {
        const Entrada& entrada = ficha.entradas[i];
        if (entrada.siguiente != NINGUNA) EntradaDe(entrada.siguiente).anterior = entrada.anterior;
        if (entrada.anterior != NINGUNA) {
            EntradaDe(entrada.anterior).siguiente = entrada.siguiente;
        } else if (entrada.siguiente != NINGUNA) {
            nivel.find(entrada.celda)->second = entrada.siguiente;
        } else {
            nivel.erase(entrada.celda);
        }
    }
    ficha.cuantas = 0;
}

void RejillaEspacial::Pon(const Elemento& elemento, const Recuadro& recuadro) {
    if (recuadro.Vacio()) {
        Quita(&elemento);
        return;
    }
    const auto [lugar, nuevo] = lugares_.try_emplace(&elemento, NINGUNA);
    if (nuevo) {
        lugar->second = FichaNueva();
    } else {
        Descoloca(lugar->second);
    }
    Ficha& ficha = fichas_[static_cast<std::size_t>(lugar->second)];
    ficha.elemento = &elemento;
    ficha.recuadro = recuadro;
    ficha.nivel = NivelDe(recuadro);
    Coloca(lugar->second);
}

void RejillaEspacial::Quita(const Elemento* elemento) noexcept {
    const auto lugar = lugares_.find(elemento);
    if (lugar == lugares_.end()) return;
    Descoloca(lugar->second);
    libres_.push_back(lugar->second);  // there is room: FichaNueva has made it
    lugares_.erase(lugar);
}

}  // namespace zel
