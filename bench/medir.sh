#!/usr/bin/env bash
# Prints what the game costs, measured on a virtual screen of its own:
#
#     bench/medir.sh [COMMAND TITLE]...
#
# First the benchmarks of the core and of the window, then, for the game and for every further
# program named by a command and a pattern for its window's title, the time from the start to a
# mapped window (median of nine), and memory, processor time and wake-ups at rest over ten seconds.
set -u
cd "$(dirname "$0")/.." || exit 2
tools/instalar.sh build run screen hand || exit 1
. tools/pantalla.sh
. tools/construir.sh
configurado release bench_nucleo bench_pausa bench_ventana corvanda || configurar release || exit 1
compilar release bench_nucleo bench_pausa bench_ventana corvanda || exit 1
bin=build/release/bin

work=$(mktemp -d)
export HOME=$work XDG_RUNTIME_DIR=$work XDG_CONFIG_HOME=$work/config
trap 'cerrar_pantalla; rm -rf "$work"' EXIT
abrir_pantalla || exit 1

ms() { local t=${EPOCHREALTIME/[.,]/}; echo $((t / 1000)); }

window() { xdotool search --onlyvisible --class . getwindowname %@ 2>/dev/null | grep -qE "$1"; }

# Starts a program and waits for its window; sets pid and took.
start() {
  local from; from=$(ms)
  $1 >/dev/null 2>&1 & pid=$!
  for _ in {1..1000}; do window "$2" && break; sleep 0.005; done
  took=$(( $(ms) - from ))
}

stop() { kill "$pid" 2>/dev/null; wait "$pid" 2>/dev/null; sleep 0.3; }

cpu() { awk '{print ($14 + $15) * 10}' "/proc/$1/stat"; }
# Each thread and how often it has waited, and the sum of what lies between two such lists.
wakes() { awk '/^Pid/ {t = $2} /^voluntary/ {print t, $2}' /proc/"$1"/task/*/status | sort; }
between() { join "$1" "$2" | awk '{n += $3 - $2} END {print n + 0}'; }

measure() {
  local all=() i pss c0
  for i in {1..9}; do start "$1" "$2"; all+=("$took"); stop; done
  start "$1" "$2"; sleep 6
  pss=$(awk '/^Pss:/ {printf "%.1f", $2 / 1024}' "/proc/$pid/smaps_rollup")
  c0=$(cpu "$pid"); wakes "$pid" >"$work/before"; sleep 10; wakes "$pid" >"$work/after"
  printf '%-24s mapped window %4s ms, memory %6s MiB, in 10 s at rest: processor %s ms, wake-ups %s\n' \
    "${1##*/}" "$(printf '%s\n' "${all[@]}" | sort -n | sed -n 5p)" "$pss" \
    $(($(cpu "$pid") - c0)) "$(between "$work/before" "$work/after")"
  stop
}

"$bin/bench_nucleo"
"$bin/bench_pausa"
"$bin/bench_ventana"
measure "$bin/corvanda" 'Corvanda|Acerca'
while [ $# -ge 2 ]; do measure "$1" "$2"; shift 2; done
