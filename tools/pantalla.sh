# A screen of our own, for run.sh where there is none and for what measures or listens; to be sourced.
#
#     abrir_pantalla || exit 1      starts Xvfb and openbox, sets DISPLAY
#     cerrar_pantalla               ends both; for the caller's EXIT trap

hay_pantalla() { [ -n "${DISPLAY-}${WAYLAND_DISPLAY-}" ]; }

abrir_pantalla() {
    pantalla_dir=$(mktemp -d) || return 1
    Xvfb -displayfd 3 -screen 0 1920x1080x24 -nolisten tcp -noreset \
        3>"$pantalla_dir/numero" >"$pantalla_dir/xvfb.log" 2>&1 &
    pantalla_pids=($!)
    if ! aguardar -s "$pantalla_dir/numero"; then
        echo "Corvanda: could not start a virtual screen: $(tail -n 1 "$pantalla_dir/xvfb.log")" >&2
        return 1
    fi
    DISPLAY=:$(<"$pantalla_dir/numero")
    export DISPLAY
    # The window manager keeps its notes in our folder, not in the user's.
    XDG_CACHE_HOME=$pantalla_dir XDG_CONFIG_HOME=$pantalla_dir \
        openbox --sm-disable --startup "touch $pantalla_dir/listo" >"$pantalla_dir/openbox.log" 2>&1 &
    pantalla_pids+=($!)
    if ! aguardar -e "$pantalla_dir/listo"; then
        echo "Corvanda: could not start a window manager: $(tail -n 1 "$pantalla_dir/openbox.log")" >&2
        return 1
    fi
}

aguardar() {  # aguardar TEST FILE: up to ten seconds, or until the process started last is gone
    local i
    for ((i = 0; i < 200; ++i)); do
        test "$1" "$2" && return 0
        kill -0 "${pantalla_pids[-1]}" 2>/dev/null || return 1
        sleep 0.05
    done
    return 1
}

cerrar_pantalla() {
    local i
    for ((i = ${#pantalla_pids[@]} - 1; i >= 0; --i)); do
        kill "${pantalla_pids[i]}" 2>/dev/null && wait "${pantalla_pids[i]}" 2>/dev/null
    done
    pantalla_pids=()
    [ -n "${pantalla_dir-}" ] && rm -rf "$pantalla_dir"
    pantalla_dir=
}
pantalla_pids=()
