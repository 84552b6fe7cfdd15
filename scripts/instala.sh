#!/usr/bin/env bash
# Installs what building and testing need, from Debian's packages; does nothing when all is there.
set -euo pipefail

paquetes=(g++ cmake ninja-build pkg-config
    qt6-base-dev qt6-svg-dev libqt6svg6 qt6-wayland qt6-translations-l10n libxml2-dev
    fonts-liberation2 fontconfig libgl-dev
    libgtest-dev libbenchmark-dev locales)

faltan=()
for paquete in "${paquetes[@]}"; do
    dpkg-query -W -f='${db:Status-Status}\n' "$paquete" 2>/dev/null | grep -qx installed || faltan+=("$paquete")
done
if [ ${#faltan[@]} -gt 0 ]; then
    como=()
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || { echo "Hacen falta permisos de administrador para instalar: ${faltan[*]}" >&2; exit 1; }
        como=(sudo)
    fi
    echo "Instalando: ${faltan[*]}"
    "${como[@]}" apt-get update -qq
    "${como[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${faltan[@]}" >/dev/null
fi
