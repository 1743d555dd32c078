#!/usr/bin/env bash
# Installs those packages of the named groups of tools/paquetes.txt that are missing:
#
#     tools/instalar.sh build run
#
# What is there is seen by looking for the files themselves, which takes a few milliseconds, so the
# package manager is only asked when there is something to install. CORVANDA_INSTALL=no leaves the
# system as it is.
set -u
cd "$(dirname "$0")/.." || exit 1
[ "${CORVANDA_INSTALL:-yes}" = no ] && exit 0

registro=build/log/instalar.log

hay() {  # hay WAYS: whether one of the ways parted by | finds something
    local modo raiz
    local IFS='|'
    set -f
    for modo in $1; do
        set +f
        case $modo in
            cmake:*)
                IFS=';:'
                for raiz in ${CMAKE_PREFIX_PATH-} /usr /usr/local; do
                    compgen -G "$raiz/lib*/cmake/${modo#cmake:}" >/dev/null && return 0
                    compgen -G "$raiz/lib/*/cmake/${modo#cmake:}" >/dev/null && return 0
                done
                ;;
            /*) compgen -G "$modo" >/dev/null && return 0 ;;
            *) command -v "$modo" >/dev/null && return 0 ;;
        esac
    done
    return 1
}

faltan=() ordenes=()
while read -r grupo paquete modos; do
    [[ " $* " == *" $grupo "* ]] || continue
    hay "$modos" && continue
    faltan+=("$paquete")
    [[ $modos == cmake:* || $modos == /* ]] || ordenes+=("$paquete")
done < <(grep -v '^#' tools/paquetes.txt)
[ ${#faltan[@]} -eq 0 ] && exit 0

fallo() {
    echo "Corvanda: could not install ${faltan[*]}: $1" >&2
    exit 1
}

# Elsewhere the libraries may stand in places that were not looked in: CMake has the last word.
if ! command -v apt-get >/dev/null; then
    [ ${#ordenes[@]} -gt 0 ] && fallo "there is no apt-get here, please install what these Debian packages hold"
    echo "Corvanda: these Debian packages, or what they hold, seem to be missing: ${faltan[*]}" >&2
    exit 0
fi

como_root=()
if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || fallo "neither root nor sudo; as root: apt-get install ${faltan[*]}"
    como_root=(sudo)
    [ -t 0 ] || como_root=(sudo -n)
    "${como_root[@]}" true || fallo "sudo was refused; as root: apt-get install ${faltan[*]}"
fi

echo "Corvanda: installing ${faltan[*]}" >&2
mkdir -p "${registro%/*}"
apt() {
    "${como_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -q -y -o DPkg::Lock::Timeout=300 "$@" \
        </dev/null >>"$registro" 2>&1
}
: >"$registro"
apt update  # a failure is not the end: the lists that are there may do
apt install --no-install-recommends "${faltan[@]}" || fallo "apt-get failed, see $registro"
