#include "Ayuda.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

namespace zel {

namespace {

constexpr QSize TAMANYO{760, 660};

// A row without a second text is a heading.
struct Fila {
    const char* gesto;
    const char* efecto;
};
constexpr Fila FILAS[] = {
    {"Ratón", nullptr},
    {"Clic", "Selecciona el elemento"},
    {"Doble clic", "Edita los datos del elemento"},
    {"Arrastrar el elemento seleccionado", "Lo mueve, con los extremos de lo que llega a él"},
    {"Arrastrar la etiqueta del elemento seleccionado", "La mueve"},
    {"Arrastrar desde un lugar vacío", "Selecciona un subsistema con un recuadro"},
    {"Ctrl y clic", "Añade o quita un elemento del subsistema"},
    {"Botón derecho", "Menú del elemento, del subsistema y del visor"},
    {"Rueda", "Desplaza la vista; con Mayús, a los lados"},
    {"Ctrl y rueda, o pellizcar", "Acerca o aleja la vista en torno al ratón"},
    {"Arrastrar con el botón central desde un lugar vacío", "Mueve la vista"},
    {"Soltar un archivo en la ventana", "Abre el esquema"},
    {"Teclas del esquema", nullptr},
    {"Supr", "Borra el elemento seleccionado, tras preguntarlo"},
    {"Esc", "Deja lo que se está haciendo, o quita la selección"},
    {"Retroceso", "Quita el último punto del trazado que se dibuja"},
    {"Flechas", "Desplazan la vista"},
    {"+ y − del teclado numérico", "Acercan y alejan la vista"},
    {"Z", "Muestra todo el esquema"},
    {"Mayús+Z", "Amplía la región que se marque"},
    {"M", "Arrastra la vista con el ratón"},
    {"C", "Centra la vista en el elemento seleccionado"},
    {"Alt+F10, Alt+F11", "Primera y segunda conexión secundaria del elemento"},
    {"Elementos nuevos", nullptr},
    {"Mayús+N, E, D, A", "Nudo, embalse, demanda, acuífero"},
    {"Mayús+1 a Mayús+5", "Conducción de cada tipo"},
    {"Mayús+R, B, T, C", "Recarga, bombeo, toma, central hidroeléctrica"},
    {"Programa", nullptr},
    {"Ctrl+N, Ctrl+O", "Esquema nuevo, abrir un esquema"},
    {"Ctrl+S, Ctrl+Mayús+S", "Guardar, guardar con otro nombre"},
    {"Inicio", "Muestra todo el esquema"},
    {"Ctrl++, Ctrl+−", "Acerca y aleja la vista"},
    {"F1", "Esta ayuda"},
    {"Ctrl+Q", "Salir"},
};
constexpr int CUANTAS = static_cast<int>(std::size(FILAS));

QTableWidgetItem* Celda(const char* texto, bool cabecera) {
    auto* celda = new QTableWidgetItem(QString::fromUtf8(texto));
    celda->setFlags(Qt::ItemIsEnabled);
    QFont fuente = celda->font();
    fuente.setBold(cabecera);
    celda->setFont(fuente);
    return celda;
}

QTableWidget* Tabla(QWidget* padre) {
    auto* tabla = new QTableWidget(CUANTAS, 2, padre);
    tabla->horizontalHeader()->hide();
    tabla->verticalHeader()->hide();
    tabla->setShowGrid(false);
    tabla->setWordWrap(true);
    for (int i = 0; i < CUANTAS; ++i) {
        const bool cabecera = FILAS[i].efecto == nullptr;
        tabla->setItem(i, 0, Celda(FILAS[i].gesto, cabecera));
        if (cabecera)
            tabla->setSpan(i, 0, 1, 2);
        else
            tabla->setItem(i, 1, Celda(FILAS[i].efecto, false));
    }
    tabla->resizeColumnToContents(0);
    tabla->horizontalHeader()->setStretchLastSection(true);
    tabla->verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    return tabla;
}

}  // namespace

Ayuda::Ayuda(QWidget* padre) : QDialog(padre) {
    setWindowTitle(QStringLiteral("Gestos y teclas"));
    setAttribute(Qt::WA_DeleteOnClose);
    auto* columna = new QVBoxLayout(this);
    columna->addWidget(Tabla(this));
    auto* botones = new QDialogButtonBox(QDialogButtonBox::Close, this);
    botones->button(QDialogButtonBox::Close)->setText(QStringLiteral("Cerrar"));
    connect(botones, &QDialogButtonBox::rejected, this, &QDialog::reject);
    columna->addWidget(botones);
    resize(TAMANYO);
}

}  // namespace zel
