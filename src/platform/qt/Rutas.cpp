#include "platform/qt/Rutas.h"

#include <QStringDecoder>

#include "platform/Texto.h"

namespace zel {

namespace {

constexpr char16_t BYTE_SUELTO = 0xDC00;
constexpr unsigned PRIMER_BYTE = 0x80;

bool EsByteSuelto(QChar c) noexcept {
    return c.unicode() >= BYTE_SUELTO + PRIMER_BYTE && c.unicode() <= BYTE_SUELTO + 0xFF;
}

// How many bytes make up the character at the beginning; 0 when they are none in UTF-8.
std::size_t LargoDelCaracter(std::string_view texto) {
    std::size_t largo = 0;
    SiguienteCaracter(texto, largo);
    QStringDecoder lee(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString leido = lee(QByteArrayView(texto.data(), static_cast<qsizetype>(largo)));
    return lee.hasError() || leido.contains(QChar::ReplacementCharacter) ? 0 : largo;
}

}  // namespace

QString DeRuta(std::string_view ruta) {
    QString texto;
    while (!ruta.empty()) {
        const std::size_t largo = LargoDelCaracter(ruta);
        if (largo == 0) {
            texto += QChar(static_cast<char16_t>(BYTE_SUELTO + static_cast<unsigned char>(ruta.front())));
            ruta.remove_prefix(1);
            continue;
        }
        texto += QString::fromUtf8(ruta.data(), static_cast<qsizetype>(largo));
        ruta.remove_prefix(largo);
    }
    return texto;
}

std::string RutaDe(const QString& ruta) {
    std::string bytes;
    for (qsizetype i = 0; i < ruta.size(); ++i) {
        const QChar c = ruta[i];
        if (c.isHighSurrogate() && i + 1 < ruta.size() && ruta[i + 1].isLowSurrogate())
            AgregaCaracter(bytes, QChar::surrogateToUcs4(c, ruta[++i]));
        else if (EsByteSuelto(c))
            bytes += static_cast<char>(c.unicode() & 0xFF);
        else
            AgregaCaracter(bytes, c.unicode());
    }
    return bytes;
}

}  // namespace zel
