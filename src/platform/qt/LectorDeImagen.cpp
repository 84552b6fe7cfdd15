#include "platform/qt/LectorDeImagen.h"

#include <QFile>
#include <QImageReader>
#include <cerrno>
#include <cstdio>
#include <filesystem>

#include "platform/Fallo.h"

namespace zel {

namespace {

constexpr int BYTES_POR_PIXEL = 4;
const QByteArrayList FORMATOS = {"bmp", "gif", "jpeg", "jpg",  "pbm", "pgm",
                                 "png", "ppm", "tif",  "tiff", "webp"};

struct CierraArchivo {
    void operator()(std::FILE* archivo) const noexcept { std::fclose(archivo); }
};

// Scanned maps are larger than what the reader takes by itself.
class LimiteDeMemoria {
  public:
    LimiteDeMemoria() : anterior_(QImageReader::allocationLimit()) {
        QImageReader::setAllocationLimit(ImagenLeida::MEGAPIXELES * BYTES_POR_PIXEL);
    }
    LimiteDeMemoria(const LimiteDeMemoria&) = delete;
    LimiteDeMemoria& operator=(const LimiteDeMemoria&) = delete;
    ~LimiteDeMemoria() { QImageReader::setAllocationLimit(anterior_); }

  private:
    int anterior_;
};

ImagenLeida SinImagen(std::string motivo) {
    return {nullptr, std::move(motivo)};
}

}  // namespace

ImagenLeida LeeImagen(const std::string& archivo) {
    std::error_code error;
    if (!std::filesystem::exists(archivo, error)) return SinImagen("no se encuentra el archivo");
    // A pipe would keep its reader waiting.
    if (!std::filesystem::is_regular_file(archivo, error)) return SinImagen("no es un archivo");
    const std::unique_ptr<std::FILE, CierraArchivo> abierto(std::fopen(archivo.c_str(), "rbe"));
    if (!abierto) return SinImagen(Fallo(NumeroDeErrno(errno)).Description());
    QFile contenido;
    contenido.open(abierto.get(), QIODevice::ReadOnly);
    QImageReader lector(&contenido);
    if (!FORMATOS.contains(lector.format())) {
        return SinImagen("no es una imagen BMP, JPEG, PNG, GIF, TIFF ni WebP");
    }
    const QSize tamanyo = lector.size();
    if (qint64{tamanyo.width()} * tamanyo.height() > qint64{ImagenLeida::MEGAPIXELES} * 1'000'000) {
        return SinImagen("la imagen es demasiado grande (" + std::to_string(tamanyo.width()) + " x " +
                         std::to_string(tamanyo.height()) + " puntos, y caben " +
                         std::to_string(ImagenLeida::MEGAPIXELES) + " millones): redúzcala");
    }
    const LimiteDeMemoria limite;
    lector.setAutoTransform(true);
    QImage imagen = lector.read();
    if (imagen.isNull()) return SinImagen("la imagen está dañada o no cabe en la memoria");
    return {std::make_shared<ImagenQt>(std::move(imagen)), {}};
}

}  // namespace zel
