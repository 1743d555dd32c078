#!/usr/bin/env bash
# Tries the project as somebody does who has just installed their system:
#
#     tools/maquina_nueva.sh RELEASE        as root; bookworm or trixie
#
# Makes a bare Debian of that release, and in it, as an ordinary user with sudo, takes a clone of the
# committed head through the README's commands and ./package.sh, installs the package and removes it
# again. Says what failed; leaves nothing behind, however it ends. Takes 2 GB and half an hour.
set -u
version=${1:?which release of Debian}
cd "$(dirname "$(readlink -f "$0")")/.." || exit 1
bash tools/instalar.sh nueva ci || exit 1

raiz=$(mktemp -d /var/tmp/corvanda-nueva.XXXXXX) || exit 1
estado=1
# What was mounted and started lives in namespaces of its own, which are gone by now.
terminar() {
    rm -rf --one-file-system "$raiz"
    [ $estado -eq 0 ] && echo "Corvanda: PASS on a new $version"
    exit $estado
}
trap terminar EXIT
trap 'estado=130; exit' INT
trap 'estado=143; exit' TERM HUP

dentro() {  # dentro WHAT COMMAND: as the user; on failure the end of what it said
    echo "== $1" >&2
    unshare --mount --pid --fork --kill-child --mount-proc="$raiz/proc" bash -c '
        mount --rbind /dev "$0/dev" && exec chroot "$0" su - jugadora -c "cd corvanda && $1"' \
        "$raiz" "$2" >"$raiz/dicho.log" 2>&1 </dev/null && return
    tail -n 25 "$raiz/dicho.log" >&2
    echo "Corvanda: FAIL on a new $version: $1" >&2
    exit 1
}

# The same archive as this machine's own packages come from.
archivo=$(sed -n 's/^URIs: *//p; s/^deb [^h]*\(http[^ ]*\) .*/\1/p' /etc/apt/sources.list.d/debian.sources \
    /etc/apt/sources.list 2>/dev/null | head -n 1)
if ! debootstrap --variant=minbase --include=git,sudo,adduser "$version" "$raiz" $archivo >"$raiz.log" 2>&1; then
    tail -n 3 "$raiz.log" >&2
    echo "Corvanda: could not make a new $version: see $raiz.log" >&2
    exit 1
fi
rm -f "$raiz.log"
cp /etc/resolv.conf "$raiz/etc/"
chroot "$raiz" adduser --quiet --disabled-password --gecos '' jugadora
echo 'jugadora ALL=(ALL) NOPASSWD: ALL' >"$raiz/etc/sudoers.d/jugadora"
git -c safe.directory='*' clone -q --no-hardlinks . "$raiz/home/jugadora/corvanda" || exit 1
chroot "$raiz" chown -R jugadora: /home/jugadora

dentro './run.sh' ./run.sh
dentro './test.sh' './test.sh --werror'
dentro './package.sh' ./package.sh
dentro 'install the package' 'sudo apt-get install -y ./build/package/*.deb && command -v corvanda'
dentro 'remove the package' 'sudo apt-get remove -y corvanda && ! command -v corvanda'
estado=0
