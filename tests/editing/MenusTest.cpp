#include "editing/Menus.h"

#include <gtest/gtest.h>

#include "support/Relato.h"

namespace zel::pruebas {
namespace {

// What can be seen below an item: "Uno; Dos; *Con marca; Tres (Cuatro; Cinco)".
std::string Rama(const AspectoDelMenu& menu, ItemDeMenu padre) {
    std::string texto;
    for (const FilaDeMenu& fila : FilasDeMenu()) {
        if (fila.padre != padre || fila.item == padre || !menu[fila.item].visible) continue;
        if (fila.clase == ClaseDeItem::Separador) continue;
        texto += (texto.empty() ? "" : "; ") + std::string(menu[fila.item].marcado ? "*" : "");
        texto += menu[fila.item].texto;
        if (fila.clase == ClaseDeItem::Submenu) texto += " (" + Rama(menu, fila.item) + ")";
    }
    return texto;
}

std::string Menu(const SituacionDelMenu& situacion) {
    return Rama(AspectoDelMenuEn(situacion), ItemDeMenu::menuContextual);
}

const std::string DOCUMENTO = "Documento relacionado (Adjuntar...; Ver...); ";
const std::string VISOR =
    "Menu General de Visor (Seleccionar un subsistema; Agregar imagen de fondo; No mostrar etiquetas; "
    "*Mostrar lineas ocultas; Modificar aspecto (Tamaño fuentes; Tamaño elementos))";

TEST(Menus, OffersWhatTheSelectedElementHasAndTellsWhatTheViewShows) {
    const Vertices dos = {{0, 0}, {9, 9}}, tres = {{0, 0}, {5, 5}, {9, 9}};
    const char* const NODOS = "Mover nodos de la conducción; ";
    const std::string SIMBOLO = "Colores (Color del icono; Color del trazado); Tamaño; ",
                      LINEA = "Colores (Color del trazado); Grosor de línea; ";
    const auto etiqueta = [](std::string marca) {
        return "Etiqueta (*Mostrar etiqueta; Tamaño Etiqueta; " + marca +
               "Pegar etiqueta a elemento; *Tamaño en base al del elemento); ";
    };
    Elemento movida = ConNombre(Lineal(ctToma, {4, 4}, tres), "X");
    movida.EtiquetaMovida(true);
    const std::pair<Elemento, std::string> filas[] = {
        {ConNombre(Simbolo(ctNudo, {1, 1}), "X"), "Colores (Color del icono); Tamaño; " + etiqueta("")},
        {ConNombre(Lineal(ctConduccion1, {4, 4}, dos), "X"), LINEA + etiqueta("*")},
        {ConNombre(Lineal(ctBombeo, {4, 4}, tres), "X"), LINEA + NODOS + etiqueta("*")},
        {movida, LINEA + NODOS + etiqueta("")},
        {ConNombre(Lineal(ctCentralHidroelectrica, {5, 5}, dos), "X"), SIMBOLO + etiqueta("")},
        {ConNombre(Lineal(ctCentralHidroelectrica, {5, 5}, dos, 1, tres), "X"),
         SIMBOLO + NODOS + etiqueta("")},
        {ConNombre(Lineal(ctRetorno, {0, 0}, tres), "X"), SIMBOLO + NODOS + etiqueta("")},
        {ConNombre(Simbolo(static_cast<TipoElemento>(16), {1, 1}), "X"), SIMBOLO + etiqueta("")},
        {ConNombre(Simbolo(static_cast<TipoElemento>(-1), {1, 1}), "X"),
         "Colores (Color del icono); Tamaño; " + etiqueta("")},
        {Lineal(ctConduccion1, {4, 4}, dos), LINEA + "Etiqueta (Mostrar etiqueta); "}};
    for (const auto& [e, suyo] : filas) {
        const std::string editar = "Editar " + e.Nombre() + "; ";
        EXPECT_EQ(Menu({&e}), editar + DOCUMENTO + suyo + VISOR) << e.Tipo();
        EXPECT_EQ(Menu({&e, true}), "Volver a esquema general; Exportar seleccion; " + VISOR);
    }
    EXPECT_EQ(Menu({}), VISOR);
    EXPECT_EQ(Menu({nullptr, false, true, false, false}),
              "Menu General de Visor (Seleccionar un subsistema; Editar imagen de fondo; Quitar imagen de "
              "fondo; *No mostrar etiquetas; Mostrar lineas ocultas; Modificar aspecto (Tamaño fuentes; "
              "Tamaño elementos))");
}

}  // namespace
}  // namespace zel::pruebas
