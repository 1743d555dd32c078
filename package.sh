#!/usr/bin/env bash
# Makes the Debian package: installs what is missing, builds what has changed, leaves
# build/package/corvanda_VERSION_ARCHITECTURE.deb and prints its name.
set -u
umask 022
cd "$(dirname "$(readlink -f "$0")")" || exit 1
. tools/construir.sh

mkdir -p build/log
bash tools/instalar.sh build package || exit 1
configurado release corvanda instalable || configurar release || exit 1
compilar release corvanda || exit 1

# The times in the package are those of the version, so that the same sources give the same package.
SOURCE_DATE_EPOCH=$(dpkg-parsechangelog -l packaging/changelog -S Timestamp) || exit 1
export SOURCE_DATE_EPOCH
rm -rf build/package
if ! cpack --config build/release/CPackConfig.cmake -B "$PWD/build/package" \
    >build/log/paquete.log 2>&1 </dev/null; then
    echo "Corvanda: could not make the package: see build/log/paquete.log" >&2
    exit 1
fi
rm -rf build/package/_CPack_Packages
ls build/package/*.deb
