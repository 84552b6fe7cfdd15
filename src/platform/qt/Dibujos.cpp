#include "platform/qt/Dibujos.h"

#include <QFile>
#include <QPainter>
#include <QPixmapCache>
#include <QSvgRenderer>

// Has to stand outside every namespace. Without it a program that links the library statically would have
// no pictures.
static void PreparaRecursos() {
    Q_INIT_RESOURCE(ZELVisorEsquemas);
}

namespace zel {

namespace {

// What the pictures are drawn with where they want the colour of the text around them.
constexpr char TINTA[] = "#010203";

QPixmap Pinta(const QString& nombre, int lado, double relacion, const QColor& tinta) {
    static const bool preparados = (PreparaRecursos(), true);
    Q_UNUSED(preparados);
    QFile archivo(QStringLiteral(":/zel/%1.svg").arg(nombre));
    if (!archivo.open(QIODevice::ReadOnly)) return {};
    QSvgRenderer dibujo(archivo.readAll().replace(TINTA, tinta.name().toLatin1()));
    QPixmap pixmap(QSize(lado, lado) * relacion);
    pixmap.fill(Qt::transparent);
    QPainter pintor(&pixmap);
    dibujo.render(&pintor, QRectF(pixmap.rect()));
    pintor.end();
    pixmap.setDevicePixelRatio(relacion);
    return pixmap;
}

}  // namespace

QPixmap DibujoPropio(const QString& nombre, int lado, double relacion, const QColor& tinta) {
    const QString clave =
        QStringLiteral("zel/%1 %2 %3 %4").arg(nombre).arg(lado).arg(relacion).arg(tinta.name());
    QPixmap pixmap;
    if (!QPixmapCache::find(clave, &pixmap)) {
        pixmap = Pinta(nombre, lado, relacion, tinta);
        if (!pixmap.isNull()) QPixmapCache::insert(clave, pixmap);
    }
    return pixmap;
}

}  // namespace zel
