#include "control/CursoresQt.h"

#include <gtest/gtest.h>

#include <QPixmap>
#include <set>

#include "platform/Superficie.h"

namespace zel::pruebas {
namespace {

TEST(CursoresQt, EachPictureIsItsOwnAndHoldsItsHotSpot) {
    std::set<qint64> distintos;
    for (const std::int32_t numero : {100, 101, 102, 103, 112, 113, 114, 115, 201, 202, 203, 204}) {
        const QCursor cursor = CursorDe(Superficie::PUNTERO_PROPIO, numero, 2);
        ASSERT_EQ(cursor.shape(), Qt::BitmapCursor) << numero;
        EXPECT_EQ(cursor.pixmap().size(), QSize(64, 64));
        EXPECT_EQ(cursor.pixmap().deviceIndependentSize(), QSizeF(32, 32));
        distintos.insert(cursor.pixmap().cacheKey());
        // Something is drawn around the hot spot.
        const QImage alrededor =
            cursor.pixmap().toImage().copy(QRect(cursor.hotSpot() * 2 - QPoint(8, 8), QSize(16, 16)));
        EXPECT_TRUE(QRect(0, 0, 32, 32).contains(cursor.hotSpot())) << numero;
        int pintados = 0;
        for (int i = 0; i < 256; ++i)
            pintados += qAlpha(alrededor.pixel(i % 16, i / 16)) > 128;
        EXPECT_GT(pintados, 4) << numero;
    }
    EXPECT_EQ(distintos.size(), 12U);
}

TEST(CursoresQt, OtherPointersAreThePlatforms) {
    EXPECT_EQ(CursorDe(Superficie::PUNTERO_CRUZ, 0, 1).shape(), Qt::CrossCursor);
    EXPECT_EQ(CursorDe(Superficie::PUNTERO_NORMAL, 0, 1).shape(), Qt::ArrowCursor);
    EXPECT_EQ(CursorDe(Superficie::PUNTERO_PROPIO, 110, 1).shape(), Qt::ArrowCursor);
    EXPECT_EQ(CursorDe(7, 0, 1).shape(), Qt::ArrowCursor);
}

}  // namespace
}  // namespace zel::pruebas
