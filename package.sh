#!/usr/bin/env bash
# Makes the Debian package: installs what is missing, builds what has changed, leaves
# build/package/corvanda_VERSION_ARCHITECTURE.deb and prints its name.
set -u
umask 022
cd "$(dirname "$(readlink -f "$0")")" || exit 1
. tools/construir.sh

con_registros || exit 1
exec 9>build/log/paquete.lock
if ! flock -n 9; then
    echo "Corvanda: waiting for another package.sh to end" >&2
    flock 9
fi
trap 'echo "Corvanda: interrupted, the package is as it was" >&2; exit 130' INT
trap 'exit 143' TERM HUP
bash tools/instalar.sh build package || exit 1
configurado release corvanda instalable || configurar release || exit 1
compilar release corvanda || exit 1

# The times in the package are those of the version, so that the same sources give the same package.
SOURCE_DATE_EPOCH=$(dpkg-parsechangelog -l packaging/changelog -S Timestamp) || exit 1
export SOURCE_DATE_EPOCH
# The old package stays until the new one is whole.
nuevo=build/package.new
rm -rf $nuevo
if ! cpack --config build/release/CPackConfig.cmake -B "$PWD/$nuevo" \
    >build/log/paquete.log 2>&1 </dev/null; then
    echo "Corvanda: could not make the package: see build/log/paquete.log" >&2
    exit 1
fi
paquete=$(basename $nuevo/*.deb)
mkdir -p build/package && mv "$nuevo/$paquete" build/package/ || exit 1
rm -rf $nuevo
find build/package -mindepth 1 ! -name "$paquete" -delete
ls "build/package/$paquete"
