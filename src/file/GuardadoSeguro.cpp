#include "file/GuardadoSeguro.h"

#include <algorithm>

#include "file/Formato.h"
#include "file/lectorArchivo.h"
#include "platform/Numeros.h"
#include "platform/ReemplazoDeArchivo.h"

namespace zel {

namespace {

double Numero(std::string texto) {
    std::replace(texto.begin(), texto.end(), ',', '.');
    return NumeroInicial(texto);
}

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
    if (imagen) {
        escritor.EscribeImagenFondo(imagen->Archivo, imagen->X0, imagen->Y0, imagen->LX, imagen->LY,
                                    imagen->Oculta);
    }
    escritor.EscribeConfiguracion(bMostrarLineasOcultas);
    escritor.GuardaDocumento();
    reemplazo.Confirma();
}

}  // namespace zel
