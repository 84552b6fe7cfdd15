#include "control/componentes/Valores.h"

#include "bars/Buttons.h"
#include "bars/Panels.h"
#include "control/componentes/FuenteAjena.h"
#include "model/Elementos.h"

namespace zel {

namespace {

template <typename... Clases>
QVariant ValorDeObjeto(const std::shared_ptr<Objeto>& objeto) {
    QVariant valor;
    const auto prueba = [&](const auto& suyo) {
        if (suyo) valor = ValorDe(suyo);
        return suyo != nullptr;
    };
    (prueba(std::dynamic_pointer_cast<Clases>(objeto)) || ...);
    return valor;
}

QVariantList ListaDe(const QVariant& valor) {
    if (!valor.canConvert<QVariantList>()) throw Fallo(13);
    return valor.toList();
}

std::shared_ptr<Elemento> ElementoDe(const QVariant& valor) {
    const Referencia referencia = ReferenciaDeValor(valor);
    if (!referencia || dynamic_cast<const ObjetoPorTabla*>(referencia.get())) {
        return ObjetoDeValor<Elemento>(valor);
    }
    auto copia = std::make_shared<Elemento>();
    copia->CopiaPropiedades(FuenteAjena(*referencia));
    return copia;
}

}  // namespace

Referencia ReferenciaDeValor(const QVariant& valor) {
    if (!valor.isValid() || valor.metaType().id() == QMetaType::Nullptr) return nullptr;
    if (valor.metaType() != QMetaType::fromType<Referencia>()) throw Fallo(13);
    return valor.value<Referencia>();
}

Variante AVariante(const QVariant& valor) {
    switch (valor.metaType().id()) {
        case QMetaType::UnknownType:
            return {};
        case QMetaType::Bool:
            return valor.toBool();
        case QMetaType::Char:
        case QMetaType::SChar:
        case QMetaType::UChar:
        case QMetaType::Short:
        case QMetaType::UShort:
        case QMetaType::Int:
            return valor.toInt();
        case QMetaType::Float:
            return valor.toFloat();
        case QMetaType::UInt:
        case QMetaType::Long:
        case QMetaType::ULong:
        case QMetaType::LongLong:
        case QMetaType::ULongLong:
        case QMetaType::Double:
            return valor.toDouble();
        case QMetaType::QString:
        case QMetaType::QChar:
        case QMetaType::QByteArray:
            return valor.toString().toStdString();
        default:
            break;
    }
    const Referencia referencia = ReferenciaDeValor(valor);
    if (!referencia) return std::shared_ptr<Objeto>();
    const auto* propio = dynamic_cast<const ObjetoPorTabla*>(referencia.get());
    auto objeto = propio ? propio->ComoObjeto() : nullptr;
    if (!objeto) throw Fallo(13);
    return objeto;
}

QVariant AQVariant(const Variante& valor) {
    struct {
        QVariant operator()(std::monostate) const { return {}; }
        QVariant operator()(bool v) const { return v; }
        QVariant operator()(std::int32_t v) const { return v; }
        QVariant operator()(float v) const { return v; }
        QVariant operator()(double v) const { return v; }
        QVariant operator()(const std::string& v) const { return QString::fromStdString(v); }
        QVariant operator()(const std::shared_ptr<Objeto>& v) const {
            return ValorDeObjeto<Puntos, Elemento, Elementos, Boton, Buttons, Panel, Panels>(v);
        }
    } const aQVariant;
    return valor.Visita(aQVariant);
}

QVariant Convertido(const QVariant& valor, QMetaType tipo) {
    switch (tipo.id()) {
        case QMetaType::Bool:
            return AVariante(valor).Booleano();
        case QMetaType::Short:
            return QVariant::fromValue(AVariante(valor).Entero16());
        case QMetaType::Int:
            return AVariante(valor).Entero32();
        case QMetaType::Float:
            return AVariante(valor).Real32();
        case QMetaType::Double:
            return AVariante(valor).Numero();
        case QMetaType::QString:
            return QString::fromStdString(AVariante(valor).Texto());
        case QMetaType::QStringList: {
            QStringList textos;
            for (const QVariant& uno : ListaDe(valor))
                textos.push_back(QString::fromStdString(AVariante(uno).Texto()));
            return textos;
        }
        default:
            break;
    }
    if (valor.metaType() == tipo) return valor;
    if (tipo == QMetaType::fromType<QList<qint32>>()) {
        QList<qint32> numeros;
        for (const QVariant& uno : ListaDe(valor))
            numeros.push_back(AVariante(uno).Entero32());
        return QVariant::fromValue(numeros);
    }
    using Opcional = std::optional<Variante>;
    if (tipo == QMetaType::fromType<Opcional>()) {
        return QVariant::fromValue(valor.isValid() ? Opcional(AVariante(valor)) : Opcional());
    }
    if (tipo == QMetaType::fromType<std::shared_ptr<Elemento>>()) {
        return QVariant::fromValue(ElementoDe(valor));
    }
    QVariant convertido = valor;
    if (!convertido.convert(tipo)) throw Fallo(13);
    return convertido;
}

QVariant HaciaFuera(const QVariant& valor) {
    if (valor.metaType() == QMetaType::fromType<std::shared_ptr<Elemento>>()) {
        return ValorDe(valor.value<std::shared_ptr<Elemento>>());
    }
    if (valor.metaType() == QMetaType::fromType<std::shared_ptr<Boton>>()) {
        return ValorDe(valor.value<std::shared_ptr<Boton>>());
    }
    return valor;
}

}  // namespace zel
