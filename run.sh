#!/usr/bin/env bash
# Installs what is missing, builds the program and opens a schematic in a window:  ./run.sh [FILE]
# Where there is no display it renders the same picture to a PNG instead.
set -euo pipefail
raiz=$(cd "$(dirname "$0")" && pwd)
esquema=$raiz/examples/cuenca.xml
[ $# -eq 0 ] || esquema=$(realpath -m "$1")

cd "$raiz"
scripts/instala.sh
cmake --preset release >/dev/null
cmake --build --preset release --target zelvisor

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    codigo=0
    build/release/apps/zelvisor/zelvisor "$esquema" || codigo=$?
    # 3: the window system that the environment names does not answer.
    [ "$codigo" -eq 3 ] || exit "$codigo"
fi
imagen=$PWD/salida/$(basename "${esquema%.*}").png
mkdir -p salida
build/release/apps/zelvisor/zelvisor exportar "$esquema" "$imagen"
echo "No hay pantalla: la imagen del esquema está en $imagen"
echo "Para abrir la ventana, ejecute ./run.sh${1:+ $1} en una sesión gráfica."
