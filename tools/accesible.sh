# A screen and an accessibility bus of our own with a home of our own, for the clients that play the
# game from outside; to be sourced by a script of tools/ in the folder above:
#
#     abrir_todo "$@" || exit 1     starts the script again on a session bus of its own, then opens
#                                   all; it is closed again when the script ends
#     atender || exit 1             what a screen reader does to be served
#
# It is not a part of the tests.
. tools/pantalla.sh
juego=

abrir_todo() {
    if [ -z "${CORVANDA_CASA-}" ]; then
        # The buses keep their sockets in this folder, so they have to know it from the beginning.
        CORVANDA_CASA=$(mktemp -d) || return 1
        export CORVANDA_CASA XDG_CONFIG_HOME=$CORVANDA_CASA/config XDG_CACHE_HOME=$CORVANDA_CASA
        export XDG_RUNTIME_DIR=$CORVANDA_CASA SDL_AUDIODRIVER=dummy PYTHONDONTWRITEBYTECODE=1
        unset WAYLAND_DISPLAY AT_SPI_BUS_ADDRESS
        dbus-run-session -- "tools/$(basename "$0")" "$@"
        salida=$?
        rm -rf "$CORVANDA_CASA"
        exit $salida
    fi
    trap cerrar_todo EXIT
    abrir_pantalla || return 1
    gdbus call --session --dest org.a11y.Bus --object-path /org/a11y/bus \
        --method org.a11y.Bus.GetAddress >/dev/null
}

cerrar_todo() {
    [ -n "$juego" ] && kill "$juego" 2>/dev/null && wait "$juego" 2>/dev/null
    cerrar_pantalla
}

atender() { servir IsEnabled && servir ScreenReaderEnabled; }

servir() {  # servir PROPERTY
    gdbus call --session --dest org.a11y.Bus --object-path /org/a11y/bus \
        --method org.freedesktop.DBus.Properties.Set org.a11y.Status "$1" '<true>' >/dev/null
}
