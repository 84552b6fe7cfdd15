#include "FormularioElemento.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "Preguntas.h"
#include "control/Esquema.h"
#include "platform/Numeros.h"

namespace zel {

namespace {

constexpr double NUMERO_MAXIMO = 32767;
constexpr int CIFRAS = 6;
constexpr int ANCHO = 420;

// How an element's size is shown and typed: a symbol's as a percentage, a line's in pixels.
struct MedidaDeTamanyo {
    const char* rotulo;
    double minimo, maximo;
    double unidad;  // of Tamanyo in one of what is typed
    const char* aviso;
};
constexpr MedidaDeTamanyo DE_SIMBOLO{"&Tamaño (%):", 50, 3300, 0.01,
                                     "El tamaño ha de ser un número entre 50 y 3300, en %."};
constexpr MedidaDeTamanyo DE_LINEA{"&Grosor de línea:", 1, 20, 1,
                                   "El grosor de la línea ha de ser un número entre 1 y 20, en píxeles."};

const MedidaDeTamanyo& MedidaDe(const Elemento& e) {
    return TieneSimbolo(e.Tipo()) ? DE_SIMBOLO : DE_LINEA;
}

// Nodes and reservoirs are numbered together.
TipoElemento Numeracion(TipoElemento tipo) noexcept {
    return tipo == ctEmbalse ? ctNudo : tipo;
}

// The other element that has this number. Intakes may share theirs.
const Elemento* QuienTiene(const Elementos& elementos, const Elemento& e, std::int16_t numero) {
    if (e.Tipo() == ctToma) return nullptr;
    for (const auto& otro : elementos) {
        if (otro.get() != &e && otro->KeyPant() == numero && Numeracion(otro->Tipo()) == Numeracion(e.Tipo()))
            return otro.get();
    }
    return nullptr;
}

}  // namespace

FormularioElemento::FormularioElemento(const Elementos& elementos, const Elemento& e, QWidget* padre)
    : QDialog(padre), elementos_(elementos), e_(e) {
    setWindowTitle(QStringLiteral("Datos del elemento"));
    auto* filas = new QFormLayout(this);
    const MedidaDeTamanyo& medida = MedidaDe(e);
    campoNombre_ = CreaCampo(*filas, QStringLiteral("&Nombre:"), QStringLiteral("nombre"),
                             QString::fromStdString(e.Nombre()));
    campoNumero_ = CreaCampo(*filas, QStringLiteral("N&úmero en pantalla:"), QStringLiteral("numero"),
                             QString::number(e.KeyPant()));
    campoTamanyo_ = CreaCampo(*filas, QString::fromUtf8(medida.rotulo), QStringLiteral("tamanyo"),
                              QString::number(static_cast<double>(e.Tamanyo()) / medida.unidad, 'g', CIFRAS));
    CreaFijos(*filas);
    aviso_ = new QLabel(this);
    aviso_->setObjectName(QStringLiteral("aviso"));
    aviso_->setWordWrap(true);
    aviso_->setTextFormat(Qt::PlainText);
    QFont fuente = aviso_->font();
    fuente.setBold(true);
    aviso_->setFont(fuente);
    aviso_->hide();
    filas->addRow(aviso_);
    auto* botones = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    botones->button(QDialogButtonBox::Ok)->setText(QStringLiteral("Aceptar"));
    botones->button(QDialogButtonBox::Cancel)->setText(QStringLiteral("Cancelar"));
    connect(botones, &QDialogButtonBox::accepted, this, &FormularioElemento::accept);
    connect(botones, &QDialogButtonBox::rejected, this, &QDialog::reject);
    filas->addRow(botones);
    setMinimumWidth(ANCHO);
    campoNombre_->selectAll();
}

QLineEdit* FormularioElemento::CreaCampo(QFormLayout& filas, const QString& rotulo, const QString& objeto,
                                         const QString& texto) {
    auto* campo = new QLineEdit(texto, this);
    campo->setObjectName(objeto);
    filas.addRow(rotulo, campo);
    return campo;
}

void FormularioElemento::CreaFijos(QFormLayout& filas) {
    const auto fija = [&](const char* rotulo, const QString& texto) {
        auto* valor = new QLabel(texto, this);
        valor->setTextFormat(Qt::PlainText);
        valor->setTextInteractionFlags(Qt::TextSelectableByMouse);
        filas.addRow(QString::fromUtf8(rotulo), valor);
    };
    const std::string_view tipo = NombreDeTipo(e_.Tipo());
    fija("Tipo:", tipo.empty() ? QStringLiteral("Desconocido (%1)").arg(static_cast<int>(e_.Tipo()))
                               : QString::fromUtf8(tipo.data(), static_cast<qsizetype>(tipo.size())));
    fija("Código:", QString::number(e_.gfCodSIG()));
    if (!EsLineal(e_.Tipo())) return;
    if (!EmpiezaEnSiMismo(e_.Tipo())) fija("Desde:", DescribeExtremo(e_.ElemIni()));
    fija("Hasta:", DescribeExtremo(e_.ElemFin()));
}

QString FormularioElemento::DescribeExtremo(std::int32_t codigo) const {
    const auto extremo = elementos_.ItemCodSIG(codigo);
    return extremo ? Describe(*extremo) : QStringLiteral("Ninguno");
}

bool FormularioElemento::Rechaza(QLineEdit& campo, const QString& motivo) {
    aviso_->setText(motivo);
    aviso_->show();
    // Whole, however many lines it takes.
    layout()->activate();
    resize(width(), std::max(height(), layout()->totalHeightForWidth(width())));
    campo.setFocus();
    campo.selectAll();
    return false;
}

bool FormularioElemento::LeeNumero() {
    numero_.reset();
    if (!campoNumero_->isModified()) return true;
    const auto valor = NumeroDeUsuario(campoNumero_->text().toStdString());
    if (!valor || *valor < 1 || *valor > NUMERO_MAXIMO || *valor != RedondeaPar(*valor)) {
        return Rechaza(*campoNumero_,
                       QStringLiteral("El número en pantalla ha de ser un número entero entre 1 y 32767."));
    }
    const std::int16_t numero = Entero16(*valor);
    if (const Elemento* otro = QuienTiene(elementos_, e_, numero)) {
        return Rechaza(*campoNumero_,
                       QStringLiteral("El número %1 ya es de %2.").arg(numero).arg(Describe(*otro)));
    }
    if (numero != e_.KeyPant()) numero_ = numero;
    return true;
}

bool FormularioElemento::LeeTamanyo() {
    tamanyo_.reset();
    if (!campoTamanyo_->isModified()) return true;
    const MedidaDeTamanyo& medida = MedidaDe(e_);
    const auto valor = NumeroDeUsuario(campoTamanyo_->text().toStdString());
    if (!valor || *valor < medida.minimo || *valor > medida.maximo)
        return Rechaza(*campoTamanyo_, QString::fromUtf8(medida.aviso));
    const float tamanyo = Real32(*valor * medida.unidad);
    if (tamanyo != e_.Tamanyo()) tamanyo_ = tamanyo;
    return true;
}

void FormularioElemento::accept() {
    if (!LeeNumero() || !LeeTamanyo()) return;
    const std::string nombre = campoNombre_->text().toStdString();
    if (campoNombre_->isModified() && nombre != e_.Nombre()) nombre_ = nombre;
    QDialog::accept();
}

void EditaElemento(Esquema& esquema, QWidget* ventana, std::int32_t codigo) {
    const auto elementos = esquema.GetElementos();
    const auto e = elementos->ItemCodSIG(codigo);
    if (!e) return;
    FormularioElemento formulario(*elementos, *e, ventana);
    if (formulario.exec() != QDialog::Accepted) return;
    const bool cambia = formulario.Nombre() || formulario.Numero() || formulario.Tamanyo();
    if (!cambia || esquema.GetElementos() != elementos || esquema.Seleccionar(codigo) != codigo) return;
    esquema.bHabidoCambios(true);
    if (formulario.Tamanyo()) esquema.TamanyoElemento(*formulario.Tamanyo());
    if (formulario.Numero()) esquema.NumeroPantallaElemento(*formulario.Numero());
    if (formulario.Nombre()) esquema.NombreElemento(QString::fromStdString(*formulario.Nombre()));
    esquema.Refresh();
}

}  // namespace zel
