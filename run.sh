#!/usr/bin/env bash
# Starts the game: installs what is missing, builds what has changed, opens the window. Arguments go
# to the game. On a machine without a screen it plays a short demonstration on a virtual one instead
# and leaves pictures of it in capturas/, or in the folder that CORVANDA_CAPTURAS names.
set -u
[ -n "${CORVANDA_CAPTURAS-}" ] && CORVANDA_CAPTURAS=$(realpath -m "$CORVANDA_CAPTURAS")
cd "$(dirname "$(readlink -f "$0")")" || exit 1
. tools/pantalla.sh
. tools/construir.sh

grupos=(build run) programas=(corvanda)
hay_pantalla || { grupos+=(screen) programas+=(demostracion); }

# What was built in a tree that cannot be written is as good as it will be.
if hay_pantalla && [ -x build/release/bin/corvanda ] && [ ! -w build/release ]; then
    exec build/release/bin/corvanda "$@"
fi

bash tools/instalar.sh "${grupos[@]}" || exit 1
if [ ! -f build/release/bin/corvanda ]; then
    echo "Corvanda: building the game, which takes a minute or two the first time" >&2
fi
configurado release "${programas[@]}" || configurar release || exit 1
compilar release "${programas[@]}" || exit 1

if hay_pantalla; then
    shopt -s execfail
    exec build/release/bin/corvanda "$@"
    echo "Corvanda: could not start build/release/bin/corvanda" >&2
    exit 1
fi

# No screen: the demonstration on one of our own, which ends with this script however that ends.
carpeta=${CORVANDA_CAPTURAS:-$PWD/capturas}
registro=build/log/demostracion.log
demostracion_pid=
terminar() {
    [ -n "$demostracion_pid" ] && kill "$demostracion_pid" 2>/dev/null
    cerrar_pantalla
}
trap terminar EXIT
trap 'exit 130' INT
trap 'exit 143' TERM HUP
if ! mkdir -p "$carpeta" 2>/dev/null || [ ! -w "$carpeta" ]; then
    echo "Corvanda: could not write to $carpeta" >&2
    exit 1
fi
[ -n "${CORVANDA_CAPTURAS-}" ] || rm -f -- "$carpeta"/[0-9]*.png

echo "Corvanda: no screen here, so a demonstration is played on a virtual one" >&2
abrir_pantalla || exit 1
QT_QPA_PLATFORM=xcb build/release/bin/demostracion "$carpeta" >$registro 2>&1 </dev/null &
demostracion_pid=$!
wait $demostracion_pid 2>/dev/null  # a crash is told in our own words
estado=$?
demostracion_pid=
if [ $estado -ne 0 ]; then
    echo "Corvanda: the demonstration failed with exit status $estado: see $registro" >&2
    exit $estado
fi
echo "Corvanda: the demonstration was played; its pictures are in $carpeta"
