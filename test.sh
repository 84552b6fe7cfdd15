#!/usr/bin/env bash
# Installs what is missing, builds and runs every test, also under a locale with the decimal comma:
#   ./test.sh [release|asan]
set -euo pipefail
cd "$(dirname "$0")"
preset=${1:-release}

scripts/instala.sh
if ! locale -a | grep -qi '^es_ES\.utf-\?8$'; then
    como=(); [ "$(id -u)" -eq 0 ] || como=(sudo)
    "${como[@]}" localedef -i es_ES -f UTF-8 es_ES.UTF-8
fi

cmake --preset "$preset" -DZEL_AVISOS_SON_ERRORES="${CI:+ON}"
cmake --build --preset "$preset"
LC_ALL=C.UTF-8 ctest --preset "$preset" -j2
if [ "$preset" = release ]; then
    echo "Again under es_ES.UTF-8:"
    LC_ALL=es_ES.UTF-8 ctest --preset "$preset" -j2
fi
