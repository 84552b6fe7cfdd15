#include "drawing/Cursores.h"

#include <gtest/gtest.h>

#include "support/SuperficieGrabadora.h"

namespace zel::pruebas {

TEST(Cursores, TheNumberAndTheKindInHandChooseThePointerAndItsPicture) {
    const struct {
        int id, tipo, puntero, imagen;  // no picture with the platform's own pointers
    } filas[] = {{0, 0, 0, 0},      {1, 0, 2, 0},      {5, 0, 2, 0},      {2, 0, 99, 201},
                 {202, 0, 99, 202}, {203, 0, 99, 203}, {204, 0, 99, 204}, {115, 0, 99, 115},
                 {-1, -1, 0, 0},    {-1, 0, 99, 100},  {-1, 1, 99, 101},  {-1, 2, 99, 102},
                 {-1, 3, 99, 103},  {-1, 4, 99, 201},  {-1, 11, 99, 201}, {-1, 12, 99, 112},
                 {-1, 13, 99, 113}, {-1, 14, 99, 114}, {-1, 15, 99, 115}, {-1, 16, 0, 0}};
    for (const auto& fila : filas) {
        SuperficieGrabadora panel;
        Cursor_Raton(panel, fila.id, static_cast<TipoElemento>(fila.tipo), 5);
        EXPECT_EQ(panel.puntero, fila.puntero) << fila.id << " with kind " << fila.tipo;
        EXPECT_EQ(panel.cursor, fila.imagen) << fila.id << " with kind " << fila.tipo;
    }
}

}  // namespace zel::pruebas
