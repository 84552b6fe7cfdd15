#include "platform/Fallo.h"

#include <cerrno>
#include <new>
#include <stdexcept>
#include <utility>

namespace zel {

namespace {

constexpr const char* ORIGEN = "ZELVisorEsquemas. ";

std::string TextoDeFallo(std::int32_t numero) {
    switch (numero) {
        case 0:
            return {};
        case 5:
            return "La llamada o uno de sus argumentos no es válido";
        case 6:
            return "El número no cabe en su tipo";
        case 7:
            return "No queda memoria suficiente";
        case 9:
            return "La posición está fuera de la colección";
        case 13:
            return "El valor no es del tipo esperado";
        case 53:
            return "No se ha encontrado el archivo";
        case 57:
            return "Error de entrada o salida";
        case 61:
            return "El disco está lleno";
        case 70:
            return "Permiso denegado";
        case 75:
            return "No se puede acceder al archivo o a la carpeta";
        case 76:
            return "No se ha encontrado la carpeta";
        case 91:
            return "Falta el objeto";
        case 438:
            return "El objeto no tiene esa propiedad";
        case 457:
            return "La clave ya está en la colección";
        default:
            return "Error inesperado";
    }
}

}  // namespace

Fallo::Fallo(std::int32_t numero) : Fallo(numero, TextoDeFallo(numero)) {}

Fallo::Fallo(std::int32_t numero, std::string descripcion)
    : Fallo(numero, numero == 0 ? "" : ORIGEN, std::move(descripcion)) {}

Fallo::Fallo(std::int32_t numero, std::string origen, std::string descripcion)
    : numero_(numero), origen_(std::move(origen)), descripcion_(std::move(descripcion)) {}

Fallo FalloEnCurso() {
    const std::exception_ptr enCurso = std::current_exception();
    if (!enCurso) return Fallo(0);
    try {
        std::rethrow_exception(enCurso);
    } catch (const Fallo& fallo) {
        return fallo;
    } catch (const std::bad_alloc&) {
        return Fallo(7);
    } catch (const std::length_error&) {
        return Fallo(7);
    } catch (const std::out_of_range&) {
        return Fallo(9);
    } catch (const std::invalid_argument&) {
        return Fallo(5);
    } catch (const std::exception& otro) {
        return {51, otro.what()};
    } catch (...) {
        return Fallo(51);
    }
}

std::int32_t NumeroDeErrno(int codigo) noexcept {
    switch (codigo) {
        case ENOENT:
            return 53;
        case ENOTDIR:
            return 76;
        case EACCES:
        case EPERM:
        case EROFS:
            return 70;
        case ENOSPC:
        case EDQUOT:
        case EFBIG:
            return 61;
        case EIO:
            return 57;
        case ENOMEM:
            return 7;
        default:
            return 75;
    }
}

}  // namespace zel
