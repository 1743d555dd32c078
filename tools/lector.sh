#!/usr/bin/env bash
# What a screen reader gets to know of the game, asked over the real accessibility bus: plays a few
# steps by keyboard on a screen and a bus of its own, and fails where the game is silent or wrong.
#
#     tools/lector.sh [PROGRAM]
#
# Needs, beside what the tests need: at-spi2-core python3-gi gir1.2-atspi-2.0 (not a part of the tests)
set -u
cd "$(dirname "$0")/.." || exit 1
programa=$(realpath "${1:-build/release/bin/corvanda}") || exit 1

if [ -z "${CORVANDA_LECTOR-}" ]; then
    CORVANDA_LECTOR=1 exec dbus-run-session -- "$0" "$programa"
fi

. tools/pantalla.sh
casa=$(mktemp -d)
juego=
cerrar() {
    [ -n "$juego" ] && kill "$juego" 2>/dev/null && wait "$juego" 2>/dev/null
    cerrar_pantalla
    rm -rf "$casa"
}
trap cerrar EXIT
abrir_pantalla || exit 1
export XDG_CONFIG_HOME=$casa XDG_RUNTIME_DIR=$casa SDL_AUDIODRIVER=dummy
chmod 700 "$casa"
unset WAYLAND_DISPLAY

servir() {  # servir PROPERTY: what a screen reader does to be served
    gdbus call --session --dest org.a11y.Bus --object-path /org/a11y/bus \
        --method org.freedesktop.DBus.Properties.Set org.a11y.Status "$1" '<true>' >/dev/null
}

# The screen reader comes when the game is running already, as it may on any desktop.
gdbus call --session --dest org.a11y.Bus --object-path /org/a11y/bus \
    --method org.a11y.Bus.GetAddress >/dev/null || exit 1
"$programa" &
juego=$!
sleep 1
servir IsEnabled && servir ScreenReaderEnabled || exit 1
/usr/bin/python3 tools/lector.py
