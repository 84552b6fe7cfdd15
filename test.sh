#!/usr/bin/env bash
# Installs what is missing, builds and runs every test, also under a locale with the decimal comma:
#   ./test.sh [release|asan]
set -euo pipefail
cd "$(dirname "$0")"
preset=${1:-release}

scripts/instala.sh
cmake --preset "$preset" -DZEL_AVISOS_SON_ERRORES="${CI:+ON}"
cmake --build --preset "$preset"
LC_ALL=C.UTF-8 ctest --preset "$preset" -j2
if [ "$preset" = release ]; then
    echo "Again under es_ES.UTF-8:"
    # Where the machine has none, one of our own: it takes no rights.
    if ! locale -a | grep -qi '^es_ES\.utf-\?8$'; then
        export LOCPATH=$PWD/build/locales
        mkdir -p "$LOCPATH"
        [ -d "$LOCPATH/es_ES.UTF-8" ] || localedef -i es_ES -f UTF-8 "$LOCPATH/es_ES.UTF-8"
    fi
    LC_ALL=es_ES.UTF-8 ctest --preset "$preset" -j2
fi
