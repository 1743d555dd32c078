#!/usr/bin/env bash
# What gets installed and packaged: complete, valid, in step with the program, and started by the
# name on the path.
#
#     tests/paquete_test.sh FOLDER OF THE SOURCES  FOLDER OF THE BUILD
set -u
umask 022
fuentes=$(realpath "$1") obra=$(realpath "$2")
dir=$(mktemp -d) || exit 1
pid=
trap '[ -n "$pid" ] && kill "$pid" 2>/dev/null; rm -rf "$dir"' EXIT

faltas=0
falta() {
    echo "$1"
    faltas=$((faltas + 1))
}
debe() {  # debe COMMAND: its output is told when it fails
    local salida
    salida=$("$@" 2>&1) || falta "$* failed: $salida"
}
iguales() {  # iguales WHAT EXPECTED FOUND
    [ "$2" = "$3" ] || falta "$1: expected '$2', found '$3'"
}

for orden in appstreamcli cpack desktop-file-validate dpkg-parsechangelog dpkg-shlibdeps file lintian; do
    command -v $orden >/dev/null || falta "there is no $orden here: bash tools/instalar.sh test"
done
[ $faltas -eq 0 ] || exit 1

# In a prefix of somebody's own.
prefijo="$dir/mis juegos"
debe cmake --install "$obra" --prefix "$prefijo"
juego=$prefijo/lib/corvanda
iguales "the link on the path" ../lib/corvanda/corvanda "$(readlink "$prefijo/bin/corvanda")"
datos() { (cd "$1" && find . \( -name '*.svg' -o -name '*.Wav' -o -name '*.HLP' -o -name '*.avi' \) | sort); }
de_hoy() {  # a build folder keeps what was renamed since
    while read -r dato; do
        { [ -e "$fuentes/$dato" ] || [[ $dato == *.HLP ]]; } && echo "$dato"
    done
}
debe diff <(datos "$obra/bin" | de_hoy) <(datos "$juego")

# The program says by itself where it looks: whoever writes to a pipe waits until it is opened.
rm -f "$juego/imagenes/estuche.svg"
mkfifo "$juego/imagenes/estuche.svg"
(cd / && exec env HOME="$dir" XDG_CONFIG_HOME="$dir" QT_QPA_PLATFORM=offscreen SDL_AUDIODRIVER=dummy \
    "$prefijo/bin/corvanda" >"$dir/salida" 2>&1) &
pid=$!
timeout 20 bash -c ': >"$0"' "$juego/imagenes/estuche.svg" ||
    falta "started by its link, the program does not read its pictures"
kill "$pid" 2>/dev/null
wait "$pid"
iguales "the exit status after SIGTERM" 0 $?
pid=

# The package.
debe cpack --config "$obra/CPackConfig.cmake" -B "$dir/deb"
paquete=$(echo "$dir"/deb/*.deb)
debe dpkg-deb -x "$paquete" "$dir/raiz"
usr=$dir/raiz/usr
campo() { dpkg-deb -f "$paquete" "$1"; }
iguales "a game's place on the path" ../lib/corvanda/corvanda "$(readlink "$usr/games/corvanda")"
[ ! -e "$usr/bin" ] || falta "the package has a /usr/bin"
# The first brings the reader of the pictures, the second the X11 platform.
for necesario in libqt6svg6 libqt6gui6 libsdl2-2.0-0; do
    [[ $(campo Depends) == *"$necesario "* ]] || falta "the package does not depend on $necesario"
done
# A few dozen bytes with the compiler's name are no reason for a step of our own, and built with
# _FORTIFY_SOURCE the program calls the same functions: it has none that could be fortified.
debe lintian --allow-root --display-info --pedantic \
    --suppress-tags binary-has-unneeded-section,hardening-no-fortify-functions --fail-on error,warning,info,pedantic "$paquete"
for ruta in "$fuentes" "$obra" "$dir"; do
    debe test -z "$(grep -rlaF "$ruta" "$dir/raiz")"
done

entrada=$usr/share/applications/corvanda.desktop
ficha=$(echo "$usr"/share/metainfo/*.metainfo.xml)
debe desktop-file-validate "$entrada"
debe appstreamcli validate --no-net --pedantic "$ficha"
etiqueta() { sed -nE "s|.*<$1[^>]*>([^<]*)</.*|\1|p" "$ficha"; }
iguales "the page's file name" "$(etiqueta id).metainfo.xml" "${ficha##*/}"
iguales "what the page starts" "${entrada##*/}" "$(etiqueta launchable)"
iguales "the entry that the window names" "${entrada##*/}" \
    "$(sed -nE 's/.*setDesktopFileName\("([^"]*)"\).*/\1.desktop/p' "$fuentes/app/aplicacion.cpp")"
orden=$(sed -n 's/^Exec=//p' "$entrada") icono=$(sed -n 's/^Icon=//p' "$entrada")
[ -x "$usr/games/$orden" ] || falta "the entry starts $orden, which is not there"
for lado in 16 22 24; do
    debe grep -q "width=\"$lado\" height=\"$lado\"" "$usr/share/icons/hicolor/${lado}x$lado/apps/$icono.svg"
done
debe test -f "$usr/share/icons/hicolor/scalable/apps/$icono.svg"
for imagen in $(etiqueta image); do
    debe test -f "$fuentes/${imagen#https://corvanda.example/}"
done

version=$(campo Version)
iguales "the version of packaging/changelog" "$version" "$(dpkg-parsechangelog -l "$fuentes/packaging/changelog" -S Version)"
iguales "the newest version of the page" "$version" \
    "$(grep -o '<release [^>]*' "$ficha" | sed -nE '1s/.*version="([^"]*)".*/\1/p')"
[[ $(zcat "$usr/share/man/man6/corvanda.6.gz") == *"Corvanda $version"* ]] || falta "the manual page is of another version"

[ $faltas -eq 0 ] || exit 1
echo "installs, starts and packages as ${paquete##*/}"
