#!/usr/bin/env bash
# Builds everything and runs the tests:
#
#     ./test.sh [--werror] [PRESET] [-- CTEST ARGUMENTS]
#
# PRESET is release (the default), sanitize or coverage. CORVANDA_WERROR=1 and CORVANDA_PRESET say the
# same from the environment. No test needs a screen, and none gets one.
set -u
cd "$(dirname "$(readlink -f "$0")")" || exit 1
. tools/construir.sh

preset=${CORVANDA_PRESET:-release}
werror=OFF
[ "${CORVANDA_WERROR:-0}" != 0 ] && werror=ON
while [ $# -gt 0 ]; do
    case $1 in
        --werror) werror=ON ;;
        --) shift && break ;;
        -*) sed -n '2,/^set/{/^#/s/^# \{0,1\}//p}' "$0" >&2 && exit 2 ;;
        *) preset=$1 ;;
    esac
    shift
done

terminar() {
    local estado=$?
    if [ $estado -eq 0 ]; then
        echo "Corvanda: PASS, every test of the $preset build passed"
    else
        echo "Corvanda: FAIL, $etapa"
    fi
    exit $estado
}
trap terminar EXIT
trap 'exit 130' INT
trap 'exit 143' TERM HUP

etapa="the $preset build could not be made"
bash tools/instalar.sh build run test || exit 1
configurar "$preset" -DCORVANDA_WERROR=$werror || exit 1
compilar "$preset" || exit 1
etapa="not every test of the $preset build passed"
env -u DISPLAY -u WAYLAND_DISPLAY ctest --preset "$preset" -O "build/log/pruebas-$preset.log" "$@" </dev/null || exit
etapa="some tests of the $preset build were skipped, which asks for what is missing here"
! grep -F '(Skipped)' "build/log/pruebas-$preset.log"
