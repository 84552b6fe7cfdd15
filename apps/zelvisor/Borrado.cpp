#include "Borrado.h"

#include <algorithm>
#include <set>
#include <unordered_map>

#include "Preguntas.h"
#include "control/Esquema.h"

namespace zel {

namespace {

constexpr std::size_t MAXIMO_NOMBRADOS = 8;
constexpr std::int32_t SIN_EXTREMO = 0;

using Codigos = std::set<std::int32_t>;

Codigos CodigosDe(const std::vector<std::shared_ptr<Elemento>>& elementos, std::int32_t codigo) {
    Codigos codigos{codigo};
    for (const auto& e : elementos)
        codigos.insert(e->gfCodSIG());
    return codigos;
}

bool TieneSecundaria(const Elemento& e, const Codigos& con) {
    return con.contains(e.ConecSec1()) || con.contains(e.ConecSec2());
}

QString Detalle(const std::vector<std::shared_ptr<Elemento>>& dependientes, bool conSecundarias) {
    QString detalle;
    if (!dependientes.empty()) {
        detalle = dependientes.size() == 1
                      ? QStringLiteral("Se borra también un elemento conectado:")
                      : QStringLiteral("Se borran también %1 elementos conectados:").arg(dependientes.size());
        const std::size_t nombrados = std::min(dependientes.size(), MAXIMO_NOMBRADOS);
        for (std::size_t i = 0; i < nombrados; ++i)
            detalle += QStringLiteral("\n   ") + Describe(*dependientes[i]);
        if (nombrados < dependientes.size())
            detalle += QStringLiteral("\n   y %1 más").arg(dependientes.size() - nombrados);
        detalle += QStringLiteral("\n\n");
    }
    if (conSecundarias) detalle += QStringLiteral("Sus conexiones secundarias desaparecen también.\n\n");
    return detalle + QStringLiteral("No se puede deshacer.");
}

void QuitaSecundarias(const Elementos& elementos, const Codigos& con) {
    for (const auto& e : elementos) {
        if (con.contains(e->ConecSec2())) e->ConecSec2(-1);
        if (!con.contains(e->ConecSec1())) continue;
        // The first place is never the empty one of the two.
        e->ConecSec1(e->ConecSec2());
        e->ConecSec2(-1);
    }
}

}  // namespace

std::vector<std::shared_ptr<Elemento>> Dependientes(const Elementos& elementos, std::int32_t codigo) {
    std::unordered_multimap<std::int32_t, std::int32_t> porExtremo;
    for (const auto& e : elementos) {
        if (!EsLineal(e->Tipo())) continue;
        for (const std::int32_t extremo : {e->ElemIni(), e->ElemFin()}) {
            if (extremo != SIN_EXTREMO) porExtremo.emplace(extremo, e->gfCodSIG());
        }
    }
    Codigos encontrados;
    std::vector<std::int32_t> porMirar{codigo};
    while (!porMirar.empty()) {
        const auto [desde, hasta] = porExtremo.equal_range(porMirar.back());
        porMirar.pop_back();
        for (auto par = desde; par != hasta; ++par) {
            if (par->second != codigo && encontrados.insert(par->second).second)
                porMirar.push_back(par->second);
        }
    }
    std::vector<std::shared_ptr<Elemento>> dependientes;
    for (const auto& e : elementos) {
        if (encontrados.contains(e->gfCodSIG())) dependientes.push_back(e);
    }
    return dependientes;
}

void PreguntaYBorra(Esquema& esquema, QWidget* ventana, std::int32_t codigo) {
    const auto elementos = esquema.GetElementos();
    const auto e = elementos->ItemCodSIG(codigo);
    if (!e) return;
    const auto dependientes = Dependientes(*elementos, codigo);
    const Codigos borrados = CodigosDe(dependientes, codigo);
    const bool conSecundarias = std::any_of(elementos->begin(), elementos->end(), [&](const auto& otro) {
        return TieneSecundaria(*otro, borrados);
    });
    if (!Confirma(ventana, QStringLiteral("¿Borrar %1?").arg(Describe(*e)),
                  Detalle(dependientes, conSecundarias), QStringLiteral("&Borrar")))
        return;
    if (esquema.GetElementos() == elementos) BorraConDependientes(esquema, codigo);
}

void BorraConDependientes(Esquema& esquema, std::int32_t codigo) {
    const auto elementos = esquema.GetElementos();
    if (esquema.Seleccionar(codigo) != codigo) return;
    const auto dependientes = Dependientes(*elementos, codigo);
    for (const auto& dependiente : dependientes)
        elementos->RemoveCodSIG(dependiente->gfCodSIG());
    QuitaSecundarias(*elementos, CodigosDe(dependientes, codigo));
    esquema.bHabidoCambios(true);
    esquema.BorrarElemento();
}

}  // namespace zel
