#include "bars/qt/ZelToolBar.h"

namespace zel {

ZelToolBar::ZelToolBar(QWidget* padre)
    : BarraDeBotones({{"subcuenca", "Subcuenca"},
                      {"retorno", "Retorno"},
                      {"aportacion", "Aportación"},
                      {"centralHE", "Central Hidroeléctrica (mayus+C)"},
                      {"toma", "Toma (mayus+T)"},
                      {"bombeo", "Bombeo (mayus+B)"},
                      {"recarga", "Recarga (mayus+R)"},
                      {"conduccion5", "Conducción tipo 5 (mayus+5)"},
                      {"conduccion4", "Conducción tipo 4 (mayus+4)"},
                      {"conduccion3", "Conducción tipo 3 (mayus+3)"},
                      {"conduccion2", "Conducción tipo 2 (mayus+2)"},
                      {"conduccion1", "Conducción tipo 1 (mayus+1)"},
                      {"acuifero", "Acuífero (mayus+A)"},
                      {"demanda", "Demanda (mayus+D)"},
                      {"embalse", "Embalse (mayus+E)"},
                      {"nudo", "Nudo (mayus+N)"},
                      {"flecha", "Selección"}},
                     padre) {}

}  // namespace zel
