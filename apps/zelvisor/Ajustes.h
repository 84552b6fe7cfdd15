#pragma once

#include <QSettings>

namespace zel {

// What the program remembers between runs: a text file of the user's own.
inline QSettings Ajustes() {
    return QSettings(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("zelvisor"),
                     QStringLiteral("zelvisor"));
}

}  // namespace zel
