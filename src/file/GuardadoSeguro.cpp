#include "file/GuardadoSeguro.h"

#include <algorithm>

#include "file/Formato.h"
#include "file/lectorArchivo.h"
#include "platform/Archivos.h"
#include "platform/Numeros.h"
#include "platform/ReemplazoDeArchivo.h"

namespace zel {

namespace {

double Numero(std::string texto) {
    std::replace(texto.begin(), texto.end(), ',', '.');
    return NumeroInicial(texto);
}

// The copy of a picture from another folder that is to stand beside the schematic: made before the schematic
// is saved, put in place after. A picture that cannot be copied stays where it is.
class CopiaDeImagen {
  public:
    CopiaDeImagen(const std::string& imagen, const std::string& carpeta) : ruta_(imagen) {
        const RutaPartida partes = ParteRuta(imagen);
        if (partes.carpeta.empty() || partes.carpeta == carpeta) return;
        try {
            copia_.emplace(carpeta + partes.nombre, imagen);
            ruta_ = carpeta + partes.nombre;
        } catch (const Fallo&) {
            copia_.reset();
        }
    }
    // The path to write in the schematic.
    const std::string& Ruta() const noexcept { return ruta_; }
    void Confirma() noexcept {
        try {
            if (copia_) copia_->Confirma();
        } catch (const Fallo&) {
            return;  // the schematic is in place already
        }
    }

  private:
    std::string ruta_;
    std::optional<CopiaDeArchivo> copia_;
};

}  // namespace

std::optional<ImagenGuardada> ImagenDeTextos(const Coleccion<std::string>& textos) {
    if (static_cast<std::size_t>(textos.Count()) < HIJOS_DE_IMAGEN.size()) return std::nullopt;
    return ImagenGuardada{textos.Item("Archivo"),    Numero(textos.Item("X0")),
                          Numero(textos.Item("Y0")), Numero(textos.Item("LX")),
                          Numero(textos.Item("LY")), Variante(textos.Item("Oculta")).Booleano()};
}

void GuardaConSeguridad(const std::string& ruta, const std::shared_ptr<Elementos>& elementos,
                        const std::optional<ImagenGuardada>& imagen, bool bMostrarLineasOcultas) {
    if (!elementos) throw Fallo(91);
    ReemplazoDeArchivo reemplazo(ruta);
    lectorArchivo escritor;
    escritor.NombreArchivo(reemplazo.Temporal());
    escritor.Coleccion(elementos);
    if (!escritor.GuardaEsquema()) {
        throw Fallo(5, "El elemento en la posición " + std::to_string(escritor.PosicionSinGuardar()) +
                           " no se puede guardar: su tipo no se conoce o le falta un trazado");
    }
    std::optional<CopiaDeImagen> copia;
    if (imagen) {
        copia.emplace(imagen->Archivo, ParteRuta(reemplazo.Temporal()).carpeta);
        escritor.EscribeImagenFondo(copia->Ruta(), imagen->X0, imagen->Y0, imagen->LX, imagen->LY,
                                    imagen->Oculta);
    }
    escritor.EscribeConfiguracion(bMostrarLineasOcultas);
    escritor.GuardaDocumento();
    reemplazo.Confirma();
    if (copia) copia->Confirma();
}

}  // namespace zel
