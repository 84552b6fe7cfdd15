#include "file/SeccionImagen.h"

#include <algorithm>
#include <string_view>

#include "file/LecturaDeEsquema.h"
#include "platform/Numeros.h"
#include "platform/Texto.h"
#include "platform/Variante.h"

namespace zel {

namespace {

constexpr std::size_t ARCHIVO = 0;
constexpr std::size_t OCULTA = 5;
constexpr std::size_t RUTA_MAXIMA = 4096;

// Whether the path, with either separator, is absolute or goes up.
bool SaleDeLaCarpeta(std::string_view ruta) noexcept {
    const bool conUnidad = ruta.size() > 1 && ruta[1] == ':';
    if (ruta.starts_with('/') || ruta.starts_with('\\') || conUnidad) return true;
    while (!ruta.empty()) {
        const std::size_t fin = std::min(ruta.find_first_of("\\/"), ruta.size());
        if (ruta.substr(0, fin) == "..") return true;
        ruta.remove_prefix(std::min(fin + 1, ruta.size()));
    }
    return false;
}

double Numero(std::string texto) {
    std::replace(texto.begin(), texto.end(), ',', '.');
    return NumeroInicial(texto);
}

SeccionImagen NoSirve(SeccionImagen seccion, std::string motivo) {
    seccion.motivo = std::move(motivo);
    return seccion;
}

}  // namespace

SeccionImagen InterpretaImagen(const SeccionLeida& leida, const std::string& carpeta) {
    SeccionImagen seccion{leida.hijos, std::nullopt, {}};
    for (std::size_t i = 0; i < HIJOS_DE_IMAGEN.size(); ++i) {
        if (!leida.textos[i] || (i == ARCHIVO && leida.textos[i]->empty())) {
            return NoSirve(std::move(seccion), "La sección de la imagen de fondo está incompleta: falta " +
                                                   std::string(HIJOS_DE_IMAGEN[i]));
        }
    }
    const std::string& archivo = *leida.textos[ARCHIVO];
    if (archivo.size() > RUTA_MAXIMA) {
        return NoSirve(std::move(seccion),
                       "El nombre de la imagen de fondo es demasiado largo: \"" + EnBreve(archivo) + "\"");
    }
    if (SaleDeLaCarpeta(archivo)) {
        return NoSirve(std::move(seccion), "La imagen de fondo \"" + archivo +
                                               "\" no está en la carpeta del esquema y no se abre");
    }
    std::size_t i = ARCHIVO;
    try {
        ImagenGuardada imagen{carpeta + archivo, 0, 0, 0, 0, false};
        for (double* numero : {&imagen.X0, &imagen.Y0, &imagen.LX, &imagen.LY})
            *numero = Numero(*leida.textos[++i]);
        i = OCULTA;
        imagen.Oculta = Variante(*leida.textos[i]).Booleano();
        seccion.imagen = std::move(imagen);
        return seccion;
    } catch (const Fallo&) {
        return NoSirve(std::move(seccion),
                       "No se entiende un valor de la imagen de fondo: " + std::string(HIJOS_DE_IMAGEN[i]) +
                           " = \"" + EnBreve(*leida.textos[i]) + "\"");
    }
}

}  // namespace zel
