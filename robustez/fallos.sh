#!/usr/bin/env bash
# Lets everything go wrong that can go wrong around saving the settings:
#
#     robustez/fallos.sh [KILLS]
#
# KILLS (500 by default) is how often a program is killed in the middle of saving, and half of it how
# often two save at once. After each blow the file must be whole: either the old or the new one. The
# full file system is a real one, for which this must run as root; elsewhere that part is told as
# left out. Ends with 1 at the first thing that does not hold.
set -u
cd "$(dirname "$0")/.." || exit 2
. tools/construir.sh
golpes=${1:-500}
configurado release guardador falla || configurar release || exit 1
compilar release guardador falla || exit 1
bin=$PWD/build/release/bin
falla=$PWD/build/release/robustez/libfalla.so
obra=$(mktemp -d)
terminar() {
    mountpoint -q "$obra/lleno" && umount "$obra/lleno"
    rm -rf "$obra"
}
trap terminar EXIT
archivo=$obra/ajustes/settings.json

mal() { echo "fallos: $*" >&2 && exit 1; }
leer() { "$bin/guardador" --leer "$1" "$2"; }
# Nothing but the settings may be left in their folder.
limpio() {
    local resto
    resto=$(find "${1%/*}" -mindepth 1 ! -name settings.json | head -n 3)
    [ -z "$resto" ] || mal "$2 left litter behind: $resto"
}

matar() {
    local i numero=1 leido vistos=0
    mkdir -p "$obra/ajustes"
    "$bin/guardador" "$archivo" uno 1 1 || mal "the first save failed"
    for ((i = 0; i < golpes; ++i)); do
        "$bin/guardador" "$archivo" uno $((numero + 1)) >/dev/null &
        local pid=$!
        sleep "0.0$((RANDOM % 60 + 10))"
        kill -9 $pid 2>/dev/null
        wait $pid 2>/dev/null
        leido=$(leer "$archivo" uno) || mal "kill $i left half a file"
        [[ $leido =~ ^[0-9]+$ ]] && [ "$leido" -ge "$numero" ] || mal "kill $i lost the settings: $leido"
        [ "$leido" -gt "$numero" ] && vistos=$((vistos + 1))
        numero=$leido
    done
    "$bin/guardador" "$archivo" uno 1 1 || mal "the save after the last kill failed"
    limpio "$archivo" "a killed program"
    echo "killed $golpes times, $vistos of them after at least one save: always whole, $numero saves"
}

a_la_vez() {
    local i
    for ((i = 1; i <= golpes / 2; ++i)); do
        "$bin/guardador" "$archivo" uno $i 1 & local uno=$!
        "$bin/guardador" "$archivo" dos $i 1 & local dos=$!
        wait $uno && wait $dos || mal "two at once: one could not save"
        [ "$(leer "$archivo" uno) $(leer "$archivo" dos)" = "$i $i" ] || mal "two at once: one was lost"
    done
    echo "two programs saved at once, $((golpes / 2)) times: both kept"
}

con_falla() {  # con_falla NUMBER ERRNO [ON]: saves 2 with that call failing
    local sigue=()
    [ -n "${3-}" ] && sigue=(FALLA_SIGUE=1)
    env LD_PRELOAD="$falla" FALLA_EN="$obra/ajustes" FALLA_N="$1" FALLA_ERRNO="$2" "${sigue[@]}" \
        "$bin/guardador" "$archivo" uno 2 1
}

# What a save does to the folder, in this order.
conocidas="mkdir open64 fchmod write fsync linkat linkat rename"

# Each call that writes fails once, and then from there on, for each reason.
cada_llamada() {
    local errno sigue n llamadas fallos=0 avisos=0 salida leido
    salida=$(con_falla 0 0 '' 2>&1 >/dev/null | sed -n 's/^calls //p')
    # A step that is left out (fsync, of all) fails nothing here but this.
    [ "$salida" = "$conocidas" ] || mal "a save made the calls '$salida', not '$conocidas'"
    llamadas=$(wc -w <<<"$salida")
    for errno in 28 5 13; do  # no space, input/output error, no permission
        for sigue in '' 1; do
            for ((n = 1; n <= llamadas; ++n)); do
                "$bin/guardador" "$archivo" uno 1 1 || mal "a plain save failed"
                salida=$(con_falla $n $errno "$sigue" 2>/dev/null)
                local estado=$?
                leido=$(leer "$archivo" uno) || mal "call $n, error $errno: half a file"
                fallos=$((fallos + 1))
                case $estado:$leido in
                    0:2) ;;
                    1:1) [[ $salida == "The settings could not be saved in "* ]] || mal "no message: $salida"
                        avisos=$((avisos + 1)) ;;
                    *) mal "call $n, error $errno${sigue:+ and on}: ended with $estado, file holds $leido" ;;
                esac
            done
        done
    done
    limpio "$archivo" "a failed save"
    echo "each of $llamadas calls failing, in $fallos ways: $avisos told and the old file kept, the others saved all the same"
}

disco_lleno() {
    [ "$(id -u)" = 0 ] || { echo "full file system: left out, needs root" && return; }
    mkdir -p "$obra/lleno"
    mount -t tmpfs -o size=16k none "$obra/lleno" 2>/dev/null || { echo "full file system: left out, no mount" && return; }
    local lleno=$obra/lleno/settings.json salida
    "$bin/guardador" "$lleno" uno 1 1 || mal "a save on an empty disk failed"
    dd if=/dev/zero of="$obra/lleno/relleno" bs=1k 2>/dev/null
    salida=$("$bin/guardador" "$lleno" uno 2 1) && mal "a full disk was not told"
    [[ $salida == *"no room left on the disk"* ]] || mal "full disk: $salida"
    [ "$(leer "$lleno" uno)" = 1 ] || mal "a full disk cost the old settings"
    rm "$obra/lleno/relleno"
    mount -o remount,ro "$obra/lleno" || mal "no read-only mount"
    salida=$("$bin/guardador" "$lleno" uno 3 1) && mal "a read-only disk was not told"
    [ "$(leer "$lleno" uno)" = 1 ] || mal "a read-only disk cost the old settings"
    echo "full file system and read-only file system: told, old settings kept"
}

matar
a_la_vez
cada_llamada
disco_lleno
