#!/usr/bin/env bash
# Runs each fuzzing program for a while, from the kept seeds:
#
#     robustez/fuzz.sh [SECONDS] [NAMES...]
#
# Without SECONDS for twenty; NAMES are of juego, ajustes, medios, ayuda. What it finds on the way is
# kept in build/fuzz/hallado/NAME and is where the next run begins. An input that breaks something is
# left in build/fuzz/fallos, to be given to the program alone: build/fuzz/bin/fuzz_NAME INPUT.
set -u
cd "$(dirname "$0")/.." || exit 2
. tools/construir.sh
segundos=${1:-20}
[ $# -gt 0 ] && shift
[ $# -eq 0 ] && set -- juego ajustes medios ayuda
bash tools/instalar.sh build fuzz || exit 1
configurado fuzz "${@/#/fuzz_}" || configurar fuzz || exit 1
compilar fuzz "${@/#/fuzz_}" || exit 1

export QT_QPA_PLATFORM=offscreen ASAN_OPTIONS=intercept_tls_get_addr=0
export LSAN_OPTIONS=suppressions=$PWD/tests/lsan.supp:print_suppressions=0
mkdir -p build/fuzz/fallos build/log

correr() {  # correr NAME
    local hallado=build/fuzz/hallado/$1 registro=build/log/fuzz-$1.log
    mkdir -p "$hallado"
    if ! build/fuzz/bin/fuzz_"$1" -max_total_time="$segundos" -timeout=30 \
        -print_final_stats=1 -artifact_prefix=build/fuzz/fallos/ \
        "$hallado" robustez/semillas/"$1" >"$registro" 2>&1 </dev/null; then
        tail -n 30 "$registro" >&2
        echo "fuzz: $1 found something: see $registro" >&2
        return 1
    fi
    awk -v nombre="$1" '/ cov: / {for (i = 1; i < NF; ++i) if ($i == "cov:") c = $(i + 1)}
        /number_of_executed_units/ {n = $2}
        END {printf "fuzz %-8s %10d executions, coverage %d points, nothing found\n", nombre, n, c}' "$registro"
}

# Two at a time.
estado=0
while [ $# -gt 0 ]; do
    correr "$1" & primero=$!
    segundo=
    [ $# -gt 1 ] && { correr "$2" & segundo=$!; shift; }
    shift
    wait $primero || estado=1
    [ -z "$segundo" ] || wait "$segundo" || estado=1
done
exit $estado
