#pragma once

#include <concepts>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "platform/Fallo.h"
#include "platform/Texto.h"
#include "platform/Variante.h"

namespace zel {

// Keyed, ordered collection. Positions run from 1 in order of addition; an item may have a key, unique
// without regard to case. Finding by position or key costs the same whatever the size; removing costs one
// pass over the items.
//
// Failures: 5 unknown key, 9 position outside 1..Count, 13 a key that is no text, 457 repeated key.
template <typename T>
class Coleccion {
  public:
    Coleccion() = default;
    Coleccion(const Coleccion&) = delete;
    Coleccion& operator=(const Coleccion&) = delete;
    Coleccion(Coleccion&&) noexcept = default;
    Coleccion& operator=(Coleccion&&) noexcept = default;
    ~Coleccion() = default;

    // Makes room for that many items at once.
    void Reserva(std::int32_t cuantos) { valores_.reserve(static_cast<std::size_t>(cuantos)); }

    void Add(T valor) {
        valores_.push_back(std::move(valor));
        if (!claves_.empty()) claves_.push_back(nullptr);
    }

    void Add(T valor, const Variante& clave) {
        if (!clave.EsTexto()) throw Fallo(13);
        const auto [lugar, nueva] = porClave_.try_emplace(EnMinusculas(clave.Texto()), valor);
        if (!nueva) throw Fallo(457, Fallo(457).Description() + ": " + clave.Texto());
        claves_.resize(valores_.size());
        claves_.push_back(&lugar->first);
        valores_.push_back(std::move(valor));
    }

    // A position as it is; anything else goes by way of a Variante.
    const T& Item(std::same_as<std::int32_t> auto posicion) const { return valores_[Indice(posicion)]; }

    const T& Item(const Variante& posicionOClave) const {
        if (!posicionOClave.EsTexto()) return Item(posicionOClave.Entero32());
        const T* encontrado = Busca(posicionOClave.Texto());
        if (!encontrado) throw Fallo(5);
        return *encontrado;
    }

    // The item under the key, or null.
    const T* Busca(std::string_view clave) const {
        const auto lugar = porClave_.find(EnMinusculas(clave));
        return lugar == porClave_.end() ? nullptr : &lugar->second;
    }

    void Remove(const Variante& posicionOClave) {
        if (!posicionOClave.EsTexto()) {
            Quita(Indice(posicionOClave.Entero32()));
            return;
        }
        const auto lugar = porClave_.find(EnMinusculas(posicionOClave.Texto()));
        if (lugar == porClave_.end()) throw Fallo(5);
        std::size_t indice = 0;
        while (claves_[indice] != &lugar->first)
            ++indice;
        Quita(indice);
    }

    // The same items in the same order, each under the key that `claveDe` gives for it. Fails with 457 when
    // two of them are the same, and then changes nothing.
    template <typename ClaveDe>
    void RehaceClaves(ClaveDe claveDe) {
        std::unordered_map<std::string, T> porClave;
        std::vector<const std::string*> claves;
        for (const T& valor : valores_) {
            const auto [lugar, nueva] = porClave.try_emplace(EnMinusculas(claveDe(valor)), valor);
            if (!nueva) throw Fallo(457);
            claves.push_back(&lugar->first);
        }
        porClave_ = std::move(porClave);
        claves_ = std::move(claves);
    }

    std::int32_t Count() const noexcept { return static_cast<std::int32_t>(valores_.size()); }

    auto begin() const noexcept { return valores_.begin(); }
    auto end() const noexcept { return valores_.end(); }

  private:
    std::size_t Indice(std::int32_t posicion) const {
        if (posicion < 1 || posicion > Count()) throw Fallo(9);
        return static_cast<std::size_t>(posicion) - 1;
    }

    void Quita(std::size_t indice) {
        if (!claves_.empty()) {
            if (const std::string* clave = claves_[indice]) porClave_.erase(porClave_.find(*clave));
            claves_.erase(claves_.begin() + static_cast<std::ptrdiff_t>(indice));
        }
        valores_.erase(valores_.begin() + static_cast<std::ptrdiff_t>(indice));
    }

    std::vector<T> valores_;
    // The key of each item inside porClave_, or null; empty as long as no item has had a key.
    std::vector<const std::string*> claves_;
    std::unordered_map<std::string, T> porClave_;
};

}  // namespace zel
