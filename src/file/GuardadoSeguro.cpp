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
// is saved, put in place after. Of a picture that cannot be copied the schematic keeps the name all the same,
// with its place and size.
class CopiaDeImagen {
  public:
    CopiaDeImagen(const std::string& imagen, const std::string& carpeta) : nombre_(ParteRuta(imagen).nombre) {
        // A bare name stands beside the schematic already.
        if (nombre_ == imagen) return;
        try {
            copia_.emplace(carpeta + nombre_, imagen);
        } catch (const Fallo&) {
            copia_.reset();
        }
    }
    // What the schematic stores.
    const std::string& Nombre() const noexcept { return nombre_; }
    void Confirma() noexcept {
        try {
            if (copia_) copia_->Confirma();
        } catch (const Fallo&) {
            return;  // the schematic is in place already
        }
    }

  private:
    std::string nombre_;
    std::optional<CopiaDeArchivo> copia_;
};

bool Bandera(const std::string& texto) noexcept {
    try {
        return Variante(texto).Booleano();
    } catch (...) {
        return false;
    }
}

}  // namespace

std::optional<ImagenGuardada> ImagenDeTextos(const Coleccion<std::string>& textos) {
    const auto texto = [&](const char* hijo) {
        const std::string* encontrado = textos.Busca(hijo);
        return encontrado ? *encontrado : std::string();
    };
    if (!textos.Busca("Archivo")) return std::nullopt;
    return ImagenGuardada{texto("Archivo"),    Numero(texto("X0")), Numero(texto("Y0")),
                          Numero(texto("LX")), Numero(texto("LY")), Bandera(texto("Oculta"))};
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
                           " no se puede guardar: su tipo no se conoce, le falta un trazado o tiene un valor "
                           "que no es un número");
    }
    std::optional<CopiaDeImagen> copia;
    if (imagen) {
        copia.emplace(imagen->Archivo, ParteRuta(reemplazo.Temporal()).carpeta);
        escritor.EscribeImagenFondo(copia->Nombre(), imagen->X0, imagen->Y0, imagen->LX, imagen->LY,
                                    imagen->Oculta);
    }
    escritor.EscribeConfiguracion(bMostrarLineasOcultas);
    escritor.GuardaDocumento();
    reemplazo.Confirma();
    if (copia) copia->Confirma();
}

}  // namespace zel
