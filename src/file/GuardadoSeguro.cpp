#include "file/GuardadoSeguro.h"

#include "file/lectorArchivo.h"
#include "platform/ReemplazoDeArchivo.h"

namespace zel {

namespace {

std::string NombreDeArchivo(const std::string& ruta) {
    return std::filesystem::path(ruta).filename().string();
}

bool NoLoSabe(const std::string&) noexcept {
    return false;
}

}  // namespace

ImagenYaGuardada GuardaConSeguridad(const std::string& ruta, const std::shared_ptr<Elementos>& elementos,
                                    const ImagenQueGuardar& imagen, bool bMostrarLineasOcultas,
                                    const PruebaDeImagen& esImagen) {
    if (!elementos) throw Fallo(91);
    if (const std::string motivo = MotivoParaNoGuardar(*elementos); !motivo.empty()) throw Fallo(5, motivo);
    ReemplazoDeArchivo reemplazo(ruta);
    lectorArchivo escritor;
    escritor.NombreArchivo(reemplazo.Temporal());
    escritor.Coleccion(elementos);
    if (!escritor.GuardaEsquema()) {
        throw Fallo(7, "No se puede escribir el elemento en la posición " +
                           std::to_string(escritor.PosicionSinGuardar()));
    }
    std::optional<CopiaDeImagen> copia;
    if (imagen.imagen) {
        const ImagenGuardada& i = *imagen.imagen;
        copia.emplace(i.Archivo, NombreDeArchivo(i.Archivo), reemplazo.Destino(),
                      esImagen ? esImagen : NoLoSabe, i.Copia);
        if (copia->Aviso().empty() || imagen.textos.empty())
            escritor.EscribeImagenFondo(copia->Nombre(), i.X0, i.Y0, i.LX, i.LY, i.Oculta);
    }
    // Each of the sections is written once: this one, where there is no other.
    if (!imagen.textos.empty() && (!copia || !copia->Aviso().empty()))
        escritor.EscribeImagenFondo(imagen.textos);
    escritor.EscribeConfiguracion(bMostrarLineasOcultas);
    escritor.GuardaDocumento();
    reemplazo.Confirma();
    if (!copia) return {};
    copia->Conserva();
    std::error_code error;
    return {std::filesystem::absolute(copia->Ruta(), error).string(), copia->Aviso()};
}

}  // namespace zel
