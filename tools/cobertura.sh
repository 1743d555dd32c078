#!/usr/bin/env bash
# How much of core/ and computer/ the tests run: builds the coverage preset, runs test_core and
# test_computer, and prints for each file the lines that they leave out, and at the end the shares of
# all lines and branches. Fails below 99 and 96 %. Branches that only an exception takes are not
# counted, nor are those that the compiler writes.
#
#     tools/cobertura.sh [build folder]      the folder defaults to build/coverage
set -euo pipefail
cd "$(dirname "$0")/.."
carpeta=${1:-build/coverage}

bash tools/instalar.sh build coverage
cmake --preset coverage -B "$carpeta" > /dev/null
cmake --build "$carpeta" --target test_core test_computer > /dev/null
find "$carpeta" -name '*.gcda' -delete
for programa in test_core test_computer; do
    "$carpeta/bin/$programa" --gtest_brief=1
done
gcovr --root . --filter core/ --filter computer/ --exclude-throw-branches \
    --exclude-lines-by-pattern '.*= default;.*' --txt - --print-summary \
    --fail-under-line 99 --fail-under-branch 96 "$carpeta"
