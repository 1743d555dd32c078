#!/usr/bin/env bash
# What run.sh, test.sh, package.sh and tools/instalar.sh say, and with which status they end, whatever
# the commands that they call do. Those are stand-ins here: nothing is installed, built or shown.
#
#     tests/guiones_test.sh [FOLDER OF THE SOURCES]
set -u
fuentes=$(realpath "${1:-$(dirname "$0")/..}")
dir=$(mktemp -d) || exit 1
trap 'rm -rf "$dir"' EXIT
unset DISPLAY WAYLAND_DISPLAY CORVANDA_INSTALL CORVANDA_CAPTURAS CORVANDA_PRESET CORVANDA_WERROR CMAKE_PREFIX_PATH
arbol=$dir/arbol
export LLAMADAS=$dir/llamadas

# A stand-in notes how it was called. FALLA names the call that ends with ESTADO, SENAL the call in
# whose middle its caller gets a signal.
mkdir "$dir/falsas" "$dir/ordenes"
cat >"$dir/falsas/falsa" <<'FIN'
#!/usr/bin/env bash
esta="${0##*/} $*"
echo "$esta${SOURCE_DATE_EPOCH+ at $SOURCE_DATE_EPOCH}" >>"$LLAMADAS"
if [[ -n ${FALLA-} && $esta == $FALLA* ]]; then
    echo "pieza.cpp:1:1: error: no such thing"
    exit "${ESTADO:-1}"
fi
[[ -n ${SENAL-} && $esta == ${SENAL#* }* ]] && kill "-${SENAL%% *}" $PPID
case $esta in
    cmake*--build*) for p in corvanda demostracion; do ln -sf "$(command -v falsa)" build/release/bin/$p; done ;;
    cmake*) mkdir -p build/release/bin
        echo "CMAKE_HOME_DIRECTORY:INTERNAL=$PWD" >build/release/CMakeCache.txt
        printf 'build %s: phony\n' corvanda demostracion instalable >build/release/build.ninja ;;
    ctest*) echo "$SALTADA"
        while [ $# -gt 1 ]; do
            [[ $1 == -O || $1 == --output-log ]] && echo "$SALTADA" >"$2"
            shift
        done ;;
    cpack*) while [ "$1" != -B ]; do shift; done
        mkdir -p "$2" && echo new >"$2/corvanda_1_all.deb" ;;
    dpkg-parsechangelog*) echo 123 ;;
    id*) echo "${USUARIO:-0}" ;;
    sudo*) while [[ $1 == -* ]]; do shift; done && exec "$@" ;;
    Xvfb*) echo $$ >>"$LLAMADAS.pids" && echo 40 >&3 && exec sleep 100 ;;
    openbox*) echo $$ >>"$LLAMADAS.pids" && ${*: -1} && exec sleep 100 ;;
esac
exit 0
FIN
chmod +x "$dir/falsas/falsa"
for orden in cmake ctest cpack dpkg-parsechangelog id sudo Xvfb openbox apt-get; do
    ln -s falsa "$dir/falsas/$orden"
done
for orden in awk basename bash cat cp dirname env find flock grep head ln ls mkdir mktemp mv nproc readlink \
    realpath rm sed sleep sort tail touch true wc; do
    ln -s "$(type -P $orden)" "$dir/ordenes/$orden"
done

faltas=0
caso() {  # caso WHAT STATUS WORDS [NAME=VALUE...] COMMAND...: in a fresh copy of the scripts
    local que=$1 estado=$2 texto=$3 entorno=() visto
    shift 3
    while [[ $1 == *=* ]]; do entorno+=("$1") && shift; done
    rm -rf "$arbol" "$LLAMADAS"* && mkdir -p "$arbol/tools" "$arbol/packaging" && : >"$LLAMADAS"
    cp "$fuentes"/*.sh "$fuentes/CMakePresets.json" "$arbol"
    cp "$fuentes"/tools/*.sh "$arbol/tools"
    echo "${PAQUETES-}" >"$arbol/tools/paquetes.txt"
    mkdir -p "$arbol/build/package" && echo old >"$arbol/build/package/corvanda_0_all.deb"
    salida=$(cd / && env PATH="${FALSAS:-$dir/falsas}:$dir/ordenes" SALTADA= ${entorno[@]+"${entorno[@]}"} \
        bash "$arbol/$1" "${@:2}" 2>&1 </dev/null)
    visto=$?
    [ $visto = "$estado" ] || mal "$que: ended with $visto, not $estado"
    [[ $salida == *$texto* ]] || mal "$que: did not say '$texto'"
    [ ! -f "$LLAMADAS.pids" ] || ! kill -0 $(<"$LLAMADAS.pids") 2>/dev/null || mal "$que: its screen is left"
}
mal() { echo "$1; said: $salida" && faltas=$((faltas + 1)); }
llamo() { grep -q -- "$1" "$LLAMADAS" || mal "$2: did not call $1"; }
no_llamo() { ! grep -q -- "$1" "$LLAMADAS" || mal "$2: called $1"; }

PAQUETES='test falta orden-que-falta'
caso "test.sh" 0 "PASS, every test of the release build" test.sh -- -R Pase
llamo "ctest.* -R Pase" "words for ctest"
llamo "apt-get.*install.* falta" "a package that is missing"
no_llamo "Xvfb" "test.sh"
llamo "CORVANDA_WERROR=OFF" "test.sh"
caso "warnings as errors" 0 "PASS" test.sh --werror
llamo "CORVANDA_WERROR=ON" "test.sh --werror"
caso "another preset" 0 "PASS, every test of the sanitize build" test.sh sanitize
llamo "ctest --preset sanitize" "another preset"
caso "an unknown option" 2 "PRESET is release" test.sh --unknown
caso "a test that fails" 8 "FAIL, not every test" FALLA=ctest ESTADO=8 test.sh
caso "a test that is skipped" 1 "FAIL, " "SALTADA=	 12 - Sound.Plays (Skipped)" test.sh
caso "tests without packages" 1 "FAIL, the release build could not be made" "FALLA=apt-get -q -y -o DPkg::Lock::Timeout=300 install" test.sh
no_llamo "cmake" "test.sh without packages"
caso "tests without a build folder" 1 "could not configure" "FALLA=cmake --preset" test.sh
caso "tests without a build" 1 "pieza.cpp:1:1: error" "FALLA=cmake --build" test.sh
no_llamo "ctest" "test.sh without a build"
caso "interrupted tests" 130 "FAIL" "SENAL=INT ctest" test.sh
caso "ended tests" 143 "FAIL" "SENAL=TERM cmake --build" test.sh

PAQUETES=
caso "the game" 7 "" DISPLAY=:9 FALLA=corvanda ESTADO=7 run.sh -style fusion
llamo "corvanda -style fusion" "words for the game"
no_llamo "Xvfb\|apt-get" "run.sh with a screen"
caso "a game that is not built" 1 "could not build" DISPLAY=:9 "FALLA=cmake --build" run.sh
no_llamo "^corvanda" "run.sh without a build"
caso "a game that is not configured" 1 "could not configure" DISPLAY=:9 "FALLA=cmake --preset" run.sh
no_llamo "^corvanda" "run.sh without a build folder"
caso "the demonstration" 0 "was played; its pictures are in $dir/fotos" CORVANDA_CAPTURAS="$dir/fotos" run.sh
llamo "demostracion $dir/fotos" "run.sh without a screen"
caso "a demonstration that fails" 9 "failed with exit status 9" FALLA=demostracion ESTADO=9 run.sh
caso "an interrupted demonstration" 143 "a demonstration is played" "SENAL=TERM demostracion" run.sh
caso "no virtual screen" 1 "could not start a virtual screen" FALLA=Xvfb run.sh
caso "no window manager" 1 "could not start a window manager" FALLA=openbox run.sh
caso "pictures that cannot be kept" 1 "could not write to /proc/fotos" CORVANDA_CAPTURAS=/proc/fotos run.sh
no_llamo "Xvfb" "run.sh without a folder"

caso "the package" 0 "build/package/corvanda_1_all.deb" package.sh
[ "$(ls "$arbol/build/package")" = corvanda_1_all.deb ] || mal "an old package is left"
llamo "cpack.* at 123" "the time of the version"
for llamada in "cmake --preset" "cmake --build" dpkg-parsechangelog cpack; do
    caso "a package without $llamada" 1 "" FALLA="$llamada" package.sh
    [ "$(ls "$arbol/build/package")" = corvanda_0_all.deb ] || mal "the old package is gone without $llamada"
done
[[ $salida == *"see build/log/paquete.log" ]] || mal "nothing told of cpack"
caso "an interrupted package" 130 "interrupted" "SENAL=INT cpack" package.sh
[ -f "$arbol/build/package/corvanda_0_all.deb" ] || mal "the old package went before there was another"
caso "an interrupted package" 130 "interrupted, the package is as it was" "SENAL=INT cpack" package.sh
[ -f "$arbol/build/package/corvanda_0_all.deb" ] || mal "an interruption took the package away"

PAQUETES='# a comment
build falta orden-que-falta
build sobra bash
otro ajeno orden-que-falta'
caso "an installation" 0 "installing falta" tools/instalar.sh build run
llamo "apt-get.*update" "an installation"
llamo "apt-get.*install --no-install-recommends falta$" "what is missing, and no more"
no_llamo sudo "root"
caso "an installation by another" 0 "installing falta" USUARIO=1000 tools/instalar.sh build
llamo "sudo.*apt-get.* falta$" "not root"
caso "nothing to install" 0 "" tools/instalar.sh run
no_llamo apt-get "nothing to install"
caso "no installation" 0 "" CORVANDA_INSTALL=no tools/instalar.sh build
no_llamo apt-get "CORVANDA_INSTALL=no"
caso "lists that are old" 0 "" "FALLA=apt-get -q -y -o DPkg::Lock::Timeout=300 update" tools/instalar.sh build
caso "a failing installation" 1 "could not install falta: apt-get failed" \
    "FALLA=apt-get -q -y -o DPkg::Lock::Timeout=300 install" tools/instalar.sh build
caso "a sudo that refuses" 1 "sudo was refused; as root: apt-get install falta" USUARIO=1000 FALLA=sudo tools/instalar.sh build
rm "$dir/falsas/sudo"
caso "no sudo" 1 "neither root nor sudo; as root: apt-get install falta" USUARIO=1000 tools/instalar.sh build
rm "$dir/falsas/apt-get"
caso "no apt-get" 1 "there is no apt-get here" tools/instalar.sh build
PAQUETES='build libfalta-dev cmake:Falta'
caso "a library elsewhere" 0 "seem to be missing: libfalta-dev" tools/instalar.sh build

[ $faltas -eq 0 ] || exit 1
echo "the scripts end as they should"
