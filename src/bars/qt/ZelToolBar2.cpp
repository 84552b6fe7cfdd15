#include "bars/qt/ZelToolBar2.h"

namespace zel {

ZelToolBar2::ZelToolBar2(QWidget* padre)
    : BarraDeBotones({{"centrarElemento", "Centrar elemento seleccionado (tecla C)"},
                      {"borrar", "Borrar elemento (tecla Supr)"},
                      {"ajustarzoom", "Auto ajuste (tecla Z)"},
                      {"zoom", "Especificar zoom"},
                      {"mano", "Arrastre de imagen (tecla M)"},
                      {"zoomRecuadro", "Aplicar zoom a recuadro (mayus+Z)"},
                      {"zoommenos", "Reducir zoom (con raton o con tecla - )"},
                      {"zoommas", "Ampliar zoom (con ratón o con tecla +)"}},
                     padre) {}

}  // namespace zel
