#!/usr/bin/env bash
# What a screen reader gets to know of the game, asked over the real accessibility bus: plays a few
# steps by keyboard on a screen and a bus of its own, and fails where the game is silent or wrong.
#
#     tools/lector.sh [PROGRAM]
#
set -u
cd "$(dirname "$0")/.." || exit 1
programa=$(realpath "${1:-build/release/bin/corvanda}") || exit 1
bash tools/instalar.sh run screen hand bus || exit 1
. tools/accesible.sh
abrir_todo "$programa" && atender || exit 1

# The toolkit looks for a screen reader once, when the program starts.
"$programa" &
juego=$!
/usr/bin/python3 tools/lector.py
