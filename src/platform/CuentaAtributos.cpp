#include "platform/CuentaAtributos.h"

#include <cstring>

namespace zel {

bool CuentaAtributos::Mira(std::string_view trozo) noexcept {
    for (std::size_t i = 0; i < trozo.size(); ++i) {
        if (unidad_ == UnidadXml::Byte) {
            if (donde_ == Donde::Texto) {
                const void* abre = std::memchr(trozo.data() + i, '<', trozo.size() - i);
                if (!abre) return true;
                i = static_cast<std::size_t>(static_cast<const char*>(abre) - trozo.data());
            }
            if (!Sigue(trozo[i])) return false;
            continue;
        }
        aMedias_ = !aMedias_;
        if (aMedias_) {
            mitad_ = trozo[i];
            continue;
        }
        const bool bajoDelante = unidad_ == UnidadXml::Utf16Le;
        const char bajo = bajoDelante ? mitad_ : trozo[i];
        const char alto = bajoDelante ? trozo[i] : mitad_;
        // What is not ASCII is no mark of a tag.
        if (!Sigue(alto == 0 ? bajo : '\x7F')) return false;
    }
    return true;
}

bool CuentaAtributos::Sigue(char c) noexcept {
    switch (donde_) {
        case Donde::Texto:
            if (c == '<') donde_ = Donde::Abierta;
            return true;
        case Donde::Abierta:
            donde_ = c == '!' ? Donde::Declaracion : c == '?' ? Donde::Instruccion : Donde::Etiqueta;
            cuantos_ = 0;
            ultimos_ = {'\0', c};
            return true;
        case Donde::Etiqueta:
            if (c == '>') donde_ = Donde::Texto;
            if (c == '=') return ++cuantos_ <= MAXIMO;
            AbreComillas(c);
            return true;
        case Donde::Comillas:
            if (c == comilla_) donde_ = fuera_;
            return true;
        case Donde::Declaracion:
            SigueDeclaracion(c);
            return true;
        case Donde::Comentario:
            if (c == '>' && Acaba("--")) donde_ = Donde::Texto;
            break;
        case Donde::Cdata:
            if (c == '>' && Acaba("]]")) donde_ = Donde::Texto;
            break;
        case Donde::Instruccion:
            if (c == '>' && ultimos_.back() == '?') donde_ = Donde::Texto;
            break;
    }
    ultimos_ = {ultimos_.back(), c};
    return true;
}

// Out of step with the parser, it could be made to take tags for a comment or a text between quotes.
void CuentaAtributos::SigueDeclaracion(char c) noexcept {
    const bool comentario = c == '-' && Acaba("!-");
    if (c == '>') {
        donde_ = Donde::Texto;
    } else if (c == '[' && ultimos_.back() == '!') {
        donde_ = Donde::Cdata;
    } else if (comentario) {
        donde_ = Donde::Comentario;
    } else {
        AbreComillas(c);
    }
    ultimos_ = {ultimos_.back(), comentario ? '\0' : c};
}

void CuentaAtributos::AbreComillas(char c) noexcept {
    if (c != '"' && c != '\'') return;
    comilla_ = c;
    fuera_ = donde_;
    donde_ = Donde::Comillas;
}

}  // namespace zel
